// l3sm replay of recordings, as a person runs it.
#include "BuildFolder.h"
#include "agent/SliceAgent.h"
#include "agent/database/EmbeddedDatabase.h"
#include "agent/recording/Recorder.h"
#include "inspection/Play.h"
#include "inspection/files/Json.h"
#include "l3sm/Command.h"
#include "rex/Log.h"

#include <gmock/gmock.h>

namespace {

using namespace Live;
using testing::HasSubstr;

// A recording of three events, as a text.
std::string recording() {
   Folder const folder;
   Rex::logSinkIs( []( auto const & ) {} );
   Inspection::loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
   EventLoop loop;
   EmbeddedDatabase database( loop );
   SliceAgent agent( loop, database, Inspection::scenarioOf( Inspection::parseJson( scenarioWith( "" ), "s" ), "s" ) );
   Recorder recorder( agent.sw(), agent.scenario(), { .folder = folder / "", .isCompressed = false } );
   agent.sw().journal().readerAdd( recorder );
   recorder.begin();
   agent.begin();
   while ( loop.turn( 0 ) ) {
   }
   for ( bool const on : { true, false, true } ) {
      database.transact( { { .path = "routing/hardware/config", .attribute = "urpfLooseFailForward", .value = on },
                           { .path = "evpn/status", .attribute = "vxlanEnabled", .value = on } } );
      while ( loop.turn( 0 ) ) {
      }
   }
   agent.end();
   return folder.text( "Linecard3-1.rec.jsonl" );
}

TEST( RecordingReplay, SaysThatEveryEventDidWhatItDidThen ) {
   auto const text = recording();
   ::Command const one( "replay a-1.rec.jsonl", { { "a-1.rec.jsonl", text } } );
   EXPECT_EQ( one.status, 0 ) << one.errors;
   EXPECT_THAT( one.output,
                testing::MatchesRegex( "4 events of 1 segment played, [0-9]+ driver operations compared\n"
                                       "every one did what it did then\n" ) );
   ::Command const folder( "replay . --json", { { "a-1.rec.jsonl", text } } );
   EXPECT_EQ( folder.status, 0 ) << folder.errors;
   EXPECT_THAT( folder.output, HasSubstr( "\"difference\": null" ) );
   EXPECT_THAT( folder.output, HasSubstr( "\"events\": 4" ) );
}

TEST( RecordingReplay, NamesTheFirstEventThatDiffersWithStatus1 ) {
   auto text = recording();
   auto const at = text.find( "\"hash\": \"0x", text.find( "\"event\": 2" ) ) + 11;
   text[at] = text[at] == '0' ? '1' : '0';
   ::Command const replay( "replay a-1.rec.jsonl", { { "a-1.rec.jsonl", text } } );
   EXPECT_EQ( replay.status, 1 ) << replay.errors;
   EXPECT_THAT( replay.output, HasSubstr( "event 2 does something else than it did then: at once: " ) );
   EXPECT_THAT( replay.output, HasSubstr( "in a-1.rec.jsonl\n" ) );
}

TEST( RecordingReplay, WritesAScenarioThatRuns ) {
   ::Command const replay( "replay a-1.rec.jsonl --to-scenario s.json && '" + buildFolder() +
                              "/bin/l3sm' run s.json --json",
                           { { "a-1.rec.jsonl", recording() } } );
   EXPECT_EQ( replay.status, 0 ) << replay.errors;
   EXPECT_THAT( replay.file( "s.json" ), HasSubstr( "\"transaction\"" ) );
}

TEST( RecordingReplay, RefusesWhatIsNone ) {
   struct Case {
      char const * arguments;
      ::Command::Files files;
      char const * says;
   };
   for ( Case const & it : {
            Case{ "replay .", {}, "l3sm: .: there is no recording in this folder\n" },
            Case{ "replay .",
                  { { "a-1.rec.jsonl", "" }, { "b-1.rec.jsonl", "" } },
                  "l3sm: .: there are recordings of several slices, a, b; name one of their segments\n" },
            Case{ "replay .", { { "a-1.rec.jsonl", "" } }, "l3sm: .: there is no recording in this folder\n" },
            Case{
               "replay a-1.rec.jsonl", { { "a-1.rec.jsonl", "" } }, "l3sm: a-1.rec.jsonl: is empty, no recording\n" },
            Case{ "replay .",
                  { { "a-1.rec.jsonl", R"({"op": "begin", "format": 2})" } },
                  "l3sm: ./a-1.rec.jsonl: is a journal, no recording; `l3sm serve --record DIR` writes one\n" },
            Case{ "replay .",
                  { { "a-1.rec.jsonl", R"({"op": "begin", "recording": {"slice": "a)" } },
                  "l3sm: ./a-1.rec.jsonl: is cut in its first line: nothing of it can be read\n" },
            Case{ "replay a.rec.jsonl --chips c.json",
                  { { "a.rec.jsonl", "{\"op\": \"begin\", \"recording\": {}}\n" } },
                  "l3sm: --chips: is for journals, not for recordings\n" },
            Case{ "replay run.jsonl --to-scenario s.json",
                  { { "run.jsonl", "{\"op\": \"begin\", \"format\": 2}\n" } },
                  "l3sm: --to-scenario: is for recordings, not for journals\n" },
            Case{ "why a.rec.jsonl control.64",
                  { { "a.rec.jsonl", "{\"op\": \"begin\", \"recording\": {}}\n" } },
                  "l3sm: a.rec.jsonl: is a recording, no journal; `l3sm run --journal FILE` writes one\n" },
         } ) {
      ::Command const l3sm( it.arguments, it.files );
      EXPECT_EQ( l3sm.status, 2 ) << it.arguments;
      EXPECT_EQ( l3sm.errors, it.says ) << it.arguments;
   }
   auto text = recording();
   text.replace( text.find( "\"operations\"" ), 12, "\"op_rations\"" );
   ::Command const wrong( "replay a-1.rec.jsonl", { { "a-1.rec.jsonl", text } } );
   EXPECT_EQ( wrong.status, 2 );
   EXPECT_THAT( wrong.errors, HasSubstr( "l3sm: a-1.rec.jsonl:2: " ) );
}

} // namespace
