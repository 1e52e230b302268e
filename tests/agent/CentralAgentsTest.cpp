// What agents leave in a central database of any kind: what they tell of themselves, and that there is one of a slice.
#include "agent/AnothersMachine.h"
#include "agent/CentralServer.h"
#include "agent/DatabaseFollower.h"

namespace {

using Live::Attributes;

// ---- what an agent tells of itself

struct CentralPublish : testing::TestWithParam< char const * > {
   std::unique_ptr< CentralServer > server = serverOf( GetParam() );
   std::optional< DatabaseFollower > follower;
   void SetUp() override {
      server->load();
      follower.emplace( server->url() );
      ASSERT_TRUE( follower->untilFollowing() );
   }
   // Until it is written.
   void publish( Live::Report const & report ) {
      follower->database.publish( report );
      ASSERT_TRUE( follower->until( [&] {
         auto const hash = server->agentHash( "Linecard3" );
         return hash.contains( "applied" ) && hash.at( "applied" ) == report.applied.entry;
      } ) );
   }
};

INSTANTIATE_TEST_SUITE_P( Every, CentralPublish, testing::ValuesIn( centralServers ), nameOfServer );

TEST_P( CentralPublish, writesWhatItTellsAndWhatItsPlugInPublishes ) {
   publish( { .applied = { "s", "e1", "3" },
              .fields = { { "phase", "reconciling" }, { "reason", "just begun" } },
              .published = { { "intf/Ethernet1", { { "mtu", "1500" } } }, { "intf/Ethernet2", { { "mtu", "9" } } } },
              .isWhole = true } );
   EXPECT_EQ(
      server->agentHash( "Linecard3" ),
      ( Attributes{ { "applied", "3" }, { "epoch", "e1" }, { "phase", "reconciling" }, { "reason", "just begun" } } ) );
   EXPECT_EQ(
      server->published( "Linecard3" ),
      ( Live::Paths{ { "intf/Ethernet1", { { "mtu", "1500" } } }, { "intf/Ethernet2", { { "mtu", "9" } } } } ) );

   publish(
      { .applied = { "s", "e1", "4" },
        .fields = { { "phase", "running" } },
        .published = { { "intf/Ethernet1", { { "addr", "\"02:00:00:00:00:01\"" } } }, { "intf/Ethernet2", {} } } } );
   EXPECT_EQ( server->agentHash( "Linecard3" ),
              ( Attributes{ { "applied", "4" }, { "epoch", "e1" }, { "phase", "running" } } ) );
   EXPECT_EQ( server->published( "Linecard3" ),
              ( Live::Paths{ { "intf/Ethernet1", { { "addr", "\"02:00:00:00:00:01\"" }, { "mtu", "1500" } } } } ) );
}

TEST_P( CentralPublish, takesAwayWhatAnEarlierProcessLeftThere ) {
   server->publishedIs( "Linecard3",
                        { { "intf/Gone", { { "mtu", "1" } } }, { "intf/Ethernet1", { { "stale", "1" } } } } );
   publish( { .applied = { "s", "e1", "3" },
              .fields = { { "phase", "running" } },
              .published = { { "intf/Ethernet1", { { "mtu", "1500" } } } },
              .isWhole = true } );
   EXPECT_EQ( server->published( "Linecard3" ), ( Live::Paths{ { "intf/Ethernet1", { { "mtu", "1500" } } } } ) );
}

TEST_P( CentralPublish, tellsMoreThanFitsIntoOneTransaction ) {
   Live::Paths many;
   for ( int at = 0; at < 700; ++at ) {
      many["intf/Ethernet" + std::to_string( at )] = { { "mtu", std::to_string( at ) } };
   }
   publish(
      { .applied = { "s", "e1", "3" }, .fields = { { "phase", "running" } }, .published = many, .isWhole = true } );
   EXPECT_EQ( server->published( "Linecard3" ), many );
}

TEST_P( CentralPublish, makesOneOfWhatWaitsForASlowServer ) {
   auto const before = server->transactions();
   server->standsStill();
   for ( int at = 0; at < 1000; ++at ) {
      Live::Report report{ .applied = { "s", "e1", "4" + std::to_string( 1000 + at ) },
                           .fields = { { "phase", "running" } } };
      report.published["intf/Ethernet1"] = { { "a" + std::to_string( at % 3 ), std::to_string( at ) } };
      if ( at == 500 ) {
         report.published["intf/Ethernet1"] = {};
      }
      follower->database.publish( report );
   }
   server->goesOn();
   ASSERT_TRUE( follower->until( [&] { return server->agentHash( "Linecard3" )["applied"] == "41999"; } ) );
   EXPECT_EQ( server->transactions(), before + 2 ); // the first, all others
   EXPECT_EQ( server->published( "Linecard3" ).at( "intf/Ethernet1" ),
              ( Attributes{ { "a0", "999" }, { "a1", "997" }, { "a2", "998" } } ) );
}

// ---- one agent of a slice at a time

struct CentralLease : testing::TestWithParam< char const * > {
   std::unique_ptr< CentralServer > server = serverOf( GetParam() );
};

INSTANTIATE_TEST_SUITE_P( Every, CentralLease, testing::ValuesIn( centralServers ), nameOfServer );

TEST_P( CentralLease, refusesTheSecondAgentOfASlice ) {
   server->load();
   DatabaseFollower first( server->url() );
   ASSERT_TRUE( first.untilFollowing() );
   DatabaseFollower second( server->url() );
   ASSERT_TRUE(
      second.untilTold( "refused: slice Linecard3 is served by process " + std::to_string( ::getpid() ) + " on " ) );
   EXPECT_TRUE( second.hasBeenTold( "s more unless it renews it" ) );
   DatabaseFollower other( server->url(), "Linecard4" );
   ASSERT_TRUE( other.untilFollowing() );

   first.database.stop();
   second.database.snapshot();
   ASSERT_TRUE( second.untilFollowing() );
}

TEST_P( CentralLease, givesTheSliceOfAKilledProcessOfThisMachineAtOnce ) {
   server->load();
   auto const url = server->url();
   pid_t const agent = ::fork();
   if ( agent == 0 ) {
      ::prctl( PR_SET_PDEATHSIG, SIGKILL );
      DatabaseFollower follower( url );
      follower.untilFollowing();
      ::pause();
   }
   ASSERT_TRUE( soon( [&] { return server->isServed( "Linecard3" ); } ) );
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilTold( "refused: slice Linecard3 is served by process " + std::to_string( agent ) ) );
   ::kill( agent, SIGKILL );
   siginfo_t info{};
   ::waitid( P_PID, static_cast< id_t >( agent ), &info, WEXITED | WNOWAIT ); // nobody has taken note of its end
   follower.database.snapshot();
   ASSERT_TRUE( follower.untilFollowing() );
   ::waitpid( agent, nullptr, 0 );
}

TEST_P( CentralLease, doesNotGiveASliceOfAnotherMachineBeforeItsTimeIsOver ) {
   server->load();
   server->leaseIs( "Linecard3", anothersMachine().text(), 300 );
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilTold( " on gauss, which has the right to it for " ) );
   server->leaseEnds( "Linecard3" );
   follower.database.snapshot();
   ASSERT_TRUE( follower.untilFollowing() );
}

} // namespace
