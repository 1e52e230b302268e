// The toggles of the plug-in, each read at most once in a process, at its first use. All default to true.
//
// A reader that is itself one-shot keeps the outcome where it stands; these are the readers that several places share.
#pragma once

namespace DaceFapNi {

// A reader, in the rows of a table that hold under a toggle only.
using ToggleReader = bool ( * )();
constexpr ToggleReader always = nullptr;
inline bool isOn( ToggleReader toggle ) {
   return toggle == always || toggle();
}

bool toggleVeloroSAIModeEnabled();                  // VeloroSAI.json
bool toggleArmOrderedSwTableEnabled();              // Dace.json
bool toggleJ2DaceL3NiEnabled();                     // DaceToggles.json
bool toggleJ2SRv6Enabled();                         // DaceToggles.json
bool toggleDaceVplsPhase2Enabled();                 // Dace.json
bool toggleCampusVtepToVtepBridgingGen4Enabled();   // Dace.json
bool toggleDaceEvpnDualEncapDciAaMhEnabled();       // DaceLib.json
bool toggleJ2EvpnMcastVxlanMultihomingEnabled();    // DaceToggles.json
bool toggleV6LinkLocalSrcPuntToCpuEnabled();        // Dace.json
bool toggleUrpfIgnoreDefaultRouteJericho2Enabled(); // Dace.json
bool toggleJ2L2EvpnMplsMultiHomedEnabled();         // Dace.json
bool toggleUnifiedIPv4Fwd2CtxEnabled();             // DaceL3Unicast.json
bool toggleJ3AiBringupEnabled();                    // DaceToggles.json
bool toggleDaceVxlanMplsDciMhDchVxlanPfdEnabled();  // DaceToggles.json

} // namespace DaceFapNi
