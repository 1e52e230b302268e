#include "inspection/views/Terminal.h"

#include "rex/Characters.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <sys/ioctl.h>
#include <unistd.h>

namespace Inspection {

namespace {

constexpr std::size_t usualWidth = 110;
constexpr std::size_t gap = 2;

// How many bytes of `text` are one character of UTF-8 that doesn't control the terminal; none if they are not.
std::size_t harmless( std::string_view text ) {
   auto const size = Rex::characterSize( text );
   auto const byte = [&]( std::size_t at ) { return static_cast< unsigned char >( text[at] ); };
   bool const isControl = ( size == 1 && ( byte( 0 ) < 0x20 || byte( 0 ) == 0x7f ) ) ||
                          ( size == 2 && byte( 0 ) == 0xc2 && byte( 1 ) < 0xa0 ); // U+0080 to U+009F
   return isControl ? 0 : size;
}

} // namespace

std::string printable( std::string_view text ) {
   std::string out;
   while ( !text.empty() ) {
      std::size_t const size = std::max< std::size_t >( harmless( text ), 1 );
      if ( harmless( text ) ) {
         out += text.substr( 0, size );
      } else {
         char escape[5];
         std::snprintf(
            escape, sizeof escape, "\\x%02x", static_cast< unsigned >( static_cast< unsigned char >( text[0] ) ) );
         out += escape;
      }
      text.remove_prefix( size );
   }
   return out;
}

Style Style::of( std::ostream const & out ) {
   char const * const refused = std::getenv( "NO_COLOR" );
   bool const isStandard = out.rdbuf() == std::cout.rdbuf();
   return Style( isStandard && ::isatty( STDOUT_FILENO ) && ( !refused || !*refused ) );
}

std::string Style::mark( std::string_view text, char const * code ) const {
   if ( !colour_ || text.empty() ) {
      return std::string( text );
   }
   return std::string( "\033[" ) + code + "m" + std::string( text ) + "\033[0m";
}

std::size_t widthOf( std::string_view text ) {
   std::size_t width = 0;
   bool inMark = false;
   for ( char const letter : text ) {
      if ( letter == '\033' ) {
         inMark = true;
      } else if ( inMark ) {
         inMark = letter != 'm';
      } else {
         bool const continues = ( static_cast< unsigned char >( letter ) & 0xc0 ) == 0x80;
         width += continues ? 0 : 1;
      }
   }
   return width;
}

std::string padded( std::string text, std::size_t width ) {
   std::size_t const has = widthOf( text );
   text.append( has < width ? width - has : 0, ' ' );
   return text;
}

std::string rightAligned( std::string const & text, std::size_t width ) {
   std::size_t const has = widthOf( text );
   return std::string( has < width ? width - has : 0, ' ' ) + text;
}

std::size_t lineWidth() {
   winsize size{};
   if ( ::isatty( STDOUT_FILENO ) && ::ioctl( STDOUT_FILENO, TIOCGWINSZ, &size ) == 0 && size.ws_col > 0 ) {
      return size.ws_col;
   }
   char const * const told = std::getenv( "COLUMNS" );
   long const columns = told ? std::strtol( told, nullptr, 10 ) : 0;
   return columns > 0 ? static_cast< std::size_t >( columns ) : usualWidth;
}

std::vector< std::size_t > Columns::widths() const {
   std::vector< std::size_t > widths;
   for ( auto const & cells : rows_ ) {
      widths.resize( std::max( widths.size(), cells.size() ) );
      for ( std::size_t cell = 0; cell < cells.size(); ++cell ) {
         widths[cell] = std::max( widths[cell], widthOf( cells[cell] ) );
      }
   }
   return widths;
}

std::size_t Columns::width() const {
   std::size_t width = 0;
   for ( std::size_t const column : widths() ) {
      width += column + gap;
   }
   return width == 0 ? 0 : width - gap;
}

void Columns::print( std::ostream & out, std::size_t indent ) const {
   auto const all = widths();
   for ( auto const & cells : rows_ ) {
      std::string line( indent, ' ' );
      for ( std::size_t cell = 0; cell < cells.size(); ++cell ) {
         bool const right = std::ranges::find( right_, cell ) != right_.end();
         line += right ? rightAligned( cells[cell], all[cell] ) : padded( cells[cell], all[cell] );
         line.append( gap, ' ' );
      }
      line.erase( line.find_last_not_of( ' ' ) + 1 );
      out << line << '\n';
   }
}

std::string counted( std::size_t number, std::string_view one, std::string_view many ) {
   return std::to_string( number ) + " " + std::string( number == 1 ? one : many );
}

} // namespace Inspection
