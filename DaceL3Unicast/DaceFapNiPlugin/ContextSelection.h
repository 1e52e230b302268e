// Context selection by in-LIF profile: four bits for each profile, by which the VTT stages choose their context.
#pragma once

#include "Programming.h"

namespace DaceFapNi {

// ORs `csValue` into the nibble of an in-LIF profile below 128 (assertion text "inLifProfile < 128"), in one array
// element of InLifProfileCsFlagsLsb. What other features have set there stays.
void doWriteVttCsInLifProfLsb( Hardware::ChipType chipType,
                               Hardware::Dace::FapId fapId,
                               U32 inLifProfile,
                               U8 tableVariant,
                               int arrayIndex,
                               U8 csValue,
                               std::source_location origin = std::source_location::current() );

// The array indices of one of the two variants of InLifProfileCsFlagsLsb and -Msb, by how many elements the variant has
// on the chip: where variant 1 has two, they go on counting behind the three of variant 0.
template< class CsFlags >
auto csArrays( CsFlags const & csFlags, U8 variant ) {
   int const elements = static_cast< int >( csFlags.arrayElements() );
   int const first = variant == 1 && elements > 1 ? 3 : 0;
   return std::views::iota( first, first + elements );
}

// The same of variant 1, by the major revision of the FAP.
inline auto csArraysOfVariant1( Hardware::Dace::FapRevision const & revision ) {
   bool const hasTwo = revision.fapRevMajor() == 8 || revision.fapRevMajor() == 9;
   return hasTwo ? std::views::iota( 3, 5 ) : std::views::iota( 0, 1 );
}

} // namespace DaceFapNi
