// Hears of every change of a state as it comes, without being an agent.
//
//    StateWatch watch( session, layout, [&]( Transaction const & transaction ) { … }, [&]( std::string const & what ) {
//    … } ); while ( … ) {
//       watch.turn();            // Inspection::InputError where the database is gone, or its state
//    }
//
// Threading: the session's.
#pragma once

#include "agent/database/RedisReader.h"
#include "agent/database/RedisSession.h"

namespace Live {

class StateWatch {
 public:
   // begins: the state is another one from now on, and why.
   StateWatch( RedisSession & session,
               RedisLayout const & layout,
               std::function< void( Transaction const & ) > is,
               std::function< void( std::string const & ) > begins );

   // Waits for something to happen, some seconds at most.
   void turn();

 private:
   void begin();

   RedisSession & session_;
   RedisLayout layout_;
   std::function< void( Transaction const & ) > is_;
   std::function< void( std::string const & ) > begins_;
   std::optional< RedisReader > reader_;
   std::optional< std::string > failed_;
   std::optional< std::string > gap_;
};

} // namespace Live
