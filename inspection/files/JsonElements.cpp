#include "inspection/files/JsonElements.h"

#include <charconv>

namespace Inspection::JsonElements {

using Rex::Value;

dom::element member( dom::object const & object, char const * key ) {
   dom::element element;
   if ( object[key].get( element ) ) {
      throw ValueError( "", std::string( "\"" ) + key + "\" is missing" );
   }
   return element;
}

bool boolean( dom::object const & object, char const * key ) {
   bool value = false;
   if ( member( object, key ).get( value ) ) {
      throw ValueError( Rex::pointerStep( key ), "expected true or false" );
   }
   return value;
}

std::string_view text( dom::object const & object, char const * key ) {
   std::string_view value;
   if ( member( object, key ).get( value ) ) {
      throw ValueError( Rex::pointerStep( key ), "expected a string" );
   }
   return value;
}

Value valueOf( dom::element element ) {
   switch ( element.type() ) {
   case dom::element_type::ARRAY: {
      Value::List list;
      for ( dom::element const part : dom::array( element ) ) {
         list.push_back( valueOf( part ) );
      }
      return list;
   }
   case dom::element_type::OBJECT: {
      Value::Object object;
      for ( auto const [key, part] : dom::object( element ) ) {
         object.emplace( key, valueOf( part ) );
      }
      return object;
   }
   case dom::element_type::INT64:
      return std::int64_t( element );
   case dom::element_type::UINT64:
   case dom::element_type::DOUBLE:
      throw ValueError( "", "a number that is too large, or not whole" );
   case dom::element_type::STRING:
      return std::string( std::string_view( element ) );
   case dom::element_type::BOOL:
      return bool( element );
   case dom::element_type::NULL_VALUE:
      break;
   }
   return {};
}

namespace {

U32 wordOf( dom::element element ) {
   std::string_view digits;
   U32 word = 0;
   if ( element.get( digits ) || digits.size() < 3 || digits.size() > 10 || !digits.starts_with( "0x" ) ||
        std::from_chars( digits.data() + 2, digits.data() + digits.size(), word, 16 ).ptr !=
           digits.data() + digits.size() ) {
      throw ValueError( "", "expected words such as \"0x00000a00\"" );
   }
   return word;
}

} // namespace

void wordsInto( std::vector< U32 > & words, dom::element element ) {
   dom::array list;
   if ( element.get( list ) ) {
      throw ValueError( "", "expected a list of words" );
   }
   words.clear();
   for ( dom::element const word : list ) {
      words.push_back( wordOf( word ) );
   }
}

} // namespace Inspection::JsonElements
