// A state written as everybody should: in one go, checked before, and known to those who follow.
#include "agent/database/StateWriter.h"
#include "agent/RedisFollower.h"
#include "agent/RedisState.h"
#include "agent/database/LogEntry.h"
#include "agent/database/RedisStore.h"
#include "inspection/files/InputError.h"
#include "l3sm/Running.h"

namespace {

using namespace Live;
using Inspection::Event;
using Inspection::InputError;
using Rex::Value;

Event set( std::string const & path, std::string const & attribute, Value value ) {
   return { .path = path, .attribute = attribute, .value = std::move( value ) };
}
Event setEntry( std::string const & path, std::string const & attribute, std::string const & key, Value value ) {
   return { .path = path, .attribute = attribute, .key = key, .value = std::move( value ) };
}

Event const vxlan1 =
   setEntry( "interface/status/eth/vxlan", "vtiStatus", "Vxlan1", Value::Object{ { "udpPort", 4789 } } );
std::string const vxlan1Path = "interface/status/eth/vxlan/vtiStatus/Vxlan1";

struct StateWriterTest : testing::Test {
   RedisServer server;
   RedisStore store{ server.address(), 1 };
   StateWriter writer{ store };

   std::string refusalOf( std::function< void() > const & what ) {
      try {
         what();
      } catch ( InputError const & error ) {
         return error.what();
      }
      return "";
   }
};

TEST_F( StateWriterTest, writesHashesPathsAndLogTogether ) {
   store.load( { { "evpn/status", { { "vxlanEnabled", "true" } } }, { "interface/status/eth/vxlan", {} } } );
   auto const entry = writer.write( vxlan1 );
   EXPECT_EQ( stateIn( server ),
              ( Paths{ { "evpn/status", { { "vxlanEnabled", "true" } } },
                       { "interface/status/eth/vxlan", {} },
                       { vxlan1Path, { { "udpPort", "4789" } } } } ) );
   auto const answer = server.ask( { "XREVRANGE", logKey, "+", "-", "COUNT", "1" } );
   auto const last = answer[0];
   EXPECT_EQ( last[0].text(), entry );
   EXPECT_EQ( last[1][1].text(),
              R"([{"set": {"attribute": "vtiStatus", "key": "Vxlan1", "path": "interface/status/eth/vxlan", )"
              R"("value": {"udpPort": 4789}}}])" );
   EXPECT_EQ( last[1][3].text(), server.ask( { "GET", epochKey } ).text() );

   writer.write( { .kind = Event::Kind::remove, .path = vxlan1Path } );
   EXPECT_FALSE( stateIn( server ).contains( vxlan1Path ) );
   EXPECT_EQ( server.ask( { "EXISTS", "l3sm:{1}:" + vxlan1Path } ).number(), 0 );
}

TEST_F( StateWriterTest, isFollowedToTheSameState ) {
   store.load( { { "evpn/status", {} }, { "interface/status/eth/vxlan", {} } } );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilFollowing() );
   writer.writeEach( { vxlan1,
                       set( vxlan1Path, "remoteVxlanDomain", true ),
                       set( "evpn/status", "mplsEnabled", true ),
                       setEntry( "l3/tunnel/udpDestinationPortConfig", "udpDestPort", "1", 6635 ),
                       vxlan1 },
                     "events.json" );
   ASSERT_TRUE( follower.until( [&] { return follower.count == 5; } ) );
   EXPECT_EQ( follower.paths, stateIn( server ) );
   EXPECT_EQ( follower.paths.at( vxlan1Path ), ( Attributes{ { "udpPort", "4789" } } ) );
   EXPECT_EQ( follower.timesTold( "gap" ), 0 );
}

TEST_F( StateWriterTest, writesNothingWithoutAnEpoch ) {
   auto const remedy = server.url() + ": the database holds no state yet; load one: l3sm state load FILE";
   EXPECT_EQ( refusalOf( [&] { writer.write( set( "evpn/status", "mplsEnabled", true ) ); } ), remedy );
   EXPECT_EQ( refusalOf( [&] { writer.writeEach( { vxlan1 }, "s" ); } ), remedy );
   EXPECT_EQ( server.ask( { "DBSIZE" } ).number(), 0 );
}

