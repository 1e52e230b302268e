// The interfaces of a switch as a run has left them: which are served, and whether they have their MTU. It tells what
// the machines that serve them know: a machine goes on following the configuration and the status that it began with,
// whatever stands in the directories by now.
//
//    Interfaces const interfaces = interfacesOf( sw );
//    for ( auto const * interface : interfaces.which( &Interfaces::One::isServed ) ) { … }
#pragma once

#include "simulator/SimulatedSwitch.h"

namespace Inspection {

struct Interfaces {
   struct One {
      std::string name;
      bool isServed = false;  // the agent keeps an MTU walk for it
      bool isManaged = false; // it stands in the managed directory
      bool isSynced = false;  // served, and the status in the directory and all subinterfaces have its MTU
      U32 mtu = 0;            // served: the L3 MTU that its machine has for it
      std::string why = {};   // it isn't served, or its MTU isn't synced
      std::string note = {};  // what else is odd: another configuration in the directory than its machine follows
      // What the status in the directory says; none: there is none.
      struct Status {
         U32 mtu;
         U32 maxMtu;
         std::string addr;
         std::string routedAddr;
         std::string burnedInAddr;
      };
      std::optional< Status > status = {};
   };

   bool isActive = false;  // the slice's mode; else standby
   std::vector< One > all; // that are served, configured, or belong to a port; by name, shorter names first

   std::vector< One const * > served() const;
   std::vector< One const * > unserved() const;
};

// Of a switch that has been started and not stopped.
Interfaces interfacesOf( Simulator::SimulatedSwitch const & sw );

Rex::Value interfacesValue( Interfaces const & interfaces );

} // namespace Inspection
