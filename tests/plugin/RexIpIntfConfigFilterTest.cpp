// What a served interface publishes: its addresses, and its MTU through the walk.
#include "InterfaceWorld.h"

#include <gtest/gtest.h>

namespace DaceFapNi {
namespace {

class RexIpIntfConfigFilterTest : public testing::Test {
 protected:
   // Ethernet1 in service, in a slice of this mode.
   void serve( U8 mode = 2 ) {
      world.modeIs( mode );
      world.port( 10, eth1 );
      world.start();
   }
   void run() { world.scheduler->runUntilIdle(); }
   Corvo::Ptr< InterfaceWorld::Filter > filter() const { return world.filter( eth1 ); }
   Corvo::Ptr< Interface::EthPhyIntfStatus > status() const { return world.status( eth1 ); }
   Corvo::Ptr< Interface::EthPhyIntfConfig > config() const { return world.config( eth1 ); }

   InterfaceWorld world;
   Netka::IntfId const eth1 = world.intf( "Ethernet1" );
};

using RexIpIntfConfigFilterDeath = RexIpIntfConfigFilterTest;

// --- addresses

TEST_F( RexIpIntfConfigFilterTest, WithoutAConfiguredAddressTheBurnedInAndTheBridgeAddressArePublished ) {
   serve();
   EXPECT_EQ( status()->addr(), burnedIn );
   EXPECT_EQ( status()->routedAddr(), bridgeMac );
}

TEST_F( RexIpIntfConfigFilterTest, ConfiguredAddressIsPublishedAsBothAndGivesWayAgain ) {
   serve();
   config()->addrIs( configured );
   EXPECT_EQ( status()->addr(), configured );
   EXPECT_EQ( status()->routedAddr(), configured );
   config()->addrIs( none );
   EXPECT_EQ( status()->addr(), burnedIn );
   EXPECT_EQ( status()->routedAddr(), bridgeMac );
}

TEST_F( RexIpIntfConfigFilterTest, BurnedInAddressThatComesLaterIsPublished ) {
   status()->burnedInAddrIs( none );
   serve();
   EXPECT_EQ( status()->addr(), none );
   status()->burnedInAddrIs( burnedIn );
   EXPECT_EQ( status()->addr(), burnedIn );
}

TEST_F( RexIpIntfConfigFilterTest, ForwardingModelThatChangesPublishesTheBridgeAddressOfThatTime ) {
   serve();
   Netka::EthAddr const other( "02:00:00:00:00:fe" );
   world.bridging->bridgeMacAddrIs( other ); // by itself not followed
   EXPECT_EQ( status()->routedAddr(), bridgeMac );
   status()->forwardingModelIs( 1 );
   EXPECT_EQ( status()->routedAddr(), other );
}

TEST_F( RexIpIntfConfigFilterTest, StatusIsWrittenInItsOrder ) {
   Ear ear( { status(), world.local( eth1 ) } );
   serve();
   EXPECT_EQ( ear.take(), ( Texts{ "Ethernet1 routedAddr", "Ethernet1 addr", "Ethernet1 maxMtu" } ) );
   EXPECT_EQ( status()->maxMtu(), 9236U );
   run();
   EXPECT_EQ( ear.take(), ( Texts{ "Ethernet1 mtu", "Ethernet1 mtu" } ) );
   EXPECT_EQ( status()->mtu(), 1500U );
   EXPECT_EQ( world.local( eth1 )->mtu(), 1500U );
   config()->addrIs( configured );
   EXPECT_EQ( ear.take(), ( Texts{ "Ethernet1 addr", "Ethernet1 routedAddr" } ) );
}

TEST_F( RexIpIntfConfigFilterTest, HandleAddrTellsWhetherThereIsAStatus ) {
   serve();
   EXPECT_TRUE( filter()->handleAddr() );
   filter()->intfStatusDel();
   Traces traces( 9 );
   EXPECT_FALSE( filter()->handleAddr() );
   EXPECT_EQ( traces.take(),
              ( Texts{ "8 IpIntfConfigFilter::handleAddr Ethernet1 addr 00:00:00:00:00:00",
                       "9 interface status not available" } ) );
}

// --- standby

TEST_F( RexIpIntfConfigFilterTest, StandbyWritesNothingAndTheWalkStaysReset ) {
   Ear ear( { status(), world.local( eth1 ) } );
   serve( 1 );
   config()->addrIs( configured );
   config()->mtuIs( 9000 );
   EXPECT_TRUE( filter()->handleAddr() );
   run();
   EXPECT_EQ( ear.take(), Texts{} );
   EXPECT_EQ( world.walkResult( eth1 ), 0U );
   EXPECT_EQ( world.scheduler->pending(), 0U );
}

TEST_F( RexIpIntfConfigFilterTest, EveryModeButActiveIsStandby ) {
   serve( 0 );
   for ( U8 const mode : { U8{ 1 }, U8{ 3 }, U8{ 255 } } ) {
      world.modeIs( mode );
      EXPECT_EQ( status()->addr(), none ) << unsigned{ mode };
   }
   world.modeIs( 2 );
   EXPECT_EQ( status()->addr(), burnedIn );
}

TEST_F( RexIpIntfConfigFilterTest, StandbyThatBecomesActivePublishesAddressesAndMtuButNoMaxMtu ) {
   serve( 1 );
   Ear ear( { status() } );
   world.modeIs( 2 );
   run();
   EXPECT_EQ( ear.take(), ( Texts{ "Ethernet1 addr", "Ethernet1 routedAddr", "Ethernet1 mtu" } ) );
   EXPECT_EQ( status()->addr(), burnedIn );
   EXPECT_EQ( status()->routedAddr(), bridgeMac );
   EXPECT_EQ( status()->maxMtu(), 0U ); // only a filter that is built in active mode writes it
   EXPECT_EQ( status()->mtu(), 1500U );
}

TEST_F( RexIpIntfConfigFilterTest, ActiveThatBecomesStandbyAbandonsTheWalk ) {
   serve();
   EXPECT_EQ( world.walkResult( eth1 ), 1U );
   Traces traces( 9 );
   world.modeIs( 1 );
   EXPECT_EQ( traces.take(),
              ( Texts{ "0 handleMtuOrForwardingModel early return for standby. smMode: 1",
                       "8 IpIntfConfigFilter::handleAddr Ethernet1 addr 00:00:00:00:00:00",
                       "0 handleAddr early return for standby. smMode: 1" } ) );
   EXPECT_EQ( world.walkResult( eth1 ), 0U );
   run();
   EXPECT_EQ( status()->mtu(), 0U );
   EXPECT_EQ( status()->addr(), burnedIn ); // what was published stays
}

// --- the order of the tests

TEST_F( RexIpIntfConfigFilterTest, DisabledInterfaceResetsTheWalkAndPublishesNoAddressByThisPath ) {
   serve();
   Traces traces( 9 );
   config()->enabledIs( false );
   EXPECT_EQ( traces.take(),
              ( Texts{ "8 IpIntfConfigFilter::handleMtuOrForwardingModel Ethernet1", "9 interface is not enabled" } ) );
   EXPECT_EQ( world.walkResult( eth1 ), 0U );
   config()->addrIs( configured ); // has a handler of its own
   EXPECT_EQ( status()->addr(), configured );
   EXPECT_EQ( world.walkResult( eth1 ), 0U );
   run();
   EXPECT_EQ( status()->mtu(), 0U );
   config()->enabledIs( true );
   run();
   EXPECT_EQ( status()->mtu(), 1500U );
}

TEST_F( RexIpIntfConfigFilterTest, DisabledFromTheStartPublishesTheAddressesOnce ) {
   config()->enabledIs( false );
   serve();
   EXPECT_EQ( status()->addr(), burnedIn );
   EXPECT_EQ( status()->maxMtu(), 9236U );
   EXPECT_EQ( world.scheduler->pending(), 0U );
}

TEST_F( RexIpIntfConfigFilterTest, StatusThatDisappearsResetsTheWalkAtOnce ) {
   serve();
   EXPECT_EQ( world.walkResult( eth1 ), 1U );
   Traces traces( 9 );
   auto const dropped = filter()->intfStatusDel();
   EXPECT_EQ(
      traces.take(),
      ( Texts{ "8 IpIntfConfigFilter::handleMtuOrForwardingModel Ethernet1", "9 interface status not available" } ) );
   EXPECT_EQ( world.walkResult( eth1 ), 0U );
   ASSERT_TRUE( dropped );
   EXPECT_TRUE( dropped->isZombie() );
   EXPECT_FALSE( dropped->hasNotificationActive() );
   EXPECT_EQ( filter()->intfStatus(), nullptr );
   EXPECT_EQ( filter()->intfStatusDel(), nullptr );
}

TEST_F( RexIpIntfConfigFilterTest, MissingStatusHidesADisabledConfiguration ) {
   serve();
   filter()->intfStatusIs( nullptr );
   Traces traces( 9 );
   config()->enabledIs( false );
   EXPECT_EQ(
      traces.take(),
      ( Texts{ "8 IpIntfConfigFilter::handleMtuOrForwardingModel Ethernet1", "9 interface status not available" } ) );
}

TEST_F( RexIpIntfConfigFilterTest, DisabledConfigurationHidesAMissingEffectiveL3Mtu ) {
   serve();
   config()->enabledIs( false );
   filter()->effectiveL3MtuDel();
   Traces traces( 9 );
   filter()->handleMtuOrForwardingModel();
   config()->enabledIs( true );
   EXPECT_EQ( traces.take(),
              ( Texts{ "8 IpIntfConfigFilter::handleMtuOrForwardingModel Ethernet1",
                       "9 interface is not enabled",
                       "8 IpIntfConfigFilter::handleMtuOrForwardingModel Ethernet1",
                       "9 effectiveL3Mtu still not avaliable" } ) );
}

TEST_F( RexIpIntfConfigFilterTest, StandbyHidesEverythingElse ) {
   serve( 1 );
   filter()->intfStatusDel();
   config()->enabledIs( false );
   Traces traces( 9 );
   filter()->handleMtuOrForwardingModel();
   EXPECT_EQ( traces.take(), Texts{ "0 handleMtuOrForwardingModel early return for standby. smMode: 1" } );
   filter()->intfConfigDel();
   filter()->handleMtuOrForwardingModel(); // a missing configuration is hidden too
}

TEST_F( RexIpIntfConfigFilterDeath, MissingConfigurationIsFatal ) {
   serve();
   EXPECT_TRUE( filter()->intfConfigDel() );
   EXPECT_DEATH( filter()->handleAddr(), "Assertion `intfConfig\\(\\)' failed" );
   EXPECT_DEATH( filter()->handleMtuOrForwardingModel(), "Assertion `intfConfig\\(\\)' failed" );
}

TEST_F( RexIpIntfConfigFilterDeath, MissingConfigurationIsFatalForAddressesInStandbyToo ) {
   serve( 1 );
   filter()->intfConfigDel();
   EXPECT_DEATH( filter()->handleAddr(), "Assertion `intfConfig\\(\\)' failed" );
}

TEST_F( RexIpIntfConfigFilterDeath, ActiveSliceReliesOnTheStatusOfANewlyServedInterface ) {
   world.statusDir->intfStatusDel( eth1 );
   EXPECT_DEATH( serve(), "Assertion `ptr != nullptr' failed" );
}

// --- the walk

TEST_F( RexIpIntfConfigFilterTest, MtuIsWalkedOverTheSubinterfacesAndTheSyncedWalkIsReset ) {
   auto const sub = world.subIntf( "Ethernet1.1", eth1 );
   auto const other = world.subIntf( "Ethernet2.1", Netka::IntfId( "Ethernet2" ) );
   serve();
   EXPECT_EQ( world.walkResult( eth1 ), 1U );
   Traces traces( 8 );
   run();
   EXPECT_EQ( traces.take(),
              ( Texts{ "8 IpIntfConfigFilter::handleMtuOrForwardingModel Ethernet1",
                       "8 IpIntfConfigFilter::handleAddr Ethernet1 addr 00:00:00:00:00:00",
                       "8 Ethernet1 MTU synced." } ) );
   EXPECT_EQ( world.walkResult( eth1 ), 0U );
   EXPECT_EQ( status()->mtu(), 1500U );
   EXPECT_EQ( sub->mtu(), 1500U );
   EXPECT_EQ( world.subIntfLocals->intfStatusLocal( sub->intfId() )->mtu(), 1500U );
   EXPECT_EQ( other->mtu(), 0U );
}

TEST_F( RexIpIntfConfigFilterTest, WalkThatWaitsIsTracedWithItsResult ) {
   serve();
   run();
   Traces traces( 8 );
   config()->mtuIs( 9000 );
   EXPECT_EQ( traces.take(),
              ( Texts{ "8 IpIntfConfigFilter::handleMtuOrForwardingModel Ethernet1",
                       "8 IpIntfConfigFilter::handleAddr Ethernet1 addr 00:00:00:00:00:00",
                       "8 Ethernet1 syncMtu status 1, waiting completion." } ) );
}

TEST_F( RexIpIntfConfigFilterTest, MtuThatChangesDuringTheWalkIsWhatIsWritten ) {
   auto const sub = world.subIntf( "Ethernet1.1", eth1 );
   serve();
   config()->mtuIs( 9000 );
   run();
   EXPECT_EQ( status()->mtu(), 9000U );
   EXPECT_EQ( sub->mtu(), 9000U );
   config()->mtuIs( 0 );
   world.globalConfig->l3MtuIs( 2000 );
   run();
   EXPECT_EQ( status()->mtu(), 2000U );
   EXPECT_EQ( sub->mtu(), 2000U );
}

TEST_F( RexIpIntfConfigFilterTest, SyncedResultResetsTheWalkAndTheCallAfterThatStartsANewOne ) {
   serve();
   run();
   filter()->syncMtuSubIntfSm()->hasNotificationActiveIs( false ); // the result waits to be seen
   filter()->handleMtuOrForwardingModel();
   run();
   EXPECT_EQ( world.walkResult( eth1 ), 3U );
   filter()->handleMtuOrForwardingModel();
   EXPECT_EQ( world.walkResult( eth1 ), 0U );
   EXPECT_EQ( world.scheduler->pending(), 0U );
   filter()->handleMtuOrForwardingModel();
   EXPECT_EQ( world.walkResult( eth1 ), 1U );
}

TEST_F( RexIpIntfConfigFilterTest, ResultThatArrivesWithinTheHandlerIsResetThere ) {
   // Whoever hears that the walk began completes it at once: the walk's notification re-enters the handler.
   serve();
   run();
   auto const walk = world.walk( eth1 );
   Ear ear( { walk } );
   ear.when( "syncMtuResult", [&] { walk->syncMtuResultIs( Interface::SyncMtuResult::synced ); } );
   Traces traces( 8 );
   filter()->handleMtuOrForwardingModel();
   EXPECT_EQ( traces.take(),
              ( Texts{ "8 IpIntfConfigFilter::handleMtuOrForwardingModel Ethernet1",
                       "8 IpIntfConfigFilter::handleAddr Ethernet1 addr 00:00:00:00:00:00",
                       "8 IpIntfConfigFilter::handleMtuOrForwardingModel Ethernet1",
                       "8 IpIntfConfigFilter::handleAddr Ethernet1 addr 00:00:00:00:00:00",
                       "8 Ethernet1 MTU synced.",
                       "8 Ethernet1 syncMtu status 0, waiting completion." } ) );
   EXPECT_EQ( world.walkResult( eth1 ), 0U );
}

TEST_F( RexIpIntfConfigFilterTest, ResultsIdleAndWalkingDoNothing ) {
   serve();
   run();
   Traces traces( 9 );
   filter()->handleSyncMtuResult(); // 0
   world.walk( eth1 )->syncMtuResultIs( Interface::SyncMtuResult::walking );
   filter()->handleSyncMtuResult();
   EXPECT_EQ( traces.take(), Texts{} );
}

TEST_F( RexIpIntfConfigFilterTest, ResultThatAsksForARestartStartsANewWalk ) {
   serve();
   run();
   Traces traces( 8 );
   world.walk( eth1 )->syncMtuResultIs( Interface::SyncMtuResult::restartNeeded );
   EXPECT_EQ( traces.take(),
              ( Texts{ "8 IpIntfConfigFilter::handleMtuOrForwardingModel Ethernet1",
                       "8 IpIntfConfigFilter::handleAddr Ethernet1 addr 00:00:00:00:00:00",
                       "8 Ethernet1 syncMtu status 1, waiting completion." } ) );
   EXPECT_EQ( world.scheduler->pending(), 1U );
}

TEST_F( RexIpIntfConfigFilterTest, SubinterfaceThatComesDuringTheWalkGetsTheMtuToo ) {
   for ( int number = 1; number <= 100; ++number ) {
      world.subIntf( "Ethernet1." + std::to_string( number ), eth1 );
   }
   serve();
   world.scheduler->runOne();
   EXPECT_EQ( world.walkResult( eth1 ), 1U );
   auto const late = world.subIntf( "Ethernet1.500", eth1 );
   run();
   EXPECT_EQ( late->mtu(), 1500U );
   EXPECT_EQ( world.walkResult( eth1 ), 0U );
}

TEST_F( RexIpIntfConfigFilterTest, PortThatIsRemovedDuringTheWalkStopsIt ) {
   for ( int number = 1; number <= 100; ++number ) {
      world.subIntf( "Ethernet1." + std::to_string( number ), eth1 );
   }
   serve();
   world.scheduler->runOne();
   world.portDel( 10 );
   run();
   int written = 0;
   for ( auto const & [id, sub] : world.subIntfs->intfStatus() ) {
      written += sub->mtu() == 1500 ? 1 : 0;
   }
   EXPECT_EQ( written, 64 ); // one slice
}

TEST_F( RexIpIntfConfigFilterTest, InterfaceWithoutALocalStatusIsSyncedWithout ) {
   world.helper = nullptr;
   world.localDir->intfStatusLocalDel( eth1 );
   serve();
   run();
   EXPECT_EQ( status()->mtu(), 1500U );
   EXPECT_EQ( world.walkResult( eth1 ), 0U );
}

// --- setters and removers

TEST_F( RexIpIntfConfigFilterTest, SettersKeepAReactorThatHasThisNotifier ) {
   serve();
   run();
   Traces traces( 9 );
   auto const reactor = filter()->intfStatus();
   filter()->intfStatusIs( status() );
   filter()->effectiveL3MtuIs( filter()->effectiveL3Mtu()->notifier() );
   filter()->intfConfigIs( config() );
   filter()->syncMtuSubIntfSmIs( world.walk( eth1 ) );
   EXPECT_EQ( filter()->intfStatus(), reactor );
   filter()->intfStatusDel();
   traces.take();
   filter()->intfStatusIs( nullptr ); // empty stays empty
   EXPECT_EQ( traces.take(), Texts{} );
}

TEST_F( RexIpIntfConfigFilterTest, FirstBindingRunsWhatTheSetterMakesDueAndNoHandlerOfItsOwn ) {
   serve();
   run();
   filter()->intfStatusDel();
   Traces traces( 8 );
   filter()->intfStatusIs( status() );
   EXPECT_EQ( traces.take(),
              ( Texts{ "8 IpIntfConfigFilter::handleMtuOrForwardingModel Ethernet1",
                       "8 IpIntfConfigFilter::handleAddr Ethernet1 addr 00:00:00:00:00:00",
                       "8 Ethernet1 syncMtu status 1, waiting completion." } ) );
   auto const config1 = config();
   filter()->intfConfigDel();
   traces.take();
   filter()->intfConfigIs( config1 );
   EXPECT_EQ( traces.take(), Texts{} );
}

TEST_F( RexIpIntfConfigFilterTest, AnotherStatusIsFollowedByTheSameReactor ) {
   serve();
   run();
   auto const before = status();
   auto const reactor = filter()->intfStatus();
   world.statusIs( eth1 );
   filter()->intfStatusIs( status() );
   EXPECT_EQ( filter()->intfStatus(), reactor );
   EXPECT_EQ( reactor->notifier(), status() );
   EXPECT_EQ( status()->addr(), burnedIn );
   EXPECT_TRUE( status()->publisher()->hasSubscribers() );
   EXPECT_FALSE( before->publisher()->hasSubscribers() );
   run();
   EXPECT_EQ( status()->mtu(), 1500U );
}

TEST_F( RexIpIntfConfigFilterTest, AnotherConfigurationRunsBothHandlers ) {
   serve();
   run();
   auto const other = Corvo::makePtr< Interface::EthPhyIntfConfig >( eth1 );
   other->addrIs( configured );
   Traces traces( 8 );
   filter()->intfConfigIs( other );
   EXPECT_EQ( traces.take(),
              ( Texts{ "8 IpIntfConfigFilter::handleMtuOrForwardingModel Ethernet1",
                       "8 IpIntfConfigFilter::handleAddr Ethernet1 addr 02:00:00:00:02:02",
                       "8 Ethernet1 syncMtu status 1, waiting completion.",
                       "8 IpIntfConfigFilter::handleAddr Ethernet1 addr 02:00:00:00:02:02" } ) );
   EXPECT_EQ( status()->addr(), configured );
}

TEST_F( RexIpIntfConfigFilterTest, NullArgumentDropsTheReactorAsAZombieWithoutAParent ) {
   serve();
   auto const reactor = filter()->intfStatus();
   filter()->intfStatusIs( nullptr );
   EXPECT_EQ( filter()->intfStatus(), nullptr );
   EXPECT_TRUE( reactor->isZombie() );
   Traces traces( 9 );
   reactor->rexDoZombieReactors( false );
   status()->forwardingModelIs( 1 );
   EXPECT_EQ( traces.take(), Texts{} );
}

TEST_F( RexIpIntfConfigFilterTest, RemoversOfConfigurationAndWalkRunNoHandler ) {
   serve();
   run();
   Traces traces( 9 );
   auto const walkReactor = filter()->syncMtuSubIntfSmDel();
   EXPECT_TRUE( walkReactor->isZombie() );
   EXPECT_FALSE( walkReactor->hasNotificationActive() );
   auto const configReactor = filter()->intfConfigDel();
   EXPECT_TRUE( configReactor->isZombie() );
   EXPECT_FALSE( configReactor->hasNotificationActive() );
   EXPECT_EQ( traces.take(), Texts{} );
}

TEST_F( RexIpIntfConfigFilterTest, RemovedEffectiveL3MtuResetsTheWalk ) {
   serve();
   EXPECT_EQ( world.walkResult( eth1 ), 1U );
   EXPECT_TRUE( filter()->effectiveL3MtuDel() );
   EXPECT_EQ( world.walkResult( eth1 ), 0U );
}

TEST_F( RexIpIntfConfigFilterTest, L3MtuSmIsKeptForTheSameArgumentsAndStoppedWhenItIsRemoved ) {
   serve();
   auto const sm = filter()->l3MtuSm();
   auto const mtu = filter()->effectiveL3Mtu()->notifier();
   EXPECT_EQ( filter()->l3MtuSmIs( config(), world.globalConfig, mtu, world.capability ), sm );
   EXPECT_NE( filter()->l3MtuSmIs( config(), nullptr, mtu, world.capability ), sm );
   EXPECT_TRUE( filter()->l3MtuSm()->hasNotificationActive() );
   auto const removed = filter()->l3MtuSmDel();
   EXPECT_FALSE( removed->hasNotificationActive() );
   EXPECT_EQ( filter()->l3MtuSm(), nullptr );
   EXPECT_EQ( filter()->l3MtuSmDel(), nullptr );
}

TEST_F( RexIpIntfConfigFilterTest, L3MtuSmIsGoneBeforeTheNextOneIsMade ) {
   serve();
   auto const mtu = Corvo::makePtr< Interface::EffectiveL3Mtu >();
   Ear ear( { mtu } );
   std::optional< bool > isAlone;
   ear.when( "mtu", [&] { isAlone = Interface::L3MtuSm::newest()->older() == nullptr; } );
   filter()->l3MtuSmIs( config(), world.globalConfig, mtu, world.capability );
   EXPECT_EQ( isAlone, true );
}

// --- flags

TEST_F( RexIpIntfConfigFilterTest, ZombieFilterPassesItsFlagAndStaysSilent ) {
   serve();
   run();
   auto const served = filter();
   served->rexDoZombieReactors( true );
   EXPECT_FALSE( served->hasNotificationActive() );
   EXPECT_TRUE( served->intfConfig()->isZombie() );
   EXPECT_TRUE( served->intfStatus()->isZombie() );
   EXPECT_TRUE( served->effectiveL3Mtu()->isZombie() );
   EXPECT_TRUE( served->syncMtuSubIntfSm()->isZombie() );
   EXPECT_FALSE( served->l3MtuSm()->hasNotificationActive() );
   Traces traces( 9 );
   config()->addrIs( configured );
   status()->forwardingModelIs( 3 );
   EXPECT_EQ( traces.take(), Texts{} );
   EXPECT_EQ( status()->addr(), burnedIn );
}

TEST_F( RexIpIntfConfigFilterTest, FilterThatWakesFromZombieAlsoTakesItsInterfaceOutOfService ) {
   serve();
   auto const first = filter();
   first->rexDoZombieReactors( true );
   world.sm->ethConfigIs( config() ); // served by another filter now
   EXPECT_TRUE( world.serves( eth1 ) );
   first->rexDoZombieReactors( false );
   EXPECT_FALSE( world.serves( eth1 ) );
}

TEST_F( RexIpIntfConfigFilterTest, DroppedFilterSilencesWhatOutlivesIt ) {
   world.start();
   auto dropped = Corvo::makePtr< InterfaceWorld::Filter >( config(), world.sm.get() );
   auto const reactor = dropped->intfConfig();
   auto const walkReactor = dropped->syncMtuSubIntfSm();
   auto const mtuSm = dropped->l3MtuSm();
   dropped = nullptr;
   EXPECT_TRUE( reactor->isZombie() );
   EXPECT_TRUE( walkReactor->isZombie() );
   EXPECT_FALSE( mtuSm->hasNotificationActive() );
   EXPECT_FALSE( config()->publisher()->hasSubscribers() );
   reactor->rexDoZombieReactors( false ); // even awake, it has nobody to call
   config()->addrIs( configured );
   EXPECT_EQ( status()->addr(), burnedIn );
}

TEST_F( RexIpIntfConfigFilterTest, NewFilterIsActiveThroughout ) {
   serve();
   EXPECT_TRUE( filter()->hasNotificationActive() );
   EXPECT_TRUE( filter()->intfConfig()->hasNotificationActive() );
   EXPECT_TRUE( filter()->intfStatus()->hasNotificationActive() );
   EXPECT_TRUE( filter()->effectiveL3Mtu()->hasNotificationActive() );
   EXPECT_TRUE( filter()->syncMtuSubIntfSm()->hasNotificationActive() );
   EXPECT_TRUE( filter()->l3MtuSm()->hasNotificationActive() );
   EXPECT_FALSE( filter()->isZombie() );
}

} // namespace
} // namespace DaceFapNi
