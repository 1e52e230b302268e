// The agent of one slice: given what a database tells, these words are on the chips, or they stay as they are.
#include "agent/SliceAgent.h"
#include "BuildFolder.h"
#include "ScriptedDatabase.h"
#include "agent/database/EmbeddedDatabase.h"
#include "inspection/Play.h"
#include "inspection/files/Json.h"
#include "inspection/files/SavedScenario.h"
#include "rex/Log.h"

#include <gmock/gmock.h>

namespace {

using namespace Live;
using Inspection::Event;
using Rex::Value;
using testing::ElementsAre;

constexpr char const * file = R"({
 "switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}}]},
 "state": {"interface/config/global": {"l3Mtu": 2000}}})";

Event set( std::string const & path, std::string const & attribute, Value value ) {
   return { .path = path, .attribute = attribute, .value = std::move( value ) };
}
Event remove( std::string const & path ) {
   return { .kind = Event::Kind::remove, .path = path };
}
Position at( std::string const & entry, std::string const & epoch = "e" ) {
   return { "server", epoch, entry };
}

Event const loose = set( "routing/hardware/config", "urpfLooseFailForward", true );
Event const notLoose = set( "routing/hardware/config", "urpfLooseFailForward", false );
Paths const looseFails{ { "routing/hardware/config", { { "urpfLooseFailForward", "true" } } } };

class Phases : public AgentOnlooker {
 public:
   void phaseIs( Phase phase, std::string const & ) override { all.emplace_back( nameOf( phase ) ); }
   void resyncs( std::string const & reason ) override { all.push_back( "resync: " + reason ); }
   std::vector< std::string > take() { return std::exchange( all, {} ); }
   std::vector< std::string > all;
};

class SliceAgentTest : public testing::Test {
 protected:
   SliceAgentTest() {
      Rex::logSinkIs( []( auto const & ) {} );
      Inspection::loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
      agent.emplace( loop, database, scenario() );
      agent->onlookerAdd( phases );
      agent->begin();
      database.takeAsked();
   }
   static Inspection::Scenario scenario() { return Inspection::scenarioOf( Inspection::parseJson( file, "s" ), "s" ); }

   Simulator::Contents contents() {
      return contentsOf( agent->sw().chip( Hardware::Dace::FapId( 0 ) ), Hardware::ChipType::BCM88690_B0 );
   }
   Value state( std::string const & path, std::string const & attribute ) {
      return agent->sw().state().entity( path )->value().object()->at( attribute );
   }
   void tell( std::string const & entry, std::vector< Event > changes ) {
      database.hears().transactionsAre( { { .position = at( entry ), .changes = std::move( changes ) } } );
   }
   void started() {
      database.hears().snapshotIs( { at( "1" ), looseFails } );
      database.takeAsked();
      phases.take();
   }
   // So long until it asks the database again, at most.
   bool asksWithin( Rex::Seconds time ) {
      auto const end = EventLoop::clock() + time;
      while ( database.asked.empty() && EventLoop::clock() < end ) {
         loop.turn( 0.02 );
      }
      return !database.asked.empty();
   }

   EventLoop loop;
   ScriptedDatabase database;
   Phases phases;
   std::optional< SliceAgent > agent;
};

TEST_F( SliceAgentTest, writesNothingBeforeAStateHasCome ) {
   auto const fresh = contents();
   database.hears().unreachable( "nobody listens" );
   EXPECT_EQ( agent->phase(), Phase::waiting );
   EXPECT_EQ( agent->reason(), "nobody listens" );
   EXPECT_TRUE( asksWithin( 1 ) );
   EXPECT_THAT( database.takeAsked(), ElementsAre( "snapshot" ) );
   database.hears().withoutState( "load one" );
   EXPECT_EQ( agent->phase(), Phase::waiting );
   EXPECT_EQ( contents(), fresh );
   EXPECT_EQ( agent->sw().journal().operationCount(), 0u );
}

TEST_F( SliceAgentTest, startsThePluginOnTheFirstWholeState ) {
   auto const fresh = contents();
   database.hears().snapshotIs( { at( "1" ), looseFails } );
   EXPECT_THAT( phases.take(), ElementsAre( "reconciling", "running" ) );
   EXPECT_THAT( database.takeAsked(), ElementsAre( "since 1" ) );
   EXPECT_NE( contents(), fresh );
   EXPECT_EQ( agent->sw().event(), 0u );
   EXPECT_EQ( state( "interface/config/global", "l3Mtu" ), Value( 2000 ) ) << "as the file has it";
   EXPECT_EQ( state( "routing/hardware/config", "urpfLooseFailForward" ), Value( true ) );
   ASSERT_EQ( database.reports.size(), 1u );
   EXPECT_TRUE( database.reports[0].isWhole );
   EXPECT_EQ( database.reports[0].applied, at( "1" ) );
   EXPECT_EQ( database.reports[0].fields.at( "phase" ), "running" );
}

