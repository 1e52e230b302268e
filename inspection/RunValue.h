// A run as data: what `l3sm run --json` tells, in parts that the report's page has too.
#pragma once

#include "inspection/KeptRows.h"
#include "inspection/files/Scenario.h"

namespace Inspection {

// The switch, the toggles that were read, the operations of each event by FAP and function, and the closed gates.
Rex::Value runValue( Scenario const & scenario, Simulator::SimulatedSwitch const & sw, KeptRows const & rows );

Rex::Value switchValue( Simulator::SwitchDescription const & description );
Rex::Value togglesValue();
// Appends the row, if it is a gate.
void addGate( Rex::Value::List & list, Simulator::Row const & row );

} // namespace Inspection
