// The JSON Schema of a scenario (draft 7), made from the declarations of the state, the chip tables and the toggles: it
// takes every scenario that the program takes, and refuses what can be refused without playing it.
//
//    toJson( scenarioSchema(), 4 );
#pragma once

#include "rex/Value.h"

namespace Inspection {

Rex::Value scenarioSchema();

} // namespace Inspection
