// The summary of a run, for people, on about a screen, however long the run was: the switch, the start in a few lines,
// the events that were the last or did most, the interfaces, how it ended, and which command shows more.
#pragma once

#include "inspection/RunSummary.h"
#include "inspection/ServedInterfaces.h"
#include "inspection/views/EventText.h"

namespace Inspection {

struct RunSummaryTextOptions {
   bool eachInterface = false;
   bool unchanged = false;
};

void writeRunSummary( Lines & lines,
                      Scenario const & scenario,
                      RunSummary const & summary,
                      Interfaces const & interfaces,
                      RunSummaryTextOptions const & options );

// How a run ended that didn't come to its end: an interruption, an assertion.
void writeEnding( Lines & lines, RunSummary const & summary, std::size_t events );

} // namespace Inspection
