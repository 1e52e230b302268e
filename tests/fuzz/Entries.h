// What is fed with anything at all: one entry point for each kind of input that comes from outside. An entry reads the
// bytes as the program would, from a file. A refusal (InputError, the generator's Error) is a fine answer; anything
// else that isn't one is a finding: an assertion, another exception, a report of the sanitizers.
//
//    for ( Fuzz::Entry const & entry : Fuzz::entries() ) { entry.feed( bytes ); }
#pragma once

#include <string>
#include <vector>

namespace Fuzz {

struct Entry {
   char const * name; // also of its folder in corpus/
   void ( *feed )( std::string const & bytes );
};

std::vector< Entry > const & entries();

} // namespace Fuzz
