#include "inspection/Restart.h"

#include "inspection/Play.h"
#include "inspection/files/SavedScenario.h"

#include <tuple>

namespace Inspection {

namespace {

Scenario endOf( Scenario const & scenario ) {
   auto description = scenario.description;
   description.journalled = Simulator::SwitchDescription::Journalled::none;
   Simulator::SimulatedSwitch sw( description );
   play( scenario, sw );
   return savedScenario( scenario, sw );
}

} // namespace

std::size_t Restart::entriesWithWindows() const {
   std::set< std::tuple< U16, std::string, U8, int, U32 > > places;
   for ( PassingValue const & window : windows ) {
      places.emplace( window.fap, window.table, window.variant, window.array, window.entry );
   }
   return places.size();
}

Restart restartAfter( Scenario const & scenario, std::string const & plugin ) {
   loadPlugin( plugin );
   Scenario const left = endOf( scenario );
   PassingValues windows;
   Restart restart{ planOf( left, plugin, { &windows } ), {} };
   restart.windows = windows.all();
   return restart;
}

} // namespace Inspection
