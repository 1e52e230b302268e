#include "Toggles.h"

#include "toggle/Toggle.h"

namespace DaceFapNi {

// One guarded static for each toggle: whoever asks first reads, and everybody else gets the same answer.
#define TOGGLE( name, file )                                                                                           \
   bool toggle##name##Enabled() {                                                                                      \
      static bool const enabled = getToggleState( #name, file, true );                                                 \
      return enabled;                                                                                                  \
   }

TOGGLE( VeloroSAIMode, "VeloroSAI.json" )
TOGGLE( ArmOrderedSwTable, "Dace.json" )
TOGGLE( J2DaceL3Ni, "DaceToggles.json" )
TOGGLE( J2SRv6, "DaceToggles.json" )
TOGGLE( DaceVplsPhase2, "Dace.json" )
TOGGLE( CampusVtepToVtepBridgingGen4, "Dace.json" )
TOGGLE( DaceEvpnDualEncapDciAaMh, "DaceLib.json" )
TOGGLE( J2EvpnMcastVxlanMultihoming, "DaceToggles.json" )
TOGGLE( V6LinkLocalSrcPuntToCpu, "Dace.json" )
TOGGLE( UrpfIgnoreDefaultRouteJericho2, "Dace.json" )
TOGGLE( J2L2EvpnMplsMultiHomed, "Dace.json" )
TOGGLE( UnifiedIPv4Fwd2Ctx, "DaceL3Unicast.json" )
TOGGLE( J3AiBringup, "DaceToggles.json" )
TOGGLE( DaceVxlanMplsDciMhDchVxlanPfd, "DaceToggles.json" )

#undef TOGGLE

} // namespace DaceFapNi
