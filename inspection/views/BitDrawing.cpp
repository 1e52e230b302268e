#include "inspection/views/BitDrawing.h"

#include "inspection/views/Terminal.h"

#include <algorithm>
#include <array>
#include <set>

namespace Inspection {

namespace {

constexpr unsigned wordBits = 32;
constexpr std::size_t columnsPerBit = 2;
constexpr std::size_t margin = 11; // "  word 12 "

// A part of a field that lies in one word: bits of that word.
struct Part {
   Catalogue::Field const * field;
   unsigned high;
   unsigned low;
   bool operator==( Part const & ) const = default;
   unsigned width() const { return high - low + 1; }
};

// Parts that lie side by side, the highest first.
using Lane = std::vector< Part >;

std::vector< Lane > lanesOf( Catalogue::Layout const & layout, unsigned word ) {
   std::vector< Part > parts;
   for ( auto const & field : layout.fields ) {
      unsigned const first = word * wordBits;
      unsigned const end = unsigned{ field.offset } + field.width;
      if ( field.offset < first + wordBits && end > first ) {
         parts.push_back(
            { &field, std::min( end - first, wordBits ) - 1, std::max< unsigned >( field.offset, first ) - first } );
      }
   }
   // What covers more comes first, so that views stand below what they are views of.
   std::ranges::stable_sort( parts, [&]( Part const & a, Part const & b ) { return a.width() > b.width(); } );
   std::vector< Lane > lanes( 1 );
   for ( Part const & part : parts ) {
      auto const isFree = [&]( Lane const & lane ) {
         return std::ranges::none_of( lane,
                                      [&]( Part const & it ) { return it.low <= part.high && part.low <= it.high; } );
      };
      auto lane = std::ranges::find_if( lanes, isFree );
      if ( lane == lanes.end() ) {
         lane = lanes.insert( lanes.end(), Lane() );
      }
      lane->push_back( part );
   }
   for ( Lane & lane : lanes ) {
      std::ranges::sort( lane, std::ranges::greater(), &Part::high );
   }
   return lanes;
}

std::size_t leftOf( unsigned bit ) {
   return ( wordBits - 1 - bit ) * columnsPerBit;
}

using Edges = std::set< std::size_t >;

Edges edgesOf( Lane const & lane ) {
   Edges edges{ 0, leftOf( 0 ) + columnsPerBit };
   for ( Part const & part : lane ) {
      edges.insert( leftOf( part.high ) );
      edges.insert( leftOf( part.low ) + columnsPerBit );
   }
   return edges;
}

// The line between two rows; null where there is none.
std::string border( Edges const * above, Edges const * below ) {
   constexpr std::size_t last = wordBits * columnsPerBit;
   std::string line( margin, ' ' );
   for ( std::size_t column = 0; column <= last; ++column ) {
      bool const up = above && above->contains( column );
      bool const down = below && below->contains( column );
      if ( column == 0 ) {
         line += up && down ? "├" : up ? "└" : "┌";
      } else if ( column == last ) {
         line += up && down ? "┤" : up ? "┘" : "┐";
      } else {
         line += up && down ? "┼" : up ? "┴" : down ? "┬" : "─";
      }
   }
   return line + "\n";
}

std::string scale() {
   std::string line( margin + wordBits * columnsPerBit, ' ' );
   for ( unsigned const bit : { 31u, 24u, 23u, 16u, 15u, 8u, 7u, 0u } ) {
      std::string const number = std::to_string( bit );
      // The highest bit of a byte begins at its place, the lowest ends there.
      std::size_t const column = leftOf( bit ) + 1 - ( bit % 8 == 0 ? number.size() - 1 : 0 );
      line.replace( margin + column, number.size(), number );
   }
   line.erase( line.find_last_not_of( ' ' ) + 1 );
   return line + "\n";
}

// A word that one field fills looks like its neighbours that the same field fills.
bool isFilledByOne( std::vector< Lane > const & lanes ) {
   return lanes.size() == 1 && lanes[0].size() == 1 && lanes[0][0].width() == wordBits;
}

} // namespace

Letters drawBits( std::ostream & out,
                  Catalogue::Layout const & layout,
                  std::function< std::string( Catalogue::Field const & ) > const & nameOf,
                  std::function< std::string( Catalogue::Field const &, std::string const & ) > const & mark ) {
   Letters letters;
   Edges above;
   out << scale();
   for ( unsigned word = 0; word < layout.width; ++word ) {
      auto const lanes = lanesOf( layout, word );
      unsigned last = word;
      while ( isFilledByOne( lanes ) && last + 1 < layout.width && lanesOf( layout, last + 1 ) == lanes ) {
         ++last;
      }
      for ( std::size_t lane = 0; lane < lanes.size(); ++lane ) {
         Edges const edges = edgesOf( lanes[lane] );
         out << border( word == 0 && lane == 0 ? nullptr : &above, &edges );
         above = edges;
         std::string label;
         if ( lane == 0 ) {
            label = "word " + std::to_string( word ) + ( last > word ? "-" + std::to_string( last ) : "" );
         }
         out << rightAligned( label, margin - 1 ) << ' ';
         unsigned next = wordBits; // one above the highest bit that isn't drawn yet
         for ( Part const & part : lanes[lane] ) {
            if ( part.high + 1 < next ) {
               out << "│" << std::string( ( next - part.high - 1 ) * columnsPerBit - 1, ' ' );
            }
            std::size_t const room = part.width() * columnsPerBit - 1;
            std::string text = nameOf( *part.field );
            if ( widthOf( text ) > room ) {
               auto & used = letters[word];
               auto const found = used.find( part.field->name );
               auto const number = used.size();
               char const letter = found != used.end() ? found->second
                                   : number < 26       ? static_cast< char >( 'a' + number )
                                                       : static_cast< char >( 'A' + number - 26 );
               used[part.field->name] = letter;
               text = std::string( 1, letter );
            }
            std::size_t const before = ( room - widthOf( text ) ) / 2;
            out << "│" << std::string( before, ' ' ) << mark( *part.field, text )
                << std::string( room - widthOf( text ) - before, ' ' );
            next = part.low;
         }
         if ( next > 0 ) {
            out << "│" << std::string( next * columnsPerBit - 1, ' ' );
         }
         out << "│\n";
      }
      word = last;
   }
   out << border( &above, nullptr );
   return letters;
}

} // namespace Inspection
