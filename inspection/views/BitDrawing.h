// A picture of where the fields of an entry lie: one row of 32 bits for each word, the highest bit on the left.
//
//             31          24 23          16 15           8 7            0
//            ┌───────────────────────────────┬───────┬───────┬─────────┐
//     word 0 │                               │ a     │ b     │ …
//
// A field whose name is too long for its place gets a letter there, which the list below the picture explains. Fields
// that overlap others (views of the same bits) have a row of their own; words that look alike are drawn once.
#pragma once

#include "generated/Catalogue.h"

#include <functional>
#include <map>
#include <ostream>
#include <string>

namespace Inspection {

// The letters of the fields, by word and name, where the name wasn't drawn.
using Letters = std::map< unsigned, std::map< std::string, char > >;

// Draws, and returns the letters that it used. `mark` gives the name as it is to be shown, same width or not.
Letters drawBits( std::ostream & out,
                  Catalogue::Layout const & layout,
                  std::function< std::string( Catalogue::Field const & ) > const & nameOf,
                  std::function< std::string( Catalogue::Field const &, std::string const & ) > const & mark );

} // namespace Inspection
