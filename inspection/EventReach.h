// Who an event reaches: known before it is played, and told where nothing came of it.
//
//    EventReach const reach = reachOf( sw.state(), event );
//    scenario.play( sw, event );
//    reach.silence();      // "nothing changed: it had this value already"
#pragma once

#include "inspection/files/Scenario.h"

namespace Inspection {

struct EventReach {
   bool isKnown = false;
   bool changesNothing = false; // the value is what it sets it to
   bool isHeard = false;        // somebody follows what is changed
   std::string path = {};       // of what is changed

   // Why nothing came of the event.
   std::string silence() const;
};

EventReach reachOf( Simulator::StateTree const & state, Event const & event );

} // namespace Inspection
