// What in a scenario contradicts the chips that it names. It is played nevertheless, as a switch would.
#pragma once

#include "inspection/files/Scenario.h"

namespace Inspection {

// Each with its JSON pointer into the scenario's file.
std::vector< Rex::ValueError::Fault > contradictionsIn( Scenario const & scenario );

} // namespace Inspection
