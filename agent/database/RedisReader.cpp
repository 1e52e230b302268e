#include "agent/database/RedisReader.h"

namespace Live {

RedisReader::RedisReader( EventLoop & loop,
                          RedisAddress const & address,
                          std::string const & clientName,
                          RedisLayout const & layout,
                          Position position,
                          Answers answers )
   : loop_( loop ), layout_( layout ), position_( std::move( position ) ), told_( position_ ),
     answers_( std::move( answers ) ),
     connection_( loop, address, clientName, [this]( std::string const & reason ) { answers_.lost( reason ); } ) {
   begin();
}

void RedisReader::begin() {
   askServer( connection_, [this]( std::string const & server ) { server_ = server; } );
   askState( connection_, layout_, [this]( LogState const & state ) {
      if ( state.epoch.empty() ) {
         answers_.without( noStateText );
      } else if ( server_ != position_.server ) {
         answers_.gap( "another server answers, or it was started again" );
      } else if ( goesOn( position_, state ) ) {
         next();
      }
   } );
}

void RedisReader::next() {
   askBehind( connection_, layout_, position_, Waiting::untilThereAreSome, [this]( LogPage & page ) {
      if ( !goesOn( position_, page.state ) ) {
         return;
      }
      if ( !page.transactions.empty() ) {
         position_ = page.transactions.back().position;
      }
      if ( page.transactions.empty() ) {
         next();
      } else if ( isAsked_ ) {
         tell( std::move( page.transactions ) );
      } else {
         kept_ = std::move( page.transactions );
      }
   } );
}

void RedisReader::tell( std::vector< Transaction > transactions ) {
   isAsked_ = false;
   told_ = position_;
   next();
   answers_.are( std::move( transactions ) );
}

bool RedisReader::more( Position const & position ) {
   if ( !( position == told_ ) ) {
      return false;
   }
   if ( kept_.empty() ) {
      isAsked_ = true;
   } else {
      loop_.soon( tether_.of( [this] { tell( std::exchange( kept_, {} ) ); } ) );
   }
   return true;
}

std::function< void( LogState const & ) > RedisReader::judge() {
   return tether_.of( [this, from = position_]( LogState const & state ) { goesOn( from, state ); } );
}

bool RedisReader::goesOn( Position const & from, LogState const & state ) {
   if ( state.epoch.empty() ) {
      answers_.without( noStateText );
      return false;
   }
   auto const gap = gapBehind( from, state );
   if ( !gap.empty() ) {
      answers_.gap( gap );
   }
   return gap.empty();
}

} // namespace Live
