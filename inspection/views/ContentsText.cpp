#include "inspection/views/ContentsText.h"

#include <algorithm>

namespace Inspection {

namespace {

using Rex::Value;
using Simulator::EntryContents;
using Simulator::Words;

// `each( table's name, its layout, array index, entry, contents )`.
void eachEntry( FapContents const & fap, auto const & each ) {
   for ( auto const & [name, variants] : fap.contents.tables ) {
      auto const & table = *Catalogue::table( name );
      for ( auto const & [variant, arrays] : variants ) {
         auto const & layout =
            *Catalogue::layout( table, static_cast< U8 >( fap.chipType ), static_cast< U8 >( variant ) );
         for ( auto const & [array, entries] : arrays ) {
            for ( auto const & [entry, contents] : entries ) {
               each( table, layout, array, entry, contents );
            }
         }
      }
   }
}

// One entry, or one copy of it where the copies differ: its place and its values, in the order of the fields.
struct Row {
   std::string place;
   std::vector< std::string > values; // as a dump has them
};

bool isSet( std::string const & value ) {
   return value != "0x0";
}

// A table whose set fields fit side by side becomes columns; a wider one a list, a line for each field.
void showRows( std::ostream & out,
               Catalogue::Table const & table,
               Catalogue::Layout const & layout,
               std::vector< Row > const & rows,
               ContentsShown const & how,
               Style const & style ) {
   bool const all = how.all;
   std::vector< std::size_t > shown;
   for ( std::size_t field = 0; field < layout.fields.size(); ++field ) {
      if ( !how.filter.isField( table.name, layout.fields[field].name ) ) {
         continue;
      }
      if ( all || std::ranges::any_of( rows, [&]( Row const & row ) { return isSet( row.values[field] ); } ) ) {
         shown.push_back( field );
      }
   }
   if ( shown.empty() ) {
      out << "  " << style.faint( counted( rows.size(), "entry", "entries" ) + ", no field set" ) << '\n';
      return;
   }
   Columns columns;
   std::vector< std::string > head{ "" };
   for ( std::size_t const field : shown ) {
      head.push_back( style.faint( layout.fields[field].name ) );
   }
   columns.row( head );
   for ( Row const & row : rows ) {
      std::vector< std::string > cells{ style.place( row.place ) };
      for ( std::size_t const field : shown ) {
         auto const & value = row.values[field];
         cells.push_back( isSet( value ) || all ? readable( value ) : style.faint( "·" ) );
      }
      columns.row( cells );
   }
   if ( columns.width() + 2 <= lineWidth() ) {
      for ( std::size_t column = 1; column <= shown.size(); ++column ) {
         columns.rightAlign( column );
      }
      columns.print( out, 2 );
      return;
   }
   Columns list;
   for ( Row const & row : rows ) {
      std::string place = style.place( row.place );
      bool isBare = true;
      for ( std::size_t const field : shown ) {
         if ( isSet( row.values[field] ) || all ) {
            list.row( { place, layout.fields[field].name, readable( row.values[field] ) } );
            place.clear();
            isBare = false;
         }
      }
      if ( isBare ) {
         list.row( { place, style.faint( "no field set" ) } );
      }
   }
   list.print( out, 2 );
}

Value entryValue( Catalogue::Table const & table,
                  Catalogue::Layout const & layout,
                  EntryContents const & contents,
                  ContentsShown const & shown ) {
   auto const words = []( Words const & of ) {
      Value::List list;
      for ( U32 const word : of ) {
         list.push_back( wordText( word ) );
      }
      return list;
   };
   auto const fields = [&]( Words const & of ) {
      Value::Object object;
      for ( auto const & field : Simulator::decode( layout, of ) ) {
         if ( ( shown.all || isSet( field.value ) ) && shown.filter.isField( table.name, field.name ) ) {
            object[field.name] = field.value;
         }
      }
      return object;
   };
   if ( contents.copies.size() == 1 ) {
      return Value::Object{ { "words", words( contents.copies[0] ) }, { "fields", fields( contents.copies[0] ) } };
   }
   Value::Object instances;
   for ( std::size_t copy = 0; copy < contents.copies.size(); ++copy ) {
      instances[std::to_string( copy )] = words( contents.copies[copy] );
   }
   return Value::Object{ { "instances", instances } };
}

Value & at( Value & object, std::string const & key ) {
   return object.object()->try_emplace( key, Value::Object() ).first->second;
}

} // namespace

void showContents(
   std::ostream & out, U16 fap, FapContents const & contents, ContentsShown const & shown, Style const & style ) {
   out << style.title( "FAP " + std::to_string( fap ) ) << "  " << contents.chipType << '\n';
   if ( !contents.contents.controls.empty() ) {
      out << '\n' << style.strong( "controls" ) << '\n';
      Columns controls;
      for ( auto const & [control, value] : contents.contents.controls ) {
         controls.row( { style.place( std::to_string( control ) ), std::to_string( value ) } );
      }
      controls.rightAlign( 0 );
      controls.print( out, 2 );
   }
   Catalogue::Table const * table = nullptr;
   Catalogue::Layout const * layout = nullptr;
   std::vector< Row > rows;
   auto const flush = [&] {
      if ( layout ) {
         out << '\n' << style.strong( table->name );
         if ( hasVariants( *table ) ) {
            out << style.faint( "  variant " + std::to_string( layout->variant ) );
         }
         out << '\n';
         showRows( out, *table, *layout, rows, shown, style );
      }
      rows.clear();
   };
   eachEntry( contents, [&]( auto const & of, auto const & here, U32 array, U32 entry, EntryContents const & it ) {
      if ( &here != layout ) {
         flush();
         table = &of;
         layout = &here;
      }
      for ( std::size_t copy = 0; copy < it.copies.size(); ++copy ) {
         Row row{ entryText( here, array, entry ), {} };
         row.place += it.copies.size() > 1 ? " instance " + std::to_string( copy ) : "";
         for ( auto const & field : Simulator::decode( here, it.copies[copy] ) ) {
            row.values.push_back( field.value );
         }
         rows.push_back( std::move( row ) );
      }
   } );
   if ( !layout && contents.contents.controls.empty() ) {
      out << "  nothing of what was asked for has a value\n";
   }
   flush();
}

Value contentsValue( FapContents const & contents, ContentsShown const & shown ) {
   Value tables = Value::Object();
   eachEntry( contents, [&]( auto const & table, auto const & layout, U32 array, U32 entry, EntryContents const & it ) {
      Value & entries = at( at( at( tables, table.name ), std::to_string( layout.variant ) ), std::to_string( array ) );
      at( entries, std::to_string( entry ) ) = entryValue( table, layout, it, shown );
   } );
   Value::Object value{ { "chipType", Hardware::chipTypeName( contents.chipType ) }, { "tables", tables } };
   if ( shown.filter.hasControls() ) {
      Value::Object controls;
      for ( auto const & [control, number] : contents.contents.controls ) {
         controls[std::to_string( control )] = number;
      }
      value["controls"] = controls;
   }
   return value;
}

} // namespace Inspection
