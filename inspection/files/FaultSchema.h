// The schema of a fault among a scenario's events: {"kind": "flip:7", "table": "IppdFerTrapCfg", …}.
//
// Threading: none.
#pragma once

#include "rex/Value.h"

namespace Inspection {

Rex::Value faultSchema();

} // namespace Inspection
