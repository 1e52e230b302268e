// A central database, followed: what holds of every one, written once.
#include "agent/CentralServer.h"
#include "agent/DatabaseFollower.h"

#include <random>

namespace {

using Live::Attributes;

struct CentralDatabase : testing::TestWithParam< char const * > {
   std::unique_ptr< CentralServer > server = serverOf( GetParam() );
};

INSTANTIATE_TEST_SUITE_P( Every, CentralDatabase, testing::ValuesIn( centralServers ), nameOfServer );

// ---- following

TEST_P( CentralDatabase, tellsTheStateAndWhatIsWrittenThen ) {
   server->load();
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.paths,
              ( Live::Paths{ { "evpn/status", { { "vxlanEnabled", "false" } } },
                             { "interface/config/global", { { "l3Mtu", "9000" } } } } ) );
   EXPECT_EQ( follower.position.epoch, "e1" );

   server->write( "vxlanEnabled", "true" );
   ASSERT_TRUE( follower.until( [&] { return follower.count == 1; } ) );
   EXPECT_EQ( follower.paths.at( "evpn/status" ).at( "vxlanEnabled" ), "true" );
   EXPECT_EQ( follower.told, std::vector< std::string >{ "snapshot" } );
}

TEST_P( CentralDatabase, goesOnWhereItWasWhenTheConnectionIsCut ) {
   server->load();
   DatabaseFollower follower( server->url() );
   follower.takesUpWhereItWas = true;
   ASSERT_TRUE( follower.until( [&] { return follower.hasBegun; } ) );
   server->cutsConnections();
   ASSERT_TRUE( follower.untilTold( "unreachable" ) );
   server->write( "mplsEnabled", "true" );
   ASSERT_TRUE( follower.until( [&] { return follower.count == 1; } ) );
   EXPECT_EQ( follower.timesTold( "snapshot" ), 1 );
   EXPECT_EQ( follower.paths, server->state() );
}

TEST_P( CentralDatabase, holdsNothingWithoutAnEpoch ) {
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilTold( "without: the database holds no state yet; load one: l3sm state load FILE" ) );
   server->load();
   ASSERT_TRUE( follower.untilFollowing() );
}

TEST_P( CentralDatabase, holdsNothingWhereThereIsNotOnePath ) {
   server->epochIs( "e1" );
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilTold( "without: the database has lost its state: there is not one path" ) );
}

TEST_P( CentralDatabase, cannotBeReachedWhereNobodyListens ) {
   server->dies();
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilTold( "unreachable: " + server->url() + ": " ) );
   server->starts();
   server->load();
   ASSERT_TRUE( follower.untilFollowing() );
}

TEST_P( CentralDatabase, tellsAsMuchAsIsTakenAndTheRestLater ) {
   server->load();
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilFollowing() );
   server->writeMany( 3000 ); // while it doesn't look
   ASSERT_TRUE( follower.until( [&] { return follower.position.entry == server->lastEntry(); } ) );
   EXPECT_EQ( follower.count, 3000 );
   EXPECT_EQ( follower.paths, server->state() );
   EXPECT_EQ( follower.told, std::vector< std::string >{ "snapshot" } );
}

// ---- what happens to a server, and to what it holds

TEST_P( CentralDatabase, isKilledInTheMiddleOfASnapshot ) {
   constexpr std::size_t many = 10000;
   server->load( "e1", many );
   server->keepsDump();
   DatabaseFollower follower( server->url() );
   for ( int turns = 0; turns < 20 && !follower.isFollowing; ++turns ) {
      follower.loop.turn( 0.001 );
   }
   ASSERT_FALSE( follower.isFollowing );
   server->dies();
   ASSERT_TRUE( follower.untilTold( "unreachable: " + server->url() ) );
   EXPECT_TRUE( follower.paths.empty() );
   server->starts();
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.paths, server->state() );
   EXPECT_EQ( follower.paths.size(), many + 2 );
}

TEST_P( CentralDatabase, comesBackWithWhatItWasBefore ) {
   server->load();
   server->keepsDump();
   DatabaseFollower follower( server->url() );
   follower.takesUpWhereItWas = true;
   ASSERT_TRUE( follower.untilFollowing() );
   server->write( "vxlanEnabled", "true" );
   ASSERT_TRUE( follower.until( [&] { return follower.count == 1; } ) );
   server->comesBackWithDump();
   ASSERT_TRUE( follower.untilTold( "gap: " ) );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.paths.at( "evpn/status" ).at( "vxlanEnabled" ), "false" );
}

