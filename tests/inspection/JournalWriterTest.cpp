// The journal as it is written: the very lines, and when they are on the disk.
#include "JournalSample.h"
#include "inspection/Version.h"

#include <sys/stat.h>

using namespace Inspection;

namespace {

TEST( JournalWriter, WritesEachKindOfRowAsALine ) {
   Folder const folder;
   {
      JournalWriter writer( folder / "run.jsonl", { .scenario = parseJson( R"({"switch": {}})", "" ), .plugin = "p" } );
      playSampleEvent( writer );
      writer.ends( complete() );
   }
   std::string const shared = R"(, "function": "L3Sm::f", "source": "L3Sm.cpp:41", "cause": "chip-init"})";
   auto const lines = linesOf( folder.text( "run.jsonl" ) );
   ASSERT_EQ( lines.size(), 13u );
   EXPECT_TRUE(
      lines[0].starts_with( R"({"op": "begin", "format": 2, "l3sm": ")" + std::string( versionNumber() ) + R"(", )" ) )
      << lines[0];
   EXPECT_TRUE( lines[0].ends_with( R"(, "plugin": "p", "scenario": {"switch": {}}})" ) ) << lines[0];
   EXPECT_EQ( lines[1], R"({"op": "event", "event": 0, "what": {"start": {}}})" );
   std::string const register3 = R"("table": "IppdFerTrapCfg", "variant": 0, "array": 3, "entry": null, )";
   EXPECT_EQ( lines[2],
              R"({"op": "read", "seq": 1, "event": 0, "fap": 0, )" + register3 +
                 R"("scope": "any", "words": ["0x00000a00"])" + shared );
   EXPECT_EQ( lines[3],
              R"({"op": "write", "seq": 2, "event": 0, "fap": 0, )" + register3 +
                 R"("scope": "all", "words": ["0x00000a00"], "changed": true, "before": ["0x00000001"])" + shared );
   EXPECT_EQ(
      lines[4],
      R"({"op": "write", "seq": 3, "event": 0, "fap": 0, "table": "EnablersVectors", "variant": 0, "array": 1, )"
      R"("entry": 22, "scope": "core", "core": 1, "words": ["0x00000004", "0x00000000"], "changed": false)" +
         shared );
   EXPECT_EQ( lines[5],
              R"({"op": "control", "seq": 4, "event": 0, "fap": 0, "control": 64, "value": 255, "changed": true, )"
              R"("before": 7)" +
                 shared );
   EXPECT_EQ( lines[6],
              R"({"op": "control", "seq": 5, "event": 0, "fap": 0, "control": 65, "value": 1, "changed": true)" +
                 shared );
   EXPECT_EQ( lines[7],
              R"({"op": "fault", "event": 0, "fap": 0, )" + register3 +
                 R"("scope": "core", "core": 1, "words": ["0x00000a00"], "reason": "flip:9", "cause": "chip-init"})" );
   EXPECT_EQ( lines[8], R"({"op": "gate", "event": 0, "fap": 0, "reason": "FAP type 3 is \"not\" served")" + shared );
   EXPECT_EQ( lines[9], R"({"op": "gate", "event": 0, "reason": "FAP type 3 is \"not\" served")" + shared );
   EXPECT_EQ( lines[10],
              R"({"op": "publish", "event": 0, "path": "managed/intfStatusDir", "attribute": "mtu", "value": 2000, )"
              R"("before": 1500, "cause": "chip-init"})" );
   EXPECT_EQ( lines[11],
              R"({"op": "publish", "event": 0, "path": "managed/intfStatusDir", "attribute": "mtu", )"
              R"("key": "Ethernet1", "value": 2000, "before": 1500, "cause": "chip-init"})" );
   EXPECT_EQ( lines[12], R"({"op": "end", "ended": "complete", "events": 0, "operations": 5})" );
}

TEST( JournalWriter, TellsTheAssertionThatEndedTheRun ) {
   Folder const folder;
   JournalWriter writer( folder / "run.jsonl", { .scenario = sampleScenario() } );
   writer.eventBegins( 0, {} );
   writer.ends( { .kind = Simulator::Ending::Kind::assertion,
                  .events = 0,
                  .operations = 3,
                  .text = "entry < 32",
                  .function = "f",
                  .source = "a.cpp:1" } );
   EXPECT_EQ( linesOf( folder.text( "run.jsonl" ) ).back(),
              R"({"op": "end", "ended": "assertion", "events": 0, "operations": 3, "text": "entry < 32", )"
              R"("function": "f", "source": "a.cpp:1"})" );
}

// Both kinds of file, without the writer's having been closed.
class JournalWriterStream : public testing::TestWithParam< char const * > {};

TEST_P( JournalWriterStream, HasAnEventOnTheDiskWhenItIsOver ) {
   Folder const folder;
   auto const path = folder / GetParam();
   JournalWriter writer( path, { .scenario = sampleScenario() } );
   playSampleEvent( writer, 0 );
   playSampleEvent( writer, 1 );
   writer.eventBegins( 2, {} );
   Heard heard;
   JournalReader( path ).read( heard );
   ASSERT_EQ( heard.lines.size(), 2 * 12u );
   EXPECT_EQ( heard.lines.back(), "cut 1 10" );
}

TEST_P( JournalWriterStream, IsReadAsItWasWritten ) {
   Folder const folder;
   auto const path = folder / GetParam();
   writeSample( path );
   Heard written;
   playSampleEvent( written, 0 );
   playSampleEvent( written, 1 );
   written.ends( complete( 1 ) );
   Heard read;
   JournalReader journal( path );
   journal.read( read );
   EXPECT_EQ( read.lines, written.lines );
   EXPECT_EQ( toJson( journal.scenario(), 0 ), toJson( sampleScenario(), 0 ) );
   EXPECT_TRUE( journal.remarks().empty() );
}

INSTANTIATE_TEST_SUITE_P( PlainAndCompressed,
                          JournalWriterStream,
                          testing::Values( "run.jsonl", "run.jsonl.zst" ),
                          []( auto const & kind ) { return kind.index == 0 ? "plain" : "compressed"; } );

std::string whyNot( auto const & action ) {
   try {
      action();
   } catch ( InputError const & error ) {
      return error.what();
   }
   return "nothing went wrong";
}

TEST( JournalWriter, TellsThatTheFileCantBeMade ) {
   EXPECT_EQ( whyNot( [] { JournalWriter( "/nowhere/run.jsonl", { .scenario = {} } ); } ),
              "/nowhere/run.jsonl: can't be written: No such file or directory" );
}

TEST( JournalWriter, TellsOnceThatTheDiskIsFull ) {
   EXPECT_EQ( whyNot( [] { JournalWriter( "/dev/full", { .scenario = {} } ); } ),
              "/dev/full: can't be written: No space left on device" );
}

} // namespace
