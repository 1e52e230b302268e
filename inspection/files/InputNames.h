// What messages call a file whose path tells nobody anything: one in memory.
#pragma once

#include <string>

namespace Inspection {

// From now on.
void inputIsCalled( std::string const & path, std::string name );

} // namespace Inspection
