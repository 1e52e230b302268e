// Which interfaces are served, and what the managed directories hold.
#include "InterfaceWorld.h"

#include <gtest/gtest.h>

namespace DaceFapNi {
namespace {

class L3IntfSmTest : public testing::Test {
 protected:
   InterfaceWorld world;
   Netka::IntfId const eth1 = world.intf( "Ethernet1" );
   Netka::IntfId const eth2 = world.intf( "Ethernet2" );
};

using L3IntfSmDeath = L3IntfSmTest;

TEST_F( L3IntfSmTest, ActivePortsBringTheirInterfacesIntoServiceAtStart ) {
   world.port( 10, eth1 );
   world.start();
   EXPECT_TRUE( world.sm->initialized() );
   EXPECT_TRUE( world.serves( eth1 ) );
   EXPECT_TRUE( world.manages( eth1 ) );
   EXPECT_EQ( world.sm->ethConfig( eth1 ), world.config( eth1 ) );
   EXPECT_EQ( world.sm->ipIntfConfigFilter( eth1 ), world.config( eth1 ) );
   EXPECT_FALSE( world.serves( eth2 ) );
   EXPECT_FALSE( world.manages( eth2 ) );
}

TEST_F( L3IntfSmTest, ManagedDirectoriesHaveTheirNamesAndReferToTheStatusEntities ) {
   world.port( 10, eth1 );
   world.start();
   EXPECT_EQ( world.sm->managedIntfStatusDir()->name(), "Managed Intfs" );
   EXPECT_EQ( world.sm->managedIntfStatusLocalDir()->name(), "Managed ISLs" );
   EXPECT_EQ( world.sm->managedIntfStatusDir()->intfStatus( eth1 ), world.status( eth1 ) );
   EXPECT_EQ( world.sm->managedIntfStatusLocalDir()->intfStatusLocal( eth1 ), world.local( eth1 ) );
   EXPECT_EQ( world.status( eth1 )->parent(), world.statusDir.get() );
   EXPECT_EQ( world.local( eth1 )->parent(), world.localDir.get() );
}

TEST_F( L3IntfSmTest, HelperStartsOnDirectoriesThatHoldEveryActiveConfiguredPort ) {
   world.port( 10, eth1 );
   world.port( 11, eth2 );
   std::size_t held = 0;
   std::size_t heldLocal = 0;
   Ear ear( { world.helper } );
   ear.when( "started", [&] {
      held = world.helper->managedIntfStatusDir()->intfStatus().size();
      heldLocal = world.helper->managedIntfStatusLocalDir()->intfStatusLocal().size();
   } );
   world.start();
   EXPECT_EQ( ear.take(), Texts{ "started" } );
   EXPECT_EQ( held, 2U );
   EXPECT_EQ( heldLocal, 2U );
   EXPECT_EQ( world.helper->managedIntfStatusDir(), world.sm->managedIntfStatusDir() );
}

TEST_F( L3IntfSmTest, StartIsTracedInItsOrder ) {
   world.modeIs( 1 );
   world.port( 10, eth1 );
   Traces traces( 9 );
   world.start();
   EXPECT_EQ( traces.take(),
              ( Texts{
                 "8 L3IntfSm::handleInitialized adding ports to collection",
                 "9 L3Sm:handleInitialized handling port Ethernet1",
                 "5 handlePortState Ethernet1 active true",
                 "5 handleInitialized handle: Ethernet1",
                 "0 handleMtuOrForwardingModel early return for standby. smMode: 1", // intfStatusIs
                 "0 handleMtuOrForwardingModel early return for standby. smMode: 1", // effectiveL3MtuIs
                 "0 handleMtuOrForwardingModel early return for standby. smMode: 1", // the MTU is computed
                 "5  Intf: Ethernet1 l3MtuSm created.",
                 "0 handleMtuOrForwardingModel early return for standby. smMode: 1",
                 "8 IpIntfConfigFilter::handleAddr Ethernet1 addr 00:00:00:00:00:00",
                 "0 handleAddr early return for standby. smMode: 1",
                 "5 doUpdateManagedIntfStatusDirs Ethernet1 addOrUpdate true",
                 // The port's reactor handles it once more, to no effect.
                 "5 handlePortState Ethernet1 active true",
                 "5 doUpdateManagedIntfStatusDirs Ethernet1 addOrUpdate true",
              } ) );
}

TEST_F( L3IntfSmTest, SecondPassOfAPortAtStartChangesNothing ) {
   world.port( 10, eth1 );
   Ear ear( { world.status( eth1 ), world.local( eth1 ) } );
   world.start();
   auto const filter = world.filter( eth1 );
   EXPECT_EQ( ear.take(), ( Texts{ "Ethernet1 routedAddr", "Ethernet1 addr", "Ethernet1 maxMtu" } ) );
   world.sm->handlePortState( world.ports->portState( Hardware::Dace::SystemPhyPortId{ 10 } ) );
   EXPECT_EQ( world.filter( eth1 ), filter );
   EXPECT_EQ( ear.take(), Texts{} );
}

TEST_F( L3IntfSmTest, InactivePortGetsAReactorAndNoFilterUntilItsGenerationMovesWhileActive ) {
   auto const port = world.port( 10, eth1, false );
   world.start();
   EXPECT_TRUE( world.sm->portStateHas( Hardware::Dace::SystemPhyPortId{ 10 } ) );
   EXPECT_FALSE( world.serves( eth1 ) );
   port->activeIs( true ); // not what is followed
   EXPECT_FALSE( world.serves( eth1 ) );
   port->portGenIdIs( 1 );
   EXPECT_TRUE( world.serves( eth1 ) );
   EXPECT_TRUE( world.manages( eth1 ) );
}

TEST_F( L3IntfSmTest, PortWithoutAConfigurationIsSkippedWithoutTrace ) {
   world.start();
   Traces traces( 9 );
   world.port( 10, Netka::IntfId( "Ethernet9" ) );
   EXPECT_EQ( traces.take(), Texts{} );
   EXPECT_TRUE( world.sm->portStateHas( Hardware::Dace::SystemPhyPortId{ 10 } ) );
   EXPECT_FALSE( world.serves( Netka::IntfId( "Ethernet9" ) ) );
}

TEST_F( L3IntfSmTest, PortThatStopsBeingActiveChangesNothing ) {
   auto const port = world.port( 10, eth1 );
   world.start();
   auto const filter = world.filter( eth1 );
   Traces traces( 9 );
   port->activeIs( false );
   port->portGenIdIs( 1 );
   EXPECT_EQ( traces.take(), Texts{} );
   EXPECT_EQ( world.filter( eth1 ), filter );
   EXPECT_TRUE( world.manages( eth1 ) );
}

TEST_F( L3IntfSmTest, PortThatComesAndGoesBeforeTheStartIsPassedOver ) {
   Texts seen;
   Rex::traceLevelIs( "DaceFapNiL3Sm", 8 );
   Rex::traceSinkIs( [&]( Rex::TraceRecord const & record ) {
      seen.push_back( record.text );
      if ( seen.size() == 1 ) { // the machine listens, and has not begun
         world.port( 10, eth1 );
         world.portDel( 10 );
      }
   } );
   world.start();
   Rex::traceSinkIs( {} );
   Rex::traceLevelIs( "DaceFapNiL3Sm", -1 );
   EXPECT_EQ( seen, Texts{ "L3IntfSm::handleInitialized adding ports to collection" } );
   EXPECT_FALSE( world.sm->portStateHas( Hardware::Dace::SystemPhyPortId{ 10 } ) );
}

TEST_F( L3IntfSmTest, RemovedPortTakesItsInterfaceOutOfService ) {
   world.port( 10, eth1 );
   world.port( 11, eth2 );
   world.start();
   Traces traces( 5 );
   world.portDel( 10 );
   EXPECT_EQ(
      traces.take(),
      ( Texts{ "5 handlePortStateDelete Ethernet1", "5 doUpdateManagedIntfStatusDirs Ethernet1 addOrUpdate false" } ) );
   EXPECT_FALSE( world.serves( eth1 ) );
   EXPECT_FALSE( world.manages( eth1 ) );
   EXPECT_EQ( world.sm->ethConfig( eth1 ), nullptr );
   EXPECT_FALSE( world.sm->portStateHas( Hardware::Dace::SystemPhyPortId{ 10 } ) );
   EXPECT_TRUE( world.serves( eth2 ) );
   EXPECT_TRUE( world.manages( eth2 ) );
}

TEST_F( L3IntfSmTest, PortThatComesAndGoesAfterStartIsServedMeanwhile ) {
   world.start();
   world.port( 10, eth1 );
   EXPECT_TRUE( world.serves( eth1 ) );
   world.portDel( 10 );
   EXPECT_FALSE( world.serves( eth1 ) );
   world.port( 10, eth1 );
   EXPECT_TRUE( world.serves( eth1 ) );
   EXPECT_TRUE( world.manages( eth1 ) );
}

TEST_F( L3IntfSmTest, RemovedPortOfAnInterfaceThatWasNeverServedRemovesNothing ) {
   world.port( 10, eth1, false );
   world.port( 11, eth2 );
   world.start();
   Ear ear( { world.sm->managedIntfStatusDir(), world.sm->managedIntfStatusLocalDir() } );
   world.portDel( 10 );
   EXPECT_EQ( ear.take(), Texts{} );
   EXPECT_EQ( world.sm->ethConfigDel( eth1 ), nullptr );
   EXPECT_TRUE( world.manages( eth2 ) );
}

TEST_F( L3IntfSmTest, ReplacedPortMovesTheReactorToTheNewEntity ) {
   auto const before = world.port( 10, eth1 );
   world.start();
   auto const reactor = world.sm->portState( Hardware::Dace::SystemPhyPortId{ 10 } );
   auto const after = world.port( 10, eth2 );
   EXPECT_EQ( world.sm->portState( Hardware::Dace::SystemPhyPortId{ 10 } ), reactor );
   EXPECT_EQ( reactor->notifier(), after );
   EXPECT_TRUE( world.serves( eth2 ) );
   EXPECT_TRUE( world.serves( eth1 ) ); // nothing is undone
   EXPECT_FALSE( before->publisher()->hasSubscribers() );
}

TEST_F( L3IntfSmTest, WithoutAHelperFiltersComeAndGoAndTheDirectoriesStayEmpty ) {
   world.helper = nullptr;
   world.port( 10, eth1 );
   Traces traces( 5 );
   world.start();
   for ( auto const & text : traces.take() ) {
      EXPECT_EQ( text.find( "doUpdateManagedIntfStatusDirs" ), std::string::npos ) << text;
   }
   EXPECT_TRUE( world.serves( eth1 ) );
   ASSERT_TRUE( world.sm->managedIntfStatusDir() );
   ASSERT_TRUE( world.sm->managedIntfStatusLocalDir() );
   EXPECT_TRUE( world.sm->managedIntfStatusDir()->intfStatus().empty() );
   EXPECT_TRUE( world.sm->managedIntfStatusLocalDir()->intfStatusLocal().empty() );
   world.portDel( 10 );
   EXPECT_FALSE( world.serves( eth1 ) );
}

TEST_F( L3IntfSmTest, WithoutAHelperAMissingLocalStatusIsNoFailure ) {
   world.helper = nullptr;
   world.localDir->intfStatusLocalDel( eth1 );
   world.port( 10, eth1 );
   world.start();
   EXPECT_TRUE( world.serves( eth1 ) );
   EXPECT_EQ( world.filter( eth1 )->intfStatusLocal(), nullptr );
}

TEST_F( L3IntfSmTest, MissingStatusInStandbyIsNotEnteredAndItsLocalStatusIs ) {
   world.modeIs( 1 );
   world.statusDir->intfStatusDel( eth1 );
   world.port( 10, eth1 );
   world.start();
   EXPECT_TRUE( world.serves( eth1 ) );
   EXPECT_FALSE( world.sm->managedIntfStatusDir()->intfStatusHas( eth1 ) );
   EXPECT_TRUE( world.sm->managedIntfStatusLocalDir()->intfStatusLocalHas( eth1 ) );
}

TEST_F( L3IntfSmDeath, ActivePortWithoutALocalStatusIsFatalWithAHelper ) {
   world.localDir->intfStatusLocalDel( eth1 );
   world.port( 10, eth1 );
   EXPECT_DEATH( world.start(), "No intfStatusLocal for Ethernet1\n.*Assertion `\"episl\" == nullptr' failed" );
}

TEST_F( L3IntfSmDeath, UpdatingTheDirectoriesWithoutAConfigurationIsFatal ) {
   world.start();
   world.configDir->intfConfigDel( eth1 );
   EXPECT_DEATH( world.sm->doUpdateManagedIntfStatusDirs( eth1, true ),
                 "No intfConfig for Ethernet1\n.*Assertion `\"ethConfigDir\\(\\)->intfConfigHas\\( intfId \\)\" == "
                 "nullptr' failed" );
}

TEST_F( L3IntfSmTest, NullArgumentsThrowAndNameTheAttribute ) {
   world.start();
   auto const textOf = []( auto call ) -> std::string {
      try {
         call();
      } catch ( Rex::MutatorArgNullPointerException const & error ) {
         return error.what();
      }
      return "nothing was thrown";
   };
   EXPECT_EQ( textOf( [&] { world.sm->portStateIs( nullptr ); } ), "null argument to DaceFapNi::L3IntfSm::portState" );
   EXPECT_EQ( textOf( [&] { world.sm->ethConfigIs( nullptr ); } ), "null argument to DaceFapNi::L3IntfSm::ethConfig" );
   EXPECT_EQ( textOf( [&] { world.sm->ipIntfConfigFilterIs( nullptr ); } ),
              "null argument to DaceFapNi::L3IntfSm::ipIntfConfigFilter" );
}

TEST_F( L3IntfSmTest, NullSliceAndPortInputsStaySilent ) {
   world.port( 10, eth1 );
   auto arguments = world.arguments();
   arguments.portStateInfo = nullptr;
   arguments.sliceSmState = nullptr;
   auto const sm = l3IntfSmFactory( arguments );
   EXPECT_TRUE( sm->hasNotificationActive() );
   EXPECT_FALSE( sm->rexIpIntfConfigFilterHas( eth1 ) );
   EXPECT_FALSE( world.slice->publisher()->hasSubscribers() );
   // Without a slice's mode an interface is treated as in standby.
   sm->ethConfigIs( world.config( eth1 ) );
   EXPECT_EQ( world.status( eth1 )->addr(), none );
}

TEST_F( L3IntfSmTest, NewConfigurationOfAServedInterfaceMovesItsFilter ) {
   auto const port = world.port( 10, eth1 );
   world.start();
   auto const filter = world.filter( eth1 );
   auto const config = Corvo::makePtr< Interface::EthPhyIntfConfig >( eth1 );
   world.configDir->intfConfigIs( config );
   port->portGenIdIs( 1 );
   EXPECT_EQ( world.filter( eth1 ), filter );
   EXPECT_EQ( filter->notifier(), config );
   EXPECT_EQ( world.sm->ethConfig( eth1 ), config );
}

TEST_F( L3IntfSmTest, ManagedDirectorySettersKeepADirectoryOfTheSameName ) {
   world.start();
   auto const dir = world.sm->managedIntfStatusDir();
   auto const local = world.sm->managedIntfStatusLocalDir();
   EXPECT_EQ( world.sm->managedIntfStatusDirIs( "Managed Intfs" ), dir );
   EXPECT_EQ( world.sm->managedIntfStatusLocalDirIs( "Managed ISLs" ), local );
   EXPECT_NE( world.sm->managedIntfStatusDirIs( "Others" ), dir );
   EXPECT_EQ( world.sm->managedIntfStatusDir()->name(), "Others" );
   EXPECT_EQ( world.sm->managedIntfStatusDirDel()->name(), "Others" );
   EXPECT_EQ( world.sm->managedIntfStatusDir(), nullptr );
   EXPECT_EQ( world.sm->managedIntfStatusLocalDirDel(), local );
   EXPECT_EQ( world.sm->managedIntfStatusLocalDir(), nullptr );
}

TEST_F( L3IntfSmTest, MassRemoversRemoveEverything ) {
   world.port( 10, eth1 );
   world.port( 11, eth2 );
   world.start();
   world.sm->ipIntfConfigFilterDelAll();
   EXPECT_FALSE( world.serves( eth1 ) );
   EXPECT_FALSE( world.serves( eth2 ) );
   EXPECT_EQ( world.sm->ethConfig( eth1 ), nullptr ); // a filter that goes takes its interface out of service
   world.sm->ethConfigIs( world.config( eth1 ) );
   EXPECT_TRUE( world.serves( eth1 ) );
   world.sm->ethConfigDelAll();
   EXPECT_FALSE( world.serves( eth1 ) );
   world.sm->ethConfigIs( world.config( eth2 ) );
   world.sm->portStateDelAll();
   EXPECT_FALSE( world.serves( eth2 ) );
   EXPECT_FALSE( world.sm->portStateHas( Hardware::Dace::SystemPhyPortId{ 10 } ) );
   EXPECT_FALSE( world.sm->portStateHas( Hardware::Dace::SystemPhyPortId{ 11 } ) );
}

TEST_F( L3IntfSmTest, FilterThatTurnsZombieTakesItsInterfaceOutOfService ) {
   world.port( 10, eth1 );
   world.start();
   auto const filter = world.filter( eth1 );
   filter->rexDoZombieReactors( true );
   EXPECT_TRUE( filter->isZombie() );
   EXPECT_FALSE( world.serves( eth1 ) );
   EXPECT_EQ( world.sm->ethConfig( eth1 ), nullptr );
   EXPECT_TRUE( world.manages( eth1 ) ); // the managed entries follow the port
}

TEST_F( L3IntfSmTest, PortReactorTakesItsInterfaceOutOfServiceWhicheverWayItsFlagGoes ) {
   world.port( 10, eth1 );
   world.start();
   auto const reactor = world.sm->portState( Hardware::Dace::SystemPhyPortId{ 10 } );
   reactor->rexDoZombieReactors( true );
   EXPECT_FALSE( world.serves( eth1 ) );
   EXPECT_FALSE( reactor->hasNotificationActive() );
   world.sm->ethConfigIs( world.config( eth1 ) );
   EXPECT_TRUE( world.serves( eth1 ) );
   reactor->rexDoZombieReactors( false );
   EXPECT_FALSE( world.serves( eth1 ) );
   EXPECT_TRUE( reactor->hasNotificationActive() );
   reactor->rexDoZombieReactors( false ); // idempotent
   world.sm->ethConfigIs( world.config( eth1 ) );
   reactor->rexDoZombieReactors( false );
   EXPECT_TRUE( world.serves( eth1 ) );
}

TEST_F( L3IntfSmTest, ZombieKeepsItsReactorsInStepAndServesNothing ) {
   world.port( 10, eth1 );
   world.start();
   world.sm->rexDoZombieReactors( true );
   EXPECT_FALSE( world.serves( eth1 ) );
   EXPECT_FALSE( world.manages( eth1 ) );
   world.port( 11, eth2 );
   auto const reactor = world.sm->portState( Hardware::Dace::SystemPhyPortId{ 11 } );
   ASSERT_TRUE( reactor );
   EXPECT_TRUE( reactor->isZombie() );
   EXPECT_FALSE( world.serves( eth2 ) );
   EXPECT_FALSE( world.manages( eth2 ) );
   world.portDel( 11 );
   EXPECT_FALSE( world.sm->portStateHas( Hardware::Dace::SystemPhyPortId{ 11 } ) );
}

TEST_F( L3IntfSmTest, ModeChangeIsIgnoredByAZombie ) {
   world.modeIs( 1 );
   world.port( 10, eth1 );
   world.start();
   world.sm->markAndSweepFlagSet( true ); // the flag alone: the filter is still there
   Traces traces( 9 );
   world.modeIs( 2 );
   EXPECT_EQ( traces.take(), Texts{} );
   EXPECT_EQ( world.status( eth1 )->addr(), none );
}

TEST_F( L3IntfSmTest, NotificationsOffSilenceInputsPortsAndFilters ) {
   auto const port = world.port( 10, eth1 );
   world.start();
   world.scheduler->runUntilIdle();
   world.sm->hasNotificationActiveIs( false );
   EXPECT_FALSE( world.sm->portState( Hardware::Dace::SystemPhyPortId{ 10 } )->hasNotificationActive() );
   EXPECT_FALSE( world.filter( eth1 )->hasNotificationActive() );
   EXPECT_FALSE( world.slice->publisher()->hasSubscribers() );
   EXPECT_FALSE( world.ports->publisher()->hasSubscribers() );
   EXPECT_FALSE( port->publisher()->hasSubscribers() );
   EXPECT_FALSE( world.config( eth1 )->publisher()->hasSubscribers() );
   EXPECT_FALSE( world.status( eth1 )->publisher()->hasSubscribers() );
   world.port( 11, eth2 );
   EXPECT_FALSE( world.serves( eth2 ) );
   world.sm->hasNotificationActiveIs( true );
   world.port( 11, eth2 );
   world.config( eth1 )->addrIs( configured );
   EXPECT_EQ( world.status( eth1 )->addr(), configured );
}

TEST_F( L3IntfSmTest, TeardownUnsubscribesEverywhereAndLeavesNoNodeBehind ) {
   auto const port = world.port( 10, eth1 );
   world.subIntf( "Ethernet1.1", eth1 );
   U32 const before = Corvo::Node::liveCount();
   world.start();
   EXPECT_GT( Corvo::Node::liveCount(), before );
   world.sm = nullptr; // a walk is waiting for the scheduler
   for ( Corvo::Ptr< Rex::Entity > const & entity : std::vector< Corvo::Ptr< Rex::Entity > >{ world.slice,
                                                                                              world.ports,
                                                                                              port,
                                                                                              world.config( eth1 ),
                                                                                              world.status( eth1 ),
                                                                                              world.globalConfig,
                                                                                              world.subIntfs } ) {
      EXPECT_FALSE( entity->publisher()->hasSubscribers() ) << entity->typeData().name();
   }
   world.scheduler->runUntilIdle();
   world.helper->doStartSm( nullptr, nullptr );
   EXPECT_EQ( Corvo::Node::liveCount(), before );
   EXPECT_EQ( world.status( eth1 )->mtu(), 0U ); // the walk was abandoned
}

TEST_F( L3IntfSmTest, ReactorsThatOutliveTheMachineDoNotCallBack ) {
   auto const port = world.port( 10, eth1 );
   world.start();
   auto const reactor = world.sm->portState( Hardware::Dace::SystemPhyPortId{ 10 } );
   auto const filter = world.filter( eth1 );
   world.sm = nullptr;
   port->portGenIdIs( 7 );
   world.config( eth1 )->addrIs( configured );
   EXPECT_NE( world.status( eth1 )->addr(), configured );
   EXPECT_TRUE( reactor->isZombie() );
   EXPECT_TRUE( filter->isZombie() );
}

// handleSmMode walks the filters while what the handlers write takes interfaces out of service.

TEST_F( L3IntfSmTest, InterfaceThatGoesDuringAModeChangeIsNotVisited ) {
   world.modeIs( 1 );
   world.port( 10, eth1 );
   world.port( 11, eth2 );
   world.start();
   Ear ear( { world.status( eth1 ), world.status( eth2 ) } );
   ear.when( "Ethernet1 addr", [&] { world.portDel( 11 ); } );
   world.modeIs( 2 );
   EXPECT_FALSE( world.serves( eth2 ) );
   EXPECT_EQ( world.status( eth2 )->addr(), none );
   EXPECT_EQ( world.status( eth1 )->addr(), burnedIn );
   EXPECT_EQ( ear.take(), ( Texts{ "Ethernet1 addr", "Ethernet1 routedAddr" } ) );
}

TEST_F( L3IntfSmTest, InterfaceThatTakesItselfOutDuringAModeChangeLeavesTheWalkIntact ) {
   world.modeIs( 1 );
   world.port( 10, eth1 );
   world.port( 11, eth2 );
   world.start();
   Ear ear( { world.status( eth1 ) } );
   ear.when( "Ethernet1 addr", [&] { world.portDel( 10 ); } );
   world.modeIs( 2 );
   world.scheduler->runUntilIdle();
   EXPECT_FALSE( world.serves( eth1 ) );
   EXPECT_FALSE( world.manages( eth1 ) );
   EXPECT_EQ( world.status( eth1 )->mtu(), 0U ); // its walk went with it
   EXPECT_EQ( world.status( eth2 )->addr(), burnedIn );
   EXPECT_EQ( world.status( eth2 )->mtu(), 1500U );
}

TEST_F( L3IntfSmTest, InterfaceThatComesDuringAModeChangeIsServed ) {
   world.modeIs( 1 );
   world.port( 10, eth1 );
   world.start();
   Ear ear( { world.status( eth1 ) } );
   ear.when( "Ethernet1 addr", [&] { world.port( 11, eth2 ); } );
   world.modeIs( 2 );
   EXPECT_TRUE( world.serves( eth2 ) );
   EXPECT_EQ( world.status( eth2 )->addr(), burnedIn );
}

TEST_F( L3IntfSmTest, MachineThatIsDroppedDuringAModeChangeFinishesItsHandler ) {
   world.modeIs( 1 );
   world.port( 10, eth1 );
   world.port( 11, eth2 );
   world.start();
   Ear ear( { world.status( eth1 ) } );
   ear.when( "Ethernet1 addr", [&] { world.sm = nullptr; } );
   world.modeIs( 2 );
   EXPECT_EQ( world.sm, nullptr );
   EXPECT_FALSE( world.slice->publisher()->hasSubscribers() );
}

TEST_F( L3IntfSmTest, InterfaceThatIsRemovedWhileItsFilterIsWritingIsSafe ) {
   world.port( 10, eth1 );
   world.start();
   world.scheduler->runUntilIdle();
   Ear ear( { world.status( eth1 ) } );
   ear.when( "Ethernet1 addr", [&] { world.portDel( 10 ); } );
   world.config( eth1 )->addrIs( configured );
   EXPECT_FALSE( world.serves( eth1 ) );
   EXPECT_EQ( ear.take(), ( Texts{ "Ethernet1 addr", "Ethernet1 routedAddr" } ) );
}

} // namespace
} // namespace DaceFapNi
