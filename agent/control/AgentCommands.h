// The commands of a SliceAgent, each group in a file of its own.
//
//    Commands commands;
//    addAgentCommands( commands, { .agent = agent, .ring = ring } );
//
// What answers from chips, state and rows hands over data, in the shapes of the files that `l3sm run` writes: who asks
// has the same answers of it as of files.
//
// Threading: the agent's loop.
#pragma once

#include "agent/RowRing.h"
#include "agent/SliceAgent.h"
#include "agent/control/Commands.h"

namespace Live {

class Auditor;
class EmbeddedDatabase;

// All of them outlive the commands.
struct AgentSubjects {
   SliceAgent & agent;
   RowRing const & ring;
   EmbeddedDatabase * embedded = nullptr; // null: another database is followed
   Auditor * auditor = nullptr;           // null: the chips aren't looked after
   std::string version = {};
   std::string plugin = {};                     // which build of it
   std::function< std::string() > metrics = {}; // none: nothing is counted
   Rex::Seconds begun = 0;                      // when the process was
};

// A list of events, as a scenario has them. CommandError names the argument "events" and the place in it.
std::vector< Inspection::Event > eventsOf( Rex::Value const & list );

// Throws CommandError for a facility or a level that "trace set" refuses.
void checkTrace( std::string const & facility, std::string const & level );

// All groups.
void addAgentCommands( Commands & commands, AgentSubjects const & subjects );

void addLifeCommands( Commands & commands, AgentSubjects const & subjects );   // status, freeze, thaw, metrics, exit
void addStateCommands( Commands & commands, AgentSubjects const & subjects );  // state …
void addTraceCommands( Commands & commands );                                  // trace …
void addChipCommands( Commands & commands, AgentSubjects const & subjects );   // fault …, audit …, repair
void addAnswerCommands( Commands & commands, AgentSubjects const & subjects ); // show, why, plan

} // namespace Live
