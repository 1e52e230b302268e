// Chip programming that several subjects share, or that others than L3Sm have a use for. Each function stands in the
// file of its subject.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "Programming.h"
#include "constants/Contexts.h"
#include "sal/Raw.h"

#include <map>
#include <utility>
#include <vector>

namespace DaceFapNi {

// ---- L3SmInLifProfiles.cpp: context selection by in-LIF profile, four bits for each, by which the VTT stages choose
// their context

// ORs `csValue` into the nibble of an in-LIF profile below 128 (assertion text "inLifProfile < 128"), in one array
// element of InLifProfileCsFlagsLsb. What other features have set there stays.
void doWriteVttCsInLifProfLsb( Hardware::ChipType chipType,
                               Hardware::Dace::FapId fapId,
                               U32 inLifProfile,
                               U8 tableVariant,
                               int arrayIndex,
                               U8 csValue,
                               std::source_location origin = std::source_location::current() );

// The array indices of variant 1 of InLifProfileCsFlagsLsb and -Msb: where it has two elements, they go on counting
// behind the three of variant 0. Two rules tell whether it has two: by the table, for those who clear it and for the
// VRF fallback, and by the FAP's major revision, for everybody else. They agree on the chips that there are. Where a
// FAP reports a revision that is not its chip type's, each goes by its own: the first names the elements that the chip
// type has, the second may name others.
template< class CsFlags >
auto csArrays( CsFlags const & csFlags, U8 variant ) {
   int const elements = static_cast< int >( csFlags.arrayElements() );
   int const first = variant == 1 && elements > 1 ? 3 : 0;
   return std::views::iota( first, first + elements );
}
inline auto csArraysOfVariant1( Hardware::Dace::FapRevision const & revision ) {
   bool const hasTwo = revision.fapRevMajor() == 8 || revision.fapRevMajor() == 9;
   return hasTwo ? std::views::iota( 3, 5 ) : std::views::iota( 0, 1 );
}

// ---- L3SmLifOrientation.cpp: orientation of out-LIF profiles, as the egress register packs it

// ORs the three bits of a profile's orientation into the mapping, profile k at bit 3 * k. Bits that would cross into
// the next 64-bit word are lost.
void setOrientationForOutLifProfile( unsigned int outLifProfile, Raw256 & mapping, U64 orientation );

// ---- L3SmUrpf.cpp: learning of forwarding contexts

// Switches learning on or off for those of the contexts that the chip has; with `flpa`, the forwarding update of the
// context goes the opposite way. A context that the chip lacks is traced and left out.
void setLearningForUrpfOrFlpa( std::vector< DacePPExport::ctx_fwd1 > const & contexts,
                               Hardware::ChipType chipType,
                               Hardware::Dace::FapId fapId,
                               bool enable,
                               bool flpa,
                               std::source_location origin = std::source_location::current() );

// ---- L3SmKaps.cpp: what array element 1 of FlpKapsStrengthMapping holds, and the check that it does

// From a span of entries, first and last, to the strength of both fields.
std::map< std::pair< int, int >, U32 > rangeToDefault0StrengthMapping();

// Ends the process by assertion where an entry of the span holds something else than expected. The last entry of a span
// is not looked at. Entry 32 of array element 1 is expected to have 0 in its second field.
void verifyKapsStrengthMappingEntry( FapStatusPtr const & fapStatus,
                                     int arrayIndex,
                                     U32 expectedStrengthDefault0,
                                     U32 expectedStrengthDefault1,
                                     int firstEntry,
                                     int lastEntry,
                                     std::source_location origin = std::source_location::current() );

} // namespace DaceFapNi
