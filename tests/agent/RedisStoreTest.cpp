// How a state is written into a Redis: hashes, set of paths and log, none of which an etcd has. What writers do
// anywhere is in StateWriterTest.cpp.
#include "agent/database/RedisStore.h"
#include "agent/RedisState.h"
#include "agent/database/StateWriter.h"
#include "inspection/files/InputError.h"

namespace {

using namespace Live;
using Inspection::Event;

std::string const vxlan1Path = "interface/status/eth/vxlan/vtiStatus/Vxlan1";
Event const vxlan1{ .path = "interface/status/eth/vxlan",
                    .attribute = "vtiStatus",
                    .key = "Vxlan1",
                    .value = Rex::Value::Object{ { "udpPort", 4789 } } };

struct RedisStoreTest : testing::Test {
   RedisServer server;
   RedisStore store{ server.address(), 1 };
   StateWriter writer{ store };
};

TEST_F( RedisStoreTest, writesHashesPathsAndLogTogether ) {
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

TEST_F( RedisStoreTest, beginsANewLifeOfWhateverLiesThere ) {
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

TEST_F( RedisStoreTest, replacesAnEntityByAnotherWithAllThatItHeld ) {
   store.load( { { "shared/phySmStateData", { { "allEthPhyIntfConfigDir", "null" } } } } );
   Event const directory{
      .path = "shared/phySmStateData", .attribute = "allEthPhyIntfConfigDir", .value = Rex::Value::Object{} };
   writer.write( directory );
   EXPECT_EQ( stateIn( server ),
              ( Paths{ { "shared/phySmStateData", {} }, { "shared/phySmStateData/allEthPhyIntfConfigDir", {} } } ) );
   EXPECT_EQ( server.ask( { "EXISTS", "l3sm:{1}:shared/phySmStateData" } ).number(), 0 ) << "no attribute is left";
}

TEST_F( RedisStoreTest, refusesWhatTheServerRefuses ) {
   store.load( { { "evpn/status", {} } } );
   server.ask( { "DEL", evpnKey } );
   server.ask( { "SET", evpnKey, "no hash" } );
   std::string refused;
   try {
      auto mark = store.mark();
      Event const event{ .path = "evpn/status", .attribute = "mplsEnabled", .value = true };
      store.commit( StateModel( Paths{ { "evpn/status", {} } } ).change( event ), {}, event, mark );
   } catch ( Inspection::InputError const & error ) {
      refused = error.what();
   }
   EXPECT_EQ( refused, server.url() + ": WRONGTYPE Operation against a key holding the wrong kind of value" );
}

} // namespace
