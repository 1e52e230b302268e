// Runs of bits in byte buffers. Bit 0 is the least significant bit of byte 0.
//
//    U32 value = Detail::loadBits( buf, 9, 26 );              // bits 9 to 34, at most 64
//    Detail::copyBits( buf, 32, source, 16, 80, 96, 0 );      // 80 bits to bit 96
//
// Every access works on whole 32-bit words, counted from the start of the buffer: a wider load of words that were just
// stored one by one would wait for them.
#pragma once

#include "corvo/Types.h"

#include <bit>
#include <cstring>

static_assert( std::endian::native == std::endian::little );

namespace Detail {

// Typed as words, which may lie anywhere, rather than copied as bytes: so the compiler knows that a store leaves
// pointers and lengths alone, and keeps a word in a register from one field to the next. A buffer of bytes holds words
// as soon as they are used.
using Word [[gnu::aligned( 1 )]] = U32;

[[gnu::always_inline]] inline U32 loadWord( U8 const * at ) {
   return *reinterpret_cast< Word const * >( at );
}

[[gnu::always_inline]] inline void storeWord( U8 * at, U32 word ) {
   *reinterpret_cast< Word * >( at ) = word;
}

// The bytes up to the end of the 32-bit word that holds the last bit of a run: what loadBits and storeBits touch.
constexpr unsigned wordBytes( unsigned offset, unsigned width ) {
   return ( offset + width + 31 ) / 32 * 4;
}

// The lowest `width` bits set; 1 to 64.
constexpr U64 lowBits( unsigned width ) {
   return ~U64{ 0 } >> ( 64 - width );
}

// `width` bits from `offset` on, 1 to 64.
[[gnu::always_inline]] inline U64 loadBits( U8 const * buf, unsigned offset, unsigned width ) {
   U8 const * at = buf + offset / 32 * 4;
   unsigned const shift = offset % 32;
   U64 value = loadWord( at ) >> shift;
   if ( shift + width > 32 ) {
      value |= U64{ loadWord( at + 4 ) } << ( 32 - shift );
   }
   if ( shift + width > 64 ) {
      value |= U64{ loadWord( at + 8 ) } << ( 64 - shift );
   }
   return value & lowBits( width );
}

// Sets `width` bits from `offset` on, 1 to 64, to `value`, which has no bit beyond them.
[[gnu::always_inline]] inline void storeBits( U8 * buf, unsigned offset, unsigned width, U64 value ) {
   U8 * at = buf + offset / 32 * 4;
   unsigned const shift = offset % 32;
   U64 const mask = lowBits( width );
   storeWord( at, ( loadWord( at ) & ~static_cast< U32 >( mask << shift ) ) | static_cast< U32 >( value << shift ) );
   if ( shift + width > 32 ) {
      storeWord( at + 4,
                 ( loadWord( at + 4 ) & ~static_cast< U32 >( mask >> ( 32 - shift ) ) ) |
                    static_cast< U32 >( value >> ( 32 - shift ) ) );
   }
   if ( shift + width > 64 ) {
      storeWord( at + 8,
                 ( loadWord( at + 8 ) & ~static_cast< U32 >( mask >> ( 64 - shift ) ) ) |
                    static_cast< U32 >( value >> ( 64 - shift ) ) );
   }
}

// Copies `bitCount` bits from bit `srcBitOffset` of `src` to bit `dstBitOffset` of `dst`; the buffers do not overlap.
// Lengths are in bytes. A run that leaves a buffer ends the process: assertion texts
// "dstBitOffset + bitCount <= dstLen * 8" and "srcBitOffset + bitCount <= srcLen * 8".
void copyBits( U8 * dst, int dstLen, U8 const * src, int srcLen, int bitCount, int dstBitOffset, int srcBitOffset );

} // namespace Detail

// dst = src & mask, word by word; words that `src` or `mask` do not have count as 0.
void maskBuf( U32 const * src, int srcWords, U32 * dst, int dstWords, U32 const * mask, int maskWords );
