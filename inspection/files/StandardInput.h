// What somebody has read of standard input to see what it is: whoever reads it next begins with that.
#pragma once

#include <string>

namespace Inspection {

std::string & readAheadOfStandardInput();

} // namespace Inspection
