#include "L3Sm.h"

#include "FapGate.h"
#include "Toggles.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {
Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };
} // namespace

// Attribute of the input's type, and what its change sets off.
L3Sm::DispatchRow const L3Sm::phySmStateRows[] = { { 0x10b, &L3Sm::handleInitialized } };
L3Sm::DispatchRow const L3Sm::phySmStateSharedStatusRows[] = { { 0x104, &L3Sm::handleInitialized } };
L3Sm::DispatchRow const L3Sm::routingHwConfigRows[] = {
   { 0x192, &L3Sm::handleLooseUrpfFailFwdConfig },
   { 0x193, &L3Sm::handleStrictUrpfFailFwdConfig },
};

template< auto const & rows >
void L3Sm::dispatch( Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const *, void const * ) {
   Corvo::Ptr< L3Sm > const self = slot->owner< L3Sm >(); // a handler may drop the last other reference
   for ( auto const & row : rows ) {
      if ( row.attribute == attribute && !self->isZombie() ) {
         ( self.get()->*row.handler )();
      }
   }
}

L3Sm::L3Sm( L3SmArguments const & arguments )
   : in_( arguments ), phySmStateSharedStatus_( in_.phySmStateSharedStatus ), phySmState_( in_.phySmState ),
     mplsRoutingInfo_( in_.mplsRoutingInfo ), vtiStatusDir_( in_.vtiStatusDir ), evpnStatus_( in_.evpnStatus ),
     daceLagStatus_( in_.daceLagStatus ), mergedPrefixLensInExactMatchV4_( in_.mergedPrefixLensInExactMatchV4 ),
     routingHwConfig_( in_.routingHwConfig ), driverSetupSmStateInfo_( in_.driverSetupSmStateInfo ) {
   phySmStateSharedStatus_.subscribe( dispatch< phySmStateSharedStatusRows >, this );
   phySmState_.subscribe( dispatch< phySmStateRows >, this );
   routingHwConfig_.subscribe( dispatch< routingHwConfigRows >, this );
   handleInitialized();
}

L3Sm::~L3Sm() {
   hasNotificationActiveIs( false );
   rexDoZombieReactors( true );
   phySmStateSharedStatus_.unsubscribe();
   phySmState_.unsubscribe();
   routingHwConfig_.unsubscribe();
   childrenActiveIs( false );
}

Corvo::Ptr< L3Sm > L3Sm::L3SmIs( L3SmArguments const & arguments ) {
   auto const sm = Corvo::makePtr< L3Sm >( arguments );
   sm->hasNotificationActiveIs( true );
   return sm;
}

Corvo::Ptr< L3Sm > l3SmFactory( L3SmArguments const & arguments ) {
   return L3Sm::L3SmIs( arguments );
}

void L3Sm::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() == active ) {
      return;
   }
   nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
   phySmStateSharedStatus_.activeIs( active, dispatch< phySmStateSharedStatusRows >, this );
   phySmState_.activeIs( active, dispatch< phySmStateRows >, this );
   routingHwConfig_.activeIs( active, dispatch< routingHwConfigRows >, this );
   childrenActiveIs( active );
}

void L3Sm::childrenActiveIs( bool active ) {
   ethIntfVrfSmHelper_.activeIs( active );
   vtiStatusDirSm_.activeIs( active );
   vxlanSplitHorizonCfgSm_.activeIs( active );
   vxlanQosSm_.activeIs( active );
   l3IntfSm_.activeIs( active );
   nexthopGroupSm_.activeIs( active );
}

void L3Sm::rexDoZombieReactors( bool zombie ) {
   if ( isZombie() == zombie ) {
      return;
   }
   markAndSweepFlagSet( zombie );
}

void L3Sm::handleInitialized() {
   trace( 5, "L3Sm::", "handleInitialized", " initialized: ", initialized_ );
   if ( initialized_ || !in_.phySmState->allEthPhyIntfConfigDir() ||
        !in_.phySmStateSharedStatus->allEthPhyIntfStatusDir() ) {
      return;
   }
   initialized_ = true; // from here on the run is not repeated, also if it returns early
   buildInterfaceMachine();
   if ( chipTypeToFapType( in_.sliceSmState->revision().chipType() ) == fapTypeJericho3 ) {
      return;
   }
   buildChildren();
   programInitialState();
}

// Without a helper the interfaces are served all the same, and the managed directories stay empty.
void L3Sm::buildInterfaceMachine() {
   if ( !toggleVeloroSAIModeEnabled() ) {
      ethIntfVrfSmHelperIs( in_.entityManager )->routerMacsPerIntfIs( in_.routerMacHwCapability->routerMacsPerIntf() );
   }
   l3IntfSmIs( { .bridgingConfig = in_.bridgingConfig,
                 .bridgingHwCapabilities = in_.hwCapabilities,
                 .ethConfigDir = in_.phySmState->allEthPhyIntfConfigDir(),
                 .ethStatusDir = in_.phySmStateSharedStatus->allEthPhyIntfStatusDir(),
                 .ethPhyIntfStatusLocalDir = in_.ethPhyIntfStatusLocalDir,
                 .scheduler = in_.scheduler,
                 .globalIntfConfig = in_.globalIntfConfig,
                 .ethIntfVrfSmHelper = ethIntfVrfSmHelper_.get(),
                 .sliceSmState = in_.sliceSmState,
                 .portStateInfo = in_.portStateInfo,
                 .routerMacHwCapability = in_.routerMacHwCapability,
                 .intfHwCapability = in_.intfHwCapability,
                 .subIntfStatusDir = in_.subIntfStatusDir,
                 .subIntfStatusLocalDir = in_.subIntfStatusLocalDir } );
}

// In the order of their attributes; each reads its inputs' present state as it is built.
void L3Sm::buildChildren() {
   vtiStatusDirSmIs( "vtiStatusDirSm", in_.vtiStatusDir, in_.hwCapabilities, in_.cellStatus, in_.switchControlSal )
      ->initializedIs( true );
   vxlanSplitHorizonCfgSmIs( in_.vtiStatusDir, in_.evpnStatus, in_.cellStatus );
   vxlanQosSmIs( in_.vxlanEcnConfig, in_.cellStatus );
   nexthopGroupSmIs( in_.cellStatus, in_.dgConfig, in_.udpDestPortConfig, in_.switchControlSal );
}

} // namespace DaceFapNi
