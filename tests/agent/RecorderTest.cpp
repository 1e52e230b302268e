// A recording: what is in its files, that it can be played again, and that nothing that happens to it harms the agent.
#include "agent/recording/Recorder.h"
#include "BuildFolder.h"
#include "Folder.h"
#include "agent/SliceAgent.h"
#include "agent/database/EmbeddedDatabase.h"
#include "agent/database/RecordedDatabase.h"
#include "agent/recording/RecordedRun.h"
#include "inspection/JournalSample.h"
#include "inspection/Play.h"
#include "inspection/files/FileKind.h"
#include "inspection/files/RecordingFolder.h"
#include "inspection/files/RecordingReader.h"
#include "rex/Log.h"

#include <gmock/gmock.h>
#include <random>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace Live;
using Inspection::Event;
using Inspection::RecordingReader;
using Rex::Value;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr char const * file = R"({
 "switch": {"slice": {"name": "Linecard3"},
            "faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}}]},
 "chips": {"0": {"controls": {"64": 7}, "tables": {"IppdFerTrapCfg": {"0": {"3": {"0": {"words": ["0x00000001"]}}}}}}},
 "state": {"interface/config/global": {"l3Mtu": 2000}}})";

// Random changes of a few attributes: some change something, some nothing, some don't fit.
std::vector< Event > anyChanges( std::mt19937 & random ) {
   std::vector< Event > changes;
   for ( auto count = 1 + random() % 3; count > 0; --count ) {
      bool const on = random() % 2 == 0;
      std::string const tunnel = "Vxlan" + std::to_string( random() % 3 );
      switch ( random() % 7 ) {
      case 0:
         changes.push_back( { .path = "routing/hardware/config", .attribute = "urpfLooseFailForward", .value = on } );
         break;
      case 1:
         changes.push_back( { .path = "evpn/status", .attribute = "vxlanEnabled", .value = on } );
         break;
      case 2:
         changes.push_back( { .path = "evpn/status", .attribute = "evpnDciEnabled", .value = on } );
         break;
      case 3:
         changes.push_back( { .path = "interface/status/eth/vxlan/vtiStatus/" + tunnel,
                              .attribute = "remoteVxlanDomain",
                              .value = on } );
         break;
      case 4:
         changes.push_back( { .kind = Event::Kind::remove,
                              .path = "interface/status/eth/vxlan",
                              .attribute = "vtiStatus",
                              .key = tunnel } );
         break;
      case 5:
         changes.push_back( { .path = "interface/config/global", .attribute = "l3Mtu", .value = 1500 + random() % 3 } );
         break;
      default:
         changes.push_back( { .path = "evpn/status", .attribute = "vxlanEnabled", .value = "wrong" } );
         break;
      }
   }
   return changes;
}

// An agent whose transactions are told by the test.
class Agent {
 public:
   explicit Agent( RecordingOptions options, std::string const & scenario = file )
      : agent( loop, database, Inspection::scenarioOf( Inspection::parseJson( scenario, "s" ), "s" ) ),
        recorder(
           agent.sw(), agent.scenario(), std::move( options ), [this] { return agent.position(); }, &metrics ) {
      agent.sw().journal().readerAdd( recorder );
   }
   ~Agent() { agent.end(); }
   void begin() {
      agent.begin();
      turn();
   }
   void turn() {
      while ( loop.turn( 0 ) ) {
      }
   }
   void play( std::vector< Event > changes ) { StateDoor( agent.sw() ).play( std::move( changes ) ); }
   void playAny( int events, unsigned seed = 1 ) {
      std::mt19937 random( seed );
      for ( int event = 0; event < events; ++event ) {
         play( anyChanges( random ) );
      }
   }

   EventLoop loop;
   EmbeddedDatabase database{ loop };
   Metrics metrics;
   SliceAgent agent;
   Recorder recorder;
};

