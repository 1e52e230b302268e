#include "inspection/files/ChipsText.h"

#include "inspection/files/JsonElements.h"
#include "simulator/TableMap.h"

#include <utility>

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

Simulator::Words wordsOf( element value ) {
   Simulator::Words words;
   JsonElements::wordsInto( words, value );
   return words;
}

EntryContents entryOf( element value ) {
   EntryContents contents;
   bool isRead = false;
   auto const refuse = [] { throw ValueError( "", "an entry has either \"words\" or \"instances\"" ); };
   for ( auto const [key, part] : objectIn( value ) ) {
      if ( ( key == "words" || key == "instances" ) && std::exchange( isRead, true ) ) {
         refuse();
      }
      if ( key == "words" ) {
         contents.copies.push_back( Rex::below( "words", [&] { return wordsOf( part ); } ) );
      } else if ( key == "instances" ) {
         contents.copies = Rex::below( "instances", [&] { return copiesOf( numbered( part, wordsOf ) ); } );
      } else if ( key != "fields" ) { // said once more, in other words
         throw ValueError( "", "an entry has \"words\" or \"instances\", no \"" + std::string( key ) + "\"" );
      }
   }
   if ( !isRead ) {
      refuse();
   }
   return contents;
}

} // namespace

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

} // namespace Inspection
