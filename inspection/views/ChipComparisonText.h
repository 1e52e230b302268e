// A comparison of chips, for people and for programs.
#pragma once

#include "inspection/ChipComparison.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

// `all`: every row of tables that differ, else the first few.
void showComparison( std::ostream & out, ChipComparison const & comparison, bool all, Style const & style );

// `withToggles`: whether toggles were flipped.
Rex::Value comparisonValue( ChipComparison const & comparison, bool withToggles );

} // namespace Inspection
