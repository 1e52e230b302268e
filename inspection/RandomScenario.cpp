#include "inspection/RandomScenario.h"

#include "inspection/KnownToggles.h"

#include <random>

namespace Inspection {

namespace {

using Rex::Value;
using Object = Value::Object;

// An attribute that changes, with the keys of its entries and the values that it is given.
struct Input {
   std::string path;
   std::string attribute;
   std::vector< std::string > keys; // none: it has no entries
   std::vector< Value > values;
};

std::vector< Value > const flags{ false, true };
std::vector< Value > const udpPorts{ 0, 4789, 4790, 6635, 7000, 65535 };
std::vector< std::string > const interfaces{ "Ethernet1", "Ethernet2", "Ethernet3" };

std::vector< Input > inputs() {
   std::string const vtis = "interface/status/eth/vxlan";
   std::string const decapCli = "routing/tunneldecap/input/cli";
   std::string const decapBgp = "routing/tunneldecap/input/dynamic/bgp";
   std::string const slots = "hardware/dace/lag/daceLagStatus";
   std::string const configs = "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/";
   std::string const statuses = "shared/phySmStateSharedStatus/allEthPhyIntfStatusDir/intfStatus/";
   std::vector< std::string > const udpPortKeys{ "6635", "6636", "7000" };
   auto const group = []( int payload ) { return Value( Object{ { "payloadType", payload } } ); };
   auto const mode = []( int hashMode ) { return Value( Object{ { "guePktTypeHashMode", hashMode } } ); };
   std::vector< Input > all{
      { "evpn/status", "vxlanEnabled", {}, flags },
      { "evpn/status", "mplsEnabled", {}, flags },
      { "evpn/status", "evpnDciEnabled", {}, flags },
      { vtis, "decapRouteAll", {}, flags },
      { "vxlan/ecnConfig", "dscpEcnRewriteBridged", {}, flags },
      { "routing/hardware/config", "urpfLooseFailForward", {}, flags },
      { "routing/hardware/config", "urpfStrictFailForward", {}, flags },
      { "routing/mpls/routingInfo/status", "mplsLookupFallbackIp", {}, flags },
      { "routing/mpls/routingInfo/status", "mplsLookupLabelCount", {}, { 1, 2 } },
      { "routing/mpls/config", "parserSettingsConfigured", {}, flags },
      { "routing/mpls/config", "parserSetting0", {}, { 255, 0, 3, 7 } },
      { "routing/mpls/config", "parserSetting2", {}, { 255, 1, 5 } },
      { "shared/driverSetupSmStateInfo", "ucodeProfile", {}, { 2, 3 } },
      { "shared/sliceSmStateData", "smMode", {}, { 1, 2, 3 } },
      { "interface/config/global", "l3Mtu", {}, { 1500, 9000 } },
      { "bridging/config", "bridgeMacAddr", {}, { "02:00:00:00:00:01", "02:00:00:00:00:02" } },
      { "routing/hardware/route/status", "prefixLensInExactMatch", { "1", "2", "3" }, { 16, 21, 24, 32 } },
      { "l3/tunnel/udpDestinationPortConfig", "udpDestPort", { "1", "3", "4" }, udpPorts },
      { decapCli, "decapGroup", udpPortKeys, { group( 1 ), group( 3 ) } },
      { decapBgp, "decapGroup", udpPortKeys, { group( 1 ), group( 4 ) } },
      { slots, "slotLoadBalance", { "0", "1" }, { mode( 0 ), mode( 1 ), mode( 2 ) } },
      { vtis,
        "vtiStatus",
        { "Vxlan1", "Vxlan2" },
        { Object{ { "udpPort", 4789 }, { "vtepToVtepBridging", true } },
          Object{ { "secUdpPort", 4790 }, { "remoteVxlanDomain", true } } } },
      { "shared/portStateInfo",
        "portState",
        { "1", "2" },
        { Object{ { "intfId", "Ethernet1" }, { "active", true } }, Object{ { "intfId", "Ethernet2" } } } },
      { "interface/status/subintf",
        "intfStatus",
        { "Ethernet1.1", "Ethernet2.1" },
        { Object{ { "parentIntfId", "Ethernet1" } }, Object{ { "parentIntfId", "Ethernet2" } } } },
      { "interface/status/subintf/local", "intfStatusLocal", { "Ethernet1.1" }, { Object{} } },
   };
   for ( auto const & vti : { "Vxlan1", "Vxlan2" } ) {
      all.push_back( { vtis + "/vtiStatus/" + vti, "udpPort", {}, udpPorts } );
      all.push_back( { vtis + "/vtiStatus/" + vti, "vtepToVtepBridging", {}, flags } );
   }
   for ( auto const & port : { "1", "2" } ) {
      all.push_back( { std::string( "shared/portStateInfo/portState/" ) + port, "active", {}, flags } );
      all.push_back( { std::string( "shared/portStateInfo/portState/" ) + port, "portGenId", {}, { 1, 2, 3 } } );
   }
   for ( auto const & intf : interfaces ) {
      all.push_back( { configs + intf, "enabled", {}, flags } );
      all.push_back( { configs + intf, "mtu", {}, { 0, 9000 } } );
      all.push_back( { configs + intf, "addr", {}, { "00:00:00:00:00:00", "02:00:00:00:00:05" } } );
      all.push_back( { statuses + intf, "burnedInAddr", {}, { "02:00:00:00:00:06", "02:00:00:00:00:07" } } );
   }
   return all;
}

Hardware::ChipType anyChip( Choice const & choose ) {
   return Hardware::allChipTypes[choose( Hardware::allChipTypes.size() )];
}

// True once in so many times.
bool oneIn( std::size_t many, Choice const & choose ) {
   return choose( many ) == many - 1;
}

Simulator::SwitchDescription anySwitch( Choice const & choose, RandomScenarioOptions const & options ) {
   Simulator::SwitchDescription description;
   auto chips = options.chipTypes;
   if ( chips.empty() ) {
      chips.push_back( anyChip( choose ) );
      if ( oneIn( 2, choose ) ) {
         chips.push_back( anyChip( choose ) );
      }
   }
   for ( U16 number = 0; auto const chip : chips ) {
      U32 const sdkVersion = oneIn( 4, choose ) ? 6 : 7;
      description.faps.push_back( { .fapId = Hardware::Dace::FapId( number++ ),
                                    .ports = { { 1, 10 }, { 2, 11 } },
                                    .revision = { Hardware::Dace::fapRevMajorOf( chip ), chip, sdkVersion } } );
   }
   // With all at their defaults nothing is programmed at the start.
   description.toggles["Dace.json"]["ArmOrderedSwTable"] = options.toggles && oneIn( 7, choose );
   if ( options.toggles ) {
      for ( auto const & toggle : knownToggles() ) {
         // With this one off, a prefix length in the exact match ends the process by design.
         bool const endsProcess = toggle.name == "UnifiedIPv4Fwd2Ctx";
         if ( oneIn( 6, choose ) && !endsProcess ) {
            description.toggles[std::string( toggle.file )].emplace( toggle.name, false );
         }
      }
   }
   return description;
}

} // namespace

Choice chanceOf( U64 seed ) {
   // The standard's distributions differ between libraries; a remainder doesn't.
   return [engine = std::mt19937_64( seed )]( std::size_t many ) mutable {
      return static_cast< std::size_t >( engine() % many );
   };
}

Event randomEvent( Choice const & choose ) {
   static std::vector< Input > const all = inputs();
   Input const & input = all[choose( all.size() )];
   Event event;
   event.path = input.path;
   event.attribute = input.attribute;
   if ( !input.keys.empty() ) {
      event.key = input.keys[choose( input.keys.size() )];
      event.kind = oneIn( 3, choose ) ? Event::Kind::remove : Event::Kind::set;
   }
   if ( event.kind == Event::Kind::set ) {
      event.value = input.values[choose( input.values.size() )];
   }
   return event;
}

Scenario randomScenario( Choice const & choose, RandomScenarioOptions const & options ) {
   Scenario scenario;
   scenario.name = scenario.file = "random";
   scenario.description = anySwitch( choose, options );
   // Interfaces stay: serving one without its directories' entries ends the process by design.
   Object intfs;
   for ( auto const & intf : interfaces ) {
      intfs.emplace( intf, Object{} );
   }
   scenario.state = {
      { "shared/phySmStateData", Object{ { "allEthPhyIntfConfigDir", Object{ { "intfConfig", intfs } } } } },
      { "shared/phySmStateSharedStatus", Object{ { "allEthPhyIntfStatusDir", Object{ { "intfStatus", intfs } } } } },
      { "interface/status/eth/phy/local", Object{ { "intfStatusLocal", intfs } } } };
   Simulator::StateTree state;
   tell( scenario.description, state );
   for ( auto const & [path, attributes] : scenario.state ) {
      stateIs( state, path, attributes );
   }
   std::size_t const wanted = choose( options.mostEvents + 1 );
   for ( std::size_t tried = 0; tried < wanted; ++tried ) {
      Event event = randomEvent( choose );
      try {
         event.change( state );
         event.number = static_cast< U32 >( scenario.events.size() + 1 );
         scenario.events.push_back( std::move( event ) );
      } catch ( Rex::ValueError const & ) {
         // what was to be changed or removed isn't there
      }
   }
   return scenario;
}

} // namespace Inspection
