#include "ObservedL3Sm.h"

namespace Test {

template< class T >
void ObservedL3Sm::watch( Corvo::Ptr< Watchful< T > > & input, char const * name, auto & argument ) {
   input = Corvo::makePtr< Watchful< T > >();
   input->looked = [this, name] {
      looks.emplace_back( name );
      if ( onLook ) {
         onLook( name );
      }
   };
   argument = input;
}

ObservedL3Sm::ObservedL3Sm( bool withDirectories, Simulator::SwitchDescription const & description )
   : MountedSwitch( description ) {
   start();
   in = mounter->l3Sm()->arguments();
   mounter = nullptr; // and its own machine with it
   watch( phySmStateSharedStatus, "phySmStateSharedStatus", in.phySmStateSharedStatus );
   watch( phySmState, "phySmState", in.phySmState );
   watch( mplsRoutingInfo, "mplsRoutingInfo", in.mplsRoutingInfo );
   watch( vtiStatusDir, "vtiStatusDir", in.vtiStatusDir );
   watch( evpnStatus, "evpnStatus", in.evpnStatus );
   watch( daceLagStatus, "daceLagStatus", in.daceLagStatus );
   watch( mergedPrefixLens, "mergedPrefixLensInExactMatchV4", in.mergedPrefixLensInExactMatchV4 );
   watch( routingHwConfig, "routingHwConfig", in.routingHwConfig );
   watch( driverSetupSmStateInfo, "driverSetupSmStateInfo", in.driverSetupSmStateInfo );
   watch( vxlanEcnConfig, "vxlanEcnConfig", in.vxlanEcnConfig );
   watch( mplsConfig, "mplsConfig", in.mplsConfig );
   watch( dgConfig, "dgConfig", in.dgConfig );
   if ( withDirectories ) {
      phySmState->allEthPhyIntfConfigDirIs( Corvo::makePtr< Interface::AllEthPhyIntfConfigDir >() );
      phySmStateSharedStatus->allEthPhyIntfStatusDirIs( Corvo::makePtr< Interface::AllEthPhyIntfStatusDir >() );
   }
   take();
}

ObservedL3Sm::~ObservedL3Sm() {
   onLook = nullptr;
   sm = nullptr;
}

} // namespace Test
