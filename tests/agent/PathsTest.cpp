// The state as databases hold it: paths and their attributes, and what events do to them.
#include "agent/database/Paths.h"
#include "inspection/AnyScenario.h"
#include "inspection/files/SavedScenario.h"

namespace {

using namespace Live;
using Inspection::Event;
using Rex::Value;

Event setAttribute( std::string const & path, std::string const & attribute, Value value ) {
   return { .path = path, .attribute = attribute, .value = std::move( value ) };
}
Event setEntryOf( std::string const & path, std::string const & attribute, std::string const & key, Value value ) {
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
      setAttribute( "evpn/status", "vxlanEnabled", true ),
      setEntryOf( "interface/status/eth/vxlan", "vtiStatus", "Vxlan1", Value::Object{ { "udpPort", 4789 } } ),
      setEntryOf( "l3/tunnel/udpDestinationPortConfig", "udpDestPort", "1", 6635 ),
      setEntryOf(
         "routing/tunneldecap/input/dynamic/bgp", "decapGroup", "6635", Value::Object{ { "payloadType", 1 } } ),
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
   auto paths = after( { setEntryOf( dir, "intfConfig", "Ethernet3/1", Value::Object{ { "enabled", true } } ) } );
   EXPECT_TRUE( paths.contains( std::string( dir ) + "/intfConfig/Ethernet3/1" ) );
   paths = after( { setAttribute( "shared/phySmStateData", "allEthPhyIntfConfigDir", nullptr ) }, paths );
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

std::string wrongIn( std::function< void() > const & what ) {
   try {
      what();
   } catch ( Rex::ValueError const & error ) {
      return error.place() + ": " + error.what();
   }
   return "nothing was wrong";
}

TEST( Paths, sayWhereTheyLeadAndWhyNot ) {
   auto const whyNot = []( std::string const & path ) { return wrongIn( [&] { placeOf( path ); } ); };
   EXPECT_EQ( whyNot( "evpn/stat" ), "/path: there is no path \"evpn/stat\"; `l3sm paths` lists them" );
   EXPECT_EQ( whyNot( "evpn/status/vxlanEnabled" ), "/path: evpn/status holds nothing at \"vxlanEnabled\"" );
   EXPECT_EQ( whyNot( "interface/status/eth/vxlan/vtiStatus" ),
              "/path: interface/status/eth/vxlan/vtiStatus is a collection: its members have paths, "
              "interface/status/eth/vxlan/vtiStatus/KEY" );
   EXPECT_EQ( whyNot( "routing/nexthopgroup/input/config/" ),
              "/path: \"routing/nexthopgroup/input/config/\" ends in a slash" );
   EXPECT_EQ( whyNot( "interface/status/eth/vxlan/vtiStatus/" ),
              "/path: \"interface/status/eth/vxlan/vtiStatus/\" ends in a slash" );
   EXPECT_EQ( whyNot( "routing/nexthopgroup/input/config//x" ),
              "/path: \"routing/nexthopgroup/input/config//x\" has an empty key" );
   EXPECT_EQ( whyNot( "routing/tunneldecap/input/dynamic//decapGroup/7" ),
              "/path: \"routing/tunneldecap/input/dynamic//decapGroup/7\" has an empty key" );
   EXPECT_EQ( whyNot( "hardware/dace/fap/status" ),
              "/path: hardware/dace/fap/status can't be set: it is told by the description of the switch" );
}

void expectNoEntitiesBelowMembers( Rex::TypeData const & type, bool isMember ) {
   for ( auto const * attribute : type.attributes() ) {
      if ( attribute->elementType() && attribute->canBeSet() ) {
         EXPECT_FALSE( isMember ) << type.name() << " " << attribute->name;
         expectNoEntitiesBelowMembers( *attribute->elementType(), attribute->kind == Rex::Attribute::Kind::collection );
      }
   }
}

// Whose keys have slashes could end anywhere.
TEST( Paths, endWithAMemberOfACollection ) {
   for ( auto const & root : Simulator::stateRoots() ) {
      auto const entity = root.make();
      auto const dir = Corvo::ptrCast< Rex::Dir >( entity );
      expectNoEntitiesBelowMembers( dir && dir->elementType() ? *dir->elementType() : entity->typeData(), false );
   }
   EXPECT_EQ( placeOf( "interface/status/subintf/intfStatus/Ethernet1/2.7" ).key, "Ethernet1/2.7" );
}

TEST( Paths, refuseEventsThatDontFitThem ) {
   auto const whyNot = []( Event const & event ) { return wrongIn( [&] { after( { event } ); } ); };
   EXPECT_EQ( whyNot( setEntryOf( "evpn/status", "vxlanEnabled", "1", true ) ),
              "/key: vxlanEnabled has no entries: leave the key out" );
   EXPECT_EQ( whyNot( { .kind = Event::Kind::fault, .fault = Simulator::Fault() } ),
              ": a state has no faults: l3sm ctl fault add, or play the scenario: l3sm run" );
   EXPECT_EQ( whyNot( setAttribute( "evpn/status", "vxlan", true ) ),
              "/attribute: Evpn::EvpnStatus has no attribute \"vxlan\"; it has vxlanEnabled, mplsEnabled, "
              "evpnDciEnabled" );
   EXPECT_EQ( whyNot( setAttribute( "routing/nexthopgroup/input/config", "group", 1 ) ),
              "/path: routing/nexthopgroup/input/config is a directory: name one of its entries in the path" );
}

TEST( Paths, haveAMapAnewWhereWhatStandsThereIsNone ) {
   std::string const path = "l3/tunnel/udpDestinationPortConfig";
   auto const set = setEntryOf( path, "udpDestPort", "1", 6635 );
   EXPECT_EQ( after( { set }, { { path, { { "udpDestPort", "7" } } } } ).at( path ).at( "udpDestPort" ),
              "{\"1\": 6635}" );
   EXPECT_EQ( wrongIn( [&] {
                 after( { set }, { { path, { { "udpDestPort", "{" } } } } );
              } ).find( "expected JSON, got" ),
              std::string( ": " ).size() );
}

TEST( Paths, ofAStateHaveNoneLeftOut ) {
   EXPECT_EQ( wrongIn( [] {
                 flattened( { { "evpn/status", Value() } } );
              } ),
              "/evpn~1status: a path can't be left out of a database" );
   EXPECT_EQ( flattened( { { "evpn/status", Value::Object{ { "vxlanEnabled", true } } } } ),
              ( Paths{ { "evpn/status", { { "vxlanEnabled", "true" } } } } ) );
   EXPECT_EQ( overlaid( { { "evpn/status", { { "vxlanEnabled", "true" }, { "mplsEnabled", "true" } } } },
                        { { "evpn/status", { { "vxlanEnabled", "false" } } } } ),
              ( Paths{ { "evpn/status", { { "mplsEnabled", "true" }, { "vxlanEnabled", "false" } } } } ) );
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
