// The state in an etcd, as an agent follows it: how it lies there is told in EtcdLayout.h.
//
//    EtcdDatabase database( loop, EtcdAddress::of( "etcd://db1,db2,db3", {} ), 1, "Linecard3" );
//    database.followerIs( &agent );
//    database.snapshot();
//
// All of it goes to one member of the cluster. When that is lost, stands still, or has no leader, everything is off;
// the next call goes to the next one.
//
// Nothing is asked before the agent has the right to serve its slice (EtcdLease.h). Who stands still for longer than it
// lasts has lost it, and takes it again, or is refused.
//
// Threading: the agent's loop. Answers come from the loop, never from within a call.
#pragma once

#include "agent/database/EtcdLease.h"
#include "agent/database/EtcdPublisher.h"
#include "agent/database/EtcdReader.h"
#include "agent/database/EtcdSnapshot.h"

namespace Live {

class EtcdDatabase final : public Database {
 public:
   EtcdDatabase( EventLoop & loop,
                 EtcdAddress const & address,
                 U32 cell,
                 std::string const & slice,
                 U32 leaseSeconds = usualLeaseSeconds );
   ~EtcdDatabase() override;

   std::string name() const override { return address_.name(); }
   void snapshot() override;
   void since( Position const & position ) override;
   void publish( Report const & report ) override;
   void stop() override;

 private:
   void withRight( std::function< void() > what );
   void forgetReader();
   void ends();
   void fails( std::string const & reason );
   void refuses( std::string const & who );
   void holdsNothing( std::string const & reason );

   EventLoop & loop_;
   EtcdAddress address_;
   EtcdLayout layout_;
   EtcdLease lease_;
   EtcdPublisher publisher_;
   std::size_t member_; // that is asked
   std::unique_ptr< EtcdClient > client_;
   bool hasRight_ = false;
   std::function< void() > wanted_; // once we have the right
   std::unique_ptr< EtcdSnapshot > snapshot_;
   std::unique_ptr< EtcdReader > reader_;
   Position read_{}; // where a reader stood,
   U64 quiet_ = 0;   // and up to which revision nothing had come behind it
};

} // namespace Live
