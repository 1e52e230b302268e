// What one agent of a simulated fabric reads of its cluster: the whole state, in pages, and what comes behind it.
//
//    FabricSnapshot snapshot( connection, weight, { … } );
//    FabricReader reader( loop, connection, position, { … } );
//
// A path of the state may stand for several of the fabric's, in what it costs: its weight.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/StateReader.h"
#include "scale/FabricConnection.h"

namespace Scale {

class FabricSnapshot {
 public:
   FabricSnapshot( FabricConnection & connection, std::size_t weight, Live::SnapshotAnswers answers );

 private:
   void reads( std::size_t left );

   FabricConnection & connection_;
   Live::SnapshotAnswers answers_;
   std::shared_ptr< Paths const > state_; // as it stood
   Live::Position position_;
   Live::Tether tether_;
};

class FabricReader final : public Live::StateReader, private FabricCluster::Watch {
 public:
   FabricReader( Live::EventLoop & loop,
                 FabricConnection & connection,
                 Live::Position const & position,
                 Answers answers );
   ~FabricReader() override;

 private:
   void readsOn() override {}
   void comes( FabricCluster::Told const & transaction ) override;

   FabricConnection & connection_;
};

} // namespace Scale
