// Values that are passed through, for people and for programs.
#pragma once

#include "inspection/PassingValues.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

// Those that go from one value to another by the same functions are told together. `most`: so many of these ways, 0:
// all.
void showWindows( std::ostream & out,
                  std::vector< PassingValue > const & windows,
                  std::size_t most,
                  Style const & style );

Rex::Value windowsValue( std::vector< PassingValue > const & windows );

} // namespace Inspection
