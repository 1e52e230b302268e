// A state in a Redis that others write while it is read: who asked for it has what is there at the end.
#include "agent/RedisFollower.h"
#include "agent/RedisState.h"
#include "agent/database/Databases.h"
#include "agent/database/RedisStore.h"
#include "inspection/files/InputError.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct RedisRaces : testing::Test {
   RedisServer server;

   void SetUp() override { loadByHand( server ); }
   // Until the server has told it the names of the paths so often; what stands there it has still to ask.
   bool hasAsked( RedisFollower & follower, std::size_t times = 1 ) {
      return follower.until( [&] { return server.served( "smembers" ) >= times; } );
   }
   void logByHand( std::string const & changes ) {
      server.ask( { "XADD", logKey, "*", "changes", changes, "epoch", "e1" } );
   }
};

// ---- a snapshot

TEST_F( RedisRaces, aSnapshotHasWhatIsWrittenWhileItIsRead ) {
   RedisFollower follower( server );
   follower.rests = true;
   ASSERT_TRUE( hasAsked( follower ) );
   writeManyByHand( server, 1501 ); // more than a page of the log
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.paths, stateIn( server ) );
   EXPECT_EQ( follower.position.entry, lastEntry( server ) );
   EXPECT_THAT( follower.told, ElementsAre( "snapshot" ) );
}

TEST_F( RedisRaces, aSnapshotTellsWhatItCantReadOfWhatIsWrittenMeanwhile ) {
   RedisFollower follower( server );
   ASSERT_TRUE( hasAsked( follower ) );
   logByHand( R"([{"set": {"path": "evpn/nowhere", "attribute": "x", "value": 1}}])" );
   auto const first = lastEntry( server );
   logByHand( "[{" );
   auto const second = lastEntry( server );
   writeByHand( server, "vxlanEnabled", "true" );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.paths, stateIn( server ) );
   ASSERT_EQ( follower.unreadable.size(), 2u );
   EXPECT_EQ( follower.unreadable.at( first + " set evpn/nowhere x = 1" ),
              "there is no path \"evpn/nowhere\"; `l3sm paths` lists them" );
   EXPECT_THAT( follower.unreadable.at( second ),
                testing::StartsWith( second + ": expected a list of changes as JSON: " ) );
}

TEST_F( RedisRaces, aSnapshotBeginsAgainWhereAnotherStateIsLoadedMeanwhile ) {
   RedisFollower follower( server );
   ASSERT_TRUE( hasAsked( follower ) );
   server.ask( { "FLUSHALL" } );
   loadByHand( server, "e2" );
   server.ask( { "HSET", evpnKey, "vxlanEnabled", "true" } );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.position.epoch, "e2" );
   EXPECT_EQ( follower.paths, stateIn( server ) );
   EXPECT_THAT( follower.told, ElementsAre( "snapshot" ) );
}

TEST_F( RedisRaces, aSnapshotGivesUpWhereAnotherStateIsLoadedWheneverItIsRead ) {
   RedisFollower follower( server );
   for ( std::size_t times = 1; times <= 8; ++times ) {
      ASSERT_TRUE( hasAsked( follower, times ) );
      loadByHand( server, "e" + std::to_string( times + 1 ) );
   }
   ASSERT_TRUE( follower.untilTold( "unreachable: " ) );
   EXPECT_THAT( follower.told,
                ElementsAre( "unreachable: " + server.url() +
                             ": the state changes faster than it can be read: its log was trimmed, or it was loaded "
                             "anew, 8 times meanwhile" ) );
   EXPECT_TRUE( follower.untilFollowing() ) << "when it tries again";
}

TEST_F( RedisRaces, aSnapshotIsNoneWhereTheStateGoesMeanwhile ) {
   RedisFollower follower( server );
   ASSERT_TRUE( hasAsked( follower ) );
   server.ask( { "DEL", epochKey } );
   ASSERT_TRUE( follower.untilTold( "without: " ) );
   EXPECT_THAT( follower.told,
                ElementsAre( "without: the database holds no state yet; load one: l3sm state load FILE" ) );
}

TEST_F( RedisRaces, aSnapshotIsNoneForAUserWhoMayNotReadThePaths ) {
   server.ask( { "ACL", "SETUSER", "default", "-hgetall" } );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilTold( "unreachable: " ) );
   EXPECT_THAT( follower.told.front(), HasSubstr( "NOPERM" ) );
   server.ask( { "ACL", "SETUSER", "default", "+hgetall" } );
   EXPECT_TRUE( follower.untilFollowing() );
}

// ---- what was written since

TEST_F( RedisRaces, whatWasWrittenBehindAPlaceIsToldPageByPage ) {
   Live::RedisStore store( server.address(), 1 );
   auto const position = store.snapshot( "" ).position;
   EXPECT_FALSE( store.isBehind( position, store.mark() ) );
   writeManyByHand( server, 1501 );
   EXPECT_TRUE( store.isBehind( position, store.mark() ) );
   auto const since = store.since( position, store.mark() );
   ASSERT_TRUE( since );
   EXPECT_EQ( since->size(), 1501u );
   EXPECT_EQ( since->back().position.entry, lastEntry( server ) );
   server.ask( { "XTRIM", logKey, "MAXLEN", "1" } );
   EXPECT_FALSE( store.since( position, store.mark() ) ) << "it was trimmed";
}

// ---- watching

struct RedisWatches : RedisRaces {
   Live::RedisStore store{ server.address(), 1 };
   std::vector< std::string > seen;
   std::unique_ptr< Live::StateWatch > const watch = [this] {
      loadByHand( server );
      return store.watch( { .is =
                               [this]( Live::Transaction const & transaction ) {
                                  for ( auto const & event : transaction.changes ) {
                                     seen.push_back( event.text() );
                                  }
                               },
                            .begins = [this]( std::string const & why ) { seen.push_back( "begins: " + why ); } } );
   }();

   void SetUp() override {}
   bool untilSeen( std::string const & what ) {
      for ( int turn = 0; turn < 1000 && ( seen.empty() || seen.back() != what ); ++turn ) {
         watch->turn();
      }
      return !seen.empty() && seen.back() == what;
   }
   // Why it doesn't go on.
   std::string failure() const {
      try {
         for ( int turn = 0; turn < 1000; ++turn ) {
            watch->turn();
         }
      } catch ( Inspection::InputError const & error ) {
         return error.what();
      }
      return "nothing has failed";
   }
};

TEST_F( RedisWatches, goOnWithAnotherStateThatIsLoaded ) {
   writeByHand( server, "vxlanEnabled", "true" );
   ASSERT_TRUE( untilSeen( "set evpn/status vxlanEnabled = true" ) );
   store.load( { { "evpn/status", {} } } );
   ASSERT_TRUE( untilSeen( "begins: another state was loaded" ) );
   auto const epoch = std::string( server.ask( { "GET", epochKey } ).text() );
   server.ask( { "XADD", logKey, "*", "changes", changesByHand( "mplsEnabled", "true" ), "epoch", epoch } );
   ASSERT_TRUE( untilSeen( "set evpn/status mplsEnabled = true" ) );
   EXPECT_EQ( seen.size(), 3u );
}

TEST_F( RedisWatches, endWhereTheStateIsGone ) {
   server.ask( { "FLUSHALL" } );
   EXPECT_THAT( failure(), HasSubstr( "the database holds no state yet; load one: l3sm state load FILE" ) );
}

TEST_F( RedisWatches, endWhereTheServerIsGone ) {
   server.dies();
   EXPECT_THAT( failure(), HasSubstr( server.url() + ": " ) );
}

} // namespace
