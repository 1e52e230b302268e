// Scenarios whose chips fail, as a person plays them.
#include "BuildFolder.h"
#include "l3sm/Running.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::string faultScenario( std::string const & events ) {
   return scenarioWith( R"(, "state": {"evpn/status": {}}, "events": [)" + events + "]" );
}
std::string const dci = R"({"set": {"path": "evpn/status", "attribute": "evpnDciEnabled", "value": true}})";

TEST( FaultsOfAScenario, areToldWithTheEventThatTheyFiredIn ) {
   Command const run(
      "run s.json",
      { { "s.json",
          faultScenario(
             R"({"fault": {"table": "ErppInlifOrientationMap", "entry": 72, "copy": 1, "kind": "lost"}}, )" +
             dci ) } } );
   EXPECT_EQ( run.status, 0 ) << run.errors;
   EXPECT_THAT( run.output, HasSubstr( "Event 1: fault ErppInlifOrientationMap.72 --copy 1 --kind lost\n" ) );
   EXPECT_THAT( run.output, HasSubstr( "  fault  lost  FAP 0  ErppInlifOrientationMap[0].72  copy 1\n" ) );
}

TEST( FaultsOfAScenario, areARowBehindTheWriteThatTheyBefell ) {
   Command const run(
      "run s.json --quiet --journal j.jsonl",
      { { "s.json",
          faultScenario(
             R"({"fault": {"table": "ErppInlifOrientationMap", "entry": 72, "copy": 1, "kind": "lost"}}, )" +
             dci ) } } );
   EXPECT_EQ( run.status, 0 ) << run.errors;
   auto const lines = linesOf( run.file( "j.jsonl" ) );
   auto const fault =
      std::ranges::find_if( lines, []( auto const & line ) { return line.starts_with( R"({"op": "fault")" ); } );
   ASSERT_NE( fault, lines.end() );
   EXPECT_EQ( *fault,
              R"({"op": "fault", "event": 2, "fap": 0, "table": "ErppInlifOrientationMap", "variant": 0, "array": 0, )"
              R"("entry": 72, "scope": "core", "core": 1, "words": ["0x00000016"], "reason": "lost", )"
              R"("cause": "evpn/status evpnDciEnabled"})" );
   EXPECT_THAT(
      *std::prev( fault ),
      HasSubstr( R"("table": "ErppInlifOrientationMap", "variant": 0, "array": 0, "entry": 72, "scope": "all", )"
                 R"("words": ["0x00000014"], "changed": true, "before": ["0x00000016"])" ) );
}

// One of two FAPs fails.
std::string const ofOneOfTwo =
   R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7}},
                           {"fapId": 1, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7}}]},
       "toggles": {"Dace.json": {"ArmOrderedSwTable": false}}, "state": {"evpn/status": {}},
       "events": [{"fault": {"fap": 1, "table": "IppdFerTrapCfg", "array": 3, "copy": 1, "kind": "flip:7"}},
                  {"set": {"path": "evpn/status", "attribute": "evpnDciEnabled", "value": true}}]})";

TEST( FaultsOfAScenario, areThoseOfTheirFapAlone ) {
   auto const shown = []( std::string const & fap ) {
      return Command( "run s.json --quiet --journal j.jsonl && '" + buildFolder() +
                         "/bin/l3sm' show j.jsonl IppdFerTrapCfg --array 3 --fap " + fap,
                      { { "s.json", ofOneOfTwo } } );
   };
   EXPECT_EQ( shown( "0" ).output,
              "FAP 0  BCM88690_B0\n"
              "\n"
              "IppdFerTrapCfg\n"
              "       cpuSnoopCodeN  cpuStrengthN\n"
              "  [3]    0x115 (277)           0x5\n" );
   EXPECT_THAT( shown( "1" ).output,
                HasSubstr( "  [3] instance 0    0x115 (277)           0x5\n"
                           "  [3] instance 1    0x195 (405)           0x5\n" ) );
}

TEST( FaultsOfAScenario, standAmongTheReasonsOfAnEntry ) {
   std::string const why = "run s.json --quiet --journal j.jsonl && '" + buildFolder() +
                           "/bin/l3sm' why j.jsonl IppdFerTrapCfg --array 3 --fap 1";
   Command const text( why, { { "s.json", ofOneOfTwo } } );
   EXPECT_THAT( text.output,
                HasSubstr( "event 1  fault IppdFerTrapCfg[3] --fap 1 --copy 1 --kind flip:7\n"
                           "  fault: flip:7  FAP 1  [3]  copy 1\n" ) )
      << text.errors;
   Command const json( why + " --json", { { "s.json", ofOneOfTwo } } );
   EXPECT_THAT( json.output, HasSubstr( R"("op": "fault")" ) );
   EXPECT_THAT( json.output, HasSubstr( R"("copy": 1)" ) );
}

