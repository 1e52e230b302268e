// What a Redis alone tells who follows: entries of its log, which may be half readable. An etcd has no log: what can't
// be read there is a value (EtcdTest.cpp). What both do is in CentralDatabaseTest.cpp.
#include "agent/EtcdServer.h"
#include "agent/RedisFollower.h"
#include "agent/RedisState.h"

namespace {

TEST( RedisDatabase, takesWhatItCanReadOfATransaction ) {
   RedisServer server;
   loadByHand( server );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilFollowing() );
   server.ask( { "XADD",
                 logKey,
                 "*",
                 "changes",
                 R"([{"set": {"path": 7, "attribute": "vxlanEnabled", "value": true}},
                     {"set": {"path": "evpn/status", "attribute": "mplsEnabled", "value": true}}, 5])" } );
   server.ask( { "XADD", logKey, "*", "changes", "[{" } );
   server.ask( { "XADD", logKey, "*", "something", "else" } );
   ASSERT_TRUE( follower.until( [&] { return follower.count == 3; } ) );
   EXPECT_EQ( follower.paths.at( "evpn/status" ).at( "mplsEnabled" ), "true" );
   ASSERT_EQ( follower.unreadable.size(), 4 );
   auto const has = [&]( std::string const & text ) {
      return std::ranges::any_of( follower.unreadable,
                                  [&]( auto const & each ) { return each.second.find( text ) != std::string::npos; } );
   };
   EXPECT_TRUE( has( ": /0/set/path: expected a string" ) );
   EXPECT_TRUE( has( ": /2: expected an object" ) );
   EXPECT_TRUE( has( ": expected a list of changes as JSON" ) );
   EXPECT_TRUE( has( ": there is no field \"changes\"" ) );
}

TEST( RedisDatabase, isReachedOverANetworkAndByItsNumber ) {
   auto const host = addressOfThisProcess();
   RedisServer server( { "--port", "6379", "--bind", host } );
   server.ask( { "SELECT", "2" } );
   loadByHand( server );
   DatabaseFollower follower( "redis://" + host + "/2" );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.paths, stateIn( server ) );
   DatabaseFollower other( "redis://" + host + ":6379" );
   ASSERT_TRUE( other.untilTold( "without: the database holds no state yet; load one: l3sm state load FILE" ) );
}

} // namespace
