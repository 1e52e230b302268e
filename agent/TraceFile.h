// Which facilities an agent traces, in a file that can be read again while it runs: `FACILITY/LEVEL`, parted by commas
// or lines, `*` for every one. A line that begins with # is for people. What the file doesn't name isn't traced.
//
//    TraceFile file( "/etc/l3sm/Linecard3.trace", commands );
//    file.read();                         // InputError, and the levels stay as they were
//
// Threading: the agent's loop.
#pragma once

#include "agent/control/Commands.h"

namespace Live {

class TraceFile {
 public:
   // `commands` has "trace set". An empty path: nothing is ever read.
   TraceFile( std::string path, Commands const & commands ) : path_( std::move( path ) ), commands_( commands ) {}

   void read() const;

 private:
   std::string path_;
   Commands const & commands_;
};

} // namespace Live
