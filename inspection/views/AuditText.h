// What an audit of the chips has found, for people and for programs.
#pragma once

#include "inspection/ChipsAudit.h"

#include <ostream>

namespace Inspection {

// `most`: places that are told one by one; 0: all.
void showAudit( std::ostream & out, ChipsAudit const & audit, std::size_t most );
Rex::Value auditValue( ChipsAudit const & audit );

} // namespace Inspection
