// The scenario that a verb plays.
//
//    Scenario const scenario = scenarioToPlay( options.scenario, options.toggles, options.plugin );     // InputError
#pragma once

#include "inspection/files/Scenario.h"

namespace Cli {

// Loads the plug-in, which may declare toggles, reads the scenario, the built-in one where no file is named, and sets
// the toggles ("FILE:NAME=on"). What contradicts the chips is told on standard error.
Inspection::Scenario
scenarioToPlay( std::string const & file, std::vector< std::string > const & toggles, std::string const & plugin );

} // namespace Cli
