// A state written as everybody should: in one go, checked before, and known to those who follow.
#include "agent/database/StateWriter.h"
#include "agent/CentralServer.h"
#include "agent/DatabaseFollower.h"
#include "agent/database/LogEntry.h"
#include "inspection/files/InputError.h"
#include "l3sm/Running.h"

namespace {

using namespace Live;
using Inspection::Event;
using Inspection::InputError;
using Rex::Value;

Event setting( std::string const & path, std::string const & attribute, Value value ) {
   return { .path = path, .attribute = attribute, .value = std::move( value ) };
}
Event settingEntry( std::string const & path, std::string const & attribute, std::string const & key, Value value ) {
   return { .path = path, .attribute = attribute, .key = key, .value = std::move( value ) };
}

Event const vxlan1 =
   settingEntry( "interface/status/eth/vxlan", "vtiStatus", "Vxlan1", Value::Object{ { "udpPort", 4789 } } );
std::string const vxlan1Path = "interface/status/eth/vxlan/vtiStatus/Vxlan1";

struct StateWriterTest : testing::TestWithParam< char const * > {
   std::unique_ptr< CentralServer > server = serverOf( GetParam() );
   std::unique_ptr< StateStore > store = stateStoreAt( server->url(), {}, 1 );
   StateWriter writer{ *store };

   std::string refusalOf( std::function< void() > const & what ) {
      try {
         what();
      } catch ( InputError const & error ) {
         return error.what();
      }
      return "";
   }
};

INSTANTIATE_TEST_SUITE_P( Every, StateWriterTest, testing::ValuesIn( centralServers ), nameOfServer );

TEST_P( StateWriterTest, writesWhatATransactionDoesToThePaths ) {
   store->load( { { "evpn/status", { { "vxlanEnabled", "true" } } }, { "interface/status/eth/vxlan", {} } } );
   auto const entry = writer.write( vxlan1 );
   EXPECT_EQ( server->state(),
              ( Paths{ { "evpn/status", { { "vxlanEnabled", "true" } } },
                       { "interface/status/eth/vxlan", {} },
                       { vxlan1Path, { { "udpPort", "4789" } } } } ) );
   EXPECT_EQ( server->lastEntry(), entry );

   writer.write( { .kind = Event::Kind::remove, .path = vxlan1Path } );
   EXPECT_FALSE( server->state().contains( vxlan1Path ) );
}

TEST_P( StateWriterTest, isFollowedToTheSameState ) {
   store->load( { { "evpn/status", {} }, { "interface/status/eth/vxlan", {} } } );
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilFollowing() );
   writer.writeEach( { vxlan1,
                       setting( vxlan1Path, "remoteVxlanDomain", true ),
                       setting( "evpn/status", "mplsEnabled", true ),
                       settingEntry( "l3/tunnel/udpDestinationPortConfig", "udpDestPort", "1", 6635 ),
                       vxlan1 },
                     "events.json" );
   ASSERT_TRUE( follower.until( [&] { return follower.count == 5; } ) );
   EXPECT_EQ( withoutDefaults( follower.paths ), withoutDefaults( server->state() ) );
   EXPECT_EQ( withoutDefaults( follower.paths ).at( vxlan1Path ), ( Attributes{ { "udpPort", "4789" } } ) );
   EXPECT_EQ( follower.timesTold( "gap" ), 0 );
}

TEST_P( StateWriterTest, writesNothingWithoutAnEpoch ) {
   auto const remedy = server->url() + ": the database holds no state yet; load one: l3sm state load FILE";
   EXPECT_EQ( refusalOf( [&] { writer.write( setting( "evpn/status", "mplsEnabled", true ) ); } ), remedy );
   EXPECT_EQ( refusalOf( [&] { writer.writeEach( { vxlan1 }, "s" ); } ), remedy );
   EXPECT_TRUE( server->state().empty() );
}

TEST_P( StateWriterTest, refusesAtTheDoorWhatAnAgentWouldRefuse ) {
   store->load( { { "evpn/status", {} } } );
   auto const before = server->lastEntry();
   EXPECT_EQ( refusalOf( [&] { writer.write( setting( "evpn/status", "mplsEnabled", 3 ) ); } ),
              "set evpn/status mplsEnabled = 3: expected true or false, got 3" );
   EXPECT_EQ( refusalOf( [&] { writer.write( setting( "evpn/stat", "mplsEnabled", true ) ); } ),
              "set evpn/stat mplsEnabled = true: there is no path \"evpn/stat\"; `l3sm paths` lists them" );
   EXPECT_EQ( refusalOf( [&] { writer.write( { .kind = Event::Kind::remove, .path = "evpn/status" } ); } ),
              "delete evpn/status: evpn/status is always there: set its attributes, or delete what it holds" );
   EXPECT_EQ( refusalOf( [&] { writer.write( setting( vxlan1Path, "udpPort", 1 ) ); } ),
              "set " + vxlan1Path + " udpPort = 1: interface/status/eth/vxlan holds nothing at \"vtiStatus/Vxlan1\"" );
   EXPECT_EQ( server->lastEntry(), before );
   EXPECT_EQ( server->state(), ( Paths{ { "evpn/status", {} } } ) );
}

