// Raw128 to Raw1024: fixed bit containers, plain arrays of 32-bit words, word 0 the least significant.
#pragma once

#include "assert/Assert.h"
#include "corvo/Types.h"

#include <array>
#include <cstddef>

template< unsigned Bits >
struct Raw {
   static_assert( Bits % 64 == 0 );
   static constexpr unsigned bits = Bits;
   static constexpr unsigned words = Bits / 32;

   std::array< U32, words > word{};

   constexpr Raw() = default;
   // The number `x`, which must not be negative: assertion text "x >= 0".
   explicit Raw( int x ) {
      Rex::sassert( x >= 0, "x >= 0" );
      word[0] = static_cast< U32 >( x );
   }

   // The 64-bit word number `index`: bits 64 * index to 64 * index + 63.
   constexpr U64 word64( unsigned index ) const { return word[2 * index] | ( U64{ word[2 * index + 1] } << 32 ); }
   constexpr void word64Is( unsigned index, U64 value ) {
      word[2 * index] = static_cast< U32 >( value );
      word[2 * index + 1] = static_cast< U32 >( value >> 32 );
   }

   // All bits set.
   static constexpr Raw ones() {
      Raw raw;
      raw.word.fill( ~U32{ 0 } );
      return raw;
   }

   friend constexpr bool operator==( Raw const &, Raw const & ) = default;
};

using Raw128 = Raw< 128 >;
using Raw256 = Raw< 256 >;
using Raw512 = Raw< 512 >;
using Raw1024 = Raw< 1024 >;
