// The verbs of the command line. A verb is a module of its own and one line in each of the two lists: here, and in
// CommandLine.cpp.
#pragma once

#include <functional>

namespace CLI {
class App;
}

namespace Cli {

// What a verb does, once its options are read; returns the exit status.
using Action = std::function< int() >;

// Each declares the verb's options and returns what it does with them.
Action defineRun( CLI::App & verb );
Action defineCatalogue( CLI::App & verb );
Action defineConstants( CLI::App & verb );
Action defineShow( CLI::App & verb );
Action defineDiff( CLI::App & verb );
Action defineWhy( CLI::App & verb );
Action defineCompare( CLI::App & verb );
Action defineReplay( CLI::App & verb );
Action defineCheck( CLI::App & verb );

} // namespace Cli
