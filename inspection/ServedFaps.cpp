#include "inspection/ServedFaps.h"

namespace Inspection {

namespace {

constexpr std::string_view chipInit = "chip-init";

} // namespace

std::vector< ServedFap::Opener > openersOf( std::string_view reason ) {
   std::vector< ServedFap::Opener > openers;
   for ( KnownToggle const & toggle : knownToggles() ) {
      auto const at = reason.find( toggle.name );
      if ( at != std::string_view::npos ) {
         openers.push_back( { &toggle, reason.substr( at ).ends_with( "off" ) } ); // what it is not
      }
   }
   return openers;
}

std::string ServedFap::remedy() const {
   if ( isServed ) {
      return {};
   }
   if ( openers.empty() ) {
      return "no toggle opens it: it takes another kind of chip, or another plug-in";
   }
   std::string text = "--toggle " + openers.front().setting() + " opens it";
   for ( std::size_t other = 1; other < openers.size(); ++other ) {
      text += ", as does " + openers[other].setting();
   }
   return text;
}

void ServedFaps::follow( Simulator::Row const & row ) {
   if ( row.cause != chipInit || !row.isOfFap ) {
      return;
   }
   if ( row.isOperation() ) {
      initialised_.insert( row.fap );
   } else if ( row.kind == Simulator::Row::Kind::gate ) {
      reasons_.emplace( row.fap, row.reason );
   }
}

ServedFap ServedFaps::of( U16 fap ) const {
   if ( initialised_.contains( fap ) ) {
      return { .isServed = true };
   }
   auto const reason = reasons_.find( fap );
   if ( reason == reasons_.end() ) {
      return { .reason = "no plug-in has programmed it at chip initialisation" };
   }
   return { .reason = reason->second, .openers = openersOf( reason->second ) };
}

} // namespace Inspection
