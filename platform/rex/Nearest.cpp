#include "rex/Nearest.h"

#include <algorithm>
#include <numeric>

namespace Rex {

namespace {

// The number of letters to insert, to remove, to replace or to swap with their neighbour.
std::size_t distance( std::string const & from, std::string const & to ) {
   std::vector< std::vector< std::size_t > > rows( from.size() + 1, std::vector< std::size_t >( to.size() + 1 ) );
   std::iota( rows[0].begin(), rows[0].end(), 0 );
   for ( std::size_t i = 1; i <= from.size(); ++i ) {
      rows[i][0] = i;
      for ( std::size_t j = 1; j <= to.size(); ++j ) {
         std::size_t const changed = rows[i - 1][j - 1] + ( from[i - 1] == to[j - 1] ? 0 : 1 );
         rows[i][j] = std::min( { rows[i - 1][j] + 1, rows[i][j - 1] + 1, changed } );
         if ( i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1] ) {
            rows[i][j] = std::min( rows[i][j], rows[i - 2][j - 2] + 1 );
         }
      }
   }
   return rows.back().back();
}

} // namespace

std::string nearest( std::string const & wanted, std::vector< std::string > const & among ) {
   constexpr std::size_t longestName = 200; // what is longer is no name, and would take its time
   std::string best;
   if ( wanted.size() > longestName ) {
      return best;
   }
   std::size_t bestDistance = wanted.size() / 3 + 1;
   for ( auto const & candidate : among ) {
      if ( auto const far = distance( wanted, candidate ); far < bestDistance ) {
         bestDistance = far;
         best = candidate;
      }
   }
   return best;
}

std::string didYouMean( std::string const & wanted, std::vector< std::string > const & among ) {
   auto const near = nearest( wanted, among );
   return near.empty() ? "" : "; did you mean \"" + near + "\"?";
}

} // namespace Rex
