#include "agent/database/StateReader.h"

#include <iterator>
#include <utility>

namespace Live {

bool StateReader::more( Position const & position ) {
   if ( !( position == told_ ) ) {
      return false;
   }
   isWanted_ = true;
   if ( !page_.empty() || end_ ) {
      loop_.soon( tether_.of( [this] { tell(); } ) );
   }
   return true;
}

void StateReader::waits( std::vector< Transaction > transactions ) {
   page_.insert(
      page_.end(), std::make_move_iterator( transactions.begin() ), std::make_move_iterator( transactions.end() ) );
   tell();
}

void StateReader::tell() {
   if ( !isWanted_ ) {
      return;
   }
   if ( !page_.empty() ) {
      isWanted_ = false;
      told_ = page_.back().position;
      auto page = std::exchange( page_, {} );
      if ( !end_ ) {
         readsOn();
      }
      auto const are = answers_.are; // which may end this
      are( std::move( page ) );
   } else if ( end_ ) {
      isWanted_ = false;
      auto const ends = end_;
      ends();
   }
}

void StateReader::endsWith( std::function< void( std::string const & ) > const & answer, std::string const & reason ) {
   if ( !end_ ) {
      end_ = [answer, reason] { answer( reason ); };
      loop_.soon( tether_.of( [this] { tell(); } ) );
   }
}

} // namespace Live
