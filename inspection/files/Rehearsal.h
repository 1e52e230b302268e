// A scenario played without chips and without a plug-in: whatever doesn't fit shows itself before anything is done.
//
//    Rehearsal rehearsal( scenario.description );
//    errors.of( [&] { rehearsal.state( scenario.state ); } );      // Rex::ValueError
//    errors.of( [&] { rehearsal.event( event ); } );
//
// What only goes wrong because of something that went wrong before is not told again.
#pragma once

#include "inspection/files/Scenario.h"

namespace Inspection {

class Rehearsal {
 public:
   explicit Rehearsal( Simulator::SwitchDescription const & description );

   // What a scenario has on its chips.
   void chips( std::map< U16, Simulator::Contents > const & chips,
               std::vector< Simulator::FapDescription > const & faps );
   // Sets what stands at each path. What a run writes as state but isn't told by it is taken out: what the description
   // of the switch tells, and what the plug-in publishes.
   void state( Rex::Value::Object & state );
   void event( Event const & event );
   // What the event was to make may be missing from now on.
   void isWithout( Event const & event );

 private:
   void isMissing( std::string const & path );
   bool isExpected( Event const & event, Rex::ValueError const & error ) const;
   bool isAsTold( std::string const & path, Rex::Value const & attributes ) const;

   Simulator::StateTree tree_;
   std::map< U16, Hardware::ChipType > chipTypes_;
   std::vector< std::string > missing_; // paths where something could stand, but for an error
};

} // namespace Inspection
