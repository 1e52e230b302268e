// The interface machinery of the platform: managed directories, effective L3 MTU, the MTU walk over subinterfaces.
#include "interface/EthIntfVrfSmHelper.h"
#include "interface/L3MtuSm.h"
#include "interface/SyncMtuSubIntfWalkSm.h"

#include <gtest/gtest.h>

namespace Interface {
namespace {

// --- managed directories

TEST( ManagedIntfStatusDir, RefersToStatusThatStaysWhereItHangs ) {
   auto const all = Corvo::makePtr< AllEthPhyIntfStatusDir >();
   Netka::IntfId const id( "Ethernet1" );
   all->intfStatusIs( Corvo::makePtr< EthPhyIntfStatus >( id ) );
   auto const status = all->intfStatus( id );
   status->mtuIs( 9000 );
   auto const dir = Corvo::makePtr< ManagedIntfStatusDir >( "Managed Intfs" );
   dir->writeProtectedIs( false );
   dir->intfStatusIs( status );
   EXPECT_EQ( dir->intfStatus( id ), status );
   EXPECT_EQ( status->parent(), all.get() );
   EXPECT_EQ( dir->value().object()->at( "intfStatus" ).object()->at( "Ethernet1" ), status->value() );
   EXPECT_EQ( dir->intfStatusDel( id ), status );
   EXPECT_EQ( dir->intfStatusDel( id ), nullptr );
   EXPECT_EQ( status->parent(), all.get() );
}

TEST( ManagedIntfStatusDir, ProtectionOfTheDirectoryDoesNotReachWhatItRefersTo ) {
   auto const status = Corvo::makePtr< EthPhyIntfStatus >( Netka::IntfId( "Ethernet1" ) );
   auto const dir = Corvo::makePtr< ManagedIntfStatusDir >( "Managed Intfs" );
   dir->intfStatusIs( status );
   dir->writeProtectedIs( true );
   status->mtuIs( 1 );
   EXPECT_EQ( status->mtu(), 1U );
}

TEST( ManagedIntfStatusDir, NullStatusIsNotEntered ) {
   auto const dir = Corvo::makePtr< ManagedIntfStatusDir >( "Managed Intfs" );
   dir->intfStatusIs( nullptr );
   EXPECT_TRUE( dir->intfStatus().empty() );
}

TEST( ManagedIntfStatusDir, IsNotSetFromValues ) {
   auto const dir = Corvo::makePtr< ManagedIntfStatusDir >( "Managed Intfs" );
   try {
      dir->attributesIs( Rex::Value::Object{ { "intfStatus", Rex::Value::Object{} } } );
      FAIL();
   } catch ( Rex::ValueError const & error ) {
      EXPECT_EQ( error.place(), "/intfStatus" );
      EXPECT_STREQ( error.what(), "intfStatus refers to entities that stand elsewhere: set them there" );
   }
}

TEST( ManagedIntfStatusDir, NewestIsTheOneMadeLastAmongThoseAlive ) {
   EXPECT_EQ( ManagedIntfStatusDir::newest(), nullptr );
   EXPECT_EQ( ManagedIntfStatusLocalDir::newest(), nullptr );
   auto const first = Corvo::makePtr< ManagedIntfStatusDir >( "first" );
   auto const local = Corvo::makePtr< ManagedIntfStatusLocalDir >( "local" );
   {
      auto const second = Corvo::makePtr< ManagedIntfStatusDir >( "second" );
      EXPECT_EQ( ManagedIntfStatusDir::newest(), second.get() );
   }
   EXPECT_EQ( ManagedIntfStatusDir::newest(), first.get() );
   EXPECT_EQ( ManagedIntfStatusLocalDir::newest(), local.get() );
}

TEST( EthIntfVrfSmHelper, StartsOnTheDirectoriesItIsGiven ) {
   auto const helper = EthIntf::ethIntfVrfSmHelperFactory( nullptr );
   EXPECT_TRUE( helper->hasNotificationActive() );
   EXPECT_EQ( helper->routerMacsPerIntf(), 1 );
   EXPECT_FALSE( helper->started() );
   auto const dir = Corvo::makePtr< ManagedIntfStatusDir >( "Managed Intfs" );
   auto const local = Corvo::makePtr< ManagedIntfStatusLocalDir >( "Managed ISLs" );
   helper->doStartSm( dir, local );
   EXPECT_TRUE( helper->started() );
   EXPECT_EQ( helper->managedIntfStatusDir(), dir );
   EXPECT_EQ( helper->managedIntfStatusLocalDir(), local );
   helper->hasNotificationActiveIs( false );
   EXPECT_FALSE( helper->hasNotificationActive() );
}

// --- effective L3 MTU

struct L3MtuSmTest : testing::Test {
   Corvo::Ptr< EthPhyIntfConfig > config = Corvo::makePtr< EthPhyIntfConfig >( Netka::IntfId( "Ethernet1" ) );
   Corvo::Ptr< GlobalIntfConfig > global = Corvo::makePtr< GlobalIntfConfig >();
   Corvo::Ptr< EffectiveL3Mtu > mtu = Corvo::makePtr< EffectiveL3Mtu >();
   Corvo::Ptr< Hardware::Capability > capability = Corvo::makePtr< Hardware::Capability >();
   Corvo::Ptr< L3MtuSm > sm() { return L3MtuSm::L3MtuSmIs( config, global, mtu, capability ); }
};

TEST_F( L3MtuSmTest, OwnMtuHoldsElseTheGlobalOneAndBothAreFollowed ) {
   global->l3MtuIs( 2000 );
   auto const keep = sm();
   EXPECT_EQ( mtu->mtu(), 2000U );
   global->l3MtuIs( 2100 );
   EXPECT_EQ( mtu->mtu(), 2100U );
   config->mtuIs( 9000 );
   EXPECT_EQ( mtu->mtu(), 9000U );
   global->l3MtuIs( 2200 );
   EXPECT_EQ( mtu->mtu(), 9000U );
   config->mtuIs( 0 );
   EXPECT_EQ( mtu->mtu(), 2200U );
}

TEST_F( L3MtuSmTest, HardwareWithoutAGlobalMtuAndMissingInputsHaveTheDefault ) {
   global->l3MtuIs( 2000 );
   capability->globalL3MtuSupportedIs( false );
   auto keep = sm();
   EXPECT_EQ( mtu->mtu(), 1500U );
   keep = L3MtuSm::L3MtuSmIs( nullptr, nullptr, mtu, nullptr );
   EXPECT_EQ( mtu->mtu(), 1500U );
   keep = L3MtuSm::L3MtuSmIs( nullptr, global, mtu, nullptr );
   EXPECT_EQ( mtu->mtu(), 2000U );
}

TEST_F( L3MtuSmTest, NotificationsOffFreezeItAndOnBringItUpToDate ) {
   auto const keep = sm();
   keep->hasNotificationActiveIs( false );
   config->mtuIs( 9000 );
   EXPECT_EQ( mtu->mtu(), 1500U );
   EXPECT_FALSE( config->publisher()->hasSubscribers() );
   keep->hasNotificationActiveIs( true );
   EXPECT_EQ( mtu->mtu(), 9000U );
}

TEST_F( L3MtuSmTest, KnowsWhatItWasBuiltFrom ) {
   auto const keep = sm();
   EXPECT_TRUE( keep->builtFrom( config, global, mtu, capability ) );
   EXPECT_FALSE( keep->builtFrom( config, nullptr, mtu, capability ) );
   EXPECT_FALSE( keep->builtFrom( config, global, mtu, nullptr ) );
}

// --- the walk

struct WalkTest : testing::Test {
   Netka::IntfId const eth1{ "Ethernet1" };
   Netka::IntfId const eth2{ "Ethernet2" };
   Corvo::Ptr< Orb::TaskScheduler > scheduler = Corvo::makePtr< Orb::TaskScheduler >();
   Corvo::Ptr< SubIntfStatusDir > dir = Corvo::makePtr< SubIntfStatusDir >();
   Corvo::Ptr< SubIntfStatusLocalDir > locals = Corvo::makePtr< SubIntfStatusLocalDir >();
   Corvo::Ptr< EthPhyIntfStatus > status = Corvo::makePtr< EthPhyIntfStatus >( eth1 );
   Corvo::Ptr< EthPhyIntfStatusLocal > local = Corvo::makePtr< EthPhyIntfStatusLocal >( eth1 );
   Corvo::Ptr< SyncMtuSubIntfWalkSm > walk = syncMtuSubIntfWalkSmFactory( scheduler, eth1, dir, locals );

