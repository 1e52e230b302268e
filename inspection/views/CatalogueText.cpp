#include "inspection/views/CatalogueText.h"

#include "inspection/AlikeLayouts.h"
#include "inspection/NamesAsTyped.h"
#include "inspection/views/BitDrawing.h"

#include <algorithm>

namespace Inspection {

namespace {

using Catalogue::Layout;
using Rex::Value;

std::string hexadecimal( U32 number ) {
   char text[11];
   std::snprintf( text, sizeof text, "0x%x", number );
   return text;
}

std::string kindText( Catalogue::Table const & table ) {
   return !table.hasMemory ? "format" : table.isMemory ? "memory" : "register";
}

// The span of a number over layouts: "4", "2-8".
template< class Number >
std::string span( Catalogue::Table const & table, U8 chipType, Number const & number ) {
   std::int64_t least = -1;
   std::int64_t most = -1;
   for ( Layout const & layout : table.layouts ) {
      if ( chipType == 0 || layout.chipType == chipType ) {
         std::int64_t const here = number( layout );
         least = least == -1 ? here : std::min( least, here );
         most = std::max( most, here );
      }
   }
   return std::to_string( least ) + ( least == most ? "" : "-" + std::to_string( most ) );
}

void showGeometry( std::ostream & out, Catalogue::Table const & table, U8 chipType, Style const & style ) {
   Columns columns;
   columns.row( { style.faint( "entries" ),
                  style.faint( "words" ),
                  style.faint( "array" ),
                  style.faint( "base" ),
                  style.faint( "step" ),
                  style.faint( "blocks" ),
                  style.faint( "id" ),
                  style.faint( "on" ) } );
   for ( LayoutGroup const & group : geometryGroups( table, chipType ) ) {
      Layout const & layout = group.like();
      std::string blocks;
      for ( auto const & selector : layout.selectors ) {
         blocks += ( blocks.empty() ? "" : " " ) + std::to_string( selector.a ) + ":" + std::to_string( selector.b );
      }
      unsigned const lastIndex = layout.arrayIndexFirst + layout.arrayElements - 1u;
      columns.row(
         { layout.entries == 0 ? "-" : std::to_string( layout.entries ),
           std::to_string( layout.width ),
           isArrayed( layout ) ? std::to_string( layout.arrayIndexFirst ) + "-" + std::to_string( lastIndex ) : "-",
           table.hasMemory ? hexadecimal( layout.base ) : "-",
           layout.arrayStep == 0 ? "-" : hexadecimal( layout.arrayStep ),
           blocks.empty() ? "-" : blocks,
           layout.sdkDefinedId == -1 ? "-" : std::to_string( layout.sdkDefinedId ),
           group.text( table ) } );
   }
   columns.print( out, 2 );
}

// The picture of one group, and the list of its fields. What differs from the first group is marked.
void showFields( std::ostream & out, LayoutGroup const & group, LayoutGroup const & first, Style const & style ) {
   Layout const & layout = group.like();
   bool const isFirst = &group == &first;
   auto const differs = [&]( Catalogue::Field const & field ) {
      return isFirst ? std::string() : difference( field, first.like() );
   };
   Letters const letters = drawBits(
      out,
      layout,
      [&]( auto const & field ) { return ( differs( field ).empty() ? "" : "*" ) + std::string( field.name ); },
      [&]( auto const & field, std::string const & text ) {
         return differs( field ).empty() ? text : style.differs( text );
      } );

   Columns columns;
   std::vector< Catalogue::Field const * > fields;
   for ( auto const & field : layout.fields ) {
      fields.push_back( &field );
   }
   std::ranges::stable_sort( fields, {}, &Catalogue::Field::offset );
   for ( auto const * field : fields ) {
      std::string letter;
      for ( auto const & [word, names] : letters ) {
         if ( auto const found = names.find( field->name ); found != names.end() && letter.empty() ) {
            letter = std::to_string( word ) + std::string( 1, found->second );
         }
      }
      std::string const how = differs( *field );
      std::string const note = how.empty() ? "" : "* " + how;
      std::string const name = field->readOnly ? std::string( field->name ) + " (set by the chip)" : field->name;
      columns.row( { style.faint( letter ),
                     bitsText( *field ),
                     counted( field->width, "bit", "bits" ),
                     how.empty() ? name : style.differs( name ),
                     style.differs( note ) } );
   }
   if ( !isFirst ) {
      for ( auto const & field : first.like().fields ) {
         if ( !layout.field( field.name ) ) {
            columns.row(
               { "", "-", "", style.differs( field.name ), style.differs( "* " + bitsText( field ) + " there" ) } );
         }
      }
   }
   columns.rightAlign( 1 );
   columns.rightAlign( 2 );
   columns.print( out, 2 );
}

Value numberOrNull( bool isThere, std::int64_t number ) {
   return isThere ? Value( number ) : Value();
}

Value layoutValue( Layout const & layout ) {
   Value::List selectors;
   for ( auto const & selector : layout.selectors ) {
      selectors.push_back( Value::List{ selector.a, selector.b } );
   }
   Value::List fields;
   for ( auto const & field : layout.fields ) {
      fields.push_back( Value::Object{ { "name", field.name }, { "offset", field.offset }, { "width", field.width } } );
   }
   Value::Object value{ { "entries", numberOrNull( layout.entries != 0, layout.entries ) },
                        { "width", layout.width },
                        { "arrayElements", layout.arrayElements },
                        { "arrayIndexMin", layout.arrayIndexMin },
                        { "sdkDefinedId", numberOrNull( layout.sdkDefinedId != -1, layout.sdkDefinedId ) },
                        { "instanceCount", layout.instanceCount },
                        { "base", layout.base },
                        { "arrayStep", numberOrNull( layout.arrayStep != 0, layout.arrayStep ) },
                        { "selectors", selectors },
                        { "fields", fields } };
   if ( layout.arrayIndexFirst != layout.arrayIndexMin ) {
      value["arrayIndexAccepted"] =
         Value::List{ layout.arrayIndexFirst, layout.arrayIndexFirst + layout.arrayElements - 1 };
   }
   return value;
}

} // namespace

bool isOnChip( Catalogue::Table const & table, U8 chipType ) {
   return chipType == 0 || std::ranges::find( table.chips, chipType ) != table.chips.end();
}

void listTables( std::ostream & out, U8 chipType, Style const & style ) {
   Columns columns;
   columns.row( { style.strong( "table" ),
                  style.strong( "kind" ),
                  style.strong( "entries" ),
                  style.strong( "words" ),
                  style.strong( "arrays" ),
                  style.strong( "variants" ),
                  style.strong( "fields" ),
                  style.strong( "chips" ) } );
   std::size_t count = 0;
   for ( auto const & table : Catalogue::tables() ) {
      if ( !isOnChip( table, chipType ) ) {
         continue;
      }
      ++count;
      bool const isEverywhere = table.chips.size() == Hardware::allChipTypes.size();
      std::string chips = isEverywhere ? "all" : "";
      for ( U8 const chip : table.chips ) {
         chips += isEverywhere ? "" : ( chips.empty() ? "" : " " ) + std::to_string( chip );
      }
      columns.row( { table.name,
                     style.faint( kindText( table ) ),
                     table.isMemory ? span( table, chipType, []( auto const & it ) { return it.entries; } ) : "",
                     span( table, chipType, []( auto const & it ) { return it.width; } ),
                     span( table, chipType, []( auto const & it ) { return it.arrayElements; } ),
                     std::to_string( table.variantCount ),
                     span( table, chipType, []( auto const & it ) { return it.fields.size(); } ),
                     chips } );
   }
   for ( std::size_t const column : { 2u, 3u, 4u, 5u, 6u } ) {
      columns.rightAlign( column );
   }
   columns.print( out );
   out << '\n' << counted( count, "table", "tables" ) << "; `l3sm catalogue TABLE` draws one\n";
}

void showTable( std::ostream & out,
                Catalogue::Table const & table,
                U8 chipType,
                std::vector< Touch > const & touches,
                std::string const & runs,
                Style const & style ) {
   out << style.title( table.name ) << "  " << kindText( table ) << ", "
       << counted( table.chips.size(), "chip", "chips" ) << ", " << counted( table.variantCount, "variant", "variants" )
       << "\n\n";
   showGeometry( out, table, chipType, style );
   auto const groups = fieldGroups( table, chipType );
   for ( LayoutGroup const & group : groups ) {
      out << '\n' << style.strong( group.text( table ) );
      if ( &group != &groups.front() ) {
         out << "  " << style.differs( "* differs from " + groups.front().text( table ) );
      }
      out << '\n';
      showFields( out, group, groups.front(), style );
   }
   if ( !table.hasMemory ) {
      return; // what no chip holds is touched by nobody
   }
   out << '\n' << style.strong( "Touched by" ) << ( touches.empty() ? "  no function in " + runs : "" ) << '\n';
   Columns columns;
   for ( Touch const & touch : touches ) {
      columns.row( { touch.function, style.faint( touch.source ), touch.does(), touch.fields } );
   }
   columns.print( out, 2 );
}

Value tableValue( Catalogue::Table const & table, U8 chipType ) {
   Value::List chips;
   for ( U8 const chip : table.chips ) {
      if ( chipType == 0 || chip == chipType ) {
         chips.push_back( chip );
      }
   }
   Value::Object layouts;
   for ( Layout const & layout : table.layouts ) {
      if ( chipType == 0 || layout.chipType == chipType ) {
         auto & variants = layouts.try_emplace( std::to_string( layout.chipType ), Value::Object() ).first->second;
         variants.object()->emplace( std::to_string( layout.variant ), layoutValue( layout ) );
      }
   }
   Value::Object value{ { "kind", table.isMemory ? "memory" : "register" },
                        { "chips", chips },
                        { "variantCount", table.variantCount },
                        { "layouts", layouts } };
   if ( !table.hasMemory ) {
      value["format"] = true;
   }
   return value;
}

} // namespace Inspection
