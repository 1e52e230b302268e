// What is an etcd's alone: its quota, its leases, its users and certificates, and values that somebody writes by hand.
#include "agent/CentralServer.h"
#include "agent/DatabaseFollower.h"
#include "agent/Served.h"
#include "agent/database/EtcdDatabase.h"
#include "agent/database/EtcdStore.h"
#include "agent/database/StateWriter.h"
#include "inspection/files/InputError.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

std::string refusalOf( std::function< void() > const & what ) {
   try {
      what();
   } catch ( Inspection::InputError const & error ) {
      return error.what();
   }
   return "";
}

Inspection::Event const mplsIsOn{ .path = "evpn/status", .attribute = "mplsEnabled", .value = true };

TEST( EtcdDatabase, keepsWhatItHasWhereAValueCannotBeRead ) {
   CentralEtcd etcd;
   etcd.load( "e1", 0 );
   DatabaseFollower follower( etcd.url() );
   ASSERT_TRUE( follower.until( [&] { return follower.hasBegun; } ) );
   etcd.server.put( "l3sm:1:evpn/status", "no JSON" );
   ASSERT_TRUE( follower.until( [&] { return follower.count == 1; } ) );
   EXPECT_EQ( follower.paths.at( "evpn/status" ).at( "vxlanEnabled" ), "false" );
   ASSERT_EQ( follower.unreadable.size(), 1 );
   EXPECT_THAT( follower.unreadable.begin()->first, HasSubstr( "evpn/status: " ) );
   EXPECT_THAT( follower.unreadable.begin()->first, HasSubstr( ": expected an object of JSON, attribute to value" ) );

   etcd.server.put( "l3sm:1:evpn/status", R"({"mplsEnabled": true})" );
   ASSERT_TRUE( follower.untilTold( "gap: a value that could not be read was mended" ) );
   ASSERT_TRUE( follower.until( [&] { return follower.paths == etcd.state(); } ) );
   etcd.server.remove( "l3sm:1:interface/config/global" ); // by hand, and heard of all the same
   ASSERT_TRUE(
      follower.until( [&] { return withoutDefaults( follower.paths )["interface/config/global"].empty(); } ) );
}

TEST( EtcdDatabase, tellsOfAnotherLifeBeforeWhatItBrings ) {
   CentralEtcd etcd;
   etcd.load( "e1", 0 );
   DatabaseFollower follower( etcd.url() );
   ASSERT_TRUE( follower.until( [&] { return follower.hasBegun; } ) );
   Live::stateStoreAt( etcd.url(), {}, 1 )->load( { { "evpn/status", { { "mplsEnabled", "true" } } } } );
   ASSERT_TRUE( follower.until( [&] { return follower.timesTold( "snapshot" ) == 2; } ) );
   EXPECT_EQ( follower.count, 0 ); // nothing of the end of the old one was told as a change
   EXPECT_EQ( follower.paths, ( Live::Paths{ { "evpn/status", { { "mplsEnabled", "true" } } } } ) );
}

// Beside each other in one cluster.
TEST( EtcdDatabase, hasItsKeysBehindAPrefix ) {
   CentralEtcd etcd;
   etcd.load( "e1", 0 );
   auto const lab = Live::stateStoreAt( etcd.url() + "/lab", {}, 1 );
   lab->load( { { "evpn/status", { { "mplsEnabled", "true" } } } } );
   EXPECT_TRUE( etcd.server.at( "lab/l3sm:1:evpn/status" ) );
   DatabaseFollower follower( etcd.url() + "/lab" );
   ASSERT_TRUE( follower.untilFollowing() );
   EXPECT_EQ( follower.paths, lab->snapshot().paths );
   EXPECT_EQ( etcd.epoch(), "e1" );
}

// ---- writing

struct EtcdStoreTest : testing::Test {
   CentralEtcd etcd;
   Live::EtcdStore store{ etcd.server.address(), 1 };

   static Live::EtcdTransaction writes( std::string const & token, U64 behind ) {
      Live::EtcdTransaction transaction;
      transaction.ifModifiedAt( "l3sm:1#writes", behind );
      transaction.put( "l3sm:1#writes", token );
      return transaction;
   }
   U64 last() { return etcd.server.at( "l3sm:1#writes" )->modified; }
};

