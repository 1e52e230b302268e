// Tells the service manager, where there is one, how the agent is: ready when it has reconciled for the first time, and
// its phase as the status. And has it keep files, open, from one agent to the next:
//
//    Descriptor file = ServiceManager::keptFile( "chips" );       // of the agent before, if it left one
//    ServiceManager::keeps( "chips", chips.file() );              // for the one after
//
// Threading: the agent's loop.
#pragma once

#include "agent/SliceAgent.h"
#include "simulator/Descriptor.h"

namespace Live {

using Simulator::Descriptor;

class ServiceManager final : public AgentOnlooker {
 public:
   void phaseIs( Phase phase, std::string const & reason ) override;
   void stops();

   // What it has handed over at the start under the name, for whoever asks first; else none.
   static Descriptor keptFile( std::string const & name );
   // In place of what it keeps under the name. It keeps what lies in the file as long as it restarts the agent, however
   // that one ends. False: there is no such manager.
   static bool keeps( std::string const & name, int file );
   static void keepsNoMore( std::string const & name );

 private:
   bool isReady_ = false;
};

} // namespace Live
