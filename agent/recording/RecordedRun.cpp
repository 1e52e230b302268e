#include "agent/recording/RecordedRun.h"

#include "agent/StateDoor.h"
#include "agent/recording/RecordedSegments.h"
#include "inspection/EventInput.h"
#include "inspection/OperationHash.h"
#include "inspection/files/ScenarioReading.h"

#include <memory>

namespace Live {

namespace {

using namespace Inspection;
using Rex::Value;

// The operations of the event that was played last.
class LastEvent final : public Simulator::RowReader {
 public:
   void eventBegins( U32, Value const & ) override { hash.clear(); }
   void row( Simulator::Row const & row ) override { hash.add( row ); }
   OperationHash hash;
};

std::vector< Event > changesIn( Value const & what, std::string const & place ) {
   Event event;
   inFile( place, [&] { readEvent( what, event ); } );
   return changesOf( std::move( event ) );
}

// Puts in zeros where nothing is to stand: what a start has written that the agent's chips don't have.
void emptyOthers( Simulator::TablesContents & there, Simulator::TablesContents const & wanted ) {
   for ( auto & [table, variants] : there ) {
      for ( auto & [variant, arrays] : variants ) {
         for ( auto & [array, entries] : arrays ) {
            auto const isWanted = [&, &of = table, &in = variant, &at = array]( U32 entry ) {
               auto const tables = wanted.find( of );
               if ( tables == wanted.end() || !tables->second.contains( in ) ||
                    !tables->second.at( in ).contains( at ) ) {
                  return false;
               }
               return tables->second.at( in ).at( at ).contains( entry );
            };
            std::erase_if( entries, [&]( auto const & entry ) { return isWanted( entry.first ); } );
            for ( auto & entry : entries ) {
               for ( auto & words : entry.second.copies ) {
                  std::ranges::fill( words, 0 );
               }
            }
         }
      }
   }
}

// A switch that stands where a recording begins.
class Replayed {
 public:
   Replayed( RecordingBegin const & begun, std::string const & file )
      : scenario_( scenarioOf( begun.scenario, file ) ), sw_( streamed( scenario_.description ) ), door_( sw_ ) {
      sw_.journal().readerAdd( last_ );
      scenario_.prepare( sw_ );
      if ( begun.event ) {
         startAfter();
      }
   }
   ~Replayed() { sw_.journal().readerDel( last_ ); }
   Replayed( Replayed const & ) = delete;
   Replayed & operator=( Replayed const & ) = delete;

   OperationHash play( RecordedEvent const & event ) {
      if ( event.what.object() && event.what.object()->contains( "start" ) ) {
         sw_.start();
         return last_.hash;
      }
      std::string const place = scenario_.file + ": event " + std::to_string( event.event );
      auto const changes = changesIn( event.what, place );
      if ( changes.size() == 1 && changes.front().fault ) {
         inFile( place, [&] { Rex::below( "fault", [&] { sw_.fault( *changes.front().fault ); } ); } );
      } else {
         door_.play( changes );
      }
      return last_.hash;
   }

 private:
   static Simulator::SwitchDescription streamed( Simulator::SwitchDescription description ) {
      description.journalled = Simulator::SwitchDescription::Journalled::streamed;
      return description;
   }
   // The plug-in starts, and the chips are as they were again.
   void startAfter() {
      std::map< U16, Simulator::Contents > before;
      for ( auto const & fap : scenario_.description.faps ) {
         before[fap.fapId.value()] = contentsOf( sw_.chip( fap.fapId ), fap.revision.chipType() );
      }
      sw_.start();
      for ( auto const & fap : scenario_.description.faps ) {
         auto & chip = sw_.chip( fap.fapId );
         auto const & wanted = before[fap.fapId.value()];
         auto others = contentsOf( chip, fap.revision.chipType() ).tables;
         emptyOthers( others, wanted.tables );
         apply( others, chip, fap.revision.chipType() );
         apply( wanted.tables, chip, fap.revision.chipType() );
         for ( auto const & [control, value] : wanted.controls ) {
            chip.controlIs( control, value );
         }
      }
   }

   Scenario scenario_;
   Simulator::SimulatedSwitch sw_;
   StateDoor door_;
   LastEvent last_;
};

} // namespace

RecordedRun recordedRunOf( std::string const & path, std::string const & plugin ) {
   RecordedSegments segments( path );
   RecordedRun run;
   std::unique_ptr< Replayed > replayed;
   while ( auto const event = segments.next() ) {
      if ( event->isBegin ) {
         replayed.reset(); // before the next is made
         auto const & begun = segments.begun();
         if ( !plugin.empty() && !begun.plugin.empty() && begun.plugin != plugin ) {
            run.remarks.push_back( segments.path() + ": was recorded with another build of the plug-in" );
         }
         try {
            replayed = std::make_unique< Replayed >( begun, segments.path() );
         } catch ( std::logic_error const & error ) { // its toggles are others than those of the one before
            throw InputError( segments.path(), std::string( error.what() ) + "; replay this segment by itself" );
         }
      }
      auto const hash = replayed->play( *event );
      ++run.events;
      run.starts += event->event == 0 ? 1 : 0;
      run.operations += hash.count();
      if ( hash.count() != event->operations || hash.value() != event->hash ) {
         run.difference = { .segment = segments.path(),
                            .event = event->event,
                            .cause = event->event == 0 ? "start" : EventInput::of( event->what ).text(),
                            .expectedOperations = event->operations,
                            .operations = hash.count(),
                            .expectedHash = OperationHash::hashText( event->hash ),
                            .hash = hash.text() };
         break;
      }
   }
   run.segments = segments.count();
   run.remarks.insert( run.remarks.end(), segments.remarks().begin(), segments.remarks().end() );
   return run;
}

Value valueOf( RecordedRun const & run ) {
   Value difference;
   if ( run.difference ) {
      auto const & it = *run.difference;
      difference = Value::Object{
         { "segment", it.segment },
         { "event", it.event },
         { "cause", it.cause },
         { "expected", Value::Object{ { "operations", it.expectedOperations }, { "hash", it.expectedHash } } },
         { "got", Value::Object{ { "operations", it.operations }, { "hash", it.hash } } },
      };
   }
   return Value::Object{
      { "segments", run.segments },
      { "starts", run.starts },
      { "events", run.events },
      { "operations", run.operations },
      { "difference", std::move( difference ) },
      { "remarks", Value::List( run.remarks.begin(), run.remarks.end() ) },
   };
}

} // namespace Live
