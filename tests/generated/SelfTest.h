// Checks generated accessors field by field against their declared places, with a reader and writer of bits that is too
// simple to be wrong.
//
// What depends on a class or a type is a thin shell; the checks themselves know neither, so that they are compiled
// once.
#pragma once

#include "chip/ChipType.h"
#include "corvo/Types.h"
#include "sal/AsicTable.h"

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <string>
#include <type_traits>
#include <vector>

namespace SelfTest {

// Where a field lies.
struct Place {
   U8 chip;
   U8 variant;
   U16 offset;
   U16 width;
};
using Places = std::initializer_list< Place >;

// A value of any type: its words.
using Words = std::array< U32, Raw1024::words >;

template< class T >
T valueOf( Words const & words ) {
   if constexpr ( std::is_integral_v< T > ) {
      return static_cast< T >( words[0] | U64{ words[1] } << 32 );
   } else {
      T value;
      std::copy_n( words.begin(), T::words, value.word.begin() );
      return value;
   }
}

template< class T >
Words wordsOf( T const & value ) {
   Words words{};
   if constexpr ( std::is_integral_v< T > ) {
      words[0] = static_cast< U32 >( value );
      words[1] = static_cast< U32 >( U64{ value } >> 32 );
   } else {
      std::copy( value.word.begin(), value.word.end(), words.begin() );
   }
   return words;
}

template< class T >
using Parameter = std::conditional_t< std::is_integral_v< T > && sizeof( T ) < 8, T, T const & >;

// The operations of a class, its type forgotten. A method is a pointer to a pointer to a member.
struct ClassShell {
   char const * name;
   U8 variants;
   bool ( *exists )( Hardware::ChipType chip, U8 variant );
   // Runs `use` on an accessor over `buf`.
   void ( *with )( Hardware::ChipType chip,
                   U8 variant,
                   U8 * buf,
                   U16 len,
                   void ( *use )( AsicUtils::AsicBase & accessor, void * context ),
                   void * context );
   bool ( *valid )( AsicUtils::AsicBase const & accessor, void const * method );
   U16 ( *number )( AsicUtils::AsicBase const & accessor, void const * method );
   Words ( *staticMask )( Hardware::ChipType chip, U8 variant );
   Words ( *mask )( AsicUtils::AsicBase const & accessor );
   Words ( *allFields )( AsicUtils::AsicBase const & accessor );
};

// The operations of a field.
struct FieldShell {
   char const * name;
   U32 id;
   void ( *set )( AsicUtils::AsicBase & accessor, void const * method, Words const & value ); // null: read-only
   Words ( *get )( AsicUtils::AsicBase const & accessor, void const * method );
   void const * setter;
   void const * getter;
   void const * valid;
   void const * len;
   void const * offset;
};

void checkField( ClassShell const & table, FieldShell const & field, Places const & places );
void checkMasks( ClassShell const & table, std::vector< Place > const & places );

template< class Accessor >
class Table {
 public:
   Table( char const * name, U8 variants ) {
      shell_.name = name;
      shell_.variants = variants;
      shell_.exists = Accessor::chipTypeVariantValid;
      shell_.with = []( Hardware::ChipType chip,
                        U8 variant,
                        U8 * buf,
                        U16 len,
                        void ( *use )( AsicUtils::AsicBase &, void * ),
                        void * context ) {
         Accessor accessor( chip, buf, len, false, variant );
         use( accessor, context );
      };
      shell_.valid = []( AsicUtils::AsicBase const & accessor, void const * method ) {
         return ( of( accessor ).**static_cast< bool ( Accessor::*const * )() const >( method ) )();
      };
      shell_.number = []( AsicUtils::AsicBase const & accessor, void const * method ) {
         return ( of( accessor ).**static_cast< U16 ( Accessor::*const * )() const >( method ) )();
      };
      shell_.staticMask = []( Hardware::ChipType chip, U8 variant ) {
         return wordsOf( Accessor::allFieldsMask( static_cast< U32 >( chip ), variant ) );
      };
      shell_.mask = []( AsicUtils::AsicBase const & accessor ) { return wordsOf( of( accessor ).allFieldsMask() ); };
      shell_.allFields = []( AsicUtils::AsicBase const & accessor ) {
         return wordsOf( of( accessor ).getAllFields() );
      };
   }

   // Checks one field. `set` is null for a field that a format fixes. `places` are all that exist.
   template< class T >
   void field( char const * name,
               U32 id,
               void ( Accessor::*set )( Parameter< T > ),
               T ( Accessor::*get )() const,
               bool ( Accessor::*valid )() const,
               U16 ( Accessor::*len )() const,
               U16 ( Accessor::*offset )() const,
               Places places ) {
      FieldShell field{ name, id, nullptr, nullptr, &set, &get, &valid, &len, &offset };
      if ( set ) {
         field.set = []( AsicUtils::AsicBase & accessor, void const * method, Words const & value ) {
            auto const setter = *static_cast< void ( Accessor::*const * )( Parameter< T > ) >( method );
            ( static_cast< Accessor & >( accessor ).*setter )( valueOf< T >( value ) );
         };
      }
      field.get = []( AsicUtils::AsicBase const & accessor, void const * method ) {
         return wordsOf( ( of( accessor ).**static_cast< T ( Accessor::*const * )() const >( method ) )() );
      };
      checkField( shell_, field, places );
      places_.insert( places_.end(), places );
   }

   // The masks are the bits of the fields seen so far.
   void masks() const { checkMasks( shell_, places_ ); }

 private:
   static Accessor const & of( AsicUtils::AsicBase const & accessor ) {
      return static_cast< Accessor const & >( accessor );
   }

   ClassShell shell_;
   std::vector< Place > places_;
};

} // namespace SelfTest
