// Characters of texts that came from outside.
//
//    characterSize( "\xc3\xa4hnlich" );          // 2
//    characterSize( "\xff" );                    // 0
//
// Threading: none.
#pragma once

#include <cstddef>
#include <string_view>

namespace Rex {

// How many bytes at the beginning are one character of UTF-8; 0: they are none.
std::size_t characterSize( std::string_view text );

} // namespace Rex
