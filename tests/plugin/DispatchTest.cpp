// Every row of the dispatch tables of all state machines: the change of the attribute reaches its handlers and no
// others, and no other attribute of the input reaches anything.
#include "BuildFolder.h"
#include "MountedSwitch.h"
#include "RexIpIntfConfigFilter.h"

#include <set>

using namespace DaceFapNi;
using Object = Rex::Value::Object;

namespace {

using Names = std::set< std::string >;

struct Row {
   std::string input;
   short attribute;
   std::function< void() > change;
   Names reaches;
};

// The functions that have spoken: those that begin a trace of the plug-in, and those that worked on a chip.
class Heard {
 public:
   explicit Heard( Simulator::Journal const & journal ) : journal_( journal ), seen_( journal.rows().size() ) {
      Rex::traceSinkIs( [this]( Rex::TraceRecord const & record ) {
         std::string const & text = record.text;
         auto name = text.substr( 0, text.find_first_of( " ,." ) );
         while ( name.ends_with( ':' ) ) {
            name.pop_back();
         }
         names_.insert( name );
      } );
      for ( auto const * facility : facilities ) {
         Rex::traceLevelIs( facility, 9 );
      }
   }
   ~Heard() {
      for ( auto const * facility : facilities ) {
         Rex::traceLevelIs( facility, -1 );
      }
      Rex::traceSinkIs( {} );
   }
   Heard( Heard const & ) = delete;
   Heard & operator=( Heard const & ) = delete;

   // Since the last call.
   Names take() {
      auto const rows = journal_.rows();
      for ( ; seen_ < rows.size(); ++seen_ ) {
         if ( rows[seen_].isOperation() ) {
            names_.emplace( rows[seen_].function );
         }
      }
      return std::exchange( names_, {} );
   }

 private:
   static constexpr char const * facilities[] = { "DaceFapNiL3Sm",
                                                  "DaceFapNiGueNexthopGroupSm",
                                                  "DaceFapNiMplsParser",
                                                  "DaceFapNiRemFfcModifierSm",
                                                  "DaceFapNiL3Vxlan" };
   Simulator::Journal const & journal_;
   std::size_t seen_;
   Names names_;
};

class DispatchTest : public testing::Test {
 public:
   DispatchTest() {
      auto const intf = []( char const * collection ) {
         return Object{ { collection, Object{ { "Ethernet1", Object{} }, { "Ethernet2", Object{} } } } };
      };
      sw.setAttributes( "interface/status/eth/vxlan", Object{ { "vtiStatus", Object{ { "Vxlan1", Object{} } } } } );
      sw.setAttributes( "hardware/dace/lag/daceLagStatus",
                        Object{ { "slotLoadBalance", Object{ { "0", Object{} } } } } );
      sw.setAttributes( "routing/mpls/routingInfo/status", Object{ { "mplsLookupLabelCount", 2 } } );
      sw.setAttributes( "shared/phySmStateData", Object{ { "allEthPhyIntfConfigDir", intf( "intfConfig" ) } } );
      sw.setAttributes( "shared/phySmStateSharedStatus", Object{ { "allEthPhyIntfStatusDir", intf( "intfStatus" ) } } );
      sw.setAttributes( "interface/status/eth/phy/local", intf( "intfStatusLocal" ) );
      sw.setAttributes(
         "shared/portStateInfo",
         Object{ { "portState", Object{ { "1", Object{ { "intfId", "Ethernet1" }, { "active", true } } } } } } );
      sw.setAttributes( "shared/sliceSmStateData", Object{ { "smMode", 3 } } ); // standby
      agent.start();
   }

   std::function< void() > set( std::string const & path, std::string const & attribute, Rex::Value const & value ) {
      return [this, path, attribute, value] { sw.set( path, attribute, value ); };
   }
   std::function< void() > setEntry( std::string const & path,
                                     std::string const & attribute,
                                     std::string const & key,
                                     Rex::Value const & value ) {
      return [this, path, attribute, key, value] { sw.setEntry( path, attribute, key, value ); };
   }
   L3IntfSm::RexIpIntfConfigFilter & filter() const {
      return *agent.mounter->l3Sm()->l3IntfSm()->rexIpIntfConfigFilter( Netka::IntfId( "Ethernet1" ) );
   }
   // An input by its path, or by its name where it has none.
   Corvo::Ptr< Rex::Entity const > input( std::string const & name ) const {
      auto const & arguments = agent.mounter->l3Sm()->arguments();
      if ( name == "merged prefix lengths" ) {
         return arguments.mergedPrefixLensInExactMatchV4;
      }
      if ( name == "merged decap groups" ) {
         return arguments.dgConfig;
      }
      if ( name == "effective MTU of Ethernet1" ) {
         return filter().effectiveL3Mtu()->notifier();
      }
      if ( name == "MTU walk of Ethernet1" ) {
         return filter().syncMtuSubIntfSm()->notifier();
      }
      return sw.entity< Rex::Entity const >( name );
   }

