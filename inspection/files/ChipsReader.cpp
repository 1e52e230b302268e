#include "inspection/files/ChipsReader.h"

#include "inspection/files/FileKind.h"
#include "inspection/files/JsonElements.h"
#include "inspection/files/JsonStream.h"
#include "simulator/TableMap.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <set>

namespace Inspection {

namespace {

using JsonElements::dom::element;
using JsonElements::dom::object;
using Rex::ValueError;
using Simulator::EntryContents;

simdjson::dom::parser & parser() {
   static simdjson::dom::parser one;
   return one;
}

element parsed( std::string_view text ) {
   element root;
   if ( auto const error = parser().parse( text.data(), text.size(), false ).get( root ) ) {
      throw ValueError( "", std::string( "no JSON: " ) + simdjson::error_message( error ) );
   }
   return root;
}

object objectIn( element value ) {
   object members;
   if ( value.get( members ) ) {
      throw ValueError( "", "expected an object" );
   }
   return members;
}

// An object whose keys are numbers.
template< class Read >
auto numbered( element value, Read const & read ) {
   std::map< U32, decltype( read( value ) ) > all;
   for ( auto const [key, part] : objectIn( value ) ) {
      std::string const name( key );
      Rex::below( name, [&] {
         auto const number = Rex::Codec< U32 >::fromKey( name );
         if ( all.contains( number ) ) {
            throw ValueError( "", "stands twice" );
         }
         all.emplace_hint( all.end(), number, read( part ) );
      } );
   }
   return all;
}

EntryContents entryOf( element value ) {
   EntryContents contents;
   bool hasWords = false;
   bool hasInstances = false;
   for ( auto const [key, part] : objectIn( value ) ) {
      if ( key == "words" ) {
         hasWords = true;
         JsonElements::wordsInto( contents.copies.emplace_back(), part, "words" );
      } else if ( key == "instances" ) {
         hasInstances = true;
         for ( auto const [instance, words] : objectIn( part ) ) {
            auto const expected = std::to_string( contents.copies.size() );
            if ( instance != expected ) {
               throw ValueError( "/instances/" + std::string( instance ), "expected instance " + expected );
            }
            JsonElements::wordsInto( contents.copies.emplace_back(), words, "instances" );
         }
         if ( contents.copies.size() < 2 ) {
            throw ValueError( "/instances", "instances are two or more: give \"words\" where all hold the same" );
         }
      } else if ( key != "fields" ) { // said once more, in other words
         throw ValueError( "", "an entry has \"words\" or \"instances\", no \"" + std::string( key ) + "\"" );
      }
   }
   if ( hasWords == hasInstances ) {
      throw ValueError( "", "an entry has either \"words\" or \"instances\"" );
   }
   return contents;
}

void readFap( JsonStream & json, std::string const & pointer, ChipsFilter const & filter, FapContents & fap ) {
   bool hasChipType = false;
   json.enter();
   for ( std::string key; json.nextKey( key ); ) {
      if ( key == "chipType" ) {
         hasChipType = true;
         fap.chipType = Rex::below( key, [&] { return chipTypeFromText( json.value() ); } );
      } else if ( key == "controls" ) {
         fap.contents.controls = Rex::below( key, [&] { return controlsFromText( json.value() ); } );
      } else if ( key == "tables" ) {
         json.enter();
         for ( std::string name; json.nextKey( name ); ) {
            if ( !filter.isWanted( name ) ) {
               json.skip();
            } else if ( fap.contents.tables.contains( name ) ) {
               throw ValueError( "/tables" + Rex::pointerStep( name ), "stands twice" );
            } else {
               Rex::below( "tables", [&] {
                  Rex::below( name, [&] { fap.contents.tables[name] = tableFromText( json.value() ); } );
               } );
            }
         }
      } else {
         throw ValueError( Rex::pointerStep( key ), "is unknown here" );
      }
   }
   if ( !hasChipType ) {
      throw ValueError( "", "\"chipType\" is missing" );
   }
   checkFits( json.path(), pointer + "/tables", fap );
}

} // namespace

bool ChipsFilter::isWanted( std::string_view table ) const {
   return tables.empty() || std::ranges::find( tables, table ) != tables.end();
}

Simulator::TableContents tableFromText( std::string_view text ) {
   return numbered( parsed( text ), []( element arrays ) {
      return numbered( arrays, []( element entries ) { return numbered( entries, entryOf ); } );
   } );
}

std::map< U32, U32 > controlsFromText( std::string_view text ) {
   return numbered( parsed( text ), []( element value ) {
      std::uint64_t number = 0;
      if ( value.get( number ) || number > 0xffffffff ) {
         throw ValueError( "", "expected a number from 0 to 4294967295" );
      }
      return static_cast< U32 >( number );
   } );
}

Hardware::ChipType chipTypeFromText( std::string_view text ) {
   return chipTypeFromValue( JsonElements::valueOf( parsed( text ) ) );
}

void checkFits( std::string const & path, std::string const & pointer, FapContents const & fap ) {
   inFile( path + ": " + pointer, [&] { Simulator::check( fap.contents.tables, fap.chipType ); } );
}

namespace {

void streamFaps( std::string const & path,
                 ChipsFilter const & filter,
                 std::function< void( U16 fap, FapContents contents ) > const & each ) {
   JsonStream json( path );
   if ( kindOf( json.ahead() ) != FileKind::chips ) {
      throw InputError( path, notA( FileKind::chips, json.ahead() ) );
   }
   std::set< U16 > seen;
   inFile( path, [&] {
      json.enter();
      for ( std::string key; json.nextKey( key ); ) {
         if ( key != "faps" ) {
            throw ValueError( Rex::pointerStep( key ), "is unknown here" );
         }
         json.enter();
         for ( std::string number; json.nextKey( number ); ) {
            Rex::below( "faps", [&] {
               Rex::below( number, [&] {
                  auto const fap = Rex::Codec< U16 >::fromKey( number );
                  if ( !seen.insert( fap ).second ) {
                     throw ValueError( "", "stands twice" );
                  }
                  if ( filter.fap && *filter.fap != fap ) {
                     json.skip();
                     return;
                  }
                  FapContents contents;
                  readFap( json, "/faps/" + number, filter, contents );
                  each( fap, std::move( contents ) );
               } );
            } );
         }
      }
      json.end();
   } );
   if ( filter.fap && !seen.contains( *filter.fap ) ) {
      throw InputError( path, "there is no FAP " + std::to_string( *filter.fap ) );
   }
}

// Whether it can be read once more, and as a whole.
bool isPlainChipsFile( std::string const & path ) {
   std::error_code none;
   return std::filesystem::is_regular_file( path, none ) && std::filesystem::file_size( path, none ) <= largestInput &&
          kindOf( readFile( path ) ) == FileKind::chips;
}

} // namespace

void eachFap( std::string const & path,
              ChipsFilter const & filter,
              std::function< void( U16 fap, FapContents contents ) > const & each ) {
   try {
      streamFaps( path, filter, each );
   } catch ( InputError const & ) {
      if ( isPlainChipsFile( path ) ) {
         readChips( path ); // which tells everything that is wrong with the file, each with its line
      }
      throw;
   }
}

std::map< U16, Hardware::ChipType > chipTypesIn( std::string const & path ) {
   std::map< U16, Hardware::ChipType > all;
   eachFap(
      path, { .tables = { "" } }, [&]( U16 fap, FapContents const & contents ) { all[fap] = contents.chipType; } );
   return all;
}

} // namespace Inspection
