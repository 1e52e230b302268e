// Answers of the verbs with --json, and remarks on what they were read from.
#include "BuildFolder.h"
#include "l3sm/Command.h"

#include "inspection/files/Json.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using Rex::Value;

// The parsed output of a verb that ends so.
Value answerOf( std::string const & arguments, Command::Files const & files, int status = 0 ) {
   Command const l3sm( arguments, files );
   EXPECT_EQ( l3sm.status, status ) << arguments;
   EXPECT_EQ( l3sm.errors, "" );
   return Inspection::parseJson( l3sm.output, "answer" );
}
Value const & partOfAnswer( Value const & value, char const * name ) {
   return value.object()->at( name );
}

std::string const oneEvent =
   scenarioWith( R"(, "events": [{"set": {"path": "routing/hardware/config", "attribute": "urpfLooseFailForward",
                                           "value": true}}])" );
// Of the program, behind another command of it.
std::string andThen( std::string const & arguments ) {
   return " && '" + buildFolder() + "/bin/l3sm' " + arguments;
}

TEST( AnswersForPrograms, tellEveryEventOfARun ) {
   auto const run = answerOf( "run s.json --event all --json", { { "s.json", oneEvent } } );
   auto const & events = *partOfAnswer( run, "events" ).list();
   ASSERT_EQ( events.size(), 2u );
   EXPECT_EQ( partOfAnswer( events[0], "text" ), Value( "start-up" ) );
   EXPECT_EQ( events[1],
              Inspection::parseJson( R"({
   "counts": {"changes": 1, "controls": 0, "gates": 0, "publications": 0, "reads": 1, "writes": 1},
   "event": 1,
   "faps": {"0": [{"cause": "routing/hardware/config urpfLooseFailForward", "changes": 1, "controls": 0,
                   "function": "L3Sm::handleUrpfFailFwdConfig", "reads": 1, "tables": ["IppdFerTrapCfg"],
                   "writes": 1}]},
   "published": [],
   "text": "set routing/hardware/config urpfLooseFailForward = true"})",
                                     "event" ) );
}

TEST( AnswersForPrograms, tellAnAudit ) {
   std::string const lost =
      R"({"fault": {"table": "ErppInlifOrientationMap", "entry": 72, "copy": 1, "kind": "lost"}},)"
      R"({"set": {"path": "evpn/status", "attribute": "evpnDciEnabled", "value": true}})";
   EXPECT_EQ( answerOf( "check s.json --audit --json",
                        { { "s.json", scenarioWith( R"(, "state": {"evpn/status": {}}, "events": [)" + lost + "]" ) } },
                        1 ),
              Inspection::parseJson( R"({"audit": [{"bits": [1], "fap": 0,
                                            "fields": {"inlifOrientation": {"expected": "0x4", "found": "0x6"}},
                                            "place": "ErppInlifOrientationMap.72 copy 1"}],
                                 "degraded": [], "faults": 1})",
                                     "audit" ) );
}

TEST( AnswersForPrograms, tellASecondStart ) {
   auto const all = answerOf( "check s.json --restart --json", { { "s.json", oneEvent } } );
   auto const & restart = partOfAnswer( all, "restart" );
   EXPECT_EQ( partOfAnswer( restart, "entriesThatDiffer" ), Value( 0 ) );
   EXPECT_EQ( partOfAnswer( restart, "controlsThatDiffer" ), Value( 0 ) );
   EXPECT_EQ( partOfAnswer( partOfAnswer( restart, "differences" ), "name" ), Value( "one FAP" ) );
   EXPECT_EQ( partOfAnswer( partOfAnswer( restart, "differences" ), "changes" ), Value( false ) );
}

TEST( AnswersForPrograms, tellTheFieldsThatPassThroughAValue ) {
   auto const answer = answerOf( "check s.json --windows --json", { { "s.json", oneEvent } } );
   auto const & windows = *partOfAnswer( answer, "windows" ).list();
   auto const isOfOrientation = []( Value const & window ) {
      return partOfAnswer( window, "field" ) == Value( "outlifOrientationMapping" );
   };
   auto const found = std::ranges::find_if( windows, isOfOrientation );
   ASSERT_NE( found, windows.end() );
   EXPECT_EQ( partOfAnswer( *found, "table" ), Value( "EtppOutlifOrientationMap" ) );
   EXPECT_EQ( partOfAnswer( *found, "event" ), Value( 0 ) );
   EXPECT_EQ( partOfAnswer( partOfAnswer( *found, "endedBy" ), "function" ),
              Value( "L3Sm::initOutlifOrientationMap" ) );
}

