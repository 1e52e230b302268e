// What the platform stands in for: context numbers, microcode action words, well-known numbers, boot images.
#pragma once

#include <ostream>

namespace Inspection {

void showConstants( std::ostream & out );
// All of it, for programs.
void writeConstants( std::ostream & out );

} // namespace Inspection
