// What can follow on a command line that is being typed, for shells.
//
//    writeCompletion( std::cout, app, { "l3sm", "run", "--tog" } );        // "--toggle\tset a toggle; ..."
//
// The protocol, which the scripts in completions/ speak: the words of the line, the last of them the one that is being
// typed, empty where it hasn't begun. The answer is a line for each word that can stand there: the word, a tab, and
// what it is. Lines that begin with a colon say more: ":files", any file can stand there; ":open", what is chosen goes
// on, and no blank follows.
//
// Threading: none.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace Cli {

void writeCompletion( std::ostream & out, CLI::App const & app, std::vector< std::string > const & typed );

// The name under which Candidates.h knows what an option or a place takes; empty for a flag, and where it isn't known.
std::string placeOf( CLI::Option const & option );
// Whether it takes a value at all.
bool takesValue( CLI::Option const & option );
// The verbs, the options of one, its places in their order: those that --help shows.
std::vector< CLI::App const * > verbsOf( CLI::App const & app );
std::vector< CLI::Option const * > optionsOf( CLI::App const & verb );
std::vector< CLI::Option const * > placesOf( CLI::App const & verb );

} // namespace Cli
