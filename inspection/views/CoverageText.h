// What runs have covered, for people, for programs and as a page.
#pragma once

#include "inspection/Coverage.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

// `all`: every table, else those alone that leave something out.
void showCoverage( std::ostream & out, Coverage const & coverage, bool all, Style const & style );
Rex::Value coverageValue( Coverage const & coverage );
// A page of its own, which needs no network.
std::string coveragePage( Coverage const & coverage );

} // namespace Inspection