TEST( FaultsOfAScenario, areToldAtTheTopOfThePage ) {
   Command const report( "report s.json -o page.html", { { "s.json", ofOneOfTwo } } );
   EXPECT_THAT( report.file( "page.html" ), HasSubstr( "<p>1 fault fired: the page shows what was written" ) )
      << report.errors;
}

// The lines of a journal that tell of them.
std::vector< std::string > faultsIn( Command const & run ) {
   auto lines = linesOf( run.file( "j.jsonl" ) );
   std::erase_if( lines, []( auto const & line ) { return !line.starts_with( R"({"op": "fault")" ); } );
   return lines;
}

TEST( FaultsOfAScenario, areAsLikelyAsANumberOrATextSays ) {
   auto const scenarioOf = []( std::string const & probability ) {
      return faultScenario( R"({"fault": {"kind": "lost", "seed": 5, "probability": )" + probability + "}}, " + dci );
   };
   auto const fired = [&]( std::string const & probability ) {
      return faultsIn( Command( "run s.json --quiet --journal j.jsonl", { { "s.json", scenarioOf( probability ) } } ) );
   };
   EXPECT_GT( fired( "0.5" ).size(), 0u );
   EXPECT_EQ( fired( "0.5" ), fired( "\"0.5\"" ) );
   EXPECT_GT( fired( "0.9" ).size(), fired( "0.1" ).size() );
   Command const wrong( "run s.json --quiet", { { "s.json", scenarioOf( "1.5" ) } } );
   EXPECT_EQ( wrong.status, 2 );
   EXPECT_THAT( wrong.errors,
                HasSubstr( "/fault/probability: expected a probability above 0 and up to 1, got 1.5\n" ) );
}

TEST( FaultsOfAScenario, areWhatAnAuditFinds ) {
   Command const check(
      "check --audit s.json",
      { { "s.json",
          faultScenario( R"({"fault": {"table": "IppdFerTrapCfg", "array": 3, "copy": 1, "kind": "flip:7"}})" ) } } );
   EXPECT_EQ( check.status, 1 ) << check.errors;
   EXPECT_THAT( check.output, StartsWith( "FAP 0 IppdFerTrapCfg[3] copy 1: cpuSnoopCodeN is " ) );
   EXPECT_THAT( check.output, HasSubstr( "\n1 place is wrong: 1 fault fired.\n" ) );
}

TEST( FaultsOfAScenario, areNoneWithoutOne ) {
   Command const check( "check --audit s.json", { { "s.json", faultScenario( dci ) } } );
   EXPECT_EQ( check.status, 0 ) << check.errors;
   EXPECT_EQ( check.output, "Every chip holds what was written to it: 0 faults fired.\n" );
}

TEST( FaultsOfAScenario, leaveAChipDegradedThatGoesOnFailing ) {
   Command const check( "check --audit s.json",
                        { { "s.json", faultScenario( R"({"fault": {"kind": "error"}}, )" + dci ) } } );
   EXPECT_EQ( check.status, 1 ) << check.errors;
   EXPECT_THAT( check.output,
                HasSubstr( "FAP 0 is degraded: an operation failed 3 times, and none reached it since\n" ) );
}

TEST( FaultsOfAScenario, leaveTheJournalTellingWhatIsOnTheChips ) {
   for ( char const * const kind : { "lost", "flip:1", "stuck:2=1", "error" } ) {
      std::string const fault =
         R"({"fault": {"table": "ErppInlifOrientationMap", "kind": ")" + std::string( kind ) + "\"}}, ";
      std::string const then = " >/dev/null && '" + buildFolder() + "/bin/l3sm' ";
      Command const both( "run s.json --journal j.jsonl --chips c.json" + then + "replay j.jsonl" + then +
                             "diff j.jsonl c.json",
                          { { "s.json", faultScenario( fault + dci ) } } );
      EXPECT_EQ( both.output, "no difference\n" ) << kind << both.errors;
   }
}

} // namespace
