// A list in a source file that a test compares with what it has found, and that ./dev golden writes anew.
//
//    expectList( "inspection/KnownToggles.cpp", "toggles[] = {\n", rows );
//
// The rows stand between the line that `begin` ends and the next line "   };".
#pragma once

#include "l3sm/Command.h"

#include <gtest/gtest.h>

inline void expectList( std::string const & file, std::string const & begin, std::string const & rows ) {
   auto const path = std::filesystem::path( L3SM_SOURCE_DIR ) / file;
   std::string const before = contentsOf( path );
   ASSERT_NE( before.find( begin ), std::string::npos ) << file << " has no " << begin;
   auto const start = before.find( begin ) + begin.size();
   std::string const after = before.substr( 0, start ) + rows + before.substr( before.find( "   };\n", start ) );
   if ( std::getenv( "L3SM_GOLDEN_WRITE" ) ) {
      if ( after != before ) {
         std::ofstream( path ) << after;
      }
      return;
   }
   EXPECT_EQ( after, before ) << "To write " << file << " anew: ./dev golden";
}
