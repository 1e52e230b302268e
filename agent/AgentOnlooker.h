// Whoever looks on while an agent follows its database: recording, metrics, control, the service manager.
//
//    struct Log : AgentOnlooker {
//       void phaseIs( Phase phase, std::string const & reason ) override { … }
//    } log;
//    agent.onlookerAdd( log );
//
// Threading: the agent's loop.
#pragma once

#include "agent/Phase.h"
#include "agent/audit/Drift.h"
#include "agent/database/Database.h"

namespace Live {

// Hears what happens to an agent. Called when it has happened.
class AgentOnlooker {
 public:
   virtual ~AgentOnlooker() = default;
   virtual void phaseIs( [[maybe_unused]] Phase phase, [[maybe_unused]] std::string const & reason ) {}
   // A whole state has come and is on the chips: `held` is all of it.
   virtual void snapshotPlayed( [[maybe_unused]] Position const & position, [[maybe_unused]] Paths const & held ) {}
   // One event is over, which took so long. Of a resync: all differences are one.
   virtual void transactionPlayed( [[maybe_unused]] Transaction const & transaction,
                                   [[maybe_unused]] Rex::Seconds duration ) {}
   // What the start would change on chips that an agent had before; it is not on them yet.
   virtual void startIsStaged( [[maybe_unused]] std::vector< Drift > const & drifts ) {}
   // Why a whole state is taken again: a word or two, from a small set.
   virtual void resyncs( [[maybe_unused]] std::string const & reason ) {}
};

} // namespace Live