// Asked a second time, as where the first answer never came.
TEST_F( EtcdStoreTest, looksUpWhetherItsWriteWasDone ) {
   etcd.load( "e1", 0 );
   U64 const before = last();
   U64 const first = store.written( writes( "ours 1", before ), "ours 1", before );
   EXPECT_GT( first, before );
   EXPECT_EQ( store.written( writes( "ours 1", before ), "ours 1", before ), first );
   etcd.write( "mplsEnabled", "true" ); // and others write on
   etcd.write( "mplsEnabled", "false" );
   EXPECT_EQ( store.written( writes( "ours 1", before ), "ours 1", before ), first );
   EXPECT_EQ( store.written( writes( "ours 2", before ), "ours 2", before ), 0 );
   EXPECT_EQ( store.written( writes( "ours 3", first ), "ours 3", first ), 0 );
   etcd.server.compacts( etcd.server.revision() );
   EXPECT_THAT( refusalOf( [&] { store.written( writes( "ours 1", before ), "ours 1", before ); } ),
                HasSubstr( "whether it was written, nobody can tell now" ) );
}

// Somebody who takes no turns: his value isn't overwritten by one that was computed without it.
TEST_F( EtcdStoreTest, takesWhatOthersWriteByHandForWritten ) {
   store.load( { { "evpn/status", {} } } );
   auto mark = store.mark();
   Live::StateModel model( store.about( "evpn/status" ) );
   auto const change = model.change( mplsIsOn );
   etcd.server.put( "l3sm:1:evpn/status", R"({"vxlanEnabled":true})" );
   EXPECT_EQ( store.commit( change, model.paths(), mplsIsOn, mark ), "" );
   Live::StateWriter( store ).write( mplsIsOn );
   EXPECT_EQ( etcd.state().at( "evpn/status" ),
              ( Live::Attributes{ { "mplsEnabled", "true" }, { "vxlanEnabled", "true" } } ) );
}

// ---- leases

std::unique_ptr< Live::Database > shortLived( Live::EventLoop & loop, EtcdServer const & server ) {
   return std::make_unique< Live::EtcdDatabase >( loop, server.address(), 1, "Linecard3", 2 );
}

TEST( EtcdLease, isRenewedAsLongAsTheAgentLives ) {
   CentralEtcd etcd;
   etcd.load( "e1", 0 );
   {
      DatabaseFollower follower( [&]( Live::EventLoop & loop ) { return shortLived( loop, etcd.server ); } );
      ASSERT_TRUE( follower.untilFollowing() );
      auto const end = std::chrono::steady_clock::now() + std::chrono::seconds( 4 );
      ASSERT_TRUE( follower.until( [&] { return std::chrono::steady_clock::now() > end; } ) );
      EXPECT_TRUE( etcd.isServed( "Linecard3" ) );
      EXPECT_EQ( follower.told, std::vector< std::string >{ "snapshot" } );
   }
   EXPECT_FALSE( etcd.isServed( "Linecard3" ) ); // who ends says so
   EXPECT_TRUE( etcd.server.under( "l3sm:1#agents:" ).empty() );
}

TEST( EtcdLease, isLostByWhoStandsStillAndTakenAgain ) {
   CentralEtcd etcd;
   etcd.load( "e1", 0 );
   DatabaseFollower follower( [&]( Live::EventLoop & loop ) { return shortLived( loop, etcd.server ); } );
   follower.takesUpWhereItWas = true;
   ASSERT_TRUE( follower.until( [&] { return follower.hasBegun; } ) );
   ASSERT_TRUE( soon( [&] { return !etcd.isServed( "Linecard3" ); } ) ); // while nobody turns its loop
   EXPECT_FALSE( etcd.server.under( "l3sm:1#agents:" ).empty() );        // an agent is expected here
   etcd.write( "mplsEnabled", "true" );
   ASSERT_TRUE( follower.untilTold( "the right to serve slice Linecard3 has run out" ) );
   ASSERT_TRUE( follower.until( [&] { return follower.paths == etcd.state(); } ) );
   ASSERT_TRUE( follower.until( [&] { return etcd.isServed( "Linecard3" ); } ) );
   EXPECT_EQ( follower.timesTold( "snapshot" ), 1 );
}

