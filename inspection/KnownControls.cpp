// The driver's controls that the plug-in sets, from the journals of the examples. Written by ./dev golden.
#include "inspection/KnownControls.h"

namespace Inspection {

std::span< KnownControl const > knownControls() {
   // clang-format off
   static constexpr KnownControl controls[] = {
      { 1, "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestUdpPort" },
      { 1, "L3Sm::doSetupVxlanDefaultVsi" },
      { 2, "L3Sm::initMplsDefaultFwdResult" },
      { 64, "L3Sm::initMtuRecycleLog" },
      { 65, "L3Sm::doSetupVxlanVtt5DefaultLif" },
      { 66, "L3Sm::doSetupVtt5VniToVrfDummyLif" },
      { 69, "MplsParserCfgSm::handleParserConfig" },
      { 70, "MplsParserCfgSm::handleParserConfig" },
      { 71, "MplsParserCfgSm::handleParserConfig" },
      { 72, "MplsParserCfgSm::handleParserConfig" },
      { 73, "MplsParserCfgSm::handleParserConfig" },
      { 92, "L3Sm::doSetupVxlanMcastSgiProgram" },
      { 93, "L3Sm::doSetupVxlanMcastSgiProgram" },
      { 94, "L3Sm::doSetupVxlanMcastSgiProgram" },
      { 95, "L3Sm::doSetupVxlanMcastSgiProgram" },
      { 96, "L3Sm::doSetupVxlanSipMissLif" },
      { 97, "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestUdpPort" },
      { 98, "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestSecUdpPort" },
      { 103, "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestUdpPort" },
      { 104, "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestSecUdpPort" },
      { 117, "L3Sm::doSetupVtt5DefaultLif" },
      { 132, "L3Sm::initSaProcedureFwd2RoutingCtxs" },
      { 133, "L3Sm::initSaProcedureFwd2RoutingCtxs" },
   };
   // clang-format on
   return controls;
}

} // namespace Inspection
