// A value that no view knows more of, for people: an object as lines of name and value, a list of objects as a table.
//
//    writeValue( std::cout, value, style );
//
//    phase   running
//    events  17
#pragma once

#include "inspection/views/Terminal.h"
#include "rex/Value.h"

namespace Inspection {

void writeValue( std::ostream & out, Rex::Value const & value, Style const & style );

} // namespace Inspection
