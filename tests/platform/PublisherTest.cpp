// Notifications: order, and callbacks that do the worst.
#include "corvo/Publisher.h"
#include "corvo/Watched.h"
#include "platform/Listener.h"
#include "state/Overlays.h"

#include <gtest/gtest.h>

namespace {

using Evpn::EvpnStatus;

// A subscriber with a name, which writes it down when it is called and then does what it is told.
struct Caller {
   std::string name;
   std::vector< std::string > & calls;
   std::function< void() > reaction;
   Corvo::Subscriber slot;

   Caller( std::string name_, std::vector< std::string > & calls_, std::function< void() > reaction_ = {} )
      : name( std::move( name_ ) ), calls( calls_ ), reaction( std::move( reaction_ ) ) {
      slot.dispatchIs( dispatch, this );
   }
   static void dispatch( Corvo::Publisher *, Corvo::Subscriber * slot, short, void const *, void const * ) {
      auto & self = *slot->owner< Caller >();
      self.calls.push_back( self.name );
      if ( auto const run = self.reaction ) {
         run();
      }
   }
};

struct Callbacks : testing::Test {
   Corvo::Ptr< EvpnStatus > status = Corvo::makePtr< EvpnStatus >();
   std::vector< std::string > calls;
   std::unique_ptr< Caller > a = std::make_unique< Caller >( "a", calls );
   std::unique_ptr< Caller > b = std::make_unique< Caller >( "b", calls );
   std::unique_ptr< Caller > c = std::make_unique< Caller >( "c", calls );

