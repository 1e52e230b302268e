#include "MountedSwitch.h"
#include "rex/Trace.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace {

using namespace Test;
using DaceFapNi::L3SmMounter;
using Hardware::ChipType;

std::vector< std::string > tracesOf( std::function< void() > const & what ) {
   std::vector< std::string > texts;
   Rex::traceLevelIs( "L3SmMounterDaceFapNi", 9 );
   Rex::traceSinkIs( [&]( Rex::TraceRecord const & record ) {
      texts.push_back( std::to_string( record.level ) + " " + record.text );
   } );
   what();
   Rex::traceSinkIs( {} );
   Rex::traceLevelIs( "L3SmMounterDaceFapNi", -1 );
   return texts;
}

// A node that is left behind by a test's body shows in the number of nodes alive.
#define EXPECT_NO_NODE_LEFT( ... )                                                                                     \
   {                                                                                                                   \
      U32 const before = Corvo::Node::liveCount();                                                                     \
      { __VA_ARGS__; }                                                                                                 \
      EXPECT_EQ( Corvo::Node::liveCount(), before );                                                                   \
   }

struct MountRow {
   std::string path, type;
   U32 flags;
};

// r 1, w 2 (which includes r), f 4, i 8, D 16
MountRow const requestedMounts[] = {
   { "hardware/dace/fap/status", "Rex::Dir", 1 },
   { "bridging/config", "Bridging::Config", 1 },
   { "bridging/hwcapabilities", "Bridging::HwCapabilities", 1 },
   { "routerMac/hwCapability", "RouterMac::HwCapability", 1 },
   { "cell/0/interface/status/eth/phy/local", "Interface::EthPhyIntfStatusLocalDir", 3 + 4 },
   { "routing/mpls/routingInfo/status", "Mpls::RoutingInfo", 1 },
   { "routing/mpls/config", "Mpls::Config", 1 },
   { "interface/status/eth/vxlan", "Vxlan::VtiStatusDir", 1 },
   { "vxlan/ecnConfig", "Vxlan::EcnConfig", 1 },
   { "evpn/status", "Evpn::EvpnStatus", 1 },
   { "interface/config/global", "Interface::GlobalIntfConfig", 1 },
   { "hardware/dace/lag/daceLagStatus", "Hardware::DaceLag::Status", 1 },
   { "routing/hardware/route/status", "Routing:Hardware::RouteStatus", 1 },
   { "interface/hardware/capability", "Interface::Hardware::Capability", 1 },
   { "routing/hardware/mpls/capability", "Mpls::Hardware::Capability", 1 },
   { "interface/status/subintf", "Interface::SubIntfStatusDir", 1 },
   { "cell/0/interface/status/subintf/local", "Interface::SubIntfStatusLocalDir", 1 },
   { "l3/tunnel/udpDestinationPortConfig", "L3::Tunnel::UdpDestinationPortConfig", 1 },
   { "routing/nexthopgroup/input/config", "Rex::Dir", 1 + 8 },
   { "routing/tunneldecap/input/cli", "Tunnel::Decap::ConfigInput", 1 },
   { "routing/tunneldecap/input/dynamic", "Rex::Dir", 1 + 16 },
   { "routing/hardware/config", "Routing::Hardware::Config", 1 },
};

void expectTheMounts( std::vector< Stordb::Mount > const & requests ) {
   ASSERT_EQ( requests.size(), 22U );
   for ( std::size_t i = 0; i < requests.size(); ++i ) {
      EXPECT_EQ( requests[i].path(), requestedMounts[i].path );
      EXPECT_EQ( requests[i].typeName(), requestedMounts[i].type );
      EXPECT_EQ( requests[i].flags().val(), requestedMounts[i].flags ) << requests[i].path();
   }
}

TEST( Plugin, LoadingTheLibraryRegistersOnePlugin ) {
   auto const & loader = DaceFapNi::defaultPluginLoader();
   ASSERT_EQ( loader.registrations().size(), 1U );
   auto const & registration = loader.registrations().front();
   EXPECT_EQ( registration.loaderFirst, loader.first() );
   EXPECT_EQ( registration.pluginName, "L3SmPlugin" );
   EXPECT_EQ( registration.loaderSecond, loader.second() );
   EXPECT_EQ( registration.fourth, "" );
   EXPECT_EQ( registration.fifth, "" );
   EXPECT_NE( registration.caller, nullptr );
}

