// A simulated switch with a mounter of the test's own, so that the test can look at what the mounter holds.
#pragma once

#include "DaceL3Unicast/DaceFapNiPlugin/L3SmMounter.h"
#include "simulator/SimulatedSwitch.h"

namespace Test {

inline Simulator::SwitchDescription oneFap( Hardware::ChipType chipType = Hardware::ChipType::BCM88690_B0 ) {
   Simulator::SwitchDescription description;
   description.faps.push_back( { .fapId = Hardware::Dace::FapId( 0 ), .revision = { 5, chipType, 7 } } );
   return description;
}

// With this the chip-init list runs on the chips of this family.
inline Toggle::Settings served() {
   return { { "Dace.json", { { "ArmOrderedSwTable", false } } } };
}

struct MountedSwitch {
   Simulator::SimulatedSwitch sw;
   Corvo::Ptr< DaceFapNi::L3SmMounter > mounter = Corvo::makePtr< DaceFapNi::L3SmMounter >();

   explicit MountedSwitch( Simulator::SwitchDescription const & description = oneFap() ) : sw( description ) {}

   template< class T >
   Corvo::Ptr< T > shared( std::string const & key ) const {
      return sw.entity< T >( "shared/" + key );
   }
   void init() { mounter->init( sw.context() ); }
   // What the agent does for each chip.
   void initChips() {
      for ( auto const & [id, fapStatus] : sw.cellStatus()->fapStatus() ) {
         shared< DaceFapNi::ChipInitConfigDir >( "chipInitConfigDir" )->initChip( fapStatus );
      }
   }
   // The slice comes up: the mounter mounts, and the mounts complete.
   void sliceUp( U8 sliceState = 31 ) {
      shared< DaceFapNi::SliceSmStateInfo >( "sliceSmStateData" )->sliceStateIs( { sliceState } );
      sw.scheduler()->runUntilIdle();
   }
   void start() {
      init();
      initChips();
      sliceUp();
   }
};

} // namespace Test
