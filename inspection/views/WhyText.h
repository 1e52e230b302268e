// The answer to why, for people: a chain that is read top down, the newest event first, and what was kept from running.
#pragma once

#include "inspection/Why.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

// What doesn't fit on a screen is counted, with the option that shows it.
struct WhyShown {
   bool everything = false;
   bool otherGates = false;
};

void writeWhy( std::ostream & out, WhyAnswer const & answer, WhyShown shown, Style const & style );

// The same for programs.
Rex::Value whyValue( WhyAnswer const & answer );

// "The run did not get there: …"; empty for a run that did, or that is complete.
std::string endingText( WhyAnswer const & answer );

// " in event 2 on FAP 0": of which part of the run an answer is true.
std::string whereText( WhyFilter const & filter );

} // namespace Inspection