TEST( Plugin, SecondInitReplacesTheMounterAndLeavesNoNodeOfTheFirst ) {
   Simulator::SimulatedSwitch sw( oneFap() );
   sw.start();
   U32 const running = Corvo::Node::liveCount();
   DaceFapNi::defaultPluginLoader().initPlugins();
   sw.scheduler()->runUntilIdle();
   EXPECT_EQ( Corvo::Node::liveCount(), running );
}

TEST( Plugin, InitRunsTheStagesInOrderAndMountsWhenTheSliceIsRunnable ) {
   MountedSwitch agent;
   auto const beforeSlice = tracesOf( [&] { agent.init(); } );
   EXPECT_EQ( beforeSlice,
              ( std::vector< std::string >{ "8 L3SmMounter::createPluginStatePhase2",
                                            "8 L3SmMounter::startPluginRunnabilitySm" } ) );
   EXPECT_TRUE( agent.sw.entityManager()->requests().empty() );
   auto const withSlice = tracesOf( [&] { agent.sliceUp(); } );
   ASSERT_EQ( withSlice.size(), 1 + 22 + 1 + 2U );
   EXPECT_EQ( withSlice[0], "0 L3SmMounter::doMounts" );
   EXPECT_EQ( withSlice[1], "8 Mounting hardware/dace/fap/status" );
   EXPECT_EQ( withSlice[5], "8 Mounting cell/0/interface/status/eth/phy/local" );
   EXPECT_EQ( withSlice[23], "0 L3SmMounter::doMounts done" );
   EXPECT_EQ( withSlice[24], "0 L3SmMounter::doMountsComplete" );
   EXPECT_EQ( withSlice[25], "0 L3SmMounter::doMountsComplete done" );
}

TEST( Plugin, RunsInSliceStates31And19Only ) {
   for ( U8 const state : { 31, 19 } ) {
      MountedSwitch agent;
      agent.init();
      agent.sliceUp( 18 );
      EXPECT_TRUE( agent.sw.entityManager()->requests().empty() );
      agent.sliceUp( state );
      EXPECT_EQ( agent.sw.entityManager()->requests().size(), 22U );
      agent.sliceUp( 18 );
      agent.sliceUp( 31 );
      EXPECT_EQ( agent.sw.entityManager()->requests().size(), 22U ) << "mounted once";
   }
}

TEST( Mounts, TwentyTwoInTheirOrderWithTypesAndModes ) {
   MountedSwitch agent;
   agent.init();
   agent.sliceUp();
   expectTheMounts( agent.sw.entityManager()->requests() );
}

TEST( Mounts, FixedSystemRequestsTheSame ) {
   auto description = oneFap();
   description.sliceName = "FixedSystem";
   MountedSwitch agent( description );
   agent.init();
   agent.sliceUp();
   expectTheMounts( agent.sw.entityManager()->requests() );
   EXPECT_TRUE( agent.mounter->l3Sm() );
}

TEST( Mounts, SkippedWhenTheVariableIsPresentEvenIfEmpty ) {
   for ( char const * value : { "", "1" } ) {
      ::setenv( "DACEFAPNI_SKIP_EXTERNAL_MOUNTER_PLUGINS", value, 1 );
      MountedSwitch agent;
      auto const traces = tracesOf( [&] {
         agent.init();
         agent.sliceUp();
      } );
      EXPECT_EQ( traces,
                 ( std::vector< std::string >{ "8 L3SmMounter::createPluginStatePhase2",
                                               "8 L3SmMounter::startPluginRunnabilitySm",
                                               "0 L3SmMounter::doMounts" } ) );
      EXPECT_TRUE( agent.sw.entityManager()->requests().empty() );
      EXPECT_FALSE( agent.mounter->l3Sm() );
      ::unsetenv( "DACEFAPNI_SKIP_EXTERNAL_MOUNTER_PLUGINS" );
   }
}

TEST( Mounter, RunnabilityMachineOfTheSameArgumentsIsKept ) {
   MountedSwitch agent;
   agent.init();
   auto const slice = agent.shared< DaceFapNi::SliceSmStateInfo >( "sliceSmStateData" );
   auto const first = agent.mounter->pluginRunnabilitySmIs( slice, agent.mounter.get() );
   EXPECT_EQ( agent.mounter->pluginRunnabilitySmIs( slice, agent.mounter.get() ), first );
   auto const other = Corvo::makePtr< DaceFapNi::SliceSmStateInfo >();
   EXPECT_NE( agent.mounter->pluginRunnabilitySmIs( other, agent.mounter.get() ), first );
}

