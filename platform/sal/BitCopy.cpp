#include "sal/BitCopy.h"

#include "assert/Assert.h"

#include <algorithm>

namespace Detail {

namespace {

// The word at byte `at`, as far as the buffer goes.
U32 wordWithin( U8 const * buf, int len, int at ) {
   U32 word = 0;
   if ( at + 4 <= len ) {
      word = loadWord( buf + at );
   } else if ( at < len ) {
      std::memcpy( &word, buf + at, static_cast< std::size_t >( len - at ) );
   }
   return word;
}

// The 32 bits from bit `offset` on, as far as the buffer goes.
U32 bitsWithin( U8 const * buf, int len, int offset ) {
   int const at = offset / 32 * 4;
   int const shift = offset % 32;
   U32 const low = wordWithin( buf, len, at ) >> shift;
   return shift == 0 ? low : low | ( wordWithin( buf, len, at + 4 ) << ( 32 - shift ) );
}

} // namespace

void copyBits( U8 * dst, int dstLen, U8 const * src, int srcLen, int bitCount, int dstBitOffset, int srcBitOffset ) {
   Rex::sassert( dstBitOffset + bitCount <= dstLen * 8, "dstBitOffset + bitCount <= dstLen * 8" );
   Rex::sassert( srcBitOffset + bitCount <= srcLen * 8, "srcBitOffset + bitCount <= srcLen * 8" );
   // Each word of the destination is loaded and stored once.
   while ( bitCount > 0 ) {
      int const at = dstBitOffset / 32 * 4;
      int const shift = dstBitOffset % 32;
      int const count = std::min( 32 - shift, bitCount );
      U32 const mask = static_cast< U32 >( lowBits( static_cast< unsigned >( count ) ) ) << shift;
      U32 const bits = ( bitsWithin( src, srcLen, srcBitOffset ) << shift ) & mask;
      if ( at + 4 <= dstLen ) {
         storeWord( dst + at, mask == ~U32{ 0 } ? bits : ( loadWord( dst + at ) & ~mask ) | bits );
      } else {
         U32 const word = ( wordWithin( dst, dstLen, at ) & ~mask ) | bits;
         std::memcpy( dst + at, &word, static_cast< std::size_t >( dstLen - at ) );
      }
      dstBitOffset += count;
      srcBitOffset += count;
      bitCount -= count;
   }
}

} // namespace Detail

void maskBuf( U32 const * src, int srcWords, U32 * dst, int dstWords, U32 const * mask, int maskWords ) {
   for ( int word = 0; word < dstWords; ++word ) {
      dst[word] = word < std::min( srcWords, maskWords ) ? src[word] & mask[word] : 0;
   }
}
