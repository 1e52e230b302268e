// Verdicts on the chips, for people and for programs.
#pragma once

#include "inspection/Verifications.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

void showVerdicts( std::ostream & out, std::vector< Verdict > const & verdicts, Style const & style );
Rex::Value verdictsValue( std::vector< Verdict > const & verdicts );

} // namespace Inspection
