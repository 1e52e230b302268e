// A run as data: what `l3sm run --json` tells, in parts that the report's page has too.
#pragma once

#include "inspection/files/Scenario.h"

namespace Inspection {

// The switch, the toggles that were read, the operations of each event by FAP and function, and the closed gates.
Rex::Value runValue( Scenario const & scenario, Simulator::SimulatedSwitch const & sw );

Rex::Value switchValue( Simulator::SwitchDescription const & description );
Rex::Value togglesValue();
// Appends the gates that an operation of the journal carries.
void addGates( Rex::Value::List & list, Simulator::Journal::Row const & row );

} // namespace Inspection
