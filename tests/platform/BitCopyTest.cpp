// Runs of bits between byte buffers.
#include "sal/BitCopy.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using Buffer = std::array< U8, 24 >;

bool bitOf( Buffer const & buf, int bit ) {
   return ( buf[bit / 8] >> bit % 8 & 1 ) != 0;
}

TEST( CopyBits, MovesEveryRunToEveryPlaceAndTouchesNothingElse ) {
   Buffer source;
   for ( std::size_t i = 0; i < source.size(); ++i ) {
      source[i] = static_cast< U8 >( i * 73 + 41 );
   }
   for ( int from : { 0, 1, 7, 8, 31, 32, 63, 90 } ) {
      for ( int to : { 0, 1, 9, 31, 32, 33, 64, 95 } ) {
         for ( int count : { 0, 1, 2, 8, 31, 32, 33, 64, 80, 97 } ) {
            for ( U8 background : { 0x00, 0xff } ) {
               Buffer target;
               target.fill( background );
               Detail::copyBits( target.data(), target.size(), source.data(), source.size(), count, to, from );
               for ( int bit = 0; bit < 192; ++bit ) {
                  bool const moved = bit >= to && bit < to + count;
                  ASSERT_EQ( bitOf( target, bit ), moved ? bitOf( source, from + bit - to ) : background != 0 )
                     << count << " bits from " << from << " to " << to << ", bit " << bit;
               }
            }
         }
      }
   }
}

TEST( CopyBits, StaysWithinBuffersOfAnyLength ) {
   std::array< U8, 6 > target{ 0x11, 0x11, 0x11, 0x11, 0x11, 0x77 };
   std::array< U8, 3 > source{ 0xff, 0xff, 0xff };
   Detail::copyBits( target.data(), 5, source.data(), 3, 22, 18, 2 );
   EXPECT_EQ( target, ( std::array< U8, 6 >{ 0x11, 0x11, 0xfd, 0xff, 0xff, 0x77 } ) );
}

TEST( CopyBitsDeathTest, ARunThatLeavesABufferEndsTheProcess ) {
   Buffer buf{};
   EXPECT_DEATH( Detail::copyBits( buf.data(), 3, buf.data() + 8, 16, 8, 17, 0 ),
                 "dstBitOffset \\+ bitCount <= dstLen" );
   EXPECT_DEATH( Detail::copyBits( buf.data(), 8, buf.data() + 8, 2, 8, 0, 9 ), "srcBitOffset \\+ bitCount <= srcLen" );
}

TEST( LoadAndStoreBits, AreEachOthersMirror ) {
   for ( unsigned width : { 1u, 5u, 32u, 33u, 64u } ) {
      for ( unsigned offset = 0; offset < 64; ++offset ) {
         Buffer buf{};
         U64 const value = 0x9e3779b97f4a7c15u & Detail::lowBits( width );
         Detail::storeBits( buf.data(), offset, width, value );
         ASSERT_EQ( Detail::loadBits( buf.data(), offset, width ), value );
         for ( int bit = 0; bit < 192; ++bit ) {
            bool const inside = bit >= static_cast< int >( offset ) && bit < static_cast< int >( offset + width );
            ASSERT_EQ( bitOf( buf, bit ), inside && ( value >> ( bit - static_cast< int >( offset ) ) & 1 ) != 0 );
         }
      }
   }
}

TEST( MaskBuf, KeepsTheBitsOfTheMaskAndFillsWithZero ) {
   std::array< U32, 2 > const source{ 0xffffffff, 0x12345678 };
   std::array< U32, 3 > const mask{ 0x00ff00ff, 0xffff0000, 0xffffffff };
   std::array< U32, 4 > target{ 1, 2, 3, 4 };
   maskBuf( source.data(), 2, target.data(), 4, mask.data(), 3 );
   EXPECT_EQ( target, ( std::array< U32, 4 >{ 0x00ff00ff, 0x12340000, 0, 0 } ) );
}

} // namespace
