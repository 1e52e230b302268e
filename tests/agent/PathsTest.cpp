// The state as databases hold it: paths and their attributes, and what events do to them.
#include "agent/database/Paths.h"
#include "inspection/AnyScenario.h"
#include "inspection/files/SavedScenario.h"

namespace {

using namespace Live;
using Inspection::Event;
using Rex::Value;

Event set( std::string const & path, std::string const & attribute, Value value ) {
   return { .path = path, .attribute = attribute, .value = std::move( value ) };
}
Event setEntry( std::string const & path, std::string const & attribute, std::string const & key, Value value ) {
   return { .path = path, .attribute = attribute, .key = key, .value = std::move( value ) };
}

Paths after( std::vector< Event > const & events, Paths paths = {} ) {
   for ( Event const & event : events ) {
      for ( PathChange const & change : pathChangesOf( event, PathLookup( paths ) ) ) {
         apply( change, paths );
      }
   }
   return paths;
}

TEST( Paths, haveEachMemberOfACollectionAtAPathOfItsOwn ) {
   auto const paths = after( {
      set( "evpn/status", "vxlanEnabled", true ),
      setEntry( "interface/status/eth/vxlan", "vtiStatus", "Vxlan1", Value::Object{ { "udpPort", 4789 } } ),
      setEntry( "l3/tunnel/udpDestinationPortConfig", "udpDestPort", "1", 6635 ),
      setEntry( "routing/tunneldecap/input/dynamic/bgp", "decapGroup", "6635", Value::Object{ { "payloadType", 1 } } ),
   } );
   EXPECT_EQ( paths,
              ( Paths{
                 { "evpn/status", { { "vxlanEnabled", "true" } } },
                 { "interface/status/eth/vxlan", {} },
                 { "interface/status/eth/vxlan/vtiStatus/Vxlan1", { { "udpPort", "4789" } } },
                 { "l3/tunnel/udpDestinationPortConfig", { { "udpDestPort", "{\"1\": 6635}" } } },
                 { "routing/tunneldecap/input/dynamic/bgp", {} },
                 { "routing/tunneldecap/input/dynamic/bgp/decapGroup/6635", { { "payloadType", "1" } } },
              } ) );
}

TEST( Paths, loseWhatAnEntityHeldWithIt ) {
   auto const dir = "shared/phySmStateData/allEthPhyIntfConfigDir";
   auto paths = after( { setEntry( dir, "intfConfig", "Ethernet3/1", Value::Object{ { "enabled", true } } ) } );
   EXPECT_TRUE( paths.contains( std::string( dir ) + "/intfConfig/Ethernet3/1" ) );
   paths = after( { set( "shared/phySmStateData", "allEthPhyIntfConfigDir", nullptr ) }, paths );
   EXPECT_EQ( paths, ( Paths{ { "shared/phySmStateData", { { "allEthPhyIntfConfigDir", "null" } } } } ) );
}

TEST( Paths, refuseWhatLeadsNowhere ) {
   EXPECT_THROW( placeOf( "evpn/stat" ), Rex::ValueError );
   EXPECT_THROW( placeOf( "evpn/status/vxlanEnabled" ), Rex::ValueError );
   EXPECT_THROW( placeOf( "interface/status/eth/vxlan/vtiStatus" ), Rex::ValueError );
   EXPECT_THROW( placeOf( "hardware/dace/fap/status" ), Rex::ValueError );
   EXPECT_EQ( placeOf( "interface/status/eth/vxlan/vtiStatus/Vxlan1" ).key, "Vxlan1" );
   EXPECT_EQ( placeOf( "routing/tunneldecap/input/dynamic/bgp/decapGroup/7" ).owner,
              "routing/tunneldecap/input/dynamic/bgp" );
}

// What a state looks like, whichever way it was reached.
Value::Object stateAfter( std::vector< Event > const & events, Inspection::Scenario const & scenario ) {
   Simulator::SimulatedSwitch sw( scenario.description );
   for ( auto const & event : events ) {
      sw.change( [&] { event.change( sw.state() ); } );
   }
   return Inspection::stateLeftBy( sw );
}

// Given a state and another, the events between the two lead there, and lead the paths there, too.
TEST( Paths, areLedFromAnyStateToAnyOtherByTheEventsBetweenThem ) {
   EXPECT_TRUE( rc::check( [] {
      auto const one = anyScenario();
      auto const other = anyScenario();
      std::map< std::string, std::string > wrong;
      auto const from = overlaid( flattened( stateAfter( {}, one ) ), after( one.events ) );
      auto const to = overlaid( flattened( stateAfter( {}, one ) ), after( other.events ) );
      auto const here = eventsBetween( {}, from, wrong );
      auto const there = eventsBetween( from, to, wrong );
      RC_ASSERT( wrong.empty() );
      auto const straight = eventsBetween( {}, to, wrong );
      auto all = here;
      all.insert( all.end(), there.begin(), there.end() );
      auto const reached = stateAfter( all, one );
      auto const wanted = stateAfter( straight, one );
      for ( auto const & [path, attributes] : wanted ) {
         RC_LOG() << ( reached.at( path ) == attributes ? std::string()
                                                        : path + ": " + Rex::toText( reached.at( path ) ) +
                                                             "\n wanted " + Rex::toText( attributes ) + "\n" );
      }
      RC_ASSERT( Value( reached ) == Value( wanted ) );
   } ) );
}

} // namespace
