// A long life: thousands of random changes of every input, on a switch with one FAP of each kind. Whatever happened,
// the chips end up as a fresh start with the final state leaves them.
#include "ChipFixture.h"
#include "rex/Log.h"

#include <random>

using namespace DaceFapNi;
using Object = Rex::Value::Object;

namespace {

constexpr int eventCount = 10000;

struct SoakCase {
   char const * name;
   unsigned seed;
   Toggle::Settings toggles;
   friend void PrintTo( SoakCase const & it, std::ostream * out ) { *out << it.name << " from seed " << it.seed; }
};

// Chip initialisation and the modifier of field copies are for these chips only where another plug-in hasn't taken
// over.
Toggle::Settings servedAnd( Toggle::Settings more = {} ) {
   more["Dace.json"]["ArmOrderedSwTable"] = false;
   return more;
}

SoakCase const soakCases[] = {
   { "withManagedInterfaces", 1, servedAnd( { { "VeloroSAI.json", { { "VeloroSAIMode", false } } } } ) },
   { "served", 2, servedAnd() },
   { "withoutVxlanToggles",
     3,
     servedAnd( { { "Dace.json", { { "CampusVtepToVtepBridgingGen4", false } } },
                  { "DaceToggles.json", { { "DaceVxlanMplsDciMhDchVxlanPfd", false } } } } ) },
   { "notServedByPortProfile", 4, { { "DaceL3Unicast.json", { { "UnifiedIPv4Fwd2Ctx", false } } } } },
};

std::string const vtis = "interface/status/eth/vxlan";
std::string const lagSlots = "hardware/dace/lag/daceLagStatus";
std::string const ports = "shared/portStateInfo";
std::string const decapCli = "routing/tunneldecap/input/cli";
std::string const decapBgp = "routing/tunneldecap/input/dynamic/bgp";
std::string const guePorts = "l3/tunnel/udpDestinationPortConfig";
std::string const labels = "routing/mpls/routingInfo/status";
std::string const parser = "routing/mpls/config";
std::string const intfConfig = "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/Ethernet";
std::string const intfStatus = "shared/phySmStateSharedStatus/allEthPhyIntfStatusDir/intfStatus/Ethernet";

class Life {
 public:
   Life( Simulator::SimulatedSwitch & sw, unsigned seed ) : sw_( sw ), random_( seed ) {}

   // One random event. False if it was none: what was to be removed or changed isn't there.
   bool event() {
      try {
         ( this->*oneOf( events ) )();
         return true;
      } catch ( Rex::ValueError const & ) {
         return false;
      }
   }

 private:
   unsigned below( unsigned limit ) { return static_cast< unsigned >( random_() % limit ); }
   bool coin() { return below( 2 ) == 1; }
   std::string number( unsigned count ) { return std::to_string( below( count ) + 1 ); }
   template< class T, std::size_t count >
   T const & oneOf( T const ( &all )[count] ) {
      return all[below( count )];
   }
   unsigned port() {
      static constexpr unsigned some[] = { 0, 4789, 4790, 6635, 7000, 65535 };
      return oneOf( some );
   }
   std::string mac() { return "02:00:00:00:00:0" + number( 9 ); }

