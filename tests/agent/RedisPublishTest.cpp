// What an agent tells of itself where a key of another kind stands in its place, as only a Redis has kinds of keys.
// What it tells anywhere is in CentralAgentsTest.cpp.
#include "agent/RedisFollower.h"
#include "agent/RedisState.h"

namespace {

using Live::Attributes;

std::string const agentKey = "l3sm:{1}#agent:Linecard3";
std::string const publishedKey = "l3sm:{1}#published:Linecard3";

Attributes hashAt( RedisServer & server, std::string const & key ) {
   Attributes attributes;
   auto const fields = server.ask( { "HGETALL", key } );
   for ( std::size_t at = 0; at + 1 < fields.size(); at += 2 ) {
      attributes.emplace( fields[at].text(), fields[at + 1].text() );
   }
   return attributes;
}

struct RedisPublish : testing::Test {
   RedisServer server;
   std::optional< RedisFollower > follower;
   void SetUp() override {
      loadByHand( server );
      follower.emplace( server );
      ASSERT_TRUE( follower->untilFollowing() );
   }
   // Until the server has written so many reports.
   void publish( Live::Report const & report ) {
      auto const before = server.served( "exec" );
      follower->database.publish( report );
      ASSERT_TRUE( follower->until( [&] { return server.served( "exec" ) > before; } ) );
   }
};

TEST_F( RedisPublish, takesAwayWhatAnEarlierProcessLeftThere ) {
   server.ask( { "SADD", publishedKey, "intf/Gone", "intf/Ethernet1" } );
   server.ask( { "HSET", publishedKey + ":intf/Gone", "mtu", "1" } );
   server.ask( { "HSET", publishedKey + ":intf/Ethernet1", "stale", "1" } );
   server.ask( { "SET", agentKey, "no hash" } );
   publish( { .applied = { "s", "e1", "3-1" },
              .fields = { { "phase", "running" } },
              .published = { { "intf/Ethernet1", { { "mtu", "1500" } } } },
              .isWhole = true } );
   EXPECT_EQ( server.ask( { "EXISTS", publishedKey + ":intf/Gone" } ).number(), 0 );
   EXPECT_EQ( hashAt( server, publishedKey + ":intf/Ethernet1" ), ( Attributes{ { "mtu", "1500" } } ) );
   EXPECT_EQ( hashAt( server, agentKey ).at( "phase" ), "running" );
}

} // namespace
