// The right to serve a slice: the agent's own key, which hangs on a lease of the cluster's. One agent at a time has it,
// renews the lease, and where it is dead, or stands still for longer than the lease lasts, the key goes.
//
//    EtcdLease lease( loop, layout, "Linecard3", 10 );
//    lease.take( client, { .ours = …, .others = …, .fails = … } );
//
// The key names the process, so that one that comes after a killed one on the same machine needn't wait.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/EtcdClient.h"
#include "agent/database/EtcdLayout.h"
#include "agent/database/Tether.h"

namespace Live {

constexpr U32 usualLeaseSeconds = 10;
constexpr char const * holderField = "holder";

class EtcdLease {
 public:
   struct Answers {
      std::function< void() > ours;
      std::function< void( std::string const & who ) > others;
      // It was ours and has run out, or can't be had.
      std::function< void( std::string const & why ) > fails;
   };

   EtcdLease( EventLoop & loop, EtcdLayout const & layout, std::string slice, U32 seconds );

   // Takes it, or takes it up again through another member; and renews it from then on, through this one.
   void take( EtcdClient & client, Answers answers );
   // No answer comes any more, and the client is not used.
   void rests();
   // Gives it up, where it is ours: nobody needs to wait, and nobody expects an agent here.
   void release( EtcdClient & client );

   U64 id() const { return id_; }
   // What stands in the agent's key: whose it is.
   std::string const & token() const { return token_; }

 private:
   void grant();
   void write( U64 insteadOf );
   void isTaken( EtcdReply const & reply );
   void refuse( std::string const & token, U64 id );
   void has();
   void renew();

   EventLoop & loop_;
   std::string key_;
   std::string agents_;
   std::string slice_;
   U32 seconds_;
   std::string token_;
   EtcdClient * client_ = nullptr;
   Answers answers_;
   U64 id_ = 0;
   EventLoop::Source renewal_;
   Tether tether_;
};

} // namespace Live
