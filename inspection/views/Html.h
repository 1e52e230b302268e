// Text in a page: it can't end the element, or the attribute in quotes, that it stands in.
#pragma once

#include <string>
#include <string_view>

namespace Inspection {

inline std::string inHtml( std::string_view text ) {
   std::string out;
   for ( char const letter : text ) {
      out += letter == '<' ? "&lt;" : letter == '&' ? "&amp;" : letter == '"' ? "&quot;" : std::string( 1, letter );
   }
   return out;
}

} // namespace Inspection
