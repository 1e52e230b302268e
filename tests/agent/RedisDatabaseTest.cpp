// A state in a Redis, followed: the whole, and what is written then.
#include "agent/RedisFollower.h"
#include "agent/RedisState.h"

namespace {

TEST( RedisDatabase, tellsTheStateAndWhatIsWrittenThen ) {
   RedisServer server;
   loadByHand( server );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.paths,
              ( Live::Paths{ { "evpn/status", { { "vxlanEnabled", "false" } } },
                             { "interface/config/global", { { "l3Mtu", "9000" } } } } ) );
   EXPECT_EQ( follower.position.epoch, "e1" );

   writeByHand( server, "vxlanEnabled", "true" );
   ASSERT_TRUE( follower.until( [&] { return follower.count == 1; } ) );
   EXPECT_EQ( follower.paths.at( "evpn/status" ).at( "vxlanEnabled" ), "true" );
   EXPECT_EQ( follower.told, std::vector< std::string >{ "snapshot" } );
}

TEST( RedisDatabase, goesOnWhereItWasWhenTheConnectionIsCut ) {
   RedisServer server;
   loadByHand( server );
   RedisFollower follower( server );
   follower.takesUpWhereItWas = true;
   ASSERT_TRUE( follower.untilFollowing() );
   server.ask( { "CLIENT", "KILL", "TYPE", "normal", "SKIPME", "yes" } );
   ASSERT_TRUE( follower.untilTold( "unreachable" ) );
   writeByHand( server, "mplsEnabled", "true" );
   ASSERT_TRUE( follower.until( [&] { return follower.count == 1; } ) );
   EXPECT_EQ( follower.timesTold( "snapshot" ), 1 );
   EXPECT_EQ( follower.paths, stateIn( server ) );
}

TEST( RedisDatabase, holdsNothingWithoutAnEpoch ) {
   RedisServer server;
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilTold( "without: the database holds no state yet; load one: l3sm state load FILE" ) );
   loadByHand( server );
   ASSERT_TRUE( follower.untilFollowing() );
}

TEST( RedisDatabase, holdsNothingWhereThereIsNotOnePath ) {
   RedisServer server;
   server.ask( { "SET", epochKey, "e1" } );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilTold( "without: the database has lost its state: there is not one path" ) );
}

TEST( RedisDatabase, cannotBeReachedWhereNobodyListens ) {
   RedisServer server;
   server.dies();
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilTold( "unreachable: " + server.url() + ": " ) );
   server.starts();
   loadByHand( server );
   ASSERT_TRUE( follower.untilFollowing() );
}

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

} // namespace
