// The entries of every table that a kind of chip has, in the order in which files name them.
//
//    eachEntry( chipType, [&]( Catalogue::Table const & table, Catalogue::Layout const & layout, U32 array, U32 entry,
//                              DaceSal::SchanAddress const & at ) { … } );
#pragma once

#include "simulator/ChipContents.h"
#include "simulator/TableMap.h"

namespace Simulator {

EntryContents contentsOf( Chip::Entry const & entry );

template< class Each >
void eachEntry( Hardware::ChipType chipType, Each const & each ) {
   for ( Catalogue::Table const & table : Catalogue::tables() ) {
      for ( Catalogue::Layout const & layout : table.layouts ) {
         if ( !table.hasMemory || layout.chipType != static_cast< U8 >( chipType ) ) {
            continue;
         }
         for ( U32 const array : arrayIndices( layout ) ) {
            for ( U32 entry = 0; entry < entryCount( layout ); ++entry ) {
               each( table, layout, array, entry, addressOf( layout, array, entry ) );
            }
         }
      }
   }
}

} // namespace Simulator
