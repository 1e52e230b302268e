// The summary of a run, for people: what was programmed, by which function, decoded by field, for each event and FAP.
#pragma once

#include "inspection/KeptRows.h"
#include "inspection/files/Scenario.h"

#include <ostream>

namespace Inspection {

void writeSummary( std::ostream & out,
                   Scenario const & scenario,
                   Simulator::SimulatedSwitch const & sw,
                   KeptRows const & rows );

} // namespace Inspection
