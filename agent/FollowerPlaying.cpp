// How a follower plays what it has been told, and reports it.
#include "agent/StateFollower.h"

namespace Live {

namespace {

using Inspection::Event;

// So long transactions are played before others have their turn.
constexpr Rex::Seconds longestTurn = 0.005;

} // namespace

void StateFollower::playWaiting() {
   isPlaying_ = false;
   auto const begun = EventLoop::clock();
   while ( !waiting_.empty() && !isFrozen_ && !isOver_ ) {
      Transaction transaction = std::move( waiting_.front() );
      waiting_.pop_front();
      play( transaction );
      if ( EventLoop::clock() - begun > longestTurn && !waiting_.empty() ) {
         isPlaying_ = true;
         loop_.soon( [this] {
            if ( isPlaying_ ) {
               playWaiting();
            }
         } );
         break;
      }
   }
   report( false );
   if ( waiting_.empty() && !needsSnapshot_ ) {
      follow();
   }
}

// What is wrong with a transaction is listed by the place, or by the entry of the log where there is none.
void StateFollower::list( Transaction const & transaction ) {
   for ( auto const & what : transaction.unreadable ) {
      auto const colon = what.find( ": " );
      door_.reject( what.substr( 0, colon ), colon == std::string::npos ? "can't be read" : what.substr( colon + 2 ) );
   }
}

void StateFollower::hold( Event const & change ) {
   try {
      for ( PathChange const & one : pathChangesOf( change, lookup_ ) ) {
         apply( one, held_ );
      }
   } catch ( Rex::ValueError const & ) {
      // The door lists it.
   }
}

// A path that the file names, or one that is always there, becomes what it is without a database.
std::vector< Event > StateFollower::reset( Event const & removal ) {
   Paths before;
   for ( auto const & path : lookup_.below( removal.path ) ) {
      before[path] = held_[path];
   }
   hold( removal );
   Paths after;
   for ( auto const & path : PathLookup( base_ ).below( removal.path ) ) {
      after[path] = held_[path] = base_[path];
   }
   Door::Rejected wrong; // the file was read before
   return eventsBetween( before, after, wrong );
}

bool StateFollower::isReset( Event const & change ) const {
   if ( change.kind != Event::Kind::remove || change.attribute ) {
      return false;
   }
   try {
      return base_.contains( change.path ) || placeOf( change.path ).isRoot();
   } catch ( Rex::ValueError const & ) {
      return false;
   }
}

// The changes as the switch is to play them, once what is held has followed.
std::vector< Event > StateFollower::taken( std::vector< Event > changes ) {
   for ( std::size_t at = 0; at < changes.size(); ++at ) {
      if ( isReset( changes[at] ) ) {
         auto const instead = reset( changes[at] );
         auto const place = changes.erase( changes.begin() + static_cast< std::ptrdiff_t >( at ) );
         changes.insert( place, instead.begin(), instead.end() );
         at += instead.size() - 1;
      } else {
         hold( changes[at] );
      }
   }
   return changes;
}

void StateFollower::play( Transaction & transaction ) {
   auto const begun = EventLoop::clock();
   position_ = transaction.position;
   list( transaction );
   transaction.changes = taken( std::move( transaction.changes ) );
   door_.play( transaction.changes );
   auto const duration = EventLoop::clock() - begun;
   for ( auto * const onlooker : onlookers_ ) {
      onlooker->transactionPlayed( transaction, duration );
   }
}

void StateFollower::report( bool isWhole ) {
   Report report{ .applied = position_, .published = takePublished( isWhole ), .isWhole = isWhole };
   report.fields = { { "phase", std::string( nameOf( phase_ ) ) },
                     { "reason", reason_ },
                     { "drift", std::to_string( placesHeld().value_or( 0 ) ) },
                     { "rejected", rejected().empty() ? "{}" : Rex::toText( door_.told() ) },
                     { "version", version_ } };
   database_.publish( report );
}

} // namespace Live
