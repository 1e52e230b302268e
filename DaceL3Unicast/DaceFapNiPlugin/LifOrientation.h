// Orientation of out-LIF profiles, as the egress register packs it.
#pragma once

#include "corvo/Types.h"
#include "sal/Raw.h"

namespace DaceFapNi {

// ORs the three bits of a profile's orientation into the mapping, profile k at bit 3 * k. Bits that would cross into
// the next 64-bit word are lost.
void setOrientationForOutLifProfile( unsigned int outLifProfile, Raw256 & mapping, U64 orientation );

} // namespace DaceFapNi
