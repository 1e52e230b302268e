#include "inspection/AlikeLayouts.h"

#include "inspection/NamesAsTyped.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>

namespace Inspection {

namespace {

using Catalogue::Layout;

bool sameFields( Layout const & a, Layout const & b ) {
   return a.width == b.width && std::ranges::equal( a.fields, b.fields, []( auto const & x, auto const & y ) {
             return std::string_view( x.name ) == y.name && x.offset == y.offset && x.width == y.width;
          } );
}

bool sameGeometry( Layout const & a, Layout const & b ) {
   return a.entries == b.entries && a.width == b.width && a.arrayElements == b.arrayElements &&
          a.arrayIndexFirst == b.arrayIndexFirst && a.arrayIndexMin == b.arrayIndexMin &&
          a.sdkDefinedId == b.sdkDefinedId && a.base == b.base && a.arrayStep == b.arrayStep &&
          std::ranges::equal(
             a.selectors, b.selectors, []( auto const & x, auto const & y ) { return x.a == y.a && x.b == y.b; } );
}

template< class Same >
std::vector< LayoutGroup > groups( Catalogue::Table const & table, U8 chipType, Same const & same ) {
   std::vector< LayoutGroup > all;
   for ( Layout const & layout : table.layouts ) {
      if ( chipType != 0 && layout.chipType != chipType ) {
         continue;
      }
      auto const found =
         std::ranges::find_if( all, [&]( auto const & group ) { return same( group.like(), layout ); } );
      ( found == all.end() ? all.emplace_back() : *found ).layouts.push_back( &layout );
   }
   return all;
}

} // namespace

std::string LayoutGroup::text( Catalogue::Table const & table ) const {
   // Chips with the same variants are named together.
   std::map< U8, std::set< unsigned > > variantsOf;
   for ( Layout const * layout : layouts ) {
      variantsOf[layout->chipType].insert( layout->variant );
   }
   std::vector< std::pair< std::vector< U8 >, std::set< unsigned > > > rows;
   for ( auto const & [chip, variants] : variantsOf ) {
      auto const & of = variants;
      auto const found = std::ranges::find_if( rows, [&]( auto const & row ) { return row.second == of; } );
      ( found == rows.end() ? rows.emplace_back( std::vector< U8 >(), variants ) : *found ).first.push_back( chip );
   }
   std::string text;
   for ( auto const & [chips, variants] : rows ) {
      text += text.empty() ? "" : "; ";
      if ( chips.size() == table.chips.size() && chips.size() > 1 ) {
         text += "every chip";
      } else {
         for ( std::size_t chip = 0; chip < chips.size(); ++chip ) {
            text += ( chip == 0 ? "" : ", " ) + std::string( Catalogue::chipName( chips[chip] ) );
         }
      }
      if ( hasVariants( table ) ) {
         text += variants.size() > 1 ? " · variants" : " · variant";
         char const * before = " ";
         for ( unsigned const variant : variants ) {
            text += before + std::to_string( variant );
            before = ", ";
         }
      }
   }
   return text;
}

std::vector< LayoutGroup > fieldGroups( Catalogue::Table const & table, U8 chipType ) {
   return groups( table, chipType, sameFields );
}

std::vector< LayoutGroup > geometryGroups( Catalogue::Table const & table, U8 chipType ) {
   return groups( table, chipType, sameGeometry );
}

std::string difference( Catalogue::Field const & field, Catalogue::Layout const & from ) {
   Catalogue::Field const * const there = from.field( field.name );
   if ( !there ) {
      return "not there";
   }
   return there->offset == field.offset && there->width == field.width ? "" : bitsText( *there ) + " there";
}

} // namespace Inspection
