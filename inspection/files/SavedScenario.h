// A scenario that begins where a run has ended: its switch, its toggles, its chips and its state as they are, no
// events.
//
//    writeScenario( out, savedScenario( scenario, sw ) );
//
// Of the chips it holds what differs from the boot image, of the state what other agents set: not what the switch's
// description tells, and not what the plug-in publishes. A start on it makes the plug-in program the chips anew, from
// the state: what they hold because of inputs that have gone again may change by it.
#pragma once

#include "inspection/files/Scenario.h"

#include <ostream>

namespace Inspection {

// `begun`: what the run began with; `sw`: before it stops.
Scenario savedScenario( Scenario const & begun, Simulator::SimulatedSwitch const & sw );

// What other agents have set, path by path, as a scenario has it.
Rex::Value::Object stateLeftBy( Simulator::SimulatedSwitch const & sw );

// As a file has it, each path, entry and event on a line of its own.
void writeScenario( std::ostream & out, Scenario const & scenario );

} // namespace Inspection
