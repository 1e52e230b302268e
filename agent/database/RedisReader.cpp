#include "agent/database/RedisReader.h"

#include <utility>

namespace Live {

RedisReader::RedisReader( EventLoop & loop,
                          RedisAddress const & address,
                          std::string const & clientName,
                          RedisLayout const & layout,
                          Position position,
                          Answers answers )
   : loop_( loop ), layout_( layout ), told_( std::move( position ) ), read_( told_ ), answers_( std::move( answers ) ),
     connection_( loop, address, clientName, [this]( std::string const & reason ) { answers_.lost( reason ); } ) {
   begin();
}

void RedisReader::begin() {
   askServer( connection_, [this]( std::string const & server ) { server_ = server; } );
   askState( connection_, layout_, [this]( LogState const & state ) {
      if ( !state.epoch.empty() && server_ != read_.server ) {
         endsWith( answers_.gap, "another server answers, or it was started again" );
      } else if ( goesOn( read_, state ) ) {
         next();
         answers_.begins();
      }
   } );
}

void RedisReader::next() {
   askBehind( connection_, layout_, read_, Waiting::untilThereAreSome, [this]( LogPage & page ) {
      if ( !goesOn( read_, page.state ) ) {
         return;
      }
      if ( page.transactions.empty() ) {
         next();
         return;
      }
      read_ = page.transactions.back().position;
      page_ = std::move( page.transactions );
      tell();
   } );
}

bool RedisReader::more( Position const & position ) {
   if ( !( position == told_ ) ) {
      return false;
   }
   isWanted_ = true;
   if ( !page_.empty() || end_ ) {
      loop_.soon( tether_.of( [this] { tell(); } ) );
   }
   return true;
}

void RedisReader::tell() {
   if ( !isWanted_ ) {
      return;
   }
   if ( !page_.empty() ) {
      isWanted_ = false;
      told_ = read_;
      auto page = std::exchange( page_, {} );
      if ( !end_ ) {
         next();
      }
      answers_.are( std::move( page ) );
   } else if ( end_ ) {
      isWanted_ = false;
      auto const ends = end_;
      ends();
   }
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

// It is told when what was read before is done.
void RedisReader::endsWith( std::function< void( std::string const & ) > const & answer, std::string const & reason ) {
   if ( !end_ ) {
      end_ = [answer, reason] { answer( reason ); };
      tell();
   }
}

} // namespace Live
