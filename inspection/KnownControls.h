// The driver's numbered controls that the plug-in sets, and the function that sets each.
//
// The list holds what the examples show: ./dev golden writes it, and a test compares.
#pragma once

#include "corvo/Types.h"

#include <span>
#include <string_view>

namespace Inspection {

struct KnownControl {
   U32 number;
   std::string_view function;
};

// By number and function.
std::span< KnownControl const > knownControls();

} // namespace Inspection
