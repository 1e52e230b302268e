// Which functions a closed gate keeps from running, from the sources of the plug-in. Written by ./dev golden.
#include "inspection/GateReach.h"

namespace Inspection {

std::span< GateReach const > knownGateReach() {
   // clang-format off
   static constexpr GateReach gates[] = {
      { "DaceL3UnicastVtiStatusDirSm::doSetupVtepToVtepBridging", "DaceL3UnicastVtiStatusDirSm::doSetupVxlanFloodSet" },
      { "GueNexthopGroupSm::setGueMplsEncapUdpDestPort", "GueNexthopGroupSm::doWriteAdditionalHeaderMapTable0" },
      { "L3IntfSm::RexIpIntfConfigFilter::handleMtuOrForwardingModel", "L3IntfSm::RexIpIntfConfigFilter::handleAddr" },
      { "L3Sm::handleInitialized", "DaceL3UnicastVtiStatusDirSm::doSetupVtepToVtepBridging DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestSecUdpPort DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestUdpPort DaceL3UnicastVtiStatusDirSm::doSetupVxlanFloodSet GueNexthopGroupSm::doWriteAdditionalHeaderMapTable0 GueNexthopGroupSm::setGueMplsEncapUdpDestPort L3IntfSm::RexIpIntfConfigFilter::handleAddr L3IntfSm::RexIpIntfConfigFilter::handleMtuOrForwardingModel L3Sm::handleDecapRouteAll L3Sm::handleEvpnDciGateway L3Sm::handleEvpnEncapType L3Sm::handleLooseUrpfFailFwdConfig L3Sm::handlePrefixLensInExactMatch L3Sm::handleStrictUrpfFailFwdConfig L3Sm::handleUrpfFailFwdConfig L3Sm::initEgressOutrifMaxValueReg L3Sm::setupMplsFwdContext L3Sm::setupMplsLookupFbIpFwdContext MplsParserCfgSm::handleParserConfig VxlanQosSm::handleBridgedQosPropagationEnabled VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg doWriteFlpacsAction setLearningForUrpfOrFlpa" },
      { "L3Sm::handleLooseUrpfFailFwdConfig", "L3Sm::handleUrpfFailFwdConfig" },
      { "L3Sm::handlePrefixLensInExactMatch", "setLearningForUrpfOrFlpa" },
      { "L3Sm::handleStrictUrpfFailFwdConfig", "L3Sm::handleUrpfFailFwdConfig" },
      { "L3Sm::setupMplsFwdContext", "doWriteFlpacsAction" },
      { "L3SmMounter::createPluginStatePhase2", "L3Sm::clearInLifProfileCsMapLsb L3Sm::clearInLifProfileCsMapMsb L3Sm::disableIngressTermination L3Sm::doCopyFwdDomainConfigToLifStatsForEtpsArpAc L3Sm::doSetupVtt5DefaultLif L3Sm::doSetupVtt5VniToVrfDummyLif L3Sm::doSetupVxlanDefaultVsi L3Sm::doSetupVxlanMcastEtppDoubleOutLifSwap L3Sm::doSetupVxlanMcastSgiProgram L3Sm::doSetupVxlanSipMissLif L3Sm::doSetupVxlanVtt5DefaultLif L3Sm::initEnablersVectors L3Sm::initEtppCfgFwdDoNotTtlDecrement L3Sm::initFlpRpfFormatConfig L3Sm::initInLifProfileTable L3Sm::initInlifOrientationMapTable L3Sm::initIpTrapsFwd L3Sm::initIpTrapsVtt L3Sm::initIppbFlpbResContextEnablersReg L3Sm::initIppbProgTrapCfgReg L3Sm::initIppcInLifProfileCsMapping L3Sm::initIppdFerTrapCfgReg L3Sm::initIppeRecycFwdProfileMappingReg L3Sm::initKapsInterfaceDefault L3Sm::initKapsStrengthMapping L3Sm::initLifMcBridgeFallbackAllowReg L3Sm::initMplsDefaultFwdResult L3Sm::initMtuRecycleLog L3Sm::initOutlifOrientationMap L3Sm::initSaProcedureFwd2RoutingCtxs L3Sm::initSplitHorizonTrapParamCfgReg L3Sm::initSviLearning L3Sm::initVrfFallbackMapping L3Sm::initVsiProfileTable L3Sm::setupAegisSetSecondaryVrfCsProfile L3Sm::setupMplsPopFheiFormat L3Sm::setupVplsVlanAwareCsProfile L3Sm::setupVxlanUdpEspCsProfile setLearningForUrpfOrFlpa" },
      { "L3SmMounter::doMountsComplete", "RemFfcModifierSm::getFfcBitMap RemFfcModifierSm::getFfcInstruction RemFfcModifierSm::handleAppDbModification RemFfcModifierSm::isAppDbIdInteresting RemFfcModifierSm::writeFfcInstruction" },
   };
   // clang-format on
   return gates;
}

} // namespace Inspection