TEST( Mounter, L3SmOfTheSameArgumentsIsKept ) {
   MountedSwitch agent;
   agent.start();
   auto const sm = agent.mounter->l3Sm();
   ASSERT_TRUE( sm );
   EXPECT_EQ( agent.mounter->l3SmIs( sm->arguments() ), sm );
   auto changed = sm->arguments();
   changed.sliceName = "Another";
   EXPECT_NE( agent.mounter->l3SmIs( changed ), sm );
}

TEST( Mounter, StateThatItMakesIsKeptUnderItsNameAndHangsBelowIt ) {
   MountedSwitch agent;
   agent.start();
   auto const ports = agent.mounter->udpDestPortConfigLocal();
   ASSERT_TRUE( ports );
   EXPECT_EQ( ports->name(), "udpDestPort" );
   EXPECT_EQ( ports->parent(), agent.mounter.get() );
   EXPECT_EQ( agent.mounter->udpDestPortConfigLocalIs( "udpDestPort" ), ports );
   EXPECT_NE( agent.mounter->udpDestPortConfigLocalIs( "other" ), ports );
   EXPECT_EQ( ports->parent(), nullptr );
   auto const groups = agent.mounter->dgConfig();
   ASSERT_TRUE( groups );
   EXPECT_EQ( groups->parent(), nullptr );
   EXPECT_EQ( agent.mounter->dgConfigIs(), groups );
}

TEST( Mounter, L3SmIsBuiltEvenWhereChipsAreNotServed ) {
   MountedSwitch agent; // both toggles at their default
   agent.start();
   ASSERT_TRUE( agent.mounter->l3Sm() );
   EXPECT_TRUE( agent.mounter->l3Sm()->initialized() );
}

TEST( Mounter, MissingRouteStatusDoesNotStopTheBuild ) {
   MountedSwitch agent;
   agent.sw.deleteEntity( "routing/hardware/route/status" );
   agent.start();
   ASSERT_TRUE( agent.mounter->l3Sm() );
   EXPECT_TRUE( agent.mounter->l3Sm()->arguments().mergedPrefixLensInExactMatchV4->prefixLen().empty() );
}

TEST( Mounter, NoNodeIsLeftWhateverStateTheAgentGoesDownIn ) {
   EXPECT_NO_NODE_LEFT( MountedSwitch agent );
   EXPECT_NO_NODE_LEFT( MountedSwitch agent; agent.init() );
   EXPECT_NO_NODE_LEFT( MountedSwitch agent; agent.init(); agent.initChips() );
   EXPECT_NO_NODE_LEFT( MountedSwitch agent; agent.start() );
   // Mounts requested, report pending.
   EXPECT_NO_NODE_LEFT( MountedSwitch agent; agent.init();
                        agent.shared< DaceFapNi::SliceSmStateInfo >( "sliceSmStateData" )->sliceStateIs( { 31 } ) );
   // Waiting for an interface directory.
   EXPECT_NO_NODE_LEFT(
      MountedSwitch agent;
      agent.shared< DaceFapNi::PhySmStateInfo >( "phySmStateData" )->allEthPhyIntfConfigDirIs( nullptr );
      agent.start() );
}

TEST( Mounter, AMounterThatIsGoneHearsNoReport ) {
   MountedSwitch agent;
   agent.init();
   agent.shared< DaceFapNi::SliceSmStateInfo >( "sliceSmStateData" )->sliceStateIs( { 31 } );
   agent.mounter = nullptr;
   auto const traces = tracesOf( [&] { agent.sw.scheduler()->runUntilIdle(); } );
   EXPECT_TRUE( traces.empty() );
}

// ---- The gate of chip initialisation

std::size_t chipInitOperations( MountedSwitch & agent ) {
   agent.init();
   agent.initChips();
   return agent.sw.journal().operations().size();
}

TEST( ChipInitGate, FapOfType3IsNotServedWithBothTogglesOn ) {
   MountedSwitch agent;
   EXPECT_EQ( chipInitOperations( agent ), 0U );
}

TEST( ChipInitGate, FapOfType3IsServedWithArmOrderedSwTableOff ) {
   auto description = oneFap();
   description.toggles = { { "Dace.json", { { "ArmOrderedSwTable", false } } } };
   MountedSwitch agent( description );
   EXPECT_GT( chipInitOperations( agent ), 0U );
}

