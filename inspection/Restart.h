// What a second start of the plug-in does to the chips and the state that a run has left: a hitless one changes
// nothing, not even for a moment.
//
//    Restart const restart = restartAfter( scenario, plugin );
//    restart.plan.isEmpty();            // every entry ends as it stood
//    restart.windows.empty();           // and none was another in between
#pragma once

#include "inspection/PassingValues.h"
#include "inspection/Plan.h"

namespace Inspection {

struct Restart {
   // Of the second start: what it makes different at its end, and how many writes it makes to get there.
   Plan plan;
   // Entries that were wrong in between.
   std::vector< PassingValue > windows;

   PlannedEvent const & start() const { return plan.events.front(); }
   std::size_t entriesWithWindows() const;
};

// Plays the scenario, with `others` reading along, and starts once more where it has ended. InputError as for a run.
Restart restartAfter( Scenario const & scenario,
                      std::string const & plugin,
                      std::vector< Simulator::RowReader * > const & others = {} );

} // namespace Inspection
