#include "inspection/files/Contradictions.h"

#include "generated/Catalogue.h"

#include <algorithm>

namespace Inspection {

namespace {

using Fault = Rex::ValueError::Fault;
using Rex::Value;
using Simulator::FapDescription;

constexpr char const * routes = "routing/hardware/route/status";
constexpr char const * prefixLengths = "prefixLensInExactMatch";
constexpr std::int64_t longestPrefix = 32;

class Contradictions {
 public:
   std::vector< Fault > found;

   void inFap( FapDescription const & fap, std::string const & place ) {
      auto const & revision = fap.revision;
      chip_ = Hardware::chipTypeName( revision.chipType() );
      major( revision, place + "/revision/major" );
      if ( std::ranges::find( Hardware::Dace::sdkVersions, revision.sdkVersion() ) ==
           Hardware::Dace::sdkVersions.end() ) {
         tell( place + "/revision/sdkVersion",
               "an SDK of version " + std::to_string( revision.sdkVersion() ) +
                  " is not known, and taken for the newest; there are " + list( Hardware::Dace::sdkVersions ) );
      }
      cores( fap, place + "/cores" );
      ports( fap, place + "/ports" );
   }
   void inState( Value::Object const & state ) {
      auto const attributes = state.find( routes );
      auto const * object = attributes == state.end() ? nullptr : attributes->second.object();
      if ( object && object->contains( prefixLengths ) ) {
         lengths( object->at( prefixLengths ),
                  "/state" + Rex::pointerStep( routes ) + Rex::pointerStep( prefixLengths ) );
      }
   }
   void inEvent( Event const & event ) { inEvent( event, "/events/" + std::to_string( event.number - 1 ) ); }
   void inEvent( Event const & event, std::string const & place ) {
      for ( std::size_t at = 0; at < event.changes.size(); ++at ) {
         inEvent( event.changes[at], place + "/transaction/" + std::to_string( at ) );
      }
      if ( event.kind == Event::Kind::set && event.path == routes && event.attribute == prefixLengths ) {
         lengths( event.value, place + "/set/value" );
      }
   }

 private:
   void tell( std::string place, std::string text ) { found.push_back( { std::move( place ), std::move( text ) } ); }

   template< class Numbers >
   static std::string list( Numbers const & numbers ) {
      std::string text;
      for ( auto const number : numbers ) {
         text += ( text.empty() ? "" : ", " ) + std::to_string( number );
      }
      return text;
   }

   void major( Hardware::Dace::FapRevision const & revision, std::string const & place ) {
      U32 const own = Hardware::Dace::fapRevMajorOf( revision.chipType() );
      if ( revision.fapRevMajor() == own ) {
         return;
      }
      std::string of;
      for ( auto const other : Hardware::allChipTypes ) {
         if ( Hardware::Dace::fapRevMajorOf( other ) == revision.fapRevMajor() ) {
            of += ( of.empty() ? "" : " or " ) + std::string( Hardware::chipTypeName( other ) );
         }
      }
      tell( place,
            "the major revision " + std::to_string( revision.fapRevMajor() ) + " is that of " +
               ( of.empty() ? "no chip" : "a " + of ) + "; a " + chip_ + " has " + std::to_string( own ) );
   }
   void cores( FapDescription const & fap, std::string const & place ) {
      U16 const cores = fap.coreCount();
      U16 const copies = fap.copies();
      std::string const has = "a " + chip_ + " has " + std::to_string( copies );
      if ( cores == 0 ) {
         tell( place, "without a core, no recirculation port is programmed; " + has );
      } else if ( cores > copies ) {
         tell( place, std::to_string( cores ) + " cores are more than the chip has copies of its tables; " + has );
      }
   }
   void ports( FapDescription const & fap, std::string const & place ) {
      auto const & table = *Catalogue::table( "IppbFlpPortProfileMap" );
      U32 const entries = Catalogue::layout( table, static_cast< U8 >( fap.revision.chipType() ), 0 )->entries;
      for ( auto const & [systemPort, port] : fap.ports ) {
         if ( port >= entries ) {
            tell( place + "/" + std::to_string( systemPort ),
                  "a " + chip_ + " has no port " + std::to_string( port ) + "; its port table ends at " +
                     std::to_string( entries - 1 ) );
         }
      }
   }
   void lengths( Value const & value, std::string const & place ) {
      if ( auto const * length = value.integer(); length && *length > longestPrefix ) {
         tell( place,
               "an IPv4 prefix has at most " + std::to_string( longestPrefix ) + " bits, not " +
                  std::to_string( *length ) );
      }
      if ( auto const * object = value.object() ) {
         for ( auto const & [key, length] : *object ) {
            lengths( length, place + Rex::pointerStep( key ) );
         }
      }
   }

   std::string chip_; // of the FAP that is looked at
};

} // namespace

std::vector< Fault > contradictionsIn( Scenario const & scenario ) {
   Contradictions contradictions;
   for ( std::size_t index = 0; index < scenario.description.faps.size(); ++index ) {
      contradictions.inFap( scenario.description.faps[index], "/switch/faps/" + std::to_string( index ) );
   }
   contradictions.inState( scenario.state );
   std::ranges::for_each( scenario.events, [&]( Event const & event ) { contradictions.inEvent( event ); } );
   return std::move( contradictions.found );
}

} // namespace Inspection
