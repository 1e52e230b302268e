// What a start changes on chips that an agent had before: places whose memory isn't what the state alone leads to. Some
// remember by design the road on which it was reached; that is told with them.
//
//    for ( Drift const & drift : driftOf( sw.description(), staged ) ) {
//       drift.text();   // "FAP 0 IppdFerTrapCfg[3] copy 1: cpuSnoopCodeN 0x195 → 0x194"
//    }
//
// Threading: the agent's loop.
#pragma once

#include "inspection/WrongPlace.h"
#include "simulator/StagedDriver.h"

namespace Live {

struct Drift {
   Inspection::WrongPlace place; // that holds what was found, where the start expects something else
   std::string known;            // why chips remember it; empty: nobody knows

   std::string text() const;
};

std::vector< Drift > driftOf( Simulator::SwitchDescription const & description, Simulator::StagedDriver const & start );

} // namespace Live
