// Scenarios that don't come to their end: explored, and on chips that they aren't made for. And answers that can't be
// given or written.
#include "l3sm/Command.h"

#include "inspection/ChipComparison.h"
#include "inspection/Play.h"
#include "inspection/files/Json.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;

std::string const playedTraps = "run '" L3SM_SOURCE_DIR
                                "/examples/urpf-and-ip-traps.json' --quiet --chips chips.json && '" +
                                buildFolder() + "/bin/l3sm' ";

// It stands in a copy of its parent's code, in which it must not go on.
TEST( Child, endsWhereSomethingIsThrownThatNobodyExpects ) {
   Child const child = inChild( []( std::ostream & out ) {
      out << "begun";
      throw std::logic_error( "unexpected" );
   } );
   EXPECT_FALSE( child.isFine );
   EXPECT_EQ( child.output, "begun" );
   EXPECT_NE( child.errors.find( "unexpected" ), std::string::npos ) << child.errors;
}

TEST( Explore, tellsProgramsTheRoadsThatAreRemembered ) {
   Command const l3sm( "explore '" L3SM_SOURCE_DIR "/examples/gue.json' --count 200 --seconds 0 --seed 7 --json" );
   EXPECT_EQ( l3sm.status, 1 ) << l3sm.errors;
   auto const answer = parseJson( l3sm.output, "answer" );
   EXPECT_EQ( answer.object()->at( "played" ), Rex::Value( 200 ) );
   EXPECT_EQ( answer.object()->at( "cut" ), Rex::Value( false ) );
   auto const & first = *answer.object()->at( "histories" ).list()->front().object();
   ASSERT_EQ( first.at( "differences" ).list()->size(), 2u );
   auto const & difference = *first.at( "differences" ).list()->front().object();
   EXPECT_EQ( difference.at( "own" ), Rex::Value( "0x1" ) );
   EXPECT_EQ( difference.at( "here" ), Rex::Value( "0x33d9" ) );
   EXPECT_TRUE( difference.at( "known" ).text()->starts_with( "of several MPLS decap groups" ) );
}

TEST( Explore, refusesAScenarioThatEndsTheProcessItself ) {
   Command const l3sm( "explore '" L3SM_SOURCE_DIR "/examples/ffc-key.json' --count 3 --seconds 0 "
                       "--toggle DaceL3Unicast.json:UnifiedIPv4Fwd2Ctx=off" );
   EXPECT_EQ( l3sm.status, 2 );
   EXPECT_NE( l3sm.errors.find( "/ffc-key.json: the scenario ends the process: " ), std::string::npos ) << l3sm.errors;
   EXPECT_NE( l3sm.errors.find( "toggleUnifiedIPv4Fwd2CtxEnabled()" ), std::string::npos ) << l3sm.errors;
}

TEST( ChipComparison, tellsAChipThatHasNoPlaceForTheContentsOfTheScenario ) {
   Folder const folder;
   auto const scenario = readScenario(
      folder.file( "s.json",
                   R"({"switch": {"slice": {"name": "L"}, "faps": [{"fapId": 0, )"
                   R"("revision": {"chipType": "BCM88850_A0", "sdkVersion": 7, "major": 8}}]}, )"
                   R"("chips": {"0": {"controls": {}, "tables": {"IppbLifMcBridgeFallbackAllow": )"
                   R"({"0": {"0": {"0": {"words": ["0x00000001", )"
                   R"("0x00000000", "0x00000000", "0x00000000", "0x00000000", "0x00000000", "0x00000000", )"
                   R"("0x00000000"]}}}}}}}})" ) );
   auto const comparison =
      compareChips( scenario, { .tables = { "controls" }, .plugin = buildFolder() + "/lib/libL3SmPlugin.so" } );
   EXPECT_EQ( comparison.failures[0],
              folder / "s.json" + ": /chips/0/IppbLifMcBridgeFallbackAllow: the BCM88690_B0 has no such table" );
   EXPECT_EQ( comparison.failures[2], "" );
   for ( auto const & [place, values] : comparison.places ) {
      EXPECT_EQ( place.table, "controls" );
      EXPECT_FALSE( values[0] );
   }
   EXPECT_THROW( compareChips( scenario, { .plugin = "/nowhere/lib.so" } ), InputError );
}

TEST( Answers, refuseAFapThatAFileLacks ) {
   Command const l3sm( playedTraps + "show chips.json --fap 9" );
   EXPECT_EQ( l3sm.status, 2 );
   EXPECT_EQ( l3sm.errors, "l3sm: chips.json: there is no FAP 9\n" );
}

TEST( Answers, refuseAControlThatIsNoNumber ) {
   Command const l3sm( playedTraps + "show chips.json control.x" );
   EXPECT_EQ( l3sm.status, 2 );
   EXPECT_EQ( l3sm.errors.substr( 0, 63 ), "l3sm: nothing is known to set a control x; there is 1, 2, 64, 6" );
}

TEST( Answers, sayThatStandardOutputIsFull ) {
   Command const l3sm( "run --quiet --chips - >/dev/full 2>told; true" );
   EXPECT_EQ( l3sm.file( "told" ), "l3sm: standard output: can't be written: No space left on device\n" );
}

} // namespace
