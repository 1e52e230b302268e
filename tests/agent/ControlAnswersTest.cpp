// A real agent, asked as a person would: it answers as the files do that a run of the same scenario writes.
#include "BuildFolder.h"
#include "ControlWorld.h"
#include "Soon.h"
#include "inspection/files/Json.h"

#include <algorithm>
#include <csignal>
#include <regex>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Rex::Value;

// `l3sm serve` in a folder of its own, with what a run of the whole example has left beside it.
class ServedExample {
 public:
   // Serves once it is in the phase.
   explicit ServedExample( std::string const & example,
                           std::string const & options = "",
                           std::string const & phase = "running" ) {
      Value scenario = Inspection::readJson( L3SM_SOURCE_DIR "/examples/" + example );
      events_ = *( *scenario.object() )["events"].list();
      folder.file( "whole.json", Inspection::toJson( scenario, 2 ) );
      folder.file( "events.json", Inspection::toJson( Value::Object{ { "events", events_ } }, 2 ) );
      scenario.object()->erase( "events" );
      folder.file( "switch.json", Inspection::toJson( scenario, 2 ) );
      agent_ = ::fork();
      if ( agent_ == 0 ) {
         std::string const line = "cd '" + folder / "" + "' && exec '" + buildFolder() +
                                  "/bin/l3sm' serve switch.json --socket a.ctl " + options + " 2>log";
         ::execl( "/bin/sh", "sh", "-c", line.c_str(), nullptr );
         ::_exit( 127 );
      }
      until( [&] {
         return ask( "ctl --socket a.ctl status --json" ).find( "\"phase\": \"" + phase + "\"" ) != std::string::npos;
      } );
   }
   ~ServedExample() {
      if ( agent_ > 0 ) {
         ::kill( agent_, SIGTERM );
         EXPECT_EQ( wait(), 0 ) << folder.text( "log" );
      }
   }
   ServedExample( ServedExample const & ) = delete;
   ServedExample & operator=( ServedExample const & ) = delete;

   // What it says, on both outputs, and its exit status.
   std::string ask( std::string const & arguments ) {
      std::string const line = "cd '" + folder / "" + "' && COLUMNS=100 '" + buildFolder() + "/bin/l3sm' " + arguments +
                               " </dev/null >.out 2>&1";
      status = WEXITSTATUS( std::system( line.c_str() ) );
      return folder.text( ".out" );
   }
   // All events of the example, on the agent and in files.
   void play() {
      EXPECT_EQ( ask( "ctl --socket a.ctl state apply events.json" ),
                 std::to_string( events_.size() ) + ( events_.size() == 1 ? " event\n" : " events\n" ) );
      waitsUntilPlayed( events_.size() );
      EXPECT_EQ( ask( "run whole.json --quiet --chips chips.json --journal run.jsonl --state state.json" ), "" );
      EXPECT_EQ( ask( "run switch.json --quiet --chips before.json" ), "" );
   }
   void waitsUntilPlayed( std::size_t events ) {
      auto const count = "\"events\": " + std::to_string( events ) + ",";
      until( [&] { return ask( "ctl --socket a.ctl status --json" ).find( count ) != std::string::npos; } );
   }
   int wait() {
      int ended = 0;
      ::waitpid( std::exchange( agent_, 0 ), &ended, 0 );
      return WEXITSTATUS( ended );
   }

   Folder const folder;
   int status = 0;

 private:
   template< class Condition >
   void until( Condition const & holds ) {
      ASSERT_TRUE( soon( holds ) ) << folder.text( ".out" ) << folder.text( "log" );
   }
   Value::List events_;
   pid_t agent_ = 0;
};

constexpr char const * example = "urpf-and-ip-traps.json";

TEST( ControlAnswers, AreThoseOfTheFilesOfARun ) {
   ServedExample agent( example );
   agent.play();
   for ( std::string const question :
         { "", "--json", "--all", "--fap 0 IppdFerTrapCfg", "--json --table IppdFerTrapCfg" } ) {
      auto const fromFile = agent.ask( "show chips.json " + question );
      EXPECT_EQ( agent.status, 0 ) << fromFile;
      EXPECT_EQ( agent.ask( "show --agent ./a.ctl " + question ), fromFile ) << question;
      EXPECT_EQ( agent.ask( "ctl --socket a.ctl show " + question ), fromFile ) << question;
   }
   for ( std::string const question : { "IppdFerTrapCfg",
                                        "IppdFerTrapCfg --json",
                                        "routing/hardware/config.urpfLooseFailForward --all",
                                        "IppdFerTrapCfg --event 1" } ) {
      auto const fromFile = agent.ask( "why run.jsonl " + question );
      EXPECT_EQ( agent.status, 0 ) << fromFile;
      EXPECT_EQ( agent.ask( "why --agent ./a.ctl " + question ), fromFile ) << question;
   }
   EXPECT_EQ( agent.ask( "ctl --socket a.ctl state --json" ), agent.folder.text( "state.json" ) );

   EXPECT_EQ( agent.ask( "diff --agent ./a.ctl chips.json --json" ), agent.ask( "diff chips.json chips.json --json" ) );
   agent.ask( "diff --agent ./a.ctl state.json" );
   EXPECT_EQ( agent.status, 0 );
   auto const fromFiles = agent.ask( "diff chips.json before.json" );
   EXPECT_EQ( agent.status, 1 );
   EXPECT_EQ( std::regex_replace(
                 agent.ask( "ctl --socket a.ctl diff before.json" ), std::regex( "agent ./a.ctl" ), "chips.json" ),
              fromFiles );
   EXPECT_EQ( agent.status, 1 );
}

