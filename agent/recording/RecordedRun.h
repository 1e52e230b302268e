// A recording, played again: on a fresh switch, what the agent was told, and whether each event does what it did.
//
//    RecordedRun const run = recordedRunOf( "/var/lib/l3sm" );       // a folder, or one segment; InputError
//    run.difference;                                                 // the first event that did something else; none
//
// A segment that doesn't begin with a start has the chips that the agent had then, and a plug-in that was started on
// them: what the plug-in itself remembers of the time before is gone, and may show itself as a difference. Segments
// that follow one another are played on, so that a folder's whole run has none of that.
//
// Threading: the switch's; one at a time in a process.
#pragma once

#include "inspection/files/Scenario.h"

namespace Live {

struct RecordedRun {
   struct Difference {
      std::string segment;
      U32 event = 0;
      std::string cause;
      U64 expectedOperations = 0;
      U64 operations = 0;
      std::string expectedHash;
      std::string hash;
   };

   std::size_t segments = 0;
   std::size_t starts = 0; // of an agent, whose event 0 was compared, too
   U64 events = 0;         // that were compared
   U64 operations = 0;
   std::optional< Difference > difference = {};
   std::vector< std::string > remarks = {}; // a line each

   bool isAlike() const { return !difference; }
};

// The plug-in's library is loaded already, and there is no switch in this process; `plugin`: which build it is, empty
// where nobody knows.
RecordedRun recordedRunOf( std::string const & path, std::string const & plugin = {} );
Rex::Value valueOf( RecordedRun const & run );

// The scenario that does the same, where no chip was wrong: the segment's begin, and its events as far as they fitted.
// A folder's last run, from its first segment that is there. `remarks`: what is odd about it, a line each.
Rex::Value scenarioOfRecording( std::string const & path, std::vector< std::string > & remarks );

} // namespace Live
