// The reactors of the interface machine by themselves: without a notifier, without a parent, and as zombies that hear
// all the same.
#include "InterfaceWorld.h"

#include <gtest/gtest.h>

namespace DaceFapNi {
namespace {

constexpr Hardware::Dace::SystemPhyPortId port10{ 10 };
constexpr Hardware::Dace::SystemPhyPortId port11{ 11 };

class InterfaceReactorsTest : public testing::Test {
 protected:
   InterfaceWorld world;
   Netka::IntfId const eth1 = world.intf( "Ethernet1" );
   Netka::IntfId const eth2 = world.intf( "Ethernet2" );
   Corvo::Ptr< PortState > const port = world.port( 10, eth1 );

   InterfaceReactorsTest() {
      world.modeIs( 2 ); // active
      world.start();
      world.scheduler->runUntilIdle();
   }
   // A port that no directory knows.
   Corvo::Ptr< PortState > portOf( Netka::IntfId id ) const {
      auto const other = Corvo::makePtr< PortState >( port11 );
      other->intfIdIs( id );
      other->activeIs( true );
      return other;
   }
   // Whether something is traced meanwhile: each handler tells that it runs.
   static bool isHandled( std::function< void() > const & change ) {
      Traces traces( 9 );
      change();
      return !traces.take().empty();
   }
};

// ---- Of a port

TEST_F( InterfaceReactorsTest, aPortsReactorHandlesAnotherPortWhereThereIsOneAndItIsAwake ) {
   auto const reactor = world.sm->portState( port10 );
   reactor->notifierIs( portOf( eth2 ) );
   EXPECT_TRUE( world.serves( eth2 ) );
   EXPECT_FALSE( isHandled( [&] { reactor->notifierIs( nullptr ); } ) );
   EXPECT_EQ( reactor->notifier(), nullptr );
   reactor->notifierIs( port );
   reactor->rexDoZombieReactors( true );
   EXPECT_FALSE( isHandled( [&] { reactor->notifierIs( portOf( eth2 ) ); } ) );
}

TEST_F( InterfaceReactorsTest, aPortsReactorIsDeafAsAZombieAndMuteWithoutAParent ) {
   auto const reactor = world.sm->portState( port10 );
   EXPECT_TRUE( isHandled( [&] { port->portGenIdIs( 1 ); } ) );
   reactor->rexDoZombieReactors( true );
   reactor->hasNotificationActiveIs( true );
   EXPECT_FALSE( isHandled( [&] { port->portGenIdIs( 2 ); } ) );
   reactor->rexDoZombieReactors( false );
   reactor->parentIs( nullptr );
   EXPECT_FALSE( isHandled( [&] { port->portGenIdIs( 3 ); } ) );
}

TEST_F( InterfaceReactorsTest, aPortsReactorThatFollowsNothingStaysAsActiveAsItWas ) {
   auto const reactor = world.sm->portState( port10 );
   reactor->notifierIs( nullptr );
   reactor->parentIs( nullptr );
   reactor->rexDoZombieReactors( true );
   EXPECT_TRUE( reactor->isZombie() );
   EXPECT_TRUE( reactor->hasNotificationActive() );
}

TEST_F( InterfaceReactorsTest, aPortsReactorHearsTheNextPortThoughItWasTakenOff ) {
   auto const reactor = world.sm->portState( port10 );
   reactor->isRegisteredNotifieeIs( false );
   EXPECT_FALSE( isHandled( [&] { port->portGenIdIs( 1 ); } ) );
   auto const other = portOf( eth2 );
   reactor->notifierIs( other );
   EXPECT_TRUE( isHandled( [&] { other->portGenIdIs( 1 ); } ) );
}

TEST_F( InterfaceReactorsTest, aPortThatNoDirectoryKnowsIsTakenIn ) {
   world.sm->portStateIs( portOf( eth2 ) );
   EXPECT_TRUE( world.sm->portStateHas( port11 ) );
   EXPECT_TRUE( world.serves( eth2 ) );
}

TEST_F( InterfaceReactorsTest, withoutADirectoryOfPortsAPortIsTakenInByHand ) {
   world.ports = nullptr;
   world.sm = L3IntfSm::L3IntfSmIs( world.arguments() );
   EXPECT_FALSE( world.serves( eth2 ) );
   world.sm->portStateIs( portOf( eth2 ) );
   EXPECT_TRUE( world.sm->portStateHas( port11 ) );
   EXPECT_TRUE( world.serves( eth2 ) );
}

// ---- Of a filter

TEST_F( InterfaceReactorsTest, anInterfaceWithoutAFilterHasNothingToFollow ) {
   EXPECT_EQ( world.sm->ipIntfConfigFilter( eth1 ), world.config( eth1 ) );
   EXPECT_EQ( world.sm->ipIntfConfigFilter( eth2 ), nullptr );
}

TEST_F( InterfaceReactorsTest, aDirectoryOfAnotherNameReplacesTheOneThatIsThere ) {
   auto const local = world.sm->managedIntfStatusLocalDir();
   EXPECT_EQ( world.sm->managedIntfStatusLocalDirIs( "Managed ISLs" ), local );
   auto const other = world.sm->managedIntfStatusLocalDirIs( "Others" );
   EXPECT_NE( other, local );
   EXPECT_EQ( world.sm->managedIntfStatusLocalDir(), other );
}

TEST_F( InterfaceReactorsTest, aFilterThatFollowsNothingStaysAsActiveAsItWas ) {
   auto const filter = world.filter( eth1 );
   filter->notifierIs( nullptr );
   filter->parentIs( nullptr );
   filter->rexDoZombieReactors( true );
   EXPECT_TRUE( filter->isZombie() );
   EXPECT_TRUE( filter->hasNotificationActive() );
   filter->notifierIs( world.config( eth1 ) );
}

TEST_F( InterfaceReactorsTest, aZombieFilterIsInactiveAndSoIsTheMachineOfItsMtu ) {
   auto const filter = world.filter( eth1 );
   filter->parentIs( nullptr ); // its interface stays in service
   filter->rexDoZombieReactors( true );
   EXPECT_FALSE( filter->hasNotificationActive() );
   EXPECT_FALSE( filter->l3MtuSm()->hasNotificationActive() );
   filter->rexDoZombieReactors( false );
   EXPECT_TRUE( filter->l3MtuSm()->hasNotificationActive() );
}

TEST_F( InterfaceReactorsTest, whatAFilterFollowsMayGoWhileItsReactorStays ) {
   auto const filter = world.filter( eth1 );
   EXPECT_FALSE(
      isHandled( [&] { filter->intfStatus()->notifierIs( Corvo::Ptr< Interface::EthPhyIntfStatus >() ); } ) );
   filter->syncMtuSubIntfSm()->notifier()->syncMtuResultIs( Interface::SyncMtuResult::walking );
   EXPECT_FALSE( filter->handleAddr() );
   EXPECT_EQ( world.walkResult( eth1 ), Interface::SyncMtuResult::idle );
   filter->intfStatus()->notifierIs( world.status( eth1 ) );
   EXPECT_TRUE( filter->handleAddr() );
   // Nothing is walked with the MTU of nobody, nor to the end of a walk of nobody.
   auto const walk = filter->syncMtuSubIntfSm()->notifier();
   filter->effectiveL3Mtu()->notifierIs( Corvo::Ptr< Interface::EffectiveL3Mtu >() );
   Traces traces( 9 );
   filter->handleMtuOrForwardingModel();
   EXPECT_EQ( traces.take().back(), "9 effectiveL3Mtu still not avaliable" );
   filter->syncMtuSubIntfSm()->notifierIs( Corvo::Ptr< Interface::SyncMtuSubIntfWalkSm >() );
   filter->handleSyncMtuResult();
   EXPECT_EQ( traces.take(), Texts{} );
   filter->syncMtuSubIntfSm()->notifierIs( walk );
}

TEST_F( InterfaceReactorsTest, aFiltersReactorIsDeafAsAZombieAndMuteWithoutAParent ) {
   auto const filter = world.filter( eth1 );
   auto const reactor = filter->intfStatus();
   EXPECT_TRUE( isHandled( [&] { world.status( eth1 )->forwardingModelIs( 1 ); } ) );
   reactor->rexDoZombieReactors( true );
   reactor->hasNotificationActiveIs( true );
   EXPECT_FALSE( isHandled( [&] { world.status( eth1 )->forwardingModelIs( 2 ); } ) );
   EXPECT_FALSE( isHandled( [&] { reactor->notifierIs( world.status( eth2 ) ); } ) );
   reactor->rexDoZombieReactors( false );
   reactor->parentIs( nullptr );
   EXPECT_FALSE( isHandled( [&] { reactor->notifierIs( world.status( eth1 ) ); } ) );
}

TEST_F( InterfaceReactorsTest, aFiltersReactorThatFollowsNothingStaysAsActiveAsItWas ) {
   auto const filter = world.filter( eth1 );
   filter->intfStatus()->notifierIs( Corvo::Ptr< Interface::EthPhyIntfStatus >() );
   filter->intfStatus()->rexDoZombieReactors( true );
   EXPECT_TRUE( filter->intfStatus()->hasNotificationActive() );
   filter->intfStatus()->rexDoZombieReactors( false );
   filter->intfStatus()->notifierIs( world.status( eth1 ) );
}

TEST_F( InterfaceReactorsTest, aFilterOfAnInterfaceWhoseConfigurationGoesEndsTheProcess ) {
   world.configDir->intfConfigDel( eth2 );
   EXPECT_DEATH( world.sm->ipIntfConfigFilterIs( Corvo::makePtr< Interface::EthPhyIntfConfig >( eth2 ) ),
                 "Assertion `intfConfig\\(\\)' failed" );
}

} // namespace
} // namespace DaceFapNi
