#include "rex/Nearest.h"

#include <algorithm>
#include <numeric>

namespace Rex {

namespace {

// The number of letters to insert, to remove or to replace.
std::size_t distance( std::string const & from, std::string const & to ) {
   std::vector< std::size_t > row( to.size() + 1 );
   std::iota( row.begin(), row.end(), 0 );
   for ( std::size_t i = 1; i <= from.size(); ++i ) {
      std::size_t diagonal = row[0];
      row[0] = i;
      for ( std::size_t j = 1; j <= to.size(); ++j ) {
         std::size_t const above = row[j];
         std::size_t const changed = diagonal + ( from[i - 1] == to[j - 1] ? 0 : 1 );
         row[j] = std::min( { above + 1, row[j - 1] + 1, changed } );
         diagonal = above;
      }
   }
   return row.back();
}

} // namespace

std::string nearest( std::string const & wanted, std::vector< std::string > const & among ) {
   std::string best;
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
