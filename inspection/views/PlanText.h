// A plan, for people and for programs.
#pragma once

#include "inspection/Plan.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

struct PlanTextOptions {
   bool stat = false; // tables alone
   bool all = false;  // every place, else the first few of each kind
};

void showPlan( std::ostream & out, Plan const & plan, PlanTextOptions const & options, Style const & style );
Rex::Value planValue( Plan const & plan );

} // namespace Inspection
