// Wrong inputs as tables: what a person gives, and the lines that they get for it.
//
//    expectTold( { { "a missing file", "run nowhere.json", {}, "nowhere.json: can't be read: ..." } } );
//
// Whatever is wrong ends with status 2, and nothing is printed or written. Several lines stand one below the other.
#pragma once

#include "l3sm/Command.h"

#include <gtest/gtest.h>

struct WrongInput {
   char const * what;
   std::string arguments;
   Command::Files files;
   std::string lines;
};

inline void expectTold( std::vector< WrongInput > const & table ) {
   for ( auto const & wrong : table ) {
      SCOPED_TRACE( wrong.what );
      Command const l3sm( wrong.arguments, wrong.files );
      std::string expected;
      std::istringstream lines( wrong.lines );
      for ( std::string line; std::getline( lines, line ); ) {
         expected += "l3sm: " + line + "\n";
      }
      EXPECT_EQ( l3sm.errors, expected );
      EXPECT_EQ( l3sm.status, 2 );
      EXPECT_EQ( l3sm.output, "" );
      for ( char const * file : { "chips", "journal", "state", "save", "report" } ) {
         EXPECT_FALSE( l3sm.wrote( file ) ) << file;
      }
   }
}

// A scenario played with every output that there is.
inline WrongInput scenario( char const * what, std::string const & text, std::string const & lines ) {
   return { what,
            "run s.json --chips chips --journal journal --state state --save save --report report",
            { { "s.json", text } },
            lines };
}

// Further members of a scenario with one FAP, from line 2 on.
inline WrongInput member( char const * what, std::string const & more, std::string const & lines ) {
   return scenario( what,
                    R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0"}}]},)"
                    "\n" +
                       more + "}\n",
                    lines );
}

// Its one FAP, from line 1, column 22 on.
inline WrongInput fap( char const * what, std::string const & text, std::string const & lines ) {
   return scenario( what, R"({"switch": {"faps": [)" + text + "]}}\n", lines );
}

// Its events, one a line, from line 2 on.
inline WrongInput events( char const * what, std::string const & list, std::string const & lines ) {
   return member( what, R"("events": [)" + list + "]", lines );
}
