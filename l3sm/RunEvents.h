// Which events of a run a person asks for: `--event 3,5`, `all`, `last`; and of which FAP.
#pragma once

#include "inspection/RunSummary.h"

namespace Cli {

// InputError where there is no such event or FAP.
Inspection::RunSummary::Wanted wantedOf( std::string const & events,
                                         std::optional< U16 > fap,
                                         bool isForPrograms,
                                         Inspection::Scenario const & scenario );

} // namespace Cli