TEST( ControlAnswers, PlanEventsWithoutDoingThem ) {
   ServedExample agent( example );
   auto const before = agent.ask( "show --agent ./a.ctl --json" );
   auto const planned = agent.ask( "plan --agent ./a.ctl events.json --json" );
   EXPECT_EQ( agent.status, 1 ) << planned;
   EXPECT_EQ( agent.ask( "show --agent ./a.ctl --json" ), before );

   auto const fromFile = agent.ask( "plan whole.json --json" );
   auto const eventsOf = []( std::string const & json ) {
      return *Inspection::objectOf( Inspection::parseJson( json, "plan" ) ).at( "events" ).list();
   };
   auto wanted = eventsOf( fromFile );
   wanted.erase( wanted.begin() ); // the start
   EXPECT_EQ( Value( eventsOf( planned ) ), Value( wanted ) );

   auto const text = agent.ask( "plan whole.json" );
   auto const asked = agent.ask( "plan --agent ./a.ctl events.json" );
   auto const ofEvents = []( std::string const & all ) {
      return all.substr( std::min( all.find( "Event 1:" ), all.size() ) );
   };
   EXPECT_NE( ofEvents( asked ), "" );
   EXPECT_NE( asked.find( "by 3 of 3 events" ), std::string::npos ) << asked;
   EXPECT_EQ( ofEvents( asked ).substr( 0, 200 ), ofEvents( text ).substr( 0, 200 ) ); // of which some are not shown
}

TEST( ControlAnswers, RefuseWhatDoesNotFit ) {
   ServedExample agent( example );
   EXPECT_EQ( agent.ask( "ctl --socket a.ctl stat" ),
              "l3sm: agent ./a.ctl: there is no command \"stat\"; did you mean \"state\"?\n" );
   EXPECT_EQ( agent.status, 2 );
   EXPECT_EQ( agent.ask( "ctl --socket a.ctl trace set DaceFapNiL3Sm 11" ),
              "l3sm: agent ./a.ctl: level: expected a level from 0 to 9, or off; got \"11\"\n" );
   EXPECT_EQ( agent.ask( "ctl --socket a.ctl state set evpn/status vxlanEnabled 3" ),
              "l3sm: agent ./a.ctl: /value: expected true or false, got 3\n" );
   EXPECT_EQ( agent.ask( "ctl --socket a.ctl state set evpn/status vxlanEnabled '[1, true]'" ),
              "l3sm: agent ./a.ctl: /value: expected true or false, got a list\n" );
   EXPECT_EQ( agent.ask( "ctl --socket a.ctl freeze now" ), "l3sm: now: is one argument too many for freeze\n" );
   EXPECT_EQ( agent.ask( "show --agent ./a.ctl --fap 7" ),
              "l3sm: agent ./a.ctl: --fap 7: the switch has no such FAP; it has 0-1\n" );
   EXPECT_EQ( agent.ask( "show --agent ./b.ctl" ), "l3sm: ./b.ctl: no agent listens there; `l3sm serve` starts one\n" );
   EXPECT_EQ( agent.status, 2 );
}

TEST( ControlAnswers, OfAnAgentWithoutAStateTellWhatItWaitsFor ) {
   ServedExample agent( example, "--database redis+unix:///nowhere/redis.sock", "waiting" );
   std::string const reason = "redis+unix:///nowhere/redis.sock: No such file or directory";
   EXPECT_NE( agent.ask( "ctl --socket a.ctl status" ).find( "reason    " + reason ), std::string::npos )
      << agent.folder.text( ".out" );
   EXPECT_EQ( agent.ask( "ctl --socket a.ctl plan events.json" ),
              "l3sm: agent ./a.ctl: nothing is on the chips yet: " + reason + "\n" );
   EXPECT_EQ( agent.status, 2 );
   EXPECT_EQ(
      agent.ask( "ctl --socket a.ctl state set evpn/status vxlanEnabled true" ),
      "l3sm: agent ./a.ctl: the agent follows redis+unix:///nowhere/redis.sock, where its state is changed: l3sm "
      "state\n" );
   EXPECT_EQ( agent.ask( "ctl --socket a.ctl why IppdFerTrapCfg" ).find( "l3sm:" ), std::string::npos );
}

