// A small fabric in a virtual time: what follows is the code of real agents, what goes by are costs.
#include "scale/Fabric.h"
#include "agent/database/EtcdLayout.h"

#include <gtest/gtest.h>

namespace {

using namespace Scale;

constexpr Costs costs{ .server = { .write = 0.001,
                                   .delivery = 0.0002,
                                   .report = 0.0015,
                                   .snapshotKey = 0.00003,
                                   .publishedKey = 0.00006,
                                   .start = 0.01,
                                   .idleSecond = 0,
                                   .sync = 0.0004 },
                       .agent = { .delivery = 0.0003, .report = 0.0004, .start = 0.1, .snapshotKey = 0.00001 },
                       .assumed = { .members = 3, .cores = 2, .latency = 0.0001, .breath = 0.1 } };
constexpr std::size_t agents = 20;
constexpr FabricSize size{ .agents = agents, .interfaces = 100 };
constexpr double tick = 1e-8;

TEST( Fabric, startsWithAWholeStateForEach ) {
   Fabric fabric( costs, size, 1 );
   auto const seen = fabric.starts();
   EXPECT_TRUE( fabric.isConverged() );
   EXPECT_EQ( seen.counts.snapshotKeys, agents * 400 );
   EXPECT_EQ( seen.counts.publishedKeys, agents * 200 );
   EXPECT_EQ( seen.counts.reports, agents );
   EXPECT_GT( seen.lasted, costs.agent.start );
}

TEST( Fabric, aChangeCostsTheDatabaseWhatTheCountOfAgentsSays ) {
   for ( std::size_t const count : { 1, 5, 20 } ) {
      Fabric fabric( costs, { .agents = count, .interfaces = 100 }, 1 );
      fabric.starts();
      auto const seen = fabric.changes( 1, 1 );
      EXPECT_EQ( seen.counts.writes, 1u );
      EXPECT_EQ( seen.counts.deliveries, count );
      EXPECT_EQ( seen.counts.reports, count );
      double const members = static_cast< double >( costs.assumed.members );
      EXPECT_NEAR( seen.worked,
                   members * costs.server.write +
                      static_cast< double >( count ) * ( costs.server.delivery + members * costs.server.report ),
                   tick );
      EXPECT_TRUE( fabric.isConverged() );
   }
}

TEST( Fabric, aChangeTakesTheWayThatItTakes ) {
   Fabric fabric( costs, { .agents = 1, .interfaces = 100 }, 1 );
   fabric.starts();
   auto const & [server, agent, assumed] = costs;
   EXPECT_NEAR( fabric.changes( 1, 1 ).last,
                server.write + server.sync + 2 * assumed.latency + server.delivery + assumed.latency + agent.delivery,
                tick );
}

TEST( Fabric, reportsOfABusyAgentBecomeOneForABreath ) {
   Fabric fabric( costs, { .agents = 1, .interfaces = 100 }, 1 );
   fabric.starts();
   auto const seen = fabric.changes( 500, 250 );
   EXPECT_GT( seen.counts.reports, seen.lasted / costs.assumed.breath / 2 );
   EXPECT_LE( seen.counts.reports, seen.lasted / costs.assumed.breath + 1 );
}

TEST( Fabric, changesFasterThanAnAgentPlaysAreLateAndNotLost ) {
   auto slow = costs;
   slow.agent.delivery = 0.004;
   Fabric fabric( slow, size, 1 );
   fabric.starts();
   auto const seen = fabric.changes( 500, 500 ); // a second's worth, for two seconds' work
   EXPECT_EQ( seen.counts.writes, 500u );
   EXPECT_GT( seen.last, 0.5 );
   EXPECT_TRUE( fabric.isConverged() );
}

TEST( Fabric, agentsOfALostMemberGoOnWithAnother ) {
   Fabric fabric( costs, size, 1 );
   fabric.starts();
   auto const seen = fabric.losesMember( 1, false );
   EXPECT_EQ( seen.counts.snapshotKeys, 0u );
   EXPECT_GT( seen.last, 0.1 ) << "the first wait of an agent that was cut off";
   EXPECT_TRUE( fabric.isConverged() );
}

TEST( Fabric, agentsThatMissedCompactedRevisionsTakeTheWholeState ) {
   Fabric fabric( costs, size, 1 );
   fabric.starts();
   auto const seen = fabric.losesMember( 1, true );
   EXPECT_EQ( seen.counts.snapshotKeys, 7 * 400u ) << "of 20 agents on three members, seven";
   EXPECT_TRUE( fabric.isConverged() );
}

TEST( Fabric, isTheSameUnderTheSameSeed ) {
   auto const lasted = []( U64 seed ) {
      Fabric fabric( costs, size, seed );
      fabric.starts();
      auto const seen = fabric.changes( 100, 50 );
      return std::tuple( seen.lasted, seen.half, seen.last, seen.counts.reports, seen.worked );
   };
   EXPECT_EQ( lasted( 1 ), lasted( 1 ) );
   EXPECT_NE( lasted( 1 ), lasted( 2 ) );
}

// What is entered by hand and stands in the agent's code, too.
TEST( Fabric, isReportedToAsOftenAsAnAgentReports ) {
   auto const kept = Costs::of( Inspection::readJson( L3SM_SOURCE_DIR "/scale/costs.json" ) );
   EXPECT_EQ( kept.assumed.breath, Live::breathOfReports );
}

} // namespace
