// Without SETS_FIXED_FIELD this compiles; with it, it must not: the tag of the format fixes the field.
#include "generated/DaceFapNiPluginL3UnicastMetaInfo.h"

void use( Hardware::Ipv4PcremFwdDestPcrem & route ) {
   route.vrfIs( 1 );
#ifdef SETS_FIXED_FIELD
   route.tidIs( 1 );
#endif
}
