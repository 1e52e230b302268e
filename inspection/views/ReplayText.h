// A replay, for people.
#pragma once

#include "inspection/Replay.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

// `chips`: the file that it was compared with.
void showReplay( std::ostream & out, Replay const & replay, std::string const & chips, Style const & style );

// The remarks about a file, a line each, above an answer.
void showRemarks( std::ostream & out, std::vector< std::string > const & remarks, Style const & style );

} // namespace Inspection
