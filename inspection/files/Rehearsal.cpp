#include "inspection/files/Rehearsal.h"

#include <algorithm>

namespace Inspection {

namespace {

using Rex::Value;
using Rex::ValueError;
using Rex::ValueErrors;

bool isPublished( std::string const & path ) {
   return path == "managed/intfStatusDir" || path == "managed/intfStatusLocalDir";
}

} // namespace

Rehearsal::Rehearsal( Simulator::SwitchDescription const & description ) {
   for ( auto const & fap : description.faps ) {
      chipTypes_.emplace( fap.fapId.value(), fap.revision.chipType() );
   }
   tell( description, tree_ );
}

void Rehearsal::chips( std::map< U16, Simulator::Contents > const & chips,
                       std::vector< Simulator::FapDescription > const & faps ) {
   ValueErrors errors;
   for ( auto const & [number, contents] : chips ) {
      errors.below( std::to_string( number ), [&, fap = number, of = &contents] {
         auto const found = std::ranges::find( faps, Hardware::Dace::FapId( fap ), &Simulator::FapDescription::fapId );
         if ( found == faps.end() ) {
            throw ValueError( { "", "the switch has no such FAP", true } );
         }
         Simulator::check( of->tables, found->revision.chipType() );
      } );
   }
   errors.end();
}

bool Rehearsal::isAsTold( std::string const & path, Value const & attributes ) const {
   auto const root = std::ranges::find( Simulator::stateRoots(), path, &Simulator::StateRoot::path );
   return root != Simulator::stateRoots().end() && root->kind == Simulator::StateRoot::Kind::given &&
          tree_.entity( path )->value() == attributes;
}

void Rehearsal::state( Value::Object & state ) {
   std::erase_if(
      state, [&]( auto const & part ) { return isPublished( part.first ) || isAsTold( part.first, part.second ); } );
   ValueErrors errors;
   for ( auto const & [path, attributes] : state ) {
      errors.below( path, [&, at = path, of = &attributes] {
         try {
            stateIs( tree_, at, *of );
         } catch ( ValueError const & error ) {
            for ( auto const & fault : error.faults() ) { // the other attributes are set
               isMissing( at + fault.place.substr( 0, fault.place.find( '/', 1 ) ) );
            }
            throw;
         }
      } );
   }
   errors.end();
}

void Rehearsal::event( Event const & event ) {
   if ( event.fault ) {
      if ( !chipTypes_.empty() ) { // or nobody knows what is missing
         Simulator::check( *event.fault, chipTypes_ );
      }
      return;
   }
   if ( event.kind == Event::Kind::transaction ) {
      ValueErrors errors;
      for ( std::size_t at = 0; at < event.changes.size(); ++at ) {
         Event const & change = event.changes[at];
         errors.below( std::to_string( at ), [&] { Rex::below( change.word(), [&] { this->event( change ); } ); } );
      }
      errors.end();
      return;
   }
   try {
      event.change( tree_ );
   } catch ( ValueError const & error ) {
      bool const isToldAlready = isExpected( event, error );
      isWithout( event );
      if ( isToldAlready ) {
         return;
      }
      auto faults = error.faults();
      for ( auto & fault : faults ) {
         fault.isKey = fault.isKey && fault.place != "/key"; // which is a value of the event
      }
      throw ValueError( std::move( faults ) );
   }
}

void Rehearsal::isWithout( Event const & event ) {
   for ( Event const & change : event.changes ) {
      isWithout( change );
   }
   if ( event.kind == Event::Kind::transaction || event.fault ) {
      return;
   }
   isMissing( event.path + ( event.attribute ? "/" + *event.attribute : "" ) + ( event.key ? "/" + *event.key : "" ) );
}

// A path that nobody knows is an error wherever it stands.
void Rehearsal::isMissing( std::string const & path ) {
   bool const isKnown = std::ranges::any_of( Simulator::stateRoots(), [&]( Simulator::StateRoot const & root ) {
      return Rex::isAtOrBelow( path, root.path() );
   } );
   if ( isKnown ) {
      missing_.push_back( path );
   }
}

// What an event asks for isn't there, and that is because of an error before.
bool Rehearsal::isExpected( Event const & event, ValueError const & error ) const {
   bool const isAbsent = error.place() == "/path" || ( event.kind == Event::Kind::remove && error.place() == "/key" );
   auto const entry =
      event.attribute && event.key ? event.path + "/" + *event.attribute + "/" + *event.key : event.path;
   return isAbsent &&
          std::ranges::any_of( missing_, [&]( std::string const & path ) { return Rex::isAtOrBelow( entry, path ); } );
}

} // namespace Inspection
