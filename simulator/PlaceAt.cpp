#include "simulator/PlaceAt.h"

#include "simulator/TableMap.h"

#include <algorithm>

namespace Simulator {

std::optional< TablePlace >
placeIn( Catalogue::Table const & table, Catalogue::Layout const & layout, DaceSal::SchanAddress const & at ) {
   for ( U32 copy = 0; copy < layout.selectors.size(); ++copy ) {
      if ( layout.selectors[copy].a != at.selectorA || layout.selectors[copy].b != at.selectorB ) {
         continue;
      }
      for ( U32 const array : arrayIndices( layout ) ) {
         U32 const first = addressOf( layout, array, 0, copy ).address;
         if ( at.address - first < entryCount( layout ) ) {
            return TablePlace{ &table, &layout, array, at.address - first, copy };
         }
      }
   }
   return std::nullopt;
}

std::optional< TablePlace >
placeIn( Catalogue::Table const & table, Hardware::ChipType chipType, DaceSal::SchanAddress const & at ) {
   for ( Catalogue::Layout const & layout : table.layouts ) {
      if ( !table.hasMemory || layout.chipType != static_cast< U8 >( chipType ) ) {
         continue;
      }
      if ( auto const place = placeIn( table, layout, at ) ) {
         return place;
      }
   }
   return std::nullopt;
}

std::optional< TablePlace > placeAt( Hardware::ChipType chipType, DaceSal::SchanAddress const & at ) {
   for ( Catalogue::Table const & table : Catalogue::tables() ) {
      if ( auto const place = placeIn( table, chipType, at ) ) {
         return place;
      }
   }
   return std::nullopt;
}

Catalogue::Layout const * firstLayout( Catalogue::Table const & table, Hardware::ChipType chipType ) {
   auto const found = std::ranges::find( table.layouts, static_cast< U8 >( chipType ), &Catalogue::Layout::chipType );
   return table.hasMemory && found != table.layouts.end() ? &*found : nullptr;
}

} // namespace Simulator
