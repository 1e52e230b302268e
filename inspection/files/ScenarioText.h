// A scenario as text that people go on writing: its parts in the order in which they are read, a line for each FAP,
// path and event.
//
//    out << scenarioText( value );
#pragma once

#include "rex/Value.h"

namespace Inspection {

std::string scenarioText( Rex::Value const & scenario );
// A part of one, as an event, on one line.
std::string scenarioLine( Rex::Value const & part );

} // namespace Inspection
