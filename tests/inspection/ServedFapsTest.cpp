// Which FAPs are served, and how the gate of the others is opened.
#include "inspection/ServedFaps.h"

#include "inspection/KeptRows.h"
#include "l3sm/Command.h"

#include <gtest/gtest.h>

namespace {

using Inspection::ServedFap;
using Inspection::ServedFaps;

std::string const gateExample = "'" L3SM_SOURCE_DIR "/examples/gate.json' --quiet --journal j ";

ServedFaps after( std::string const & arguments ) {
   Command const l3sm( "run " + arguments );
   EXPECT_EQ( l3sm.status, 0 ) << l3sm.errors;
   auto const journal = Inspection::rowsOf( ( l3sm.folder / "j" ).string() );
   ServedFaps faps;
   for ( auto const & row : journal.all() ) {
      faps.follow( row );
   }
   return faps;
}

TEST( ServedFaps, tellWhichGateIsClosedAndHowToOpenIt ) {
   ServedFap const fap = after( gateExample ).of( 0 );
   EXPECT_FALSE( fap.isServed );
   EXPECT_EQ( fap.reason, "FAP type 3 is not served while the toggles ArmOrderedSwTable and J2DaceL3Ni are on" );
   EXPECT_EQ( fap.remedy(),
              "--toggle Dace.json:ArmOrderedSwTable=off opens it, as does DaceToggles.json:J2DaceL3Ni=off" );
}

TEST( ServedFaps, areServedWithEachOfTheSettingsThatAreSaidToOpenTheGate ) {
   auto const openers = after( gateExample ).of( 0 ).openers;
   ASSERT_EQ( openers.size(), 2u );
   for ( ServedFap::Opener const & opener : openers ) {
      ServedFap const fap = after( gateExample + "--toggle " + opener.setting() ).of( 0 );
      EXPECT_TRUE( fap.isServed ) << opener.setting();
      EXPECT_EQ( fap.reason + fap.remedy(), "" );
   }
}

TEST( ServedFaps, areServedInEveryExampleButTheOneOfTheGate ) {
   for ( auto const & example : exampleScenarios() ) {
      auto const faps = after( "'" + example.string() + "' --quiet --journal j" );
      EXPECT_EQ( faps.of( 0 ).isServed, example.stem() != "gate" ) << example;
   }
}

TEST( ServedFaps, areNotServedWhereNothingHasInitialisedThem ) {
   ServedFap const fap = after( gateExample ).of( 7 );
   EXPECT_FALSE( fap.isServed );
   EXPECT_EQ( fap.reason, "no plug-in has programmed it at chip initialisation" );
   EXPECT_EQ( fap.remedy(), "no toggle opens it: it takes another kind of chip, or another plug-in" );
}

TEST( ServedFaps, knowsTheWayInWhichAToggleOpensAGate ) {
   auto const openers = Inspection::openersOf( "the toggle J2SRv6 is off" );
   ASSERT_EQ( openers.size(), 1u );
   EXPECT_EQ( openers[0].setting(), "DaceToggles.json:J2SRv6=on" );
   EXPECT_TRUE( Inspection::openersOf( "the chip has no such table" ).empty() );
}

} // namespace
