#include "agent/StateFollower.h"

#include <cmath>

namespace Live {

namespace {

// How long to wait before another try: doubled each time.
constexpr Rex::Seconds firstWait = 0.1;
constexpr Rex::Seconds longestWait = 5;

} // namespace

StateFollower::StateFollower( EventLoop & loop, Database & database, Door & door, Paths base, std::string version )
   : loop_( loop ), database_( database ), door_( door ), version_( std::move( version ) ), base_( std::move( base ) ),
     held_( base_ ) {
   database_.followerIs( this );
}

StateFollower::~StateFollower() {
   ends();
}

void StateFollower::begin() {
   phaseSince_ = Rex::now();
   database_.snapshot();
}

bool StateFollower::ends() {
   if ( std::exchange( isOver_, true ) ) {
      return false;
   }
   retry_ = {};
   waiting_.clear();
   database_.stop();
   database_.followerIs( nullptr );
   return true;
}

bool StateFollower::phaseIs( Phase phase, std::string reason ) {
   if ( phase == Phase::running && isFrozen_ ) {
      phase = Phase::frozen;
   } else if ( auto const why = phase == Phase::running ? degradation() : std::nullopt ) {
      phase = Phase::degraded;
      reason = *why;
   }
   if ( phase == phase_ && reason == reason_ ) {
      return false;
   }
   phaseSince_ = phase == phase_ ? phaseSince_ : Rex::now();
   phase_ = phase;
   reason_ = std::move( reason );
   for ( auto * const onlooker : onlookers_ ) {
      onlooker->phaseIs( phase_, reason_ );
   }
   return true;
}

void StateFollower::follow() {
   retry_ = {};
   if ( isOver_ || isFrozen_ || placesHeld() ) {
      return;
   }
   needsSnapshot_ ? database_.snapshot() : database_.since( position_ );
}

void StateFollower::again() {
   auto const wait = std::min( firstWait * std::pow( 2, std::min( tries_++, 10 ) ), longestWait );
   retry_ = loop_.timer( wait, [this] { follow(); } );
}

void StateFollower::snapshotIs( Snapshot snapshot ) {
   tries_ = 0;
   waiting_.clear(); // older than this
   phaseIs( Phase::reconciling );
   door_.forget();
   for ( auto const & [place, what] : snapshot.unreadable ) {
      door_.reject( place, what );
      if ( auto const had = held_.find( place ); had != held_.end() ) {
         snapshot.paths.insert( *had );
      }
   }
   Paths wanted = overlaid( base_, std::move( snapshot.paths ) );
   Door::Rejected wrong;
   auto changes = eventsBetween( held_, wanted, wrong );
   for ( auto const & [place, what] : wrong ) {
      door_.reject( place, what );
   }
   position_ = std::move( snapshot.position );
   needsSnapshot_ = false;
   held_ = std::move( wanted );
   auto const begun = EventLoop::clock();
   if ( !std::exchange( isStarted_, true ) ) {
      start( changes );
   } else if ( !changes.empty() ) {
      Transaction const differences{ .position = position_, .changes = std::move( changes ) };
      door_.play( differences.changes );
      for ( auto * const onlooker : onlookers_ ) {
         onlooker->transactionPlayed( differences, EventLoop::clock() - begun );
      }
   }
   for ( auto * const onlooker : onlookers_ ) {
      onlooker->snapshotPlayed( position_, held_ );
   }
   if ( auto const held = placesHeld() ) {
      phaseIs( Phase::held, std::to_string( *held ) + " places of the chips would change: l3sm ctl repair" );
   } else {
      phaseIs( Phase::running );
   }
   report( true );
   follow();
}

void StateFollower::goesOn() {
   if ( phase_ == Phase::held ) {
      phaseIs( Phase::running );
      report( true );
      follow();
   }
}

// While nothing is written nobody else tells that the database can be reached again.
void StateFollower::follows() {
   gaps_ = 0;
   if ( phase_ == Phase::disconnected ) {
      tries_ = 0;
      phaseIs( Phase::running );
      report( true );
   }
}

void StateFollower::transactionsAre( std::vector< Transaction > transactions ) {
   tries_ = 0;
   gaps_ = 0;
   if ( isFrozen_ || needsSnapshot_ ) {
      return; // they will be asked for once more
   }
   phaseIs( Phase::running );
   for ( auto & transaction : transactions ) {
      waiting_.push_back( std::move( transaction ) );
   }
   if ( !isPlaying_ ) {
      playWaiting();
   }
}

void StateFollower::gapIs( std::string reason ) {
   waiting_.clear(); // what was told may belong to another life
   needsSnapshot_ = true;
   for ( auto * const onlooker : onlookers_ ) {
      onlooker->resyncs( reason );
   }
   if ( isStarted_ ) {
      phaseIs( Phase::reconciling, std::move( reason ) );
   }
   gaps_++ == 0 ? follow() : again(); // a database that tells of nothing but gaps is no reason to spin
}

void StateFollower::unreachable( std::string reason ) {
   phaseIs( isStarted_ ? Phase::disconnected : Phase::waiting, std::move( reason ) );
   again();
}

void StateFollower::withoutState( std::string reason ) {
   waiting_.clear();
   needsSnapshot_ = true;
   phaseIs( Phase::waiting, std::move( reason ) );
   again();
}

void StateFollower::refused( std::string reason ) {
   if ( !isStarted_ ) {
      refusal_ = reason;
      phaseIs( Phase::waiting, std::move( reason ) );
      loop_.end( 2 );
      return;
   }
   needsSnapshot_ = true; // somebody else may have acted meanwhile
   phaseIs( Phase::disconnected, std::move( reason ) );
   again();
}

void StateFollower::freeze() {
   if ( !std::exchange( isFrozen_, true ) ) {
      waiting_.clear();
      retry_ = {};
      if ( phase_ == Phase::running || phase_ == Phase::degraded ) {
         phaseIs( Phase::frozen );
         report( false );
      }
   }
}

void StateFollower::thaw() {
   if ( std::exchange( isFrozen_, false ) ) {
      if ( phase_ == Phase::frozen ) {
         phase_ = Phase::disconnected; // so that the next is told
         phaseIs( Phase::running );
         report( false );
      }
      follow();
   }
}

} // namespace Live
