// What an etcd alone tells who reads a state in it: values that somebody has put there by hand, and a member that goes
// while it is watched.
#include "agent/CentralServer.h"
#include "agent/DatabaseFollower.h"
#include "agent/database/StateStore.h"

namespace {

TEST( EtcdReading, tellsWhichValuesItCantReadAndHasTheOthers ) {
   CentralEtcd etcd;
   etcd.load( "e1", 0 );
   etcd.server.put( "l3sm:1:evpn/status", "no JSON" );
   DatabaseFollower follower( etcd.url() );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.paths, ( Live::Paths{ { "interface/config/global", { { "l3Mtu", "9000" } } } } ) );
   ASSERT_EQ( follower.unreadable.size(), 1u );
   auto const & text = follower.unreadable.at( "evpn/status" );
   EXPECT_EQ( text.find( "l3sm:1:evpn/status: expected an object of JSON, attribute to value" ), 0u ) << text;
}

TEST( EtcdReading, tellsOfAnAttributeThatThereIsnt ) {
   CentralEtcd etcd;
   etcd.load( "e1", 0 );
   DatabaseFollower follower( etcd.url() );
   ASSERT_TRUE( follower.until( [&] { return follower.hasBegun; } ) );
   etcd.server.put( "l3sm:1:evpn/status", R"({"nowhere": 1, "vxlanEnabled": true})" );
   ASSERT_TRUE( follower.until( [&] { return follower.count == 1; } ) );
   EXPECT_EQ( follower.paths.at( "evpn/status" ).at( "vxlanEnabled" ), "true" );
   ASSERT_EQ( follower.unreadable.size(), 1u );
   EXPECT_EQ( follower.unreadable.begin()->second,
              "evpn/status nowhere: Evpn::EvpnStatus has no attribute \"nowhere\"; it has vxlanEnabled, mplsEnabled, "
              "evpnDciEnabled" );
}

TEST( EtcdReading, isWatchedOnWhereTheServerWasAwayForAWhile ) {
   CentralEtcd etcd;
   etcd.load( "e1", 0 );
   auto const store = Live::stateStoreAt( etcd.url(), {}, 1 );
   std::vector< std::string > seen;
   auto const watch = store->watch( { .is =
                                         [&]( Live::Transaction const & transaction ) {
                                            for ( auto const & event : transaction.changes ) {
                                               seen.push_back( event.text() );
                                            }
                                         },
                                      .begins = [&]( std::string const & why ) { seen.push_back( why ); } } );
   auto const untilSeen = [&]( std::size_t count ) {
      for ( int turn = 0; turn < 1000 && seen.size() < count; ++turn ) {
         watch->turn();
      }
      return seen.size() == count;
   };
   etcd.write( "vxlanEnabled", "true" );
   ASSERT_TRUE( untilSeen( 1 ) );
   etcd.server.dies();
   watch->turn(); // which hears of it
   etcd.server.starts();
   etcd.write( "mplsEnabled", "true" );
   ASSERT_TRUE( untilSeen( 2 ) );
   EXPECT_EQ(
      seen,
      ( std::vector< std::string >{ "set evpn/status vxlanEnabled = true", "set evpn/status mplsEnabled = true" } ) );
}

} // namespace
