#include "agent/database/RedisReader.h"

#include <utility>

namespace Live {

RedisReader::RedisReader( EventLoop & loop,
                          RedisAddress const & address,
                          std::string const & clientName,
                          RedisLayout const & layout,
                          Position position,
                          Answers answers,
                          RedisConnection::Lost lost )
   : StateReader( loop, std::move( position ), std::move( answers ) ), layout_( layout ), read_( told() ),
     connection_( loop, address, clientName, std::move( lost ) ) {
   begin();
}

void RedisReader::begin() {
   askServer( connection_, [this]( std::string const & server ) { server_ = server; } );
   askState( connection_, layout_, [this]( LogState const & state ) {
      if ( !state.epoch.empty() && server_ != read_.server ) {
         endsWith( answers_.gap, "another server answers, or it was started again" );
      } else if ( goesOn( read_, state ) ) {
         readsOn();
         answers_.begins();
      }
   } );
}

void RedisReader::readsOn() {
   askBehind( connection_, layout_, read_, Waiting::untilThereAreSome, [this]( LogPage & page ) {
      if ( !goesOn( read_, page.state ) ) {
         return;
      }
      if ( page.transactions.empty() ) {
         readsOn();
         return;
      }
      read_ = page.transactions.back().position;
      waits( std::move( page.transactions ) );
   } );
}

std::function< void( LogState const & ) > RedisReader::judge() {
   return tether_.of( [this, from = read_]( LogState const & state ) { goesOn( from, state ); } );
}

bool RedisReader::goesOn( Position const & from, LogState const & state ) {
   if ( state.epoch.empty() ) {
      endsWith( answers_.without, noStateText );
      return false;
   }
   auto const gap = gapBehind( from, state );
   if ( !gap.empty() ) {
      endsWith( answers_.gap, gap );
   }
   return gap.empty();
}

} // namespace Live
