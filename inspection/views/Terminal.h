// How the answers for people look: colour on a terminal only, columns that line up.
//
//    Style const style = Style::of( std::cout );
//    Columns columns;
//    columns.row( { style.strong( "table" ), "entries" } );
//    columns.row( { "IppdFerTrapCfg", "2" } );
//    columns.print( std::cout, 2 );
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace Inspection {

// Marks parts of a text by what they mean. Without colour, every mark leaves its text as it is.
class Style {
 public:
   explicit Style( bool colour = false ) : colour_( colour ) {}
   // With colour if `out` is standard output on a terminal, and NO_COLOR isn't set.
   static Style of( std::ostream const & out );

   std::string title( std::string_view text ) const { return mark( text, "1" ); }
   std::string strong( std::string_view text ) const { return mark( text, "1" ); }
   std::string faint( std::string_view text ) const { return mark( text, "2" ); }
   std::string before( std::string_view text ) const { return mark( text, "31" ); }
   std::string after( std::string_view text ) const { return mark( text, "32" ); }
   std::string place( std::string_view text ) const { return mark( text, "36" ); }
   std::string differs( std::string_view text ) const { return mark( text, "33" ); }

 private:
   std::string mark( std::string_view text, char const * code ) const;
   bool colour_;
};

// A text that came from outside, as one line for people: control characters, which would move the cursor or recolour
// the screen, and bytes that are no UTF-8 are written out as "\x1b".
std::string printable( std::string_view text );

// How many columns a text takes: characters of UTF-8, marks of a Style left out.
std::size_t widthOf( std::string_view text );
std::string padded( std::string text, std::size_t width );
std::string rightAligned( std::string const & text, std::size_t width );

// How many columns there are: those of the terminal, or of COLUMNS, else 110.
std::size_t lineWidth();

// Rows of cells that line up.
class Columns {
 public:
   void row( std::vector< std::string > cells ) { rows_.push_back( std::move( cells ) ); }
   // Numbers look better so.
   void rightAlign( std::size_t column ) { right_.push_back( column ); }
   bool empty() const { return rows_.empty(); }
   // How wide the widest row is.
   std::size_t width() const;
   void print( std::ostream & out, std::size_t indent = 0 ) const;

 private:
   std::vector< std::size_t > widths() const;
   std::vector< std::vector< std::string > > rows_;
   std::vector< std::size_t > right_;
};

// "1 entry", "2 entries"
std::string counted( std::size_t number, std::string_view one, std::string_view many );

} // namespace Inspection
