// A simulated switch with a mounter of the test's own, so that the test can look at what the mounter holds.
#pragma once

#include "DaceL3Unicast/DaceFapNiPlugin/L3SmMounter.h"
#include "simulator/SimulatedSwitch.h"

namespace Test {

Simulator::SwitchDescription oneFap( Hardware::ChipType chipType = Hardware::ChipType::BCM88690_B0 );

// With this the chip-init list runs on the chips of this family.
Toggle::Settings served();

struct MountedSwitch {
   Simulator::SimulatedSwitch sw;
   Corvo::Ptr< DaceFapNi::L3SmMounter > mounter = Corvo::makePtr< DaceFapNi::L3SmMounter >();

   explicit MountedSwitch( Simulator::SwitchDescription const & description = oneFap() );
   ~MountedSwitch();

   template< class T >
   Corvo::Ptr< T > shared( std::string const & key ) const {
      return sw.entity< T >( "shared/" + key );
   }
   void init();
   // What the agent does for each chip.
   void initChips();
   // The slice comes up: the mounter mounts, and the mounts complete.
   void sliceUp( U8 sliceState = 31 );
   void start();
};

} // namespace Test
