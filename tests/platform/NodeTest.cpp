// Use counts, pointers, reactors.
#include "rex/Notifiee.h"
#include "state/Interfaces.h"
#include "state/Overlays.h"

#include <gtest/gtest.h>
#include <thread>

namespace {

using Evpn::EvpnStatus;

struct Plain : Corvo::Node {
   Corvo::Ptr< Plain > other;
};

TEST( Ptr, TheLastUserDeletesTheNode ) {
   U32 const before = Corvo::Node::liveCount();
   auto a = Corvo::makePtr< Plain >();
   EXPECT_EQ( a->useCount(), 1U );
   Corvo::Ptr< Plain > b = a;
   EXPECT_EQ( a->useCount(), 2U );
   auto const c = std::move( a );
   EXPECT_FALSE( a ); // NOLINT(bugprone-use-after-move)
   EXPECT_EQ( c->useCount(), 2U );
   b = nullptr;
   EXPECT_EQ( c->useCount(), 1U );
   EXPECT_EQ( Corvo::Node::liveCount(), before + 1 );
}

TEST( Ptr, AssigningFromBelowTheOldNodeIsSafe ) {
   auto list = Corvo::makePtr< Plain >();
   list->other = Corvo::makePtr< Plain >();
   list->other->other = Corvo::makePtr< Plain >();
   list = list->other; // goes with the old head
   EXPECT_TRUE( list->other );
   list = *&list;
   EXPECT_EQ( list->useCount(), 1U );
}

TEST( PtrDeath, NullIsNotDereferenced ) {
   Corvo::Ptr< Plain > const null;
   EXPECT_DEATH( static_cast< void >( null->useCount() ), "Assertion `ptr != nullptr' failed" );
   EXPECT_DEATH( static_cast< void >( ( *null ).useCount() ), "Assertion `ptr != nullptr' failed" );
}

// Refers to itself while it is made and while it goes.
struct SelfReferring : Corvo::Node {
   SelfReferring() { Corvo::Ptr< SelfReferring > const self( this ); }
   ~SelfReferring() override { Corvo::Ptr< SelfReferring > const self( this ); }
};

TEST( Node, MayReferToItselfWhileItIsMadeAndWhileItGoes ) {
   U32 const before = Corvo::Node::liveCount();
   Corvo::makePtr< SelfReferring >();
   EXPECT_EQ( Corvo::Node::liveCount(), before );
}

struct Leaking : Corvo::Node {
   Corvo::Ptr< Leaking > & out;
   explicit Leaking( Corvo::Ptr< Leaking > & out_ ) : out( out_ ) {}
   ~Leaking() override { out = this; }
};

TEST( NodeDeath, AReferenceMayNotOutliveItsNode ) {
   EXPECT_DEATH(
      {
         Corvo::Ptr< Leaking > out;
         Corvo::makePtr< Leaking >( out );
      },
      "Assertion `users_ == 1' failed" );
}

struct Throwing : Corvo::Node {
   Throwing() { throw std::runtime_error( "no" ); }
};

TEST( Node, AConstructorMayThrow ) {
   U32 const before = Corvo::Node::liveCount();
   EXPECT_THROW( Corvo::makePtr< Throwing >(), std::runtime_error );
   EXPECT_EQ( Corvo::Node::liveCount(), before );
}

TEST( Node, FlagsAreIndependent ) {
   auto const node = Corvo::makePtr< Plain >();
   node->nodeFlagSet( Corvo::NodeFlag::notificationsActive, true );
   node->markAndSweepFlagSet( true );
   node->nodeFlagSet( Corvo::NodeFlag::notificationsActive, false );
   EXPECT_FALSE( node->hasNotificationActive() );
   EXPECT_TRUE( node->isZombie() );
   EXPECT_FALSE( node->isWriteProtected() );
}

TEST( ThreadControl, UseCountsHoldWithTwoThreads ) {
   Corvo::ThreadControl::threadedIs( true );
   U32 const before = Corvo::Node::liveCount();
   auto shared = Corvo::makePtr< Plain >();
   auto const work = [shared] {
      for ( int i = 0; i < 200'000; ++i ) {
         Corvo::Ptr< Plain > const copy = shared;
         Corvo::makePtr< Plain >();
      }
   };
   std::thread first( work );
   std::thread second( work );
   first.join();
   second.join();
   EXPECT_EQ( shared->useCount(), 2U ); // shared and the one in `work`
   EXPECT_EQ( Corvo::Node::liveCount(), before + 1 );
   Corvo::ThreadControl::threadedIs( false );
}

// What 65,535 interfaces with several reactors each are made of.
TEST( Sizes, StaySmall ) {
   EXPECT_LE( sizeof( Plain ) - sizeof( Plain::other ), 16U );
   EXPECT_LE( sizeof( Corvo::Publisher ), 24U );
   EXPECT_LE( sizeof( Corvo::Subscriber ), 40U );
   EXPECT_LE( sizeof( EvpnStatus ), 56U ); // an entity of 48, and its attributes
   EXPECT_LE( sizeof( Rex::NotifieeConst ), 64U );
   EXPECT_LE( sizeof( Rex::HashMap2018< Netka::IntfId, Corvo::Ptr< Plain > > ), 16U );
}

class Reactor : public Rex::NotifieeConst {
 public:
   std::vector< short > heard;
   std::function< void() > reaction;
   bool * gone = nullptr;
   bool * zeroReferences = nullptr;

