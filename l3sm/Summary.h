// The summary of a run, for people: what was programmed, by which function, decoded by field, for each event and FAP.
#pragma once

#include "l3sm/Changes.h"
#include "l3sm/Scenario.h"

#include <ostream>

namespace Cli {

void writeSummary( std::ostream & out, Scenario const & scenario, Simulator::SimulatedSwitch const & sw );

} // namespace Cli
