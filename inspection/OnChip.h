// A scenario as it would be on another kind of chip.
//
//    for ( auto const chipType : Hardware::allChipTypes ) { play( onChip( scenario, chipType ), ... ); }
#pragma once

#include "inspection/files/Scenario.h"

namespace Inspection {

// The same switch with another kind of chip. The cores follow it, and the major revision: that of a chip with two
// elements of the second context-selection array says so.
Scenario onChip( Scenario const & scenario, Hardware::ChipType chipType );

} // namespace Inspection
