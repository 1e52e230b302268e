// The order in which an L3Sm goes through its inputs and children: when it is built, activated, and dropped.
#include "DaceL3Unicast/DaceFapNiPlugin/L3SmSlotLoadBalance.h"
#include "InterfaceWorld.h"
#include "ObservedL3Sm.h"

#include <gtest/gtest.h>

namespace {

using namespace Test;
using DaceFapNi::L3Sm;
using Looks = ObservedL3Sm::Looks;

Looks const inputs{ "phySmStateSharedStatus",
                    "phySmState",
                    "mplsRoutingInfo",
                    "vtiStatusDir",
                    "evpnStatus",
                    "daceLagStatus",
                    "mergedPrefixLensInExactMatchV4",
                    "routingHwConfig",
                    "driverSetupSmStateInfo" };
// What the children look at as they are switched: the VTI directory's machine, split horizon, QoS, MPLS parser, GUE.
Looks const childrensInputs{ "vtiStatusDir", "vtiStatusDir", "evpnStatus", "vxlanEcnConfig", "mplsConfig", "dgConfig" };

Looks operator+( Looks left, Looks const & right ) {
   left.insert( left.end(), right.begin(), right.end() );
   return left;
}

Simulator::SwitchDescription withVrfHelper() {
   auto description = oneFap();
   description.toggles["VeloroSAI.json"]["VeloroSAIMode"] = false;
   return description;
}

Corvo::Ptr< Hardware::Dace::LoadBalanceHwConfig > slotConfig( U32 slot, U8 mode = 0 ) {
   auto config = Corvo::makePtr< Hardware::Dace::LoadBalanceHwConfig >( Fru::SlotId{ slot } );
   config->guePktTypeHashModeIs( mode );
   return config;
}

// The functions that worked on a chip meanwhile.
std::set< std::string > functionsOf( ObservedL3Sm const & observed, std::function< void() > const & change ) {
   auto const before = observed.sw.journal().operations().size();
   change();
   auto const rows = observed.sw.journal().operations();
   std::set< std::string > functions;
   for ( auto i = before; i < rows.size(); ++i ) {
      functions.emplace( rows[i].function );
   }
   return functions;
}

TEST( L3SmLifecycle, subscribesToItsInputsInTheirOrder ) {
   ObservedL3Sm observed( false );
   observed.build();
   EXPECT_EQ( observed.looks, inputs );
}

// What changes while it is initialized must not be lost.
TEST( L3SmLifecycle, subscribesToAllItsInputsBeforeItBuildsItsChildren ) {
   ObservedL3Sm observed;
   observed.build();
   // Built in another order than they are switched in: GUE comes before the MPLS parser.
   Looks const asBuilt{ "vtiStatusDir", "vtiStatusDir", "evpnStatus", "vxlanEcnConfig", "dgConfig", "mplsConfig" };
   EXPECT_EQ( observed.looks, inputs + asBuilt );
}

TEST( L3SmLifecycle, hearsEveryInputFromItsConstructionOn ) {
   ObservedL3Sm observed;
   observed.mplsRoutingInfo->mplsLookupLabelCountIs( 2 );
   observed.build();
   ASSERT_FALSE( observed.sm->hasNotificationActive() );
   struct {
      char const * function;
      std::function< void() > change;
   } const rows[] = {
      { "doWriteFlpacsAction", [&] { observed.mplsRoutingInfo->mplsLookupLabelCountIs( 1 ); } },
      { "L3Sm::handleDecapRouteAll", [&] { observed.vtiStatusDir->decapRouteAllIs( true ); } },
      { "L3Sm::handleEvpnEncapType", [&] { observed.evpnStatus->vxlanEnabledIs( true ); } },
      { "doProgramGueTunnelTermination", [&] { observed.daceLagStatus->slotLoadBalanceIs( slotConfig( 0 ) ); } },
      { "L3Sm::handlePrefixLensInExactMatch", [&] { observed.mergedPrefixLens->prefixLenIs( 1, 24 ); } },
      { "L3Sm::handleUrpfFailFwdConfig", [&] { observed.routingHwConfig->urpfLooseFailForwardIs( true ); } },
      { "L3Sm::setupMplsLookupFbIpFwdContext",
        [&] {
           observed.driverSetupSmStateInfo->ucodeProfileIs( 1 );
           observed.driverSetupSmStateInfo->ucodeProfileIs( 2 ); // routing
        } },
   };
   for ( auto const & row : rows ) {
      EXPECT_TRUE( functionsOf( observed, row.change ).contains( row.function ) ) << row.function;
   }
}

TEST( L3SmLifecycle, programsNothingBeforeItIsInitialized ) {
   ObservedL3Sm observed( false );
   observed.build();
   auto const operations = observed.operations();
   observed.sm->handleUrpfFailFwdConfig( 3, true );
   observed.sm->handleLooseUrpfFailFwdConfig();
   observed.sm->handleStrictUrpfFailFwdConfig();
   observed.sm->setupMplsFwdContext();
   observed.sm->setupMplsLookupFbIpFwdContext();
   observed.sm->handleEvpnEncapType();
   observed.sm->handleEvpnDciGateway();
   observed.sm->handleDecapRouteAll();
   observed.sm->handlePrefixLensInExactMatch();
   EXPECT_EQ( observed.operations(), operations );
}

TEST( L3SmLifecycle, hearsEitherDirectoryFromItsConstructionOn ) {
   for ( bool const configLast : { true, false } ) {
      ObservedL3Sm observed( false );
      observed.build();
      auto const configDir = [&] {
         observed.phySmState->allEthPhyIntfConfigDirIs( Corvo::makePtr< Interface::AllEthPhyIntfConfigDir >() );
      };
      auto const statusDir = [&] {
         observed.phySmStateSharedStatus->allEthPhyIntfStatusDirIs(
            Corvo::makePtr< Interface::AllEthPhyIntfStatusDir >() );
      };
      configLast ? statusDir() : configDir();
      EXPECT_FALSE( observed.sm->initialized() );
      configLast ? configDir() : statusDir();
      EXPECT_TRUE( observed.sm->initialized() ) << configLast;
   }
}

// Each child subscribes as it is made: the VTI directory's machine, split horizon, QoS, GUE, MPLS parser.
TEST( L3SmLifecycle, buildsItsChildrenInOrderOnceItIsInitialized ) {
   ObservedL3Sm observed( false );
   observed.build();
   observed.phySmState->allEthPhyIntfConfigDirIs( Corvo::makePtr< Interface::AllEthPhyIntfConfigDir >() );
   observed.take();
   std::vector< std::string > there;
   observed.onLook = [&]( std::string const & ) {
      auto const & sm = *observed.sm;
      there.push_back( std::string( sm.initialized() ? "initialized " : "" ) + ( sm.l3IntfSm() ? "interfaces " : "" ) +
                       ( sm.vtiStatusDirSm() && sm.vtiStatusDirSm()->initialized() ? "VTIs " : "" ) +
                       ( sm.vxlanSplitHorizonCfgSm() ? "split horizon " : "" ) + ( sm.vxlanQosSm() ? "QoS " : "" ) +
                       ( sm.nexthopGroupSm() ? "GUE " : "" ) + ( sm.mplsParserCfgSm() ? "parser " : "" ) );
   };
   observed.phySmStateSharedStatus->allEthPhyIntfStatusDirIs( Corvo::makePtr< Interface::AllEthPhyIntfStatusDir >() );
   EXPECT_EQ( observed.looks,
              ( Looks{ "vtiStatusDir", "vtiStatusDir", "evpnStatus", "vxlanEcnConfig", "dgConfig", "mplsConfig" } ) );
   EXPECT_EQ( there,
              ( std::vector< std::string >{ "initialized interfaces ",
                                            "initialized interfaces VTIs ",
                                            "initialized interfaces VTIs ",
                                            "initialized interfaces VTIs split horizon ",
                                            "initialized interfaces VTIs split horizon QoS ",
                                            "initialized interfaces VTIs split horizon QoS GUE " } ) );
   EXPECT_TRUE( observed.sm->mplsParserCfgSm() );
}

TEST( L3SmLifecycle, isInitializedBeforeItBuildsTheInterfaceMachine ) {
   ObservedL3Sm observed( false );
   observed.build();
   Netka::IntfId const eth1( "Ethernet1" );
   auto const port = Corvo::makePtr< DaceFapNi::PortState >( Hardware::Dace::SystemPhyPortId{ 1 } );
   port->intfIdIs( eth1 );
   port->activeIs( true );
   observed.sw.entity< DaceFapNi::PortStateInfo >( "shared/portStateInfo" )->portStateIs( port );
   auto const configs = Corvo::makePtr< Interface::AllEthPhyIntfConfigDir >();
   configs->intfConfigIs( Corvo::makePtr< Interface::EthPhyIntfConfig >( eth1 ) );
   observed.sw.change( [&] {
      observed.sw.entity< Bridging::Config >( "bridging/config" )
         ->bridgeMacAddrIs( Netka::EthAddr( "02:00:00:00:00:01" ) );
   } );
   auto const statuses = Corvo::makePtr< Interface::AllEthPhyIntfStatusDir >();
   auto const status = Corvo::makePtr< Interface::EthPhyIntfStatus >( eth1 );
   statuses->intfStatusIs( status );
   observed.phySmState->allEthPhyIntfConfigDirIs( configs );
   std::optional< bool > initialized;
   DaceFapNi::Ear ear( { status } );
   ear.when( "Ethernet1 routedAddr", [&] { initialized = observed.sm->initialized(); } );
   observed.phySmStateSharedStatus->allEthPhyIntfStatusDirIs( statuses );
   EXPECT_EQ( initialized, true );
}

// ---- Switching notifications

// What of the children and slots was active at each look.
struct ActiveAtLooks {
   std::map< std::string, std::string > at; // by input, the last look

