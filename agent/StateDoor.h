// The door through which changes of state come to a switch.
//
//    StateDoor door( sw );
//    door.play( transaction.changes );               // one event of the switch
//
// Threading: the agent's loop.
#pragma once

#include "agent/Door.h"

namespace Live {

class StateDoor final : public Door {
 public:
   explicit StateDoor( Simulator::SimulatedSwitch & sw ) : sw_( sw ) {}

   // Before the switch is started.
   void prepare( std::vector< Inspection::Event > const & changes );
   void play( std::vector< Inspection::Event > const & changes ) override;

 private:
   void set( Inspection::Event const & change );
   void set( std::vector< Inspection::Event > const & changes );

   Simulator::SimulatedSwitch & sw_;
};

} // namespace Live
