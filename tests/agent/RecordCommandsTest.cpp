// A recording that is begun, marked and ended by commands.
#include "agent/recording/RecordCommands.h"
#include "BuildFolder.h"
#include "Folder.h"
#include "agent/SliceAgent.h"
#include "agent/database/EmbeddedDatabase.h"
#include "inspection/Play.h"
#include "inspection/files/InputError.h"
#include "rex/Log.h"

#include <gmock/gmock.h>

namespace {

using namespace Live;
using Rex::Value;
using testing::HasSubstr;

Inspection::Scenario recordedScenario( std::string const & slice ) {
   return Inspection::scenarioOf( Inspection::parseJson( R"({"switch": {"slice": {"name": ")" + slice +
                                                            R"("}, "faps": [{"fapId": 0, "revision":
      {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}}]}})",
                                                         "s" ),
                                  "s" );
}

struct RecordCommandsTest : testing::Test {
   RecordCommandsTest() {
      Rex::logSinkIs( []( auto const & ) {} );
      Inspection::loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
      sliceIs( "Linecard3" );
   }
   ~RecordCommandsTest() override {
      recorder.reset();
      agent->end();
   }
   void sliceIs( std::string const & name ) {
      recorder.reset();
      agent.emplace( loop, database, recordedScenario( name ) );
      recorder.emplace(
         agent->sw(),
         agent->scenario(),
         RecordingOptions{ .isCompressed = false },
         [this] { return agent->position(); },
         &metrics );
      agent->sw().journal().readerAdd( *recorder );
   }
   void begin() {
      agent->begin();
      while ( loop.turn( 0 ) ) {
      }
   }
   Value ask( std::string const & name, Value::List const & given = {} ) {
      Commands commands;
      addRecordCommands( commands, *recorder );
      Live::Command const & command = commands.named( name );
      return std::get< Value >( command.answer( Arguments( command, given ) ) );
   }
   std::string refusalOf( std::string const & name, Value::List const & given = {} ) {
      try {
         ask( name, given );
      } catch ( CommandError const & error ) {
         EXPECT_EQ( error.code(), CommandError::refused );
         return error.what();
      } catch ( Inspection::InputError const & error ) {
         return error.what();
      }
      return "nothing was refused";
   }
   static Value told( bool isRecording, std::string const & segment ) {
      return Value::Object{ { "recording", isRecording }, { "segment", segment }, { "trouble", "" } };
   }

   Folder const folder;
   EventLoop loop;
   EmbeddedDatabase database{ loop };
   Metrics metrics;
   std::optional< SliceAgent > agent;
   std::optional< Recorder > recorder;
};

TEST_F( RecordCommandsTest, tellWhetherItRecordsAndWhere ) {
   begin();
   auto const segment = folder / "Linecard3-1.rec.jsonl";
   EXPECT_EQ( ask( "record start", { folder / "" } ), told( true, segment ) );
   EXPECT_THAT( metrics.text(), HasSubstr( "\nl3sm_recording 1\n" ) );
   EXPECT_EQ( ask( "record start" ), told( true, segment ) ) << "it does already";
   EXPECT_EQ( ask( "record mark", { "here" } ), told( true, segment ) );
   EXPECT_EQ( ask( "record stop" ), told( false, segment ) );
   EXPECT_THAT( metrics.text(), HasSubstr( "\nl3sm_recording 0\n" ) );
   EXPECT_EQ( ask( "record stop" ), told( false, segment ) ) << "it does already";
   auto const lines = linesOf( contentsOf( segment ) );
   ASSERT_EQ( lines.size(), 3u );
   EXPECT_THAT( lines[0], HasSubstr( R"("recording": {"slice": "Linecard3", "segment": 1, "event": 0}, )" ) );
   EXPECT_EQ( lines[1], R"({"op": "mark", "after": 0, "text": "here"})" );
   EXPECT_EQ( lines[2], R"({"op": "end", "ended": "stopped", "events": 0, "operations": 0})" );

   EXPECT_EQ( ask( "record start" ), told( true, folder / "Linecard3-2.rec.jsonl" ) ) << "where it recorded before";
}

TEST_F( RecordCommandsTest, refuseToMarkWhatIsntRecorded ) {
   EXPECT_EQ( refusalOf( "record mark", { "here" } ), "nothing is recorded; begin with: record start FOLDER" );
}

TEST_F( RecordCommandsTest, refuseToRecordWhereNobodyHasSaidWhereTo ) {
   EXPECT_EQ( refusalOf( "record start" ), "name the folder that the recording is to be written to" );
   EXPECT_FALSE( recorder->isRecording() );
}

TEST_F( RecordCommandsTest, refuseToRecordASliceWhoseNameIsNoneOfAFile ) {
   sliceIs( "Linecard3/1" );
   EXPECT_EQ( refusalOf( "record start", { folder / "" } ),
              folder / "" + ": a slice that is called \"Linecard3/1\" can't be recorded in files of its name" );
   EXPECT_FALSE( recorder->isRecording() );
}

TEST_F( RecordCommandsTest, leaveNoSegmentWhereNothingHasHappened ) {
   EXPECT_EQ( ask( "record start", { folder / "" } ), told( true, folder / "Linecard3-1.rec.jsonl" ) );
   EXPECT_TRUE( std::filesystem::exists( folder / "Linecard3-1.rec.jsonl" ) );
   ask( "record stop" );
   EXPECT_FALSE( std::filesystem::exists( folder / "Linecard3-1.rec.jsonl" ) );
}

} // namespace
