// What can stand on the command line where a database or a running agent is spoken with.
//
// Threading: none.
#pragma once

#include "l3sm/Candidates.h"

namespace Cli {

// The place of `state`'s action, and those behind it.
Candidates stateActions( std::string const & typed, std::vector< std::string > const & before );
Candidates ofStateAction( std::string const & typed, std::vector< std::string > const & before );
// Of `ctl`: its commands, and what they take.
Candidates ofAgentCommand( std::string const & typed, std::vector< std::string > const & before );
// The agents that have a socket on this machine.
Candidates slices( std::string const & typed, std::vector< std::string > const & before );

} // namespace Cli