   struct Flag {
      char const * path;
      char const * attribute;
   };
   void flag() {
      static constexpr Flag flags[] = { { "evpn/status", "vxlanEnabled" },
                                        { "evpn/status", "mplsEnabled" },
                                        { "evpn/status", "evpnDciEnabled" },
                                        { "interface/status/eth/vxlan", "decapRouteAll" },
                                        { "vxlan/ecnConfig", "dscpEcnRewriteBridged" },
                                        { "routing/mpls/routingInfo/status", "mplsLookupFallbackIp" },
                                        { "routing/mpls/config", "parserSettingsConfigured" },
                                        { "routing/hardware/config", "urpfLooseFailForward" },
                                        { "routing/hardware/config", "urpfStrictFailForward" } };
      auto const & it = oneOf( flags );
      sw_.set( it.path, it.attribute, coin() );
   }
   void scalar() {
      switch ( below( 6 ) ) {
      case 0:
         return sw_.set( labels, "mplsLookupLabelCount", 1 + below( 2 ) );
      case 1:
         return sw_.set( parser, "parserSetting" + std::to_string( below( 4 ) ), coin() ? 255 : below( 8 ) );
      case 2:
         return sw_.set( "shared/driverSetupSmStateInfo", "ucodeProfile", 2 + below( 2 ) );
      case 3:
         return sw_.set( "shared/sliceSmStateData", "smMode", 1 + below( 3 ) );
      case 4:
         return sw_.set( "interface/config/global", "l3Mtu", 1500 + below( 2 ) * 7500 );
      default:
         return sw_.set( "bridging/config", "bridgeMacAddr", mac() );
      }
   }
   void vti() {
      auto const name = "Vxlan" + number( 3 );
      if ( coin() ) {
         sw_.setEntry( vtis,
                       "vtiStatus",
                       name,
                       Object{ { "udpPort", port() },
                               { "secUdpPort", port() },
                               { "remoteVxlanDomain", coin() },
                               { "vtepToVtepBridging", coin() } } );
      } else {
         sw_.deleteEntry( vtis, "vtiStatus", name );
      }
   }
   void vtiAttribute() {
      auto const path = vtis + "/vtiStatus/Vxlan" + number( 3 );
      static constexpr char const * attributes[] = {
         "udpPort", "secUdpPort", "remoteVxlanDomain", "vtepToVtepBridging" };
      auto const which = below( 4 );
      sw_.set( path, attributes[which], which < 2 ? Rex::Value( port() ) : Rex::Value( coin() ) );
   }
   void prefixLength() {
      static constexpr unsigned lengths[] = { 16, 21, 24, 32 };
      if ( coin() ) {
         sw_.setEntry( "routing/hardware/route/status", "prefixLensInExactMatch", number( 4 ), oneOf( lengths ) );
      } else {
         sw_.deleteEntry( "routing/hardware/route/status", "prefixLensInExactMatch", number( 4 ) );
      }
   }
   void guePort() {
      if ( coin() ) {
         sw_.setEntry( guePorts, "udpDestPort", number( 4 ), port() );
      } else {
         sw_.deleteEntry( guePorts, "udpDestPort", number( 4 ) );
      }
   }
   void decapGroup() {
      auto const & path = coin() ? decapCli : decapBgp;
      static constexpr unsigned payloads[] = { 1, 1, 3, 4 };
      static constexpr char const * groups[] = { "6635", "6636", "7000" };
      switch ( below( 3 ) ) {
      case 0:
         return sw_.setEntry( path, "decapGroup", oneOf( groups ), Object{ { "payloadType", oneOf( payloads ) } } );
      case 1:
         return sw_.deleteEntry( path, "decapGroup", oneOf( groups ) );
      default:
         return sw_.set( path + "/decapGroup/" + oneOf( groups ), "payloadType", oneOf( payloads ) );
      }
   }
   void slotLoadBalance() {
      auto const slot = std::to_string( below( 2 ) );
      switch ( below( 3 ) ) {
      case 0:
         return sw_.setEntry( lagSlots, "slotLoadBalance", slot, Object{ { "guePktTypeHashMode", below( 3 ) } } );
      case 1:
         return sw_.deleteEntry( lagSlots, "slotLoadBalance", slot );
      default:
         return sw_.set( lagSlots + "/slotLoadBalance/" + slot, "guePktTypeHashMode", below( 3 ) );
      }
   }
   void portState() {
      auto const port = number( 4 );
      switch ( below( 4 ) ) {
      case 0:
         return sw_.setEntry(
            ports, "portState", port, Object{ { "intfId", "Ethernet" + port }, { "active", coin() } } );
      case 1:
         return sw_.deleteEntry( ports, "portState", port );
      case 2:
         return sw_.set( ports + "/portState/" + port, "active", coin() );
      default:
         return sw_.set( ports + "/portState/" + port, "portGenId", below( 1000 ) );
      }
   }
   void interface() {
      auto const config = intfConfig + number( 4 );
      auto const status = intfStatus + number( 4 );
      switch ( below( 5 ) ) {
      case 0:
         return sw_.set( config, "enabled", coin() );
      case 1:
         return sw_.set( config, "mtu", below( 2 ) * 9000 );
      case 2:
         return sw_.set( config, "addr", coin() ? mac() : "00:00:00:00:00:00" );
      case 3:
         return sw_.set( status, "forwardingModel", below( 3 ) );
      default:
         return sw_.set( status, "burnedInAddr", mac() );
      }
   }
   void subinterface() {
      auto const parent = "Ethernet" + number( 4 );
      auto const name = parent + "." + number( 2 );
      auto const path = coin() ? std::string( "interface/status/subintf" ) : "interface/status/subintf/local";
      auto const * const collection = path.ends_with( "local" ) ? "intfStatusLocal" : "intfStatus";
      if ( coin() ) {
         sw_.setEntry(
            path, collection, name, path.ends_with( "local" ) ? Object{} : Object{ { "parentIntfId", parent } } );
      } else {
         sw_.deleteEntry( path, collection, name );
      }
   }

