// A whole state that is read in pages while others write: that of one moment.
#include "agent/CentralServer.h"
#include "agent/DatabaseFollower.h"

namespace {

TEST( EtcdSnapshot, isOfOneMomentWhileOthersWrite ) {
   CentralEtcd etcd;
   etcd.load( "e1", 4000 );
   std::string const first = "interface/config/global";                          // in the first page,
   std::string const last = "interface/status/subintf/intfStatus/Ethernet1.999"; // and in the last one
   int number = 0;
   auto const writeBoth = [&] {
      ++number;
      Live::EtcdTransaction both;
      both.put( etcd.layout.key( first ), "{\"l3Mtu\":" + std::to_string( number ) + "}" );
      both.put( etcd.layout.key( last ), "{\"mtu\":" + std::to_string( number ) + "}" );
      etcd.server.ask( "kv/txn", both );
   };
   writeBoth();
   DatabaseFollower follower( etcd.url() );
   follower.rests = true;
   for ( std::size_t snapshots = 1; snapshots <= 10; ++snapshots ) {
      while ( follower.timesTold( "snapshot" ) < snapshots ) {
         follower.loop.turn( 0 );
         writeBoth();
      }
      EXPECT_EQ( follower.paths.at( first ).at( "l3Mtu" ), follower.paths.at( last ).at( "mtu" ) );
      follower.database.snapshot();
   }
}

} // namespace
