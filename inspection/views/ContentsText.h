// What stands on chips, for people and for programs.
//
//    showContents( std::cout, 3, contents, { .filter = filter }, style );     // of FAP 3
//    contentsValue( contents, { .filter = filter } );                         // as a chips file has it
#pragma once

#include "inspection/ContentsFilter.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

struct ContentsShown {
   ContentsFilter filter = {}; // fields
   bool all = false;           // unset fields too
};

void showContents(
   std::ostream & out, U16 fap, FapContents const & contents, ContentsShown const & shown, Style const & style );
Rex::Value contentsValue( FapContents const & contents, ContentsShown const & shown );

} // namespace Inspection
