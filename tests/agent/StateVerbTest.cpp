// `l3sm state`, as a person types it.
#include "BuildFolder.h"
#include "Soon.h"
#include "agent/CentralServer.h"
#include "agent/DatabaseFollower.h"
#include "l3sm/Running.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct StateVerb : testing::TestWithParam< char const * > {
   std::unique_ptr< CentralServer > server = serverOf( GetParam() );
   ::Command l3sm( std::string const & words, ::Command::Files const & files = {} ) const {
      return ::Command( "state " + words + " --database " + server->url(), files );
   }
   void SetUp() override {
      ::Command const loaded(
         "state load s.json --database " + server->url(),
         { { "s.json", scenarioWith( R"(, "state": {"evpn/status": {"vxlanEnabled": true}})" ) } } );
      ASSERT_EQ( loaded.status, 0 ) << loaded.errors;
      ASSERT_THAT( loaded.output, StartsWith( "a new life of the state: " ) );
   }
};

INSTANTIATE_TEST_SUITE_P( Every, StateVerb, testing::ValuesIn( centralServers ), nameOfServer );

TEST_P( StateVerb, getsWhatWasSet ) {
   EXPECT_EQ( l3sm( "get evpn" ).output, "evpn/status vxlanEnabled = true\n" );
   EXPECT_EQ( l3sm( "set evpn/status mplsEnabled true" ).output, "set evpn/status mplsEnabled = true\n" );
   EXPECT_EQ( l3sm( "get evpn/status --json" ).output,
              "{\n \"evpn/status\": {\n  \"mplsEnabled\": true,\n  \"vxlanEnabled\": true}}\n" );
   EXPECT_EQ(
      l3sm( "set interface/status/subintf intfStatus '{\"parentIntfId\": \"Ethernet1\"}' --key Ethernet1.7" ).status,
      0 );
   EXPECT_EQ( l3sm( "set interface/status/subintf/intfStatus/Ethernet1.7 parentIntfId Ethernet2" ).status,
              0 ); // a bare word
   EXPECT_EQ( l3sm( "get interface/status/subintf/intfStatus" ).output,
              "interface/status/subintf/intfStatus/Ethernet1.7 parentIntfId = \"Ethernet2\"\n" );
   EXPECT_EQ( l3sm( "delete interface/status/subintf intfStatus --key Ethernet1.7" ).status, 0 );
   auto const gone = l3sm( "get interface/status/subintf/intfStatus/Ethernet1.7" );
   EXPECT_EQ( gone.status, 1 );
   EXPECT_EQ( gone.output, "nothing stands at interface/status/subintf/intfStatus/Ethernet1.7\n" );
}

TEST_P( StateVerb, refusesWithOneLine ) {
   auto const refusalOf = [&]( std::string const & words ) {
      auto const refused = l3sm( words );
      EXPECT_EQ( refused.status, 2 ) << words;
      EXPECT_EQ( refused.output, "" ) << words;
      return refused.errors;
   };
   EXPECT_EQ( refusalOf( "set evpn/status mplsEnabled 3" ),
              "l3sm: set evpn/status mplsEnabled = 3: expected true or false, got 3\n" );
   EXPECT_EQ( refusalOf( "set evpn/status mplsEnabled '[1, true]'" ),
              "l3sm: set evpn/status mplsEnabled = [1, true]: expected true or false, got a list\n" );
   EXPECT_EQ( refusalOf( "get nowhere" ), "l3sm: state get: there is no path \"nowhere\"; `l3sm paths` lists them\n" );
   EXPECT_EQ( refusalOf( "put evpn/status" ),
              "l3sm: state put: is none of get, set, delete, load, apply, watch, wait\n" );
   EXPECT_EQ( refusalOf( "set evpn/status" ), "l3sm: state set: takes PATH ATTRIBUTE VALUE [--key KEY]\n" );
   EXPECT_EQ( refusalOf( "delete evpn/status mplsEnabled" ),
              "l3sm: state delete: an entry takes ATTRIBUTE and --key, an entity neither\n" );
   server->dies();
   EXPECT_EQ( refusalOf( "get" ),
              "l3sm: " + server->url() + ": " + server->refusedText() +
                 "; --database URL or L3SM_DATABASE says where the database is\n" );
}

TEST_P( StateVerb, takesTheDatabaseFromTheEnvironment ) {
   ::setenv( "L3SM_DATABASE", server->url().c_str(), 1 );
   EXPECT_EQ( ::Command( "state get evpn" ).output, "evpn/status vxlanEnabled = true\n" );
   EXPECT_EQ( ::Command( "state get evpn --cell 2" ).errors,
              "l3sm: " + server->url() + ": the database holds no state yet; load one: l3sm state load FILE\n" );
   ::unsetenv( "L3SM_DATABASE" );
}

TEST_P( StateVerb, appliesTheEventsOfAScenario ) {
   std::string const events = R"([{"set": {"path": "evpn/status", "attribute": "vxlanEnabled", "value": false}},
      {"set": {"path": "evpn/status", "attribute": "mplsEnabled", "value": true}}])";
   EXPECT_EQ( l3sm( "apply s.json", { { "s.json", scenarioWith( ", \"events\": " + events ) } } ).output,
              "2 events written\n" );
   EXPECT_EQ( l3sm( "get evpn" ).output, "evpn/status mplsEnabled = true\nevpn/status vxlanEnabled = false\n" );
   EXPECT_EQ( l3sm( "apply events.json", { { "events.json", events } } ).output, "2 events written\n" );
   auto const wrong =
      l3sm( "apply events.json", { { "events.json", R"([{"set": {"path": "evpn/status", "attribute": "mplsEnabled",
                                                            "value": false}}, {"set": {}}])" } } );
   EXPECT_EQ( wrong.status, 2 );
   EXPECT_THAT( wrong.errors, HasSubstr( ": /1/set: " ) );
   EXPECT_EQ( l3sm( "get evpn" ).output, "evpn/status mplsEnabled = true\nevpn/status vxlanEnabled = false\n" );
}