   ActiveAtLooks( ObservedL3Sm & observed, Rex::NotifieeConst const & slot, std::set< std::size_t > const & places ) {
      observed.onLook = [this, &observed, &slot, places]( std::string const & name ) {
         if ( places.contains( observed.looks.size() - 1 ) ) {
            auto const & sm = *observed.sm;
            at[name] = std::string( sm.ethIntfVrfSmHelper()->hasNotificationActive() ? "helper " : "" ) +
                       ( sm.l3IntfSm()->hasNotificationActive() ? "interfaces " : "" ) +
                       ( slot.hasNotificationActive() ? "slot " : "" );
         }
      };
   }
};

TEST( L3SmLifecycle, switchesInputsChildrenAndSlotsInTheirOrderEitherWay ) {
   ObservedL3Sm observed( true, withVrfHelper() );
   observed.daceLagStatus->slotLoadBalanceIs( slotConfig( 3 ) );
   observed.build();
   auto const slot = observed.sm->slotLoadBalanceIs( observed.daceLagStatus->slotLoadBalance( { 3 } ) );
   observed.sm->hasNotificationActiveIs( true );
   observed.take();

   // The VTI directory's look is that of the machine itself, which comes fourth; the others' are the children's.
   std::set< std::size_t > const places{ 3, 4, 12, 13, 14 };
   std::map< std::string, std::string > const goingOff{ { "vtiStatusDir", "helper interfaces slot " },
                                                        { "evpnStatus", "interfaces slot " },
                                                        { "vxlanEcnConfig", "interfaces slot " },
                                                        { "mplsConfig", "slot " },
                                                        { "dgConfig", "slot " } };
   ActiveAtLooks const off( observed, *slot, places );
   observed.sm->hasNotificationActiveIs( false );
   EXPECT_EQ( observed.take(), inputs + childrensInputs );
   EXPECT_EQ( off.at, goingOff );
   EXPECT_FALSE( slot->hasNotificationActive() );
   EXPECT_FALSE( observed.sm->vtiStatusDirSm()->hasNotificationActive() );
   EXPECT_FALSE( observed.sm->nexthopGroupSm()->hasNotificationActive() );
   observed.sm->hasNotificationActiveIs( false );
   EXPECT_EQ( observed.take(), Looks{} );

   std::map< std::string, std::string > const goingOn{ { "vtiStatusDir", "" },
                                                       { "evpnStatus", "helper " },
                                                       { "vxlanEcnConfig", "helper " },
                                                       { "mplsConfig", "helper interfaces " },
                                                       { "dgConfig", "helper interfaces " } };
   ActiveAtLooks const on( observed, *slot, places );
   observed.sm->hasNotificationActiveIs( true );
   EXPECT_EQ( observed.take(), inputs + childrensInputs );
   EXPECT_EQ( on.at, goingOn );
   EXPECT_TRUE( slot->hasNotificationActive() );
   observed.onLook = nullptr;
}

TEST( L3SmLifecycle, isActiveOrNotBeforeItsInputsAreSwitched ) {
   ObservedL3Sm observed;
   observed.build();
   for ( bool const active : { true, false } ) {
      bool before = true;
      observed.onLook = [&]( std::string const & ) {
         before = before && observed.sm->hasNotificationActive() == active;
      };
      observed.sm->hasNotificationActiveIs( active );
      EXPECT_TRUE( before ) << active;
   }
   observed.onLook = nullptr;
}

// ---- Going

TEST( L3SmLifecycle, goesBySwitchingEverythingOffInOrder ) {
   ObservedL3Sm observed( true, withVrfHelper() );
   observed.build();
   observed.sm->hasNotificationActiveIs( true );
   auto const helper = observed.sm->ethIntfVrfSmHelper();
   auto const slot = observed.sm->slotLoadBalanceIs( slotConfig( 3 ) );
   observed.take();
   observed.sm = nullptr;
   Looks looks = observed.take();
   looks.resize( inputs.size() + childrensInputs.size() ); // the children look again as they go
   EXPECT_EQ( looks, inputs + childrensInputs );
   EXPECT_FALSE( helper->hasNotificationActive() );
   EXPECT_FALSE( slot->hasNotificationActive() );
   EXPECT_TRUE( slot->isZombie() );
}

// One that was never activated has nothing to switch off at first: its inputs are unsubscribed as such, its slots lose
// their parent, and then its children are stopped, the VRF helper first.
TEST( L3SmLifecycle, goesInOrderThoughItWasNeverActivated ) {
   ObservedL3Sm observed( true, withVrfHelper() );
   auto const config = slotConfig( 0, 0 );
   observed.daceLagStatus->slotLoadBalanceIs( config );
   observed.build();
   auto const * const machine = observed.sm.get();
   auto const slot = observed.sm->slotLoadBalanceIs( config );
   auto const helper = observed.sm->ethIntfVrfSmHelper();
   auto const vtiStatusDirSm = observed.sm->vtiStatusDirSm();
   auto const vxlanSplitHorizonCfgSm = observed.sm->vxlanSplitHorizonCfgSm();
   auto const vxlanQosSm = observed.sm->vxlanQosSm();
   auto const l3IntfSm = observed.sm->l3IntfSm();
   auto const mplsParserCfgSm = observed.sm->mplsParserCfgSm();
   auto const nexthopGroupSm = observed.sm->nexthopGroupSm();
   observed.take();
   auto const operations = observed.operations();
   std::vector< std::string > seen;
   observed.onLook = [&]( std::string const & ) {
      seen.push_back( std::string( machine->isZombie() ? "zombie " : "" ) + ( slot->isZombie() ? "slot's too " : "" ) +
                      ( helper->hasNotificationActive() ? "helper " : "" ) +
                      ( l3IntfSm->hasNotificationActive() ? "interfaces " : "" ) +
                      ( slot->useCount() > 1 ? "slot kept" : "" ) );
      if ( seen.size() == inputs.size() + 1 ) { // children are being stopped: a slot that wakes calls nobody
         slot->rexDoZombieReactors( false );
         config->guePktTypeHashModeIs( 2 );
      }
   };
   observed.sm = nullptr;
   EXPECT_EQ( observed.take(), inputs + childrensInputs );
   std::vector< std::string > expected( inputs.size(), "zombie slot's too helper interfaces slot kept" );
   expected.push_back( "zombie slot's too interfaces slot kept" ); // the VTI directory's machine
   expected.insert( expected.end(), 3, "zombie interfaces slot kept" );
   expected.insert( expected.end(), 2, "zombie slot kept" ); // MPLS parser, GUE
   EXPECT_EQ( seen, expected );
   EXPECT_EQ( observed.operations(), operations );
   EXPECT_FALSE( helper->hasNotificationActive() );
   EXPECT_FALSE( vtiStatusDirSm->hasNotificationActive() );
   EXPECT_FALSE( vxlanSplitHorizonCfgSm->hasNotificationActive() );
   EXPECT_FALSE( vxlanQosSm->hasNotificationActive() );
   EXPECT_FALSE( l3IntfSm->hasNotificationActive() );
   EXPECT_FALSE( mplsParserCfgSm->hasNotificationActive() );
   EXPECT_FALSE( nexthopGroupSm->hasNotificationActive() );
   // What outlives the machine is alone.
   slot->hasNotificationActiveIs( true );
   slot->rexDoZombieReactors( false );
   config->guePktTypeHashModeIs( 3 );
   EXPECT_EQ( observed.operations(), operations );
   observed.onLook = nullptr;
}

} // namespace
