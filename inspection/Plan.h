// What a scenario would change on the chips, without changing them: the start of the plug-in on these chips and this
// state, and then each event.
//
//    Plan const plan = planOf( scenario, plugin );
//    for ( PlannedEvent const & event : plan.events ) {
//       for ( Simulator::Row const & change : event.changes ) { … change.before, change.words, change.function … }
//    }
//
// Each event is staged (simulator/StagedDriver.h): what counts is how its end differs from its beginning, entry by
// entry and copy by copy. A change has the function and the cause that set the fields to what they end as.
#pragma once

#include "inspection/EventRows.h"
#include "inspection/files/Scenario.h"
#include "simulator/Row.h"
#include "simulator/StagedDriver.h"
#include "simulator/UnitStore.h"

namespace Inspection {

struct PlannedEvent {
   U32 event;
   std::string what; // as people say it
   // Writes: `before` is what stands there, `words` what would; scope core where one copy alone would change. Controls
   // likewise.
   std::vector< Simulator::Row > changes;
   std::size_t operations = 0; // that were made to get there
   std::size_t writes = 0;
   std::size_t changingWrites = 0; // writes and controls with a change that would have reached the chips, unstaged

   std::size_t entries() const; // that would change
   std::size_t controls() const;
};

struct Plan {
   std::string name;
   std::vector< PlannedEvent > events;

   bool isEmpty() const;
   // What the rows refer to.
   SharedTexts texts = {};
   Simulator::UnitStore< U32 > words = {};
};

struct PlanOptions {
   std::vector< Simulator::RowReader * > others = {}; // that read along
   // What stands on the chips on top of what the scenario tells.
   std::vector< Simulator::StagedDriver::Change > chips = {};
   std::optional< U16 > fap = {}; // this one alone is planned, and counted
};

// What events would change on a switch that runs, one after the other. They are played on it: this is for a copy of the
// process (agent/control/AnsweringCopies.h). Rex::ValueError where one doesn't fit, its place seen from their list.
Plan planOn( Simulator::SimulatedSwitch & sw,
             std::string const & name,
             std::vector< Event > const & events,
             std::optional< U16 > fap = std::nullopt );

// Plays the scenario. InputError where it doesn't fit, or the library can't be loaded.
Plan planOf( Scenario const & scenario, std::string const & plugin, PlanOptions const & options = {} );

} // namespace Inspection
