#include "agent/database/AgentsAwaited.h"

#include <algorithm>

namespace Live {

Position placeNow( RedisSession & session, RedisLayout const & layout ) {
   Position place;
   askServer( session.connection(), [&]( std::string const & id ) { place.server = id; } );
   askState( session.connection(), layout, [&]( LogState const & state ) {
      place.epoch = state.epoch;
      place.entry = state.last;
   } );
   session.wait();
   if ( place.epoch.empty() ) {
      session.refuse( noStateText );
   }
   return place;
}

std::vector< AwaitedAgent > awaitedAgents( RedisSession & session,
                                           RedisLayout const & layout,
                                           std::vector< std::string > slices,
                                           Position const & place ) {
   if ( slices.empty() ) {
      session.ask( { "SMEMBERS", layout.agents() }, [&]( RedisReply reply ) {
         for ( RedisReply const name : reply ) {
            slices.emplace_back( name.text() );
         }
      } );
      session.wait();
      std::ranges::sort( slices );
   }
   std::vector< AwaitedAgent > agents;
   agents.reserve( slices.size() );
   for ( auto const & slice : slices ) {
      AwaitedAgent & agent = agents.emplace_back( AwaitedAgent{ .slice = slice } );
      session.ask( { "EXISTS", layout.lease( slice ) },
                   [&agent]( RedisReply reply ) { agent.isThere = reply.number() == 1; } );
      session.ask( { "HMGET", layout.agent( slice ), "epoch", "applied", "phase", "reason" },
                   [&agent, &place]( RedisReply reply ) {
                      agent.applied = reply[1].text();
                      agent.hasCaughtUp =
                         reply[0].text() == place.epoch && EntryId::of( agent.applied ) >= EntryId::of( place.entry );
                      agent.phase = reply[2].text();
                      agent.reason = reply[3].text();
                   } );
   }
   session.wait();
   return agents;
}

} // namespace Live
