// Many broken connections under many transactions: nothing is lost, nothing comes twice to another effect.
//
// L3SM_LONG_TESTS=1 in the environment: 1,000 under 60,000.
#include "agent/RedisFollower.h"
#include "agent/RedisState.h"

#include <random>

namespace {

TEST( RedisDisconnects, endWithTheStateThatTheDatabaseHolds ) {
   bool const isLong = std::getenv( "L3SM_LONG_TESTS" ) != nullptr;
   std::size_t const disconnects = isLong ? 1000 : 100;
   constexpr std::size_t between = 60;
   RedisServer server;
   loadByHand( server );
   RedisFollower follower( server );
   std::mt19937 chance( 14 );
   for ( std::size_t at = 0; at < disconnects; ++at ) {
      // Once it surely has read everything before it is cut off, and misses what is trimmed.
      bool const misses = at == disconnects / 2;
      if ( misses ) {
         ASSERT_TRUE(
            follower.until( [&] { return follower.isFollowing && follower.position.entry == lastEntry( server ); } ) );
      }
      follower.takesUpWhereItWas = misses || chance() % 4 != 0;
      writeManyByHand( server, between, at * between );
      if ( misses || chance() % 40 == 0 ) {
         server.ask( { "XTRIM", logKey, "MAXLEN", "1" } );
      }
      for ( auto turns = misses ? 0 : chance() % 30; turns > 0; --turns ) {
         follower.loop.turn( 0 );
      }
      server.cutsConnections( !misses && chance() % 8 == 0 ? "pubsub" : "normal" );
      if ( misses ) {
         ASSERT_TRUE( follower.untilTold( "gap: the log was trimmed" ) );
      }
   }
   ASSERT_TRUE(
      follower.until( [&] { return follower.isFollowing && follower.position.entry == lastEntry( server ); } ) );
   EXPECT_EQ( follower.paths, stateIn( server ) );
   EXPECT_GT( follower.timesTold( "unreachable" ), disconnects / 4 );
}

} // namespace
