// The two programming lists: the order in which a chip is programmed, on one screen.
#include "L3Sm.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {
Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };
Rex::DualTrace const dualTrace{ trace };
} // namespace

// For each chip, when it comes up. The clears go first, because the functions that follow only OR their bits in.
void L3Sm::initChip( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal ) {
   clearInLifProfileCsMapMsb( fapStatus );
   clearInLifProfileCsMapLsb( fapStatus );
   initEnablersVectors( fapStatus );
   initVsiProfileTable( fapStatus );
   initSviLearning( fapStatus );
   initInLifProfileTable( fapStatus );
   initIpTraps( fapStatus );
   disableIngressTermination( fapStatus );
   initInlifOrientationMapTable( fapStatus );
   initOutlifOrientationMap( fapStatus );
   initSplitHorizonTrapParamCfgReg( fapStatus );
   initIppbProgTrapCfgReg( fapStatus );
   initIppbFlpbResContextEnablersReg( fapStatus );
   initIppeRecycFwdProfileMappingReg( fapStatus );
   initMtuRecycleLog( fapStatus, sal );
   initKapsInterfaceDefault( fapStatus );
   initKapsStrengthMapping( fapStatus );
   initMplsDefaultFwdResult( fapStatus, sal );
   initIppdFerTrapCfgReg( fapStatus );
   initIppcInLifProfileCsMapping( fapStatus );
   initVrfFallbackMapping( fapStatus );
   initEtppCfgFwdDoNotTtlDecrement( fapStatus );
   initSaProcedureFwd2RoutingCtxs( fapStatus, sal );
   setupMplsPopFheiFormat( fapStatus );
   setupVplsVlanAwareCsProfile( fapStatus );
   setupAegisSetSecondaryVrfCsProfile( fapStatus );
   setupVxlanUdpEspCsProfile( fapStatus );
   doSetupVtt5DefaultLif( fapStatus, sal );
   doSetupVxlanDefaultVsi( fapStatus, sal );
   doSetupVxlanVtt5DefaultLif( fapStatus, sal );
   doSetupVtt5VniToVrfDummyLif( fapStatus, sal );
   doSetupVxlanMcastEtppDoubleOutLifSwap( fapStatus, sal );
   doSetupVxlanMcastSgiProgram( fapStatus, sal );
   doSetupVxlanSipMissLif( fapStatus, sal );
   doCopyFwdDomainConfigToLifStatsForEtpsArpAc( fapStatus, sal );
   initFlpRpfFormatConfig( fapStatus );
   initLifMcBridgeFallbackAllowReg( fapStatus );
}

// For all FAPs, when the machine becomes initialized and its children are built.
void L3Sm::programInitialState() {
   setupMplsFwdContext();
   handleEvpnEncapType();
   handleEvpnDciGateway();
   handleDecapRouteAll();
   initEgressOutrifMaxValueReg();
   initUnknownDaProfileTable();
   setupMplsLookupFbIpFwdContext();
   Fru::SlotId const slot = mySlotId();
   if ( in_.daceLagStatus && in_.daceLagStatus->slotLoadBalanceHas( slot ) ) {
      dualTrace( 8, "handleInitialized", ": Initializing for slot:", slot );
      doSetupSlotGueLoadBalance();
   } else {
      dualTrace( 8, "handleInitialized", ": slot:", slot, " Load Balance Config not ready" );
   }
   handlePrefixLensInExactMatch();
   handleLooseUrpfFailFwdConfig();
   handleStrictUrpfFailFwdConfig();
}

} // namespace DaceFapNi
