// What the summary of a run tells of interfaces.
#include "l3sm/Command.h"

#include <gtest/gtest.h>

namespace {

// Interfaces Ethernet1 to Ethernet<count>, each with a configuration, statuses and an active port; VeloroSAIMode off.
// `state` are further paths of the state, `events` the events.
std::string scenarioOfInterfaces( int count, std::string const & state, std::string const & events ) {
   std::string configs;
   std::string statuses;
   std::string ports;
   for ( int i = 1; i <= count; ++i ) {
      std::string const comma = i == 1 ? "" : ", ";
      std::string const name = "\"Ethernet" + std::to_string( i ) + "\"";
      configs += comma + name + ": {}";
      statuses += comma + name + ": {}";
      ports += comma + "\"" + std::to_string( i ) + R"(": {"intfId": )" + name + R"(, "active": true})";
   }
   std::string paths = state;
   if ( count > 0 ) {
      paths += ( state.empty() ? "" : ", " ) +
               ( R"("shared/phySmStateData": {"allEthPhyIntfConfigDir": {"intfConfig": {)" + configs +
                 R"(}}}, "shared/phySmStateSharedStatus": {"allEthPhyIntfStatusDir": {"intfStatus": {)" + statuses +
                 R"(}}}, "interface/status/eth/phy/local": {"intfStatusLocal": {)" + statuses +
                 R"(}}, "shared/portStateInfo": {"portState": {)" + ports + "}}" );
   }
   auto scenario = scenarioWith( R"(, "state": {)" + paths + R"(}, "events": [)" + events + "]" );
   auto const toggles = scenario.find( R"("Dace.json")" );
   return scenario.insert( toggles, R"("VeloroSAI.json": {"VeloroSAIMode": false}, )" );
}

// The paragraph of the summary, without its heading; empty without one.
std::string told( std::string const & scenario ) {
   ::setenv( "COLUMNS", "300", 1 ); // a line each
   Command const l3sm( "run s.json", { { "s.json", scenario } } );
   EXPECT_EQ( l3sm.errors, "" );
   std::string const heading = "\nInterfaces at the end\n";
   auto const start = l3sm.output.find( heading );
   if ( start == std::string::npos ) {
      return {};
   }
   auto const text = l3sm.output.substr( start + heading.size() );
   return text.substr( 0, text.find( "\n\n" ) + 1 );
}

std::string set( std::string const & path, std::string const & attribute, std::string const & value ) {
   return R"({"set": {"path": ")" + path + R"(", "attribute": ")" + attribute + R"(", "value": )" + value + "}}";
}

std::string const config1 = "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/Ethernet1";

TEST( Interfaces, areNotMentionedWhereThereAreNone ) {
   EXPECT_EQ( told( scenarioOfInterfaces( 0, "", "" ) ), "" );
}

TEST( Interfaces, areServedAndHaveTheirMtuInAnActiveSlice ) {
   EXPECT_EQ( told( scenarioOfInterfaces( 2, "", set( config1, "mtu", "9000" ) ) ),
              "  2 served, active: Ethernet1, Ethernet2\n"
              "  2 with MTU synced: Ethernet1 9000, Ethernet2 1500\n" );
}

TEST( Interfaces, waitForTheirMtuInAStandbySlice ) {
   EXPECT_EQ( told( scenarioOfInterfaces( 2, R"("shared/sliceSmStateData": {"smMode": 1})", "" ) ),
              "  2 served, standby: Ethernet1, Ethernet2\n"
              "  2 with MTU waiting: Ethernet1 (standby), Ethernet2 (standby)\n" );
}

TEST( Interfaces, keepTheirMtuWhereTheSliceGoesToStandby ) {
   std::string const standby = set( "shared/sliceSmStateData", "smMode", "1" );
   EXPECT_EQ( told( scenarioOfInterfaces( 1, "", standby ) ),
              "  1 served, standby: Ethernet1\n"
              "  1 with MTU synced: Ethernet1 1500\n" );
   EXPECT_EQ( told( scenarioOfInterfaces( 1, "", standby + ", " + set( config1, "mtu", "9000" ) ) ),
              "  1 served, standby: Ethernet1\n"
              "  1 with MTU waiting: Ethernet1 (standby)\n" );
}

TEST( Interfaces, waitForTheirMtuWhileTheyAreNotEnabledOrASubinterfaceIsBehind ) {
   EXPECT_EQ(
      told( scenarioOfInterfaces( 1, "", set( config1, "enabled", "false" ) + ", " + set( config1, "mtu", "9000" ) ) ),
      "  1 served, active: Ethernet1\n"
      "  1 with MTU waiting: Ethernet1 (not enabled)\n" );
   EXPECT_EQ( told( scenarioOfInterfaces( 1,
                                          "",
                                          R"({"set": {"path": "interface/status/subintf", "attribute": "intfStatus",
                                            "key": "Ethernet1.5", "value": {"parentIntfId": "Ethernet1"}}})" ) ),
              "  1 served, active: Ethernet1\n"
              "  1 with MTU waiting: Ethernet1 (MTU 1500 hasn't reached Ethernet1.5)\n" );
}

TEST( Interfaces, areNotServedWithoutAnActivePortAndAConfiguration ) {
   EXPECT_EQ( told( scenarioOfInterfaces( 0,
                                          R"("shared/phySmStateData": {"allEthPhyIntfConfigDir":
                                      {"intfConfig": {"Ethernet1": {}, "Ethernet2": {}}}},
                                   "shared/portStateInfo": {"portState": {"2": {"intfId": "Ethernet2"},
                                      "3": {"intfId": "Ethernet3", "active": true}}})",
                                          "" ) ),
              "  none served, active\n"
              "  3 not served: Ethernet1 (no port), Ethernet2 (port not active), Ethernet3 (not configured)\n" );
}