TEST( ControlAnswers, TellTheLastStepsWhateverTheLevels ) {
   ServedExample agent( example );
   auto const all = agent.ask( "ctl --socket a.ctl trace ring" );
   EXPECT_NE( all.find( "DaceFapNiL3Sm/8 handleInitialized: slot:" ), std::string::npos ) << all;
   EXPECT_GT( std::ranges::count( all, '\n' ), 2 ) << all;
   auto const last = agent.ask( "ctl --socket a.ctl trace ring 2" );
   EXPECT_EQ( std::ranges::count( last, '\n' ), 2 ) << last;
   EXPECT_TRUE( all.ends_with( last ) ) << last;
   auto const list = Inspection::parseJson( agent.ask( "ctl --socket a.ctl trace ring 1 --json" ), "ring" );
   ASSERT_TRUE( list.list() );
   ASSERT_EQ( list.list()->size(), 1u );
   EXPECT_TRUE( all.ends_with( *list.list()->front().text() + "\n" ) );
}

TEST( ControlAnswers, FollowWhatTheAgentIsTold ) {
   ServedExample agent( example );
   EXPECT_EQ( agent.ask( "ctl --socket a.ctl freeze" ), "frozen\n" );
   EXPECT_EQ( agent.ask( "ctl --socket a.ctl state set evpn/status vxlanEnabled true" ), "1 change\n" );
   EXPECT_NE( agent.ask( "ctl --socket a.ctl status" ).find( "frozen" ), std::string::npos );
   EXPECT_NE( agent.ask( "ctl --socket a.ctl state evpn/status" ).find( "vxlanEnabled    no" ), std::string::npos )
      << agent.folder.text( ".out" );
   EXPECT_EQ( agent.ask( "ctl --socket a.ctl thaw" ), "running\n" );
   agent.waitsUntilPlayed( 1 );
   EXPECT_NE( agent.ask( "ctl --socket a.ctl state evpn/status --json" ).find( "\"vxlanEnabled\": true" ),
              std::string::npos );
   EXPECT_NE( agent.ask( "ctl --socket a.ctl trace set DaceFapNiL3Sm 9" ).find( "DaceFapNiL3Sm" ), std::string::npos );
   EXPECT_EQ( agent.ask( "ctl --socket a.ctl exit" ), "the agent ends\n" );
   EXPECT_EQ( agent.wait(), 0 );
   EXPECT_FALSE( std::filesystem::exists( agent.folder / "a.ctl" ) );
}

TEST( ControlAnswers, PlayATransactionOfAScenarioAsOneEvent ) {
   ServedExample agent( example );
   agent.folder.file( "transaction.json", R"({"events": [{"transaction": [
      {"set": {"path": "evpn/status", "attribute": "vxlanEnabled", "value": true}},
      {"set": {"path": "evpn/status", "attribute": "evpnDciEnabled", "value": true}}]}]})" );
   EXPECT_EQ( agent.ask( "ctl --socket a.ctl state apply transaction.json" ), "1 event\n" );
   agent.waitsUntilPlayed( 1 );
   auto const state = agent.ask( "ctl --socket a.ctl state evpn/status --json" );
   EXPECT_NE( state.find( "\"vxlanEnabled\": true" ), std::string::npos ) << state;
   EXPECT_NE( state.find( "\"evpnDciEnabled\": true" ), std::string::npos ) << state;
   EXPECT_NE( agent.ask( "ctl --socket a.ctl status --json" ).find( "\"events\": 1," ), std::string::npos );
}

// Of an agent that has forgotten its beginning: here one that says so.
TEST( ControlAnswers, SayHowFarBackTheyReach ) {
   ControlWorld world;
   auto const run = [&]( std::string const & arguments ) {
      std::string const line =
         "cd '" + world.folder / "" + "' && '" + buildFolder() + "/bin/l3sm' " + arguments + " </dev/null >.out 2>&1";
      EXPECT_EQ( WEXITSTATUS( std::system( line.c_str() ) ), 0 );
      return world.folder.text( ".out" );
   };
   run( "run '" L3SM_SOURCE_DIR "/examples/" + std::string( example ) + "' --quiet --journal run.jsonl" );
   auto const fromFile = run( "why run.jsonl IppdFerTrapCfg" );
   auto lines = linesOf( world.folder.text( "run.jsonl" ) );
   lines[0].insert( 1, R"("reachesBackTo": 2, )" );
   world.addLong( "why", [=]( std::ostream & out ) {
      for ( std::size_t line = 0; line < lines.size(); ++line ) {
         out << ( line == 0 ? '[' : ',' ) << lines[line];
      }
      out << ']';
   } );
   world.serve();
   std::string asked;
   world.during( [&] { asked = run( "why --agent ./a.ctl IppdFerTrapCfg" ); } );
   auto const remark = asked.find( "agent ./a.ctl: remembers back to event 2; what was before isn't told\n" );
   ASSERT_NE( remark, std::string::npos ) << asked;
   EXPECT_GT( fromFile.size(), 100 );
   EXPECT_LT( asked.size(), fromFile.size() + 100 ) << asked;
}

} // namespace
