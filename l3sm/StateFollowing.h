// What `l3sm state watch` and `l3sm state wait` show while they wait.
//
// Threading: none.
#pragma once

#include "agent/database/StateStore.h"

namespace Cli {

// Prints each change at the path, or of all, until the program is interrupted; the exit status.
int watchState( Live::StateStore & store, std::string const & path, bool json );

// Until these agents, or all, have applied what is written now, or so many seconds have gone; the exit status.
int waitForAgents( Live::StateStore & store, std::vector< std::string > const & slices, U32 timeout, bool json );

} // namespace Cli
