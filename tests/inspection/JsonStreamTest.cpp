// Where a value ends that is passed over, wherever its brackets, texts and escapes lie in the blocks that are scanned.
#include "inspection/files/JsonStream.h"

#include "Folder.h"

#include <gtest/gtest.h>

using namespace Inspection;

namespace {

// What follows a value that was passed over; "" where that reached too far, or not far enough.
std::string keyBehind( std::string const & value ) {
   static Folder const folder;
   JsonStream json( folder.file( "a.json", R"({"first": )" + value + R"(, "second": 2})" ) );
   std::string key;
   json.enter();
   json.nextKey( key );
   json.skip();
   return json.nextKey( key ) ? key : "";
}

TEST( JsonStream, PassesOverAValueWhereverItEnds ) {
   std::string const values[] = {
      R"([[[[1], 2], []]])",
      R"({"a": {"b": {"c": ["}"]}}, "d": {}})",
      R"({"text": "]}\"]}", "list": ["\\", "{"]})",
      R"([{}, {"0": {"words": ["0x00000005"], "fields": {"f": "0x5"}}}])",
   };
   for ( auto const & value : values ) {
      for ( std::size_t before = 0; before < 130; ++before ) {
         std::string const spaces( before, ' ' );
         EXPECT_EQ( keyBehind( spaces + value ), "second" ) << before << " spaces before " << value;
         // Inside of something that is longer than a block.
         EXPECT_EQ( keyBehind( "[" + spaces + value + ", \"" + spaces + "\"]" ), "second" )
            << before << " spaces around " << value;
      }
   }
}

} // namespace
