#include "agent/SliceAgent.h"

#include "inspection/files/Json.h"

#include <cmath>
#include <unistd.h>

namespace Live {

namespace {

using Inspection::Event;

// How long to wait before another try: doubled each time.
constexpr Rex::Seconds firstWait = 0.1;
constexpr Rex::Seconds longestWait = 5;

constexpr double microseconds = 1e6; // in a second

Inspection::Scenario streamed( Inspection::Scenario scenario ) {
   scenario.description.journalled = Simulator::SwitchDescription::Journalled::streamed;
   return scenario;
}

// What the file says; a path that it leaves out is none for a database either.
Paths baseOf( Inspection::Scenario const & scenario ) {
   auto state = scenario.state;
   std::erase_if( state, []( auto const & it ) { return it.second.isNull(); } );
   return flattened( state );
}

} // namespace

SliceAgent::SliceAgent( EventLoop & loop,
                        Database & database,
                        Inspection::Scenario scenario,
                        std::string version,
                        Simulator::ChipsMapping const * chips )
   : loop_( loop ), database_( database ), scenario_( streamed( std::move( scenario ) ) ),
     version_( std::move( version ) ), lastWords_( scenario_ ), isWarm_( chips && chips->generation() > 1 ),
     sw_( scenario_.description, chips ), door_( sw_ ), base_( baseOf( scenario_ ) ), held_( base_ ) {
   Inspection::Scenario prepared = scenario_;
   if ( isWarm_ ) {
      prepared.chips.clear(); // what they began with is there, or was programmed since
   }
   prepared.prepare( sw_ );
   sw_.supervise( { .delays = []( Rex::Seconds time ) { ::usleep( static_cast< useconds_t >( time * microseconds ) ); },
                    .degraded =
                       [this]( DaceSal::ChipId chip, std::string const & why ) {
                          failure_ = "FAP " + std::to_string( chip.value ) + ": " + why;
                          loop_.soon( [this] { chipsAreAnother(); } );
                       } } );
   lastWords_.follows( &sw_ );
   sw_.journal().causesAreForgotten();
   sw_.journal().readerAdd( published_ );
   database_.followerIs( this );
}

SliceAgent::~SliceAgent() {
   end();
   sw_.journal().readerDel( published_ );
   lastWords_.follows( nullptr );
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

bool SliceAgent::phaseIs( Phase phase, std::string reason ) {
   if ( phase == Phase::running && isFrozen_ ) {
      phase = Phase::frozen;
   } else if ( phase == Phase::running && !sw_.supervised()->shadow().degraded().empty() ) {
      phase = Phase::degraded;
      reason = failure_;
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

// ---- following

void SliceAgent::follow() {
   retry_ = {};
   if ( isOver_ || isFrozen_ || staged_ ) {
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
   for ( auto const & [place, what] : snapshot.unreadable ) {
      door_.reject( place, what );
      if ( auto const had = held_.find( place ); had != held_.end() ) {
         snapshot.paths.insert( *had );
      }
   }
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
   if ( staged_ ) {
      phaseIs( Phase::held, std::to_string( drift_ ) + " places of the chips would change: l3sm ctl repair" );
   } else {
      phaseIs( Phase::running );
   }
   report( true );
   follow();
}

// ---- chips

void SliceAgent::start( std::vector< Event > const & changes ) {
   door_.prepare( changes );
   isStarted_ = true;
   if ( !isWarm_ ) {
      sw_.start();
      return;
   }
   startChangingWrites_ = 0;
   staged_.emplace( sw_.supervised()->shadow() );
   DaceSal::schanDriverIs( &*staged_ );
   sw_.start();
   auto const drifts = driftOf( sw_.description(), *staged_ );
   drift_ = drifts.size();
   for ( auto * const onlooker : onlookers_ ) {
      onlooker->startIsStaged( drifts );
   }
   if ( !isHeld_ || drift_ == 0 ) {
      commits();
   }
}

std::size_t SliceAgent::commits() {
   if ( !staged_ ) {
      return 0;
   }
   DaceSal::schanDriverIs( &sw_.supervised()->shadow() );
   startChangingWrites_ = staged_->commit();
   staged_.reset();
   if ( phase_ == Phase::held ) {
      phaseIs( Phase::running );
      report( true );
      follow();
   }
   return *startChangingWrites_;
}

void SliceAgent::chipsAreAnother() {
   bool const isServing = phase_ == Phase::running || phase_ == Phase::degraded;
   if ( isServing && phaseIs( Phase::running ) ) {
      report( false );
   }
}

// While nothing is written nobody else tells that the database can be reached again.
void SliceAgent::follows() {
   gaps_ = 0;
   if ( phase_ == Phase::disconnected ) {
      tries_ = 0;
      phaseIs( Phase::running );
      report( true );
   }
}

void SliceAgent::transactionsAre( std::vector< Transaction > transactions ) {
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

void SliceAgent::gapIs( std::string reason ) {
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
      if ( phase_ == Phase::running || phase_ == Phase::degraded ) {
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

} // namespace Live
