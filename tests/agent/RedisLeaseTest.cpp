// One agent of a slice at a time.
#include "agent/RedisFollower.h"
#include "agent/RedisState.h"

namespace {

std::string const leaseKey = "l3sm:{1}#lease:Linecard3";

Live::LeaseHolder anothersMachine() {
   auto holder = Live::LeaseHolder::thisProcess();
   holder.host = "gauss";
   holder.boot = "another";
   return holder;
}

TEST( RedisLease, isRefusedToTheSecondAgentOfASlice ) {
   RedisServer server;
   loadByHand( server );
   RedisFollower first( server );
   ASSERT_TRUE( first.untilFollowing() );
   RedisFollower second( server );
   ASSERT_TRUE(
      second.untilTold( "refused: slice Linecard3 is served by process " + std::to_string( ::getpid() ) + " on " ) );
   EXPECT_TRUE( second.hasBeenTold( "s more unless it renews it" ) );
   RedisFollower other( server, "Linecard4" );
   ASSERT_TRUE( other.untilFollowing() );

   first.database.stop();
   second.database.snapshot();
   ASSERT_TRUE( second.untilFollowing() );
}

TEST( RedisLease, isTakenAtOnceFromAKilledProcessOfThisMachine ) {
   RedisServer server;
   loadByHand( server );
   pid_t const agent = ::fork();
   if ( agent == 0 ) {
      ::prctl( PR_SET_PDEATHSIG, SIGKILL );
      RedisFollower follower( server );
      follower.untilFollowing();
      ::pause();
   }
   while ( server.ask( { "EXISTS", leaseKey } ).number() == 0 ) {
      ::usleep( 1000 );
   }
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilTold( "refused: slice Linecard3 is served by process " + std::to_string( agent ) ) );
   ::kill( agent, SIGKILL );
   siginfo_t info{};
   ::waitid( P_PID, static_cast< id_t >( agent ), &info, WEXITED | WNOWAIT ); // nobody has taken note of its end
   follower.database.snapshot();
   ASSERT_TRUE( follower.untilFollowing() );
   ::waitpid( agent, nullptr, 0 );
   EXPECT_GT( server.ask( { "PTTL", leaseKey } ).number(), 5000 );
}

TEST( RedisLease, isNotTakenFromAnotherMachineBeforeItEnds ) {
   RedisServer server;
   loadByHand( server );
   server.ask( { "SET", leaseKey, anothersMachine().text(), "PX", "300000" } );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilTold( " on gauss, which has the right to it for " ) );
   server.ask( { "PEXPIRE", leaseKey, "1" } );
   while ( server.ask( { "EXISTS", leaseKey } ).number() == 1 ) {
   }
   follower.database.snapshot();
   ASSERT_TRUE( follower.untilFollowing() );
}

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
