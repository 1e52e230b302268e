// Where a run that did not come to its end stopped, for refusals of what its journal doesn't know: it may have come
// later.
//
//    checkEvent( "run.jsonl", 9, ending );
//    // InputError "run.jsonl: there is no event 9; the last is 3; the journal is cut in or after event 3"
#pragma once

#include "simulator/Row.h"

#include <string>

namespace Inspection {

// "; the run was interrupted after event 3"; nothing of one that is complete.
std::string whereItEnded( Simulator::Ending const & ending );

// Throws unless the run that `file` tells of has this event.
void checkEvent( std::string const & file, U32 event, Simulator::Ending const & ending );

} // namespace Inspection
