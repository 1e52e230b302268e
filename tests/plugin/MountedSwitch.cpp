#include "MountedSwitch.h"

namespace Test {

Simulator::SwitchDescription oneFap( Hardware::ChipType chipType ) {
   Simulator::SwitchDescription description;
   description.faps.push_back( { .fapId = Hardware::Dace::FapId( 0 ), .revision = { 5, chipType, 7 } } );
   return description;
}

Toggle::Settings served() {
   return { { "Dace.json", { { "ArmOrderedSwTable", false } } } };
}

MountedSwitch::MountedSwitch( Simulator::SwitchDescription const & description ) : sw( description ) {}
MountedSwitch::~MountedSwitch() = default;

void MountedSwitch::init() {
   mounter->init( sw.context() );
}

void MountedSwitch::initChips() {
   for ( auto const & [id, fapStatus] : sw.cellStatus()->fapStatus() ) {
      shared< DaceFapNi::ChipInitConfigDir >( "chipInitConfigDir" )->initChip( fapStatus );
   }
}

void MountedSwitch::start() {
   init();
   initChips();
   sliceUp();
}

void MountedSwitch::sliceUp( U8 sliceState ) {
   shared< DaceFapNi::SliceSmStateInfo >( "sliceSmStateData" )->sliceStateIs( { sliceState } );
   sw.scheduler()->runUntilIdle();
}

} // namespace Test
