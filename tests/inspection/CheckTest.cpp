// What a check tells programs of second starts, of values that are passed through, and of what chips hold; and contents
// that don't fit the scenario's chips.
#include "l3sm/Command.h"

#include "inspection/files/Json.h"

#include <gtest/gtest.h>

namespace {

using Inspection::parseJson;
using Rex::Value;

std::string const trapsExample = "'" L3SM_SOURCE_DIR "/examples/urpf-and-ip-traps.json'";
std::string const gueExample = "'" L3SM_SOURCE_DIR "/examples/gue.json'";

Value::Object checked( std::string const & arguments, int status ) {
   Command const l3sm( "check " + arguments + " --json" );
   EXPECT_EQ( l3sm.status, status ) << l3sm.errors;
   return *parseJson( l3sm.output, "answer" ).object();
}

TEST( Check, tellsProgramsWhatASecondStartChangesAndWhyThatIsKnown ) {
   auto const restart = *checked( gueExample + " --restart", 1 ).at( "restart" ).object();
   EXPECT_EQ( restart.at( "entriesThatDiffer" ), Value( 2 ) );
   EXPECT_EQ( restart.at( "controlsThatDiffer" ), Value( 0 ) );
   EXPECT_EQ( restart.at( "differences" ).object()->at( "changes" ), Value( true ) );
   ASSERT_EQ( restart.at( "known" ).list()->size(), 1u );
   auto const & known = *restart.at( "known" ).list()->front().object();
   EXPECT_EQ( known.at( "table" ), Value( "AdditionalHeadersMapTable0" ) );
   EXPECT_EQ( known.at( "field" ), Value( "protocolSpecificInformation" ) );
   EXPECT_FALSE( restart.at( "windows" ).list()->empty() );
   EXPECT_NE( restart.at( "entriesWrongInBetween" ), Value( 0 ) );
}

TEST( Check, tellsProgramsTheValuesThatArePassedThrough ) {
   auto const windows = *checked( trapsExample + " --windows", 0 ).at( "windows" ).list();
   ASSERT_FALSE( windows.empty() );
   auto const & window = *windows.front().object();
   EXPECT_EQ( window.at( "event" ), Value( 0 ) );
   EXPECT_NE( window.at( "through" ), window.at( "to" ) );
   EXPECT_TRUE( window.at( "setBy" ).object()->at( "function" ).text()->starts_with( "L3Sm::" ) );
}

TEST( Check, tellsProgramsThatEveryChipHoldsWhatWasWritten ) {
   auto const audit = checked( trapsExample + " --audit", 0 );
   EXPECT_EQ( audit, ( Value::Object{ { "audit", Value::List() }, { "degraded", Value::List() }, { "faults", 0 } } ) );
}

TEST( Check, refusesContentsThatDoNotFitTheChipsOfTheScenario ) {
   auto const refusal = []( std::string const & faps ) {
      Command const l3sm( "check " + trapsExample + " --chips chips.json", { { "chips.json", faps } } );
      EXPECT_EQ( l3sm.status, 2 );
      return l3sm.errors;
   };
   EXPECT_EQ( refusal( R"({"faps": {"9": {"chipType": "BCM88690_B0", "controls": {}, "tables": {}}}})" ),
              "l3sm: chips.json: /faps/9: the scenario's switch has no such FAP\n" );
   EXPECT_EQ( refusal( R"({"faps": {"0": {"chipType": "BCM88480_A0", "controls": {}, "tables": {}}}})" ),
              "l3sm: chips.json: /faps/0/chipType: in the scenario the FAP is a BCM88690_B0\n" );
}

} // namespace
