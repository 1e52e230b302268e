// What may happen to a cluster of three: who follows ends with what it holds, and no write that was acknowledged is
// lost.
//
// L3SM_LONG_TESTS=1 in the environment: a minute where a minute is meant, and 1,000 faults.
#include "agent/DatabaseFollower.h"
#include "agent/EtcdServer.h"
#include "agent/database/EtcdDatabase.h"
#include "agent/database/StateWriter.h"
#include "inspection/files/InputError.h"

#include <random>

namespace {

using Inspection::Event;
using Inspection::InputError;
using Rex::Value;

bool const isLong = std::getenv( "L3SM_LONG_TESTS" ) != nullptr;

Event portOf( int vxlan, int port ) {
   return { .path = "interface/status/eth/vxlan",
            .attribute = "vtiStatus",
            .key = "Vxlan" + std::to_string( vxlan ),
            .value = Value::Object{ { "udpPort", port } } };
}

struct EtcdFaults : testing::Test {
   EtcdServer cluster{ 3 };
   std::unique_ptr< Live::StateStore > store = Live::stateStoreAt( cluster.url(), {}, 1 );
   Live::StateWriter writer{ *store };
   std::unique_ptr< DatabaseFollower > follower;

   void SetUp() override {
      store->load( { { "evpn/status", {} }, { "interface/status/eth/vxlan", {} } } );
      follower = following( "Linecard3" );
   }
   std::unique_ptr< DatabaseFollower > following( std::string const & slice ) const {
      auto it = std::make_unique< DatabaseFollower >( cluster.url(), slice );
      it->takesUpWhereItWas = true;
      EXPECT_TRUE( it->until( [&] { return it->hasBegun; } ) );
      return it;
   }
   // The writer and the follower take turns.
   void write( int from, int to ) {
      for ( int at = from; at < to; ++at ) {
         writer.write( portOf( at % 7, at ) );
         follower->loop.turn( 0 );
      }
   }
   bool isEqualSoon( DatabaseFollower & who ) {
      auto const now = withoutDefaults( store->snapshot().paths );
      return who.until( [&] { return withoutDefaults( who.paths ) == now; } );
   }
};

TEST_F( EtcdFaults, leaderKilledUnderLoad ) {
   write( 0, 30 );
   cluster.members[cluster.leader()]->dies();
   write( 30, 60 );
   EXPECT_TRUE( isEqualSoon( *follower ) );
   EXPECT_EQ( follower->paths.at( "interface/status/eth/vxlan/vtiStatus/Vxlan3" ).at( "udpPort" ), "59" );
   EXPECT_EQ( follower->timesTold( "snapshot" ), 1 );
   cluster.starts();
   write( 60, 70 );
   EXPECT_TRUE( isEqualSoon( *follower ) );
}

TEST_F( EtcdFaults, leaderThatStandsStillUnderLoad ) {
   write( 0, 10 );
   auto const & leader = *cluster.members[cluster.leader()];
   leader.standsStill();
   write( 10, 40 );
   EXPECT_TRUE( isEqualSoon( *follower ) );
   leader.goesOn();
   write( 40, 50 );
   EXPECT_TRUE( isEqualSoon( *follower ) );
   EXPECT_EQ( follower->timesTold( "snapshot" ), 1 );
}

// Who has no majority behind him is left, and where there is none, nobody acts.
TEST_F( EtcdFaults, twoOfThreeStandStill ) {
   write( 0, 10 );
   ASSERT_TRUE( isEqualSoon( *follower ) );
   auto const before = follower->paths;
   for ( std::size_t at : { 0U, 1U } ) {
      cluster.members[at]->standsStill();
   }
   ASSERT_TRUE( follower->untilTold( "unreachable: " ) );
   auto const end = std::chrono::steady_clock::now() + std::chrono::seconds( isLong ? 60 : 1 );
   follower->until( [&] { return std::chrono::steady_clock::now() > end; } );
   EXPECT_EQ( follower->paths, before );
   EXPECT_EQ( follower->timesTold( "snapshot" ), 1 );
   for ( std::size_t at : { 0U, 1U } ) {
      cluster.members[at]->goesOn();
   }
   cluster.answers();
   write( 10, 20 );
   EXPECT_TRUE( isEqualSoon( *follower ) );
}

TEST_F( EtcdFaults, memberWipedAndJoinedAgain ) {
   write( 0, 10 );
   std::size_t const gone = ( cluster.leader() + 1 ) % 3;
   std::size_t const other = ( gone + 1 ) % 3;
   auto const id = EtcdServer::wordIn( cluster.askMember( gone, "maintenance/status" ), "member_id" );
   cluster.members[gone]->dies();
   std::filesystem::remove_all( cluster.members[gone]->data() );
   cluster.askText( "cluster/member/remove", "{\"ID\":\"" + id + "\"}" );
   write( 10, 20 );
   cluster.stateIs( "existing" );
   cluster.askText( "cluster/member/add", "{\"peerURLs\":[\"" + cluster.members[gone]->peer() + "\"]}" );
   cluster.starts();
   write( 20, 30 );
   cluster.members[other]->dies(); // so that the new one is needed
   write( 30, 40 );
   EXPECT_TRUE( isEqualSoon( *follower ) );
   EXPECT_EQ( follower->timesTold( "gap" ), 0 );
}

TEST_F( EtcdFaults, defragmentedAndCompactedUnderLoad ) {
   for ( int round = 0; round < 3; ++round ) {
      write( 10 * round, 10 * round + 10 );
      cluster.compacts( cluster.revision() );
      for ( std::size_t at = 0; at < 3; ++at ) {
         cluster.askMember( at, "maintenance/defragment" );
         write( 10 * round, 10 * round + 10 );
      }
   }
   EXPECT_TRUE( isEqualSoon( *follower ) );
}

// Members killed, stopped and started, revisions compacted, the write under way acknowledged or not: what was
// acknowledged is there, and all who follow hold the same.
TEST_F( EtcdFaults, manyAtRandom ) {
   int const faults = isLong ? 1000 : 20;
   std::mt19937 chance( 7 );
   std::vector< std::unique_ptr< DatabaseFollower > > others;
   others.push_back( following( "Linecard4" ) );
   others.push_back( following( "Linecard7" ) );
   std::map< std::string, std::string > acknowledged; // the last value of each
   std::map< std::string, std::set< std::string > > maybe;
   int count = 0;
   int writes = 0;
   auto const writeSome = [&]( int times ) {
      for ( int at = 0; at < times; ++at, ++count ) {
         auto const event = portOf( count % 11, count % 60000 );
         auto const path = event.path + "/vtiStatus/" + *event.key;
         auto const text = std::to_string( count % 60000 );
         try {
            writer.write( event );
            acknowledged[path] = text;
            maybe[path].clear();
            ++writes;
         } catch ( InputError const & ) {
            maybe[path].insert( text );
         }
         follower->loop.turn( 0 );
         for ( auto & other : others ) {
            other->loop.turn( 0 );
         }
      }
   };
   writeSome( 20 );
   for ( int fault = 0; fault < faults; ++fault ) {
      auto & one = *cluster.members[chance() % 3];
      switch ( chance() % 4 ) {
      case 0:
         one.dies();
         writeSome( 5 );
         cluster.starts();
         break;
      case 1:
         one.standsStill();
         writeSome( 3 );
         one.goesOn();
         break;
      case 2:
         cluster.compacts( cluster.revision() );
         writeSome( 5 );
         break;
      default:
         cluster.askMember( chance() % 3, "maintenance/defragment" );
         writeSome( 5 );
      }
   }
   cluster.answers();
   EXPECT_GT( writes, count / 2 );
   auto const paths = store->snapshot().paths;
   for ( auto const & [path, text] : acknowledged ) {
      auto const & now = paths.at( path ).at( "udpPort" );
      EXPECT_TRUE( now == text || maybe[path].contains( now ) ) << path << ' ' << text << ' ' << now;
   }
   EXPECT_TRUE( isEqualSoon( *follower ) );
   for ( auto & other : others ) {
      EXPECT_TRUE( isEqualSoon( *other ) );
   }
}

} // namespace
