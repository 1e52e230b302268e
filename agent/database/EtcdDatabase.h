// The state in an etcd, as an agent follows it: how it lies there is told in EtcdLayout.h.
//
//    EtcdDatabase database( loop, EtcdAddress::of( "etcd://db1,db2,db3", {} ), 1, "Linecard3" );
//    database.followerIs( &agent );
//    database.snapshot();
//
// All of it goes to one member of the cluster. When that is lost, stands still, or has no leader, everything is off;
// the next call goes to the next one.
//
// Who stands still for longer than the right to serve its slice lasts (EtcdLease.h) has lost it, and takes it again, or
// is refused.
//
// Threading: the agent's loop. Answers come from the loop, never from within a call.
#pragma once

#include "agent/database/CentralDatabase.h"
#include "agent/database/EtcdLease.h"
#include "agent/database/EtcdPublisher.h"
#include "agent/database/EtcdReader.h"
#include "agent/database/EtcdSnapshot.h"

namespace Live {

class EtcdDatabase final : public CentralDatabase< EtcdClient, EtcdSnapshot, EtcdReader > {
 public:
   EtcdDatabase( EventLoop & loop,
                 EtcdAddress const & address,
                 U32 cell,
                 std::string const & slice,
                 U32 leaseSeconds = usualLeaseSeconds );
   ~EtcdDatabase() override;

   std::string name() const override { return address_.name(); }
   void publish( Report const & report ) override;

 private:
   std::unique_ptr< EtcdClient > newConnection() override;
   void takesRight() override;
   void givesRightUp() override;
   std::unique_ptr< EtcdSnapshot > newSnapshot( SnapshotAnswers answers ) override;
   std::unique_ptr< EtcdReader > newReader( Position const & position, ReaderAnswers answers ) override;
   void rests() override;
   void fails( std::string const & reason ) override;

   EventLoop & loop_;
   EtcdAddress address_;
   EtcdLayout layout_;
   EtcdLease lease_;
   EtcdPublisher publisher_;
   std::size_t member_; // that is asked
   Position read_{};    // where a reader stood,
   U64 quiet_ = 0;      // and up to which revision nothing had come behind it
};

} // namespace Live
