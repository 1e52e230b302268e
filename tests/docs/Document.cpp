#include "docs/Document.h"

#include <algorithm>
#include <sstream>

namespace {

constexpr char const * elision = "...";

}

std::vector< Block > blocksOf( std::string const & document ) {
   std::vector< Block > blocks;
   bool isInside = false;
   std::size_t at = 0;
   std::size_t number = 0;
   for ( std::string const & line : linesOf( document ) ) {
      ++number;
      at += line.size() + 1;
      if ( line.starts_with( "```" ) ) {
         isInside = !isInside;
         if ( isInside ) {
            blocks.push_back( { line.substr( 3 ), {}, number + 1, at } );
         }
      } else if ( isInside ) {
         blocks.back().text += line + "\n";
      }
   }
   return blocks;
}

std::vector< Exchange > exchangesOf( Block const & block ) {
   std::vector< Exchange > exchanges;
   bool goesOn = false;
   for ( std::string const & line : linesOf( block.text ) ) {
      if ( goesOn ) {
         exchanges.back().command += "\n" + line;
      } else if ( line.starts_with( "$ " ) ) {
         exchanges.push_back( { line.substr( 2 ), {} } );
      } else {
         exchanges.back().expected.push_back( line );
         continue;
      }
      goesOn = line.ends_with( "\\" );
   }
   return exchanges;
}

bool areAsExpected( std::vector< std::string > const & expected, std::vector< std::string > const & lines ) {
   if ( expected.empty() || lines.empty() ) {
      return std::ranges::all_of( expected, []( auto const & line ) { return line == elision; } ) && lines.empty();
   }
   if ( expected.front() == elision ) {
      std::vector< std::string > const rest( expected.begin() + 1, expected.end() );
      for ( auto from = lines.begin();; ++from ) {
         if ( rest.empty() || areAsExpected( rest, { from, lines.end() } ) ) {
            return true;
         }
         if ( from == lines.end() ) {
            return false;
         }
      }
   }
   return expected.front() == lines.front() &&
          areAsExpected( { expected.begin() + 1, expected.end() }, { lines.begin() + 1, lines.end() } );
}

std::vector< std::string > shortened( std::vector< std::string > const & expected,
                                      std::vector< std::string > const & lines ) {
   auto const first = std::ranges::find( expected, elision );
   auto const head = static_cast< std::size_t >( first - expected.begin() );
   if ( first == expected.end() || lines.size() <= expected.size() ) {
      return lines;
   }
   auto const last = std::find( expected.rbegin(), expected.rend(), elision );
   auto const tail = last - expected.rbegin();
   std::vector< std::string > out( lines.begin(), lines.begin() + static_cast< std::ptrdiff_t >( head ) );
   out.emplace_back( elision );
   out.insert( out.end(), lines.end() - tail, lines.end() );
   return out;
}