class RecorderTest : public testing::Test {
 protected:
   RecorderTest() {
      Rex::logSinkIs( []( auto const & ) {} );
      Inspection::loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
   }
   std::vector< std::string > files() const {
      std::vector< std::string > names;
      for ( auto const & segment : Inspection::segmentsIn( folder / "" ) ) {
         names.push_back( std::filesystem::path( segment.path ).filename() );
      }
      return names;
   }
   RecordingOptions plain() const { return { .folder = folder / "", .isCompressed = false }; }
   RecordingOptions small() const { return { .folder = folder / "", .segmentBytes = 20'000, .isCompressed = false }; }

   Folder const folder;
};

TEST_F( RecorderTest, WritesInputsWithTheNumberAndTheHashOfTheirOperations ) {
   {
      Agent agent( plain() );
      agent.recorder.begin();
      agent.begin();
      agent.play( { { .path = "evpn/status", .attribute = "vxlanEnabled", .value = true } } );
      agent.recorder.mark( "a \"mark\"" );
      agent.recorder.command( "freeze", Value::Object{ { "why", "test" } } );
      agent.recorder.fault( Value::Object{ { "kind", "lost" } } );
      agent.agent.end();
   }
   auto const lines = linesOf( folder.text( "Linecard3-1.rec.jsonl" ) );
   ASSERT_EQ( lines.size(), 7u );
   EXPECT_THAT( lines[0],
                testing::StartsWith( R"({"op": "begin", "recording": {"slice": "Linecard3", "segment": 1}, )"
                                     R"("format": 2, "l3sm": "1.0.0", "plugin": "sha256:)" ) );
   EXPECT_THAT( lines[0], HasSubstr( R"("controls": {"64": 7})" ) );
   EXPECT_THAT( lines[0], HasSubstr( R"("l3Mtu": 2000)" ) );
   EXPECT_THAT( lines[1],
                testing::MatchesRegex( R"(\{"op": "event", "event": 0, "what": \{"start": \{\}\}, )"
                                       R"("operations": [0-9]+, "hash": "0x[0-9a-f]{16}"\})" ) );
   EXPECT_THAT( lines[2], HasSubstr( R"("event": 1, "what": {"set": {"attribute": "vxlanEnabled", )" ) );
   EXPECT_EQ( lines[3], R"({"op": "mark", "after": 1, "text": "a \"mark\""})" );
   EXPECT_EQ( lines[4], R"({"op": "command", "after": 1, "command": "freeze", "arguments": {"why": "test"}})" );
   EXPECT_EQ( lines[5], R"({"op": "fault", "after": 1, "fault": {"kind": "lost"}})" );
   EXPECT_THAT( lines[6], HasSubstr( R"({"op": "end", "ended": "complete", "events": 1, "operations": )" ) );
   EXPECT_EQ( Inspection::kindOfFile( folder / "Linecard3-1.rec.jsonl" ), Inspection::FileKind::recording );
   EXPECT_THROW( Inspection::JournalReader( folder / "Linecard3-1.rec.jsonl" ), Inspection::InputError );
}

TEST_F( RecorderTest, CanBePlayedAgainOperationByOperation ) {
   {
      Agent agent( { .folder = folder / "" } );
      agent.recorder.begin();
      agent.begin();
      agent.playAny( 200 );
   }
   auto const run = recordedRunOf( folder / "Linecard3-1.rec.jsonl.zst" );
   EXPECT_FALSE( run.difference ) << run.difference->event << " " << run.difference->cause;
   EXPECT_EQ( run.events, 201u );
   EXPECT_EQ( run.starts, 1u );
   EXPECT_GT( run.operations, 1000u );
   EXPECT_THAT( run.remarks, ElementsAre() );
}

TEST_F( RecorderTest, IsRotatedIntoSegmentsThatReplayTogetherAndEachByItself ) {
   std::vector< std::string > names;
   {
      auto options = small();
      options.segments = 3;
      Agent agent( options );
      agent.recorder.begin();
      agent.begin();
      std::string before;
      for ( unsigned round = 0; round < 40; ++round ) {
         agent.playAny( 50, round );
         auto const now = files();
         ASSERT_LE( now.size(), 3u );
         names.insert( names.end(), now.begin(), now.end() );
      }
   }
   std::ranges::sort( names );
   names.erase( std::unique( names.begin(), names.end() ), names.end() );
   ASSERT_GT( names.size(), 5u ) << "too few rotations to tell";
   auto const left = Inspection::segmentsIn( folder / "" );
   ASSERT_EQ( left.size(), 3u );
   EXPECT_GT( left[0].number, 2u );
   EXPECT_EQ( left[2].number, left[0].number + 2 );
   auto const whole = recordedRunOf( folder / "" );
   EXPECT_FALSE( whole.difference ) << whole.difference->event << " " << whole.difference->cause;
   EXPECT_EQ( whole.segments, 3u );
   EXPECT_EQ( whole.starts, 0u );
   U64 events = 0;
   for ( auto const & segment : left ) {
      auto const run = recordedRunOf( segment.path );
      EXPECT_FALSE( run.difference ) << segment.path << " " << run.difference->event << " " << run.difference->cause;
      events += run.events;
      EXPECT_LE( std::filesystem::file_size( segment.path ),
                 20'000u + 2'000 + contentsOf( segment.path ).find( '\n' ) );
   }
   EXPECT_EQ( events, whole.events );
}

TEST_F( RecorderTest, NamesTheFirstEventThatDoesSomethingElse ) {
   {
      Agent agent( plain() );
      agent.recorder.begin();
      agent.begin();
      for ( bool const on : { true, false, true } ) {
         agent.play( { { .path = "routing/hardware/config", .attribute = "urpfLooseFailForward", .value = on } } );
      }
   }
   std::string text = folder.text( "Linecard3-1.rec.jsonl" );
   auto const at = text.find( R"("value": false)" );
   ASSERT_NE( at, std::string::npos );
   text.replace( at, 14, R"("value": true )" );
   auto const run = recordedRunOf( folder.file( "other.rec.jsonl", text ) );
   ASSERT_TRUE( run.difference );
   EXPECT_EQ( run.difference->event, 2u );
   EXPECT_THAT( run.difference->cause, HasSubstr( "urpfLooseFailForward" ) );
   EXPECT_NE( run.difference->expectedOperations, 0u );
   EXPECT_EQ( run.difference->operations, 0u ) << "it is set already";
   EXPECT_NE( run.difference->expectedHash, run.difference->hash );

   text = folder.text( "Linecard3-1.rec.jsonl" );
   auto const hash = text.rfind( "\"hash\": \"0x" ) + 11;
   text[hash] = text[hash] == '0' ? '1' : '0';
   auto const hashed = recordedRunOf( folder.file( "hash.rec.jsonl", text ) );
   ASSERT_TRUE( hashed.difference );
   EXPECT_EQ( hashed.difference->event, 3u );
   EXPECT_EQ( hashed.difference->operations, hashed.difference->expectedOperations );
}

TEST_F( RecorderTest, IsReadUpToWhereItIsCutWhereverThatIs ) {
   {
      Agent agent( { .folder = folder / "" } );
      agent.recorder.begin();
      agent.begin();
      agent.playAny( 20 );
   }
   std::string const name = "Linecard3-1.rec.jsonl.zst";
   std::string const whole = folder.text( name );
   U64 most = 0;
   for ( std::size_t size = whole.size() - 1; size > whole.size() - 400; size -= 13 ) {
      auto const cut = folder.file( "cut.rec.jsonl.zst", whole.substr( 0, size ) );
      RecordingReader reader( cut );
      U64 events = 0;
      while ( reader.next() ) {
         ++events;
      }
      EXPECT_TRUE( reader.ended().empty() || events == 21 ) << size;
      most = std::max( most, events );
   }
   EXPECT_GE( most, 20u );
   auto const run = recordedRunOf( folder.file( "cut.rec.jsonl.zst", whole.substr( 0, whole.size() - 200 ) ) );
   EXPECT_FALSE( run.difference );
   ASSERT_EQ( run.remarks.size(), 1u );
   EXPECT_THAT( run.remarks[0], HasSubstr( "cut.rec.jsonl.zst: is cut behind event " ) );
}

TEST_F( RecorderTest, HasEachEventInTheFileWhenItIsOverAlsoIfTheAgentIsKilled ) {
   for ( bool const isCompressed : { false, true } ) {
      std::string const sub = folder / ( isCompressed ? "a" : "b" );
      std::filesystem::create_directory( sub );
      pid_t const child = ::fork();
      if ( child == 0 ) {
         Agent agent( { .folder = sub, .isCompressed = isCompressed } );
         agent.recorder.begin();
         agent.begin();
         agent.playAny( 30 );
         ::kill( ::getpid(), SIGKILL );
      }
      int status = 0;
      ::waitpid( child, &status, 0 );
      ASSERT_TRUE( WIFSIGNALED( status ) );
      auto const run = recordedRunOf( sub );
      EXPECT_FALSE( run.difference );
      EXPECT_EQ( run.events, 31u );
      EXPECT_THAT( run.remarks, ElementsAre( HasSubstr( "is cut behind event 30" ) ) );
   }
}

TEST_F( RecorderTest, BeginsANewSegmentWhereverOthersStandAlready ) {
   folder.file( "Linecard3-7.rec.jsonl", "old" );
   folder.file( "Linecard30-9.rec.jsonl", "another slice" );
   folder.file( "Linecard3-x.rec.jsonl", "something else" );
   {
      Agent agent( plain() );
      agent.recorder.begin();
      agent.begin();
      EXPECT_EQ( agent.recorder.path(), folder / "Linecard3-8.rec.jsonl" );
      agent.recorder.stop();
      agent.playAny( 3 );
      agent.recorder.begin();
      EXPECT_EQ( agent.recorder.path(), folder / "Linecard3-9.rec.jsonl" );
      agent.playAny( 3, 2 );
      agent.recorder.stop();
   }
   EXPECT_EQ( folder.text( "Linecard3-7.rec.jsonl" ), "old" );
   EXPECT_THAT( folder.text( "Linecard3-8.rec.jsonl" ), HasSubstr( R"("ended": "stopped", "events": 0)" ) );
   auto const run = recordedRunOf( folder / "Linecard3-9.rec.jsonl" );
   EXPECT_FALSE( run.difference ) << run.difference->event;
   EXPECT_EQ( run.events, 3u );
}

// ---- what can go wrong

TEST_F( RecorderTest, StopsWhereTheDiskIsFullAndTheAgentGoesOn ) {
   pid_t const child = ::fork();
   if ( child == 0 ) {
      Agent agent( plain() );
      agent.recorder.begin();
      agent.begin();
      rlimit const limit{ 100'000, 100'000 };
      ::setrlimit( RLIMIT_FSIZE, &limit );
      agent.playAny( 2000 );
      auto const text = agent.metrics.text();
      bool const isTold = text.find( "l3sm_recording 0\n" ) != std::string::npos &&
                          text.find( "l3sm_recording_failures_total 1\n" ) != std::string::npos;
      ::_exit( agent.agent.sw().event() == 2000 && !agent.recorder.isRecording() && isTold &&
                     agent.recorder.trouble().find( "File too large" ) != std::string::npos
                  ? 0
                  : 1 );
   }
   int status = 0;
   ::waitpid( child, &status, 0 );
   EXPECT_TRUE( WIFEXITED( status ) );
   EXPECT_EQ( WEXITSTATUS( status ), 0 );
   auto const run = recordedRunOf( folder / "" );
   EXPECT_FALSE( run.difference );
   EXPECT_GT( run.events, 100u );
   EXPECT_THAT( run.remarks, ElementsAre( HasSubstr( "is cut behind event" ) ) );
}

TEST_F( RecorderTest, StopsWhereItsFolderIsGoneAndTheAgentGoesOn ) {
   std::string const sub = folder / "sub";
   std::filesystem::create_directory( sub );
   auto options = small();
   options.folder = sub;
   Agent agent( options );
   agent.recorder.begin();
   agent.begin();
   std::filesystem::rename( sub, folder / "elsewhere" );
   testing::internal::CaptureStderr();
   agent.playAny( 500 );
   EXPECT_EQ( agent.agent.sw().event(), 500u );
   EXPECT_FALSE( agent.recorder.isRecording() );
   EXPECT_THAT( testing::internal::GetCapturedStderr(),
                testing::MatchesRegex( "l3sm: [^\n]*sub/: can't be read: [^\n]*; recording stops\n|"
                                       "l3sm: [^\n]*sub: can't be read: [^\n]*; recording stops\n" ) );

   EXPECT_THROW( agent.recorder.begin(), Inspection::InputError );
   agent.recorder.begin( folder / "elsewhere" );
   EXPECT_TRUE( agent.recorder.isRecording() );
   std::filesystem::remove_all( folder / "elsewhere" );
   agent.recorder.tick();
   EXPECT_FALSE( agent.recorder.isRecording() ) << "found with the watchdog";
   EXPECT_THAT( agent.recorder.trouble(), HasSubstr( "is gone" ) );
}

TEST_F( RecorderTest, RefusesAFolderThatCantBeWritten ) {
   auto options = plain();
   options.folder = "/proc/1";
   Agent agent( options );
   EXPECT_THROW( agent.recorder.begin(), Inspection::InputError );
   EXPECT_FALSE( agent.recorder.isRecording() );
   EXPECT_THROW( agent.recorder.begin( folder / "nowhere" ), Inspection::InputError );
   agent.begin();
   agent.playAny( 3 );
   EXPECT_EQ( agent.agent.sw().event(), 3u );
}

TEST_F( RecorderTest, TellsTheEventThatTheAgentFailedIn ) {
   {
      Agent agent( plain() );
      agent.recorder.begin();
      agent.begin();
      agent.recorder.eventBegins( 1, Value::Object{ { "delete", Value::Object{ { "path", "evpn/status" } } } } );
      agent.recorder.ends( { .kind = Simulator::Ending::Kind::assertion, .text = "x != nullptr", .function = "f" } );
   }
   auto const run = recordedRunOf( folder / "" );
   EXPECT_FALSE( run.difference );
   EXPECT_EQ( run.events, 1u );
   EXPECT_THAT( run.remarks, ElementsAre( HasSubstr( "the agent failed in event 1: x != nullptr" ) ) );
}

TEST_F( RecorderTest, TellsThatAnotherBuildOfThePluginWasRecorded ) {
   {
      auto options = plain();
      options.plugin = "sha256:another";
      Agent agent( options );
      agent.recorder.begin();
      agent.begin();
   }
   auto const run = recordedRunOf( folder / "Linecard3-1.rec.jsonl", "sha256:this" );
   EXPECT_FALSE( run.difference );
   EXPECT_THAT( run.remarks,
                ElementsAre( folder / "Linecard3-1.rec.jsonl" + ": was recorded with another build of the plug-in" ) );
}

// ---- read otherwise

TEST_F( RecorderTest, IsAScenarioThatLeavesTheSameContents ) {
   Value state;
   Simulator::Contents chips;
   {
      Agent agent( plain() );
      agent.recorder.begin();
      agent.begin();
      agent.playAny( 60, 5 );
      state = agent.agent.sw().state().value();
      chips = contentsOf( agent.agent.sw().chip( Hardware::Dace::FapId( 0 ) ), Hardware::ChipType::BCM88690_B0 );
   }
   std::vector< std::string > remarks;
   auto const scenario = Inspection::scenarioOf( scenarioOfRecording( folder / "", remarks ), "exported" );
   EXPECT_THAT( remarks, ElementsAre() );
   EXPECT_GT( scenario.events.size(), 30u );
   EXPECT_TRUE(
      std::ranges::any_of( scenario.events, []( Event const & event ) { return event.changes.size() > 1; } ) );
   Simulator::SimulatedSwitch sw( scenario.description );
   Inspection::play( scenario, sw );
   EXPECT_EQ( sw.state().value(), state );
   EXPECT_EQ( contentsOf( sw.chip( Hardware::Dace::FapId( 0 ) ), Hardware::ChipType::BCM88690_B0 ), chips );
}

TEST_F( RecorderTest, IsADatabaseThatAnAgentFollows ) {
   Simulator::Contents chips;
   {
      Agent agent( plain() );
      agent.recorder.begin();
      agent.begin();
      agent.playAny( 150, 9 );
      chips = contentsOf( agent.agent.sw().chip( Hardware::Dace::FapId( 0 ) ), Hardware::ChipType::BCM88690_B0 );
   }
   EventLoop loop;
   RecordedDatabase database( loop, folder / "" );
   SliceAgent agent( loop, database, Inspection::scenarioOf( Inspection::parseJson( file, "s" ), "s" ) );
   agent.begin();
   for ( int turn = 0; turn < 1000 && !database.isAtEnd(); ++turn ) {
      loop.turn( 0 );
   }
   EXPECT_TRUE( database.isAtEnd() );
   EXPECT_EQ( agent.phase(), Phase::running );
   EXPECT_EQ( agent.sw().event(), 150u );
   EXPECT_EQ( contentsOf( agent.sw().chip( Hardware::Dace::FapId( 0 ) ), Hardware::ChipType::BCM88690_B0 ), chips );
   database.since( { "another", "life", "1" } );
   loop.turn( 0 );
   EXPECT_EQ( agent.phase(), Phase::reconciling ) << "a position that it doesn't know is a gap";
}

} // namespace
