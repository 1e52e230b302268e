// A file that is read whole.
//
//    std::string const text = readFile( "scenario.json" );     // InputError
//    std::string const text = readFile( "-" );                 // standard input, where that is no terminal
//
// A pipe is read to its end. What is larger than any input has a reason to be is refused before it fills the memory.
#pragma once

#include <cstddef>
#include <string>

namespace Inspection {

constexpr std::size_t largestInput = std::size_t{ 256 } << 20;

std::string readFile( std::string const & path );
// What messages call it.
std::string inputName( std::string const & path );

} // namespace Inspection
