// What a person types.
#include "Entries.h"
#include "EntryTools.h"

#include "l3sm/CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>

namespace Fuzz {

// The arguments are read, and what they ask for isn't done.
void commandLine( std::string const & bytes ) {
   constexpr std::size_t mostWords = 20;
   auto words = linesOf( bytes );
   words.resize( std::min( words.size(), mostWords ) );
   std::reverse( words.begin(), words.end() ); // as the parser takes them
   CLI::App app;
   std::function< int() > action;
   Cli::defineCommandLine( app, action );
   mayRefuse( [&] {
      try {
         app.parse( words );
      } catch ( CLI::Error const & ) { // NOLINT(bugprone-empty-catch)
      }
   } );
}

} // namespace Fuzz
