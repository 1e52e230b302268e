// Two builds of the plug-in side by side, for people and for programs.
#pragma once

#include "inspection/PluginComparison.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

// Runs that differ alike are told together. `all`: every one of these ways, else the first few.
void showPluginComparison( std::ostream & out, PluginComparison const & comparison, bool all, Style const & style );
Rex::Value pluginComparisonValue( PluginComparison const & comparison );

} // namespace Inspection
