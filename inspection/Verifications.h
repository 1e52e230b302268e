// What the plug-in itself can verify on the chips: its operations whose names begin with "verify", each run on every
// FAP in a child process, as one that finds a fault ends its process.
//
//    for ( Verdict const & verdict : verdictsOf( sw ) ) { … }
#pragma once

#include "inspection/files/ChipsFile.h"
#include "inspection/files/Scenario.h"

namespace Inspection {

struct Verdict {
   enum class Kind { fine, fault, notServed };

   U16 fap;
   std::string operation;
   Kind kind = Kind::fine;
   std::size_t reads = 0;
   // Of a fault: where it is, and the operation's own words.
   std::string table = {};
   std::string place = {};
   std::string what = {};
};

// Of a switch that has been started and has kept its journal. A FAP that chip initialisation left alone isn't judged.
std::vector< Verdict > verdictsOf( Simulator::SimulatedSwitch & sw );

// Puts contents on the chips of a switch that plays the scenario. `path`: where they come from. InputError where they
// don't fit.
void fillWith( Simulator::SimulatedSwitch & sw,
               Scenario const & scenario,
               std::string const & path,
               ChipsFile const & chips );

} // namespace Inspection
