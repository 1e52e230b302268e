// When the managed directories change as ports come and go, and what goes with the interface machine and its filters.
#include "InterfaceWorld.h"

#include <gtest/gtest.h>

namespace DaceFapNi {
namespace {

constexpr Hardware::Dace::SystemPhyPortId port10{ 10 };

class ManagedDirectoriesTest : public testing::Test {
 protected:
   InterfaceWorld world;
   Netka::IntfId const eth1 = world.intf( "Ethernet1" );
   Netka::IntfId const eth2 = world.intf( "Ethernet2" );

   Ear directories() const {
      return Ear( { world.sm->managedIntfStatusDir(), world.sm->managedIntfStatusLocalDir() } );
   }
};

// ---- The directories

TEST_F( ManagedDirectoriesTest, aReplacedStatusEntersAtTheNextChangeOfThePort ) {
   auto const port = world.port( 10, eth1 );
   world.start();
   auto const before = world.status( eth1 );
   world.statusIs( eth1 );
   auto const local = Corvo::makePtr< Interface::EthPhyIntfStatusLocal >( eth1 );
   world.localDir->intfStatusLocalIs( local );
   ASSERT_NE( world.status( eth1 ), before );
   EXPECT_EQ( world.sm->managedIntfStatusDir()->intfStatus( eth1 ), before );
   port->portGenIdIs( 1 );
   EXPECT_EQ( world.sm->managedIntfStatusDir()->intfStatus( eth1 ), world.status( eth1 ) );
   EXPECT_EQ( world.sm->managedIntfStatusLocalDir()->intfStatusLocal( eth1 ), local );
}

TEST_F( ManagedDirectoriesTest, theStatusEntersAndLeavesBeforeTheLocalStatus ) {
   world.start();
   auto ear = directories();
   world.port( 10, eth1 );
   Texts const inOrder{ "Managed Intfs intfStatus Ethernet1", "Managed ISLs intfStatusLocal Ethernet1" };
   EXPECT_EQ( ear.take(), inOrder );
   world.portDel( 10 );
   EXPECT_EQ( ear.take(), inOrder );
}

TEST_F( ManagedDirectoriesTest, anInterfaceIsServedBeforeItEntersAndOutOfServiceBeforeItLeaves ) {
   world.start();
   auto ear = directories();
   std::optional< bool > served;
   ear.when( "Managed Intfs intfStatus Ethernet1", [&] { served = world.serves( eth1 ); } );
   world.port( 10, eth1 );
   EXPECT_EQ( served, true );
   ear.when( "Managed Intfs intfStatus Ethernet1", [&] { served = world.sm->ethConfig( eth1 ) != nullptr; } );
   world.portDel( 10 );
   EXPECT_EQ( served, false );
}

TEST_F( ManagedDirectoriesTest, theMachineIsNoZombieYetWhileItsPortsBecomeSo ) {
   world.port( 10, eth1 );
   world.start();
   auto ear = directories();
   std::optional< bool > zombie;
   ear.when( "Managed Intfs intfStatus Ethernet1", [&] { zombie = world.sm->isZombie(); } );
   world.sm->rexDoZombieReactors( true );
   EXPECT_EQ( zombie, false );
   EXPECT_TRUE( world.sm->isZombie() );
}

// ---- Whoever hears of a filter's first writes may take its interface out of service

TEST_F( ManagedDirectoriesTest, aPortThatGoesAsItsInterfaceComesIntoServiceLeavesNothingBehind ) {
   auto const port = world.port( 10, eth1, false );
   world.start();
   Ear ear( { world.status( eth1 ) } );
   ear.when( "Ethernet1 routedAddr", [&] { world.portDel( 10 ); } );
   port->activeIs( true );
   port->portGenIdIs( 1 );
   EXPECT_FALSE( world.sm->portStateHas( port10 ) );
   EXPECT_FALSE( world.serves( eth1 ) );
   EXPECT_EQ( world.sm->ethConfig( eth1 ), nullptr );
   EXPECT_FALSE( world.sm->managedIntfStatusDir()->intfStatusHas( eth1 ) );
   EXPECT_FALSE( world.sm->managedIntfStatusLocalDir()->intfStatusLocalHas( eth1 ) );
   world.scheduler->runUntilIdle();
   EXPECT_EQ( world.status( eth1 )->mtu(), 0U ); // its walk went with it
   world.port( 10, eth1 );                       // and it can come again
   EXPECT_TRUE( world.serves( eth1 ) );
   EXPECT_TRUE( world.manages( eth1 ) );
}

TEST_F( ManagedDirectoriesTest, aNewPortThatGoesAsItsInterfaceComesIntoServiceLeavesNothingBehind ) {
   world.start();
   Ear ear( { world.status( eth1 ) } );
   ear.when( "Ethernet1 routedAddr", [&] { world.portDel( 10 ); } );
   world.port( 10, eth1 );
   EXPECT_FALSE( world.sm->portStateHas( port10 ) );
   EXPECT_FALSE( world.serves( eth1 ) );
   EXPECT_FALSE( world.manages( eth1 ) );
   EXPECT_EQ( world.sm->ethConfig( eth1 ), nullptr );
}

TEST_F( ManagedDirectoriesTest, anInterfaceThatGoesAndComesMeanwhileHasOneFilter ) {
   auto const port = world.port( 10, eth1, false );
   world.start();
   Corvo::Ptr< InterfaceWorld::Filter > second;
   Ear ear( { world.status( eth1 ) } );
   ear.when( "Ethernet1 routedAddr", [&] {
      world.portDel( 10 );
      world.port( 11, eth1 );
      second = world.filter( eth1 );
   } );
   port->activeIs( true );
   port->portGenIdIs( 1 );
   ASSERT_TRUE( second );
   EXPECT_EQ( world.filter( eth1 ), second );
   EXPECT_FALSE( second->isZombie() );
   EXPECT_TRUE( world.manages( eth1 ) );
   EXPECT_EQ( world.sm->ethConfig( eth1 ), world.config( eth1 ) );
}

TEST_F( ManagedDirectoriesTest, aPortThatComesAgainMeanwhileHasTheLaterReactor ) {
   world.start();
   Corvo::Ptr< PortState > second;
   Ear ear( { world.status( eth1 ) } );
   ear.when( "Ethernet1 routedAddr", [&] {
      world.portDel( 10 );
      second = world.port( 10, eth1 );
   } );
   world.port( 10, eth1 );
   ASSERT_TRUE( second );
   ASSERT_TRUE( world.sm->portState( port10 ) );
   EXPECT_EQ( world.sm->portState( port10 )->notifier(), second );
   EXPECT_FALSE( world.sm->portState( port10 )->isZombie() );
   EXPECT_TRUE( world.serves( eth1 ) ); // the first reactor's end took nothing away
   EXPECT_TRUE( world.manages( eth1 ) );
   world.portDel( 10 );
   EXPECT_FALSE( world.serves( eth1 ) );
}

TEST_F( ManagedDirectoriesTest, withoutAHelperNobodyEntersThem ) {
   world.helper = nullptr;
   world.port( 10, eth1 );
   world.start();
   world.sm->doUpdateManagedIntfStatusDirs( eth1, true );
   EXPECT_TRUE( world.serves( eth1 ) );
   EXPECT_FALSE( world.manages( eth1 ) );
}

TEST_F( ManagedDirectoriesTest, aReactorThatIsGivenItsPortAgainHandlesItNoMore ) {
   auto const port = world.port( 10, eth1 );
   world.start();
   Traces traces( 9 );
   world.sm->portState( port10 )->notifierIs( port );
   EXPECT_EQ( traces.take(), Texts{} );
}

TEST_F( ManagedDirectoriesTest, theMachineHasItsTypesName ) {
   world.start();
   EXPECT_EQ( world.sm->typeData().name(), "DaceFapNi::L3IntfSm" );
}

// ---- From the construction on

TEST_F( ManagedDirectoriesTest, theMachineHearsItsInputsBeforeItIsActivated ) {
   world.modeIs( 1 );
   world.port( 10, eth1 );
   world.sm = Corvo::makePtr< L3IntfSm >( world.arguments() );
   ASSERT_FALSE( world.sm->hasNotificationActive() );
   world.modeIs( 2 );
   EXPECT_EQ( world.status( eth1 )->addr(), burnedIn );
   world.port( 11, eth2 );
   EXPECT_TRUE( world.serves( eth2 ) );
}

// ---- The zombie flag

TEST_F( ManagedDirectoriesTest, aPortThatIsSetAgainGetsTheMachinesFlag ) {
   auto const port = world.port( 10, eth1 );
   world.start();
   auto const reactor = world.sm->portState( port10 );
   reactor->rexDoZombieReactors( true );
   world.sm->portStateIs( port );
   EXPECT_FALSE( reactor->isZombie() );
   world.sm->rexDoZombieReactors( true );
   reactor->rexDoZombieReactors( false );
   world.sm->portStateIs( port );
   EXPECT_TRUE( reactor->isZombie() );
}

TEST_F( ManagedDirectoriesTest, aFilterThatIsSetGetsTheMachinesFlag ) {
   world.port( 10, eth1 );
   world.start();
   auto const filter = world.filter( eth1 );
   world.sm->markAndSweepFlagSet( true ); // the flag alone: the filter is still there, and awake
   world.sm->ipIntfConfigFilterIs( world.config( eth1 ) );
   EXPECT_TRUE( filter->isZombie() );
   world.sm->ipIntfConfigFilterIs( world.config( eth2 ) );
   EXPECT_TRUE( world.filter( eth2 )->isZombie() );
}

TEST_F( ManagedDirectoriesTest, whatAZombieFilterIsGivenToFollowIsAZombieToo ) {
   world.port( 10, eth1 );
   world.modeIs( 1 );
   world.start();
   auto const filter = world.filter( eth1 );
   filter->rexDoZombieReactors( true );
   filter->intfConfigIs( world.config( eth2 ) );
   EXPECT_TRUE( filter->intfConfig()->isZombie() );
   filter->intfStatusIs( world.status( eth2 ) );
   EXPECT_TRUE( filter->intfStatus()->isZombie() );
   filter->effectiveL3MtuIs( Corvo::makePtr< Interface::EffectiveL3Mtu >() );
   EXPECT_TRUE( filter->effectiveL3Mtu()->isZombie() );
   auto const walk = [&] {
      return Interface::syncMtuSubIntfWalkSmFactory( world.scheduler, eth1, world.subIntfs, world.subIntfLocals );
   };
   filter->syncMtuSubIntfSmIs( walk() );
   EXPECT_TRUE( filter->syncMtuSubIntfSm()->isZombie() );
   // The same where there was none before.
   filter->intfConfigDel();
   filter->syncMtuSubIntfSmDel();
   filter->syncMtuSubIntfSmIs( walk() );
   EXPECT_TRUE( filter->syncMtuSubIntfSm()->isZombie() );
   filter->intfConfigIs( world.config( eth1 ) );
   EXPECT_TRUE( filter->intfConfig()->isZombie() );
}

// ---- Notifications off

TEST_F( ManagedDirectoriesTest, whatAFilterFollowsIsSilentOnceTheFilterIsInactive ) {
   world.port( 10, eth1 );
   world.start();
   world.scheduler->runUntilIdle();
   auto const filter = world.filter( eth1 );
   filter->hasNotificationActiveIs( false );
   Traces traces( 9 );
   filter->effectiveL3Mtu()->notifier()->mtuIs( 4000 );
   world.config( eth1 )->addrIs( configured );
   world.config( eth1 )->mtuIs( 9000 ); // and the machine of the MTU as well
   world.status( eth1 )->forwardingModelIs( 1 );
   filter->syncMtuSubIntfSm()->notifier()->syncMtuResultIs( Interface::SyncMtuResult::SyncMtuResultType{ 2 } );
   EXPECT_EQ( traces.take(), Texts{} );
   EXPECT_EQ( filter->effectiveL3Mtu()->notifier()->mtu(), 4000u );
   EXPECT_FALSE( filter->effectiveL3Mtu()->hasNotificationActive() );
   EXPECT_FALSE( filter->syncMtuSubIntfSm()->hasNotificationActive() );
   EXPECT_FALSE( filter->l3MtuSm()->hasNotificationActive() );
}

// Becoming a zombie turns notifications off, too: here it was one already, with its notifications on.
TEST_F( ManagedDirectoriesTest, whatIsRemovedIsSilentThoughItWasAZombie ) {
   world.port( 10, eth1 );
   world.start();
   auto const filter = world.filter( eth1 );
   auto const config = filter->intfConfig();
   config->markAndSweepFlagSet( true );
   filter->intfConfigDel();
   EXPECT_FALSE( config->hasNotificationActive() );
   filter->markAndSweepFlagSet( true );
   world.sm->ipIntfConfigFilterDel( eth1 );
   EXPECT_FALSE( filter->hasNotificationActive() );
   auto const reactor = world.sm->portState( port10 );
   reactor->markAndSweepFlagSet( true );
   world.sm->portStateDel( port10 );
   EXPECT_FALSE( reactor->hasNotificationActive() );
}

// ---- What outlives its owner is alone

TEST_F( ManagedDirectoriesTest, reactorsOfAMachineThatIsGoneHaveNoParent ) {
   world.port( 10, eth1 );
   world.start();
   auto const reactor = world.sm->portState( port10 );
   auto const filter = world.filter( eth1 );
   EXPECT_EQ( reactor->parent(), world.sm.get() );
   world.sm = nullptr;
   EXPECT_EQ( reactor->parent(), nullptr );
   EXPECT_TRUE( reactor->isZombie() );
   EXPECT_FALSE( reactor->hasNotificationActive() );
   EXPECT_TRUE( filter->isZombie() );
}

TEST_F( ManagedDirectoriesTest, aFilterOfAMachineThatIsGoneHasNoParent ) {
   world.port( 10, eth1 );
   world.start();
   auto const filter = world.filter( eth1 );
   EXPECT_EQ( filter->parent(), world.sm.get() );
   world.sm->markAndSweepFlagSet( true ); // the flag alone: its filters are still there when it goes
   world.sm = nullptr;
   EXPECT_EQ( filter->parent(), nullptr );
   EXPECT_FALSE( filter->hasNotificationActive() );
}

TEST_F( ManagedDirectoriesTest, whatAFilterFollowedHasNoParentOnceItIsGone ) {
   world.port( 10, eth1 );
   world.start();
   auto filter = world.filter( eth1 );
   auto const config = filter->intfConfig();
   auto const status = filter->intfStatus();
   auto const mtu = filter->effectiveL3Mtu();
   auto const walk = filter->syncMtuSubIntfSm();
   auto const mtuSm = filter->l3MtuSm();
   EXPECT_EQ( status->parent(), filter.get() );
   world.sm->ipIntfConfigFilterDel( eth1 );
   filter = nullptr;
   EXPECT_EQ( config->parent(), nullptr );
   EXPECT_EQ( status->parent(), nullptr );
   EXPECT_EQ( mtu->parent(), nullptr );
   EXPECT_EQ( walk->parent(), nullptr );
   EXPECT_TRUE( walk->isZombie() );
   EXPECT_FALSE( walk->hasNotificationActive() );
   EXPECT_FALSE( mtuSm->hasNotificationActive() );
}

} // namespace
} // namespace DaceFapNi
