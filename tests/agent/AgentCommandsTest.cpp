// What an agent answers to its commands, where it follows a database that others write.
#include "agent/control/AgentCommands.h"
#include "BuildFolder.h"
#include "ScriptedDatabase.h"
#include "agent/metrics/AgentMetrics.h"
#include "inspection/Play.h"
#include "inspection/files/InputError.h"
#include "rex/Log.h"

#include <gmock/gmock.h>

namespace {

using namespace Live;
using Rex::Value;
using testing::HasSubstr;

struct AgentCommandsTest : testing::Test {
   AgentCommandsTest() {
      Rex::logSinkIs( []( auto const & ) {} );
      Inspection::loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
      agent.emplace( loop,
                     database,
                     Inspection::scenarioOf( Inspection::parseJson( R"({
         "switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}}]},
         "toggles": {"Dace.json": {"ArmOrderedSwTable": false}}})",
                                                                    "s" ),
                                             "s" ) );
      agent->sw().journal().readerAdd( ring );
      addAgentCommands( commands, { .agent = *agent, .ring = ring, .version = "1.2.3", .plugin = "sha256:7" } );
      agent->begin();
   }
   ~AgentCommandsTest() override { agent->end(); }

   void starts() { database.hears().snapshotIs( { { "server", "e", "1" }, {} } ); }
   void tells( std::string const & entry, std::vector< Inspection::Event > changes ) {
      database.hears().transactionsAre( { { .position = { "server", "e", entry }, .changes = std::move( changes ) } } );
   }
   // Long answers at once.
   Value ask( std::string const & name, Value const & given = {} ) const {
      Live::Command const & command = commands.named( name );
      auto const answer = command.answer( Arguments( command, given ) );
      if ( auto const * value = std::get_if< Value >( &answer ) ) {
         return *value;
      }
      std::ostringstream out;
      std::get< LongAnswer >( answer ).write( out );
      return Inspection::parseJson( out.str(), "answer" );
   }
   std::string refusalOf( std::string const & name, Value const & given ) const {
      try {
         ask( name, given );
      } catch ( ... ) {
         return commandErrorOf( std::current_exception() ).what();
      }
      return "nothing was refused";
   }
   static Inspection::Event event( std::string const & path, std::string const & attribute, Value value ) {
      return { .path = path, .attribute = attribute, .value = std::move( value ) };
   }

   EventLoop loop;
   ScriptedDatabase database;
   RowRing ring;
   std::optional< SliceAgent > agent;
   Commands commands;
};

TEST_F( AgentCommandsTest, tellHowItIsDoing ) {
   starts();
   tells( "2", { event( "evpn/status", "vxlanEnabled", true ), event( "evpn/status", "mplsEnabled", "x" ) } );
   auto status = ask( "status" );
   auto const & fields = *status.object();
   EXPECT_EQ( fields.at( "phase" ), Value( "running" ) );
   EXPECT_EQ( fields.at( "database" ), Value( "a script" ) );
   EXPECT_EQ( fields.at( "position" ), Value( "2" ) );
   EXPECT_EQ( fields.at( "epoch" ), Value( "e" ) );
   EXPECT_EQ( fields.at( "events" ), Value( 1 ) );
   EXPECT_EQ( fields.at( "waiting" ), Value( 0 ) );
   EXPECT_EQ( fields.at( "drift" ), Value( 0 ) );
   EXPECT_EQ( fields.at( "version" ), Value( "1.2.3" ) );
   EXPECT_EQ( fields.at( "plugin" ), Value( "sha256:7" ) );
   EXPECT_EQ( fields.at( "rejected" ), Value( 1 ) );
   EXPECT_EQ( fields.at( "rejectedPlaces" ),
              Value( Value::Object{ { "evpn/status mplsEnabled", "expected true or false, got \"x\"" } } ) );
   tells( "3", { event( "evpn/status", "mplsEnabled", true ) } );
   status = ask( "status" );
   EXPECT_EQ( status.object()->at( "rejected" ), Value( 0 ) );
   EXPECT_FALSE( status.object()->contains( "rejectedPlaces" ) );
}

TEST_F( AgentCommandsTest, tellAHundredOfTheRejectedPlacesAndHowManyMore ) {
   starts();
   std::vector< Inspection::Event > wrong;
   for ( int at = 0; at < 103; ++at ) {
      wrong.push_back( event( "nowhere/" + std::to_string( at ), "x", 1 ) );
   }
   tells( "2", wrong );
   auto const places = *ask( "status" ).object()->at( "rejectedPlaces" ).object();
   EXPECT_EQ( places.size(), 101u );
   EXPECT_EQ( places.at( "..." ), Value( "3 more" ) );
}

TEST_F( AgentCommandsTest, keepItFromActingUntilItIsThawed ) {
   starts();
   EXPECT_EQ( ask( "freeze" ), Value( "frozen" ) );
   std::vector< Inspection::Event > const changes{ event( "evpn/status", "vxlanEnabled", true ) };
   tells( "2", changes );
   EXPECT_EQ( ask( "status" ).object()->at( "position" ), Value( "1" ) );
   EXPECT_EQ( agent->sw().event(), 0u );
   database.takeAsked();
   EXPECT_EQ( ask( "thaw" ), Value( "running" ) );
   EXPECT_THAT( database.takeAsked(), testing::ElementsAre( "since 1" ) );
   tells( "2", changes );
   EXPECT_EQ( agent->sw().event(), 1u );
}