   static constexpr void ( Life::*events[] )() = { &Life::flag,
                                                   &Life::scalar,
                                                   &Life::vti,
                                                   &Life::vtiAttribute,
                                                   &Life::prefixLength,
                                                   &Life::guePort,
                                                   &Life::decapGroup,
                                                   &Life::slotLoadBalance,
                                                   &Life::portState,
                                                   &Life::interface,
                                                   &Life::subinterface };

   Simulator::SimulatedSwitch & sw_;
   std::mt19937 random_;
};

class SoakTest : public testing::TestWithParam< SoakCase > {
 public:
   static Simulator::SwitchDescription description() {
      Simulator::SwitchDescription all{ .toggles = GetParam().toggles,
                                        .journalled = Simulator::SwitchDescription::Journalled::none };
      for ( U16 number = 0; auto const kind : Hardware::allChipTypes ) {
         all.faps.push_back( { .fapId = FapId( number ),
                               .cores = copiesOf( kind ),
                               .ports = { { 1, 10 }, { 2, 11 } },
                               .revision = revisionOf( kind ) } );
         ++number;
      }
      return all;
   }
   static std::vector< Simulator::Contents > contentsOf( Simulator::SimulatedSwitch const & sw ) {
      std::vector< Simulator::Contents > all;
      for ( auto const & fap : sw.description().faps ) {
         all.push_back( Simulator::contentsOf( sw.chip( fap.fapId ), fap.revision.chipType() ) );
      }
      return all;
   }
   // Interfaces stay: serving one without its directories' entries ends the process by design.
   static void interfacesAre( Simulator::SimulatedSwitch & sw ) {
      Object intfs;
      for ( int const intf : { 1, 2, 3, 4 } ) {
         intfs.emplace( "Ethernet" + std::to_string( intf ), Object{} );
      }
      sw.setAttributes( "shared/phySmStateData",
                        Object{ { "allEthPhyIntfConfigDir", Object{ { "intfConfig", intfs } } } } );
      sw.setAttributes( "shared/phySmStateSharedStatus",
                        Object{ { "allEthPhyIntfStatusDir", Object{ { "intfStatus", intfs } } } } );
      sw.setAttributes( "interface/status/eth/phy/local", Object{ { "intfStatusLocal", intfs } } );
   }
   // What follows more than the present state is brought to where only that counts:
   static void settle( Simulator::SimulatedSwitch & sw ) {
      // A withdrawn load-balance configuration of the own slot leaves its last programming.
      sw.setEntry( lagSlots, "slotLoadBalance", "0", Object{ { "guePktTypeHashMode", 2 } } );
      // Several VTIs share one VXLAN port of each kind, and the last to speak has it; one that goes turns it off.
      for ( auto const * const name : { "Vxlan1", "Vxlan2", "Vxlan3" } ) {
         sw.setEntry( vtis, "vtiStatus", name, Object{} );
         sw.deleteEntry( vtis, "vtiStatus", name );
      }
      sw.setEntry( vtis,
                   "vtiStatus",
                   "Vxlan1",
                   Object{ { "udpPort", 4789 }, { "secUdpPort", 4790 }, { "vtepToVtepBridging", true } } );
      // Among several decap groups the latest has the MPLS port; a configured port counts before them all.
      sw.setEntry( guePorts, "udpDestPort", "1", 6635 );
      // Where the MPLS settings contradict each other, and on other microcode, nothing is programmed.
      sw.set( "shared/driverSetupSmStateInfo", "ucodeProfile", 2 );
      sw.set( labels, "mplsLookupFallbackIp", false );
      again( sw, labels, "mplsLookupLabelCount", 1, 2 );
      again( sw, labels, "mplsLookupFallbackIp", true, false );
      sw.set( labels, "mplsLookupLabelCount", 1 );
      sw.set( labels, "mplsLookupFallbackIp", true );
      // A setting of the parser takes effect when all of them are said to be configured or not to be.
      sw.set( parser, "parserSettingsConfigured", false );
      sw.set( parser, "parserSettingsConfigured", true );
      followQos( sw );
   }
   // The table of the encapsulation programs follows the switch from its first change on.
   static void followQos( Simulator::SimulatedSwitch & sw ) {
      bool const enabled = sw.entity< Vxlan::EcnConfig >( "vxlan/ecnConfig" )->dscpEcnRewriteBridged();
      again( sw, "vxlan/ecnConfig", "dscpEcnRewriteBridged", !enabled, enabled );
   }
   static void again( Simulator::SimulatedSwitch & sw,
                      std::string const & path,
                      std::string const & attribute,
                      Rex::Value const & other,
                      Rex::Value const & value ) {
      sw.set( path, attribute, other );
      sw.set( path, attribute, value );
   }
   // Everything that other agents set, as of now.
   static std::map< std::string, Rex::Value > stateOf( Simulator::SimulatedSwitch const & sw ) {
      auto const all = sw.state().value();
      std::map< std::string, Rex::Value > state;
      for ( auto const & root : Simulator::stateRoots() ) {
         if ( root.kind == Simulator::StateRoot::Kind::state && root.path() != "shared/agentGlobalState" ) {
            Rex::Value value = all.object()->at( root.path() );
            if ( root.path() == "shared/sliceSmStateData" ) {
               Object without = *value.object();
               without.erase( "sliceState" ); // the agent brings the slice up itself
               value = without;
            }
            state.emplace( root.path(), value );
         }
      }
      return state;
   }
};

TEST_P( SoakTest, endsAsAFreshStartWithTheFinalStateDoes ) {
   auto const nodes = Corvo::Node::liveCount();
   Rex::logSinkIs( []( auto const & ) {} ); // contradicting MPLS settings are reported again and again
   std::map< std::string, Rex::Value > state;
   std::vector< Simulator::Contents > lived;
   {
      Simulator::SimulatedSwitch sw( description() );
      interfacesAre( sw );
      sw.start();
      Life life( sw, GetParam().seed );
      for ( int event = 0; event < eventCount; ) {
         event += life.event() ? 1 : 0;
      }
      settle( sw );
      lived = contentsOf( sw );
      state = stateOf( sw );
   }
   EXPECT_EQ( Corvo::Node::liveCount(), nodes );

   Simulator::SimulatedSwitch fresh( description() );
   for ( auto const & [path, attributes] : state ) {
      fresh.setAttributes( path, attributes );
   }
   fresh.start();
   followQos( fresh );
   auto const expected = contentsOf( fresh );
   for ( std::size_t fap = 0; fap < expected.size(); ++fap ) {
      EXPECT_EQ( lived[fap].controls, expected[fap].controls ) << "FAP " << fap;
      for ( auto const & [table, contents] : expected[fap].tables ) {
         EXPECT_TRUE( lived[fap].tables.at( table ) == contents ) << "FAP " << fap << " " << table;
      }
   }
}

INSTANTIATE_TEST_SUITE_P( Lives, SoakTest, testing::ValuesIn( soakCases ), []( auto const & soak ) {
   return soak.param.name;
} );

} // namespace