TEST_F( SliceAgentTest, playsEachTransactionAsOneEvent ) {
   started();
   auto const before = contents();
   tell( "2", { notLoose, set( "interface/config/global", "l3Mtu", 3000 ) } );
   EXPECT_EQ( agent->sw().event(), 1u );
   EXPECT_NE( contents(), before );
   EXPECT_EQ( state( "interface/config/global", "l3Mtu" ), Value( 3000 ) );
   EXPECT_EQ( agent->position(), at( "2" ) );
   EXPECT_EQ( database.reports.back().applied, at( "2" ) );
   EXPECT_THAT( database.takeAsked(), ElementsAre( "since 2" ) );
}

TEST_F( SliceAgentTest, keepsTheLastGoodValueWhereAWrongOneComes ) {
   started();
   tell( "2", { set( "interface/config/global", "l3Mtu", "many" ), set( "nowhere", "x", 1 ), notLoose } );
   EXPECT_EQ( state( "interface/config/global", "l3Mtu" ), Value( 2000 ) );
   EXPECT_EQ( state( "routing/hardware/config", "urpfLooseFailForward" ), Value( false ) );
   ASSERT_EQ( agent->rejected().size(), 2u );
   EXPECT_EQ( agent->rejected().at( "interface/config/global l3Mtu" ),
              "expected a number from 0 to 4294967295, got \"many\"" );
   EXPECT_EQ( agent->rejected().at( "nowhere x" ), "there is no path \"nowhere\"; `l3sm paths` lists them" );
   tell( "3", { set( "interface/config/global", "l3Mtu", 4000 ) } );
   EXPECT_EQ( agent->rejected().size(), 1u );
   EXPECT_EQ( state( "interface/config/global", "l3Mtu" ), Value( 4000 ) );
}

TEST_F( SliceAgentTest, takesBackWhatGoesFromTheDatabase ) {
   started();
   auto const vti = "interface/status/eth/vxlan/vtiStatus/Vxlan1";
   tell( "2", { set( vti, "udpPort", 4789 ) } );
   EXPECT_EQ( state( vti, "udpPort" ), Value( 4789 ) );
   tell( "3", { set( "interface/config/global", "l3Mtu", 3000 ), remove( vti ), remove( vti ) } );
   EXPECT_EQ( agent->rejected().size(), 0u );
   tell( "4", { remove( "interface/config/global" ) } );
   EXPECT_EQ( state( "interface/config/global", "l3Mtu" ), Value( 2000 ) ) << "as the file has it";
   EXPECT_TRUE( agent->sw().state().entity( "interface/config/global" ) ) << "what is mounted stays";
}

TEST_F( SliceAgentTest, actsOnTheDifferencesAfterAGap ) {
   started();
   auto const before = contents();
   database.hears().gapIs( "the log was trimmed" );
   EXPECT_THAT( phases.take(), ElementsAre( "resync: the log was trimmed", "reconciling" ) );
   EXPECT_THAT( database.takeAsked(), ElementsAre( "snapshot" ) );
   EXPECT_EQ( contents(), before );

   auto const operations = agent->sw().journal().operationCount();
   database.hears().snapshotIs( { at( "9" ), looseFails } );
   EXPECT_EQ( agent->sw().journal().operationCount(), operations ) << "nothing differs";
   EXPECT_EQ( agent->sw().event(), 0u );

   database.hears().gapIs( "another epoch" );
   database.hears().snapshotIs( { at( "9", "f" ), { { "interface/config/global", { { "l3Mtu", "5000" } } } } } );
   EXPECT_EQ( agent->sw().event(), 1u );
   EXPECT_EQ( state( "interface/config/global", "l3Mtu" ), Value( 5000 ) );
   EXPECT_EQ( state( "routing/hardware/config", "urpfLooseFailForward" ), Value( false ) );
   EXPECT_TRUE( database.reports.back().isWhole );
}

