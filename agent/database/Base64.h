// Bytes as letters, as JSON carries them.
//
// Threading: none.
#pragma once

#include <string>
#include <string_view>

namespace Live {

std::string toBase64( std::string_view bytes );
// What is no Base64 ends it.
std::string fromBase64( std::string_view text );

} // namespace Live
