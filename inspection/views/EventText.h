// One event of a run, for people: what was written by which function, decoded by field, what was published, and which
// gates were closed; or why nothing came of it.
//
//    writeEvent( lines, rows, { .mostLines = 8 } );       // the gist
//    writeEvent( lines, rows, { .isFull = true } );       // all of it
#pragma once

#include "inspection/EventRows.h"
#include "inspection/views/CountsText.h"
#include "inspection/views/Lines.h"

namespace Inspection {

struct EventTextOptions {
   bool isFull = false;       // every write, also those that left what was there
   bool unchanged = false;    // fields that stayed as they were, too
   std::size_t mostLines = 0; // none: all
};

void writeEvent( Lines & lines, EventRows const & rows, EventTextOptions const & options );

} // namespace Inspection
