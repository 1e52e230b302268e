#include "simulator/FunctionName.h"

namespace Simulator {

namespace {

void cut( std::string & text, std::string_view part ) {
   for ( auto at = text.find( part ); at != std::string::npos; at = text.find( part ) ) {
      text.erase( at, part.size() );
   }
}

bool closes( char letter ) {
   return letter == ')' || letter == '>' || letter == ']' || letter == '}';
}
bool opens( char letter ) {
   return letter == '(' || letter == '<' || letter == '[' || letter == '{';
}

// Walks back from `end` to the first `wanted` that stands in no bracket; npos if there is none.
std::size_t back( std::string_view text, std::size_t end, char wanted ) {
   int depth = 0;
   for ( std::size_t at = end; at-- > 0; ) {
      if ( depth == 0 && text[at] == wanted ) {
         return at;
      }
      depth += closes( text[at] ) ? 1 : opens( text[at] ) ? -1 : 0;
   }
   return std::string_view::npos;
}

} // namespace

std::string functionName( std::string_view signature ) {
   std::string text( signature );
   cut( text, "{anonymous}::" );
   cut( text, "(anonymous namespace)::" );
   text = text.substr( 0, text.find( " [with " ) );
   text = text.substr( 0, text.find( "::<lambda" ) );

   // The arguments are the last group of parentheses; the name stands before them, up to a blank outside all brackets.
   auto const argumentsEnd = text.rfind( ')' );
   if ( argumentsEnd != std::string::npos ) {
      text.resize( back( text, argumentsEnd, '(' ) );
   }
   auto const nameStart = back( text, text.size(), ' ' );
   if ( nameStart != std::string::npos ) {
      text.erase( 0, nameStart + 1 );
   }
   text.erase( 0, text.find_first_not_of( "*&" ) );

   constexpr std::string_view own = "DaceFapNi::";
   if ( text.starts_with( own ) ) {
      text.erase( 0, own.size() );
   }
   return text;
}

std::string_view fileName( std::string_view path ) {
   return path.substr( path.rfind( '/' ) + 1 );
}

} // namespace Simulator
