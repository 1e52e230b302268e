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
   bool const isEmpty = value.text() && value.text()->empty();
   if ( value.isNull() || isEmpty ) {
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

using Names = std::vector< std::string >;

void write(
   std::ostream & out, Value const & value, Style const & style, std::size_t indent, Names const & first = {} ) {
   if ( auto const * object = value.object() ) {
      Columns columns;
      auto const put = [&]( std::string const & name, Value const & part ) {
         if ( !isLong( part ) ) {
            columns.row( { style.strong( printable( name ) ), shortText( part ) } );
         }
      };
      for ( auto const & name : first ) {
         if ( auto const found = object->find( name ); found != object->end() ) {
            put( name, found->second );
         }
      }
      for ( auto const & [name, part] : *object ) {
         if ( std::ranges::find( first, name ) == first.end() ) {
            put( name, part );
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

void writeValue( std::ostream & out, Value const & value, Style const & style, Names const & first ) {
   if ( auto const * text = value.text(); text && text->find( '\n' ) != std::string::npos ) {
      writeText( out, *text ); // lines that are meant for programs, too
      return;
   }
   if ( auto const * list = value.list(); list && !isLong( value ) && !list->empty() ) {
      for ( Value const & part : *list ) {
         writeText( out, shortText( part ) );
      }
      return;
   }
   write( out, value, style, 0, first );
}

} // namespace Inspection