   static Simulator::SwitchDescription everythingBuilt() {
      auto description = ::Test::oneFap();
      description.toggles = ::Test::served(); // with the modifier of field copies
      description.toggles["VeloroSAI.json"]["VeloroSAIMode"] = false;
      return description;
   }
   ::Test::MountedSwitch agent{ everythingBuilt() };
   Simulator::SimulatedSwitch & sw = agent.sw;

   // In an order in which each change is one, and none hides the next.
   std::vector< Row > rows() {
      std::string const vtis = "interface/status/eth/vxlan";
      std::string const vxlan1 = vtis + "/vtiStatus/Vxlan1";
      std::string const config = "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/Ethernet1";
      std::string const status = "shared/phySmStateSharedStatus/allEthPhyIntfStatusDir/intfStatus/Ethernet1";
      char const * const mtu = "IpIntfConfigFilter::handleMtuOrForwardingModel";
      char const * const addr = "IpIntfConfigFilter::handleAddr";
      char const * const ports = "handlePortState";
      char const * const destPort = "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestUdpPort";
      char const * const securityPort = "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestSecUdpPort";
      char const * const flood = "DaceL3UnicastVtiStatusDirSm::doSetupVxlanFloodSet";
      char const * const splitHorizon = "VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg";
      char const * const fallback = "L3Sm::setupMplsLookupFbIpFwdContext";
      char const * const hashMode = "handleGuePktTypeHashModeConfig";
      return {
         // L3IntfSm and its filters
         { "shared/sliceSmStateData", 0x109, set( "shared/sliceSmStateData", "smMode", 2 ), { mtu, addr } },
         { "shared/portStateInfo",
           0x102,
           setEntry(
              "shared/portStateInfo", "portState", "2", Object{ { "intfId", "Ethernet2" }, { "active", true } } ),
           { ports, mtu, addr } },
         { "shared/portStateInfo/portState/1",
           0x8f,
           set( "shared/portStateInfo/portState/1", "portGenId", 1 ),
           { ports } },
         { config,
           0x10f,
           set( config, "enabled", false ),
           { mtu } }, // from here on MTU handling stops before addresses
         { config, 0x182, set( config, "addr", "02:00:00:00:00:01" ), { addr } },
         { status, 0x106, set( status, "forwardingModel", 1 ), { mtu } },
         { status, 0x108, set( status, "burnedInAddr", "02:00:00:00:00:02" ), { mtu } },
         { "effective MTU of Ethernet1", 0x82, set( config, "mtu", 9000 ), { mtu } },
         { "MTU walk of Ethernet1",
           0x18c,
           [this] {
              filter().syncMtuSubIntfSm()->notifier()->syncMtuResultIs(
                 Interface::SyncMtuResult::SyncMtuResultType{ 2 } );
           },
           { mtu } },

         // L3Sm's own
         { "routing/mpls/routingInfo/status",
           0x105,
           set( "routing/mpls/routingInfo/status", "mplsLookupLabelCount", 1 ),
           { "L3Sm::setupMplsFwdContext" } },
         { "routing/mpls/routingInfo/status",
           0x106,
           set( "routing/mpls/routingInfo/status", "mplsLookupFallbackIp", true ),
           { fallback } },
         { "shared/driverSetupSmStateInfo",
           0x103,
           set( "shared/driverSetupSmStateInfo", "ucodeProfile", 3 ),
           { fallback } },
         { "routing/hardware/config",
           0x192,
           set( "routing/hardware/config", "urpfLooseFailForward", true ),
           { "handleLooseUrpfFailFwdConfig" } },
         { "routing/hardware/config",
           0x193,
           set( "routing/hardware/config", "urpfStrictFailForward", true ),
           { "handleStrictUrpfFailFwdConfig" } },
         { "hardware/dace/lag/daceLagStatus/slotLoadBalance/0",
           0x124,
           set( "hardware/dace/lag/daceLagStatus/slotLoadBalance/0", "guePktTypeHashMode", 2 ),
           { hashMode } },
         { "hardware/dace/lag/daceLagStatus",
           0x106,
           setEntry( "hardware/dace/lag/daceLagStatus", "slotLoadBalance", "0", Object{} ),
           { hashMode } },

         // those that L3Sm shares with others
         { "merged prefix lengths",
           0x102,
           setEntry( "routing/hardware/route/status", "prefixLensInExactMatch", "1", 24 ),
           { "L3Sm::handlePrefixLensInExactMatch", "RemFfcModifierSm::handlePrefixLengthInExactMatch" } },
         { "evpn/status", 0x102, set( "evpn/status", "vxlanEnabled", true ), { "L3Sm::handleEvpnEncapType" } },
         { "evpn/status",
           0x106,
           set( "evpn/status", "evpnDciEnabled", true ),
           { "L3Sm::handleEvpnDciGateway", splitHorizon } },
         { vtis, 0x187, set( vtis, "decapRouteAll", true ), { "L3Sm::handleDecapRouteAll" } },
         { vtis,
           0x182,
           setEntry( vtis, "vtiStatus", "Vxlan2", Object{} ),
           { destPort, securityPort, flood, splitHorizon } },
         { vxlan1, 0x202, set( vxlan1, "udpPort", 4789 ), { destPort } },
         { vxlan1, 0x203, set( vxlan1, "secUdpPort", 4790 ), { securityPort } },
         { vxlan1, 0x231, set( vxlan1, "remoteVxlanDomain", true ), { flood } },
         { vxlan1, 0x232, set( vxlan1, "vtepToVtepBridging", true ), { flood, splitHorizon } },

         // those of the other children
         { "vxlan/ecnConfig",
           0x104,
           set( "vxlan/ecnConfig", "dscpEcnRewriteBridged", true ),
           { "VxlanQosSm::handleBridgedQosPropagationEnabled" } },
         { "merged decap groups",
           0x82,
           setEntry( "routing/tunneldecap/input/cli", "decapGroup", "6635", Object{ { "payloadType", 1 } } ),
           { "GueNexthopGroupSm::handleDecapGroupDestPortConfig" } },
         { "l3/tunnel/udpDestinationPortConfig",
           0x102,
           setEntry( "l3/tunnel/udpDestinationPortConfig", "udpDestPort", "3", 6081 ),
           { "GueNexthopGroupSm::handleGueDestPortConfig" } },
         { "routing/mpls/config",
           0x117,
           set( "routing/mpls/config", "parserSettingsConfigured", true ),
           { "DaceL3UnicastMplsParserCfgSm::handleParserConfig" } },

         // last, as they take new directories into the tree
         { "shared/phySmStateData",
           0x10b,
           set( "shared/phySmStateData", "allEthPhyIntfConfigDir", Object{} ),
           { "L3Sm::handleInitialized" } },
         { "shared/phySmStateSharedStatus",
           0x104,
           set( "shared/phySmStateSharedStatus", "allEthPhyIntfStatusDir", Object{} ),
           { "L3Sm::handleInitialized" } },
      };
   }
};

TEST_F( DispatchTest, eachAttributeReachesItsHandlersAndNoOthers ) {
   auto const all = rows();
   Names handlers;
   for ( auto const & row : all ) {
      handlers.insert( row.reaches.begin(), row.reaches.end() );
   }
   Heard heard( sw.journal() );
   for ( auto const & row : all ) {
      row.change();
      Names reached;
      std::ranges::set_intersection( heard.take(), handlers, std::inserter( reached, reached.end() ) );
      EXPECT_EQ( reached, row.reaches ) << row.input << " attribute 0x" << std::hex << row.attribute;
   }
}

TEST_F( DispatchTest, noOtherAttributeReachesAnything ) {
   std::map< std::string, std::set< short > > served;
   for ( auto const & row : rows() ) {
      served[row.input].insert( row.attribute );
   }
   ASSERT_EQ( served.size(), 22u );
   Heard heard( sw.journal() );
   for ( auto const & [name, attributes] : served ) {
      auto const entity = input( name );
      ASSERT_TRUE( entity ) << name;
      for ( auto const & attribute : entity->typeData().attributes() ) {
         ASSERT_LT( attribute->id, 0x300 );
      }
      // What nobody serves takes one way; some are enough for the sanitizers.
      for ( short id = 0; id < 0x300; id += isSanitized() ? 7 : 1 ) {
         if ( !attributes.contains( id ) ) {
            entity->publisher()->publish( id );
            EXPECT_EQ( heard.take(), Names{} ) << name << " attribute 0x" << std::hex << id;
         }
      }
   }
}

// Entries of keyed attributes are kept in step in a zombie, too.
TEST_F( DispatchTest, singleAttributesReachNothingInAZombie ) {
   Names const keyed{
      "shared/portStateInfo 102", "hardware/dace/lag/daceLagStatus 106", "interface/status/eth/vxlan 182" };
   auto const & l3Sm = agent.mounter->l3Sm();
   l3Sm->vtiStatusDirSm()->rexDoZombieReactors( true );
   l3Sm->vxlanSplitHorizonCfgSm()->rexDoZombieReactors( true );
   l3Sm->vxlanQosSm()->rexDoZombieReactors( true );
   l3Sm->nexthopGroupSm()->rexDoZombieReactors( true );
   l3Sm->rexDoZombieReactors( true );
   Names const own{ "shared/phySmStateData",
                    "shared/phySmStateSharedStatus",
                    "routing/mpls/routingInfo/status",
                    "shared/driverSetupSmStateInfo",
                    "routing/hardware/config",
                    "hardware/dace/lag/daceLagStatus/slotLoadBalance/0",
                    "evpn/status",
                    "interface/status/eth/vxlan",
                    "interface/status/eth/vxlan/vtiStatus/Vxlan1",
                    "vxlan/ecnConfig",
                    "merged decap groups",
                    "l3/tunnel/udpDestinationPortConfig" };
   Heard heard( sw.journal() );
   std::size_t looked = 0;
   for ( auto const & row : rows() ) {
      std::ostringstream place;
      place << row.input << ' ' << std::hex << row.attribute;
      if ( own.contains( row.input ) && !keyed.contains( place.str() ) ) {
         row.change();
         EXPECT_EQ( heard.take(), Names{} ) << place.str();
         ++looked;
      }
   }
   EXPECT_EQ( looked, 18u );
}

} // namespace
