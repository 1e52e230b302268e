// What a person has got wrong: an option, or an input file. It ends the program with one line and status 2.
#pragma once

#include <stdexcept>
#include <string>

namespace Inspection {

class InputError : public std::runtime_error {
 public:
   explicit InputError( std::string const & text ) : std::runtime_error( text ) {}
   // `place`: "FILE", "FILE:LINE", or "FILE: POINTER".
   InputError( std::string const & place, std::string const & text ) : std::runtime_error( place + ": " + text ) {}
};

} // namespace Inspection
