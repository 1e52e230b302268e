// What contradicts the chips that a scenario names: played as a switch would, and told at the start with its place.
#include "l3sm/WrongInput.h"

namespace {

// Plays a scenario with one FAP, and expects these lines, without "l3sm: s.json:". A § in the texts marks a place.
void expectWarned( std::string const & fap, std::string lines, std::string const & more = "", int status = 0 ) {
   std::string text = "{\"switch\": {\"faps\": [\n" + fap + "]}" + more + "}";
   placeMarks( text, lines );
   Command const l3sm( "run s.json --quiet --save save", { { "s.json", text } } );
   std::string expected;
   std::istringstream in( lines );
   for ( std::string line; std::getline( in, line ); ) {
      auto const place = line.find( ": " );
      expected += "l3sm: s.json:" + line.substr( 0, place ) + ": warning: " + line.substr( place + 2 ) + "\n";
   }
   EXPECT_EQ( l3sm.errors.substr( 0, expected.size() ), expected );
   EXPECT_EQ( l3sm.status, status );
   EXPECT_EQ( l3sm.errors.size() == expected.size(), status == 0 );
   EXPECT_TRUE( l3sm.wrote( "save" ) ); // up to where the run has ended
}

constexpr int aborted = 134;

TEST( Warning, isNoneWhereTheChipsOwnIsTaken ) {
   for ( auto const & [chip, major, cores] : { std::tuple( "BCM88690_B0", 5, 2 ),
                                               std::tuple( "BCM88800_A0", 6, 1 ),
                                               std::tuple( "BCM88850_A0", 8, 2 ),
                                               std::tuple( "BCM88859_A2", 9, 1 ),
                                               std::tuple( "BCM88480_A0", 7, 1 ),
                                               std::tuple( "BCM88480_B0", 7, 1 ) } ) {
      SCOPED_TRACE( chip );
      std::string const kind = std::string( R"("chipType": ")" ) + chip + R"(")";
      Command const own( "run s.json --quiet --chips chips --state state --toggle Dace.json:ArmOrderedSwTable=off",
                         { { "s.json", R"({"switch": {"faps": [{"fapId": 0, "revision": {)" + kind + "}}]}}" } } );
      EXPECT_EQ( own.errors, "" );
      EXPECT_EQ( own.status, 0 );
      std::string const told = R"({"switch": {"faps": [{"fapId": 0, "cores": )" + std::to_string( cores ) +
                               R"(, "revision": {"sdkVersion": 7, "major": )" + std::to_string( major ) + ", " + kind +
                               "}}]}}";
      Command const same( "run s.json --quiet --chips chips --state state --toggle Dace.json:ArmOrderedSwTable=off",
                          { { "s.json", told } } );
      EXPECT_EQ( same.file( "state" ), own.file( "state" ) );
      EXPECT_EQ( same.file( "chips" ), own.file( "chips" ) );
   }
}

TEST( Warning, tellsOfAMajorRevisionOfAnotherGeneration ) {
   expectWarned( R"({"fapId": 0, "revision": {"chipType": "BCM88850_A0", "major": §5}})",
                 "§: the major revision 5 is that of a BCM88690_B0; a BCM88850_A0 has 8",
                 "",
                 aborted );
   expectWarned( R"({"fapId": 0, "revision": {"chipType": "BCM88690_B0", "major": §7}})",
                 "§: the major revision 7 is that of a BCM88480_A0 or BCM88480_B0; a BCM88690_B0 has 5" );
   expectWarned( R"({"fapId": 0, "revision": {"chipType": "BCM88690_B0", "major": §77}})",
                 "§: the major revision 77 is that of no chip; a BCM88690_B0 has 5" );
}

TEST( Warning, tellsOfCoresThatTheChipHasNot ) {
   expectWarned( R"({"fapId": 0, "cores": §3, "revision": {"chipType": "BCM88690_B0"}})",
                 "§: 3 cores are more than the chip has copies of its tables; a BCM88690_B0 has 2" );
   expectWarned( R"({"fapId": 0, "cores": §2, "revision": {"chipType": "BCM88800_A0"}})",
                 "§: 2 cores are more than the chip has copies of its tables; a BCM88800_A0 has 1" );
   expectWarned( R"({"fapId": 0, "cores": §0, "revision": {"chipType": "BCM88690_B0"}})",
                 "§: without a core, no recirculation port is programmed; a BCM88690_B0 has 2" );
}

// Told before it comes to pass.
TEST( Warning, standsBeforeWhatAContradictionLeadsTo ) {
   std::string const served = R"(, "toggles": {"Dace.json": {"ArmOrderedSwTable": false}})";
   expectWarned( R"({"fapId": 0, "cores": §3, "revision": {"chipType": "BCM88690_B0"}})",
                 "§: 3 cores are more than the chip has copies of its tables; a BCM88690_B0 has 2",
                 served,
                 aborted );
}

TEST( Warning, tellsOfPortsBeyondTheChipsTable ) {
   expectWarned( R"({"fapId": 0, "ports": {"1": 255, "2": §256}, "revision": {"chipType": "BCM88690_B0"}})",
                 "§: a BCM88690_B0 has no port 256; its port table ends at 255" );
   expectWarned( R"({"fapId": 0, "ports": {"1": 1023, "2": §1024}, "revision": {"chipType": "BCM88480_A0"}})",
                 "§: a BCM88480_A0 has no port 1024; its port table ends at 1023" );
}

TEST( Warning, tellsOfAnUnknownSdk ) {
   expectWarned( R"({"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": §8}})",
                 "§: an SDK of version 8 is not known, and taken for the newest; there are 6, 7" );
}

TEST( Warning, tellsOfPrefixesLongerThanAnAddress ) {
   std::string const route = R"("path": "routing/hardware/route/status", "attribute": "prefixLensInExactMatch")";
   expectWarned( R"({"fapId": 0, "revision": {"chipType": "BCM88690_B0"}})",
                 "§: an IPv4 prefix has at most 32 bits, not 33\n"
                 "§: event 1: an IPv4 prefix has at most 32 bits, not 64\n"
                 "§: event 2: an IPv4 prefix has at most 32 bits, not 255",
                 R"(, "state": {"routing/hardware/route/status": {"prefixLensInExactMatch": {"0": §33, "1": 32}}},)"
                 "\n\"events\": [{\"set\": {" +
                    route + R"(, "key": "2", "value": §64}},)" + "\n{\"set\": {" + route +
                    R"(, "value": {"3": §255}}}])" );
}

TEST( Warning, isOneOfTwentyAtMost ) {
   std::string events;
   for ( int length = 101; length <= 123; ++length ) {
      events += std::string( events.empty() ? "" : ", " ) +
                R"({"set": {"path": "routing/hardware/route/status", "attribute": "prefixLensInExactMatch",)" +
                R"( "value": {"0": )" + std::to_string( length ) + "}}}";
   }
   Command const l3sm( "run s.json --quiet", { { "s.json", scenarioWith( ", \"events\": [" + events + "]" ) } } );
   auto const lines = linesOf( l3sm.errors );
   ASSERT_EQ( lines.size(), 21u );
   EXPECT_TRUE( lines[19].ends_with( ": event 20: an IPv4 prefix has at most 32 bits, not 120" ) ) << lines[19];
   EXPECT_EQ( lines[20], "l3sm: ... and 3 more warnings" );
   EXPECT_EQ( l3sm.status, 0 );
}

TEST( Warning, isToldOnceWhereAScenarioIsPlayedManyTimes ) {
   Command const l3sm(
      "compare s.json --table IppdFerTrapCfg",
      { { "s.json",
          R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0", "major": 8}}]}})" } } );
   EXPECT_EQ( l3sm.errors,
              "l3sm: s.json:1:84: warning: the major revision 8 is that of a BCM88850_A0; a BCM88690_B0 has 5\n" );
   EXPECT_EQ( l3sm.status, 0 );
}

} // namespace