TEST( Interfaces, stayServedWhereTheirPortStopsBeingActiveAndGoWithIt ) {
   std::string const inactive = set( "shared/portStateInfo/portState/1", "active", "false" ) + ", " +
                                set( "shared/portStateInfo/portState/1", "portGenId", "1" );
   EXPECT_EQ( told( scenarioOfInterfaces( 1, "", inactive ) ),
              "  1 served, active: Ethernet1\n"
              "  1 with MTU synced: Ethernet1 1500\n" );
   EXPECT_EQ( told( scenarioOfInterfaces( 1,
                                          "",
                                          R"({"delete": {"path": "shared/portStateInfo", "attribute": "portState",
                                               "key": "1"}})" ) ),
              "  none served, active\n"
              "  1 not served: Ethernet1 (no port)\n" );
}

TEST( Interfaces, areServedOutsideTheManagedDirectoriesInVeloroSAIMode ) {
   auto scenario = scenarioOfInterfaces( 1, "", "" );
   auto const mode = scenario.find( R"("VeloroSAIMode": false)" );
   scenario.replace( mode, std::string( R"("VeloroSAIMode": false)" ).size(), R"("VeloroSAIMode": true)" );
   EXPECT_EQ( told( scenario ),
              "  1 served, active: Ethernet1\n"
              "  1 with MTU synced: Ethernet1 1500\n"
              "  1 served outside the managed directories: Ethernet1\n" );
}

std::string const configs = "shared/phySmStateData/allEthPhyIntfConfigDir";
std::string const statuses = "shared/phySmStateSharedStatus/allEthPhyIntfStatusDir";

std::string entry( std::string const & path, std::string const & attribute, std::string const & value ) {
   return R"({"set": {"path": ")" + path + R"(", "attribute": ")" + attribute + R"(", "key": "Ethernet1", "value": )" +
          value + "}}";
}

TEST( Interfaces, followTheConfigurationThatTheyWereServedWithWhereItIsReplaced ) {
   EXPECT_EQ(
      told( scenarioOfInterfaces( 1, "", entry( configs, "intfConfig", R"({"enabled": false, "mtu": 4000})" ) ) ),
      "  1 served, active: Ethernet1\n"
      "  1 with MTU synced: Ethernet1 1500\n"
      "  1 with another configuration in the directory: "
      "Ethernet1 (its configuration was replaced; the one from before is still followed)\n" );
}

TEST( Interfaces, goOnWithTheStatusFromBeforeWhereItWentAndCame ) {
   std::string const gone = R"({"delete": {"path": ")" + statuses + R"(", "attribute": "intfStatus",
                                "key": "Ethernet1"}})";
   EXPECT_EQ( told( scenarioOfInterfaces( 1, "", gone ) ),
              "  1 served, active: Ethernet1\n"
              "  1 with MTU waiting: Ethernet1 (MTU 1500 went to its status from before, which is gone)\n" );
   EXPECT_EQ( told( scenarioOfInterfaces( 1, "", gone + ", " + entry( statuses, "intfStatus", "{}" ) ) ),
              "  1 served, active: Ethernet1\n"
              "  1 with MTU waiting: Ethernet1 (MTU 1500 went to its status from before, which was replaced)\n" );
}

TEST( Interfaces, followTheConfigurationThatTheyWereServedWithWhereItIsRemoved ) {
   std::string const removal = R"({"delete": {"path": ")" + configs + R"(", "attribute": "intfConfig",
                                   "key": "Ethernet1"}})";
   EXPECT_EQ( told( scenarioOfInterfaces( 1, "", removal ) ),
              "  1 served, active: Ethernet1\n"
              "  1 with MTU synced: Ethernet1 1500\n"
              "  1 with another configuration in the directory: "
              "Ethernet1 (its configuration was removed; what it had is still followed)\n" );
   Command const l3sm( "run s.json --json", { { "s.json", scenarioOfInterfaces( 1, "", removal ) } } );
   EXPECT_NE( l3sm.output.find( R"("note": "its configuration was removed; what it had is still followed")" ),
              std::string::npos )
      << l3sm.output;
}

TEST( Interfaces, haveTheirMtuOnceAStandbySliceBecomesActive ) {
   EXPECT_EQ( told( scenarioOfInterfaces(
                 1, R"("shared/sliceSmStateData": {"smMode": 1})", set( "shared/sliceSmStateData", "smMode", "2" ) ) ),
              "  1 served, active: Ethernet1\n"
              "  1 with MTU synced: Ethernet1 1500\n" );
}

TEST( Interfaces, areToldOneByOneWithTheirAddresses ) {
   Command const l3sm( "run s.json --interfaces", { { "s.json", scenarioOfInterfaces( 12, "", "" ) } } );
   EXPECT_NE( l3sm.output.find( "  Ethernet12  served  MTU 1500 synced\n"
                                "      status: MTU 1500, at most 9236; address 00:00:00:00:00:00, routed " ),
              std::string::npos )
      << l3sm.output;
}

TEST( Interfaces, areNamedInTheirOrderWhereTheyAreFewAndElseCounted ) {
   EXPECT_EQ( told( scenarioOfInterfaces( 12, "", "" ) ),
              "  12 served, active: Ethernet1, Ethernet2, Ethernet3, Ethernet4, Ethernet5, Ethernet6, Ethernet7, "
              "Ethernet8, and 4 more\n"
              "  12 with MTU synced: Ethernet1 1500, Ethernet2 1500, Ethernet3 1500, Ethernet4 1500, Ethernet5 1500, "
              "Ethernet6 1500, Ethernet7 1500, Ethernet8 1500, and 4 more\n" );
}

} // namespace
