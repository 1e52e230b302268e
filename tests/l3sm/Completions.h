// What the program offers for a line that is being typed.
//
//    EXPECT_EQ( completions( { "l3sm", "cat" } ), Names{ "catalogue" } );
#pragma once

#include "l3sm/CommandLine.h"
#include "l3sm/Completion.h"

#include <CLI/CLI.hpp>
#include <functional>
#include <set>
#include <sstream>

using Names = std::set< std::string >;

// The command line as a whole, to ask what it has.
struct Everything {
   CLI::App app;
   std::function< int() > action;
   Everything() { Cli::defineCommandLine( app, action ); }
};

inline CLI::App const & everything() {
   static auto const * const theCommandLine = new Everything;
   return theCommandLine->app;
}

inline Names choicesOf( std::string const & text ) {
   Names lines;
   std::istringstream in( text );
   for ( std::string line; std::getline( in, line ); ) {
      lines.insert( line.substr( 0, line.find( '\t' ) ) );
   }
   lines.erase( "" );
   return lines;
}

// What the program answers for the words of a line, the last of them being typed.
inline Names completions( std::vector< std::string > const & words ) {
   std::ostringstream out;
   Cli::writeCompletion( out, everything(), words );
   return choicesOf( out.str() );
}
