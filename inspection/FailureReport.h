// What is told of a run that ended by an assertion, last on standard error: where in the run, where in the source, why,
// and what in the scenario is suspicious.
//
//    FailureReport const report = failureReportOf( scenario, sw, summary );
//    for ( std::string const & line : report.lines() ) { … }
#pragma once

#include "inspection/RunSummary.h"

namespace Inspection {

struct FailureReport {
   U32 event = 0;
   std::string eventText; // "start" for event 0
   std::string fap;       // the last that was worked on
   std::string function;
   std::string source;
   std::string text;    // the assertion's
   std::string message; // what more it says
   std::string cause;   // what was being dispatched
   std::vector< std::string > suspicions;

   std::vector< std::string > lines() const;
};

// Where in its run a process has failed.
struct FailurePlace {
   Simulator::Ending ending;
   std::string eventText;
   std::string fap; // for people: the last that was worked on
};

// While the process fails: in a hook of Rex::atFailure.
FailureReport
failureReportOf( Scenario const & scenario, Simulator::SimulatedSwitch const & sw, FailurePlace const & place );
// `isFollowed`: the summary has heard of the operations.
FailureReport failureReportOf( Scenario const & scenario,
                               Simulator::SimulatedSwitch const & sw,
                               RunSummary const & summary,
                               bool isFollowed );

} // namespace Inspection
