// A recording as a scenario.
#include "agent/database/Paths.h"
#include "agent/recording/RecordedRun.h"
#include "agent/recording/RecordedSegments.h"
#include "inspection/files/ScenarioReading.h"

namespace Live {

namespace {

using namespace Inspection;
using Rex::Value;

// The state as it goes along, without a plug-in, as a scenario is looked at when it is read.
class State {
 public:
   explicit State( Scenario const & begun ) {
      tell( begun.description, tree_ );
      for ( auto const & [path, attributes] : begun.state ) {
         stateIs( tree_, path, attributes );
      }
   }

   // The change as a scenario has it: members are made with what is set in them. None where it didn't fit, or changed
   // nothing.
   std::optional< Event > taken( Event event ) {
      if ( event.fault ) {
         return event;
      }
      try {
         PathPlace const place = placeOf( event.path );
         bool const isThere = has( event.path );
         if ( event.kind == Event::Kind::remove && !event.attribute && !isThere ) {
            return std::nullopt;
         }
         if ( event.kind == Event::Kind::set && place.isMember() && !isThere ) {
            event = makingItsMember( event, place );
         }
         event.change( tree_ );
         return event;
      } catch ( Rex::ValueError const & ) {
         return std::nullopt; // the agent rejected it
      }
   }

 private:
   bool has( std::string const & path ) const {
      try {
         return tree_.entity( path ) != nullptr;
      } catch ( Rex::ValueError const & ) {
         return false;
      }
   }
   Simulator::StateTree tree_;
};

} // namespace

Value scenarioOfRecording( std::string const & path, std::vector< std::string > & remarks ) {
   RecordedSegments segments( path );
   Value::Object scenario;
   Value::List events;
   std::optional< State > state;
   while ( auto const event = segments.next() ) {
      if ( event->isBegin ) {
         auto const begun = scenarioOf( segments.begun().scenario, segments.path() );
         scenario = *segments.begun().scenario.object();
         events.clear();
         state.emplace( begun );
         remarks.clear();
         if ( segments.begun().event ) {
            remarks.push_back( segments.path() + ": begins behind event " + std::to_string( *segments.begun().event ) +
                               ": the scenario's start programs chips that are programmed already, and its event 1 is "
                               "event " +
                               std::to_string( event->event ) + " of the recording" );
         }
      }
      if ( event->event == 0 ) {
         continue;
      }
      Event read;
      inFile( segments.path(), [&] { readEvent( event->what, read ); } );
      Event out{ .kind = Event::Kind::transaction };
      for ( Event const & change : changesOf( std::move( read ) ) ) {
         if ( auto taken = state->taken( change ) ) {
            out.changes.push_back( std::move( *taken ) );
         }
      }
      if ( !out.changes.empty() ) {
         events.push_back( valueOf( out.changes.size() == 1 ? out.changes.front() : out ) );
      }
   }
   scenario["events"] = std::move( events );
   remarks.insert( remarks.end(), segments.remarks().begin(), segments.remarks().end() );
   return scenario;
}

} // namespace Live