TEST_P( StateVerb, loadsWhatARunHasLeft ) {
   ::Command const run( "run s.json --quiet --state state.json && '" + buildFolder() +
                           "/bin/l3sm' state load state.json --database " + server->url(),
                        { { "s.json", scenarioWith( R"(, "state": {"evpn/status": {"mplsEnabled": true}})" ) } } );
   EXPECT_EQ( run.status, 0 ) << run.errors;
   EXPECT_THAT( l3sm( "get evpn" ).output, HasSubstr( "evpn/status mplsEnabled = true\n" ) );
   auto const wrong = l3sm( "load state.json", { { "state.json", R"({"evpn/status": {"mplsEnabled": 7}})" } } );
   EXPECT_EQ( wrong.status, 2 );
   EXPECT_EQ( wrong.errors, "l3sm: state.json:1:33: /evpn~1status/mplsEnabled: expected true or false, got 7\n" );
}

TEST_P( StateVerb, watchesEachChangeUntilItIsInterrupted ) {
   Running watch( "state watch evpn --database " + server->url(), {} );
   ASSERT_TRUE( soon( [&] { return server->isWatched(); } ) ) << "it waits for the next entry";
   l3sm( "set routing/hardware/config urpfLooseFailForward true" );
   l3sm( "set evpn/status mplsEnabled true" );
   ASSERT_TRUE( soon( [&] { return watch.output().find( '\n' ) != std::string::npos; } ) );
   watch.kill( SIGINT );
   EXPECT_EQ( watch.wait(), 128 + SIGINT );
   EXPECT_EQ( watch.output().substr( 12 ), "  set evpn/status mplsEnabled = true\n" );
}

TEST_P( StateVerb, watchesOnInTheStateThatIsLoadedNext ) {
   Running watch( "state watch evpn --database " + server->url(), {} );
   ASSERT_TRUE( soon( [&] { return server->isWatched(); } ) );
   ASSERT_EQ( l3sm( "load s.json", { { "s.json", scenarioWith( R"(, "state": {"evpn/status": {}})" ) } } ).status, 0 );
   ASSERT_TRUE( soon( [&] { return watch.errors().find( '\n' ) != std::string::npos; } ) );
   EXPECT_EQ( watch.errors(), "l3sm: another state was loaded; going on with it\n" );
   ASSERT_TRUE( soon( [&] { return server->isWatched(); } ) );
   l3sm( "set evpn/status mplsEnabled true" );
   ASSERT_TRUE( soon( [&] { return watch.output().find( '\n' ) != std::string::npos; } ) ) << watch.errors();
   EXPECT_EQ( watch.output().substr( 12 ), "  set evpn/status mplsEnabled = true\n" );
   watch.kill( SIGINT );
   EXPECT_EQ( watch.wait(), 128 + SIGINT );
}

TEST_P( StateVerb, endsItsWatchWhereNoStateIsLoadedForAWhile ) {
   if ( isSanitized() ) {
      GTEST_SKIP() << "it only takes its time";
   }
   Running watch( "state watch --database " + server->url(), {} );
   ASSERT_TRUE( soon( [&] { return server->isWatched(); } ) );
   server->epochIs( "" );
   EXPECT_EQ( watch.wait(), 2 );
   EXPECT_EQ( watch.errors(),
              "l3sm: " + server->url() + ": the database holds no state yet; load one: l3sm state load FILE\n" );
}

TEST_P( StateVerb, waitsForAgents ) {
   auto const none = l3sm( "wait --timeout 0" );
   EXPECT_EQ( none.status, 1 );
   EXPECT_EQ( none.output, "no agent follows this database\n" );

   DatabaseFollower agent( server->url() );
   ASSERT_TRUE( agent.untilFollowing() );
   agent.database.publish( { .applied = agent.position, .fields = { { "phase", "reconciling" } }, .isWhole = true } );
   ASSERT_TRUE( agent.until( [&] { return server->agentHash( "Linecard3" ).contains( "phase" ); } ) );
   EXPECT_EQ( l3sm( "wait --timeout 0" ).output, "Linecard3  reconciling\n" );

   auto const before = agent.position.entry;
   l3sm( "set evpn/status mplsEnabled true" );
   auto const late = l3sm( "wait --timeout 0 --slice Linecard3" );
   EXPECT_EQ( late.status, 1 );
   EXPECT_EQ( late.output, "Linecard3  reconciling, at " + before + " of " + server->lastEntry() + "\n" );

   Running waiting( "state wait --database " + server->url(), {} );
   ASSERT_TRUE( agent.untilAt( server->lastEntry() ) );
   agent.database.publish( { .applied = agent.position, .fields = { { "phase", "running" } } } );
   ASSERT_TRUE( agent.until( [&] { return server->agentHash( "Linecard3" )["phase"] == "running"; } ) );
   EXPECT_EQ( waiting.wait(), 0 );
   EXPECT_EQ( waiting.output(), "Linecard3  has applied it\n" );
   EXPECT_EQ( l3sm( "wait --timeout 0 --slice Linecard9" ).output, "Linecard9  no agent serves this slice\n" );
}

} // namespace
