// What an agent tells of itself, as others find it.
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

TEST_F( RedisPublish, writesWhatItTellsAndWhatItsPlugInPublishes ) {
   publish( { .applied = { "s", "e1", "3-1" },
              .fields = { { "phase", "reconciling" }, { "reason", "just begun" } },
              .published = { { "intf/Ethernet1", { { "mtu", "1500" } } }, { "intf/Ethernet2", { { "mtu", "9" } } } },
              .isWhole = true } );
   EXPECT_EQ( hashAt( server, agentKey ),
              ( Attributes{
                 { "applied", "3-1" }, { "epoch", "e1" }, { "phase", "reconciling" }, { "reason", "just begun" } } ) );
   EXPECT_EQ( hashAt( server, publishedKey + ":intf/Ethernet1" ), ( Attributes{ { "mtu", "1500" } } ) );

   publish(
      { .applied = { "s", "e1", "3-2" },
        .fields = { { "phase", "running" } },
        .published = { { "intf/Ethernet1", { { "addr", "\"02:00:00:00:00:01\"" } } }, { "intf/Ethernet2", {} } } } );
   EXPECT_EQ( hashAt( server, agentKey ),
              ( Attributes{ { "applied", "3-2" }, { "epoch", "e1" }, { "phase", "running" } } ) );
   EXPECT_EQ( hashAt( server, publishedKey + ":intf/Ethernet1" ),
              ( Attributes{ { "addr", "\"02:00:00:00:00:01\"" }, { "mtu", "1500" } } ) );
   EXPECT_EQ( server.ask( { "EXISTS", publishedKey + ":intf/Ethernet2" } ).number(), 0 );
   EXPECT_EQ( server.ask( { "SMEMBERS", publishedKey } ).size(), 1 );
   EXPECT_EQ( server.ask( { "SMEMBERS", "l3sm:{1}#agents" } )[0].text(), "Linecard3" );
}

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

TEST_F( RedisPublish, makesOneOfWhatWaitsForASlowServer ) {
   server.standsStill();
   for ( int at = 0; at < 1000; ++at ) {
      Live::Report report{ .applied = { "s", "e1", "4-" + std::to_string( at ) },
                           .fields = { { "phase", "running" } } };
      report.published["intf/Ethernet1"] = { { "a" + std::to_string( at % 3 ), std::to_string( at ) } };
      if ( at == 500 ) {
         report.published["intf/Ethernet1"] = {};
      }
      follower->database.publish( report );
   }
   server.goesOn();
   ASSERT_TRUE( follower->until( [&] { return hashAt( server, agentKey )["applied"] == "4-999"; } ) );
   EXPECT_EQ( server.served( "exec" ), 3 ); // loading by hand, the first, all others
   EXPECT_EQ( hashAt( server, publishedKey + ":intf/Ethernet1" ),
              ( Attributes{ { "a0", "999" }, { "a1", "997" }, { "a2", "998" } } ) );
}

} // namespace