// A whole agent, stopped for as long as its lease lasts; with L3SM_LONG_TESTS=1 for a minute.
TEST( EtcdLease, isLostByAnAgentThatIsStoppedAndCatchesUpWhenItGoesOn ) {
   std::string const theSwitch =
      R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7}}]},
          "toggles": {"Dace.json": {"ArmOrderedSwTable": false}}})";
   CentralEtcd etcd;
   etcd.load( "e1", 0 );
   Folder const folder;
   ServedAgent agent( folder, "Linecard3", theSwitch, etcd.server.url() );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   auto const before = agent.ctl( "show" );
   ::kill( agent.process(), SIGSTOP );
   etcd.write( "evpnDciEnabled", "true" );
   EXPECT_TRUE( soon( [&] { return !etcd.isServed( "Linecard3" ); } ) );
   if ( std::getenv( "L3SM_LONG_TESTS" ) ) {
      ::usleep( 50'000'000 );
   }
   ::kill( agent.process(), SIGCONT );
   SCOPED_TRACE( agent.output( "state wait --timeout 60 --database " + etcd.server.url() ) );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   EXPECT_TRUE( etcd.isServed( "Linecard3" ) );
   EXPECT_NE( agent.ctl( "show" ), before );
   ServedAgent fresh( folder, "Linecard4", theSwitch, etcd.server.url() );
   ASSERT_TRUE( fresh.isSoon( "running" ) ) << fresh.log();
   EXPECT_EQ( agent.ctl( "show" ), fresh.ctl( "show" ) );
}

// ---- space

TEST( EtcdQuota, isToldWithItsRemedyAndLetsAgentsFollow ) {
   EtcdServer server( 1, { "--quota-backend-bytes", "300000" } );
   auto const store = Live::stateStoreAt( server.url(), {}, 1 );
   store->load( { { "evpn/status", {} } } );
   DatabaseFollower follower( server.url() );
   follower.takesUpWhereItWas = true;
   ASSERT_TRUE( follower.untilFollowing() );
   std::string const much( 50'000, 'x' );
   auto const refusal = refusalOf( [&] {
      for ( int at = 0; at < 100; ++at ) {
         server.put( "other" + std::to_string( at ), much );
      }
   } );
   ASSERT_THAT( refusal, HasSubstr( "database space exceeded" ) );
   EXPECT_THAT(
      refusalOf( [&] { Live::StateWriter( *store ).write( mplsIsOn ); } ),
      HasSubstr( "database space exceeded; its quota is used up: compact, defragment, and disarm the alarm" ) );
   follower.database.publish( { .applied = follower.position, .fields = { { "phase", "running" } }, .isWhole = true } );
   auto const end = std::chrono::steady_clock::now() + std::chrono::milliseconds( 300 );
   ASSERT_TRUE( follower.until( [&] { return std::chrono::steady_clock::now() > end; } ) );
   EXPECT_EQ( follower.told, std::vector< std::string >{ "snapshot" } );

   server.askText( "kv/deleterange", Live::EtcdRange{ .key = "other", .end = "othes" }.text() );
   server.compacts( server.revision() );
   server.askMember( 0, "maintenance/defragment" );
   auto const id = EtcdServer::wordIn( server.askMember( 0, "maintenance/status" ), "member_id" );
   server.askMember( 0, "maintenance/alarm", R"({"action":"DEACTIVATE","alarm":"NOSPACE","memberID":")" + id + "\"}" );
   Live::StateWriter( *store ).write( mplsIsOn );
   ASSERT_TRUE( follower.until( [&] { return follower.paths == store->snapshot().paths; } ) );
   ASSERT_TRUE( follower.until( [&] {
      auto const there = server.at( "l3sm:1#agent:Linecard3" );
      return there && there->value.find( "running" ) != std::string::npos;
   } ) );
}

// ---- who comes

TEST( EtcdUsers, signOnAndSignOnAgainWhenTheirTokenIsOver ) {
   EtcdServer server( 1, { "--auth-token-ttl", "1" } );
   Folder const folder;
   server.askText( "auth/user/add", R"({"name":"root","password":"sesame"})" );
   server.askText( "auth/role/add", R"({"name":"root"})" );
   server.askText( "auth/user/grant", R"({"user":"root","role":"root"})" );
   server.askText( "auth/enable", "{}" );
   Live::DatabaseCredentials const root{ .user = "root", .passwordFile = folder.file( "password", "sesame\n" ) };
   auto const store = Live::stateStoreAt( server.url(), root, 1 );
   store->load( { { "evpn/status", {} } } );
   DatabaseFollower follower( server.url(), "Linecard3", root );
   ASSERT_TRUE( follower.untilFollowing() );
   auto const end = std::chrono::steady_clock::now() + std::chrono::seconds( 3 );
   ASSERT_TRUE( follower.until( [&] { return std::chrono::steady_clock::now() > end; } ) );
   Live::StateWriter( *store ).write( mplsIsOn ); // whose token is over
   ASSERT_TRUE( follower.until( [&] { return follower.paths == store->snapshot().paths; } ) );
   follower.database.publish( { .applied = follower.position, .fields = { { "phase", "running" } } } );
   ASSERT_TRUE( follower.until( [&] { return !store->agents( { "Linecard3" }, store->place() )[0].phase.empty(); } ) );
   EXPECT_EQ( follower.told, std::vector< std::string >{ "snapshot" } );

   Live::DatabaseCredentials const wrong{ .user = "root", .passwordFile = folder.file( "wrong", "open\n" ) };
   EXPECT_THAT( refusalOf( [&] { Live::stateStoreAt( server.url(), wrong, 1 )->mark(); } ),
                HasSubstr( "authentication failed, invalid user ID or password; --database-user NAME and "
                           "--database-password FILE say who comes" ) );
   EXPECT_THAT( refusalOf( [&] { Live::stateStoreAt( server.url(), {}, 1 )->mark(); } ),
                HasSubstr( "user name is empty; --database-user NAME" ) );
}

