// What stands in the state, for people: a line for each attribute, with the path of what has it.
//
//    interface/config/global l3Mtu = 2000
//    interface/status/subintf/intfStatus/Ethernet1.1 mtu = 2000
#pragma once

#include "inspection/StateOfRun.h"

#include <ostream>

namespace Inspection {

void showState( std::ostream & out, std::vector< PathValue > const & parts );

} // namespace Inspection
