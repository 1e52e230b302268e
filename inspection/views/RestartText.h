// A second start, for people and for programs.
#pragma once

#include "inspection/Restart.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

// `all`: every entry, else the first few.
void showRestart( std::ostream & out, Restart const & restart, bool all, Style const & style );
Rex::Value restartValue( Restart const & restart );

} // namespace Inspection
