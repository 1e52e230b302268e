// The verbs of the command line. A verb is a module of its own and one line in each of the two lists: here, and in
// CommandLine.cpp.
#pragma once

#include "l3sm/VerbOptions.h"

#include <functional>

namespace Cli {

// What a verb does, once its options are read; returns the exit status.
using Action = std::function< int() >;

// Each declares the verb's options and returns what it does with them.
Action defineRun( VerbOptions & verb );
Action defineCatalogue( VerbOptions & verb );
Action defineConstants( VerbOptions & verb );
Action defineShow( VerbOptions & verb );
Action defineDiff( VerbOptions & verb );
Action defineWhy( VerbOptions & verb );
Action defineReport( VerbOptions & verb );
Action defineCompare( VerbOptions & verb );
Action defineReplay( VerbOptions & verb );
Action defineCheck( VerbOptions & verb );
Action definePlan( VerbOptions & verb );
Action defineBisect( VerbOptions & verb );
Action defineExplore( VerbOptions & verb );
Action defineCoverage( VerbOptions & verb );
Action defineNew( VerbOptions & verb );
Action definePaths( VerbOptions & verb );
Action defineSchema( VerbOptions & verb );
Action defineToggles( VerbOptions & verb );
Action defineFacilities( VerbOptions & verb );
Action defineServe( VerbOptions & verb );
Action defineState( VerbOptions & verb );
Action defineCtl( VerbOptions & verb );

// Whether a running agent answers the verb as files do: `l3sm show --agent`.
bool isOfAgentsToo( std::string const & verb );
// `l3sm ctl … show …` is `l3sm show --agent … …`, and so with the other verbs that a running agent answers.
// InputError where no agent is named and there isn't one alone.
std::vector< std::string > withoutCtl( std::vector< std::string > const & words );

} // namespace Cli
