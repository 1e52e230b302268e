#include "agent/SharedObjects.h"
#include "rex/EntityAttributes.h"

REX_DEFINE( DaceFapNi::AgentGlobalState, "DaceFapNi::AgentGlobalState" );
REX_DEFINE( DaceFapNi::SliceSmStateInfo, "DaceFapNi::SliceSmStateInfo" );
REX_DEFINE( DaceFapNi::PhySmStateInfo, "DaceFapNi::PhySmStateInfo" );
REX_DEFINE( DaceFapNi::PhySmStateSharedStatus, "DaceFapNi::PhySmStateSharedStatus" );
REX_DEFINE( DaceFapNi::DriverSetupSmStateInfo, "DaceFapNi::DriverSetupSmStateInfo" );
REX_DEFINE( DaceFapNi::PortState, "DaceFapNi::PortState" );
REX_DEFINE( DaceFapNi::PortStateInfo, "DaceFapNi::PortStateInfo" );
REX_DEFINE( DaceFapNi::TaskScheduler, "DaceFapNi::TaskScheduler" );
REX_DEFINE( DaceFapNi::ChipInitConfig, "DaceFapNi::ChipInitConfig" );
REX_DEFINE( DaceFapNi::ChipInitConfigDir, "DaceFapNi::ChipInitConfigDir" );
REX_DEFINE( DaceFapNi::AgentSdkState, "DaceFapNi::AgentSdkState" );

// For those who derive from what holds one.
template class Rex::HeldEntity< Interface::AllEthPhyIntfConfigDir >;
template class Rex::HeldEntity< Interface::AllEthPhyIntfStatusDir >;

namespace DaceFapNi {

Corvo::Ptr< ChipInitConfig > ChipInitConfigDir::addChipInitConfig( Corvo::String const & name ) {
   auto const entry = Corvo::makePtr< ChipInitConfig >( name );
   chipInitConfigIs( entry );
   return entry;
}

void ChipInitConfigDir::initChip( Corvo::Ptr< Hardware::Dace::Cell::FapStatus const > const & fapStatus ) const {
   for ( auto const & [name, entry] : chipInitConfig() ) {
      auto const callback = entry->callback(); // a copy: it may be replaced while it runs
      if ( entry->ready() && callback ) {
         callback( fapStatus, nullptr, nullptr );
      }
   }
}

} // namespace DaceFapNi
