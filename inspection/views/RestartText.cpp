#include "inspection/views/RestartText.h"

#include "inspection/KnownMemories.h"
#include "inspection/views/PlanText.h"
#include "inspection/views/WindowsText.h"

namespace Inspection {

namespace {

constexpr std::size_t fewWindows = 8;

// What is known of those that end as another, once each.
std::set< KnownMemory const * > knownOf( Restart const & restart ) {
   std::set< KnownMemory const * > known;
   for ( Simulator::Row const & row : restart.start().changes ) {
      known.merge( knownMemoriesOf( row ) );
   }
   known.erase( nullptr );
   return known;
}

} // namespace

void showRestart( std::ostream & out, Restart const & restart, bool all, Style const & style ) {
   PlannedEvent const & start = restart.start();
   out << style.strong( "A second start" )
       << " on what the run has left: " << counted( start.operations, "operation", "operations" ) << ", "
       << counted( start.writes, "write", "writes" ) << ", " << start.changingWrites << " with a change.\n";
   if ( restart.plan.isEmpty() ) {
      out << style.after( "Every entry ends as it stood" ) << ": staged, the start would write nothing.\n";
   } else {
      out << style.before( counted( start.entries(), "entry ends", "entries end" ) + " as another" )
          << ( start.controls() ? ", and " + counted( start.controls(), "control", "controls" ) : "" )
          << ": the chips remember what the state doesn't hold, or the plug-in restores what it doesn't.\n\n";
      showPlan( out, restart.plan, { .all = all }, style );
      for ( KnownMemory const * const known : knownOf( restart ) ) {
         out << '\n' << style.strong( "Known" ) << ": " << known->table << ": " << known->reason << ".\n";
      }
   }
   if ( restart.windows.empty() ) {
      out << "No entry is wrong in between.\n";
      return;
   }
   out << '\n'
       << style.differs( counted( restart.entriesWithWindows(), "entry is", "entries are" ) + " wrong in between" )
       << ", for as long as the start goes on:\n";
   showWindows( out, restart.windows, all ? 0 : fewWindows, style );
}

Rex::Value restartValue( Restart const & restart ) {
   PlannedEvent const & start = restart.start();
   Rex::Value::List known;
   for ( KnownMemory const * const it : knownOf( restart ) ) {
      known.push_back( Rex::Value::Object{ { "table", std::string( it->table ) },
                                           { "field", std::string( it->field ) },
                                           { "reason", std::string( it->reason ) } } );
   }
   return Rex::Value::Object{ { "operations", start.operations },
                              { "writes", start.writes },
                              { "changingWrites", start.changingWrites },
                              { "entriesThatDiffer", start.entries() },
                              { "controlsThatDiffer", start.controls() },
                              { "differences", planValue( restart.plan ) },
                              { "known", known },
                              { "entriesWrongInBetween", restart.entriesWithWindows() },
                              { "windows", windowsValue( restart.windows ) } };
}

} // namespace Inspection