   explicit Reactor( Corvo::Ptr< Rex::Entity const > const & notifier ) {
      notifierEntityIs( notifier );
      isRegisteredNotifieeIs( true );
   }
   ~Reactor() override {
      if ( gone ) {
         *gone = true;
      }
   }
   void onZeroReferences() const override {
      if ( zeroReferences ) {
         *zeroReferences = true;
         EXPECT_FALSE( *gone );
      }
   }
   void notifierIs( Corvo::Ptr< Rex::Entity const > const & notifier ) { notifierEntityIs( notifier ); }
   void onAttribute( Rex::AttributeId attribute, void const * ) override {
      heard.push_back( attribute );
      if ( reaction ) {
         reaction();
      }
   }
};

TEST( Notifiee, HearsItsNotifierWhileRegisteredAndActive ) {
   auto const status = Corvo::makePtr< EvpnStatus >();
   auto const reactor = Corvo::makePtr< Reactor >( status );
   status->vxlanEnabledIs( true );
   EXPECT_TRUE( reactor->heard.empty() ); // not active yet
   reactor->hasNotificationActiveIs( true );
   reactor->hasNotificationActiveIs( true );
   status->vxlanEnabledIs( false );
   EXPECT_EQ( reactor->heard, std::vector< short >{ 0x102 } );
   reactor->isRegisteredNotifieeIs( false );
   status->mplsEnabledIs( true );
   reactor->isRegisteredNotifieeIs( true );
   status->evpnDciEnabledIs( true );
   EXPECT_EQ( reactor->heard, ( std::vector< short >{ 0x102, 0x106 } ) );
   reactor->hasNotificationActiveIs( false );
   EXPECT_FALSE( status->publisher()->hasSubscribers() );
}

TEST( Notifiee, FollowsAnotherNotifierOrNone ) {
   auto const one = Corvo::makePtr< EvpnStatus >();
   auto const two = Corvo::makePtr< EvpnStatus >();
   auto const reactor = Corvo::makePtr< Reactor >( one );
   reactor->hasNotificationActiveIs( true );
   reactor->notifierIs( two );
   EXPECT_FALSE( one->publisher()->hasSubscribers() );
   EXPECT_EQ( one->useCount(), 1U );
   two->mplsEnabledIs( true );
   EXPECT_EQ( reactor->heard, std::vector< short >{ 0x103 } );
   reactor->notifierIs( nullptr );
   EXPECT_FALSE( two->publisher()->hasSubscribers() );
   reactor->notifierIs( one );
   EXPECT_TRUE( one->publisher()->hasSubscribers() );
}

TEST( Notifiee, IsKeptAliveWhileItReacts ) {
   auto const status = Corvo::makePtr< EvpnStatus >();
   bool gone = false;
   bool zeroReferences = false;
   auto reactor = Corvo::makePtr< Reactor >( status );
   reactor->gone = &gone;
   reactor->zeroReferences = &zeroReferences;
   reactor->hasNotificationActiveIs( true );
   reactor->reaction = [&] {
      reactor = nullptr;
      EXPECT_FALSE( gone );
   };
   status->vxlanEnabledIs( true );
   EXPECT_TRUE( gone );
   EXPECT_TRUE( zeroReferences );
   EXPECT_FALSE( status->publisher()->hasSubscribers() );
}

TEST( Notifiee, MayDropItsNotifierWhileItReacts ) {
   auto status = Corvo::makePtr< EvpnStatus >();
   auto const reactor = Corvo::makePtr< Reactor >( status );
   reactor->hasNotificationActiveIs( true );
   U32 const before = Corvo::Node::liveCount();
   reactor->reaction = [&] {
      status = nullptr;
      reactor->notifierIs( nullptr );
   };
   status->vxlanEnabledIs( true );
   EXPECT_EQ( Corvo::Node::liveCount(), before - 1 );
}

TEST( Notifiee, ZombieIsMarkedIdempotently ) {
   auto const reactor = Corvo::makePtr< Reactor >( nullptr );
   reactor->rexDoZombieReactors( true );
   reactor->rexDoZombieReactors( true );
   EXPECT_TRUE( reactor->isZombie() );
   reactor->rexDoZombieReactors( false );
   EXPECT_FALSE( reactor->isZombie() );
}

} // namespace
