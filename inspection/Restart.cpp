#include "inspection/Restart.h"

#include "inspection/Play.h"
#include "inspection/files/SavedScenario.h"

#include <tuple>

namespace Inspection {

namespace {

// Where a run has ended: a scenario that begins there, and what stands on its chips on top of what that tells.
struct Left {
   Scenario scenario;
   std::vector< Simulator::StagedDriver::Change > chips;
};

Left endOf( Scenario const & scenario, std::vector< Simulator::RowReader * > const & others ) {
   Left left;
   left.scenario = scenario;
   left.scenario.events.clear();
   auto description = scenario.description;
   using enum Simulator::SwitchDescription::Journalled;
   description.journalled = others.empty() ? none : streamed;
   description.supervised = Simulator::SwitchDescription::Supervised::never;
   Simulator::SimulatedSwitch sw( description );
   for ( auto * const other : others ) {
      sw.journal().readerAdd( *other );
   }
   Simulator::StagedDriver staged( sw.driver() );
   scenario.prepare( sw );
   DaceSal::schanDriverIs( &staged );
   sw.start();
   for ( Event const & event : scenario.events ) {
      scenario.play( sw, event );
   }
   left.scenario.state = stateLeftBy( sw );
   left.chips = staged.changes();
   sw.stop();
   return left;
}

} // namespace

std::size_t Restart::entriesWithWindows() const {
   std::set< std::tuple< U16, std::string, U8, int, U32 > > places;
   for ( PassingValue const & window : windows ) {
      places.emplace( window.fap, window.table, window.variant, window.array, window.entry );
   }
   return places.size();
}

Restart restartAfter( Scenario const & scenario,
                      std::string const & plugin,
                      std::vector< Simulator::RowReader * > const & others ) {
   loadPlugin( plugin );
   Left const left = endOf( scenario, others );
   PassingValues windows;
   Restart restart{ planOf( left.scenario, plugin, { .others = { &windows }, .chips = left.chips } ), {} };
   restart.windows = windows.all();
   return restart;
}

} // namespace Inspection