TEST( ChipInitGate, FapOfType3IsServedWithJ2DaceL3NiOff ) {
   auto description = oneFap();
   description.toggles = { { "DaceToggles.json", { { "J2DaceL3Ni", false } } } };
   MountedSwitch agent( description );
   EXPECT_GT( chipInitOperations( agent ), 0U );
}

TEST( ChipInitGate, FapOfType4IsNeverServedAndReadsNoToggle ) {
   auto description = oneFap();
   description.toggles = served();
   MountedSwitch agent( description );
   agent.init();
   auto const fapStatus = Corvo::makePtr< Hardware::Dace::Cell::FapStatus >( Hardware::Dace::FapId( 0 ) );
   fapStatus->revisionIs( { 10, static_cast< ChipType >( 20 ), 7 } );
   agent.shared< DaceFapNi::ChipInitConfigDir >( "chipInitConfigDir" )->initChip( fapStatus );
   EXPECT_TRUE( agent.sw.journal().operations().empty() );
   for ( auto const & reading : Toggle::readings() ) {
      EXPECT_NE( reading.name, "ArmOrderedSwTable" );
   }
}

TEST( ChipInitGate, CallbackIsRegisteredUnderItsNameAndReady ) {
   MountedSwitch agent;
   agent.init();
   auto const entry = agent.shared< DaceFapNi::ChipInitConfigDir >( "chipInitConfigDir" )->chipInitConfig( "L3Sm" );
   ASSERT_TRUE( entry );
   EXPECT_TRUE( entry->ready() );
   EXPECT_TRUE( entry->callback() );
}

// ---- Missing objects end the process, each with its own text

struct Missing {
   char const * path;
   char const * text;
};

void startWithout( char const * path ) {
   MountedSwitch agent;
   agent.sw.deleteEntity( path );
   agent.start();
}

TEST( MounterDeath, MissingSharedObjects ) {
   for ( auto const & [path, text] :
         { Missing{ "shared/agentGlobalState", "Assertion `agentState' failed" },
           Missing{ "shared/chipInitConfigDir", "Assertion `chipInitCfgDir' failed" },
           Missing{ "shared/sliceSmStateData", "Assertion `sliceSmState' failed" },
           Missing{ "shared/phySmStateSharedStatus", "Assertion `phySmStateSharedStatus' failed" },
           Missing{ "shared/phySmStateData", "Assertion `phySmState' failed" },
           Missing{ "shared/portStateInfo", "Assertion `portStateInfo' failed" } } ) {
      EXPECT_DEATH( startWithout( path ), text ) << path;
   }
}

TEST( MounterDeath, MissingCell ) {
   EXPECT_DEATH( startWithout( "hardware/dace/fap/status" ), "Assertion `cellStatus' failed" );
}

TEST( MounterDeath, SliceModeNull ) {
   EXPECT_DEATH(
      {
         MountedSwitch agent;
         agent.shared< DaceFapNi::SliceSmStateInfo >( "sliceSmStateData" )->smModeIs( { 0 } );
         agent.start();
      },
      "Assertion `sliceSmState\\(\\)->smMode\\(\\) != Hardware::Dace::smModeNull\\(\\)' failed" );
}

TEST( MounterDeath, MountsThatFailedAreRefusedBeforeAnythingIsFetched ) {
   MountedSwitch agent;
   agent.init();
   EXPECT_DEATH( agent.mounter->doMountsComplete( { Stordb::MountStatus::Code::noSuchPath }, nullptr ),
                 "Assertion `mountStatus == Stordb::mountSuccess\\(\\)' failed" );
}

TEST( MounterDeath, UnknownChipTypeInChipInit ) {
   MountedSwitch agent;
   agent.init();
   auto const fapStatus = Corvo::makePtr< Hardware::Dace::Cell::FapStatus >( Hardware::Dace::FapId( 0 ) );
   fapStatus->revisionIs( { 10, static_cast< ChipType >( 26 ), 7 } );
   EXPECT_DEATH( agent.shared< DaceFapNi::ChipInitConfigDir >( "chipInitConfigDir" )->initChip( fapStatus ),
                 "Unhandled chipType 26[^A]*Assertion `\"false\" == nullptr' failed" );
}

} // namespace
