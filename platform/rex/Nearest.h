// The remedy of a misspelt name: what was probably meant.
//
// Threading: none.
#pragma once

#include <string>
#include <vector>

namespace Rex {

// The name in `among` that differs least from `wanted`; empty if none is near.
std::string nearest( std::string const & wanted, std::vector< std::string > const & among );

// `; did you mean "<nearest>"?`, or nothing if none is near: the end of a message.
std::string didYouMean( std::string const & wanted, std::vector< std::string > const & among );

} // namespace Rex
