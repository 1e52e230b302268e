// The order in which the interface machine and its filters go through their inputs, and in which they go.
#include "InterfaceWorld.h"
#include "ObservedL3Sm.h"

#include <gtest/gtest.h>

namespace DaceFapNi {
namespace {

using Test::Watchful;

// An entity that tells when it goes.
template< class T >
class Mortal : public T {
 public:
   using T::T;
   ~Mortal() override { gone(); }
   std::function< void() > gone;
};

class InterfaceOrderTest : public testing::Test {
 protected:
   Texts events; // outlives the world, which may tell of its end
   InterfaceWorld world;
   Netka::IntfId const eth1 = world.intf( "Ethernet1" );

   // Makes an entity that tells of its own going.
   template< class T, class... Arguments >
   Corvo::Ptr< T > mortal( char const * name, Arguments const &... arguments ) {
      auto const entity = Corvo::makePtr< Mortal< T > >( arguments... );
      entity->gone = [this, name] { events.emplace_back( name ); };
      return entity;
   }

   // Makes an entity that tells when its publisher is asked for.
   template< class T, class... Arguments >
   Corvo::Ptr< Watchful< T > > watchful( std::string const & name, Arguments const &... arguments ) {
      auto const entity = Corvo::makePtr< Watchful< T > >( arguments... );
      entity->looked = [this, name] {
         events.push_back( name + ( world.sm && world.sm->hasNotificationActive() ? " while active" : "" ) );
      };
      return entity;
   }
};

TEST_F( InterfaceOrderTest, theMachineTakesTheSliceBeforeThePortsAndIsInactiveBeforeItLeavesThem ) {
   world.slice = watchful< SliceSmStateInfo >( "slice" );
   world.ports = watchful< PortStateInfo >( "ports" );
   events.clear();
   world.sm = Corvo::makePtr< L3IntfSm >( world.arguments() );
   EXPECT_EQ( events, ( Texts{ "slice", "ports" } ) );
   world.sm->hasNotificationActiveIs( true );
   events.clear();
   world.sm->hasNotificationActiveIs( false );
   EXPECT_EQ( events, ( Texts{ "slice", "ports" } ) );
}

TEST_F( InterfaceOrderTest, anActiveMachineLeavesItsInputsBeforeItIsAZombie ) {
   auto const slice = watchful< SliceSmStateInfo >( "slice" );
   world.slice = slice;
   world.start();
   L3IntfSm const * const going = world.sm.get();
   std::optional< bool > asAZombie;
   slice->looked = [&] { asAZombie = going->isZombie(); };
   world.sm = nullptr;
   EXPECT_EQ( asAZombie, false );
}

TEST_F( InterfaceOrderTest, aFilterWithoutAPortBecomesAZombieWithTheMachine ) {
   world.start();
   world.sm->ipIntfConfigFilterIs( world.config( eth1 ) );
   auto const filter = world.filter( eth1 );
   world.sm->rexDoZombieReactors( true );
   EXPECT_TRUE( filter->isZombie() );
}

// The machine was never active: nothing but its end takes it off its inputs.
TEST_F( InterfaceOrderTest, theMachineIsAZombieBeforeItLeavesTheSliceAndThenThePorts ) {
   world.slice = watchful< SliceSmStateInfo >( "slice" );
   world.ports = watchful< PortStateInfo >( "ports" );
   world.sm = Corvo::makePtr< L3IntfSm >( world.arguments() );
   L3IntfSm const * const going = world.sm.get();
   events.clear();
   Corvo::ptrCast< Watchful< SliceSmStateInfo > >( world.slice )->looked = [&] {
      events.push_back( going->isZombie() ? "slice of a zombie" : "slice" );
   };
   world.sm = nullptr;
   EXPECT_EQ( events, ( Texts{ "slice of a zombie", "ports" } ) );
}

TEST_F( InterfaceOrderTest, theMachineReleasesTheDirectoriesThenFiltersConfigurationsAndPorts ) {
   world.helper = nullptr; // which would hold the directories, too
   world.ports = nullptr;
   world.configDir->intfConfigIs( mortal< Interface::EthPhyIntfConfig >( "configuration", eth1 ) );
   world.start();
   {
      auto const port = mortal< PortState >( "port", Hardware::Dace::SystemPhyPortId{ 10 } );
      port->intfIdIs( eth1 );
      port->activeIs( true );
      world.sm->portStateIs( port );
   }
   world.filter( eth1 )->effectiveL3MtuIs( mortal< Interface::EffectiveL3Mtu >( "filter" ) );
   world.configDir->intfConfigDel( eth1 );
   Netka::IntfId const other( "Ethernet9" );
   world.sm->managedIntfStatusDir()->intfStatusIs( mortal< Interface::EthPhyIntfStatus >( "statuses", other ) );
   world.sm->managedIntfStatusLocalDir()->intfStatusLocalIs(
      mortal< Interface::EthPhyIntfStatusLocal >( "local statuses", other ) );
   // As zombies already, all are still there when the machine goes.
   world.sm->markAndSweepFlagSet( true );
   events.clear();
   world.sm = nullptr;
   EXPECT_EQ( events, ( Texts{ "statuses", "local statuses", "filter", "configuration", "port" } ) );
}

// A zombie is not switched off by becoming one; here by its end alone.
TEST_F( InterfaceOrderTest, whatAFilterFollowedIsOffOnceItIsGoneThoughItWasAZombie ) {
   world.start();
   auto filter = Corvo::makePtr< InterfaceWorld::Filter >( world.config( eth1 ), world.sm.get() );
   filter->hasNotificationActiveIs( true );
   auto const config = filter->intfConfig();
   auto const status = filter->intfStatus();
   filter->markAndSweepFlagSet( true );
   filter = nullptr;
   EXPECT_FALSE( config->hasNotificationActive() );
   EXPECT_FALSE( status->hasNotificationActive() );
}

TEST_F( InterfaceOrderTest, anotherMachineOfTheMtuIsActiveAtOnce ) {
   world.port( 10, eth1 );
   world.start();
   auto const filter = world.filter( eth1 );
   auto const before = filter->l3MtuSm();
   auto const after = filter->l3MtuSmIs( world.config( eth1 ),
                                         Corvo::makePtr< Interface::GlobalIntfConfig >(),
                                         filter->effectiveL3Mtu()->notifier(),
                                         world.capability );
   EXPECT_NE( after, before );
   EXPECT_TRUE( after->hasNotificationActive() );
}

TEST_F( InterfaceOrderTest, aFilterThatComesLaterIsActive ) {
   world.start();
   world.port( 10, eth1 );
   EXPECT_TRUE( world.filter( eth1 )->hasNotificationActive() );
}

TEST_F( InterfaceOrderTest, aFilterGoesThroughWhatItFollowsInOneOrder ) {
   world.configDir->intfConfigIs( watchful< Interface::EthPhyIntfConfig >( "configuration", eth1 ) );
   world.statusDir->intfStatusIs( watchful< Interface::EthPhyIntfStatus >( "status", eth1 ) );
   world.globalConfig = watchful< Interface::GlobalIntfConfig >( "MTU's machine" );
   world.port( 10, eth1 );
   world.start();
   auto const filter = world.filter( eth1 );
   filter->effectiveL3MtuIs( watchful< Interface::EffectiveL3Mtu >( "MTU" ) );
   filter->syncMtuSubIntfSmIs( watchful< Interface::SyncMtuSubIntfWalkSm >(
      "walk", world.scheduler, eth1, world.subIntfs, world.subIntfLocals ) );
   Texts const inOrder{ "configuration", "status", "MTU", "MTU's machine", "walk" };
   auto const looks = [&]( std::function< void() > const & change ) {
      events.clear();
      change();
      Texts seen;
      for ( auto const & event : events ) { // the MTU's machine follows the configuration and the MTU, too
         if ( std::find( seen.begin(), seen.end(), event ) == seen.end() ) {
            seen.push_back( event );
         }
      }
      return seen;
   };
   world.sm->nodeFlagSet( Corvo::NodeFlag::notificationsActive, false ); // whose looks these aren't
   EXPECT_EQ( looks( [&] { filter->hasNotificationActiveIs( false ); } ), inOrder );
   EXPECT_EQ( looks( [&] { filter->hasNotificationActiveIs( true ); } ), inOrder );
   // Following nothing, it isn't switched by becoming a zombie; its reactors are.
   filter->parentIs( nullptr );
   filter->notifierIs( nullptr );
   Texts const reactors{ "configuration", "status", "MTU", "walk" };
   EXPECT_EQ( looks( [&] { filter->rexDoZombieReactors( true ); } ), reactors );
   EXPECT_EQ( looks( [&] { filter->rexDoZombieReactors( false ); } ), reactors );
   filter->notifierIs( world.config( eth1 ) );
}

} // namespace
} // namespace DaceFapNi
