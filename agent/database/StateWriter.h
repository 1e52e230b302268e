// Writes a state in a central database as everybody should: a transaction whole, and nothing that an agent would
// refuse.
//
//    StateWriter writer( store );
//    writer.write( { .path = "evpn/status", … } );                     // one transaction
//    writer.writeEach( events, "more.json" );
//
// All of it throws Inspection::InputError. Where it does, nothing was written; writeEach alone says how many of its
// events were, where others changed the state under it so that the next one doesn't fit any more.
//
// Others may write at the same time: who comes second looks again.
//
// Threading: none.
#pragma once

#include "agent/database/StateStore.h"

namespace Live {

class StateWriter {
 public:
   explicit StateWriter( StateStore & store ) : store_( store ) {}

   // Where the transaction stands.
   std::string write( Inspection::Event const & event );
   // A transaction for each; `file` for messages.
   void writeEach( std::vector< Inspection::Event > const & events, std::string const & file );

 private:
   void bringUpToDate( std::optional< StateModel > & model, Position & position, StateStore::Mark const & mark );

   StateStore & store_;
};

} // namespace Live
