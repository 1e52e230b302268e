// The children of an L3Sm and its slots: what setters keep, what removers return, and what stays silent.
#include "DaceL3Unicast/DaceFapNiPlugin/L3SmSlotLoadBalance.h"
#include "ObservedL3Sm.h"

#include <gtest/gtest.h>

namespace {

using namespace Test;
using DaceFapNi::Child;
using DaceFapNi::L3Sm;

// ---- The contract of all child setters

struct Machine : Corvo::Node {
   explicit Machine( std::vector< std::string > & log_, int number_ ) : log( log_ ), number( number_ ) {
      log.push_back( "built " + std::to_string( number ) );
   }
   ~Machine() override { log.push_back( "gone " + std::to_string( number ) ); }
   void hasNotificationActiveIs( bool active ) {
      log.push_back( ( active ? "active " : "inactive " ) + std::to_string( number ) );
   }
   std::vector< std::string > & log;
   int number;
};

TEST( Child, isDroppedBuiltStoredAnnouncedAndThenActivated ) {
   std::vector< std::string > log;
   Child< Machine, int > child;
   auto const build = [&]( int number ) { return Corvo::makePtr< Machine >( log, number ); };
   auto const childIs = [&]( int number ) {
      return child.is(
         build,
         [&] { log.push_back( "announced " + ( child.get() ? std::to_string( child.get()->number ) : "null" ) ); },
         number );
   };
   auto const one = childIs( 1 ).get();
   EXPECT_EQ( log, ( std::vector< std::string >{ "built 1", "announced 1", "active 1" } ) );
   log.clear();
   EXPECT_EQ( childIs( 1 ).get(), one );
   EXPECT_EQ( log, std::vector< std::string >{} );
   childIs( 2 );
   EXPECT_EQ( log, ( std::vector< std::string >{ "gone 1", "built 2", "announced 2", "active 2" } ) );
   log.clear();
   EXPECT_EQ( child.del()->number, 2 );
   EXPECT_EQ( log, ( std::vector< std::string >{ "inactive 2", "gone 2" } ) );
   EXPECT_FALSE( child.get() );
   EXPECT_FALSE( child.del() );
}

TEST( Child, builtFromTheSameArgumentsAfterItWasRemovedIsANewOne ) {
   std::vector< std::string > log;
   Child< Machine, int > child;
   auto const build = [&]( int number ) { return Corvo::makePtr< Machine >( log, number ); };
   child.is( build, 1 );
   child.take();
   log.clear();
   child.is( build, 1 );
   EXPECT_EQ( log, ( std::vector< std::string >{ "built 1", "active 1" } ) );
}

// ---- L3Sm's own

Simulator::SwitchDescription withVrfHelper() {
   auto description = oneFap();
   description.toggles["VeloroSAI.json"]["VeloroSAIMode"] = false;
   return description;
}

TEST( L3SmChildren, theFactoryActivatesTheMachine ) {
   ObservedL3Sm observed;
   auto const sm = DaceFapNi::l3SmFactory( observed.in );
   EXPECT_TRUE( sm->hasNotificationActive() );
   EXPECT_TRUE( sm->initialized() );
   EXPECT_EQ( sm->arguments(), observed.in );
}

TEST( L3SmChildren, theVrfHelperLearnsHowManyRouterMacsAnInterfaceHas ) {
   MountedSwitch agent( withVrfHelper() );
   agent.sw.set( "routerMac/hwCapability", "routerMacsPerIntf", 7 );
   agent.start();
   ASSERT_TRUE( agent.mounter->l3Sm()->ethIntfVrfSmHelper() );
   EXPECT_EQ( agent.mounter->l3Sm()->ethIntfVrfSmHelper()->routerMacsPerIntf(), 7U );
}

TEST( L3SmChildren, onFapType4ThereIsNoMoreThanTheInterfaceMachine ) {
   MountedSwitch agent( withVrfHelper() );
   agent.shared< DaceFapNi::SliceSmStateInfo >( "sliceSmStateData" )
      ->revisionIs( { 10, static_cast< Hardware::ChipType >( 20 ), 7 } );
   agent.start();
   auto const & sm = *agent.mounter->l3Sm();
   EXPECT_TRUE( sm.initialized() );
   EXPECT_TRUE( sm.ethIntfVrfSmHelper() );
   EXPECT_TRUE( sm.l3IntfSm() );
   EXPECT_FALSE( sm.vtiStatusDirSm() );
   EXPECT_FALSE( sm.vxlanSplitHorizonCfgSm() );
   EXPECT_FALSE( sm.vxlanQosSm() );
   EXPECT_FALSE( sm.mplsParserCfgSm() );
   EXPECT_FALSE( sm.nexthopGroupSm() );
}

TEST( L3SmChildren, aRemoverClearsTheChildStopsItAndReturnsIt ) {
   MountedSwitch agent( withVrfHelper() );
   agent.start();
   auto & sm = *agent.mounter->l3Sm();
   auto const expectRemoved = [&]( auto const & attribute, auto const & remove ) {
      auto const held = attribute();
      ASSERT_TRUE( held );
      EXPECT_TRUE( held->hasNotificationActive() );
      EXPECT_EQ( remove(), held );
      EXPECT_FALSE( held->hasNotificationActive() );
      EXPECT_FALSE( attribute() );
      EXPECT_FALSE( remove() );
   };
   expectRemoved( [&] { return sm.ethIntfVrfSmHelper(); }, [&] { return sm.ethIntfVrfSmHelperDel(); } );
   expectRemoved( [&] { return sm.l3IntfSm(); }, [&] { return sm.l3IntfSmDel(); } );
   expectRemoved( [&] { return sm.vtiStatusDirSm(); }, [&] { return sm.vtiStatusDirSmDel(); } );
   expectRemoved( [&] { return sm.vxlanSplitHorizonCfgSm(); }, [&] { return sm.vxlanSplitHorizonCfgSmDel(); } );
   expectRemoved( [&] { return sm.vxlanQosSm(); }, [&] { return sm.vxlanQosSmDel(); } );
   expectRemoved( [&] { return sm.mplsParserCfgSm(); }, [&] { return sm.mplsParserCfgSmDel(); } );
   expectRemoved( [&] { return sm.nexthopGroupSm(); }, [&] { return sm.nexthopGroupSmDel(); } );
}

// ---- Slots

Corvo::Ptr< Hardware::Dace::LoadBalanceHwConfig > slotConfig( U32 slot, U8 mode = 0 ) {
   auto config = Corvo::makePtr< Hardware::Dace::LoadBalanceHwConfig >( Fru::SlotId{ slot } );
   config->guePktTypeHashModeIs( mode );
   return config;
}

TEST( L3SmChildren, theInterfaceMachineStaysForTheSameArgumentsOnly ) {
   ObservedL3Sm observed;
   observed.build();
   auto const before = observed.sm->l3IntfSm();
   auto arguments = before->arguments();
   EXPECT_EQ( observed.sm->l3IntfSmIs( arguments ), before );
   arguments.globalIntfConfig = Corvo::makePtr< Interface::GlobalIntfConfig >();
   EXPECT_NE( observed.sm->l3IntfSmIs( arguments ), before );
   EXPECT_EQ( observed.sm->l3IntfSm()->arguments().globalIntfConfig, arguments.globalIntfConfig );
}

TEST( L3SmSlots, removingASlotReturnsItsReactorQuietAndAZombie ) {
   ObservedL3Sm observed;
   auto const config = slotConfig( 0, 2 );
   observed.daceLagStatus->slotLoadBalanceIs( config );
   observed.build();
   auto const slot = observed.sm->slotLoadBalanceIs( config );
   EXPECT_TRUE( slot->hasNotificationActive() );
   auto const operations = observed.operations();
   EXPECT_EQ( observed.sm->slotLoadBalanceIs( config ), slot );
   EXPECT_EQ( observed.sm->slotLoadBalanceDel( { 1 } ), nullptr );
   EXPECT_EQ( observed.sm->slotLoadBalanceDel( { 0 } ), slot );
   EXPECT_FALSE( slot->hasNotificationActive() );
   EXPECT_TRUE( slot->isZombie() );
   EXPECT_EQ( observed.sm->slotLoadBalanceDel( { 0 } ), nullptr );
   config->guePktTypeHashModeIs( 1 );
   EXPECT_EQ( observed.operations(), operations );
}

TEST( L3SmSlots, aReactorFollowsTheNextConfigurationBeforeItProgramsItThoughItWasTakenOff ) {
   ObservedL3Sm observed;
   observed.daceLagStatus->slotLoadBalanceIs( slotConfig( 0, 0 ) );
   observed.build();
   observed.sm->hasNotificationActiveIs( true );
   auto const slot = observed.sm->slotLoadBalanceIs( observed.daceLagStatus->slotLoadBalance( { 0 } ) );
   auto const next = Corvo::makePtr< Watchful< Hardware::Dace::LoadBalanceHwConfig > >( Fru::SlotId{ 0 } );
   next->guePktTypeHashModeIs( 2 );
   auto const operations = observed.operations();
   std::optional< U64 > whenFollowed;
   next->looked = [&] { whenFollowed = observed.operations(); };
   slot->notifierIs( next );
   EXPECT_EQ( whenFollowed, operations );
   EXPECT_GT( observed.operations(), operations );
   next->looked = nullptr;
   slot->isRegisteredNotifieeIs( false );
   auto const last = slotConfig( 0, 0 );
   slot->notifierIs( last );
   auto const programmed = observed.operations();
   last->guePktTypeHashModeIs( 2 );
   EXPECT_GT( observed.operations(), programmed );
}

TEST( L3SmSlots, theMassRemoverTakesOutEverySlot ) {
   ObservedL3Sm observed;
   observed.build();
   auto const first = observed.sm->slotLoadBalanceIs( slotConfig( 4 ) );
   auto const second = observed.sm->slotLoadBalanceIs( slotConfig( 5 ) );
   observed.sm->slotLoadBalanceDelAll();
   EXPECT_TRUE( first->isZombie() );
   EXPECT_TRUE( second->isZombie() );
   EXPECT_EQ( observed.sm->slotLoadBalanceDel( { 4 } ), nullptr );
   EXPECT_EQ( observed.sm->slotLoadBalanceDel( { 5 } ), nullptr );
}

// A keyed collection keeps its reactors in step whatever the state of the machine.
TEST( L3SmSlots, aZombieTakesASlotInAndOut ) {
   ObservedL3Sm observed;
   observed.build();
   observed.sm->rexDoZombieReactors( true );
   auto const operations = observed.operations();
   observed.daceLagStatus->slotLoadBalanceIs( slotConfig( 0, 2 ) );
   EXPECT_EQ( observed.operations() - operations, 6U );
   observed.daceLagStatus->slotLoadBalanceDel( { 0 } );
   EXPECT_EQ( observed.sm->slotLoadBalanceDel( { 0 } ), nullptr );
}

TEST( L3SmSlots, areSilentOnceTheMachineIsInactive ) {
   ObservedL3Sm observed;
   auto const config = slotConfig( 0, 0 );
   observed.daceLagStatus->slotLoadBalanceIs( config );
   observed.build();
   observed.sm->hasNotificationActiveIs( true );
   auto const operations = observed.operations();
   observed.sm->hasNotificationActiveIs( false );
   config->guePktTypeHashModeIs( 2 );
   EXPECT_EQ( observed.operations(), operations );
   observed.sm->hasNotificationActiveIs( true );
   config->guePktTypeHashModeIs( 1 );
   EXPECT_GT( observed.operations(), operations );
}

TEST( L3SmSlotsDeath, programmingWithoutAConfigurationOfTheOwnSlot ) {
   ObservedL3Sm observed;
   observed.build();
   EXPECT_DEATH( observed.sm->doSetupSlotGueLoadBalance(),
                 "Assertion `daceLagStatus\\(\\)->slotLoadBalanceHas\\( mySlotId \\)' failed" );
}

} // namespace
