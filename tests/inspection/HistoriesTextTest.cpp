// How roads and what remembers them are told, for people and for programs.
#include "inspection/views/HistoriesText.h"
#include "inspection/files/Json.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using namespace Inspection;

Event mtuEvent( U32 number, U32 mtu ) {
   return { .number = number, .path = "interface/config/global", .attribute = "l3Mtu", .value = Rex::Value( mtu ) };
}

EndDifference const ofTheDecapGroup{ .fap = 0,
                                     .table = "AdditionalHeadersMapTable0",
                                     .place = "variant 1 23",
                                     .field = "protocolSpecificInformation",
                                     .own = "0x1",
                                     .here = "0x33d9" };

std::string historiesTextOf( Histories const & histories, bool all = false ) {
   std::ostringstream text;
   showHistories( text, histories, all, Style() );
   return text.str();
}

std::string historiesJsonOf( Histories const & histories ) {
   return toJson( historiesValue( histories ), 0 );
}

TEST( HistoriesText, saysThatAllRoadsEndAlike ) {
   EXPECT_EQ( historiesTextOf( { .name = "GUE", .played = 12 } ),
              "GUE\n\n"
              "No entry remembers its road: 12 roads to its last state, all with the same end.\n" );
   EXPECT_EQ(
      historiesTextOf( { .name = "GUE", .played = 1, .isCut = true } ),
      "GUE\n\n"
      "No entry remembers its road: 1 road to its last state, then the time was over, all with the same end.\n" );
}

TEST( HistoriesText, tellsARoadThatEndsTheProcessWithItsLastWords ) {
   History const failing{ .differences = {},
                          .road = { RoadStep::start(), { .event = mtuEvent( 1, 9000 ) } },
                          .failure = "no such MTU\n\n" };
   EXPECT_EQ( historiesTextOf( { .name = "MTU", .played = 3, .all = { failing } } ),
              "MTU\n\n"
              "No entry remembers its road; 1 way to end the process: 3 roads to its last state.\n"
              "\n"
              "  1. start\n"
              "  2. set interface/config/global l3Mtu = 9000  (event 1)\n"
              "     ends the process: no such MTU\n" );
}

TEST( HistoriesText, tellsWhereARoadStartsAndWhatADetourIs ) {
   Road const late{ { .event = mtuEvent( 1, 2000 ) },
                    RoadStep::start(),
                    { .event = mtuEvent( 0, 9000 ), .detour = 1 },
                    { .event = mtuEvent( 2, 3000 ) },
                    RoadStep::start() };
   Road const fresh{ { .event = mtuEvent( 1, 2000 ) }, { .event = mtuEvent( 2, 3000 ) }, RoadStep::start() };
   EndDifference unknown = ofTheDecapGroup;
   unknown.table = "IppdFerTrapCfg";
   unknown.place = "[3]";
   unknown.field = "cpuStrengthN";
   EXPECT_EQ( historiesTextOf( { .name = "MTU",
                                 .played = 3,
                                 .all = { { .differences = { ofTheDecapGroup }, .road = late },
                                          { .differences = { unknown }, .road = fresh } } } ),
              "MTU\n\n"
              "2 entries remember the road: 3 roads to its last state.\n"
              "\n"
              "  1. start on a state with 1 event done\n"
              "  2. set interface/config/global l3Mtu = 9000\n"
              "  3. set interface/config/global l3Mtu = 3000  (event 2)\n"
              "  4. start once more, on the chips as they are\n"
              "     FAP 0 AdditionalHeadersMapTable0 variant 1 23 protocolSpecificInformation  "
              "0x1 by its own road, 0x33d9 (13273) by this\n"
              "     known: of several MPLS decap groups the one that changed last names the port, and with its removal "
              "none does, though others stay; a start takes them in the order of their ports\n"
              "\n"
              "  1. start on the last state\n"
              "     FAP 0 IppdFerTrapCfg [3] cpuStrengthN  0x1 by its own road, 0x33d9 (13273) by this\n"
              "     not known: no reason for it is listed\n" );
}

TEST( HistoriesText, showsTheFirstTwelveStepsAndSixFieldsUnlessAllAreAskedFor ) {
   History history{ .differences = {}, .road = { RoadStep::start() } };
   for ( U32 number = 1; number <= 13; ++number ) {
      history.road.push_back( { .event = mtuEvent( number, 1000 + number ) } );
      history.differences.push_back( ofTheDecapGroup );
      history.differences.back().place = std::to_string( number );
   }
   Histories const histories{ .name = "MTU", .played = 1, .all = { history } };
   auto const text = historiesTextOf( histories );
   EXPECT_NE( text.find( "  12. set interface/config/global l3Mtu = 1011  (event 11)\n"
                         "    ... and 2 more steps; --all shows them\n" ),
              std::string::npos )
      << text;
   EXPECT_NE( text.find( "    ... and 7 more fields; --all shows them\n" ), std::string::npos ) << text;
   auto const whole = historiesTextOf( histories, true );
   EXPECT_NE( whole.find( "  14. set interface/config/global l3Mtu = 1013  (event 13)\n" ), std::string::npos )
      << whole;
   EXPECT_EQ( whole.find( "--all" ), std::string::npos ) << whole;
}

TEST( HistoriesText, ofProgramsHasTheRoadTheReasonAndTheLastWords ) {
   EndDifference unknown = ofTheDecapGroup;
   unknown.table = "controls";
   unknown.place = "64";
   unknown.field = "";
   Histories const histories{
      .name = "GUE",
      .played = 40,
      .seconds = 0.0126,
      .isCut = true,
      .all = { { .differences = { unknown }, .road = { RoadStep::start(), { .event = mtuEvent( 1, 9000 ) } } },
               { .differences = {}, .road = { RoadStep::start() }, .failure = "its end" } } };
   EXPECT_EQ( historiesJsonOf( histories ),
              R"({"cut": true, "histories": [)"
              R"({"differences": [{"fap": 0, "field": "", "here": "0x33d9", "known": null, "own": "0x1", )"
              R"("place": "64", "table": "controls"}], )"
              R"("road": [{"start": {}}, )"
              R"({"set": {"attribute": "l3Mtu", "path": "interface/config/global", "value": 9000}}]}, )"
              R"({"differences": [], "failure": "its end", "road": [{"start": {}}]}], )"
              R"("milliseconds": 13, "name": "GUE", "played": 40})" );
}

TEST( HistoriesText, ofProgramsNamesAKnownReason ) {
   auto const value =
      historiesValue( { .name = "GUE",
                        .played = 1,
                        .all = { { .differences = { ofTheDecapGroup }, .road = { RoadStep::start() } } } } );
   auto const known = value.object()->at( "histories" ).list()->front().object()->at( "differences" );
   EXPECT_TRUE( known.list()->front().object()->at( "known" ).text()->starts_with( "of several MPLS decap groups" ) );
}

} // namespace
