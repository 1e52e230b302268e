// How one agent of a simulated fabric reaches its member of the cluster: questions and answers, which take the wire's
// time, the member's, and come when the agent has nothing older to do.
//
//    FabricConnection connection( loop, cluster, member, [] { … } );      // called when the member is lost
//    connection.asks( cost, [] { … } );
//    connection.commits( cost, [] { … } );                                 // of a transaction
//
// What was asked is off when it goes, or is lost.
//
// Threading: the agent's loop.
#pragma once

#include "agent/EventLoop.h"
#include "agent/database/Tether.h"
#include "scale/FabricCluster.h"

namespace Scale {

class FabricConnection final : private FabricCluster::Client {
 public:
   using Answered = std::function< void() >;

   FabricConnection( Live::EventLoop & loop, FabricCluster & cluster, std::size_t member, Answered lost );
   ~FabricConnection();
   FabricConnection( FabricConnection const & ) = delete;
   FabricConnection & operator=( FabricConnection const & ) = delete;

   FabricCluster & cluster() { return cluster_; }
   std::size_t member() const { return member_; }
   void asks( Rex::Seconds cost, Answered answered );
   void commits( Rex::Seconds cost, Answered answered );
   // What the member has sent by itself.
   void comes( Answered what );

 private:
   void isLost() override;
   void onTheWire( Answered what );

   Live::EventLoop & loop_;
   FabricCluster & cluster_;
   std::size_t member_;
   Answered lost_;
   Live::Tether tether_;
};

} // namespace Scale
