// Follows a Redis as an agent does.
//
//    RedisFollower follower( server );
#pragma once

#include "agent/DatabaseFollower.h"
#include "agent/RedisServer.h"

class RedisFollower : public DatabaseFollower {
 public:
   explicit RedisFollower( RedisServer const & server, std::string const & slice = "Linecard3" )
      : DatabaseFollower( server.url(), slice ) {}
};
