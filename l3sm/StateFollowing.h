// What `l3sm state watch` and `l3sm state wait` show while they wait.
//
// Threading: none.
#pragma once

#include "agent/database/RedisSession.h"

namespace Cli {

// Prints each change at the path, or of all, until the program is interrupted; the exit status.
int watchState( Live::RedisSession & session, Live::RedisLayout const & layout, std::string const & path, bool json );

// Until these agents, or all, have applied what is written now, or so many seconds have gone; the exit status.
int waitForAgents( Live::RedisSession & session,
                   Live::RedisLayout const & layout,
                   std::vector< std::string > const & slices,
                   U32 timeout,
                   bool json );

} // namespace Cli
