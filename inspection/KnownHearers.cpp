// Which functions an attribute of the state reaches. Written by ./dev golden.
#include "inspection/Hearers.h"

namespace Inspection {

std::span< Hearer const > knownHearers() {
   // clang-format off
   static constexpr Hearer hearers[] = {
      { "evpn/status", "evpnDciEnabled", "L3Sm::handleEvpnDciGateway", true, true },
      { "evpn/status", "evpnDciEnabled", "VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg", true, true },
      { "evpn/status", "vxlanEnabled", "L3Sm::handleEvpnEncapType", true, true },
      { "hardware/dace/lag/daceLagStatus", "slotLoadBalance", "L3Sm::NestedSm_SlotLoadBalance::handleGuePktTypeHashModeConfig", true, false },
      { "hardware/dace/lag/daceLagStatus", "slotLoadBalance", "doProgramGueTunnelTermination", true, false },
      { "hardware/dace/lag/daceLagStatus/slotLoadBalance/NUMBER", "guePktTypeHashMode", "L3Sm::NestedSm_SlotLoadBalance::handleGuePktTypeHashModeConfig", true, false },
      { "hardware/dace/lag/daceLagStatus/slotLoadBalance/NUMBER", "guePktTypeHashMode", "doProgramGueTunnelTermination", true, true },
      { "interface/config/global", "l3Mtu", "L3IntfSm::RexIpIntfConfigFilter::handleMtuOrForwardingModel", true, false },
      { "interface/status/eth/vxlan", "decapRouteAll", "L3Sm::handleDecapRouteAll", true, true },
      { "interface/status/eth/vxlan", "vtiStatus", "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestSecUdpPort", true, true },
      { "interface/status/eth/vxlan", "vtiStatus", "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestUdpPort", true, true },
      { "interface/status/eth/vxlan", "vtiStatus", "DaceL3UnicastVtiStatusDirSm::doSetupVxlanFloodSet", true, true },
      { "interface/status/eth/vxlan", "vtiStatus", "VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg", true, true },
      { "interface/status/eth/vxlan/vtiStatus/INTERFACE", "remoteVxlanDomain", "DaceL3UnicastVtiStatusDirSm::doSetupVxlanFloodSet", true, true },
      { "interface/status/eth/vxlan/vtiStatus/INTERFACE", "secUdpPort", "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestSecUdpPort", true, true },
      { "interface/status/eth/vxlan/vtiStatus/INTERFACE", "udpPort", "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestUdpPort", true, true },
      { "interface/status/eth/vxlan/vtiStatus/INTERFACE", "vtepToVtepBridging", "DaceL3UnicastVtiStatusDirSm::doSetupVxlanFloodSet", true, true },
      { "interface/status/eth/vxlan/vtiStatus/INTERFACE", "vtepToVtepBridging", "VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg", true, true },
      { "l3/tunnel/udpDestinationPortConfig", "udpDestPort", "GueNexthopGroupSm::doWriteAdditionalHeaderMapTable0", true, true },
      { "routing/hardware/config", "urpfLooseFailForward", "L3Sm::handleLooseUrpfFailFwdConfig", true, false },
      { "routing/hardware/config", "urpfLooseFailForward", "L3Sm::handleUrpfFailFwdConfig", true, true },
      { "routing/hardware/config", "urpfStrictFailForward", "L3Sm::handleStrictUrpfFailFwdConfig", true, false },
      { "routing/hardware/config", "urpfStrictFailForward", "L3Sm::handleUrpfFailFwdConfig", true, true },
      { "routing/hardware/mpls/capability", "parserDefault0", "MplsParserCfgSm::handleParserConfig", false, true },
      { "routing/hardware/mpls/capability", "parserDefault1", "MplsParserCfgSm::handleParserConfig", false, true },
      { "routing/hardware/mpls/capability", "parserDefault2", "MplsParserCfgSm::handleParserConfig", false, true },
      { "routing/hardware/mpls/capability", "parserDefault3", "MplsParserCfgSm::handleParserConfig", false, true },
      { "routing/hardware/route/status", "prefixLensInExactMatch", "L3Sm::handlePrefixLensInExactMatch", true, false },
      { "routing/hardware/route/status", "prefixLensInExactMatch", "RemFfcModifierSm::handleAppDbModification", true, false },
      { "routing/hardware/route/status", "prefixLensInExactMatch", "RemFfcModifierSm::writeFfcInstruction", true, false },
      { "routing/mpls/config", "parserSetting0", "MplsParserCfgSm::handleParserConfig", false, true },
      { "routing/mpls/config", "parserSetting1", "MplsParserCfgSm::handleParserConfig", false, true },
      { "routing/mpls/config", "parserSetting2", "MplsParserCfgSm::handleParserConfig", false, true },
      { "routing/mpls/config", "parserSetting3", "MplsParserCfgSm::handleParserConfig", false, true },
      { "routing/mpls/config", "parserSettingsConfigured", "MplsParserCfgSm::handleParserConfig", true, false },
      { "routing/mpls/routingInfo/status", "mplsLookupFallbackIp", "L3Sm::setupMplsLookupFbIpFwdContext", true, true },
      { "routing/mpls/routingInfo/status", "mplsLookupLabelCount", "L3Sm::setupMplsFwdContext", true, false },
      { "routing/mpls/routingInfo/status", "mplsLookupLabelCount", "L3Sm::setupMplsLookupFbIpFwdContext", false, true },
      { "routing/mpls/routingInfo/status", "mplsLookupLabelCount", "doWriteFlpacsAction", true, true },
      { "routing/tunneldecap/input/cli", "decapGroup", "GueNexthopGroupSm::doWriteAdditionalHeaderMapTable0", true, true },
      { "routing/tunneldecap/input/cli/decapGroup/NUMBER", "payloadType", "GueNexthopGroupSm::doWriteAdditionalHeaderMapTable0", true, true },
      { "routing/tunneldecap/input/dynamic/NAME", "decapGroup", "GueNexthopGroupSm::doWriteAdditionalHeaderMapTable0", true, true },
      { "routing/tunneldecap/input/dynamic/NAME/decapGroup/NUMBER", "payloadType", "GueNexthopGroupSm::doWriteAdditionalHeaderMapTable0", true, true },
      { "shared/driverSetupSmStateInfo", "ucodeProfile", "L3Sm::setupMplsLookupFbIpFwdContext", true, true },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestSecUdpPort", true, false },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestUdpPort", true, false },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "DaceL3UnicastVtiStatusDirSm::doSetupVxlanFloodSet", true, false },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "GueNexthopGroupSm::doWriteAdditionalHeaderMapTable0", true, false },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "L3Sm::handleDecapRouteAll", true, false },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "L3Sm::handleEvpnDciGateway", true, false },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "L3Sm::handleEvpnEncapType", true, false },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "L3Sm::handlePrefixLensInExactMatch", true, false },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "L3Sm::handleUrpfFailFwdConfig", true, false },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "L3Sm::initEgressOutrifMaxValueReg", true, false },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "L3Sm::setupMplsLookupFbIpFwdContext", true, false },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "MplsParserCfgSm::handleParserConfig", true, false },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg", true, false },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "doProgramGueTunnelTermination", true, false },
      { "shared/phySmStateData", "allEthPhyIntfConfigDir", "doWriteFlpacsAction", true, false },
      { "shared/phySmStateData/allEthPhyIntfConfigDir", "intfConfig", "L3IntfSm::RexIpIntfConfigFilter::handleMtuOrForwardingModel", false, true },
      { "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/INTERFACE", "addr", "L3IntfSm::RexIpIntfConfigFilter::handleAddr", true, false },
      { "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/INTERFACE", "enabled", "L3IntfSm::RexIpIntfConfigFilter::handleMtuOrForwardingModel", true, true },
      { "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/INTERFACE", "mtu", "L3IntfSm::RexIpIntfConfigFilter::handleMtuOrForwardingModel", true, false },
      { "shared/phySmStateSharedStatus", "allEthPhyIntfStatusDir", "L3Sm::handleInitialized", true, false },
      { "shared/phySmStateSharedStatus/allEthPhyIntfStatusDir/intfStatus/INTERFACE", "burnedInAddr", "L3IntfSm::RexIpIntfConfigFilter::handleMtuOrForwardingModel", true, false },
      { "shared/phySmStateSharedStatus/allEthPhyIntfStatusDir/intfStatus/INTERFACE", "forwardingModel", "L3IntfSm::RexIpIntfConfigFilter::handleMtuOrForwardingModel", true, false },
      { "shared/portStateInfo", "portState", "L3IntfSm::RexIpIntfConfigFilter::handleAddr", true, false },
      { "shared/portStateInfo", "portState", "L3IntfSm::RexIpIntfConfigFilter::handleMtuOrForwardingModel", true, false },
      { "shared/sliceSmStateData", "smMode", "L3IntfSm::RexIpIntfConfigFilter::handleAddr", true, false },
      { "shared/sliceSmStateData", "smMode", "L3IntfSm::RexIpIntfConfigFilter::handleMtuOrForwardingModel", true, true },
      { "vxlan/ecnConfig", "dscpEcnRewriteBridged", "VxlanQosSm::handleBridgedQosPropagationEnabled", true, false },
   };
   // clang-format on
   return hearers;
}

std::vector< Hearer > hearersOf( std::string_view path, std::string_view attribute ) {
   std::vector< Hearer > all;
   for ( Hearer const & hearer : knownHearers() ) {
      if ( hearer.path == path && hearer.attribute == attribute ) {
         all.push_back( hearer );
      }
   }
   return all;
}

} // namespace Inspection
