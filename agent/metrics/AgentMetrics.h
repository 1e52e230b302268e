// Counts what happens to an agent beside what its chips are told.
//
//    Metrics metrics;
//    AgentMetrics counts( agent, metrics );
//    agent.onlookerAdd( counts );
//    agent.sw().journal().readerAdd( metrics );
//
// Threading: the agent's loop.
#pragma once

#include "agent/SliceAgent.h"
#include "agent/metrics/Metrics.h"

namespace Live {

class AgentMetrics final : public AgentOnlooker {
 public:
   AgentMetrics( SliceAgent const & agent, Metrics & metrics ) : agent_( agent ), metrics_( metrics ) {}

   void phaseIs( Phase phase, std::string const & reason ) override;
   void snapshotPlayed( Position const & position, Paths const & held ) override;
   void transactionPlayed( Transaction const & transaction, Rex::Seconds duration ) override;
   void resyncs( std::string const & reason ) override;

 private:
   SliceAgent const & agent_;
   Metrics & metrics_;
   bool isStarted_ = false; // it was, when it was last looked at
};

} // namespace Live
