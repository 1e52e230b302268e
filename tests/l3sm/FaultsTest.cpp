// Scenarios whose chips fail, as a person plays them.
#include "l3sm/Running.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string scenario( std::string const & events ) {
   return scenarioWith( R"(, "state": {"evpn/status": {}}, "events": [)" + events + "]" );
}
std::string const dci = R"({"set": {"path": "evpn/status", "attribute": "evpnDciEnabled", "value": true}})";

TEST( FaultsOfAScenario, areToldWithTheEventThatTheyFiredIn ) {
   Command const run(
      "run s.json",
      { { "s.json",
          scenario( R"({"fault": {"table": "ErppInlifOrientationMap", "entry": 72, "copy": 1, "kind": "lost"}}, )" +
                    dci ) } } );
   EXPECT_EQ( run.status, 0 ) << run.errors;
   EXPECT_THAT( run.output, HasSubstr( "Event 1: fault ErppInlifOrientationMap.72 --copy 1 --kind lost\n" ) );
   EXPECT_THAT( run.output, HasSubstr( "  fault  lost  FAP 0  ErppInlifOrientationMap[0].72  copy 1\n" ) );
}

TEST( FaultsOfAScenario, areWhatAnAuditFinds ) {
   Command const check(
      "check --audit s.json",
      { { "s.json",
          scenario( R"({"fault": {"table": "IppdFerTrapCfg", "array": 3, "copy": 1, "kind": "flip:7"}})" ) } } );
   EXPECT_EQ( check.status, 1 ) << check.errors;
   EXPECT_THAT( check.output, StartsWith( "FAP 0 IppdFerTrapCfg[3] copy 1: cpuSnoopCodeN is " ) );
   EXPECT_THAT( check.output, HasSubstr( "\n1 place is wrong: 1 fault fired.\n" ) );
}

TEST( FaultsOfAScenario, areNoneWithoutOne ) {
   Command const check( "check --audit s.json", { { "s.json", scenario( dci ) } } );
   EXPECT_EQ( check.status, 0 ) << check.errors;
   EXPECT_EQ( check.output, "Every chip holds what was written to it: 0 faults fired.\n" );
}

TEST( FaultsOfAScenario, leaveAChipDegradedThatGoesOnFailing ) {
   Command const check( "check --audit s.json",
                        { { "s.json", scenario( R"({"fault": {"kind": "error"}}, )" + dci ) } } );
   EXPECT_EQ( check.status, 1 ) << check.errors;
   EXPECT_THAT( check.output,
                HasSubstr( "FAP 0 is degraded: an operation failed 3 times, and none reached it since\n" ) );
}

TEST( FaultsOfAScenario, leaveTheJournalTellingWhatIsOnTheChips ) {
   for ( char const * const kind : { "lost", "flip:1", "stuck:2=1", "error" } ) {
      std::string const fault =
         R"({"fault": {"table": "ErppInlifOrientationMap", "kind": ")" + std::string( kind ) + "\"}}, ";
      std::string const then = " >/dev/null && '" L3SM_BINARY_DIR "/bin/l3sm' ";
      Command const both( "run s.json --journal j.jsonl --chips c.json" + then + "replay j.jsonl" + then +
                             "diff j.jsonl c.json",
                          { { "s.json", scenario( fault + dci ) } } );
      EXPECT_EQ( both.output, "no difference\n" ) << kind << both.errors;
   }
}

} // namespace