   Corvo::Ptr< SubIntfStatus > subIntf( std::string const & name, Netka::IntfId parent ) {
      auto const sub = Corvo::makePtr< SubIntfStatus >( Netka::IntfId( name ) );
      sub->parentIntfIdIs( parent );
      dir->intfStatusIs( sub );
      locals->intfStatusLocalIs( Corvo::makePtr< SubIntfStatusLocal >( Netka::IntfId( name ) ) );
      return sub;
   }
   void subIntfs( int count ) {
      for ( int number = 1; number <= count; ++number ) {
         subIntf( "Ethernet1." + std::to_string( number ), eth1 );
      }
   }
   int countWith( U32 mtu ) const {
      int count = 0;
      for ( auto const & [id, sub] : dir->intfStatus() ) {
         count += sub->mtu() == mtu ? 1 : 0;
      }
      return count;
   }
   void sync( U32 mtu ) { walk->syncMtu( syncMtuDataFactory( status, local, mtu, true, true, -1 ) ); }
   unsigned result() const { return walk->syncMtuResult(); }
};

TEST_F( WalkTest, ThoseThatAreAliveAreToldNewestFirst ) {
   auto const ids = [] {
      std::string all;
      for ( auto const * each = SyncMtuSubIntfWalkSm::newest(); each; each = each->older() ) {
         all += each->intfId().stringValue() + " ";
      }
      return all;
   };
   auto second = syncMtuSubIntfWalkSmFactory( scheduler, eth2, dir, locals );
   auto third = syncMtuSubIntfWalkSmFactory( scheduler, Netka::IntfId( "Ethernet3" ), dir, locals );
   EXPECT_EQ( ids(), "Ethernet3 Ethernet2 Ethernet1 " );
   second = nullptr;
   EXPECT_EQ( ids(), "Ethernet3 Ethernet1 " );
   third = nullptr;
   EXPECT_EQ( ids(), "Ethernet1 " );
   walk = nullptr;
   EXPECT_EQ( SyncMtuSubIntfWalkSm::newest(), nullptr );
}

TEST_F( WalkTest, WritesTheInterfaceAndItsSubinterfacesAndNoOthers ) {
   auto const mine = subIntf( "Ethernet1.1", eth1 );
   auto const other = subIntf( "Ethernet2.1", eth2 );
   EXPECT_EQ( result(), 0U );
   sync( 9000 );
   EXPECT_EQ( result(), 1U );
   EXPECT_EQ( status->mtu(), 0U ); // nothing is written before the scheduler runs
   scheduler->runUntilIdle();
   EXPECT_EQ( result(), 3U );
   EXPECT_EQ( status->mtu(), 9000U );
   EXPECT_EQ( local->mtu(), 9000U );
   EXPECT_EQ( mine->mtu(), 9000U );
   EXPECT_EQ( locals->intfStatusLocal( mine->intfId() )->mtu(), 9000U );
   EXPECT_EQ( other->mtu(), 0U );
   EXPECT_EQ( locals->intfStatusLocal( other->intfId() )->mtu(), 0U );
}

TEST_F( WalkTest, WritesSubinterfacesThatAreMountedForReadingOnBehalfOfTheirAgent ) {
   auto const mine = subIntf( "Ethernet1.1", eth1 );
   dir->writeProtectedIs( true );
   locals->writeProtectedIs( true );
   sync( 9000 );
   scheduler->runUntilIdle();
   EXPECT_EQ( mine->mtu(), 9000U );
   EXPECT_EQ( locals->intfStatusLocal( mine->intfId() )->mtu(), 9000U );
}

TEST_F( WalkTest, RunsInSlicesBetweenWhichOtherTasksRun ) {
   subIntfs( 150 );
   sync( 9000 );
   std::vector< int > seen;
   for ( int task = 0; task < 4; ++task ) {
      EXPECT_EQ( result(), task < 3 ? 1U : 3U );
      seen.push_back( countWith( 9000 ) );
      scheduler->runOne();
   }
   EXPECT_EQ( seen, ( std::vector< int >{ 0, 64, 128, 150 } ) );
   EXPECT_EQ( scheduler->pending(), 0U );
}

TEST_F( WalkTest, ExactlyOneSliceOfSubinterfacesTakesOneTask ) {
   subIntfs( 64 );
   sync( 9000 );
   EXPECT_EQ( scheduler->runUntilIdle(), 1U );
   EXPECT_EQ( result(), 3U );
}

TEST_F( WalkTest, ResetAbandonsIt ) {
   subIntfs( 100 );
   sync( 9000 );
   scheduler->runOne();
   walk->reset();
   EXPECT_EQ( result(), 0U );
   scheduler->runUntilIdle();
   EXPECT_EQ( countWith( 9000 ), 64 );
   EXPECT_EQ( result(), 0U );
   walk->reset(); // idle stays idle
   EXPECT_EQ( result(), 0U );
}

TEST_F( WalkTest, ResetAndStartedAgainItHasOneTaskWaiting ) {
   subIntfs( 1 );
   for ( int round = 0; round < 5; ++round ) {
      sync( 9000 );
      walk->reset();
   }
   sync( 8000 );
   EXPECT_EQ( scheduler->pending(), 1U );
   scheduler->runUntilIdle();
   EXPECT_EQ( result(), 3U );
   EXPECT_EQ( countWith( 8000 ), 1 );
}

TEST_F( WalkTest, EqualDataLetItGoOnAndOtherDataBeginAnew ) {
   subIntfs( 100 );
   sync( 9000 );
   scheduler->runOne();
   sync( 9000 );
   EXPECT_EQ( scheduler->runUntilIdle(), 1U );
   EXPECT_EQ( countWith( 9000 ), 100 );
   sync( 8000 );
   scheduler->runOne();
   sync( 7000 );
   EXPECT_EQ( scheduler->runUntilIdle(), 2U );
   EXPECT_EQ( countWith( 7000 ), 100 );
   EXPECT_EQ( result(), 3U );
}

TEST_F( WalkTest, SyncedItWalksAgainWhenItIsTold ) {
   subIntfs( 1 );
   sync( 9000 );
   scheduler->runUntilIdle();
   sync( 9000 );
   EXPECT_EQ( result(), 1U );
   scheduler->runUntilIdle();
   EXPECT_EQ( result(), 3U );
}

TEST_F( WalkTest, SubinterfacesThatComeOrGoDuringItNeedARestart ) {
   subIntfs( 100 );
   sync( 9000 );
   scheduler->runOne();
   auto const late = subIntf( "Ethernet1.500", eth1 );
   scheduler->runUntilIdle();
   EXPECT_EQ( result(), 2U );
   EXPECT_EQ( late->mtu(), 0U );
   sync( 9000 );
   scheduler->runOne();
   dir->intfStatusDel( Netka::IntfId( "Ethernet1.99" ) );
   scheduler->runUntilIdle();
   EXPECT_EQ( result(), 2U );
   sync( 9000 );
   scheduler->runUntilIdle();
   EXPECT_EQ( result(), 3U );
   EXPECT_EQ( late->mtu(), 9000U );
}

TEST_F( WalkTest, SubinterfacesOfOthersThatComeAndGoDuringItDoNotMatter ) {
   subIntfs( 100 );
   sync( 9000 );
   scheduler->runOne();
   subIntf( "Ethernet2.1", eth2 );
   dir->intfStatusDel( Netka::IntfId( "Ethernet2.1" ) );
   scheduler->runUntilIdle();
   EXPECT_EQ( result(), 3U );
}

TEST_F( WalkTest, SubinterfaceThatMovesToAnotherInterfaceIsWalkedThere ) {
   auto const sub = subIntf( "Ethernet1.1", eth1 );
   sub->parentIntfIdIs( eth2 );
   sync( 9000 );
   scheduler->runUntilIdle();
   EXPECT_EQ( sub->mtu(), 0U );
   sub->parentIntfIdIs( eth1 );
   sync( 9000 );
   scheduler->runUntilIdle();
   EXPECT_EQ( sub->mtu(), 9000U );
}

TEST_F( WalkTest, ReplacedSubinterfaceIsTheOneThatIsWritten ) {
   auto const before = subIntf( "Ethernet1.1", eth1 );
   auto const after = subIntf( "Ethernet1.1", eth1 );
   sync( 9000 );
   scheduler->runUntilIdle();
   EXPECT_EQ( before->mtu(), 0U );
   EXPECT_EQ( after->mtu(), 9000U );
   before->parentIntfIdIs( eth2 ); // no longer followed
}

TEST_F( WalkTest, DataSayWhatIsWritten ) {
   subIntfs( 5 );
   walk->syncMtu( syncMtuDataFactory( status, local, 9000, false, true, 3 ) );
   scheduler->runUntilIdle();
   EXPECT_EQ( status->mtu(), 0U );
   EXPECT_EQ( local->mtu(), 0U );
   EXPECT_EQ( countWith( 9000 ), 3 );
   walk->syncMtu( syncMtuDataFactory( status, nullptr, 8000, true, false, -1 ) );
   scheduler->runUntilIdle();
   EXPECT_EQ( status->mtu(), 8000U );
   EXPECT_EQ( countWith( 8000 ), 0 );
   EXPECT_EQ( result(), 3U );
}

TEST_F( WalkTest, WithoutDirectoriesItWritesTheInterfaceAlone ) {
   auto const alone = syncMtuSubIntfWalkSmFactory( scheduler, eth1, nullptr, nullptr );
   alone->syncMtu( syncMtuDataFactory( status, local, 9000, true, true, -1 ) );
   scheduler->runUntilIdle();
   EXPECT_EQ( status->mtu(), 9000U );
   EXPECT_EQ( unsigned{ alone->syncMtuResult() }, 3U );
}

TEST_F( WalkTest, NullDataThrow ) {
   EXPECT_THROW( walk->syncMtu( nullptr ), Rex::MutatorArgNullPointerException );
}

// Acts when a subinterface's MTU changes.
struct Act {
   Corvo::Subscriber slot;
   std::function< void() > act;
   Act( Corvo::Ptr< SubIntfStatus > const & sub, std::function< void() > what ) : act( std::move( what ) ) {
      slot.dispatchIs(
         []( Corvo::Publisher *, Corvo::Subscriber * at, short, void const *, void const * ) {
            at->owner< Act >()->act();
         },
         this );
      sub->publisher()->subscriberAdd( slot, false );
   }
};

TEST_F( WalkTest, DroppedByWhoHearsOfAWriteItWritesNothingMore ) {
   subIntfs( 10 );
   Act const act( dir->intfStatus( Netka::IntfId( "Ethernet1.3" ) ), [&] { walk = nullptr; } );
   sync( 9000 );
   scheduler->runUntilIdle();
   EXPECT_EQ( countWith( 9000 ), 3 );
}

TEST_F( WalkTest, ResetByWhoHearsOfAWriteItWritesNothingMore ) {
   subIntfs( 10 );
   Act const act( dir->intfStatus( Netka::IntfId( "Ethernet1.3" ) ), [&] { walk->reset(); } );
   sync( 9000 );
   scheduler->runUntilIdle();
   EXPECT_EQ( countWith( 9000 ), 3 );
   EXPECT_EQ( result(), 0U );
}

TEST_F( WalkTest, RestartedByWhoHearsOfAWriteItBeginsAnew ) {
   subIntfs( 10 );
   bool once = true;
   Act const act( dir->intfStatus( Netka::IntfId( "Ethernet1.3" ) ), [&] {
      if ( std::exchange( once, false ) ) {
         sync( 7000 );
      }
   } );
   sync( 9000 );
   scheduler->runUntilIdle();
   EXPECT_EQ( countWith( 7000 ), 10 );
   EXPECT_EQ( result(), 3U );
}

TEST_F( WalkTest, SubinterfaceRemovedByWhoHearsOfAWriteNeedsARestart ) {
   subIntfs( 10 );
   auto const removed = dir->intfStatus( Netka::IntfId( "Ethernet1.4" ) );
   Act const act( dir->intfStatus( Netka::IntfId( "Ethernet1.3" ) ),
                  [&] { dir->intfStatusDel( Netka::IntfId( "Ethernet1.4" ) ); } );
   sync( 9000 );
   scheduler->runUntilIdle();
   EXPECT_EQ( result(), 2U );
   EXPECT_EQ( removed->mtu(), 0U );
}

TEST_F( WalkTest, DroppedWhileItsTaskWaitsItLeavesNothingBehind ) {
   U32 const before = Corvo::Node::liveCount();
   auto other = syncMtuSubIntfWalkSmFactory( scheduler, eth2, dir, locals );
   other->syncMtu( syncMtuDataFactory( status, local, 9000, true, true, -1 ) );
   other = nullptr;
   EXPECT_EQ( scheduler->pending(), 1U );
   scheduler->runUntilIdle();
   EXPECT_EQ( status->mtu(), 0U );
   EXPECT_EQ( Corvo::Node::liveCount(), before );
}

TEST_F( WalkTest, SchedulerThatGoesFirstTakesTheTasksAlong ) {
   sync( 9000 );
   U32 const before = Corvo::Node::liveCount();
   walk->reset();
   walk = nullptr;
   scheduler = nullptr;
   EXPECT_LT( Corvo::Node::liveCount(), before );
}

TEST( SubIntfIndex, IsSharedByAllWhoAskAndGoneWithTheLast ) {
   auto const dir = Corvo::makePtr< SubIntfStatusDir >();
   auto first = SubIntfIndex::of( dir );
   EXPECT_EQ( SubIntfIndex::of( dir ), first );
   EXPECT_TRUE( dir->publisher()->hasSubscribers() );
   first = nullptr;
   EXPECT_FALSE( dir->publisher()->hasSubscribers() );
   EXPECT_EQ( SubIntfIndex::of( nullptr ), nullptr );
}

TEST( SubIntfIndex, GenerationTellsThatSubinterfacesCameOrWent ) {
   Netka::IntfId const eth1( "Ethernet1" );
   auto const dir = Corvo::makePtr< SubIntfStatusDir >();
   auto const index = SubIntfIndex::of( dir );
   EXPECT_EQ( index->generation( eth1 ), 0U );
   auto const sub = Corvo::makePtr< SubIntfStatus >( Netka::IntfId( "Ethernet1.1" ) );
   sub->parentIntfIdIs( eth1 );
   dir->intfStatusIs( sub );
   U64 const withOne = index->generation( eth1 );
   EXPECT_NE( withOne, 0U );
   sub->mtuIs( 1 );
   EXPECT_EQ( index->generation( eth1 ), withOne );
   dir->intfStatusDel( sub->intfId() );
   EXPECT_EQ( index->generation( eth1 ), 0U );
   dir->intfStatusIs( sub );
   EXPECT_NE( index->generation( eth1 ), withOne );
   EXPECT_EQ( index->subIntfs( eth1 ).size(), 1U );
}

} // namespace
} // namespace Interface
