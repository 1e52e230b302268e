#include "generator/Formats.h"

#include <algorithm>

Formats::Formats( Model::Table const & table ) {
   for ( auto const & [pair, layout] : table.layouts ) {
      std::vector< std::optional< Place > > row;
      for ( auto const & name : table.fieldNames ) {
         Model::Field const * field = layout.field( name );
         row.push_back( field ? std::optional( Place{ field->offset, field->width } ) : std::nullopt );
      }
      auto found = std::find( rows.begin(), rows.end(), row );
      if ( found == rows.end() ) {
         found = rows.insert( rows.end(), row );
      }
      formatOf[pair] = static_cast< unsigned >( found - rows.begin() );
   }
}

std::optional< Place > Formats::onePlace( unsigned field ) const {
   bool const alike =
      std::all_of( rows.begin(), rows.end(), [&]( auto const & row ) { return row[field] == rows[0][field]; } );
   return alike ? rows[0][field] : std::nullopt;
}

bool Formats::acrossWords( unsigned field ) const {
   return std::any_of( rows.begin(), rows.end(), [&]( auto const & row ) {
      return row[field] && row[field]->offset % 32 + row[field]->width > 32;
   } );
}
