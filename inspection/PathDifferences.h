// How the state of one file differs from that of another: attribute by attribute.
//
//    eachPathDifference( readJson( "a.json" ), readJson( "b.json" ), [&]( PathDifference it ) { … } );
//    // evpn/status: vxlanEnabled false, true
//    // interface/status/subintf/intfStatus/Ethernet1.1: mtu 1500, 2000
#pragma once

#include "inspection/ChipDifferences.h"

namespace Inspection {

// One value, as JSON has it on each side; nothing where the side lacks it. Of a collection that one side lacks an entry
// of, the name is "portState[11]".
struct PathDifference {
   std::string path;
   ValueDifference value;
};

// Objects whose keys are paths, and below each its attributes.
void eachPathDifference( Rex::Value const & a,
                         Rex::Value const & b,
                         std::function< void( PathDifference difference ) > const & each );

} // namespace Inspection
