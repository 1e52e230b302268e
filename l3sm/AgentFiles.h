// A running agent, as verbs ask it: what it hands over stands in a file of memory that the verb reads like any other.
//
//    AgentOptions agent;
//    agent.declare( verb );                                          // --agent, --timeout
//    if ( agent.isGiven() ) { options.file = agent.chips( filter ); }
//
// An agent is named by its slice, or by the path of its socket. Messages call the file by the agent's name. InputError
// where it can't be asked, or refuses.
//
// Threading: none.
#pragma once

#include "agent/control/ControlClient.h"
#include "inspection/ContentsFilter.h"
#include "l3sm/VerbOptions.h"

namespace Cli {

struct AgentOptions {
   std::string name;
   std::optional< U32 > timeout; // seconds

   void declare( VerbOptions & verb );
   bool isGiven() const { return !name.empty(); }

   // Paths of files.
   std::string chips( Inspection::ContentsFilter const & filter ) const;
   std::string state() const;
   std::string journal() const;
   // The first event that it still has, where it has forgotten some.
   static std::optional< U32 > reachesBackTo( std::string const & journal );

   // Calls a command.
   Live::ControlAnswer call( std::string const & command, Rex::Value const & params = {} ) const;
};

// The one agent there is, where none is named. InputError.
std::string theOnlyAgent();
// The path of its socket.
std::string socketOf( std::string const & agent );

// The events of a scenario's file, or of a list of them, as an agent takes them. InputError.
Rex::Value eventsIn( std::string const & file );

// "FILE is required": of a verb whose first place an agent can take.
[[noreturn]] void missing( std::string const & verb, std::string const & place );

} // namespace Cli
