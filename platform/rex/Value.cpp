#include "rex/Value.h"

#include "rex/Characters.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace Rex {

namespace {

// Bytes that are no character are written out, as "\\xff": a text from elsewhere makes no wrong JSON.
std::string quoted( std::string const & text ) {
   std::string out = "\"";
   for ( std::size_t at = 0; at < text.size(); ++at ) {
      char const c = text[at];
      if ( c == '"' || c == '\\' ) {
         out += '\\';
         out += c;
      } else if ( static_cast< unsigned char >( c ) < 0x20 ) {
         char escape[8];
         std::snprintf( escape, sizeof escape, "\\u%04x", static_cast< unsigned >( c ) );
         out += escape;
      } else if ( static_cast< unsigned char >( c ) < 0x80 ) {
         out += c;
      } else if ( auto const size = characterSize( std::string_view( text ).substr( at ) ) ) {
         out.append( text, at, size );
         at += size - 1;
      } else {
         char escape[8];
         std::snprintf(
            escape, sizeof escape, "\\\\x%02x", static_cast< unsigned >( static_cast< unsigned char >( c ) ) );
         out += escape;
      }
   }
   return out + "\"";
}

} // namespace

// Compiled once: what a variant of six kinds needs for a copy is long.
Value::Value() = default;
Value::Value( Value const & ) = default;
Value::Value( Value && ) noexcept = default;
Value & Value::operator=( Value const & ) = default;
Value & Value::operator=( Value && ) noexcept = default;
Value::~Value() = default;
Value::Value( std::nullptr_t ) {}
Value::Value( bool value ) : value_( value ) {}
Value::Value( Integer value ) : value_( value.value ) {}
Value::Value( std::string value ) : value_( std::move( value ) ) {}
Value::Value( char const * value ) : value_( std::string( value ) ) {}
Value::Value( List value ) : value_( std::move( value ) ) {}
Value::Value( Object value ) : value_( std::move( value ) ) {}

bool operator==( Value const & left, Value const & right ) {
   return left.value_ == right.value_;
}

std::string kindOf( Value const & value ) {
   return value.isNull()    ? "null"
          : value.boolean() ? "a boolean"
          : value.integer() ? "a number"
          : value.text()    ? "a string"
          : value.list()    ? "a list"
                            : "an object";
}

std::string toText( Value const & value ) {
   if ( auto const * boolean = value.boolean() ) {
      return *boolean ? "true" : "false";
   }
   if ( auto const * integer = value.integer() ) {
      return std::to_string( *integer );
   }
   if ( auto const * text = value.text() ) {
      return quoted( *text );
   }
   std::string out;
   if ( auto const * list = value.list() ) {
      for ( auto const & element : *list ) {
         out += ( out.empty() ? "" : ", " ) + toText( element );
      }
      return "[" + out + "]";
   }
   if ( auto const * object = value.object() ) {
      for ( auto const & [key, element] : *object ) {
         out += ( out.empty() ? "" : ", " ) + quoted( key ) + ": " + toText( element );
      }
      return "{" + out + "}";
   }
   return "null";
}

std::string pointerStep( std::string const & key ) {
   std::string out = "/";
   for ( char const c : key ) {
      out += c == '~' ? "~0" : c == '/' ? "~1" : std::string( 1, c );
   }
   return out;
}

bool isAtOrBelow( std::string_view path, std::string_view owner ) {
   return path.starts_with( owner ) && ( path.size() == owner.size() || path[owner.size()] == '/' );
}

ValueError ValueError::below( std::string const & key ) const {
   auto seen = faults_;
   for ( auto & fault : seen ) {
      fault.place.insert( 0, pointerStep( key ) );
   }
   return ValueError( std::move( seen ) );
}

void throwWrongKind( std::string const & wanted, Value const & got ) {
   bool const small = !got.list() && !got.object() && !got.isNull();
   throw ValueError( "", "expected " + wanted + ", got " + ( small ? toText( got ) : kindOf( got ) ) );
}

bool Codec< bool >::fromValue( Value const & value ) {
   if ( auto const * boolean = value.boolean() ) {
      return *boolean;
   }
   throwWrongKind( "true or false", value );
}

std::string Codec< std::string >::fromValue( Value const & value ) {
   if ( auto const * text = value.text() ) {
      return *text;
   }
   throwWrongKind( "a string", value );
}

std::uint64_t Impl::unsignedFromValue( Value const & value, std::uint64_t highest ) {
   auto const * integer = value.integer();
   if ( !integer || *integer < 0 || static_cast< std::uint64_t >( *integer ) > highest ) {
      throwWrongKind( "a number from 0 to " + std::to_string( highest ), value );
   }
   return static_cast< std::uint64_t >( *integer );
}

std::uint64_t Impl::unsignedFromKey( std::string const & key, std::uint64_t highest ) {
   std::uint64_t number = 0;
   auto const [end, error] = std::from_chars( key.data(), key.data() + key.size(), number );
   bool const canonical = error == std::errc{} && end == key.data() + key.size() && std::to_string( number ) == key;
   if ( !canonical || number > highest ) {
      throw ValueError(
         { "", "expected a key from 0 to " + std::to_string( highest ) + ", got \"" + key + "\"", true } );
   }
   return number;
}

} // namespace Rex
