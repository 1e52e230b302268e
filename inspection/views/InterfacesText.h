// The interfaces of a switch, for people: the state of all in a few lines, or each one with its addresses.
#pragma once

#include "inspection/ServedInterfaces.h"
#include "inspection/views/Lines.h"

namespace Inspection {

void writeInterfaces( Lines & lines, Interfaces const & interfaces );
void writeEachInterface( Lines & lines, Interfaces const & interfaces );

} // namespace Inspection
