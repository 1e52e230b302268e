// Where an etcd is, as people write it.
#include "Folder.h"
#include "agent/database/Base64.h"
#include "agent/database/Databases.h"
#include "agent/database/EtcdMessages.h"
#include "inspection/files/InputError.h"

#include <gtest/gtest.h>

namespace {

using Live::EtcdAddress;

std::string reasonFor( std::string const & url, Live::DatabaseCredentials const & credentials = {} ) {
   try {
      EtcdAddress::of( url, credentials );
   } catch ( Inspection::InputError const & error ) {
      return error.what();
   }
   return "";
}

TEST( EtcdAddress, isOneMemberOrSome ) {
   auto address = EtcdAddress::of( "etcd://db1,db2:2479,[::1]:7/lab", {} );
   EXPECT_EQ( address.members, ( std::vector< std::string >{ "db1:2379", "db2:2479", "[::1]:7" } ) );
   EXPECT_EQ( address.prefix, "lab/" );
   EXPECT_EQ( address.name(), "etcd://db1:2379,db2:2479,[::1]:7/lab" );
   EXPECT_EQ( address.urlOf( 4 ), "http://db2:2479" );
   EXPECT_EQ( EtcdAddress::of( "etcds://db/", {} ).urlOf( 0 ), "https://db:2379" );
   EXPECT_EQ( EtcdAddress::of( "etcds://db/", {} ).prefix, "" );
}

TEST( EtcdAddress, isRefusedWithAClearReason ) {
   EXPECT_EQ( reasonFor( "http://db" ), "the address of the database begins neither with etcd:// nor with etcds://" );
   EXPECT_EQ( reasonFor( "etcd://" ),
              "the address of the database names no host: etcd://host[:port][,host[:port]...][/prefix]" );
   EXPECT_EQ( reasonFor( "etcd://db1,,db2" ),
              "the address of the database names no host: etcd://host[:port][,host[:port]...][/prefix]" );
   EXPECT_EQ( reasonFor( "etcd://db:70000" ), "the address of the database has \"70000\" where a port is expected" );
   EXPECT_EQ( reasonFor( "etcd://db:0" ), "the address of the database has \"0\" where a port is expected" );
   EXPECT_EQ( reasonFor( "etcd://[]:7" ),
              "the address of the database names no host: etcd://host[:port][,host[:port]...][/prefix]" );
   EXPECT_EQ( reasonFor( "etcd://[::1" ), "the address of the database has a \"[\" without its \"]\"" );
   EXPECT_EQ( reasonFor( "etcd://me:secret@db" ),
              "the address of the database has a user in it: that is --database-user NAME, with --database-password "
              "FILE" );
}

TEST( EtcdAddress, takesFilesThatGoTogetherAndCanBeRead ) {
   Folder const folder;
   auto const file = folder.file( "some", "secret\nmore\n" );
   EXPECT_EQ( reasonFor( "etcds://db", { .certificate = file } ),
              "a certificate and its key go together: --database-cert FILE --database-key FILE" );
   EXPECT_EQ( reasonFor( "etcd://db", { .authorities = file } ), "certificates are for etcds://, not for etcd://" );
   EXPECT_EQ( reasonFor( "etcd://db", { .user = "me" } ),
              "a user and its password go together: --database-user NAME --database-password FILE" );
   EXPECT_EQ( reasonFor( "etcds://db", { .authorities = folder / "none" } ), ( folder / "none" ) + ": can't be read" );
   EXPECT_EQ( reasonFor( "etcd://db", { .user = "me", .passwordFile = folder / "none" } ),
              ( folder / "none" ) + ": the password of the database can't be read from its first line" );
   EXPECT_EQ( EtcdAddress::of( "etcd://db", { .user = "me", .passwordFile = file } ).password, "secret" );
}

TEST( EtcdAddress, sharesNoCredentialsWithARedis ) {
   try {
      Live::stateStoreAt( "redis://db", { .user = "me" }, 1 );
      FAIL();
   } catch ( Inspection::InputError const & error ) {
      EXPECT_EQ( std::string( error.what() ),
                 "--database-user and its like are for etcd; the password of a Redis comes from the environment, "
                 "L3SM_REDIS_PASSWORD" );
   }
}

TEST( EtcdMessages, carryAnyBytes ) {
   for ( std::string const text : { "", "f", "fo", "foo", "foob", "fooba", "foobar" } ) {
      EXPECT_EQ( Live::fromBase64( Live::toBase64( text ) ), text );
   }
   EXPECT_EQ( Live::toBase64( "fooba" ), "Zm9vYmE=" );
   EXPECT_EQ( Live::toBase64( std::string( "\0\xff\x7f", 3 ) ), "AP9/" );
   EXPECT_EQ( Live::fromBase64( "AP9/" ), std::string( "\0\xff\x7f", 3 ) );
   EXPECT_EQ( Live::fromBase64( "Zm9v?!" ), "foo" );
}

TEST( EtcdMessages, tellWhatIsNoAnswer ) {
   EXPECT_EQ( Live::EtcdReply::of( "<html>" ).error, "what it answers is no object of JSON" );
   EXPECT_EQ( Live::EtcdReply::of( R"({"error":"etcdserver: no leader","code":14})" ).error, "etcdserver: no leader" );
   EXPECT_EQ( Live::EtcdReply::of( R"({"error":{"grpc_code":14,"message":"etcdserver: no leader"}})" ).error,
              "etcdserver: no leader" );
}

} // namespace
