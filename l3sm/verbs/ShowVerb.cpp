// The verb `show`: chip contents, from a chips file or a journal, decoded by field.
#include "inspection/NamesAsTyped.h"
#include "inspection/ReplayedChips.h"
#include "inspection/files/ChipsReader.h"
#include "inspection/files/FileKind.h"
#include "inspection/views/ReplayText.h"
#include "inspection/views/Terminal.h"
#include "l3sm/verbs/Verbs.h"

#include <algorithm>
#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

using Rex::Value;
using Simulator::EntryContents;
using Simulator::Words;

struct Options {
   std::string file;
   std::vector< std::string > tables;
   std::optional< U16 > fap;
   std::optional< U32 > variant;
   std::optional< U32 > array;
   std::optional< U32 > entry;
   std::optional< U32 > at; // an event of a journal
   bool all = false;        // unset fields too
   bool json = false;
};

template< class Key >
bool wanted( std::optional< Key > const & filter, Key key ) {
   return !filter || *filter == key;
}

// What of the file is to be seen: `each( fap, table's name, variant, array index, entry, contents )`.
void selectEntries( FapContents const & fap, Options const & options, auto const & each ) {
   for ( auto const & [name, variants] : fap.contents.tables ) {
      if ( !options.tables.empty() && std::ranges::find( options.tables, name ) == options.tables.end() ) {
         continue;
      }
      for ( auto const & [variant, arrays] : variants ) {
         for ( auto const & [array, entries] : arrays ) {
            for ( auto const & [entry, contents] : entries ) {
               if ( wanted( options.variant, variant ) && wanted( options.array, array ) &&
                    wanted( options.entry, entry ) ) {
                  each( name, variant, array, entry, contents );
               }
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
               Catalogue::Layout const & layout,
               std::vector< Row > const & rows,
               bool all,
               Style const & style ) {
   std::vector< std::size_t > shown;
   for ( std::size_t field = 0; field < layout.fields.size(); ++field ) {
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

void showFap( std::ostream & out, U16 number, FapContents const & fap, Options const & options, Style const & style ) {
   out << style.title( "FAP " + std::to_string( number ) ) << "  " << fap.chipType << '\n';
   if ( options.tables.empty() && !fap.contents.controls.empty() ) {
      out << '\n' << style.strong( "controls" ) << '\n';
      Columns controls;
      for ( auto const & [control, value] : fap.contents.controls ) {
         controls.row( { style.place( std::to_string( control ) ), std::to_string( value ) } );
      }
      controls.rightAlign( 0 );
      controls.print( out, 2 );
   }
   std::string table;
   Catalogue::Layout const * layout = nullptr;
   std::vector< Row > rows;
   auto const flush = [&] {
      if ( layout ) {
         auto const & of = *Catalogue::table( table );
         out << '\n' << style.strong( table );
         if ( hasVariants( of ) ) {
            out << style.faint( "  variant " + std::to_string( layout->variant ) );
         }
         out << '\n';
         showRows( out, *layout, rows, options.all, style );
      }
      rows.clear();
   };
   selectEntries(
      fap, options, [&]( std::string const & name, U32 variant, U32 array, U32 entry, EntryContents const & contents ) {
         auto const * const here = Catalogue::layout(
            *Catalogue::table( name ), static_cast< U8 >( fap.chipType ), static_cast< U8 >( variant ) );
         if ( here != layout ) {
            flush();
            table = name;
            layout = here;
         }
         for ( std::size_t copy = 0; copy < contents.copies.size(); ++copy ) {
            Row row{ entryText( *here, array, entry ), {} };
            row.place += contents.copies.size() > 1 ? " instance " + std::to_string( copy ) : "";
            for ( auto const & field : Simulator::decode( *here, contents.copies[copy] ) ) {
               row.values.push_back( field.value );
            }
            rows.push_back( std::move( row ) );
         }
      } );
   if ( !layout ) {
      out << "  nothing of what was asked for has a value\n";
   }
   flush();
}

Value entryValue( Catalogue::Layout const & layout, EntryContents const & contents, bool all ) {
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
         if ( all || isSet( field.value ) ) {
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

// As in a chip-contents file, but for what wasn't asked for.
Value fapValue( FapContents const & fap, Options const & options ) {
   Value tables = Value::Object();
   selectEntries(
      fap, options, [&]( std::string const & name, U32 variant, U32 array, U32 entry, EntryContents const & contents ) {
         auto const & layout = *Catalogue::layout(
            *Catalogue::table( name ), static_cast< U8 >( fap.chipType ), static_cast< U8 >( variant ) );
         Value & entries = at( at( at( tables, name ), std::to_string( variant ) ), std::to_string( array ) );
         at( entries, std::to_string( entry ) ) = entryValue( layout, contents, options.all );
      } );
   Value::Object value{ { "chipType", Hardware::chipTypeName( fap.chipType ) }, { "tables", tables } };
   if ( options.tables.empty() ) {
      Value::Object controls;
      for ( auto const & [control, number] : fap.contents.controls ) {
         controls[std::to_string( control )] = number;
      }
      value["controls"] = controls;
   }
   return value;
}

// What a journal's chips held at its end, or when an event was over; returns what is odd about the journal.
std::vector< std::string > showJournal( Options const & options, auto const & show ) {
   JournalReader journal( options.file );
   ReplayedChips chips( journal );
   if ( options.at ) {
      chips.stopsAfter( *options.at );
   }
   auto const ending =
      journal.read( chips, { .table = options.tables.size() == 1 ? options.tables[0] : "", .readsToo = false } );
   if ( options.at && *options.at > ending.events ) {
      throw InputError( options.file,
                        "there is no event " + std::to_string( *options.at ) + "; the last is " +
                           std::to_string( ending.events ) );
   }
   if ( options.fap && !chips.chipTypes().contains( *options.fap ) ) {
      throw InputError( options.file, "there is no FAP " + std::to_string( *options.fap ) );
   }
   if ( !options.json ) {
      showRemarks( std::cout, journal.remarks(), Style::of( std::cout ) );
   }
   for ( auto const & [fap, chipType] : chips.chipTypes() ) {
      if ( wanted( options.fap, fap ) ) {
         show( fap, FapContents{ chipType, chips.contents( fap ) } );
      }
   }
   return journal.remarks();
}

int answer( Options const & options ) {
   for ( std::string const & table : options.tables ) {
      checkPlace( tableNamed( table ), { .variant = options.variant, .array = options.array, .entry = options.entry } );
   }
   Style const style = Style::of( std::cout );
   Value::Object faps;
   bool isFirst = true;
   auto const show = [&]( U16 number, FapContents const & fap ) {
      if ( options.json ) {
         faps[std::to_string( number )] = fapValue( fap, options );
      } else {
         std::cout << ( isFirst ? "" : "\n" );
         showFap( std::cout, number, fap, options, style );
      }
      isFirst = false;
   };
   std::vector< std::string > remarks;
   if ( kindOfFile( options.file ) == FileKind::journal ) {
      remarks = showJournal( options, show );
   } else if ( options.at ) {
      throw InputError( options.file, "--at asks for an event, and only a journal has events" );
   } else {
      eachFap( options.file, { .fap = options.fap, .tables = options.tables }, show );
   }
   if ( options.json ) {
      Value::Object all{ { "faps", faps } };
      if ( !remarks.empty() ) {
         all["remarks"] = Value::List( remarks.begin(), remarks.end() );
      }
      std::cout << toJson( all, 7 ) << '\n';
   } else if ( isFirst ) {
      std::cout << "no FAP\n";
   }
   return 0;
}

} // namespace

Action defineShow( VerbOptions & verb ) {
   auto const options = std::make_shared< Options >();
   verb.required( "FILE", options->file, "a file that `l3sm run --chips` or `--journal` wrote" );
   verb.texts( "TABLE", options->tables, "only these tables" );
   verb.number( "--fap", options->fap, "only this FAP" );
   verb.number( "--variant", options->variant, "only this variant" );
   verb.number( "--array", options->array, "only this array index" );
   verb.number( "--entry", options->entry, "only this entry" );
   verb.number( "--at", options->at, "from a journal: what stood there when this event was over, not at its end" );
   verb.flag( "--all", options->all, "unset fields too" );
   verb.flag( "--json", options->json, "for programs" );
   return [options] { return answer( *options ); };
}

} // namespace Cli
