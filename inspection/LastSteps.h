// The last steps of this process, from the ring buffer of the traces, which holds them without any level being on.
//
//    for ( std::string const & line : lastSteps() ) { … }      // "DaceFapNiL3Sm/8 handleInitialized: slot:0 …"
//
// Threading: that of whoever traces.
#pragma once

#include "rex/Trace.h"

#include <string>
#include <vector>

namespace Inspection {

// A line each, as traces are written, the oldest first; the last `most` of them. A record of the ring buffer alone has
// "ring" for its facility.
std::vector< std::string > lastSteps( std::size_t most = Rex::RingTrace::capacity );

// What a process that fails says of them: how many there are, and the last 20. None where there are none.
std::vector< std::string > lastStepsBeforeFailure();

} // namespace Inspection
