#include "inspection/views/ValueText.h"

#include <algorithm>

namespace Inspection {

namespace {

using Rex::Value;

constexpr std::size_t step = 2; // that what belongs to a name stands further in

// One that takes lines of its own.
bool isLong( Value const & value ) {
   auto const * list = value.list();
   return ( value.object() && !value.object()->empty() ) ||
          ( list && std::ranges::any_of( *list, []( Value const & part ) { return part.object() || part.list(); } ) );
}

std::string shortText( Value const & value ) {
   if ( value.isNull() ) {
      return "-";
   }
   if ( auto const * flag = value.boolean() ) {
      return *flag ? "yes" : "no";
   }
   if ( auto const * text = value.text() ) {
      return printable( *text );
   }
   if ( auto const * list = value.list() ) {
      std::string all;
      for ( Value const & part : *list ) {
         all += ( all.empty() ? "" : ", " ) + shortText( part );
      }
      return all;
   }
   return Rex::toText( value );
}

// A text of several lines stays as it is.
void writeText( std::ostream & out, std::string const & text ) {
   out << text << ( text.ends_with( '\n' ) ? "" : "\n" );
}

void write( std::ostream & out, Value const & value, Style const & style, std::size_t indent ) {
   if ( auto const * object = value.object() ) {
      Columns columns;
      for ( auto const & [name, part] : *object ) {
         if ( !isLong( part ) ) {
            columns.row( { style.strong( printable( name ) ), shortText( part ) } );
         }
      }
      columns.print( out, indent );
      for ( auto const & [name, part] : *object ) {
         if ( isLong( part ) ) {
            out << std::string( indent, ' ' ) << style.strong( printable( name ) ) << '\n';
            write( out, part, style, indent + step );
         }
      }
   } else if ( auto const * list = value.list(); list && isLong( value ) ) {
      for ( Value const & part : *list ) {
         write( out, part, style, indent );
         out << ( &part == &list->back() ? "" : "\n" );
      }
   } else {
      writeText( out, std::string( indent, ' ' ) + shortText( value ) );
   }
}

} // namespace

void writeValue( std::ostream & out, Value const & value, Style const & style ) {
   if ( auto const * text = value.text(); text && text->find( '\n' ) != std::string::npos ) {
      writeText( out, *text ); // lines that are meant for programs, too
      return;
   }
   write( out, value, style, 0 );
}

} // namespace Inspection
