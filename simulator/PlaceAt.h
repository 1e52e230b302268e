// Which table's entry lies at an address of a chip: the way back from what a driver is told to what people read.
//
//    std::optional< TablePlace > const place = placeAt( ChipType::BCM88690_B0, change.at );
//    place->layout, place->array, place->entry, place->copy
//
// Several formats may lie in one memory; the first in the catalogue's order tells it.
#pragma once

#include "chip/ChipType.h"
#include "generated/Catalogue.h"
#include "sal/Driver.h"

#include <optional>

namespace Simulator {

struct TablePlace {
   Catalogue::Table const * table;
   Catalogue::Layout const * layout;
   U32 array;
   U32 entry;
   U32 copy;
};

std::optional< TablePlace > placeAt( Hardware::ChipType chipType, DaceSal::SchanAddress const & at );
// In this table alone; `layout` is of it.
std::optional< TablePlace >
placeIn( Catalogue::Table const & table, Catalogue::Layout const & layout, DaceSal::SchanAddress const & at );
// Likewise, in the first of its formats on the kind of chip.
std::optional< TablePlace >
placeIn( Catalogue::Table const & table, Hardware::ChipType chipType, DaceSal::SchanAddress const & at );
// The first format in which a kind of chip has the table; null where it has no memory there.
Catalogue::Layout const * firstLayout( Catalogue::Table const & table, Hardware::ChipType chipType );

} // namespace Simulator