TEST_F( AgentCommandsTest, tellTheStateOrAPartOfIt ) {
   starts();
   EXPECT_EQ( ask( "state" ), agent->sw().state().value() );
   EXPECT_EQ( ask( "state", Value::List{ "evpn/status" } ),
              Value( Value::Object{ { "evpn/status", agent->sw().state().entity( "evpn/status" )->value() } } ) );
   auto const path = "interface/status/eth/vxlan/vtiStatus/Vxlan1";
   EXPECT_EQ( refusalOf( "state", Value::List{ path } ),
              "/path: interface/status/eth/vxlan holds nothing at \"vtiStatus/Vxlan1\"" );
   tells( "2", { event( path, "udpPort", 4789 ) } );
   auto const vti = ask( "state", Value::List{ path } );
   EXPECT_EQ( vti.object()->at( path ).object()->at( "udpPort" ), Value( 4789 ) );
   EXPECT_EQ( refusalOf( "state", Value::List{ "evpn/stat" } ),
              "/path: there is no path \"evpn/stat\"; did you mean \"evpn/status\"?" );
}

TEST_F( AgentCommandsTest, refuseToChangeAStateThatIsAnothersAndSayWhereItIsChanged ) {
   starts();
   std::string const refusal = "the agent follows a script, where its state is changed: l3sm state";
   EXPECT_EQ( refusalOf( "state set", Value::List{ "evpn/status", "vxlanEnabled", true } ), refusal );
   EXPECT_EQ( refusalOf( "state delete", Value::List{ "evpn/status" } ), refusal );
   EXPECT_EQ( refusalOf( "state apply", Value::List{ Value::List{} } ), refusal );
}

TEST_F( AgentCommandsTest, showTheChipsOrAPartOfThem ) {
   starts();
   auto const all = ask( "show" );
   EXPECT_EQ( ask( "show", Value::Object{ { "fap", 0 } } ), all );
   auto const one = ask( "show", Value::Object{ { "tables", Value::List{ "IppdFerTrapCfg" } } } );
   auto const text = Inspection::toJson( one, 0 );
   EXPECT_THAT( text, HasSubstr( "\"IppdFerTrapCfg\"" ) );
   EXPECT_LT( text.size(), Inspection::toJson( all, 0 ).size() );
   EXPECT_EQ( refusalOf( "show", Value::Object{ { "fap", 7 } } ), "--fap 7: the switch has no such FAP; it has 0" );
}

TEST_F( AgentCommandsTest, tellRowsOfTheJournalWithoutAStateThatItWasntTold ) {
   EXPECT_EQ( ask( "why" ).list()->size(), 2u ) << "its first line and its last: nothing has happened";
   starts();
   auto const rows = ask( "why" );
   ASSERT_GT( rows.list()->size(), 100u );
   auto const begin = Inspection::toJson( rows.list()->front(), 0 );
   EXPECT_THAT( begin, HasSubstr( "BCM88690_B0" ) );
   EXPECT_THAT( begin, testing::Not( HasSubstr( "\"state\"" ) ) );
}

TEST_F( AgentCommandsTest, planNothingBeforeItsStart ) {
   database.hears().withoutState( "load one" );
   auto const events = Inspection::parseJson(
      R"([{"set": {"path": "routing/hardware/config", "attribute": "urpfLooseFailForward", "value": true}}])", "e" );
   EXPECT_EQ( refusalOf( "plan", Value::List{ events } ), "nothing is on the chips yet: load one" );
   starts();
   auto const plan = ask( "plan", Value::Object{ { "events", events }, { "stat", true }, { "width", 100 } } );
   EXPECT_EQ( plan.object()->at( "isEmpty" ), Value( false ) );
   EXPECT_THAT( *plan.object()->at( "text" ).text(), HasSubstr( "would change " ) );
   EXPECT_THAT( refusalOf( "plan", Value::Object{ { "events", events }, { "fap", 7 } } ),
                HasSubstr( "the switch has no such FAP" ) );
   EXPECT_THAT( refusalOf( "plan", Value::List{ "x" } ), HasSubstr( "events: " ) );
}

TEST_F( AgentCommandsTest, endItsLoop ) {
   EXPECT_EQ( ask( "exit" ), Value( "the agent ends" ) );
   EXPECT_EQ( loop.run(), 0 );
}

TEST_F( AgentCommandsTest, areAsManyAsThereAreSubjects ) {
   EXPECT_EQ( refusalOf( "metrics", {} ), "there is no command \"metrics\"; \"list\" tells which there are" );
   EXPECT_EQ( refusalOf( "audit run", {} ), "there is no command \"audit run\"; \"list\" tells which there are" );
}

TEST_F( AgentCommandsTest, haveTheirResyncsCounted ) {
   Metrics metrics;
   AgentMetrics counts( *agent, metrics );
   agent->onlookerAdd( counts );
   starts();
   EXPECT_THAT( metrics.text(), testing::Not( HasSubstr( "l3sm_resyncs_total{" ) ) );
   database.hears().gapIs( "the log was trimmed" );
   starts();
   EXPECT_THAT( metrics.text(), HasSubstr( "\nl3sm_resyncs_total{reason=\"the log was trimmed\"} 1\n" ) );
}

} // namespace
