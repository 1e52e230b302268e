#include "rex/Characters.h"

namespace Rex {

namespace {

// By its first byte: its size, and what the second may be, which leaves out longer forms than need be, halves of pairs,
// and what lies beyond the last character.
struct Form {
   unsigned char first, last; // of the first byte
   std::size_t size;
   unsigned char low, high; // of the second
};
constexpr Form forms[] = {
   { 0x00, 0x7f, 1, 0, 0 },
   { 0xc2, 0xdf, 2, 0x80, 0xbf },
   { 0xe0, 0xe0, 3, 0xa0, 0xbf },
   { 0xe1, 0xec, 3, 0x80, 0xbf },
   { 0xed, 0xed, 3, 0x80, 0x9f },
   { 0xee, 0xef, 3, 0x80, 0xbf },
   { 0xf0, 0xf0, 4, 0x90, 0xbf },
   { 0xf1, 0xf3, 4, 0x80, 0xbf },
   { 0xf4, 0xf4, 4, 0x80, 0x8f },
};

} // namespace

std::size_t characterSize( std::string_view text ) {
   auto const byte = [&]( std::size_t at ) { return static_cast< unsigned char >( text[at] ); };
   for ( Form const & form : forms ) {
      if ( text.empty() || byte( 0 ) < form.first || byte( 0 ) > form.last ) {
         continue;
      }
      bool isWhole =
         text.size() >= form.size && ( form.size == 1 || ( byte( 1 ) >= form.low && byte( 1 ) <= form.high ) );
      for ( std::size_t at = 2; isWhole && at < form.size; ++at ) {
         isWhole = ( byte( at ) & 0xc0 ) == 0x80;
      }
      return isWhole ? form.size : 0;
   }
   return 0;
}

} // namespace Rex
