#include "inspection/views/Lines.h"

#include "inspection/FoldedWrites.h"

#include <algorithm>

namespace Inspection {

namespace {

constexpr std::size_t continuationMargin = 4; // how far a line's continuation stands in
constexpr std::size_t leastRoom = 16;         // for text, however narrow the terminal and deep the indent
constexpr std::size_t mostRanges = 8;         // of bits, before they are only counted
constexpr std::size_t narrow = 2 + 16;        // a value in hexadecimal that is shown as it is

// The bytes of the first `columns` characters.
std::size_t bytesOf( std::string_view text, std::size_t columns ) {
   std::size_t at = 0;
   while ( at < text.size() && columns > 0 ) {
      do {
         ++at;
      } while ( at < text.size() && ( static_cast< unsigned char >( text[at] ) & 0xc0 ) == 0x80 );
      --columns;
   }
   return at;
}

// Bits of a value in hexadecimal, the lowest first; empty where it is none.
std::vector< bool > bitsOf( std::string const & value ) {
   std::vector< bool > bits;
   if ( !value.starts_with( "0x" ) || value.find_first_not_of( "0123456789abcdef", 2 ) != std::string::npos ) {
      return bits;
   }
   for ( std::size_t at = value.size(); at-- > 2; ) {
      unsigned const digit = value[at] <= '9' ? value[at] - '0' : value[at] - 'a' + 10;
      for ( unsigned bit = 0; bit < 4; ++bit ) {
         bits.push_back( digit >> bit & 1 );
      }
   }
   return bits;
}

} // namespace

std::string shortened( std::string const & text, std::size_t width ) {
   std::size_t const has = widthOf( text );
   if ( has <= width || width < 5 ) {
      return text;
   }
   std::size_t const head = ( width - 1 ) * 2 / 3;
   std::size_t const tail = width - 1 - head;
   return text.substr( 0, bytesOf( text, head ) ) + "…" + text.substr( bytesOf( text, has - tail ) );
}

std::string differingBits( std::string const & before, std::string const & after ) {
   auto then = bitsOf( before );
   auto now = bitsOf( after );
   if ( then.empty() || now.empty() || std::max( before.size(), after.size() ) <= narrow ) {
      return {};
   }
   std::size_t const size = std::max( then.size(), now.size() );
   then.resize( size );
   now.resize( size );
   std::vector< U32 > differ;
   for ( std::size_t bit = 0; bit < size; ++bit ) {
      if ( then[bit] != now[bit] ) {
         differ.push_back( static_cast< U32 >( bit ) );
      }
   }
   std::string const text = ranges( differ );
   if ( std::ranges::count( text, ' ' ) >= static_cast< std::ptrdiff_t >( mostRanges ) ) {
      return std::to_string( differ.size() ) + " bits become different";
   }
   return std::string( differ.size() == 1 ? "bit " : "bits " ) + text +
          ( differ.size() == 1 ? " becomes different" : " become different" );
}

void Lines::putAll( std::size_t indent, std::string const & text, bool isTitle ) {
   std::string rest = printable( text );
   for ( bool isFirst = true; isFirst || !rest.empty(); isFirst = false ) {
      std::size_t const in =
         std::min( indent + ( isFirst ? 0 : continuationMargin ), width_ > leastRoom ? width_ - leastRoom : 0 );
      std::size_t const room = std::max( width_ - std::min( in, width_ ), std::size_t{ 1 } );
      std::string line = rest;
      rest.clear();
      if ( widthOf( line ) > room ) {
         std::size_t const most = bytesOf( line, room );
         auto space = line.rfind( ' ', most );
         if ( space == std::string::npos || line.find_first_not_of( ' ' ) > space ) {
            // One word is wider than the line.
            auto const end = std::min( line.find( ' ', line.find_first_not_of( ' ' ) ), line.size() );
            if ( long_ == Long::whole ) {
               space = most;
            } else {
               rest = line.substr( end );
               line = shortened( line.substr( 0, end ), room );
               space = line.size();
            }
         }
         rest = line.substr( space ) + rest;
         line.resize( space );
         rest.erase( 0, std::min( rest.find_first_not_of( ' ' ), rest.size() ) );
      }
      line.erase( line.find_last_not_of( ' ' ) + 1 );
      out_ << std::string( line.empty() ? 0 : in, ' ' ) << ( isTitle ? style_.title( line ) : line ) << '\n';
   }
}

void Lines::list( std::size_t indent, std::string const & head, std::vector< std::string > const & items ) {
   std::string line = head;
   std::size_t in = indent;
   for ( std::size_t item = 0; item < items.size(); ++item ) {
      std::string const next = items[item] + ( item + 1 < items.size() ? "," : "" );
      if ( in + widthOf( line ) + 1 + widthOf( next ) > width_ && !line.empty() ) {
         put( in, line );
         in = indent + continuationMargin;
         line = next;
      } else {
         line += ( line.empty() ? "" : " " ) + next;
      }
   }
   put( in, line );
}

} // namespace Inspection
