// Two builds of the plug-in on the same scenarios and kinds of chip: which fields end events as others, and by which
// functions on both sides.
//
//    PluginComparison const it = comparePlugins( scenarios, { .plugin = "", .against = "old/lib/libL3SmPlugin.so" } );
//    it.isEqual();
//    for ( RunDifferences const & run : it.runs ) { … run.scenario, run.chip, run.differences … }
//
// Each run is a process of its own, which keeps a journal; the two of a pair run at the same time. A library that has a
// program of its own beside it (bin/l3sm and lib/libL3SmPlugin.so) is played by that one: a platform that has changed
// in between goes with its plug-in.
#pragma once

#include "inspection/RunEffects.h"
#include "inspection/files/Scenario.h"

namespace Inspection {

// A field that an event leaves as another with the one build than with the other.
struct SideDifference {
   U32 event;
   std::string what;
   EffectPlace place;
   std::optional< Effect > here; // none: the event doesn't change it
   std::optional< Effect > there;
};

struct RunDifferences {
   std::string scenario;
   std::string chip; // "" where the scenario names its own
   std::vector< SideDifference > differences = {};
   // How the runs ended, where not alike; told beside what differs before.
   std::string endHere = {};
   std::string endThere = {};
   U64 operationsHere = 0;
   U64 operationsThere = 0;
   bool isOtherRoad = false; // other operations, in whole or in order, to the same end of every event

   bool isEqual() const { return differences.empty() && endHere == endThere; }
};

struct PluginComparison {
   std::string plugin;
   std::string against;
   std::vector< RunDifferences > runs; // all of them, equal or not
   double seconds = 0;

   bool isEqual() const;
};

struct PluginComparisonOptions {
   std::string plugin = {}; // the default lies beside this program
   std::string against = {};
   bool everyChip = true; // else each scenario as it is
};

// InputError where a library or a program isn't there.
PluginComparison comparePlugins( std::vector< Scenario > const & scenarios, PluginComparisonOptions const & options );

} // namespace Inspection
