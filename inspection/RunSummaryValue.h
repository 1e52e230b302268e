// The summary of a run as data: what `l3sm run --json` tells.
#pragma once

#include "inspection/RunSummary.h"
#include "inspection/ServedInterfaces.h"

namespace Inspection {

// `events`: those to tell of, beside the start.
Rex::Value runSummaryValue( Scenario const & scenario, RunSummary const & summary, Interfaces const & interfaces );

// What one event did, by FAP and function.
Rex::Value eventValue( EventRows const & rows );
Rex::Value countsValue( RowCounts const & counts );
Rex::Value endingValue( Simulator::Ending const & ending );

} // namespace Inspection