TEST_F( SliceAgentTest, leavesTheChipsAsTheyAreWhileNobodyCanBeAsked ) {
   started();
   auto const before = contents();
   database.hears().unreachable( "cut" );
   EXPECT_EQ( agent->phase(), Phase::disconnected );
   EXPECT_TRUE( asksWithin( 1 ) );
   EXPECT_THAT( database.takeAsked(), ElementsAre( "since 1" ) ) << "it may go on from there";
   database.hears().withoutState( "flushed" );
   EXPECT_EQ( agent->phase(), Phase::waiting );
   EXPECT_EQ( contents(), before );
   EXPECT_TRUE( asksWithin( 1 ) );
   EXPECT_THAT( database.takeAsked(), ElementsAre( "snapshot" ) );
   database.hears().snapshotIs( { at( "3" ), looseFails } );
   EXPECT_EQ( agent->phase(), Phase::running );
   EXPECT_EQ( contents(), before );
}

TEST_F( SliceAgentTest, runsAgainWhenItFollowsAgainThoughNothingIsWritten ) {
   started();
   database.hears().unreachable( "cut" );
   database.reports.clear();
   database.hears().follows();
   EXPECT_EQ( agent->phase(), Phase::running );
   ASSERT_EQ( database.reports.size(), 1u );
   EXPECT_TRUE( database.reports[0].isWhole ) << "what was told while it was cut is lost";
   database.hears().follows();
   EXPECT_EQ( database.reports.size(), 1u );
}

TEST_F( SliceAgentTest, keepsWhatItHasOfAPathThatCannotBeRead ) {
   started();
   auto const before = contents();
   database.hears().gapIs( "the log was trimmed" );
   database.hears().snapshotIs( { at( "2" ), {}, { { "routing/hardware/config", "is no hash" } } } );
   EXPECT_EQ( contents(), before );
   EXPECT_EQ( state( "routing/hardware/config", "urpfLooseFailForward" ), Value( true ) );
   EXPECT_EQ( agent->rejected().at( "routing/hardware/config" ), "is no hash" );
}

TEST_F( SliceAgentTest, stopsActingWhileItIsFrozen ) {
   started();
   auto const before = contents();
   agent->freeze();
   EXPECT_EQ( agent->phase(), Phase::frozen );
   tell( "2", { notLoose } );
   EXPECT_EQ( contents(), before );
   EXPECT_EQ( agent->position(), at( "1" ) );
   agent->thaw();
   EXPECT_EQ( agent->phase(), Phase::running );
   EXPECT_THAT( database.takeAsked(), ElementsAre( "since 1" ) );
   tell( "2", { notLoose } );
   EXPECT_NE( contents(), before );
}

TEST_F( SliceAgentTest, isRefusedWhereAnotherServesItsSlice ) {
   database.hears().refused( "process 7 serves it" );
   EXPECT_EQ( loop.run(), 2 );
   EXPECT_EQ( agent->refusal(), "process 7 serves it" );
   EXPECT_EQ( agent->sw().journal().operationCount(), 0u );
}

TEST_F( SliceAgentTest, waitsLongerEachTimeAndNeverLongerThanFiveSeconds ) {
   std::vector< Rex::Seconds > waits;
   for ( int i = 0; i < 4; ++i ) {
      auto const from = EventLoop::clock();
      database.hears().unreachable( "cut" );
      ASSERT_TRUE( asksWithin( 3 ) );
      database.takeAsked();
      waits.push_back( EventLoop::clock() - from );
   }
   EXPECT_LT( waits[0], waits[1] );
   EXPECT_LT( waits[1], waits[2] );
   EXPECT_LT( waits[2], waits[3] );
}

// Given a state of the process itself, changed while it is followed.
TEST( EmbeddedDatabase, isFollowedLikeAnyOther ) {
   Rex::logSinkIs( []( auto const & ) {} );
   Inspection::loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
   EventLoop loop;
   EmbeddedDatabase database( loop );
   SliceAgent agent( loop, database, Inspection::scenarioOf( Inspection::parseJson( file, "s" ), "s" ) );
   agent.begin();
   while ( agent.phase() != Phase::running ) {
      loop.turn( 1 );
   }
   database.transact( { loose } );
   database.transact( { set( "interface/config/global", "l3Mtu", 3000 ) } );
   EXPECT_THROW( database.transact( { notLoose, set( "interface/config/global", "l3Mtu", -1 ) } ), Rex::ValueError );
   while ( agent.sw().event() < 2 ) {
      loop.turn( 1 );
   }
   EXPECT_EQ( agent.sw().state().entity( "routing/hardware/config" )->value().object()->at( "urpfLooseFailForward" ),
              Value( true ) )
      << "of the transaction that was refused, nothing was done";
   EXPECT_TRUE( agent.rejected().empty() );
}

} // namespace
