// Since when a field has a value, for people and for programs.
#pragma once

#include "inspection/Bisection.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

// `all`: every event and place, else the first few.
void showBisection( std::ostream & out, Bisection const & bisection, bool all, Style const & style );
Rex::Value bisectionValue( Bisection const & bisection );

} // namespace Inspection
