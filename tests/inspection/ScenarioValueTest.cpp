// A scenario is a value and back without a loss, with its events or without.
#include "inspection/files/Scenario.h"
#include "l3sm/Command.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;

std::string const everything = R"({
 "name": "all of it",
 "switch": {"slice": {"name": "Linecard3"},
  "faps": [{"fapId": 7, "name": "Fap3/7", "cores": 1, "ports": {"1": 10, "2": 11},
            "revision": {"chipType": "BCM88850_A0", "sdkVersion": 6, "major": 8}},
           {"fapId": 2, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}}]},
 "toggles": {"Dace.json": {"ArmOrderedSwTable": false}},
 "chips": {"2": {"tables": {"IppdFerTrapCfg": {"0": {"3": {"0": {"words": ["0x00000123"]}},
                                                     "4": {"0": {"instances": {"0": ["0x00000001"], "1": ["0x00000002"]}}}}}},
                 "controls": {"64": 255}}},
 "state": {"evpn/status": {"vxlanEnabled": true}, "vxlan/ecnConfig": null},
 "events": [{"set": {"path": "evpn/status", "attribute": "mplsEnabled", "value": true}},
            {"set": {"path": "shared/portStateInfo", "attribute": "portState", "key": "1", "value": {}}},
            {"delete": {"path": "shared/portStateInfo", "attribute": "portState", "key": "1"}},
            {"delete": {"path": "evpn/status"}}]})";

TEST( ScenarioValue, isTheFileAgain ) {
   auto const value = parseJson( everything, "all" );
   EXPECT_EQ( toJson( valueOf( scenarioOf( value, "all" ) ), 9 ), toJson( value, 9 ) );
}

TEST( ScenarioValue, leavesTheEventsOut ) {
   auto value = parseJson( everything, "all" );
   auto const without = valueOf( scenarioOf( value, "all" ), Parts::withoutEvents );
   value.object()->erase( "events" );
   EXPECT_EQ( toJson( without, 9 ), toJson( value, 9 ) );
}

TEST( ScenarioValue, theChipsHoldTablesAndControlsBeforeTheStart ) {
   auto const scenario = scenarioOf( parseJson( everything, "all" ), "all" );
   Simulator::SimulatedSwitch sw( scenario.description );
   scenario.prepare( sw );
   auto const contents = contentsOf( sw.chip( Hardware::Dace::FapId( 2 ) ), Hardware::ChipType::BCM88690_B0 );
   EXPECT_EQ( contents.controls, ( std::map< U32, U32 >{ { 64, 255 } } ) );
   EXPECT_EQ( contents.tables.at( "IppdFerTrapCfg" ).at( 0 ).at( 3 ).at( 0 ).copies[0][0], 0x123u );
}

TEST( ScenarioValue, theShortFormOfChipsHasTablesAlone ) {
   auto const value = parseJson( R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0"}}]},
      "chips": {"0": {"IppdFerTrapCfg": {"0": {"3": {"0": {"words": ["0x00000123"]}}}}}}})",
                                 "short" );
   auto const scenario = scenarioOf( value, "short" );
   EXPECT_EQ( scenario.chips.at( 0 ).tables.at( "IppdFerTrapCfg" ).at( 0 ).at( 3 ).at( 0 ).copies[0][0], 0x123u );
}

TEST( ScenarioValue, everyExampleIsItsValueAgain ) {
   for ( auto const & file : exampleScenarios() ) {
      auto const once = valueOf( readScenario( file ) );
      EXPECT_EQ( toJson( valueOf( scenarioOf( once, "again" ) ), 9 ), toJson( once, 9 ) ) << file;
   }
}

} // namespace
