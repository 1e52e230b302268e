// The report of a run: one page of HTML that holds all it shows, and needs nothing from a network.
//
//    report.write( reportOf( scenario, sw ) );
#pragma once

#include "inspection/KeptRows.h"
#include "inspection/files/Scenario.h"

namespace Inspection {

// The page, once the run has ended. The switch must have kept its journal.
std::string reportOf( Scenario const & scenario, Simulator::SimulatedSwitch const & sw, KeptRows const & rows );

} // namespace Inspection
