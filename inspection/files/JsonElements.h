// Parts of JSON lines as the parser hands them over, taken for what they must be.
//
//    dom::object const & row = …;
//    auto const fap = JsonElements::number< U16 >( row, "fap" );      // Rex::ValueError "/fap: expected a number from
//    …"
//
// Threading: none.
#pragma once

#include "rex/Value.h"

#include <algorithm>
#include <limits>
#include <simdjson.h>
#include <string_view>
#include <vector>

namespace Inspection::JsonElements {

namespace dom = simdjson::dom;
using Rex::ValueError;

dom::element member( dom::object const & object, char const * key );
bool boolean( dom::object const & object, char const * key );
std::string_view text( dom::object const & object, char const * key );
Rex::Value valueOf( dom::element element );
void wordsInto( std::vector< U32 > & words, dom::element element );

template< class T >
T number( dom::element element, char const * key ) {
   std::uint64_t value = 0;
   if ( element.get( value ) || value > std::numeric_limits< T >::max() ) {
      throw ValueError( Rex::pointerStep( key ),
                        "expected a number from 0 to " + std::to_string( std::numeric_limits< T >::max() ) );
   }
   return static_cast< T >( value );
}

template< class T >
T number( dom::object const & object, char const * key ) {
   return number< T >( member( object, key ), key );
}

// The place of a text in a list of names.
template< class Kind, std::size_t count >
Kind oneOf( std::string_view word, char const * key, std::string_view const ( &names )[count] ) {
   auto const found = std::ranges::find( names, word );
   if ( found == std::end( names ) ) {
      std::string known;
      for ( auto const name : names ) {
         known += ( known.empty() ? "" : ", " ) + std::string( name );
      }
      throw ValueError( Rex::pointerStep( key ), "\"" + std::string( word ) + "\" is none of " + known );
   }
   return static_cast< Kind >( found - names );
}

} // namespace Inspection::JsonElements
