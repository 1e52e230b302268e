// Playing a scenario with the plug-in, in this process or in one of its own.
//
//    loadPlugin( options.plugin );                            // InputError
//    Simulator::SimulatedSwitch sw( scenario.description );
//    play( scenario, sw );
//
// A toggle has one value for the life of a process, and a failed assertion ends it: what compares runs, or expects that
// one may fail, plays each in a child.
#pragma once

#include "inspection/files/Scenario.h"

#include <functional>
#include <ostream>

namespace Inspection {

// The product lies beside the program: bin/l3sm and lib/libL3SmPlugin.so, or in the folder that the distribution has
// for the libraries of this kind of machine.
std::string pluginBeside();

// Loads the plug-in's library; an empty path means the one beside this program.
void loadPlugin( std::string const & path );

// Who looks on while a scenario is played.
struct Onlooker {
   std::function< void( Event const & ) > before = {}; // each event
   std::function< bool() > stops = {};                 // whether to play no more; asked before each event
};

// Prepares, starts, and plays every event. False where the onlooker has stopped it.
bool play( Scenario const & scenario, Simulator::SimulatedSwitch & sw, Onlooker const & onlooker = {} );

// What a child process left behind.
struct Child {
   bool isFine;        // it came to its end
   std::string output; // what it handed over
   std::string errors; // what it said on standard error, control characters written out
};

// Runs `what` in a child process. What it writes to the stream is the child's output, also where the process fails
// halfway. An InputError in the child is thrown here.
Child inChild( std::function< void( std::ostream & ) > const & what );

} // namespace Inspection
