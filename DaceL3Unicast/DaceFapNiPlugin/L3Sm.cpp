#include "L3Sm.h"

#include "FapGate.h"
#include "L3SmSlotLoadBalance.h"
#include "Toggles.h"
#include "rex/Gate.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {
Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };
} // namespace

// Attribute of the input's type, and what its change sets off.
L3Sm::DispatchRow const L3Sm::phySmStateRows[] = { { 0x10b, &L3Sm::handleInitialized } };
L3Sm::DispatchRow const L3Sm::phySmStateSharedStatusRows[] = { { 0x104, &L3Sm::handleInitialized } };
L3Sm::DispatchRow const L3Sm::mplsRoutingInfoRows[] = {
   { 0x105, &L3Sm::setupMplsFwdContext },
   { 0x106, &L3Sm::setupMplsLookupFbIpFwdContext },
};
L3Sm::DispatchRow const L3Sm::driverSetupSmStateInfoRows[] = { { 0x103, &L3Sm::setupMplsLookupFbIpFwdContext } };
L3Sm::DispatchRow const L3Sm::vtiStatusDirRows[] = { { 0x187, &L3Sm::handleDecapRouteAll } };
L3Sm::DispatchRow const L3Sm::evpnStatusRows[] = {
   { 0x102, &L3Sm::handleEvpnEncapType },
   { 0x106, &L3Sm::handleEvpnDciGateway },
};
L3Sm::DispatchRow const L3Sm::routingHwConfigRows[] = {
   { 0x192, &L3Sm::handleLooseUrpfFailFwdConfig },
   { 0x193, &L3Sm::handleStrictUrpfFailFwdConfig },
};
L3Sm::DispatchRow const L3Sm::mergedPrefixLensInExactMatchV4Rows[] = {
   { 0x102, &L3Sm::handlePrefixLensInExactMatch },
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

void L3Sm::daceLagStatusDispatch(
   Corvo::Publisher *, Corvo::Subscriber * subscriber, short attribute, void const * key, void const * ) {
   constexpr short slotLoadBalanceAttribute = 0x106;
   Corvo::Ptr< L3Sm > const self = subscriber->owner< L3Sm >();
   if ( attribute != slotLoadBalanceAttribute ) {
      return;
   }
   auto const slot = *static_cast< Fru::SlotId const * >( key );
   if ( auto const config = self->in_.daceLagStatus->slotLoadBalance( slot ) ) {
      self->slotLoadBalanceIs( config );
   } else {
      self->slotLoadBalanceDel( slot );
   }
}

L3Sm::L3Sm( L3SmArguments const & arguments )
   : in_( arguments ), phySmStateSharedStatus_( in_.phySmStateSharedStatus ), phySmState_( in_.phySmState ),
     mplsRoutingInfo_( in_.mplsRoutingInfo ), vtiStatusDir_( in_.vtiStatusDir ), evpnStatus_( in_.evpnStatus ),
     daceLagStatus_( in_.daceLagStatus ), mergedPrefixLensInExactMatchV4_( in_.mergedPrefixLensInExactMatchV4 ),
     routingHwConfig_( in_.routingHwConfig ), driverSetupSmStateInfo_( in_.driverSetupSmStateInfo ) {
   phySmStateSharedStatus_.subscribe( dispatch< phySmStateSharedStatusRows >, this );
   phySmState_.subscribe( dispatch< phySmStateRows >, this );
   mplsRoutingInfo_.subscribe( dispatch< mplsRoutingInfoRows >, this );
   vtiStatusDir_.subscribe( dispatch< vtiStatusDirRows >, this );
   evpnStatus_.subscribe( dispatch< evpnStatusRows >, this );
   daceLagStatus_.subscribe( daceLagStatusDispatch, this );
   mergedPrefixLensInExactMatchV4_.subscribe( dispatch< mergedPrefixLensInExactMatchV4Rows >, this );
   routingHwConfig_.subscribe( dispatch< routingHwConfigRows >, this );
   driverSetupSmStateInfo_.subscribe( dispatch< driverSetupSmStateInfoRows >, this );
   handleInitialized();
   if ( in_.daceLagStatus ) {
      for ( auto const & [slot, config] : in_.daceLagStatus->slotLoadBalance() ) {
         slotLoadBalanceIs( config );
      }
   }
}

L3Sm::~L3Sm() {
   hasNotificationActiveIs( false );
   rexDoZombieReactors( true );
   phySmStateSharedStatus_.unsubscribe();
   phySmState_.unsubscribe();
   mplsRoutingInfo_.unsubscribe();
   vtiStatusDir_.unsubscribe();
   evpnStatus_.unsubscribe();
   daceLagStatus_.unsubscribe();
   mergedPrefixLensInExactMatchV4_.unsubscribe();
   routingHwConfig_.unsubscribe();
   driverSetupSmStateInfo_.unsubscribe();
   for ( auto const & [slot, entry] : slotLoadBalance_ ) {
      entry->parentIs( nullptr ); // no reactor calls back from here on
   }
   ethIntfVrfSmHelper_.activeIs( false );
   childrenActiveIs( false );
   slotLoadBalance_.clear();
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
   mplsRoutingInfo_.activeIs( active, dispatch< mplsRoutingInfoRows >, this );
   vtiStatusDir_.activeIs( active, dispatch< vtiStatusDirRows >, this );
   ethIntfVrfSmHelper_.activeIs( active );
   evpnStatus_.activeIs( active, dispatch< evpnStatusRows >, this );
   daceLagStatus_.activeIs( active, daceLagStatusDispatch, this );
   mergedPrefixLensInExactMatchV4_.activeIs( active, dispatch< mergedPrefixLensInExactMatchV4Rows >, this );
   routingHwConfig_.activeIs( active, dispatch< routingHwConfigRows >, this );
   driverSetupSmStateInfo_.activeIs( active, dispatch< driverSetupSmStateInfoRows >, this );
   childrenActiveIs( active );
   for ( auto const & [slot, entry] : slotLoadBalance_ ) {
      entry->hasNotificationActiveIs( active );
   }
}

void L3Sm::childrenActiveIs( bool active ) {
   vtiStatusDirSm_.activeIs( active );
   vxlanSplitHorizonCfgSm_.activeIs( active );
   vxlanQosSm_.activeIs( active );
   l3IntfSm_.activeIs( active );
   mplsParserCfgSm_.activeIs( active );
   nexthopGroupSm_.activeIs( active );
}

void L3Sm::rexDoZombieReactors( bool zombie ) {
   if ( isZombie() == zombie ) {
      return;
   }
   for ( auto const & [slot, entry] : slotLoadBalance_ ) {
      entry->rexDoZombieReactors( zombie );
   }
   markAndSweepFlagSet( zombie );
}

void L3Sm::handleInitialized() {
   trace( 5, "L3Sm::", "handleInitialized", " initialized: ", initialized_ );
   if ( initialized_ ||
        !Rex::gate( in_.phySmState->allEthPhyIntfConfigDir() && in_.phySmStateSharedStatus->allEthPhyIntfStatusDir(),
                    notInitialized ) ) {
      return;
   }
   initialized_ = true; // from here on the run is not repeated, also if it returns early
   buildInterfaceMachine();
   if ( !Rex::gate( chipTypeToFapType( in_.sliceSmState->revision().chipType() ) != fapType4,
                    "FAP type 4 has no more than the interface machine" ) ) {
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
   mplsParserCfgSmIs( in_.mplsConfig, in_.mplsHwCapability, in_.switchControlSal, in_.cellStatus );
}

} // namespace DaceFapNi
