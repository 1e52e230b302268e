// How a Redis keeps one agent of a slice at a time: a key with a time, which whoever holds it renews. An etcd has
// leases of its own (EtcdTest.cpp); who is refused, and who isn't, is alike (CentralAgentsTest.cpp).
#include "agent/AnothersMachine.h"
#include "agent/RedisFollower.h"
#include "agent/RedisState.h"

namespace {

std::string const leaseKey = "l3sm:{1}#lease:Linecard3";

TEST( RedisLease, isNotTakenFromAnotherSpaceOfProcesses ) {
   auto holder = Live::LeaseHolder::thisProcess();
   holder.started = "1";
   EXPECT_TRUE( holder.isDead() );
   holder.space = "pid:[1]"; // a container's, where that process may live
   EXPECT_FALSE( holder.isDead() );
   EXPECT_FALSE( Live::LeaseHolder::thisProcess().isDead() );
   EXPECT_FALSE( Live::LeaseHolder::of( "whatever somebody has written" ).isDead() );
}

TEST( RedisLease, isRenewedNowAndThen ) {
   RedisServer server;
   loadByHand( server );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilFollowing() );
   server.ask( { "PEXPIRE", leaseKey, "5000" } );
   follower.database.tick();
   ASSERT_TRUE( follower.until( [&] { return server.ask( { "PTTL", leaseKey } ).number() > 9000; } ) );
}

TEST( RedisLease, isLostToWhoTookItWhileThisStoodStill ) {
   RedisServer server;
   loadByHand( server );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilFollowing() );
   std::string const another = anothersMachine().text();
   server.ask( { "SET", leaseKey, another, "PX", "10000" } );
   follower.database.tick();
   ASSERT_TRUE( follower.untilTold( "refused: " ) );
   follower.database.stop();
   EXPECT_EQ( server.ask( { "GET", leaseKey } ).text(), another ); // which isn't ours to give up
}

} // namespace
