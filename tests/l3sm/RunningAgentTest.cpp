// An agent that runs, asked as a person would: what would change on one FAP of it, and what a recording of it becomes.
#include "agent/Served.h"
#include "l3sm/Command.h"

#include "inspection/files/ByteStreams.h"
#include "inspection/files/Json.h"

#include <array>
#include <gmock/gmock.h>

namespace {

using Rex::Value;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

// An agent of the example without its events, which lie beside it.
struct RunningAgent : testing::Test {
   Folder const folder;
   std::optional< ServedAgent > agent;
   void SetUp() override {
      Value scenario = Inspection::readJson( L3SM_SOURCE_DIR "/examples/urpf-and-ip-traps.json" );
      Value::Object const events{ { "events", ( *scenario.object() )["events"] } };
      folder.file( "events.json", Inspection::toJson( events, 2 ) );
      scenario.object()->erase( "events" );
      agent.emplace( folder, "Linecard3", Inspection::toJson( scenario, 2 ), "" );
      ASSERT_TRUE( agent->isSoon( "running" ) ) << agent->log();
   }
   std::string plan( std::string const & arguments ) const {
      return agent->output( "plan --agent '" + agent->socket() + "' " + arguments );
   }
};

TEST_F( RunningAgent, tellsWhatEventsWouldChangeOnOneFap ) {
   std::string const events = "'" + folder / "events.json" + "'";
   EXPECT_THAT( plan( events + " --fap 1" ), AllOf( HasSubstr( "\n  FAP 1\n" ), Not( HasSubstr( "FAP 0" ) ) ) );
   EXPECT_THAT( plan( events + " --fap 0 --stat" ),
                AllOf( HasSubstr( "\n  IppdFerTrapCfg  FAP 0 1\n" ), Not( HasSubstr( "FAP 1" ) ) ) );
   EXPECT_THAT( plan( events + " --fap 7" ), HasSubstr( ": --fap 7: the switch has no such FAP; it has 0-1\n" ) );
}

TEST_F( RunningAgent, wouldBeChangedInNothingByItsOwnBuild ) {
   std::string const own = "--plugin '" + buildFolder() + "/lib/libL3SmPlugin.so'";
   std::string const nothing = "\nNothing would change: the chips hold what the start and 0 events would write.\n";
   EXPECT_THAT( plan( own + " --fap 1" ), HasSubstr( nothing ) );
   EXPECT_EQ( plan( own + " --fap 7" ), "l3sm: --fap 7: the switch has no such FAP; it has 0-1\n" );
}

TEST_F( RunningAgent, isAskedByCtlWithTheOptionsOfTheVerb ) {
   auto const ctl = [&]( std::string const & options ) {
      return agent->output( "ctl " + options + " '" + folder / "events.json" + "' --fap 1 --stat" );
   };
   auto const asked = plan( "'" + folder / "events.json" + "' --fap 1 --stat" );
   EXPECT_THAT( asked, HasSubstr( "IppdFerTrapCfg  FAP 1 1\n" ) );
   EXPECT_EQ( ctl( "--socket '" + agent->socket() + "' plan" ), asked );
   EXPECT_EQ( ctl( "--timeout=60 --socket='" + agent->socket() + "' plan" ), asked );
   EXPECT_EQ( ctl( "--timeout 60 --agent '" + agent->socket() + "' plan" ), asked );
}

std::string withoutCompression( std::string const & path ) {
   Inspection::ByteSource source( path );
   std::string text;
   std::array< char, 4096 > some{};
   for ( auto got = source.read( some ); got > 0; got = source.read( some ) ) {
      text.append( some.data(), got );
   }
   return text;
}

// Its recording, of which the end is missing.
TEST_F( RunningAgent, leavesARecordingThatBecomesAScenarioWithRemarks ) {
   auto const ctl = [&]( std::string const & command ) { return agent->ctl( command ); };
   ctl( "record start '" + folder / "" + "'" );
   ctl( "state apply '" + folder / "events.json" + "'" );
   ASSERT_TRUE( soon( [&] { return ctl( "status" ).find( "\"events\": 3," ) != std::string::npos; } ) );
   EXPECT_THAT( ctl( "record stop" ), HasSubstr( "\"recording\": false" ) );
   std::string const segment = "Linecard3-1.rec.jsonl";
   auto const text = withoutCompression( folder / ( segment + ".zst" ) );
   auto const end = text.find( "{\"op\": \"end\"" );
   ASSERT_NE( end, std::string::npos ) << text;
   Command const replay( "replay " + segment + " --to-scenario s.json", { { segment, text.substr( 0, end ) } } );
   EXPECT_EQ( replay.status, 0 );
   EXPECT_EQ( replay.errors,
              "l3sm: " + segment +
                 ": begins behind event 0: the scenario's start programs chips that are programmed already, and its "
                 "event 1 is event 1 of the recording\n"
                 "l3sm: " +
                 segment + ": is cut behind event 3: its agent was killed, or couldn't write on\n" );
   auto const scenario = Inspection::parseJson( replay.file( "s.json" ), "s.json" );
   EXPECT_EQ( scenario.object()->at( "events" ).list()->size(), 3u );
}

} // namespace
