// Where the tables of the catalogue lie on a chip: the one place where tables become blocks and addresses.
//
//    Catalogue::Layout const & layout = *Catalogue::layout( table, chip, variant );
//    for ( U32 const array : arrayIndices( layout ) ) {
//       chip.read( addressOf( layout, array, entry ), words );
//    }
#pragma once

#include "chip/ChipType.h"
#include "generated/Catalogue.h"
#include "simulator/AddressMap.h"

#include <ranges>

namespace Simulator {

// The addresses of a kind of chip: of every table that has a memory of its own. Built once for each kind.
AddressMap const & addressMap( Hardware::ChipType chipType );

// The array indices by which callers reach a table.
inline auto arrayIndices( Catalogue::Layout const & layout ) {
   U32 const first = layout.arrayIndexFirst;
   return std::views::iota( first, first + layout.arrayElements );
}

// How many entries an element of the table has; a register has one.
inline U32 entryCount( Catalogue::Layout const & layout ) {
   return layout.entries == 0 ? 1 : layout.entries;
}

// The place of an entry, in the block of a copy.
inline DaceSal::SchanAddress addressOf( Catalogue::Layout const & layout, U32 array, U32 entry, U32 copy = 0 ) {
   Catalogue::Selector const selector = layout.selectors[copy];
   return { layout.base + entry + array * layout.arrayStep, selector.a, selector.b };
}

// The bits of a field, and putting a number of at most 64 bits there; what is wider than the field is cut.
U64 fieldBits( std::span< U32 const > words, Catalogue::Field const & field );
void fieldBitsIs( std::span< U32 > words, Catalogue::Field const & field, U64 value );

} // namespace Simulator
