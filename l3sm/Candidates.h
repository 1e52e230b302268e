// What can stand in the place of a value on the command line: tables, fields, paths, toggles, ...
//
//    candidatesFor( "--table", "Ippd", {} ).list;          // { "IppdFerTrapCfg", ... }
//
// A place is known by the name of its option, by its own, or by the type that its help shows: FILE and what ends as a
// file's name does are files, and every other is named in Candidates.cpp; a test sees to it.
//
// Threading: none.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Cli {

struct Candidate {
   std::string text;
   std::string about = {}; // for people; may be empty
};

struct Candidates {
   std::vector< Candidate > list = {};
   bool files = false;  // any file, which the shell knows better
   bool isOpen = false; // what is chosen goes on: no blank behind it
};

// Whether anything is known of a place.
bool isKnownPlace( std::string_view place );

// What begins with `typed`. `before` are the values that stand in the places before it.
Candidates
candidatesFor( std::string_view place, std::string const & typed, std::vector< std::string > const & before );

} // namespace Cli
