// What remembers its road, for people and for programs.
#pragma once

#include "inspection/Histories.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

// `all`: every difference, else the first few of each road.
void showHistories( std::ostream & out, Histories const & histories, bool all, Style const & style );
Rex::Value historiesValue( Histories const & histories );

} // namespace Inspection
