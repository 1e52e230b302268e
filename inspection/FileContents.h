// What a file tells of chips: a chips file, or a journal, at its end or after an event.
//
//    ContentsQuestion const question{ .file = "run.jsonl.zst", .event = 17, .filter = filter };
//    eachContents( question, { .remarks = [&]( auto const & lines ) { … },          // first
//                              .fap = [&]( U16 fap, FapContents const & contents ) { … } } );
//
// One FAP at a time is held of a chips file. InputError where the file can't be read, or lacks what is asked for.
//
// Threading: none.
#pragma once

#include "inspection/ContentsFilter.h"

#include <functional>

namespace Inspection {

struct ContentsQuestion {
   std::string file;
   std::optional< U32 > event = {}; // none: the end
   ContentsFilter filter = {};
};

struct ContentsHearer {
   std::function< void( std::vector< std::string > const & ) > remarks; // about a journal
   std::function< void( U16, FapContents const & ) > fap;
};

void eachContents( ContentsQuestion const & question, ContentsHearer const & hearer );

} // namespace Inspection
