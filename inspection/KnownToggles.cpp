#include "inspection/KnownToggles.h"

#include <algorithm>
#include <sstream>

namespace Inspection {

// Written by ./dev golden.
std::span< KnownToggle const > knownToggles() {
   // clang-format off
   static constexpr KnownToggle toggles[] = {
      { "ArmOrderedSwTable", "Dace.json", true, "L3SmMounter::createPluginStatePhase2 L3SmMounter::doMountsComplete" },
      { "CampusVtepToVtepBridgingGen4", "Dace.json", true, "DaceL3UnicastVtiStatusDirSm::anyVtiFloodsToRemote DaceL3UnicastVtiStatusDirSm::doSetupVtepToVtepBridging L3Sm::initInlifOrientationMapTable L3Sm::initOutlifOrientationMap VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg" },
      { "DaceVplsPhase2", "Dace.json", true, "L3Sm::setupVplsVlanAwareCsProfile" },
      { "J2L2EvpnMplsMultiHomed", "Dace.json", true, "L3Sm::doCopyFwdDomainConfigToLifStatsForEtpsArpAc" },
      { "UrpfIgnoreDefaultRouteJericho2", "Dace.json", true, "L3Sm::initFlpRpfFormatConfig" },
      { "V6LinkLocalSrcPuntToCpu", "Dace.json", true, "L3Sm::initIpTrapsFwd" },
      { "UnifiedIPv4Fwd2Ctx", "DaceL3Unicast.json", true, "L3Sm::handlePrefixLensInExactMatch RemFfcModifierSm::getFwd2Context RemFfcModifierSm::getPrefixLen RemFfcModifierSm::isAppDbIdInteresting" },
      { "DaceEvpnDualEncapDciAaMh", "DaceLib.json", true, "L3Sm::initInlifOrientationMapTable" },
      { "DaceVxlanMplsDciMhDchVxlanPfd", "DaceToggles.json", true, "VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg" },
      { "J2DaceL3Ni", "DaceToggles.json", true, "L3SmMounter::createPluginStatePhase2 L3SmMounter::doMountsComplete" },
      { "J2EvpnMcastVxlanMultihoming", "DaceToggles.json", true, "L3Sm::doSetupVxlanMcastEtppDoubleOutLifSwap L3Sm::initInlifOrientationMapTable" },
      { "J2SRv6", "DaceToggles.json", true, "L3Sm::initEnablersVectors L3Sm::initIppcInLifProfileCsMapping" },
      { "J3AiBringup", "DaceToggles.json", true, "RemFfcModifierSm::modifyInterestingFfcForVrf" },
      { "VeloroSAIMode", "VeloroSAI.json", true, "L3Sm::buildInterfaceMachine" },
   };
   // clang-format on
   return toggles;
}

KnownToggle const * toggleNamed( std::string_view file, std::string_view name ) {
   auto const all = knownToggles();
   auto const found = std::ranges::find_if(
      all, [&]( KnownToggle const & toggle ) { return toggle.file == file && toggle.name == name; } );
   return found == all.end() ? nullptr : &*found;
}

Rex::Value knownTogglesValue() {
   Rex::Value::List list;
   for ( KnownToggle const & toggle : knownToggles() ) {
      Rex::Value::List readers;
      std::istringstream names{ std::string( toggle.readers ) };
      for ( std::string name; names >> name; ) {
         readers.emplace_back( name );
      }
      list.emplace_back( Rex::Value::Object{ { "name", std::string( toggle.name ) },
                                             { "file", std::string( toggle.file ) },
                                             { "default", toggle.defaultState },
                                             { "readBy", std::move( readers ) } } );
   }
   return list;
}

} // namespace Inspection
