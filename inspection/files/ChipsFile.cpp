#include "inspection/files/ChipsFile.h"

#include "inspection/files/ChipsReader.h"
#include "inspection/files/ChipsWriter.h"
#include "simulator/TableMap.h"
#include "state/CellStatus.h"

#include <charconv>

namespace Inspection {

namespace {

using Rex::Value;
using Rex::ValueError;
using Simulator::ArrayContents;
using Simulator::EntryContents;
using Simulator::Words;

U32 wordFromValue( Value const & value ) {
   auto const * text = value.text();
   U32 word = 0;
   if ( text && text->size() > 2 && text->starts_with( "0x" ) ) {
      auto const [end, error] = std::from_chars( text->data() + 2, text->data() + text->size(), word, 16 );
      if ( error == std::errc{} && end == text->data() + text->size() ) {
         return word;
      }
   }
   Rex::throwWrongKind( "a word like \"0x00000a00\"", value );
}

// An object whose keys are numbers.
template< class Read >
auto numbered( Value const & value, Read const & read ) {
   std::map< U32, decltype( read( value ) ) > all;
   forEachMember( value, [&]( std::string const & key, Value const & part ) {
      all.emplace( Rex::Codec< U32 >::fromKey( key ), read( part ) );
   } );
   return all;
}

EntryContents entryFromValue( Value const & value ) {
   Fields fields( value );
   fields.find( "fields" ); // said once more, in other words
   EntryContents contents;
   bool const alike = fields.find( "words" ) != nullptr;
   if ( alike == ( fields.find( "instances" ) != nullptr ) ) {
      throw ValueError( "", "an entry has either \"words\" or \"instances\"" );
   }
   fields.with( "words", [&]( Value const & words ) { contents.copies.push_back( wordsFromValue( words ) ); } );
   fields.with( "instances", [&]( Value const & instances ) {
      contents.copies = copiesOf( numbered( instances, wordsFromValue ) );
   } );
   fields.end();
   return contents;
}

Simulator::Contents contentsOf( Fields & fields ) {
   Simulator::Contents contents;
   Rex::ValueErrors errors;
   errors.of( [&] {
      fields.with( "controls", [&]( Value const & controls ) {
         contents.controls =
            numbered( controls, []( Value const & part ) { return Rex::Codec< U32 >::fromValue( part ); } );
      } );
   } );
   errors.of(
      [&] { fields.with( "tables", [&]( Value const & tables ) { contents.tables = tablesFromValue( tables ); } ); } );
   errors.of( [&] { fields.end(); } );
   errors.end();
   return contents;
}

FapContents fapContentsFromValue( Value const & value ) {
   FapContents fap;
   Rex::ValueErrors errors;
   Fields fields( value );
   bool const isKnown = errors.of( [&] {
      auto const & chipType = fields.required( "chipType" );
      fap.chipType = Rex::below( "chipType", [&] { return chipTypeFromValue( chipType ); } );
   } );
   errors.of( [&] { fap.contents = contentsOf( fields ); } );
   if ( isKnown ) {
      errors.below( "tables", [&] { Simulator::check( fap.contents.tables, fap.chipType ); } );
   }
   errors.end();
   return fap;
}

// An object whose keys are the numbers of `all`.
template< class All, class Write >
Value::Object objectOf( All const & all, Write const & write ) {
   Value::Object object;
   for ( auto const & [number, part] : all ) {
      object.emplace_hint( object.end(), std::to_string( number ), write( part ) );
   }
   return object;
}

Value valueOf( Words const & words ) {
   Value::List list;
   for ( U32 const word : words ) {
      list.emplace_back( wordText( word ) );
   }
   return list;
}

Value valueOf( EntryContents const & entry ) {
   if ( entry.copies.size() == 1 ) {
      return Value::Object{ { "words", valueOf( entry.copies[0] ) } };
   }
   Value::Object instances;
   for ( std::size_t copy = 0; copy < entry.copies.size(); ++copy ) {
      instances.emplace( std::to_string( copy ), valueOf( entry.copies[copy] ) );
   }
   return Value::Object{ { "instances", std::move( instances ) } };
}

void appendWords( std::string & text, Words const & words ) {
   char const * before = "[\"";
   for ( U32 const word : words ) {
      text += before + wordText( word );
      before = "\", \"";
   }
   text += words.empty() ? "[]" : "\"]";
}

// The members of an object, each on a line of its own.
template< class Members, class Write >
void writeObject( std::ostream & out, Members const & members, int indent, Write const & write ) {
   char const * before = "{";
   for ( auto const & [key, member] : members ) {
      out << before << '\n' << std::string( static_cast< std::size_t >( indent ), ' ' ) << '"' << key << "\": ";
      write( key, member );
      before = ",";
   }
   out << ( members.empty() ? "{}" : "}" );
}

} // namespace

void appendEntry( std::string & text, EntryContents const & entry, Catalogue::Layout const & layout ) {
   if ( entry.copies.size() > 1 ) {
      char const * before = "{\"instances\": {\"";
      for ( std::size_t copy = 0; copy < entry.copies.size(); ++copy ) {
         text += before + std::to_string( copy ) + "\": ";
         appendWords( text, entry.copies[copy] );
         before = ", \"";
      }
      text += "}}";
      return;
   }
   text += "{\"words\": ";
   appendWords( text, entry.copies[0] );
   char const * before = ", \"fields\": {\"";
   for ( auto const & field : Simulator::decode( layout, entry.copies[0] ) ) {
      text += before;
      text += field.name;
      text += "\": \"" + field.value + '"';
      before = ", \"";
   }
   text += "}}";
}

std::string wordText( U32 word ) {
   char text[11];
   std::snprintf( text, sizeof text, "0x%08x", word );
   return text;
}

Words wordsFromValue( Value const & value ) {
   Words words;
   for ( auto const & word : listOf( value ) ) {
      words.push_back( Rex::below( std::to_string( words.size() ), [&] { return wordFromValue( word ); } ) );
   }
   return words;
}

Hardware::ChipType chipTypeFromValue( Value const & value ) {
   try {
      return Rex::Codec< Hardware::Dace::FapRevision >::fromValue( Value::Object{ { "chipType", value } } ).chipType();
   } catch ( ValueError const & error ) {
      throw ValueError( "", error.what() ); // the object is made here: its key is no place of the file
   }
}

std::vector< Simulator::Words > copiesOf( std::map< U32, Simulator::Words > const & instances ) {
   std::vector< Simulator::Words > copies;
   for ( auto const & [instance, words] : instances ) {
      if ( instance != copies.size() ) {
         throw ValueError( "/" + std::to_string( instance ), "expected instance " + std::to_string( copies.size() ) );
      }
      copies.push_back( words );
   }
   if ( copies.size() < 2 ) {
      throw ValueError( "", "instances are two or more: give \"words\" where all hold the same" );
   }
   return copies;
}

Simulator::TablesContents tablesFromValue( Value const & value ) {
   Simulator::TablesContents tables;
   forEachMember( value, [&]( std::string const & name, Value const & variants ) {
      tables[name] = numbered( variants, []( Value const & arrays ) {
         return numbered( arrays, []( Value const & entries ) { return numbered( entries, entryFromValue ); } );
      } );
   } );
   return tables;
}

Simulator::Contents contentsFromValue( Value const & value ) {
   auto const & object = objectOf( value );
   if ( !object.contains( "tables" ) && !object.contains( "controls" ) ) {
      return { .controls = {}, .tables = tablesFromValue( value ) };
   }
   Fields fields( value );
   return contentsOf( fields );
}

Value valueOf( Simulator::Contents const & contents ) {
   Value::Object tables;
   for ( auto const & [name, variants] : contents.tables ) {
      tables.emplace( name, objectOf( variants, []( auto const & arrays ) {
                         return objectOf( arrays, []( ArrayContents const & entries ) {
                            return objectOf( entries, []( EntryContents const & entry ) { return valueOf( entry ); } );
                         } );
                      } ) );
   }
   return Value::Object{ { "tables", std::move( tables ) },
                         { "controls", objectOf( contents.controls, []( U32 value ) { return Value( value ); } ) } };
}

ChipsFile chipsOf( Simulator::SimulatedSwitch const & sw ) {
   ChipsFile chips;
   for ( auto const & fap : sw.description().faps ) {
      auto const chipType = fap.revision.chipType();
      chips[fap.fapId.value()] = { chipType, contentsOf( sw.chip( fap.fapId ), chipType ) };
   }
   return chips;
}

void writeTables( std::ostream & out,
                  Simulator::TablesContents const & tables,
                  Hardware::ChipType chipType,
                  int indent ) {
   writeObject( out, tables, indent, [&]( std::string const & name, auto const & variants ) {
      auto const & table = *Catalogue::table( name );
      writeObject( out, variants, indent + 1, [&]( U32 variant, auto const & arrays ) {
         auto const & layout = *Catalogue::layout( table, static_cast< U8 >( chipType ), static_cast< U8 >( variant ) );
         writeObject( out, arrays, indent + 2, [&]( U32, ArrayContents const & entries ) {
            writeObject( out, entries, indent + 3, [&]( U32, EntryContents const & entry ) {
               std::string text;
               appendEntry( text, entry, layout );
               out << text;
            } );
         } );
      } );
   } );
}

void writeChips( std::ostream & out, ChipsFile const & chips ) {
   out << "{\"faps\": ";
   writeObject( out, chips, 1, [&]( U16, FapContents const & fap ) {
      out << "{\"chipType\": \"" << fap.chipType << "\",\n  \"controls\": {";
      char const * before = "\"";
      for ( auto const & [control, value] : fap.contents.controls ) {
         out << before << control << "\": " << value;
         before = ", \"";
      }
      out << "},\n  \"tables\": ";
      writeTables( out, fap.contents.tables, fap.chipType, 3 );
      out << '}';
   } );
   out << "}\n";
}

ChipsFile readChips( std::string const & path ) {
   JsonText text = readJsonText( path );
   auto const value = text.take();
   return text.reading( [&] {
      ChipsFile chips;
      Rex::ValueErrors errors;
      Fields fields( value );
      errors.of( [&] {
         auto const & faps = fields.required( "faps" );
         Rex::below( "faps", [&] {
            forEachMember( faps, [&]( std::string const & key, Value const & fap ) {
               chips.emplace( Rex::Codec< U16 >::fromKey( key ), fapContentsFromValue( fap ) );
            } );
         } );
      } );
      errors.of( [&] { fields.end(); } );
      errors.end();
      return chips;
   } );
}

} // namespace Inspection
