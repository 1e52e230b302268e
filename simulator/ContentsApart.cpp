#include "simulator/ContentsApart.h"

#include "simulator/EachEntry.h"

#include <algorithm>

namespace Simulator {

namespace {

bool isSame( Chip::Entry const & a, Chip::Entry const & b ) {
   for ( U32 copy = 0; copy < a.copies(); ++copy ) {
      if ( !std::ranges::equal( a.words( copy ), b.words( copy ) ) ) {
         return false;
      }
   }
   return a.hasValue() == b.hasValue();
}

void put( TablesContents & tables,
          Catalogue::Table const & table,
          Catalogue::Layout const & layout,
          U32 array,
          U32 entry,
          Chip::Entry const & of ) {
   if ( of.hasValue() ) {
      tables[table.name][layout.variant][array].emplace( entry, contentsOf( of ) );
   }
}

} // namespace

ContentsApart contentsApart( Chip const & a, Chip const & b, Hardware::ChipType chipType ) {
   ContentsApart apart{ .a = { .controls = a.controls(), .tables = {} },
                        .b = { .controls = b.controls(), .tables = {} } };
   eachEntry( chipType, [&]( auto const & table, auto const & layout, U32 array, U32 entry, auto const & at ) {
      auto const ofA = a.entry( at );
      auto const ofB = b.entry( at );
      if ( isSame( ofA, ofB ) ) {
         return;
      }
      put( apart.a.tables, table, layout, array, entry, ofA );
      put( apart.b.tables, table, layout, array, entry, ofB );
   } );
   std::erase_if( apart.a.controls, [&]( auto const & it ) {
      auto const other = apart.b.controls.find( it.first );
      bool const isAlike = other != apart.b.controls.end() && other->second == it.second;
      if ( isAlike ) {
         apart.b.controls.erase( other );
      }
      return isAlike;
   } );
   return apart;
}

} // namespace Simulator
