#include "constants/WellKnown.h"

#include "assert/Assert.h"

#include <algorithm>

namespace Hardware::Dace {

namespace {

// Each well-known LIF takes a pair of indices, the even one for the LIF itself.
constexpr U32 lifSpace = 1u << 22;
constexpr U32 firstWellKnownLif = lifSpace - 2 * Jericho2VttConstants::wellKnownLifs;

constexpr U16 numOutRifOfUnknown = 4096;
constexpr NumOutRifRow numOutRif[] = {
   { 1, 8192 },
   { 2, 8192 },
   { 3, 16384 },
   { 4, 16384 },
   { 5, 32768 },
   { 6, 32768 },
   { 7, 24576 },
   { 8, 49152 },
   { 9, 57344 },
};

} // namespace

U32 Jericho2VttConstants::wellKnownLifOffsetToHwIndex( U32 offset ) {
   Rex::sassert( offset < wellKnownLifs, "offset < wellKnownLifs" );
   return firstWellKnownLif + 2 * offset;
}

U16 ExtendedVlanConstants::numOutRifSupportedByFapRevMajor( U32 major ) {
   auto const row = std::ranges::find( numOutRif, major, &NumOutRifRow::fapRevMajor );
   return row == std::end( numOutRif ) ? numOutRifOfUnknown : row->numOutRif;
}

std::span< NumOutRifRow const > numOutRifRows() {
   return numOutRif;
}

// Trap codes have 9 bits. Code 5 is that of an MTU failure in the egress.
std::map< U8, U16 > const jericho2IppeRecycFwdProfileToTrapMap{
   { 1, 0x0c1 },
   { 3, 0x0c4 },
   { 6, 0x005 },
   { 10, 0x11a },
   { 13, 0x005 },
   { 14, 0x0d2 },
};

} // namespace Hardware::Dace
