// The database of one agent of a simulated fabric: asks a cluster as EtcdDatabase asks an etcd, by the same rules
// (CentralDatabase.h) and in as many questions.
//
//    FabricDatabase database( loop, cluster, number, weight );      // a StateFollower follows it as any other
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/CentralDatabase.h"
#include "scale/FabricPublisher.h"
#include "scale/FabricReading.h"

namespace Scale {

class FabricDatabase final : public Live::CentralDatabase< FabricConnection, FabricSnapshot, FabricReader > {
 public:
   // `weight`: keys of the fabric for a path.
   FabricDatabase( Live::EventLoop & loop, FabricCluster & cluster, std::size_t number, std::size_t weight )
      : loop_( loop ), cluster_( cluster ), member_( number % cluster.costs().assumed.members ), weight_( weight ),
        publisher_( loop, weight ) {}
   ~FabricDatabase() override { ends(); }

   std::string name() const override { return "fabric"; }
   void publish( Live::Report const & report ) override;
   U64 reported() const { return publisher_.reported(); }

 private:
   std::unique_ptr< FabricConnection > newConnection() override;
   void takesRight() override;
   void givesRightUp() override {}
   std::unique_ptr< FabricSnapshot > newSnapshot( Live::SnapshotAnswers answers ) override;
   std::unique_ptr< FabricReader > newReader( Live::Position const & position, Live::ReaderAnswers answers ) override;
   void rests() override;

   Live::EventLoop & loop_;
   FabricCluster & cluster_;
   std::size_t member_; // that is asked
   std::size_t weight_;
   FabricPublisher publisher_;
   Live::EventLoop::Source renewal_;
};

} // namespace Scale
