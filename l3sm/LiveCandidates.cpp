#include "l3sm/LiveCandidates.h"

#include "agent/control/ControlSocket.h"
#include "inspection/StatePaths.h"

namespace Cli {

using namespace Inspection;

using Before = std::vector< std::string >;

Candidates stateActions( std::string const &, Before const & ) {
   return { .list = { { "get", "what the database holds" },
                      { "set", "an attribute, or with --key an entry of it" },
                      { "delete", "an entity, or with --key an entry" },
                      { "load", "a new life of the state, from a file" },
                      { "apply", "the events of a file, one transaction each" },
                      { "watch", "each change as it comes" },
                      { "wait", "until the agents have applied what was written" } } };
}

// Behind an action: a file, a path, or an attribute of the path before.
Candidates ofStateAction( std::string const & typed, Before const & before ) {
   if ( !before.empty() && ( before[0] == "load" || before[0] == "apply" ) ) {
      return { .files = true };
   }
   if ( before.size() < 2 ) {
      return candidatesFor( "PATH", typed, before );
   }
   std::vector< Candidate > all;
   for ( StatePath const & path : statePaths() ) {
      if ( before.size() == 2 && path.isOf( before[1] ) ) {
         for ( StateAttribute const & attribute : path.attributes ) {
            all.push_back( { attribute.attribute->name, "attribute" } );
         }
      }
   }
   return { .list = all };
}

// What an agent takes first, and behind it what that takes.
Candidates ofAgentCommand( std::string const & typed, Before const & before ) {
   if ( !before.empty() ) {
      bool const isState = before[0] == "state";
      bool const isOfFile = isState && before.size() > 1 && before[1] == "apply";
      bool const isBegun = before.size() == 1;
      return isOfFile                           ? Candidates{ .files = true }
             : isState && isBegun               ? Candidates{ .list = { { "set" }, { "delete" }, { "apply" } } }
             : isState                          ? candidatesFor( "PATH", typed, before )
             : before[0] == "trace" && isBegun  ? Candidates{ .list = { { "list" }, { "set" }, { "ring" } } }
             : before[0] == "record" && isBegun ? Candidates{ .list = { { "start" }, { "mark" }, { "stop" } } }
             : before[0] == "fault" && isBegun  ? Candidates{ .list = { { "add" }, { "list" }, { "clear" } } }
             : before[0] == "audit" && isBegun  ? Candidates{ .list = { { "run" }, { "status" } } }
             : before[0] == "trace"             ? candidatesFor( "FACILITY", typed, before )
                                                : Candidates{};
   }
   return { .list = { { "list", "every command with its arguments" },
                      { "status", "how the agent is doing" },
                      { "show", "what is on the chips" },
                      { "why", "which operation wrote it" },
                      { "diff", "the chips or the state against a file" },
                      { "plan", "what events would change" },
                      { "state", "what stands at a path; set, delete, apply" },
                      { "trace", "list, set: the levels of the facilities; ring: the last steps" },
                      { "record", "start, mark, stop: what the agent is told" },
                      { "fault", "add, list, clear: chips that fail" },
                      { "audit", "run, status: the chips against what was written" },
                      { "repair", "try again what was given up" },
                      { "freeze", "act on nothing" },
                      { "thaw", "act again" },
                      { "metrics", "what it has counted" },
                      { "exit", "end the agent" } } };
}

Candidates slices( std::string const &, Before const & ) {
   std::vector< Candidate > all;
   for ( auto const & slice : Live::slicesThere() ) {
      all.push_back( { slice, "agent" } );
   }
   return { .list = all };
}

} // namespace Cli
