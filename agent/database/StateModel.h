// A state as a database holds it, and as entities: what an event would do to it is checked before it does it.
//
//    StateModel model( snapshot.paths );
//    StateChange const change = model.change( event );      // Rex::ValueError, and nothing has changed
//
// Threading: none.
#pragma once

#include "agent/database/Paths.h"

namespace Live {

struct StateChange {
   std::vector< PathChange > changes;
   std::set< std::string > fresh = {}; // the paths that weren't there
};

class StateModel {
 public:
   // What of the paths leads nowhere, or has a wrong value, is left out.
   explicit StateModel( Paths paths );

   // Throws Rex::ValueError, its place seen from {"path", "attribute", "key", "value"}.
   StateChange change( Inspection::Event const & event );
   Paths const & paths() const { return paths_; }

 private:
   Paths paths_;
   Simulator::StateTree tree_;
};

} // namespace Live
