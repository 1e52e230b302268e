// A saved scenario begins where the run ended: played without events, it ends in the same chips, controls and state.
//
// RC_PARAMS="max_success=1000" tries a thousand random runs instead of a hundred.
#include "inspection/Play.h"
#include "inspection/Toggles.h"
#include "inspection/files/SavedScenario.h"
#include "rex/Log.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <regex>
#include <set>
#include <sstream>

namespace {

using namespace Inspection;
using Rex::Value;
using Object = Value::Object;

// What a run leaves: the scenario that begins there, and its whole state, with what the plug-in publishes.
struct Left {
   std::string saved;
   std::string state;
   bool isFine;
   std::string errors;
};

Left playOf( Scenario const & scenario ) {
   Child const child = inChild( [&]( std::ostream & out ) {
      Rex::logSinkIs( []( auto const & ) {} );
      loadPlugin( L3SM_BINARY_DIR "/lib/libL3SmPlugin.so" );
      Simulator::SimulatedSwitch sw( scenario.description );
      play( scenario, sw );
      writeScenario( out, savedScenario( scenario, sw ) );
      out << '\f' << toJson( sw.state().value(), 9 );
   } );
   std::istringstream in( child.output );
   Left left{ {}, {}, child.isFine, child.errors };
   for ( auto * const part : { &left.saved, &left.state } ) {
      std::getline( in, *part, '\f' );
   }
   return left;
}

Left again( Left const & left ) {
   return playOf( scenarioOf( parseJson( left.saved, "saved" ), "saved" ) );
}

// Where two values differ, as paths: "/chips/0/tables/IppdFerTrapCfg/0/3/0/words/0".
void differ( Value const & before,
             Value const & after,
             std::string const & place,
             std::vector< std::string > & places ) {
   auto const * const olds = before.object();
   auto const * const news = after.object();
   if ( !olds || !news ) {
      if ( !( before == after ) ) {
         places.push_back( place );
      }
      return;
   }
   for ( auto const & [key, value] : *olds ) {
      auto const found = news->find( key );
      differ( value, found == news->end() ? Value() : found->second, place + "/" + key, places );
   }
   for ( auto const & [key, value] : *news ) {
      if ( !olds->contains( key ) ) {
         places.push_back( place + "/" + key );
      }
   }
}

// What remembers the road that led to a state, so that a start on it ends elsewhere.
struct History {
   char const * places;
   char const * reason;
};
constexpr History histories[] = {
   { "/managed/intf.*", "an interface that was served and stands by is published until its port goes" },
   { ".*/intfStatus(Local)?/[^/]*/(addr|routedAddr|maxMtu|mtu)",
     "what the plug-in wrote into a status stays until it serves that interface anew" },
   { "/chips/[0-9]+/tables/AdditionalHeadersMapTable0/[01]/0/23/words",
     "the group that has the MPLS port takes it away when it goes; a start finds it with the group that is left" },
   { "/chips/[0-9]+/controls/(9[78]|10[34])", "VTIs share their ports: the one that was heard last has them" },
   { "/chips/[0-9]+/controls/(69|7[0-3])",
     "a parser setting that changes is not looked at before they are called configured anew" },
};

// The places that differ, without those that are known to remember.
std::string differences( std::string const & before, std::string const & after, std::set< std::string > & remembered ) {
   std::vector< std::string > places;
   differ( parseJson( before, "before" ), parseJson( after, "after" ), "", places );
   std::string text;
   for ( auto const & place : places ) {
      auto const known = std::ranges::find_if(
         histories, [&]( History const & it ) { return std::regex_match( place, std::regex( it.places ) ); } );
      if ( known == std::end( histories ) ) {
         text += place + "\n";
      } else {
         remembered.insert( known->places );
      }
   }
   return text;
}

TEST( RoundTrip, endsWhereEveryExampleEnded ) {
   std::set< std::string > remembered;
   for ( auto const & file : std::filesystem::directory_iterator( L3SM_SOURCE_DIR "/examples" ) ) {
      if ( file.path().extension() != ".json" ) {
         continue;
      }
      SCOPED_TRACE( file.path() );
      Left const left = playOf( readScenario( file.path() ) );
      Left const after = again( left );
      EXPECT_TRUE( left.isFine && after.isFine );
      EXPECT_EQ( differences( left.saved, after.saved, remembered ), "" );
      EXPECT_EQ( differences( left.state, after.state, remembered ), "" );
   }
}

// ---- random runs

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

Event anyEvent() {
   static std::vector< Input > const all = inputs();
   Input const & input = *rc::gen::elementOf( all );
   Event event;
   event.path = input.path;
   event.attribute = input.attribute;
   if ( !input.keys.empty() ) {
      event.key = *rc::gen::elementOf( input.keys );
      event.kind = *rc::gen::weightedElement< Event::Kind >( { { 2, Event::Kind::set }, { 1, Event::Kind::remove } } );
   }
   if ( event.kind == Event::Kind::set ) {
      event.value = *rc::gen::elementOf( input.values );
   }
   return event;
}

Scenario anyScenario() {
   Scenario scenario;
   auto const chips = *rc::gen::container< std::vector< Hardware::ChipType > >(
      *rc::gen::inRange( 1, 3 ), rc::gen::elementOf( Hardware::allChipTypes ) );
   for ( U16 number = 0; auto const chip : chips ) {
      scenario.description.faps.push_back(
         { .fapId = Hardware::Dace::FapId( number ),
           .ports = { { 1, 10 }, { 2, 11 } },
           .revision = { Hardware::Dace::fapRevMajorOf( chip ), chip, *rc::gen::element( 6u, 7u ) } } );
      ++number;
   }
   // With all at their defaults nothing is programmed at the start.
   scenario.description.toggles["Dace.json"]["ArmOrderedSwTable"] =
      *rc::gen::weightedElement< bool >( { { 1, true }, { 6, false } } );
   for ( auto const & toggle : knownToggles() ) {
      if ( *rc::gen::weightedElement< bool >( { { 5, false }, { 1, true } } ) ) {
         scenario.description.toggles[std::string( toggle.file )].emplace( toggle.name, false );
      }
   }
   // Interfaces stay: serving one without its directories' entries ends the process by design.
   Object intfs;
   for ( auto const & intf : interfaces ) {
      intfs.emplace( intf, Object{} );
   }
   scenario.state = {
      { "shared/phySmStateData", Object{ { "allEthPhyIntfConfigDir", Object{ { "intfConfig", intfs } } } } },
      { "shared/phySmStateSharedStatus", Object{ { "allEthPhyIntfStatusDir", Object{ { "intfStatus", intfs } } } } },
      { "interface/status/eth/phy/local", Object{ { "intfStatusLocal", intfs } } } };
   Simulator::StateTree state; // not a rehearsal, which tells of a thing that is missing only once
   tell( scenario.description, state );
   for ( auto const & [path, attributes] : scenario.state ) {
      stateIs( state, path, attributes );
   }
   int const wanted = *rc::gen::inRange( 0, 40 );
   for ( int tried = 0; tried < wanted; ++tried ) {
      Event event = anyEvent();
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

TEST( RoundTrip, endsWhereAnyRunEnded ) {
   EXPECT_TRUE( rc::check( [] {
      Scenario const scenario = anyScenario();
      Left const left = playOf( scenario );
      RC_PRE( left.isFine ); // some toggles and inputs together end the process by design
      Left const after = again( left );
      std::set< std::string > remembered;
      std::string const different =
         differences( left.saved, after.saved, remembered ) + differences( left.state, after.state, remembered );
      std::ostringstream text;
      writeScenario( text, scenario );
      RC_LOG() << text.str() << different << after.errors;
      RC_ASSERT( after.isFine );
      RC_ASSERT( different == "" );
   } ) );
}

} // namespace
