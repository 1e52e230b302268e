// A central database as scripts use it, whichever it is: what was written since, what becomes of a watch, and what an
// entity takes with it.
#include "agent/database/StateStore.h"
#include "agent/CentralServer.h"
#include "agent/DatabaseFollower.h"
#include "agent/database/StateWriter.h"
#include "inspection/files/InputError.h"

#include <gmock/gmock.h>

namespace {

using namespace Live;
using Inspection::Event;
using testing::HasSubstr;

struct StateStoreTest : testing::TestWithParam< char const * > {
   std::unique_ptr< CentralServer > server = serverOf( GetParam() );
   std::unique_ptr< StateStore > store = stateStoreAt( server->url(), {}, 1 );
   StateWriter writer{ *store };
   std::vector< std::string > seen;

   StateWatch::Answers sees() {
      return { .is =
                  [this]( Transaction const & transaction ) {
                     for ( auto const & event : transaction.changes ) {
                        seen.push_back( event.text() );
                     }
                  },
               .begins = [this]( std::string const & why ) { seen.push_back( "begins: " + why ); } };
   }
   bool untilSeen( StateWatch & watch, std::string const & what ) const {
      for ( int turn = 0; turn < 1000 && ( seen.empty() || seen.back() != what ); ++turn ) {
         watch.turn();
      }
      return !seen.empty() && seen.back() == what;
   }
};

INSTANTIATE_TEST_SUITE_P( Every, StateStoreTest, testing::ValuesIn( centralServers ), nameOfServer );

Event mplsIs( bool value ) {
   return { .path = "evpn/status", .attribute = "mplsEnabled", .value = value };
}

TEST_P( StateStoreTest, tellsWhatWasWrittenSinceAPlace ) {
   store->load( { { "evpn/status", {} } } );
   auto const position = store->snapshot().position;
   EXPECT_FALSE( store->isBehind( position, store->mark() ) );
   writer.write( mplsIs( true ) );
   auto const last = writer.write( mplsIs( false ) );
   EXPECT_TRUE( store->isBehind( position, store->mark() ) );
   auto const since = store->since( position, store->mark() );
   ASSERT_TRUE( since );
   ASSERT_EQ( since->size(), 2u );
   EXPECT_EQ( since->at( 0 ).changes.at( 0 ).text(), "set evpn/status mplsEnabled = true" );
   EXPECT_EQ( since->at( 1 ).changes.at( 0 ).text(), "set evpn/status mplsEnabled = false" );
   EXPECT_EQ( since->at( 1 ).position.entry, last );

   server->losesHistory();
   EXPECT_FALSE( store->since( position, store->mark() ) );
}

TEST_P( StateStoreTest, tellsNothingOfAnotherLifeOfTheState ) {
   store->load( { { "evpn/status", {} } } );
   auto const position = store->snapshot().position;
   store->load( { { "evpn/status", {} } } );
   EXPECT_TRUE( store->isBehind( position, store->mark() ) );
   EXPECT_FALSE( store->since( position, store->mark() ) );
}

TEST_P( StateStoreTest, refusesToDeleteWhatIsntThere ) {
   Paths const state{ { "evpn/status", {} }, { "interface/status/eth/vxlan", {} } };
   store->load( state );
   try {
      writer.write( { .kind = Event::Kind::remove,
                      .path = "interface/status/eth/vxlan",
                      .attribute = "vtiStatus",
                      .key = "Vxlan9" } );
      FAIL() << "it is written";
   } catch ( Inspection::InputError const & error ) {
      EXPECT_STREQ( error.what(),
                    "delete interface/status/eth/vxlan vtiStatus[Vxlan9]: interface/status/eth/vxlan has no entry "
                    "\"Vxlan9\" in vtiStatus" );
   }
   EXPECT_EQ( server->state(), state );
}

TEST_P( StateStoreTest, takesAwayWithAnEntityAllThatItHolds ) {
   store->load( { { "shared/phySmStateData", {} } } );
   std::string const directory = "shared/phySmStateData/allEthPhyIntfConfigDir";
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilFollowing() );
   writer.write( { .path = "shared/phySmStateData",
                   .attribute = "allEthPhyIntfConfigDir",
                   .value = Rex::Value::Object{ { "intfConfig",
                                                  Rex::Value::Object{ { "Ethernet3/1", Rex::Value::Object{} },
                                                                      { "Ethernet3/2", Rex::Value::Object{} } } } } } );
   EXPECT_EQ( server->state().size(), 4u );
   EXPECT_TRUE( server->state().contains( directory + "/intfConfig/Ethernet3/1" ) );
   writer.write( { .path = "shared/phySmStateData", .attribute = "allEthPhyIntfConfigDir", .value = {} } );
   EXPECT_EQ( server->state(), ( Paths{ { "shared/phySmStateData", { { "allEthPhyIntfConfigDir", "null" } } } } ) );
   EXPECT_TRUE( follower.until( [&] { return follower.paths == server->state(); } ) );
}

TEST_P( StateStoreTest, isWatchedIntoAnotherLifeOfTheState ) {
   server->load();
   auto const watch = store->watch( sees() );
   server->write( "mplsEnabled", "true" );
   ASSERT_TRUE( untilSeen( *watch, "set evpn/status mplsEnabled = true" ) );
   server->epochIs( "e2" );
   ASSERT_TRUE( untilSeen( *watch, "begins: another state was loaded" ) );
   server->write( "mplsEnabled", "false" );
   ASSERT_TRUE( untilSeen( *watch, "set evpn/status mplsEnabled = false" ) );
   EXPECT_EQ( seen.size(), 3u );
}

TEST_P( StateStoreTest, isWatchedNoMoreWhereTheStateIsGone ) {
   store->load( { { "evpn/status", {} } } );
   auto const watch = store->watch( sees() );
   server->losesAll();
   try {
      untilSeen( *watch, "anything" );
      FAIL() << "it goes on";
   } catch ( Inspection::InputError const & error ) {
      EXPECT_THAT( error.what(), HasSubstr( "the database holds no state yet; load one: l3sm state load FILE" ) );
   }
}

// ---- those who ask for what isn't there any more

TEST_P( StateStoreTest, tellsFollowersOfAnotherLifeOrAnotherServer ) {
   server->load();
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.until( [&] { return follower.hasBegun; } ) );
   auto position = follower.position;
   follower.database.stop();
   DatabaseFollower late( server->url() );
   ASSERT_TRUE( late.untilFollowing() );
   late.database.stop();
   position.epoch = "e0";
   late.database.since( position );
   ASSERT_TRUE( late.untilTold( "gap: another state was loaded" ) );
   ASSERT_TRUE( late.untilFollowing() );
   position.epoch = "e1";
   position.server = "elsewhere";
   late.database.stop();
   late.database.since( position );
   ASSERT_TRUE( late.untilTold( "gap: another " ) );
   ASSERT_TRUE( late.until( [&] { return late.timesTold( "gap: another " ) == 2; } ) );
   EXPECT_TRUE( late.untilFollowing() );
   EXPECT_EQ( late.paths, server->state() );
}

} // namespace
