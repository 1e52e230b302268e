// A value that no view knows more of, for people: an object as lines of name and value, a list of texts as
// lines, one of objects as one after the other.
//
//    writeValue( std::cout, value, style, { "phase" } );      // names that come first, where they are there
//
//    phase   running
//    events  17
#pragma once

#include "inspection/views/Terminal.h"
#include "rex/Value.h"

#include <string>
#include <vector>

namespace Inspection {

void writeValue( std::ostream & out,
                 Rex::Value const & value,
                 Style const & style,
                 std::vector< std::string > const & first = {} );

} // namespace Inspection
