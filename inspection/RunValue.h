// Parts of a run as data, which its summary and its page both have.
#pragma once

#include "simulator/Row.h"
#include "simulator/SimulatedSwitch.h"

namespace Inspection {

Rex::Value switchValue( Simulator::SwitchDescription const & description );
Rex::Value togglesValue();
// Appends the row, if it is a gate.
void addGate( Rex::Value::List & list, Simulator::Row const & row );

} // namespace Inspection
