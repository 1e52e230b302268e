// The command line: which verbs there are, and how what goes wrong is told.
//
// Exit status: 0 fine; 1 the answer is "no"; 2 wrong usage or an input file that can't be read, with a line on
// standard error for each thing that is wrong.
#pragma once

#include <functional>

namespace CLI {
class App;
}

namespace Cli {

// Tells the parser of every verb with its options; parsing sets `action` to what the line asks for. Both outlive the
// action.
void defineCommandLine( CLI::App & app, std::function< int() > & action );

int commandLine( int argc, char const * const * argv );

} // namespace Cli
