// Which bytes are a character, and what becomes of those that aren't.
#include "rex/Characters.h"
#include "rex/Value.h"

#include <gtest/gtest.h>

namespace {

TEST( Characters, haveOneFormEach ) {
   using Rex::characterSize;
   EXPECT_EQ( characterSize( "a" ), 1u );
   EXPECT_EQ( characterSize( "\xc3\xa4" ), 2u );
   EXPECT_EQ( characterSize( "\xe2\x9c\x93!" ), 3u );
   EXPECT_EQ( characterSize( "\xf0\x9f\x82\xa1" ), 4u );
   EXPECT_EQ( characterSize( "" ), 0u );
   EXPECT_EQ( characterSize( "\x80" ), 0u );
   EXPECT_EQ( characterSize( "\xff\xff" ), 0u );
   EXPECT_EQ( characterSize( "\xe2\x9c" ), 0u ) << "cut";
   EXPECT_EQ( characterSize( "\xe2\x9c!" ), 0u );
   EXPECT_EQ( characterSize( "\xc0\x80" ), 0u ) << "a longer form than need be";
   EXPECT_EQ( characterSize( "\xe0\x9f\xbf" ), 0u ) << "a longer form than need be";
   EXPECT_EQ( characterSize( "\xed\xa0\x80" ), 0u ) << "half of a pair";
   EXPECT_EQ( characterSize( "\xf4\x90\x80\x80" ), 0u ) << "beyond the last";
}

TEST( Characters, ofATextFromElsewhereMakeNoWrongJson ) {
   EXPECT_EQ( Rex::toText( Rex::Value( "\xc3\xb6 \xff \xc3" ) ), "\"\xc3\xb6 \\\\xff \\\\xc3\"" );
}

} // namespace
