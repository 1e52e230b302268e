// What a run did to the chips: each write of the journal, with what stood there before.
//
//    for ( Change const & change : changesOf( sw.journal(), std::move( chipsBefore ) ) ) { ... }
#pragma once

#include "simulator/ChipContents.h"
#include "simulator/SimulatedSwitch.h"

namespace Inspection {

// A write, or a control that was set.
struct Change {
   Simulator::Journal::Row row;
   Catalogue::Layout const * layout; // null for a control
   Simulator::Words before;          // of the first copy that was written
   std::optional< U32 > controlBefore;
};

// The writes and controls in their order. `chips` hold what stood on them before the first row; they are spent on it.
std::vector< Change > changesOf( Simulator::Journal const & journal,
                                 Simulator::ChipDriver & chips,
                                 Simulator::SwitchDescription const & description );

} // namespace Inspection
