// What `l3sm state` answers programs, and what it shows of a state at its defaults.
#include "Soon.h"
#include "agent/RedisServer.h"
#include "l3sm/Running.h"

#include "inspection/files/Json.h"

#include <gmock/gmock.h>

namespace {

using Rex::Value;
using testing::HasSubstr;

struct StateAnswers : testing::Test {
   RedisServer server;
   Command state( std::string const & words, Command::Files const & files = {} ) const {
      return Command( "state " + words + " --database " + server.url(), files );
   }
   Value json( std::string const & words, Command::Files const & files = {} ) const {
      auto const said = state( words + " --json", files );
      EXPECT_EQ( said.errors, "" );
      return Inspection::parseJson( said.output, "state" );
   }
   std::string lastEntry() {
      auto const range = server.ask( { "XREVRANGE", "l3sm:{1}#log", "+", "-", "COUNT", "1" } );
      return std::string( ( *( *range.begin() ).begin() ).text() );
   }
   std::string const some = scenarioWith( R"(, "state": {"evpn/status": {"vxlanEnabled": true}, "vxlan/ecnConfig": {}},
                        "events": [{"set": {"path": "evpn/status", "attribute": "mplsEnabled", "value": true}},
                                   {"set": {"path": "evpn/status", "attribute": "mplsEnabled", "value": false}}])" );
};

TEST_F( StateAnswers, showWhatStandsAtItsDefaults ) {
   EXPECT_EQ( state( "load s.json", { { "s.json", some } } ).status, 0 );
   EXPECT_EQ( state( "get vxlan" ).output, "vxlan/ecnConfig (all at their defaults)\n" );
   EXPECT_EQ( json( "get vxlan" ), Value( Value::Object{ { "vxlan/ecnConfig", Value::Object() } } ) );
}

TEST_F( StateAnswers, tellWhatCannotBeRead ) {
   EXPECT_EQ( state( "load s.json", { { "s.json", some } } ).status, 0 );
   server.ask( { "SET", "l3sm:{1}:evpn/status", "no hash" } );
   auto const got = state( "get evpn/status" );
   EXPECT_EQ( got.errors,
              "l3sm: evpn/status: l3sm:{1}:evpn/status is no hash: WRONGTYPE Operation against a key holding the wrong "
              "kind of value\n" );
   EXPECT_EQ( got.output, "nothing stands at evpn/status\n" );
   EXPECT_EQ( got.status, 1 );
   EXPECT_EQ( state( "get vxlan" ).output, "vxlan/ecnConfig (all at their defaults)\n" );
}

// A socket that isn't there fails before anything has been asked.
TEST( StateAnswer, ofADatabaseThatIsNotThereIsThatItIsNot ) {
   for ( char const * const what :
         { "get", "set evpn/status vxlanEnabled true", "delete evpn/status", "load s.json" } ) {
      Command const l3sm( std::string( "state --database redis+unix:///nowhere/r.sock " ) + what,
                          { { "s.json", R"({"evpn/status": {"vxlanEnabled": true}})" } } );
      EXPECT_EQ( l3sm.errors,
                 "l3sm: redis+unix:///nowhere/r.sock: No such file or directory; --database URL or L3SM_DATABASE says "
                 "where the database is\n" )
         << what;
      EXPECT_EQ( l3sm.status, 2 ) << what;
   }
}

TEST_F( StateAnswers, tellTheEpochOfANewLife ) {
   auto const loaded = json( "load s.json", { { "s.json", some } } );
   EXPECT_EQ( *loaded.object()->at( "epoch" ).text(), server.ask( { "GET", "l3sm:{1}#epoch" } ).text() );
   auto const all = json( "get" );
   EXPECT_EQ( loaded.object()->at( "paths" ), Value( all.object()->size() ) );
   EXPECT_TRUE( all.object()->contains( "evpn/status" ) );
}

TEST_F( StateAnswers, tellTheEntryOfAChange ) {
   EXPECT_EQ( state( "load s.json", { { "s.json", some } } ).status, 0 );
   auto const set = json( "set evpn/status mplsEnabled true" );
   EXPECT_EQ( set,
              Value( Value::Object{ { "change",
                                      Value::Object{ { "set",
                                                       Value::Object{ { "path", "evpn/status" },
                                                                      { "attribute", "mplsEnabled" },
                                                                      { "value", true } } } } },
                                    { "entry", lastEntry() } } ) );
   EXPECT_EQ( json( "apply s.json", { { "s.json", some } } ), Value( Value::Object{ { "events", 2 } } ) );
   EXPECT_NE( set.object()->at( "entry" ), Value( lastEntry() ) );
}

TEST_F( StateAnswers, tellHowFarEachAgentIs ) {
   EXPECT_EQ( state( "load s.json", { { "s.json", some } } ).status, 0 );
   EXPECT_EQ( state( "set evpn/status mplsEnabled true" ).status, 0 );
   EXPECT_EQ( json( "wait --timeout 0" ),
              Value( Value::Object{ { "agents", Value::List() }, { "entry", lastEntry() } } ) );
   EXPECT_EQ( json( "wait --timeout 0 --slice Linecard9" ),
              Value( Value::Object{ { "agents",
                                      Value::List{ Value::Object{ { "slice", "Linecard9" },
                                                                  { "ready", false },
                                                                  { "serves", false },
                                                                  { "phase", "" },
                                                                  { "reason", "" },
                                                                  { "applied", "" } } } },
                                    { "entry", lastEntry() } } ) );
}

TEST_F( StateAnswers, tellOfAnEntryThatCannotBeReadAndGoOn ) {
   EXPECT_EQ( state( "load s.json", { { "s.json", some } } ).status, 0 );
   Running watch( "state watch --json --database " + server.url(), {} );
   ASSERT_TRUE( soon( [&] { return server.served( "xread" ) > 0; } ) );
   std::string const wrong( server.ask( { "XADD", "l3sm:{1}#log", "*", "something", "else" } ).text() );
   ASSERT_TRUE( soon( [&] { return watch.errors().ends_with( '\n' ); } ) );
   EXPECT_EQ( watch.errors(), "l3sm: " + wrong + ": there is no field \"changes\"\n" );
   EXPECT_EQ( watch.output(), "" );
   EXPECT_EQ( state( "set evpn/status mplsEnabled true" ).status, 0 );
   ASSERT_TRUE( soon( [&] { return watch.output().ends_with( '\n' ); } ) );
   EXPECT_EQ( watch.output(),
              R"({"change": {"set": {"attribute": "mplsEnabled", "path": "evpn/status", "value": true}}, "entry": ")" +
                 lastEntry() + "\"}\n" );
   watch.kill( SIGTERM );
   EXPECT_EQ( watch.wait(), 128 + SIGTERM );
}

} // namespace
