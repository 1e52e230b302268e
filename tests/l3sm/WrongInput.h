// Wrong inputs as tables: what a person gives, and the lines that they get for it.
//
//    expectTold( { { "a missing file", "run nowhere.json", {}, "nowhere.json: can't be read: ..." },
//                  scenario( "a comma too many", "{\n \"switch\": {§,}}", "s.json:§: syntax error ..." ) } );
//
// Whatever is wrong ends with status 2, and nothing is printed or written. Several lines stand one below the other. A §
// in a text marks a place, and stands for its line and column in the lines; ¶ is the same place once more.
#pragma once

#include "l3sm/Command.h"

#include <gtest/gtest.h>

struct WrongInput {
   char const * what;
   std::string arguments;
   Command::Files files;
   std::string lines;
};

// Takes the marks out of a text, and puts their places into the lines.
inline void placeMarks( std::string & text, std::string & lines ) {
   std::string const mark = "§";
   std::string const same = "¶";
   std::string marked;
   std::size_t line = 1;
   std::size_t column = 1;
   std::vector< std::string > places;
   for ( std::size_t at = 0; at < text.size(); ++at ) {
      if ( text.compare( at, mark.size(), mark ) == 0 ) {
         places.push_back( std::to_string( line ) + ":" + std::to_string( column ) );
         at += mark.size() - 1;
         continue;
      }
      marked += text[at];
      bool const continues = ( static_cast< unsigned char >( text[at] ) & 0xc0 ) == 0x80;
      column = text[at] == '\n' ? 1 : column + ( continues ? 0 : 1 );
      line += text[at] == '\n' ? 1 : 0;
   }
   text = marked;
   std::string told;
   std::size_t next = 0;
   for ( std::size_t at = 0; at < lines.size(); ) {
      bool const isMark = lines.compare( at, mark.size(), mark ) == 0;
      bool const isSame = lines.compare( at, same.size(), same ) == 0;
      next += isMark ? 1 : 0;
      told += isMark || isSame ? places.at( next - 1 ) : std::string( 1, lines[at] );
      at += isMark || isSame ? mark.size() : 1;
   }
   lines = told;
}

inline void expectTold( std::vector< WrongInput > table ) {
   for ( auto & wrong : table ) {
      SCOPED_TRACE( wrong.what );
      if ( !wrong.files.empty() ) {
         placeMarks( wrong.files.begin()->second, wrong.lines );
      }
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

// Further members of a scenario with one FAP.
inline WrongInput member( char const * what, std::string const & more, std::string const & lines ) {
   return scenario( what,
                    R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0"}}]},)"
                    "\n" +
                       more + "}\n",
                    lines );
}

// Its one FAP.
inline WrongInput fap( char const * what, std::string const & text, std::string const & lines ) {
   return scenario( what, R"({"switch": {"faps": [)" + text + "]}}\n", lines );
}

// Its events.
inline WrongInput events( char const * what, std::string const & list, std::string const & lines ) {
   return member( what, R"("events": [)" + list + "]", lines );
}
