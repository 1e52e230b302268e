// Which agents have applied what was written up to a place in the log.
//
//    Position const place = placeNow( session, layout );
//    for ( AwaitedAgent const & agent : awaitedAgents( session, layout, {}, place ) ) { agent.isReady(); }
//
// Threading: none.
#pragma once

#include "agent/database/RedisSession.h"

namespace Live {

struct AwaitedAgent {
   std::string slice;
   bool isThere = false; // it has the right to serve its slice
   bool hasCaughtUp = false;
   std::string phase = {};
   std::string reason = {};
   std::string applied = {};

   bool isReady() const { return isThere && hasCaughtUp && phase == "running"; }
};

// The end of the log. InputError where the database holds no state.
Position placeNow( RedisSession & session, RedisLayout const & layout );
// Of these slices; of every one that has an agent where none is named.
std::vector< AwaitedAgent > awaitedAgents( RedisSession & session,
                                           RedisLayout const & layout,
                                           std::vector< std::string > slices,
                                           Position const & place );

} // namespace Live
