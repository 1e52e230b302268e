#include "agent/SliceAgent.h"

#include "inspection/files/Json.h"

#include <cmath>

namespace Live {

namespace {

using Inspection::Event;

// How long to wait before another try: doubled each time.
constexpr Rex::Seconds firstWait = 0.1;
constexpr Rex::Seconds longestWait = 5;

// So long transactions are played before others have their turn.
constexpr Rex::Seconds longestTurn = 0.005;

// How many rejected places are told in the database; all of them can be asked for.
constexpr std::size_t mostTold = 100;

Inspection::Scenario streamed( Inspection::Scenario scenario ) {
   scenario.description.journalled = Simulator::SwitchDescription::Journalled::streamed;
   return scenario;
}

std::string toldOf( StateDoor::Rejected const & rejected ) {
   Rex::Value::Object told;
   for ( auto const & [place, what] : rejected ) {
      if ( told.size() == mostTold ) {
         told["..."] = std::to_string( rejected.size() - mostTold ) + " more";
         break;
      }
      told[place] = what;
   }
   return Rex::toText( told );
}

} // namespace

SliceAgent::SliceAgent( EventLoop & loop, Database & database, Inspection::Scenario scenario, std::string version )
   : loop_( loop ), database_( database ), scenario_( streamed( std::move( scenario ) ) ),
     version_( std::move( version ) ), sw_( scenario_.description ), door_( sw_ ),
     base_( flattened( scenario_.state ) ), held_( base_ ) {
   scenario_.prepare( sw_ );
   sw_.journal().readerAdd( published_ );
   database_.followerIs( this );
}

SliceAgent::~SliceAgent() {
   end();
   sw_.journal().readerDel( published_ );
}

void SliceAgent::begin() {
   phaseSince_ = Rex::now();
   database_.snapshot();
}

void SliceAgent::end() {
   if ( std::exchange( isOver_, true ) ) {
      return;
   }
   retry_ = {};
   waiting_.clear();
   database_.stop();
   database_.followerIs( nullptr );
   sw_.journal().ends( Simulator::Ending::Kind::complete );
   sw_.stop();
}

void SliceAgent::phaseIs( Phase phase, std::string reason ) {
   if ( isFrozen_ && phase == Phase::running ) {
      phase = Phase::frozen;
   }
   if ( phase == phase_ && reason == reason_ ) {
      return;
   }
   phaseSince_ = phase == phase_ ? phaseSince_ : Rex::now();
   phase_ = phase;
   reason_ = std::move( reason );
   for ( auto * const onlooker : onlookers_ ) {
      onlooker->phaseIs( phase_, reason_ );
   }
}

// ---- following

void SliceAgent::follow() {
   retry_ = {};
   if ( isOver_ || isFrozen_ ) {
      return;
   }
   needsSnapshot_ ? database_.snapshot() : database_.since( position_ );
}

void SliceAgent::again() {
   auto const wait = std::min( firstWait * std::pow( 2, std::min( tries_++, 10 ) ), longestWait );
   retry_ = loop_.timer( wait, [this] { follow(); } );
}

void SliceAgent::snapshotIs( Snapshot snapshot ) {
   tries_ = 0;
   waiting_.clear(); // older than this
   phaseIs( Phase::reconciling );
   door_.forget();
   Paths wanted = overlaid( base_, std::move( snapshot.paths ) );
   StateDoor::Rejected wrong;
   auto changes = eventsBetween( held_, wanted, wrong );
   for ( auto const & [place, what] : wrong ) {
      door_.reject( place, what );
   }
   position_ = std::move( snapshot.position );
   needsSnapshot_ = false;
   held_ = std::move( wanted );
   auto const begun = EventLoop::clock();
   if ( !isStarted_ ) {
      door_.play( std::move( changes ) );
      isStarted_ = true;
      sw_.start();
   } else if ( !changes.empty() ) {
      Transaction differences{ .position = position_, .changes = changes };
      door_.play( std::move( changes ) );
      for ( auto * const onlooker : onlookers_ ) {
         onlooker->transactionPlayed( differences, EventLoop::clock() - begun );
      }
   }
   for ( auto * const onlooker : onlookers_ ) {
      onlooker->snapshotPlayed( position_, held_ );
   }
   phaseIs( Phase::running );
   report( true );
   follow();
}

void SliceAgent::transactionsAre( std::vector< Transaction > transactions ) {
   tries_ = 0;
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

void SliceAgent::gapIs( std::string reason ) {
   waiting_.clear(); // what was told may belong to another life
   needsSnapshot_ = true;
   for ( auto * const onlooker : onlookers_ ) {
      onlooker->resyncs( reason );
   }
   if ( isStarted_ ) {
      phaseIs( Phase::reconciling, std::move( reason ) );
   }
   tries_++ == 0 ? follow() : again(); // a database that tells of nothing but gaps is no reason to spin
}

void SliceAgent::unreachable( std::string reason ) {
   phaseIs( isStarted_ ? Phase::disconnected : Phase::waiting, std::move( reason ) );
   again();
}

void SliceAgent::withoutState( std::string reason ) {
   waiting_.clear();
   needsSnapshot_ = true;
   phaseIs( Phase::waiting, std::move( reason ) );
   again();
}

void SliceAgent::refused( std::string reason ) {
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

void SliceAgent::freeze() {
   if ( !std::exchange( isFrozen_, true ) ) {
      waiting_.clear();
      retry_ = {};
      if ( phase_ == Phase::running ) {
         phaseIs( Phase::frozen );
         report( false );
      }
   }
}

void SliceAgent::thaw() {
   if ( std::exchange( isFrozen_, false ) ) {
      if ( phase_ == Phase::frozen ) {
         phase_ = Phase::disconnected; // so that the next is told
         phaseIs( Phase::running );
         report( false );
      }
      follow();
   }
}

// ---- playing

void SliceAgent::playWaiting() {
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
void SliceAgent::list( Transaction const & transaction ) {
   for ( auto const & what : transaction.unreadable ) {
      auto const colon = what.find( ": " );
      door_.reject( what.substr( 0, colon ), colon == std::string::npos ? "can't be read" : what.substr( colon + 2 ) );
   }
}

// Where a path that the file names, or one that is always there, goes from the database, it becomes what it is without
// one.
std::vector< Event > SliceAgent::literal( std::vector< Event > changes ) {
   std::vector< Event > played;
   for ( Event & change : changes ) {
      Paths before;
      bool isReset = false;
      try {
         bool const isRemoved = change.kind == Event::Kind::remove && !change.attribute;
         isReset = isRemoved && ( base_.contains( change.path ) || placeOf( change.path ).isRoot() );
         if ( isReset ) {
            for ( auto const & path : PathLookup( held_ ).below( change.path ) ) {
               before[path] = held_[path];
            }
         }
         for ( PathChange const & one : pathChangesOf( change, PathLookup( held_ ) ) ) {
            apply( one, held_ );
         }
      } catch ( Rex::ValueError const & ) {
         // The door lists it.
      }
      if ( isReset ) {
         Paths after;
         for ( auto const & path : PathLookup( base_ ).below( change.path ) ) {
            after[path] = held_[path] = base_[path];
         }
         StateDoor::Rejected wrong;
         for ( Event & one : eventsBetween( before, after, wrong ) ) {
            played.push_back( std::move( one ) );
         }
      } else {
         played.push_back( std::move( change ) );
      }
   }
   return played;
}

void SliceAgent::play( Transaction & transaction ) {
   auto const begun = EventLoop::clock();
   position_ = transaction.position;
   list( transaction );
   transaction.changes = literal( std::move( transaction.changes ) );
   if ( !transaction.changes.empty() ) {
      door_.play( transaction.changes );
   }
   auto const duration = EventLoop::clock() - begun;
   for ( auto * const onlooker : onlookers_ ) {
      onlooker->transactionPlayed( transaction, duration );
   }
}

void SliceAgent::report( bool isWhole ) {
   Report report{ .applied = position_, .isWhole = isWhole };
   report.fields = { { "phase", std::string( nameOf( phase_ ) ) },
                     { "reason", reason_ },
                     { "drift", "0" },
                     { "rejected", rejected().empty() ? "{}" : toldOf( rejected() ) },
                     { "version", version_ } };
   if ( isWhole ) {
      published_.takeChanged();
      report.published = published_.all();
   } else if ( published_.hasChanged() ) {
      report.published = published_.takeChanged();
   }
   database_.publish( report );
}

} // namespace Live
