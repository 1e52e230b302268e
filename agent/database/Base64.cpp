#include "agent/database/Base64.h"

#include "corvo/Types.h"

#include <array>

namespace Live {

namespace {

constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr U8 none = 64;
constexpr unsigned bits = 6; // of a letter

constexpr auto valuesOfLetters = [] {
   std::array< U8, 256 > values{};
   values.fill( none );
   for ( std::size_t at = 0; at < letters.size(); ++at ) {
      values[static_cast< unsigned char >( letters[at] )] = static_cast< U8 >( at );
   }
   return values;
}();

} // namespace

std::string toBase64( std::string_view bytes ) {
   std::string text;
   text.reserve( ( bytes.size() + 2 ) / 3 * 4 );
   for ( std::size_t at = 0; at < bytes.size(); at += 3 ) {
      U32 three = 0;
      for ( std::size_t of = 0; of < 3; ++of ) {
         three = three << 8 | ( at + of < bytes.size() ? static_cast< unsigned char >( bytes[at + of] ) : 0U );
      }
      for ( unsigned of = 0; of < 4; ++of ) {
         bool const isThere = at + of <= bytes.size();
         text += isThere ? letters[three >> ( 3 - of ) * bits & ( none - 1U )] : '=';
      }
   }
   return text;
}

std::string fromBase64( std::string_view text ) {
   std::string bytes;
   bytes.reserve( text.size() / 4 * 3 );
   U32 held = 0;
   unsigned count = 0; // of the bits held
   for ( char const letter : text ) {
      U8 const value = valuesOfLetters[static_cast< unsigned char >( letter )];
      if ( value == none ) {
         break;
      }
      held = held << bits | value;
      count += bits;
      if ( count >= 8 ) {
         count -= 8;
         bytes += static_cast< char >( held >> count & 0xff );
      }
   }
   return bytes;
}

} // namespace Live
