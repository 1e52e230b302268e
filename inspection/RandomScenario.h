// Scenarios of any kind: one or two chips, any toggles, and up to forty changes of what a plug-in hears of, each of
// which fits when it comes.
//
//    Scenario const scenario = randomScenario( chanceOf( 17 ) );               // the same for 17 each time
//    Scenario const other = randomScenario( chanceOf( 17 ), { .chipTypes = { ChipType::BCM88800_A0 } } );
//
// Whoever chooses decides where chance comes from: a seed, or the generators of a property test, which then finds the
// smallest scenario that shows what it is about.
#pragma once

#include "inspection/files/Scenario.h"

#include <functional>

namespace Inspection {

// A number below `many`; the first choices are the simplest.
using Choice = std::function< std::size_t( std::size_t many ) >;

Choice chanceOf( U64 seed );

struct RandomScenarioOptions {
   // The kind of each FAP's chip; none: one or two of any kind.
   std::vector< Hardware::ChipType > chipTypes = {};
   bool toggles = true; // set some of them, too
   std::size_t mostEvents = 40;
};

Scenario randomScenario( Choice const & choose, RandomScenarioOptions const & options = {} );

// One change out of those that random scenarios are made of, whether or not it fits where a run stands.
Event randomEvent( Choice const & choose );

} // namespace Inspection