TEST_F( StateWriterTest, refusesAtTheDoorWhatAnAgentWouldRefuse ) {
   store.load( { { "evpn/status", {} } } );
   auto const before = lastEntry( server );
   EXPECT_EQ( refusalOf( [&] { writer.write( set( "evpn/status", "mplsEnabled", 3 ) ); } ),
              "set evpn/status mplsEnabled = 3: expected true or false, got 3" );
   EXPECT_EQ( refusalOf( [&] { writer.write( set( "evpn/stat", "mplsEnabled", true ) ); } ),
              "set evpn/stat mplsEnabled = true: there is no path \"evpn/stat\"; `l3sm paths` lists them" );
   EXPECT_EQ( refusalOf( [&] { writer.write( { .kind = Event::Kind::remove, .path = "evpn/status" } ); } ),
              "delete evpn/status: evpn/status is always there: set its attributes, or delete what it holds" );
   EXPECT_EQ( refusalOf( [&] { writer.write( set( vxlan1Path, "udpPort", 1 ) ); } ),
              "set " + vxlan1Path + " udpPort = 1: interface/status/eth/vxlan holds nothing at \"vtiStatus/Vxlan1\"" );
   EXPECT_EQ( lastEntry( server ), before );
   EXPECT_EQ( stateIn( server ), ( Paths{ { "evpn/status", {} } } ) );
}

TEST_F( StateWriterTest, writesNoneOfManyWhereOneIsWrong ) {
   store.load( { { "evpn/status", {} } } );
   auto const before = lastEntry( server );
   std::vector< Event > events{ set( "evpn/status", "mplsEnabled", true ), set( "evpn/status", "mplsEnabled", "x" ) };
   events[0].number = 1;
   events[1].number = 2;
   EXPECT_EQ( refusalOf( [&] { writer.writeEach( events, "events.json" ); } ),
              "events.json: event 2, set evpn/status mplsEnabled = \"x\": expected true or false, got \"x\"" );
   EXPECT_EQ( lastEntry( server ), before );
}

TEST_F( StateWriterTest, beginsANewLifeOfWhateverLiesThere ) {
   store.load( { { "evpn/status", { { "mplsEnabled", "true" } } }, { vxlan1Path, {} } } );
   auto const before = lastEntry( server );
   auto const epoch = std::string( server.ask( { "GET", epochKey } ).text() );
   server.ask( { "HSET", "l3sm:{1}:vxlan/ecnConfig", "stale", "1" } ); // no path of the state
   store.load( { { "evpn/status", {} }, { "vxlan/ecnConfig", {} } } );
   EXPECT_EQ( stateIn( server ), ( Paths{ { "evpn/status", {} }, { "vxlan/ecnConfig", {} } } ) );
   EXPECT_EQ( server.ask( { "EXISTS", "l3sm:{1}:" + vxlan1Path } ).number(), 0 );
   EXPECT_NE( server.ask( { "GET", epochKey } ).text(), epoch );
   EXPECT_EQ( server.ask( { "XLEN", logKey } ).number(), 1 );
   EXPECT_GT( EntryId::of( lastEntry( server ) ), EntryId::of( before ) );

   for ( auto const & key : { epochKey, pathsKey, logKey } ) {
      server.ask( { "DEL", key } );
      server.ask( { key == epochKey ? "SADD" : "SET", key, "of a wrong kind" } );
   }
   store.load( { { "evpn/status", {} } } );
   EXPECT_EQ( stateIn( server ), ( Paths{ { "evpn/status", {} } } ) );
}

TEST_F( StateWriterTest, takesTurnsWithOthers ) {
   store.load( { { "evpn/status", {} }, { "interface/config/global", {} }, { "interface/status/eth/vxlan", {} } } );
   RedisFollower follower( server );
   ASSERT_TRUE( follower.untilFollowing() );
   constexpr std::size_t each = 200;
   auto const eventsOf = [&]( std::string const & name ) {
      std::vector< Event > events;
      for ( std::size_t at = 0; at < each; ++at ) {
         events.push_back( setEntry( "interface/status/eth/vxlan",
                                     "vtiStatus",
                                     name + std::to_string( at % 7 ),
                                     Value::Object{ { "udpPort", at } } ) );
      }
      return events;
   };
   Running other( "state apply events.json --database " + server.url(),
                  { { "events.json", changesText( eventsOf( "Vxlan" ) ) } } );
   writer.writeEach( eventsOf( "Other" ), "other" );
   EXPECT_EQ( other.wait(), 0 ) << other.errors();
   ASSERT_TRUE( follower.until( [&] { return follower.position.entry == lastEntry( server ); } ) );
   EXPECT_EQ( follower.count, 2 * each );
   EXPECT_EQ( follower.paths, stateIn( server ) );
   EXPECT_EQ( follower.paths.size(), 3 + 14 );
}

TEST_F( StateWriterTest, loadsAsManyInterfacesAsThereCanBe ) {
   constexpr std::size_t many = 65535;
   Paths paths{ { "interface/status/subintf", {} } };
   for ( std::size_t at = 0; at < many; ++at ) {
      paths["interface/status/subintf/intfStatus/Ethernet1." + std::to_string( at )] = { { "mtu", "1500" } };
   }
   store.load( paths );
   EXPECT_EQ( server.ask( { "SCARD", pathsKey } ).number(), many + 1 );
   EXPECT_EQ( store.snapshot( "" ).paths, paths );
}

} // namespace
