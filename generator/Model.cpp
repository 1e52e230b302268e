#include "generator/Model.h"

#include <algorithm>

namespace Model {

Field const * Layout::field( std::string const & name ) const {
   auto const found = std::find_if( fields.begin(), fields.end(), [&]( Field const & f ) { return f.name == name; } );
   return found == fields.end() ? nullptr : &*found;
}

unsigned Table::fieldIndex( std::string const & field ) const {
   return static_cast< unsigned >( std::find( fieldNames.begin(), fieldNames.end(), field ) - fieldNames.begin() );
}

unsigned Table::largestFieldWidth( std::string const & field ) const {
   unsigned width = 0;
   for ( auto const & [pair, layout] : layouts ) {
      if ( Field const * found = layout.field( field ) ) {
         width = std::max( width, found->width );
      }
   }
   return width;
}

unsigned Table::largestWidth() const {
   unsigned width = 0;
   for ( auto const & [pair, layout] : layouts ) {
      width = std::max( width, layout.width );
   }
   return width;
}

bool Table::readOnly( std::string const & field ) const {
   for ( auto const & [pair, fixed] : tags ) {
      Field const * found = layouts.at( pair ).field( field );
      for ( Tag const & tag : fixed ) {
         if ( found && found->offset >= tag.offset && found->offset + found->width <= tag.offset + tag.width ) {
            return true;
         }
      }
   }
   return false;
}

std::vector< std::string > Table::runFields( std::string const & run ) const {
   std::vector< std::string > names;
   for ( ;; ) {
      std::string next = run + std::to_string( names.size() );
      if ( fieldIndex( next ) == fieldNames.size() ) {
         return names;
      }
      names.push_back( std::move( next ) );
   }
}

Chip const & Catalogue::chip( unsigned number ) const {
   return *std::find_if( chips.begin(), chips.end(), [&]( Chip const & c ) { return c.number == number; } );
}

} // namespace Model
