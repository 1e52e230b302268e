// Tells the service manager, where there is one, how the agent is: ready when it has reconciled for the first time, and
// its phase as the status.
#pragma once

#include "agent/SliceAgent.h"

namespace Live {

class ServiceManager final : public AgentOnlooker {
 public:
   void phaseIs( Phase phase, std::string const & reason ) override;
   void stops();

 private:
   bool isReady_ = false;
};

} // namespace Live
