// The right to serve a slice: one agent at a time has it, for some seconds, and renews it.
//
//    RedisLease lease( layout, "Linecard3" );
//    lease.take( connection, [&] { … }, [&]( std::string const & who ) { … } );     // ours, or another's
//
// What stands in it names the process, so that one that comes after a killed one on the same machine needn't wait.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/LeaseHolder.h"
#include "agent/database/RedisConnection.h"
#include "agent/database/RedisLayout.h"

namespace Live {

class RedisLease {
 public:
   RedisLease( RedisLayout const & layout, std::string const & slice );

   // Takes it, or renews it. One of the two is called, unless the connection is lost.
   void take( RedisConnection & connection,
              std::function< void() > const & ours,
              std::function< void( std::string const & who ) > const & others );
   // Gives it up, where it is ours: nobody needs to wait, and nobody expects an agent here.
   void release( RedisConnection & connection );

 private:
   void takeFrom( RedisConnection & connection,
                  std::string const & dead,
                  std::function< void() > const & ours,
                  std::function< void( std::string const & who ) > const & others );

   std::string key_;
   std::string agents_;
   std::string slice_;
   std::string token_;
};

} // namespace Live