// An authority, and what it has signed, in a folder.
struct Certificates {
   Folder folder;

   Certificates() {
      folder.file( "conf",
                   "[req]\ndistinguished_name=dn\n[dn]\n[ca]\ndefault_ca=it\n[it]\ndatabase=index\nnew_certs_dir=.\n"
                   "serial=serial\ndefault_md=sha256\npolicy=any\nunique_subject=no\n[any]\ncommonName=supplied\n"
                   "[of]\nsubjectAltName=IP:" +
                      addressOfThisProcess() + "\n[authority]\nbasicConstraints=critical,CA:true\n" );
      folder.file( "index", "" );
      folder.file( "serial", "01\n" );
      run(
         "req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -subj /CN=authority -keyout ca.key -out ca.pem "
         "-days 30 -config conf -extensions authority" );
      run( "req -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -subj /CN=etcd -keyout key -out request -config "
           "conf" );
   }
   void run( std::string const & arguments ) const {
      std::string const line = "cd '" + ( folder / "" ) + "' && openssl " + arguments + " >>log 2>&1";
      EXPECT_EQ( std::system( line.c_str() ), 0 ) << folder.text( "log" );
   }
   // From now on `certificate` is good until then.
   void sign( std::string const & until ) const {
      run( "ca -batch -config conf -keyfile ca.key -cert ca.pem -in request -out certificate -notext -startdate "
           "20200101000000Z -enddate " +
           until + " -extensions of" );
   }
   Live::DatabaseCredentials credentials() const {
      return { .authorities = folder / "ca.pem", .certificate = folder / "certificate", .key = folder / "key" };
   }
   EtcdServer::Words options() const {
      return { "--cert-file",
               folder / "certificate",
               "--key-file",
               folder / "key",
               "--client-cert-auth",
               "--trusted-ca-file",
               folder / "ca.pem" };
   }
};

TEST( EtcdCertificates, areRefusedWhenTheirTimeIsOverAndReadAgain ) {
   Certificates const of;
   of.sign( "20990101000000Z" );
   EtcdServer server( 1, of.options(), of.credentials() );
   auto const store = Live::stateStoreAt( server.url(), of.credentials(), 1 );
   store->load( { { "evpn/status", {} } } );
   DatabaseFollower follower( server.url(), "Linecard3", of.credentials() );
   follower.takesUpWhereItWas = true;
   ASSERT_TRUE( follower.until( [&] { return follower.hasBegun; } ) );

   server.dies();
   of.sign( "20200102000000Z" );
   server.members[0]->begins( server.cluster(), "new", of.options(), true );
   ASSERT_TRUE( follower.untilTold( "certificate has expired" ) );
   EXPECT_EQ( follower.timesTold( "snapshot" ), 1 );

   server.members[0]->dies();
   of.sign( "20990101000000Z" );
   server.starts();
   Live::StateWriter( *store ).write( mplsIsOn );
   ASSERT_TRUE( follower.until( [&] { return follower.paths == store->snapshot().paths; } ) );
   EXPECT_EQ( follower.timesTold( "snapshot" ), 1 );

   Certificates const others;
   others.sign( "20990101000000Z" );
   EXPECT_THAT( refusalOf( [&] { Live::stateStoreAt( server.url(), others.credentials(), 1 )->mark(); } ),
                HasSubstr( "SSL certificate problem" ) );
   EXPECT_THAT(
      refusalOf( [&] { Live::stateStoreAt( server.url(), { .authorities = of.folder / "ca.pem" }, 1 )->mark(); } ),
      HasSubstr( "alert" ) ); // who brings none
}

} // namespace
