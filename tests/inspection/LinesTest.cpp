// Texts that don't fit, and values too wide to be read: what is told of them.
#include "inspection/views/Lines.h"
#include "inspection/views/ChainStepText.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;

std::string const zeros( 32, '0' );

TEST( DifferingBits, areNamedWhereTheyAreFewAndElseCounted ) {
   EXPECT_EQ( differingBits( "0x" + zeros, "0x1" + zeros ), "bit 128 becomes different" );
   EXPECT_EQ( differingBits( "0x" + zeros, "0x7" + zeros.substr( 1 ) ), "bits 124-126 become different" );
   EXPECT_EQ( differingBits( "0x" + zeros, "0x55555555555555555555555555555555" ), "64 bits become different" );
}

TEST( DifferingBits, areThoseOfWideNumbersOnly ) {
   EXPECT_EQ( differingBits( "0x1", "0x2" ), "" );
   EXPECT_EQ( differingBits( "nothing", "0x1" + zeros ), "" );
   EXPECT_EQ( differingBits( "0x1" + zeros, "0x2 of 3" + zeros ), "" );
}

TEST( Fitting, cutsATextBetweenItsCharacters ) {
   EXPECT_EQ( fitting( "gr\u00f6\u00dfer", 8 ), "gr\u00f6\u00dfer" );
   EXPECT_EQ( fitting( "gr\u00f6\u00dfer than", 7 ), "gr\u00f6..." );
   EXPECT_EQ( fitting( "gr\u00f6\u00dfer than", 8 ), "gr\u00f6..." );
   EXPECT_EQ( fitting( "gr\u00f6\u00dfer than", 9 ), "gr\u00f6\u00df..." );
}

TEST( Shortened, losesItsMiddle ) {
   EXPECT_EQ( shortened( "abcdefghij", 10 ), "abcdefghij" );
   EXPECT_EQ( shortened( "abcdefghij", 7 ), "abcd\u2026ij" );
}

} // namespace
