// What the plug-in logs during a run, on standard error: each message once, with the event that raised it first, and at
// the end how often it came.
//
//    RunLog log( [&] { return sw.journal().event(); } );
//    …                // event 17: DACE_SOMETHING: Something is not supported. …
//    log.end();       // DACE_SOMETHING: 6 times more, the last in event 9120
//
// Threading: as Rex::log.
#pragma once

#include "rex/Log.h"

#include <functional>
#include <map>
#include <string>

namespace Cli {

class RunLog {
 public:
   explicit RunLog( std::function< U32() > event );
   RunLog( RunLog const & ) = delete;
   RunLog & operator=( RunLog const & ) = delete;
   ~RunLog();

   void end() const;

 private:
   struct Repeated {
      std::size_t times = 0; // beyond the first
      U32 lastEvent = 0;
   };
   void raised( Rex::LogEntry const & entry );

   std::function< U32() > event_;
   std::map< std::string, Repeated > byCode_;
};

} // namespace Cli
