// How documents are taken apart and compared.
#include "docs/Document.h"

#include <gtest/gtest.h>

namespace {

using Lines = std::vector< std::string >;

constexpr char const * document = R"(# A title

```json my.json
{}
```

Text.

```console
$ l3sm run my.json \
    --quiet
$ l3sm show chips.json
one
...
last
```
```
a picture
```
)";

TEST( Document, isTakenApartIntoItsBlocks ) {
   auto const blocks = blocksOf( document );
   ASSERT_EQ( blocks.size(), 3u );
   EXPECT_EQ( blocks[0].info, "json my.json" );
   EXPECT_EQ( blocks[0].text, "{}\n" );
   EXPECT_EQ( blocks[0].line, 4u );
   EXPECT_EQ( std::string( document ).substr( blocks[0].from, 3 ), "{}\n" );
   EXPECT_TRUE( blocks[1].isConsole() );
   EXPECT_FALSE( blocks[2].isConsole() );
}

TEST( Document, hasCommandsWithWhatTheyPrint ) {
   auto const exchanges = exchangesOf( blocksOf( document )[1] );
   ASSERT_EQ( exchanges.size(), 2u );
   EXPECT_EQ( exchanges[0].command, "l3sm run my.json \\\n    --quiet" );
   EXPECT_EQ( exchanges[0].expected, Lines{} );
   EXPECT_EQ( exchanges[1].expected, ( Lines{ "one", "...", "last" } ) );
}

TEST( Document, leavesOutLinesWhereItSaysSo ) {
   EXPECT_TRUE( areAsExpected( { "a", "...", "c" }, { "a", "b", "b", "c" } ) );
   EXPECT_TRUE( areAsExpected( { "a", "..." }, { "a" } ) );
   EXPECT_TRUE( areAsExpected( { "...", "b", "...", "d" }, { "a", "b", "c", "d" } ) );
   EXPECT_FALSE( areAsExpected( { "a", "...", "c" }, { "a", "b" } ) );
   EXPECT_FALSE( areAsExpected( { "a" }, { "a", "b" } ) );
   EXPECT_FALSE( areAsExpected( { "a", "b" }, { "a" } ) );
   EXPECT_FALSE( areAsExpected( {}, { "a" } ) );
}

TEST( Document, isWrittenAnewWithAsMuchAsItHas ) {
   EXPECT_EQ( shortened( { "a", "b", "...", "z" }, { "A", "B", "C", "D", "Y", "Z" } ),
              ( Lines{ "A", "B", "...", "Z" } ) );
   EXPECT_EQ( shortened( { "a" }, { "A", "B" } ), ( Lines{ "A", "B" } ) );
   EXPECT_EQ( shortened( { "a", "..." }, { "A" } ), ( Lines{ "A" } ) );
}

} // namespace
