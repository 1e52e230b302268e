// What in a scenario may be the reason why a plug-in has failed: what it leaves out, what contradicts the chip, and
// ports whose interface lacks what the plug-in looks for.
//
//    for ( std::string const & one : suspicionsOf( scenario, sw ) ) { … }     // "the state leaves out evpn/status
//    (null)"
#pragma once

#include "inspection/files/Scenario.h"

namespace Inspection {

// As things stand now; the likeliest first.
std::vector< std::string > suspicionsOf( Scenario const & scenario, Simulator::SimulatedSwitch const & sw );

} // namespace Inspection
