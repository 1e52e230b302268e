// Value: the neutral form of state at the edge of the program (scenario files, dumps, the text form), and the codecs
// that turn attribute types into it and back.
//
// Threading: values are plain data.
#pragma once

#include "corvo/Types.h"

#include <concepts>
#include <cstdint>
#include <limits>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace Rex {

// Null, boolean, integer, text, list or object.
class Value {
 public:
   using List = std::vector< Value >;
   using Object = std::map< std::string, Value >;

   Value();
   Value( Value const & );
   Value( Value && ) noexcept;
   Value & operator=( Value const & );
   Value & operator=( Value && ) noexcept;
   ~Value();
   // NOLINTBEGIN(google-explicit-constructor)
   Value( std::nullptr_t );
   Value( bool value );
   Value( std::string value );
   Value( char const * value );
   Value( List value );
   Value( Object value );
   template< std::integral T >
   requires( !std::same_as< T, bool > ) Value( T value ) : Value( Integer{ static_cast< std::int64_t >( value ) } ) {}
   // NOLINTEND(google-explicit-constructor)

   bool isNull() const { return std::holds_alternative< std::monostate >( value_ ); }
   bool const * boolean() const { return std::get_if< bool >( &value_ ); }
   std::int64_t const * integer() const { return std::get_if< std::int64_t >( &value_ ); }
   std::string const * text() const { return std::get_if< std::string >( &value_ ); }
   List const * list() const { return std::get_if< List >( &value_ ); }
   Object const * object() const { return std::get_if< Object >( &value_ ); }
   List * list() { return std::get_if< List >( &value_ ); }
   Object * object() { return std::get_if< Object >( &value_ ); }

   friend bool operator==( Value const & left, Value const & right );

 private:
   struct Integer {
      std::int64_t value;
   };
   explicit Value( Integer value );

   std::variant< std::monostate, bool, std::int64_t, std::string, List, Object > value_;
};

// What a value is, for messages: "null", "a boolean", "a number", "a string", "a list", "an object".
std::string kindOf( Value const & value );
// On one line, as JSON writes it.
std::string toText( Value const & value );

// A value that doesn't fit, in one place or in several.
class ValueError : public std::runtime_error {
 public:
   // `place` is the JSON pointer from the value that was given to the part that is wrong, empty for the value itself.
   // isKey: it is the last key of the pointer that is wrong, whatever stands under it.
   struct Fault {
      std::string place;
      std::string text;
      bool isKey = false;
   };

   ValueError( std::string place, std::string const & what ) : ValueError( Fault{ std::move( place ), what } ) {}
   explicit ValueError( Fault fault ) : ValueError( std::vector{ std::move( fault ) } ) {}
   // At least one.
   explicit ValueError( std::vector< Fault > faults )
      : std::runtime_error( faults.front().text ), faults_( std::move( faults ) ) {}

   std::vector< Fault > const & faults() const { return faults_; }
   // Of the first.
   std::string const & place() const { return faults_.front().place; }
   // The same error seen from one level further up.
   ValueError below( std::string const & key ) const;

 private:
   std::vector< Fault > faults_;
};

// Runs `read` on the part under `key`: an error of it gets its place seen from here.
template< class Read >
decltype( auto ) below( std::string const & key, Read const & read ) {
   try {
      return read();
   } catch ( ValueError const & error ) {
      throw error.below( key );
   }
}

// Has all parts of a value looked at before what is wrong with them is told, in one error.
//
//    ValueErrors errors;
//    for ( auto const & [key, part] : object ) {
//       errors.below( key, [&] { take( part ); } );
//    }
//    errors.end();                                  // throws, if something was wrong
class ValueErrors {
 public:
   // False if it is wrong.
   template< class Read >
   bool below( std::string const & key, Read const & read ) {
      return of( [&] { Rex::below( key, read ); } );
   }
   template< class Read >
   bool of( Read const & read ) {
      try {
         read();
         return true;
      } catch ( ValueError const & error ) {
         faults_.insert( faults_.end(), error.faults().begin(), error.faults().end() );
         return false;
      }
   }
   std::vector< ValueError::Fault > const & faults() const { return faults_; }
   void end() const {
      if ( !faults_.empty() ) {
         throw ValueError( faults_ );
      }
   }

 private:
   std::vector< ValueError::Fault > faults_;
};

// A step of a JSON pointer, with its escapes.
std::string pointerStep( std::string const & key );
// Of paths whose steps are parted by slashes: "a/b" is at or below "a", "ab" isn't.
bool isAtOrBelow( std::string_view path, std::string_view owner );

[[noreturn]] void throwWrongKind( std::string const & wanted, Value const & got );

// What a codec takes, as data: what the list of paths and the schema of a scenario are made of.
struct ValueType {
   enum class Kind : U8 { boolean, number, text, object };
   template< class Type > // which is complete only behind this
   struct Named {
      char const * name;
      Type type;
   };
   using Member = Named< ValueType >;

   Kind kind;
   char const * name;                       // for people: "true or false", "number", "MAC address"
   std::uint64_t highest = 0;               // of a number, from 0
   char const * pattern = nullptr;          // of a text: the regular expression that the whole of it matches
   std::vector< std::string > choices = {}; // of a text: the only ones, if there are any
   std::vector< Member > members = {};      // of an object, each optional
};

// How a type is written as a value, and as the key of an object. A specialisation has
//    static ValueType type();
//    static Value toValue( T const & ); static T fromValue( Value const & );
// and, where the type is a key,
//    static std::string toKey( T const & ); static T fromKey( std::string const & );
// The from-functions throw ValueError.
template< class T >
struct Codec;

template<>
struct Codec< bool > {
   static ValueType type() { return { .kind = ValueType::Kind::boolean, .name = "true or false" }; }
   static Value toValue( bool value ) { return value; }
   static bool fromValue( Value const & value );
};

template<>
struct Codec< std::string > {
   static ValueType type() { return { .kind = ValueType::Kind::text, .name = "text" }; }
   static Value toValue( std::string const & value ) { return value; }
   static std::string fromValue( Value const & value );
   static std::string toKey( std::string const & key ) { return key; }
   static std::string fromKey( std::string const & key ) { return key; }
};

namespace Impl {
std::uint64_t unsignedFromValue( Value const & value, std::uint64_t highest );
std::uint64_t unsignedFromKey( std::string const & key, std::uint64_t highest );
} // namespace Impl

template< std::unsigned_integral T >
struct Codec< T > {
   static constexpr std::uint64_t highest = std::numeric_limits< T >::max();
   static ValueType type() { return { .kind = ValueType::Kind::number, .name = "number", .highest = highest }; }
   static Value toValue( T value ) { return value; }
   static T fromValue( Value const & value ) { return static_cast< T >( Impl::unsignedFromValue( value, highest ) ); }
   static std::string toKey( T key ) { return std::to_string( key ); }
   static T fromKey( std::string const & key ) { return static_cast< T >( Impl::unsignedFromKey( key, highest ) ); }
};

// Value types that wrap one number (FapId, SlotId, ...): a member `value`.
template< class T >
requires( std::is_class_v< T > && std::unsigned_integral< decltype( T::value ) > ) struct Codec< T > {
   using Number = decltype( T::value );
   static ValueType type() { return Codec< Number >::type(); }
   static Value toValue( T number ) { return number.value; }
   static T fromValue( Value const & value ) { return T{ Codec< Number >::fromValue( value ) }; }
   static std::string toKey( T key ) { return std::to_string( key.value ); }
   static T fromKey( std::string const & key ) { return T{ Codec< Number >::fromKey( key ) }; }
};

} // namespace Rex