// A start on chips that hold already what it writes.
TEST( AnswersForPrograms, tellThatNoFieldPassesThroughAValue ) {
   std::string const closed = R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0"}}]}})";
   Command const text( "run s.json --quiet --save saved.json" + andThen( "check saved.json --windows" ),
                       { { "s.json", closed } } );
   EXPECT_EQ( text.output, "No field passes through a value that it doesn't keep.\n" );
   EXPECT_EQ( text.status, 0 );
   EXPECT_EQ( answerOf( "run s.json --quiet --save saved.json" + andThen( "check saved.json --windows --json" ),
                        { { "s.json", closed } } ),
              Value( Value::Object{ { "windows", Value::List() } } ) );
}

TEST( AnswersForPrograms, tellTheRoadsThatAreRemembered ) {
   auto const explored = answerOf( "explore s.json --count 20 --seconds 0 --json", { { "s.json", oneEvent } }, 1 );
   EXPECT_EQ( partOfAnswer( explored, "cut" ), Value( false ) );
   auto const & histories = *partOfAnswer( explored, "histories" ).list();
   ASSERT_FALSE( histories.empty() );
   auto const & difference = partOfAnswer( histories.front(), "differences" ).list()->front();
   EXPECT_EQ( partOfAnswer( difference, "table" ), Value( "controls" ) );
   EXPECT_EQ( partOfAnswer( difference, "own" ), Value( "unset" ) );
   EXPECT_EQ( partOfAnswer( difference, "known" ),
              Value( "a VTI's UDP port is cleared when it goes; before the first one the control has no value" ) );
}

TEST( AnswersForPrograms, tellWhatRandomScenariosCover ) {
   auto const writtenOf = []( std::string const & arguments ) {
      auto const answer = answerOf( "coverage --json " + arguments, { { "s.json", oneEvent } } );
      return *partOfAnswer( partOfAnswer( answer, "pairs" ), "written" ).integer();
   };
   auto const one = writtenOf( "--random 1 --seed 4" );
   EXPECT_GT( one, 0 );
   EXPECT_EQ( writtenOf( "--random 1 --seed 4" ), one );
   EXPECT_GE( writtenOf( "--random 2 --seed 4" ), one );
   auto const scenario = writtenOf( "s.json" );
   EXPECT_GT( writtenOf( "s.json --random 1 --seed 4" ), scenario );
}

TEST( AnswersForPrograms, areNoneWhereThePageCannotBeWritten ) {
   Command const l3sm( "coverage s.json --page no/where", { { "s.json", oneEvent } } );
   EXPECT_EQ( l3sm.status, 2 );
   EXPECT_EQ( l3sm.output, "" );
   EXPECT_TRUE( l3sm.errors.starts_with( "l3sm: no/where: can't be written" ) ) << l3sm.errors;
}

TEST( AnswersForPrograms, areRefusedBeforeAnythingIsPlayed ) {
   std::string const years = "coverage --random 1000000000 --page no/where";
   Command const l3sm( "--version >/dev/null; timeout 30 '" + buildFolder() + "/bin/l3sm' " + years );
   EXPECT_EQ( l3sm.status, 2 );
   EXPECT_EQ( l3sm.errors, "l3sm: no/where: can't be written: No such file or directory\n" );
}

TEST( AnswersForPrograms, tellOfNoFap ) {
   Command::Files const files{ { "c", "{\"faps\": {}}" } };
   Command const text( "show c", files );
   EXPECT_EQ( text.output, "no FAP\n" );
   EXPECT_EQ( text.status, 0 );
   EXPECT_EQ( answerOf( "show c --json", files ), Value( Value::Object{ { "faps", Value::Object() } } ) );
}

// Of a journal whose end is missing.
TEST( AnswersForPrograms, remarkWhatTheyWereReadFrom ) {
   auto const lines = linesOf( Command( "run s.json --quiet --journal j", { { "s.json", oneEvent } } ).file( "j" ) );
   ASSERT_GT( lines.size(), 100u );
   std::string cut;
   for ( std::size_t line = 0; line < 100; ++line ) {
      cut += lines[line] + "\n";
   }
   cut += lines[100].substr( 0, 20 );
   Command::Files const files{ { "cut", cut } };
   std::string const remark = "cut:101: the journal is cut here, in the start; what is told ends there";
   for ( char const * arguments :
         { "show cut", "show cut state", "catalogue IppdFerTrapCfg --journal cut", "coverage cut" } ) {
      Command const text( arguments, files );
      EXPECT_TRUE( text.output.starts_with( remark + "\n" ) ) << arguments << text.output;
      EXPECT_EQ( partOfAnswer( answerOf( std::string( arguments ) + " --json", files ), "remarks" ),
                 Value( Value::List{ remark } ) )
         << arguments;
   }
   Command const page( "report cut -o page.html", files );
   EXPECT_EQ( page.status, 0 );
   EXPECT_EQ( page.errors, "l3sm: " + remark + "\n" );
   EXPECT_NE( page.file( "page.html" ).find( remark ), std::string::npos );
}

} // namespace
