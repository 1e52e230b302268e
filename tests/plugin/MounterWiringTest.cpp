// What a mounter announces, builds and drops, and in what order.
#include "MountedSwitch.h"
#include "rex/Trace.h"

#include <gtest/gtest.h>

namespace {

using namespace Test;
using DaceFapNi::L3SmMounter;
using Attribute = L3SmMounter::Attribute;
using Attributes = std::vector< Attribute >;

// Hears the mounter's attributes by their numbers.
struct Listener {
   Corvo::Subscriber slot;
   Attributes heard;
   std::function< void( Attribute ) > react;

   explicit Listener( L3SmMounter const & mounter, std::function< void( Attribute ) > reaction = {} )
      : react( std::move( reaction ) ) {
      slot.dispatchIs( dispatch, this );
      mounter.publisher()->subscriberAdd( slot, false );
   }
   static void dispatch( Corvo::Publisher *, Corvo::Subscriber * slot, short id, void const *, void const * ) {
      auto & self = *slot->owner< Listener >();
      self.heard.push_back( Attribute{ id } );
      if ( self.react ) {
         self.react( Attribute{ id } );
      }
   }
};

Simulator::SwitchDescription servedFap() {
   auto description = oneFap();
   description.toggles = served();
   return description;
}

TEST( MounterWiring, theMounterHasItsName ) {
   EXPECT_EQ( Corvo::makePtr< L3SmMounter >()->name(), "l3SmMounter" );
}

// By the paths themselves, not by the plan.
TEST( MounterWiring, theMachineGetsWhatIsMounted ) {
   MountedSwitch agent;
   agent.start();
   auto const & in = agent.mounter->l3Sm()->arguments();
   auto const at = [&]( char const * path ) { return agent.sw.entity< Rex::Entity >( path ).get(); };
   struct {
      char const * path;
      Rex::Entity const * given;
   } const rows[] = {
      { "bridging/config", in.bridgingConfig.get() },
      { "bridging/hwcapabilities", in.hwCapabilities.get() },
      { "routerMac/hwCapability", in.routerMacHwCapability.get() },
      { "interface/status/eth/phy/local", in.ethPhyIntfStatusLocalDir.get() },
      { "routing/mpls/routingInfo/status", in.mplsRoutingInfo.get() },
      { "routing/mpls/config", in.mplsConfig.get() },
      { "interface/status/eth/vxlan", in.vtiStatusDir.get() },
      { "vxlan/ecnConfig", in.vxlanEcnConfig.get() },
      { "evpn/status", in.evpnStatus.get() },
      { "interface/config/global", in.globalIntfConfig.get() },
      { "hardware/dace/lag/daceLagStatus", in.daceLagStatus.get() },
      { "interface/hardware/capability", in.intfHwCapability.get() },
      { "routing/hardware/mpls/capability", in.mplsHwCapability.get() },
      { "interface/status/subintf", in.subIntfStatusDir.get() },
      { "interface/status/subintf/local", in.subIntfStatusLocalDir.get() },
      { "l3/tunnel/udpDestinationPortConfig", in.udpDestPortConfig.get() },
      { "routing/hardware/config", in.routingHwConfig.get() },
      { "shared/phySmStateSharedStatus", in.phySmStateSharedStatus.get() },
      { "shared/phySmStateData", in.phySmState.get() },
      { "shared/sliceSmStateData", in.sliceSmState.get() },
      { "shared/portStateInfo", in.portStateInfo.get() },
      { "shared/driverSetupSmStateInfo", in.driverSetupSmStateInfo.get() },
   };
   EXPECT_EQ( in.entityManager, agent.sw.entityManager() );
   EXPECT_EQ( in.dgConfig, agent.mounter->dgConfig() );
   EXPECT_NE( in.scheduler, nullptr );
   EXPECT_NE( in.switchControlSal, nullptr );
   for ( auto const & row : rows ) {
      ASSERT_NE( at( row.path ), nullptr ) << row.path;
      EXPECT_EQ( row.given, at( row.path ) ) << row.path;
   }
}

TEST( MounterWiring, everyAttributeIsAnnouncedAsItIsFilled ) {
   MountedSwitch agent( servedFap() );
   L3SmMounter const & mounter = *agent.mounter;
   bool isFilled = true;
   Listener const listener( mounter, [&]( Attribute attribute ) {
      isFilled = isFilled && ( attribute != Attribute::dgConfig || mounter.dgConfig() ) &&
                 ( attribute != Attribute::udpDestPortConfigLocal || mounter.udpDestPortConfigLocal() );
   } );
   agent.start();
   EXPECT_TRUE( isFilled );
   EXPECT_EQ( listener.heard,
              ( Attributes{ Attribute::sliceSmState,
                            Attribute::pluginRunnabilitySm,
                            Attribute::agentGlobalState,
                            Attribute::bridgingConfig,
                            Attribute::hwCapabilities,
                            Attribute::routerMacHwCapability,
                            Attribute::episLocalDir,
                            Attribute::mplsRoutingInfo,
                            Attribute::mplsConfig,
                            Attribute::vtiStatusDir,
                            Attribute::vxlanEcnConfig,
                            Attribute::evpnStatus,
                            Attribute::routingHwConfig,
                            Attribute::daceLagStatus,
                            Attribute::udpDestPortConfigLocal,
                            Attribute::udpDestPortConfig,
                            Attribute::nexthopGroupConfigInput,
                            Attribute::nexthopGroupCliDynamicUdpDestPortMergeSm,
                            Attribute::dgConfig,
                            Attribute::dgConfigMergeSm,
                            Attribute::prefixLensInExactMatchMergerSmV4,
                            Attribute::l3Sm,
                            Attribute::remFfcModifierSm } ) );
   EXPECT_EQ( agent.mounter->bridgingConfig(), agent.sw.entity< Bridging::Config >( "bridging/config" ) );
   EXPECT_TRUE( agent.mounter->remFfcModifierSm() );
   // The same value again is no change.
   agent.mounter->bridgingConfigIs( agent.mounter->bridgingConfig() );
   EXPECT_EQ( listener.heard.back(), Attribute::remFfcModifierSm );
   agent.mounter->bridgingConfigIs( nullptr );
   EXPECT_EQ( listener.heard.back(), Attribute::bridgingConfig );
}

// Stored, then announced, then activated.
TEST( MounterWiring, aStateMachineIsThereAndQuietWhileItIsAnnounced ) {
   MountedSwitch agent;
   auto const & mounter = *agent.mounter;
   int looked = 0;
   auto const expectQuiet = [&]( auto const & sm ) {
      ASSERT_TRUE( sm );
      EXPECT_FALSE( sm->hasNotificationActive() );
      ++looked;
   };
   Listener const listener( mounter, [&]( Attribute attribute ) {
      switch ( attribute ) {
      case Attribute::pluginRunnabilitySm:
         return expectQuiet( mounter.pluginRunnabilitySm() );
      case Attribute::nexthopGroupCliDynamicUdpDestPortMergeSm:
         return expectQuiet( mounter.nexthopGroupCliDynamicUdpDestPortMergeSm() );
      case Attribute::dgConfigMergeSm:
         return expectQuiet( mounter.dgConfigMergeSm() );
      case Attribute::prefixLensInExactMatchMergerSmV4:
         return expectQuiet( mounter.prefixLensInExactMatchMergerSmV4() );
      default:
         return;
      }
   } );
   agent.start();
   EXPECT_EQ( looked, 4 );
   EXPECT_TRUE( mounter.pluginRunnabilitySm()->hasNotificationActive() );
   EXPECT_TRUE( mounter.nexthopGroupCliDynamicUdpDestPortMergeSm()->hasNotificationActive() );
   EXPECT_TRUE( mounter.dgConfigMergeSm()->hasNotificationActive() );
   EXPECT_TRUE( mounter.prefixLensInExactMatchMergerSmV4()->hasNotificationActive() );
   EXPECT_TRUE( mounter.l3Sm()->hasNotificationActive() );
}

TEST( MounterWiring, theMergeMachinesGetDefaultControls ) {
   MountedSwitch agent;
   agent.start();
   auto & mounter = *agent.mounter;
   Oxa::SmControl other;
   other.mode = 4;
   auto const ports = [&]( Oxa::SmControl const & control ) {
      return mounter.nexthopGroupCliDynamicUdpDestPortMergeSmIs(
         mounter.udpDestPortConfigLocal(), mounter.udpDestPortConfig(), mounter.nexthopGroupConfigInput(), control );
   };
   auto const portsSm = mounter.nexthopGroupCliDynamicUdpDestPortMergeSm();
   EXPECT_EQ( ports( {} ), portsSm ); // built from these, so kept
   EXPECT_NE( ports( other ), portsSm );

   auto const routeStatus = agent.sw.entity< Routing::Hardware::RouteStatus >( "routing/hardware/route/status" );
   auto const merged = Corvo::Ptr< Routing::Hardware::PrefixLensInExactMatch >(
      const_cast< Routing::Hardware::PrefixLensInExactMatch * >(
         mounter.l3Sm()->arguments().mergedPrefixLensInExactMatchV4.get() ) );
   auto const lensSm = mounter.prefixLensInExactMatchMergerSmV4();
   EXPECT_EQ( mounter.prefixLensInExactMatchMergerSmV4Is( routeStatus, merged, {} ), lensSm );
   EXPECT_NE( mounter.prefixLensInExactMatchMergerSmV4Is( routeStatus, merged, other ), lensSm );
}

// ---- Removers and teardown

TEST( MounterWiring, aRemoverReturnsWhatItClearsAndAnnouncesItOnce ) {
   MountedSwitch agent;
   agent.start();
   auto & mounter = *agent.mounter;
   Listener const listener( mounter );
   auto const expectRemoved = [&]( auto const & attribute, auto const & remove ) {
      auto const held = attribute();
      ASSERT_TRUE( held );
      EXPECT_EQ( remove(), held );
      EXPECT_FALSE( attribute() );
      EXPECT_FALSE( remove() );
   };
   expectRemoved( [&] { return mounter.udpDestPortConfigLocal(); },
                  [&] { return mounter.udpDestPortConfigLocalDel(); } );
   expectRemoved( [&] { return mounter.nexthopGroupCliDynamicUdpDestPortMergeSm(); },
                  [&] { return mounter.nexthopGroupCliDynamicUdpDestPortMergeSmDel(); } );
   expectRemoved( [&] { return mounter.dgConfig(); }, [&] { return mounter.dgConfigDel(); } );
   expectRemoved( [&] { return mounter.dgConfigMergeSm(); }, [&] { return mounter.dgConfigMergeSmDel(); } );
   expectRemoved( [&] { return mounter.prefixLensInExactMatchMergerSmV4(); },
                  [&] { return mounter.prefixLensInExactMatchMergerSmV4Del(); } );
   expectRemoved( [&] { return mounter.l3Sm(); }, [&] { return mounter.l3SmDel(); } );
   expectRemoved( [&] { return mounter.pluginRunnabilitySm(); }, [&] { return mounter.pluginRunnabilitySmDel(); } );
   EXPECT_EQ( listener.heard,
              ( Attributes{ Attribute::udpDestPortConfigLocal,
                            Attribute::nexthopGroupCliDynamicUdpDestPortMergeSm,
                            Attribute::dgConfig,
                            Attribute::dgConfigMergeSm,
                            Attribute::prefixLensInExactMatchMergerSmV4,
                            Attribute::l3Sm,
                            Attribute::pluginRunnabilitySm } ) );
}

TEST( MounterWiring, theMergedPortsAreDetachedBeforeTheirRemovalIsAnnounced ) {
   MountedSwitch agent;
   agent.start();
   auto const ports = agent.mounter->udpDestPortConfigLocal();
   ASSERT_EQ( ports->parent(), agent.mounter.get() );
   Rex::Entity const * parent = agent.mounter.get();
   Listener const listener( *agent.mounter, [&]( Attribute ) { parent = ports->parent(); } );
   agent.mounter->udpDestPortConfigLocalDel();
   EXPECT_EQ( parent, nullptr );
}

TEST( MounterWiring, theMounterIsInactiveBeforeItDropsAnything ) {
   MountedSwitch agent;
   agent.start();
   L3SmMounter const * const going = agent.mounter.get();
   agent.mounter->nodeFlagSet( Corvo::NodeFlag::notificationsActive, true );
   std::vector< bool > active;
   Listener const listener( *going, [&]( Attribute ) { active.push_back( going->hasNotificationActive() ); } );
   agent.mounter = nullptr;
   ASSERT_FALSE( active.empty() );
   EXPECT_EQ( active, std::vector< bool >( active.size(), false ) );
}

// At each announcement of the teardown: what still works. What goes is dropped after it was announced.
TEST( MounterWiring, teardownDropsTheMergeMachinesThenL3SmThenTheRunnabilityMachine ) {
   MountedSwitch agent( servedFap() );
   agent.start();
   auto const merged = agent.mounter->l3Sm()->arguments().mergedPrefixLensInExactMatchV4;
   std::map< std::string, Corvo::Ptr< Rex::Entity const > > const followed{
      { "merged ports", agent.sw.entity< Rex::Entity >( "routing/nexthopgroup/input/config" ) },
      { "merged groups", agent.sw.entity< Rex::Entity >( "routing/tunneldecap/input/cli" ) },
      { "merged lengths", agent.sw.entity< Rex::Entity >( "routing/hardware/route/status" ) },
      { "L3Sm", agent.sw.entity< Rex::Entity >( "routing/hardware/config" ) },
      { "runnability or L3Sm", agent.sw.entity< Rex::Entity >( "shared/sliceSmStateData" ) },
      { "FFC modifier or L3Sm", merged } };
   auto const working = [&] {
      std::string all;
      for ( auto const & [name, input] : followed ) {
         all += input->publisher()->hasSubscribers() ? name + ", " : "";
      }
      return all;
   };
   std::vector< std::pair< Attribute, std::string > > seen;
   Listener const listener( *agent.mounter, [&]( Attribute attribute ) { seen.emplace_back( attribute, working() ); } );
   agent.mounter = nullptr;
   std::string const rest = "FFC modifier or L3Sm, L3Sm, ";
   std::vector< std::pair< Attribute, std::string > > const expected{
      { Attribute::udpDestPortConfigLocal,
        rest + "merged groups, merged lengths, merged ports, runnability or L3Sm, " },
      { Attribute::nexthopGroupCliDynamicUdpDestPortMergeSm,
        rest + "merged groups, merged lengths, merged ports, runnability or L3Sm, " },
      { Attribute::dgConfig, rest + "merged groups, merged lengths, runnability or L3Sm, " },
      { Attribute::dgConfigMergeSm, rest + "merged groups, merged lengths, runnability or L3Sm, " },
      { Attribute::prefixLensInExactMatchMergerSmV4, rest + "merged lengths, runnability or L3Sm, " },
      { Attribute::l3Sm, rest + "runnability or L3Sm, " },
      { Attribute::pluginRunnabilitySm, "FFC modifier or L3Sm, runnability or L3Sm, " } };
   EXPECT_EQ( seen, expected );
   EXPECT_EQ( working(), "" );
}

// An input that tells when it is released.
template< class T >
class Told : public T {
 public:
   explicit Told( std::function< void() > gone ) : gone_( std::move( gone ) ) {}
   ~Told() override { gone_(); }

