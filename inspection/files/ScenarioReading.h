// The parts of a scenario out of their values. Each fills in what fits before it throws a Rex::ValueError for the rest,
// so that what follows can be looked at nevertheless.
#pragma once

#include "inspection/files/Scenario.h"

namespace Inspection {

// Everything but the events, which stay in the value. The state is taken out of it.
void readParts( Rex::Value & value, Scenario & scenario );
void readEvent( Rex::Value const & value, Event & event );
// Of a list, numbered from 1; all or none.
std::vector< Event > eventsIn( Rex::Value const & list );

} // namespace Inspection