TEST_P( CentralDatabase, losesItsStateWhileNothingIsWritten ) {
   server->load();
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.until( [&] { return follower.hasBegun; } ) );
   server->losesAll();
   follower.database.tick(); // who can't tell of it finds it out
   ASSERT_TRUE( follower.untilTold( "without: the database holds no state yet" ) );
   EXPECT_FALSE( follower.paths.empty() );
   server->load( "e2" );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.position.epoch, "e2" );
}

TEST_P( CentralDatabase, losesItsStateUnderLoad ) {
   server->load();
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilFollowing() );
   server->writeMany( 1000 );
   server->losesAll();
   ASSERT_TRUE( follower.untilTold( "without: " ) );
   EXPECT_TRUE( follower.paths.contains( "interface/config/global" ) );
}

TEST_P( CentralDatabase, getsAnotherEpochWhileNothingIsWritten ) {
   server->load();
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.until( [&] { return follower.hasBegun; } ) );
   server->epochIs( "e2" );
   follower.database.tick();
   ASSERT_TRUE( follower.untilTold( "gap: another state was loaded" ) );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.position.epoch, "e2" );
   server->epochIs( "" );
   ASSERT_TRUE( follower.until( [&] {
      follower.database.tick();
      return follower.hasBeenTold( "without: " );
   } ) );
}

TEST_P( CentralDatabase, forgetsWhatWasWhileNobodyLooked ) {
   server->load();
   DatabaseFollower follower( server->url() );
   follower.takesUpWhereItWas = true;
   ASSERT_TRUE( follower.untilFollowing() );
   server->cutsConnections();
   server->writeMany( 100 );
   server->losesHistory();
   ASSERT_TRUE( follower.untilTold( std::string( "gap: " ) + server->lostHistoryText() ) );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.paths, server->state() );
}

// Many of them, with L3SM_LONG_TESTS.
TEST_P( CentralDatabase, losesNothingByBrokenConnections ) {
   bool const isRedis = std::string( GetParam() ) == "redis";
   std::size_t const usual = isRedis ? 100 : 6;
   std::size_t const disconnects = std::getenv( "L3SM_LONG_TESTS" ) != nullptr ? 10 * usual : usual;
   constexpr std::size_t between = 60;
   server->load();
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilFollowing() );
   std::mt19937 chance( 14 );
   for ( std::size_t at = 0; at < disconnects; ++at ) {
      follower.takesUpWhereItWas = chance() % 4 != 0;
      server->writeMany( between, at * between );
      if ( chance() % 20 == 0 ) {
         server->losesHistory();
      }
      for ( auto turns = chance() % 30; turns > 0; --turns ) {
         follower.loop.turn( 0 );
      }
      server->cutsConnections();
   }
   ASSERT_TRUE(
      follower.until( [&] { return follower.isFollowing && follower.position.entry == server->lastEntry(); } ) );
   EXPECT_EQ( follower.paths, server->state() );
   EXPECT_GT( follower.timesTold( "unreachable" ), disconnects / 4 );
}

// ---- what an agent tells of itself

struct CentralPublish : CentralDatabase {
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

Live::LeaseHolder anothersMachine() {
   auto holder = Live::LeaseHolder::thisProcess();
   holder.host = "gauss";
   holder.boot = "another";
   return holder;
}

TEST_P( CentralDatabase, refusesTheSecondAgentOfASlice ) {
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

TEST_P( CentralDatabase, givesTheSliceOfAKilledProcessOfThisMachineAtOnce ) {
   server->load();
   auto const url = server->url();
   pid_t const agent = ::fork();
   if ( agent == 0 ) {
      ::prctl( PR_SET_PDEATHSIG, SIGKILL );
      DatabaseFollower follower( url );
      follower.untilFollowing();
      ::pause();
   }
   while ( !server->isServed( "Linecard3" ) ) {
      ::usleep( 1000 );
   }
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilTold( "refused: slice Linecard3 is served by process " + std::to_string( agent ) ) );
   ::kill( agent, SIGKILL );
   siginfo_t info{};
   ::waitid( P_PID, static_cast< id_t >( agent ), &info, WEXITED | WNOWAIT ); // nobody has taken note of its end
   follower.database.snapshot();
   ASSERT_TRUE( follower.untilFollowing() );
   ::waitpid( agent, nullptr, 0 );
}

TEST_P( CentralDatabase, doesNotGiveASliceOfAnotherMachineBeforeItsTimeIsOver ) {
   server->load();
   server->leaseIs( "Linecard3", anothersMachine().text(), 300 );
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilTold( " on gauss, which has the right to it for " ) );
   server->leaseEnds( "Linecard3" );
   follower.database.snapshot();
   ASSERT_TRUE( follower.untilFollowing() );
}

} // namespace
