// The database of one agent of a simulated fabric: asks a cluster as EtcdDatabase asks an etcd, in as many questions.
//
//    FabricDatabase database( loop, cluster, number );
//    StateFollower follows it as it follows any other
//
// Transactions that come while the agent is busy wait, and are told together; reports that come while one is under way,
// and for a breath after it, become one; what is published is written in transactions of as many keys as a
// server takes. A path of the state may stand for several of the fabric's, in what it costs.
//
// Threading: the agent's loop.
#pragma once

#include "agent/EventLoop.h"
#include "agent/database/Tether.h"
#include "scale/FabricCluster.h"

namespace Scale {

class FabricDatabase final : public Live::Database, private FabricCluster::Watch {
 public:
   // `weight`: keys of the fabric for a path.
   FabricDatabase( Live::EventLoop & loop, FabricCluster & cluster, std::size_t number, std::size_t weight );
   ~FabricDatabase() override;

   std::string name() const override { return "fabric"; }
   void snapshot() override;
   void since( Live::Position const & position ) override;
   void publish( Live::Report const & report ) override;
   void stop() override;

   // The last revision that a report of the agent has in the database.
   U64 reported() const { return reported_; }

 private:
   void comes( FabricCluster::Told const & transaction ) override;
   void isLost() override;

   // After the wire, on the agent's processor.
   void later( std::function< void() > what );
   void asks( Rex::Seconds cost, std::function< void() > answered );
   void page( std::size_t left, std::shared_ptr< Paths const > const & state, Live::Position const & position );
   void tell();
   void report();
   void published( std::size_t left );
   void renews();

   Live::EventLoop & loop_;
   FabricCluster & cluster_;
   std::size_t member_;
   std::size_t weight_;
   bool hasRight_ = false;
   bool isWatching_ = false;
   bool isWanted_ = false;
   Live::Position told_;
   std::vector< Transaction > page_;
   bool isUnderWay_ = false;
   bool isWaiting_ = false;      // a report
   std::size_t unpublished_ = 0; // keys
   U64 applied_ = 0;
   U64 reported_ = 0;
   Live::EventLoop::Source breath_;
   Live::EventLoop::Source renewal_;
   Live::Tether tether_;
};

} // namespace Scale
