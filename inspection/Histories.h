// Which entries of the chips remember the road on which a state was reached. The last state of a scenario is reached by
// many others: a fresh start on it, other orders of its events, starts in between, and detours: other values there and
// back. Whatever differs at an end from where the scenario's own road ends, is told with the shortest road found that
// shows it.
//
//    Histories const found = explore( scenario, { .count = 10'000, .seconds = 10, .seed = 1 } );
//    for ( History const & history : found.all ) { … history.differences, history.road … }
//
// Roads are played one behind the other on a switch that goes on living: each return to the last state is a history.
// A road that shows something new is cut down, and played alone, before it is told. Each is played in a child process;
// one that ends its process is told, too. The same seed finds the same.
#pragma once

#include "inspection/Roads.h"

namespace Inspection {

struct History {
   std::vector< EndDifference > differences; // that no shorter road shows
   Road road;
   std::string failure = {}; // its last words, where the road ends the process
};

struct Histories {
   std::string name; // of the scenario
   std::size_t played = 0;
   double seconds = 0; // that playing took
   bool isCut = false; // the time was over before the count was reached
   std::vector< History > all = {};

   bool remembers() const { return !all.empty(); }
};

struct HistoryOptions {
   std::size_t count = 10'000;
   double seconds = 10; // for playing; 0: as long as it takes
   U64 seed = 1;
   std::size_t mostFailures = 20; // of roads that end the process, after which no more are looked for
   bool ( *isPassedOver )( EndDifference const & ) = nullptr; // for no such difference a road is cut down, or told
};

// The plug-in is loaded already. InputError where the scenario itself doesn't come to its end.
Histories explore( Scenario const & scenario, HistoryOptions const & options );

} // namespace Inspection
