// The command line: which verbs there are, and how what goes wrong is told.
//
// Exit status: 0 fine; 1 the answer is "no"; 2 wrong usage or an input file that can't be read, with a line on
// standard error for each thing that is wrong.
#pragma once

namespace Cli {

int commandLine( int argc, char const * const * argv );

} // namespace Cli