 private:
   std::function< void() > gone_;
};

TEST( MounterWiring, attributesAreReleasedFromTheLastToTheFirst ) {
   std::vector< std::string > released;
   auto const told = [&]< class T >( std::type_identity< T >, char const * name ) {
      return Corvo::makePtr< Told< T > >( [&released, name] { released.emplace_back( name ); } );
   };
   auto mounter = Corvo::makePtr< L3SmMounter >();
   mounter->agentGlobalStateIs( told( std::type_identity< DaceFapNi::AgentGlobalState >(), "agentGlobalState" ) );
   mounter->bridgingConfigIs( told( std::type_identity< Bridging::Config >(), "bridgingConfig" ) );
   mounter->hwCapabilitiesIs( told( std::type_identity< Bridging::HwCapabilities >(), "hwCapabilities" ) );
   mounter->episLocalDirIs( told( std::type_identity< Interface::EthPhyIntfStatusLocalDir >(), "episLocalDir" ) );
   mounter->mplsRoutingInfoIs( told( std::type_identity< Mpls::RoutingInfo >(), "mplsRoutingInfo" ) );
   mounter->mplsConfigIs( told( std::type_identity< Mpls::Config >(), "mplsConfig" ) );
   mounter->vtiStatusDirIs( told( std::type_identity< Vxlan::VtiStatusDir >(), "vtiStatusDir" ) );
   mounter->vxlanEcnConfigIs( told( std::type_identity< Vxlan::EcnConfig >(), "vxlanEcnConfig" ) );
   mounter->routingHwConfigIs( told( std::type_identity< Routing::Hardware::Config >(), "routingHwConfig" ) );
   mounter->sliceSmStateIs( told( std::type_identity< DaceFapNi::SliceSmStateInfo >(), "sliceSmState" ) );
   mounter->evpnStatusIs( told( std::type_identity< Evpn::EvpnStatus >(), "evpnStatus" ) );
   mounter->daceLagStatusIs( told( std::type_identity< Hardware::DaceLag::Status >(), "daceLagStatus" ) );
   mounter->routerMacHwCapabilityIs( told( std::type_identity< RouterMac::HwCapability >(), "routerMacHwCapability" ) );
   mounter->udpDestPortConfigIs(
      told( std::type_identity< L3::Tunnel::UdpDestinationPortConfig >(), "udpDestPortConfig" ) );
   mounter->nexthopGroupConfigInputIs( told( std::type_identity< Rex::Dir >(), "nexthopGroupConfigInput" ) );
   mounter = nullptr;
   EXPECT_EQ( released,
              ( std::vector< std::string >{ "nexthopGroupConfigInput",
                                            "udpDestPortConfig",
                                            "routerMacHwCapability",
                                            "daceLagStatus",
                                            "evpnStatus",
                                            "sliceSmState",
                                            "routingHwConfig",
                                            "vxlanEcnConfig",
                                            "vtiStatusDir",
                                            "mplsConfig",
                                            "mplsRoutingInfo",
                                            "episLocalDir",
                                            "hwCapabilities",
                                            "bridgingConfig",
                                            "agentGlobalState" } ) );
}

TEST( MounterWiring, theFfcModifierIsReleasedAheadOfAllOtherAttributes ) {
   MountedSwitch agent( servedFap() );
   agent.start();
   auto const merged = agent.mounter->l3Sm()->arguments().mergedPrefixLensInExactMatchV4;
   std::optional< bool > modifierWorks;
   agent.mounter->nexthopGroupConfigInputIs(
      Corvo::makePtr< Told< Rex::Dir > >( [&] { modifierWorks = merged->publisher()->hasSubscribers(); } ) );
   agent.mounter = nullptr;
   EXPECT_EQ( modifierWorks, false );
}

} // namespace