TEST_P( StateWriterTest, writesNoneOfManyWhereOneIsWrong ) {
   store->load( { { "evpn/status", {} } } );
   auto const before = server->lastEntry();
   std::vector< Event > events{ setting( "evpn/status", "mplsEnabled", true ),
                                setting( "evpn/status", "mplsEnabled", "x" ) };
   events[0].number = 1;
   events[1].number = 2;
   EXPECT_EQ( refusalOf( [&] { writer.writeEach( events, "events.json" ); } ),
              "events.json: event 2, set evpn/status mplsEnabled = \"x\": expected true or false, got \"x\"" );
   EXPECT_EQ( server->lastEntry(), before );
}

TEST_P( StateWriterTest, beginsANewLifeOfWhateverLiesThere ) {
   store->load( { { "evpn/status", { { "mplsEnabled", "true" } } }, { vxlan1Path, {} } } );
   auto const before = server->epoch();
   EXPECT_NE( store->load( { { "evpn/status", {} }, { "vxlan/ecnConfig", {} } } ), before );
   EXPECT_EQ( server->state(), ( Paths{ { "evpn/status", {} }, { "vxlan/ecnConfig", {} } } ) );
   EXPECT_NE( server->epoch(), before );
}

TEST_P( StateWriterTest, takesTurnsWithOthers ) {
   store->load( { { "evpn/status", {} }, { "interface/config/global", {} }, { "interface/status/eth/vxlan", {} } } );
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilFollowing() );
   constexpr std::size_t each = 200;
   auto const eventsOf = [&]( std::string const & name ) {
      std::vector< Event > events;
      for ( std::size_t at = 0; at < each; ++at ) {
         events.push_back( settingEntry( "interface/status/eth/vxlan",
                                         "vtiStatus",
                                         name + std::to_string( at % 7 ),
                                         Value::Object{ { "udpPort", at } } ) );
      }
      return events;
   };
   Running other( "state apply events.json --database " + server->url(),
                  { { "events.json", changesText( eventsOf( "Vxlan" ) ) } } );
   writer.writeEach( eventsOf( "Other" ), "other" );
   EXPECT_EQ( other.wait(), 0 ) << other.errors();
   ASSERT_TRUE( follower.untilAt( server->lastEntry() ) );
   EXPECT_EQ( follower.count, 2 * each );
   EXPECT_EQ( follower.paths, server->state() );
   EXPECT_EQ( follower.paths.size(), 3 + 14 );
}

// What doesn't fit into one transaction of the database is as many as it takes.
TEST_P( StateWriterTest, writesMoreThanADatabaseTakesAtOnce ) {
   store->load( { { "evpn/status", {} }, { "interface/status/eth/vxlan", {} } } );
   DatabaseFollower follower( server->url() );
   ASSERT_TRUE( follower.untilFollowing() );
   Value::Object many;
   for ( int at = 0; at < 300; ++at ) {
      many["Vxlan" + std::to_string( at )] = Value::Object{ { "udpPort", at } };
   }
   writer.write( setting( "interface/status/eth/vxlan", "vtiStatus", many ) );
   EXPECT_EQ( server->state().size(), 302 );
   bool const isSplit = std::string( GetParam() ) == "etcd";
   EXPECT_EQ( store->takeNotes().size(), isSplit ? 1 : 0 );
   ASSERT_TRUE( follower.untilAt( server->lastEntry() ) );
   EXPECT_EQ( follower.count, isSplit ? 3 : 1 );
   EXPECT_EQ( follower.paths, server->state() );

   writer.write( setting( "interface/status/eth/vxlan", "vtiStatus", Value::Object() ) );
   EXPECT_EQ( server->state().size(), 2 );
   ASSERT_TRUE( follower.until( [&] { return follower.paths == server->state(); } ) );
}

TEST_P( StateWriterTest, loadsAsManyInterfacesAsThereCanBe ) {
   constexpr std::size_t many = 65535;
   Paths paths{ { "interface/status/subintf", {} } };
   for ( std::size_t at = 0; at < many; ++at ) {
      paths["interface/status/subintf/intfStatus/Ethernet1." + std::to_string( at )] = { { "mtu", "1500" } };
   }
   store->load( paths );
   EXPECT_EQ( store->snapshot().paths, paths );
}

} // namespace
