#include "simulator/StateTree.h"

#include "state/Routing.h"

#include <gtest/gtest.h>

using namespace Simulator;
using Object = Rex::Value::Object;

namespace {

// The error that `what` ends in: its place and its text.
template< class What >
std::string errorOf( What const & what ) {
   try {
      what();
   } catch ( Rex::ValueError const & error ) {
      return error.place() + ": " + error.what();
   }
   return "no error";
}

TEST( StateTree, knowsEveryMountByThePathThatPeopleWriteAndByThatOfTheDatabase ) {
   StateTree const tree;
   EXPECT_TRUE( tree.entity( "interface/status/eth/phy/local" ) );
   EXPECT_TRUE( tree.database()->entity( "cell/0/interface/status/eth/phy/local" ) );
   EXPECT_FALSE( tree.database()->entity( "interface/status/eth/phy/local" ) );
   EXPECT_TRUE( tree.database()->entity( "cell/0/interface/status/subintf/local" ) );
   EXPECT_TRUE( tree.database()->entity( "interface/status/subintf" ) );
   EXPECT_EQ( *tree.database()->typeName( "routing/hardware/route/status" ), "Routing:Hardware::RouteStatus" );
   EXPECT_EQ( tree.database()->entities().size(), 22u );
}

TEST( StateTree, givesEveryAttributeItsDefault ) {
   StateTree const tree;
   auto const value = tree.value();
   auto const & all = *value.object();
   EXPECT_EQ( all.at( "bridging/hwcapabilities" ), ( Object{ { "maxFrameSizeWithoutL2Encapsulation", 9236 } } ) );
   EXPECT_EQ(
      all.at( "routing/hardware/mpls/capability" ),
      ( Object{
         { "parserDefault0", 4 }, { "parserDefault1", 3 }, { "parserDefault2", 2 }, { "parserDefault3", 1 } } ) );
   EXPECT_EQ( all.at( "interface/config/global" ), ( Object{ { "l3Mtu", 1500 } } ) );
   EXPECT_EQ( all.at( "shared/driverSetupSmStateInfo" ), ( Object{ { "ucodeProfile", 2 } } ) );
   EXPECT_EQ( all.at( "evpn/status" ),
              ( Object{ { "evpnDciEnabled", false }, { "mplsEnabled", false }, { "vxlanEnabled", false } } ) );
   EXPECT_FALSE( all.contains( "shared/agentScheduler" ) );
}

TEST( StateTree, findsAnEntityBelowACollectionAnAttributeAndADirectory ) {
   StateTree tree;
   tree.entryIs( "interface/status/eth/vxlan", "vtiStatus", "Vxlan1", Object{ { "udpPort", 4789 } } );
   tree.attributeIs( "shared/phySmStateData",
                     "allEthPhyIntfConfigDir",
                     Object{ { "intfConfig", Object{ { "Ethernet3/1/1", Object{ { "mtu", 9000 } } } } } } );
   tree.attributesIs(
      "routing/tunneldecap/input/dynamic",
      Object{ { "bgp", Object{ { "decapGroup", Object{ { "6635", Object{ { "payloadType", 1 } } } } } } } } );

   for ( std::string const path : { "interface/status/eth/vxlan/vtiStatus/Vxlan1",
                                    "shared/phySmStateData/allEthPhyIntfConfigDir",
                                    "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/Ethernet3/1/1",
                                    "routing/tunneldecap/input/dynamic/bgp",
                                    "routing/tunneldecap/input/dynamic/bgp/decapGroup/6635" } ) {
      auto const entity = tree.entity( path );
      ASSERT_TRUE( entity ) << path;
      EXPECT_EQ( tree.pathOf( *entity ), path );
   }
   tree.attributeIs( "routing/tunneldecap/input/dynamic/bgp/decapGroup/6635", "payloadType", 3 );
   EXPECT_EQ( tree.entity( "routing/tunneldecap/input/dynamic/bgp" )->value(),
              ( Object{ { "decapGroup", Object{ { "6635", Object{ { "payloadType", 3 } } } } } } ) );
}

TEST( StateTree, makesADirectorysEntryThatIsNotThere ) {
   StateTree tree;
   tree.entryIs( "routing/tunneldecap/input/dynamic/bgp", "decapGroup", "6635", Object{ { "payloadType", 4 } } );
   EXPECT_EQ(
      tree.entity( "routing/tunneldecap/input/dynamic" )->value(),
      ( Object{ { "bgp", Object{ { "decapGroup", Object{ { "6635", Object{ { "payloadType", 4 } } } } } } } } ) );
}

TEST( StateTree, removesEntriesAndEntities ) {
   StateTree tree;
   tree.entryIs( "l3/tunnel/udpDestinationPortConfig", "udpDestPort", "1", 6635 );
   tree.entryDel( "l3/tunnel/udpDestinationPortConfig", "udpDestPort", "1" );
   EXPECT_EQ( tree.entity( "l3/tunnel/udpDestinationPortConfig" )->value(), ( Object{ { "udpDestPort", Object{} } } ) );

   tree.entryIs( "shared/portStateInfo", "portState", "7", Object{ { "intfId", "Ethernet7" } } );
   tree.entityDel( "shared/portStateInfo/portState/7" );
   EXPECT_EQ( tree.entity( "shared/portStateInfo" )->value(), ( Object{ { "portState", Object{} } } ) );

   tree.attributeIs( "shared/phySmStateData", "allEthPhyIntfConfigDir", Object{} );
   tree.entityDel( "shared/phySmStateData/allEthPhyIntfConfigDir" );
   EXPECT_EQ( tree.entity( "shared/phySmStateData" )->value(), ( Object{ { "allEthPhyIntfConfigDir", nullptr } } ) );

   tree.attributesIs( "routing/tunneldecap/input/dynamic/bgp", Object{} );
   tree.entityDel( "routing/tunneldecap/input/dynamic/bgp" );
   EXPECT_EQ( tree.entity( "routing/tunneldecap/input/dynamic" )->value(), ( Object{} ) );

   tree.entityDel( "vxlan/ecnConfig" );
   EXPECT_FALSE( tree.entity( "vxlan/ecnConfig" ) );
}

TEST( StateTree, saysWhatIsWrongWithAPath ) {
   StateTree tree;
   EXPECT_EQ( errorOf( [&] { tree.attributeIs( "evpn/statsu", "vxlanEnabled", true ); } ),
              "/path: there is no path \"evpn/statsu\"; did you mean \"evpn/status\"?" );
   EXPECT_EQ( errorOf( [&] { tree.entityDel( "interface/status/eth/vxlan/vtiStatus/Vxlan9" ); } ),
              "/path: interface/status/eth/vxlan holds nothing at \"vtiStatus/Vxlan9\"" );
   EXPECT_EQ( errorOf( [&] { static_cast< void >( tree.entity( "evpn/status/" ) ); } ),
              "/path: evpn/status holds nothing at \"\"" );
   EXPECT_EQ( errorOf( [&] { static_cast< void >( tree.entity( "shared/portStateInfo/portState/seven" ) ); } ),
              "/path: shared/portStateInfo holds nothing at \"portState/seven\"" );
   tree.entityDel( "evpn/status" );
   EXPECT_EQ( errorOf( [&] { tree.attributeIs( "evpn/status", "vxlanEnabled", true ); } ),
              "/path: nothing stands at evpn/status, which was left out" );
   EXPECT_EQ( errorOf( [&] { tree.attributesIs( "hardware/dace/fap/status", Object{} ); } ),
              "/path: hardware/dace/fap/status is told by the description of the switch and can't be set" );
   EXPECT_EQ( errorOf( [&] { tree.attributesIs( "shared/agentScheduler", Object{} ); } ),
              "/path: shared/agentScheduler has no attributes that can be set" );
}

TEST( StateTree, saysWhatIsWrongWithAnAttribute ) {
   StateTree tree;
   EXPECT_EQ( errorOf( [&] { tree.attributeIs( "evpn/status", "vxlanEnabeld", true ); } ),
              "/attribute: Evpn::EvpnStatus has no attribute \"vxlanEnabeld\"; did you mean \"vxlanEnabled\"? It "
              "has vxlanEnabled, mplsEnabled, evpnDciEnabled" );
   EXPECT_EQ(
      errorOf( [&] {
         tree.attributesIs( "evpn/status", Object{ { "speed", true } } );
      } ),
      "/value/speed: Evpn::EvpnStatus has no attribute \"speed\"; it has vxlanEnabled, mplsEnabled, evpnDciEnabled" );
}

TEST( StateTree, saysWhatIsWrongWithAKeyOrAValue ) {
   StateTree tree;
   EXPECT_EQ( errorOf( [&] { tree.attributeIs( "evpn/status", "vxlanEnabled", 1 ); } ),
              "/value: expected true or false, got 1" );
   EXPECT_EQ( errorOf( [&] { tree.entryIs( "shared/portStateInfo", "portState", "70000", Object{} ); } ),
              "/key: expected a key from 0 to 65535, got \"70000\"" );
   EXPECT_EQ( errorOf( [&] {
                 tree.entryIs( "shared/portStateInfo", "portState", "7", Object{ { "active", "yes" } } );
              } ),
              "/value/active: expected true or false, got \"yes\"" );
   EXPECT_EQ( errorOf( [&] { tree.entryIs( "evpn/status", "vxlanEnabled", "7", true ); } ),
              "/key: vxlanEnabled has no entries: leave the key out" );
   EXPECT_EQ( errorOf( [&] { tree.entryDel( "shared/portStateInfo", "portState", "7" ); } ),
              "/key: shared/portStateInfo has no entry \"7\" in portState" );
   EXPECT_EQ( errorOf( [&] { tree.entryIs( "l3/tunnel/udpDestinationPortConfig", "udpDestPort", "1", 65536 ); } ),
              "/value: expected a number from 0 to 65535, got 65536" );
}

} // namespace
