// Writes a state in a Redis as everybody should: hashes, set of paths and log in one MULTI, and nothing that an agent
// would refuse.
//
//    StateWriter writer( address, 1 );
//    writer.load( stateOfFile( "scenario.json" ) );                    // a new life of the state
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

#include "agent/database/RedisSession.h"
#include "agent/database/StateModel.h"

namespace Live {

class StateWriter {
 public:
   StateWriter( RedisAddress const & address, U32 cell ) : layout_( cell ), session_( address ) {}

   // The entry of the log.
   std::string write( Inspection::Event const & event );
   // A transaction for each; `file` for messages.
   void writeEach( std::vector< Inspection::Event > const & events, std::string const & file );
   // The new epoch.
   std::string load( Paths const & paths );

   RedisLayout const & layout() const { return layout_; }
   RedisSession & session() { return session_; }
   Snapshot snapshot() { return session_.snapshot( layout_ ); }

 private:
   // What stood there when it was begun to be watched.
   struct Watched {
      std::string epoch;
      std::string last;
   };

   // Asks; `into` is filled when it is answered.
   void watch( Watched & into );
   Watched watched();
   Paths pathsAbout( std::string const & path );
   // The entry; empty where somebody else was quicker. Asks `behind` behind it, in the same breath.
   std::string
   executed( StateChange const & change, Inspection::Event const & event, std::string const & epoch, Watched * behind );
   void ask( StateChange const & change );
   void askLog( std::string const & changes, std::string const & epoch, char const * approximately, char const * most );
   void bringUpToDate( std::optional< StateModel > & model, Position & position );

   RedisLayout layout_;
   RedisSession session_;
};

} // namespace Live
