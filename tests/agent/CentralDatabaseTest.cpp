// A central database, followed: what holds of every one, written once.
#include "agent/CentralServer.h"
#include "agent/DatabaseFollower.h"
#include "agent/database/EtcdDatabase.h"

#include <random>

namespace {

struct CentralDatabase : testing::TestWithParam< char const * > {
   std::unique_ptr< CentralServer > server = serverOf( GetParam() );

   // Its right to serve outlasts a loop that stands still, for as long as a busy machine takes to write much.
   DatabaseFollower::Make patient() const {
      return [url = server->url()]( Live::EventLoop & loop ) -> std::unique_ptr< Live::Database > {
         constexpr U32 leaseSeconds = 600;
         if ( Live::EtcdAddress::isOne( url ) ) {
            return std::make_unique< Live::EtcdDatabase >(
               loop, Live::EtcdAddress::of( url, {} ), 1, "Linecard3", leaseSeconds );
         }
         return Live::databaseAt( loop, url, {}, 1, "Linecard3" );
      };
   }
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
   DatabaseFollower follower( patient() );
   ASSERT_TRUE( follower.until( [&] { return follower.hasBegun; } ) );
   server->writeMany( 1500 ); // while it doesn't look
   ASSERT_TRUE( follower.untilAt( server->lastEntry() ) );
   EXPECT_EQ( follower.count, 1500 );
   EXPECT_EQ( follower.paths, server->state() );
   EXPECT_EQ( follower.told, std::vector< std::string >{ "snapshot" } );
}

// What comes while it isn't wanted waits, much of it with the server.
TEST_P( CentralDatabase, tellsNoMoreThanIsAskedFor ) {
   constexpr std::size_t many = 1200;
   constexpr std::size_t some = 300;
   server->load();
   DatabaseFollower follower( patient() );
   follower.rests = true;
   ASSERT_TRUE( follower.until( [&] { return follower.hasBegun; } ) );
   server->write( "vxlanEnabled", "true" );
   ASSERT_TRUE( follower.until( [&] { return follower.count == 1; } ) );
   server->writeMany( many );
   auto const turns = [&] {
      auto const end = std::chrono::steady_clock::now() + std::chrono::milliseconds( 300 );
      ASSERT_TRUE( follower.until( [&] { return std::chrono::steady_clock::now() > end; } ) );
   };
   turns();
   server->writeMany( some ); // when it has enough
   turns();
   EXPECT_EQ( follower.count, 1 );

   follower.rests = false;
   follower.database.since( follower.position );
   ASSERT_TRUE( follower.untilAt( server->lastEntry() ) );
   EXPECT_EQ( follower.count, many + some + 1 );
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
      ASSERT_TRUE( follower.until( [&] { return !follower.waitsToTryAgain; } ) );
      for ( auto turns = chance() % 30; turns > 0; --turns ) {
         follower.loop.turn( 0 );
      }
      auto const noticed = follower.timesTold( "unreachable" );
      server->cutsConnections();
      // One that the server didn't know of yet isn't cut.
      for ( int turns = 0; follower.timesTold( "unreachable" ) == noticed && turns < 100; ++turns ) {
         follower.loop.turn( 0.002 );
      }
   }
   auto const state = server->state();
   ASSERT_TRUE( follower.until( [&] { return follower.isFollowing && follower.paths == state; } ) );
   EXPECT_GT( follower.timesTold( "unreachable" ), disconnects / 4 );
}

} // namespace
