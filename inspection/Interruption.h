// Somebody wants the program to end: SIGINT or SIGTERM. The first is noted, for a loop to end in its own time; the
// second ends the process at once.
//
//    Interruption const interruption;
//    while ( … && !interruption.signal() ) { … }
//    return interruption.status( 0 );      // 130, 143
//
// Threading: one at a time in a process.
#pragma once

#include <csignal>

namespace Inspection {

class Interruption {
 public:
   Interruption();
   ~Interruption();
   Interruption( Interruption const & ) = delete;
   Interruption & operator=( Interruption const & ) = delete;

   // Which came; 0: none.
   int signal() const;
   // As shells tell it, or what it is without an interruption.
   int status( int otherwise ) const { return signal() ? 128 + signal() : otherwise; }

 private:
   struct sigaction interrupt_ {};
   struct sigaction terminate_ {};
};

} // namespace Inspection
