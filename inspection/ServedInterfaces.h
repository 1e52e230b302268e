// The interfaces of a switch as a run has left them: which are served, and whether they have their MTU.
//
//    Interfaces const interfaces = interfacesOf( sw );
//    writeInterfaces( std::cout, interfaces );
//
// An interface is served for as long as the agent keeps an MTU walk for it. Its MTU is synced where the interface, its
// local status and all its subinterfaces have the L3 MTU that holds for it; else it waits, for the reason given.
#pragma once

#include "simulator/SimulatedSwitch.h"

#include <ostream>

namespace Inspection {

struct Interfaces {
   // An interface, and what is to be told of it: an MTU, or a reason.
   struct Item {
      std::string name;
      std::string remark;
   };

   bool isActive = false;         // the slice's mode; else standby
   std::vector< Item > served;    // no remark
   std::vector< Item > unmanaged; // those served that aren't in the managed directory; no remark
   std::vector< Item > synced;    // those served that have their MTU; which
   std::vector< Item > waiting;   // those served that don't; why
   std::vector< Item > unserved;  // others that are configured, or belong to a port; why

   bool empty() const { return served.empty() && unserved.empty(); }
};

// Of a switch that has been started and not stopped. Each list goes by name, shorter names first.
Interfaces interfacesOf( Simulator::SimulatedSwitch const & sw );

void writeInterfaces( std::ostream & out, Interfaces const & interfaces );

} // namespace Inspection
