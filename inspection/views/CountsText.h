// How much was done, and to which FAPs, in words.
#pragma once

#include "inspection/EventRows.h"

namespace Inspection {

// "2 reads, 3 writes (1 with a change), 4 controls, 5 values published, 1 gate closed": what isn't 0.
std::string countsText( RowCounts const & counts );

// "FAP 0", "FAPs 0-3 7"; empty without FAPs.
std::string fapsText( std::set< U16 > const & faps );

} // namespace Inspection