   void subscribe( Caller & caller ) { status->publisher()->subscriberAdd( caller.slot, false ); }
   Callbacks() {
      subscribe( *a );
      subscribe( *b );
      subscribe( *c );
   }
   void change() { status->vxlanEnabledIs( !status->vxlanEnabled() ); }
};
using Calls = std::vector< std::string >;

TEST_F( Callbacks, AreCalledInTheOrderOfSubscription ) {
   status->publisher()->subscriberDel( a->slot );
   subscribe( *a );
   change();
   EXPECT_EQ( calls, ( Calls{ "b", "c", "a" } ) );
}

TEST_F( Callbacks, MayDeleteThemselves ) {
   b->reaction = [&] { b = nullptr; };
   change();
   change();
   EXPECT_EQ( calls, ( Calls{ "a", "b", "c", "a", "c" } ) );
}

TEST_F( Callbacks, MayDeleteTheNextSibling ) {
   a->reaction = [&] { b = nullptr; };
   change();
   EXPECT_EQ( calls, ( Calls{ "a", "c" } ) );
}

TEST_F( Callbacks, MayDeleteTheLastSibling ) {
   a->reaction = [&] { c = nullptr; };
   change();
   EXPECT_EQ( calls, ( Calls{ "a", "b" } ) );
}

TEST_F( Callbacks, MayDeleteSiblingsThatWereCalled ) {
   c->reaction = [&] {
      a = nullptr;
      b = nullptr;
   };
   change();
   change();
   EXPECT_EQ( calls, ( Calls{ "a", "b", "c", "c" } ) );
}

TEST_F( Callbacks, MayDeleteAll ) {
   a->reaction = [&] {
      c = nullptr;
      b = nullptr;
      a = nullptr;
   };
   change();
   change();
   EXPECT_EQ( calls, Calls{ "a" } );
   EXPECT_FALSE( status->publisher()->hasSubscribers() );
}

TEST_F( Callbacks, MayDestroyThePublisher ) {
   a->reaction = [&] { status = nullptr; };
   change();
   EXPECT_EQ( calls, Calls{ "a" } );
   EXPECT_TRUE( a->slot.isEmpty() );
   EXPECT_TRUE( c->slot.isEmpty() );
   EXPECT_EQ( Corvo::Publisher::current(), nullptr );
}

TEST_F( Callbacks, MayDestroyThePublisherFromWithinASecondAnnouncement ) {
   bool inner = false;
   a->reaction = [&] {
      if ( !inner ) {
         inner = true;
         status->mplsEnabledIs( true );
      }
   };
   b->reaction = [&] { status = nullptr; };
   change();
   EXPECT_EQ( calls, ( Calls{ "a", "a", "b" } ) );
}

TEST_F( Callbacks, MayPublishAgain ) {
   b->reaction = [&] { status->mplsEnabledIs( true ); };
   change();
   EXPECT_EQ( calls, ( Calls{ "a", "b", "a", "b", "c", "c" } ) );
}

TEST_F( Callbacks, ThatSubscribeHearTheNextChangeFirst ) {
   Caller late( "late", calls );
   c->reaction = [&] {
      if ( late.slot.isEmpty() ) {
         subscribe( late );
      }
   };
   change();
   EXPECT_EQ( calls, ( Calls{ "a", "b", "c" } ) );
   change();
   EXPECT_EQ( calls, ( Calls{ "a", "b", "c", "a", "b", "c", "late" } ) );
}

TEST_F( Callbacks, ThatSubscribeAnewAreNotCalledTwice ) {
   auto const anew = [&]( Caller & caller ) {
      status->publisher()->subscriberDel( caller.slot );
      subscribe( caller );
   };
   a->reaction = [&] { anew( *a ); };
   c->reaction = [&] {
      anew( *b );
      anew( *c );
   };
   change();
   EXPECT_EQ( calls, ( Calls{ "a", "b", "c" } ) );
   calls.clear();
   change();
   EXPECT_EQ( calls, ( Calls{ "a", "b", "c" } ) );
}

TEST_F( Callbacks, OfTheOnlySubscriberMayDoTheSame ) {
   b = nullptr;
   c = nullptr;
   Caller late( "late", calls );
   a->reaction = [&] {
      subscribe( late );
      a = nullptr;
      status = nullptr;
   };
   change();
   EXPECT_EQ( calls, Calls{ "a" } );
   EXPECT_TRUE( late.slot.isEmpty() );
}

TEST_F( Callbacks, ThatThrowEndTheAnnouncement ) {
   b->reaction = [] { throw std::runtime_error( "b" ); };
   EXPECT_THROW( change(), std::runtime_error );
   EXPECT_EQ( Corvo::Publisher::current(), nullptr );
   b->reaction = nullptr;
   change();
   EXPECT_EQ( calls, ( Calls{ "a", "b", "a", "b", "c" } ) );
}

TEST_F( Callbacks, SeeWhatIsBeingAnnounced ) {
   std::vector< short > chain;
   b->reaction = [&] {
      for ( auto const * each = Corvo::Publisher::current(); each; each = each->outer ) {
         chain.push_back( each->attribute );
      }
      if ( chain.size() == 1 ) {
         status->mplsEnabledIs( true );
      }
   };
   change();
   EXPECT_EQ( chain, ( std::vector< short >{ 0x102, 0x103, 0x102 } ) );
}

// A child that, when told, has its parent drop it, or drops its parent.
struct Child;
struct Parent : Corvo::Node {
   Corvo::Ptr< Child > child;
};
struct Child : Corvo::Node {
   Corvo::Watched< EvpnStatus const > status;
   std::function< void() > reaction;
   explicit Child( Corvo::Ptr< EvpnStatus const > const & status_ ) : status( status_ ) {
      status.subscribe( dispatch, this );
   }
   static void dispatch( Corvo::Publisher *, Corvo::Subscriber * slot, short, void const *, void const * ) {
      auto const reaction = slot->owner< Child >()->reaction;
      reaction();
   }
};

TEST( Callback, MayDeleteItsParentAndWithItItself ) {
   U32 const before = Corvo::Node::liveCount();
   {
      auto const status = Corvo::makePtr< EvpnStatus >();
      auto parent = Corvo::makePtr< Parent >();
      parent->child = Corvo::makePtr< Child >( status );
      parent->child->reaction = [&] { parent = nullptr; };
      status->vxlanEnabledIs( true );
      EXPECT_FALSE( parent );
      EXPECT_FALSE( status->publisher()->hasSubscribers() );
   }
   EXPECT_EQ( Corvo::Node::liveCount(), before );
}

TEST( Subscriber, ReplayCallsItForEachAttributeUntilItUnsubscribes ) {
   auto const status = Corvo::makePtr< EvpnStatus >();
   std::vector< std::string > calls;
   Caller all( "all", calls );
   status->publisher()->subscriberAdd( all.slot, true );
   EXPECT_EQ( calls, ( Calls{ "all", "all", "all" } ) );

   Caller once( "once", calls );
   once.reaction = [&] { status->publisher()->subscriberDel( once.slot ); };
   calls.clear();
   status->publisher()->subscriberAdd( once.slot, true );
   EXPECT_EQ( calls, Calls{ "once" } );
}

TEST( Subscriber, ReplayEndsWhereThePublisherOrTheSlotGoes ) {
   auto status = Corvo::makePtr< EvpnStatus >();
   std::vector< std::string > calls;
   auto a = std::make_unique< Caller >( "a", calls );
   a->reaction = [&] { a = nullptr; };
   status->publisher()->subscriberAdd( a->slot, true );
   Caller b( "b", calls, [&] { status = nullptr; } );
   status->publisher()->subscriberAdd( b.slot, true );
   EXPECT_EQ( calls, ( Calls{ "a", "b" } ) );
}

TEST( SubscriberDeath, SubscribingTwiceEndsTheProcess ) {
   auto const status = Corvo::makePtr< EvpnStatus >();
   auto const other = Corvo::makePtr< EvpnStatus >();
   std::vector< std::string > calls;
   Caller caller( "caller", calls );
   status->publisher()->subscriberAdd( caller.slot, false );
   EXPECT_DEATH( other->publisher()->subscriberAdd( caller.slot, false ), "Assertion `isEmpty' failed" );
}

TEST( Subscriber, DeletingOneThatIsSubscribedElsewhereChangesNothing ) {
   auto const status = Corvo::makePtr< EvpnStatus >();
   auto const other = Corvo::makePtr< EvpnStatus >();
   std::vector< std::string > calls;
   Caller caller( "caller", calls );
   status->publisher()->subscriberAdd( caller.slot, false );
   other->publisher()->subscriberDel( caller.slot );
   status->vxlanEnabledIs( true );
   EXPECT_EQ( calls, Calls{ "caller" } );
}

TEST( Watched, ANullInputStaysSilent ) {
   Corvo::Watched< EvpnStatus const > input{ nullptr };
   input.subscribe( []( auto... ) {}, nullptr );
   input.unsubscribe();
   EXPECT_FALSE( input );
}

TEST( WatchedDeath, ANullInputIsNotDereferenced ) {
   Corvo::Watched< EvpnStatus const > input{ nullptr };
   EXPECT_DEATH( static_cast< void >( input->vxlanEnabled() ), "Assertion `ptr != nullptr' failed" );
}

TEST( ForeignWrite, IsOverInWhatItSetsOff ) {
   auto const status = Corvo::makePtr< EvpnStatus >();
   bool during = true;
   Listener const listener( *status, [&] { during = Corvo::Publisher::foreignWrite(); } );
   {
      Corvo::Publisher::ForeignWrite const foreign;
      EXPECT_TRUE( Corvo::Publisher::foreignWrite() );
      status->vxlanEnabledIs( true );
      EXPECT_FALSE( during );
      EXPECT_TRUE( Corvo::Publisher::foreignWrite() );
   }
   EXPECT_FALSE( Corvo::Publisher::foreignWrite() );
}

} // namespace
