// Where a Redis is, as people write it.
//
//    RedisAddress const address = RedisAddress::of( "redis+unix:///run/redis/redis.sock?/2" );
//    address.path;         // "/run/redis/redis.sock"
//    address.number;       // 2
//
//    redis://[user@]host[:port][/n]        redis+unix://[user@]/path.sock[?/n]
//
// A password stands in no address, where others could read it: it comes from the environment, L3SM_REDIS_PASSWORD, and
// is told in no message.
//
// Threading: plain data.
#pragma once

#include "corvo/Types.h"

#include <string>

namespace Live {

constexpr char const * redisPasswordVariable = "L3SM_REDIS_PASSWORD";

struct RedisAddress {
   std::string user = {};
   std::string host = {}; // empty: a Unix socket
   U16 port = 6379;
   std::string path = {}; // of the socket
   U32 number = 0;        // of the database in the server
   std::string password = {};

   // Throws Inspection::InputError.
   static RedisAddress of( std::string const & url );
   // For people, without user and password.
   std::string name() const;
};

} // namespace Live
