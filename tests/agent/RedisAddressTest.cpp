// Where a Redis is, as people write it.
#include "agent/database/RedisAddress.h"
#include "inspection/files/InputError.h"

namespace {

using Live::RedisAddress;

TEST( RedisAddress, isAHostOrASocket ) {
   auto address = RedisAddress::of( "redis://me@db.example:7000/3" );
   EXPECT_EQ( address.user, "me" );
   EXPECT_EQ( address.host, "db.example" );
   EXPECT_EQ( address.port, 7000 );
   EXPECT_EQ( address.number, 3 );
   EXPECT_EQ( address.name(), "redis://db.example:7000/3" );

   address = RedisAddress::of( "redis://[::1]" );
   EXPECT_EQ( address.host, "::1" );
   EXPECT_EQ( address.name(), "redis://[::1]:6379" );
   EXPECT_EQ( RedisAddress::of( "redis://db/" ).name(), "redis://db:6379" );

   address = RedisAddress::of( "redis+unix:///run/redis.sock?/2" );
   EXPECT_EQ( address.path, "/run/redis.sock" );
   EXPECT_EQ( address.number, 2 );
   EXPECT_EQ( address.name(), "redis+unix:///run/redis.sock?/2" );
}

TEST( RedisAddress, isRefusedWithAClearReason ) {
   auto const reasonFor = []( std::string const & url ) -> std::string {
      try {
         RedisAddress::of( url );
      } catch ( Inspection::InputError const & error ) {
         return error.what();
      }
      return "";
   };
   EXPECT_EQ( reasonFor( "http://db" ),
              "the address of the database begins neither with redis:// nor with redis+unix://" );
   EXPECT_EQ( reasonFor( "redis://" ), "the address of the database names no host: redis://host[:port][/n]" );
   EXPECT_EQ( reasonFor( "redis://db:70000" ), "the address of the database has \"70000\" where a port is expected" );
   EXPECT_EQ( reasonFor( "redis://db/x" ),
              "the address of the database has \"x\" where the number of a database is expected" );
   EXPECT_EQ( reasonFor( "redis+unix://path" ),
              "the address of the database has no path of a socket: redis+unix:///path.sock" );
   EXPECT_EQ( reasonFor( "redis://db:0" ), "the address of the database names no host: redis://host[:port][/n]" );
   EXPECT_EQ( reasonFor( "redis://[::1]x" ), "the address of the database has \"x\" behind the host" );
   EXPECT_EQ( reasonFor( "redis://[::1" ), "the address of the database has a \"[\" without its \"]\"" );
}

TEST( RedisAddress, holdsNoPassword ) {
   try {
      RedisAddress::of( "redis://me:secret@db" );
      FAIL();
   } catch ( Inspection::InputError const & error ) {
      EXPECT_EQ( std::string( error.what() ),
                 "the address of the database has a password in it: put it into the environment, L3SM_REDIS_PASSWORD" );
   }
   ::setenv( "L3SM_REDIS_PASSWORD", "secret", 1 );
   auto const address = RedisAddress::of( "redis://me@db" );
   EXPECT_EQ( address.password, "secret" );
   EXPECT_EQ( address.name(), "redis://db:6379" );
   ::unsetenv( "L3SM_REDIS_PASSWORD" );
}

} // namespace
