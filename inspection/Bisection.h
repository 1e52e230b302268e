// The event of a run since which a field has a value: where it lies in a journal, found in one reading.
//
//    Condition const condition = conditionOf( "IppdFerTrapCfg.cpuStrengthN=0" );      // InputError
//    Bisection const it = bisect( journal, condition, { .fap = 0 } );
//    for ( Holding const & holding : it.holdings ) { … holding.since->event … }
//
// The chips are replayed beside the reading, so that it is known what stood there before the first write. Writes to
// another format of the same memory count as what they are: changes of the entry.
#pragma once

#include "inspection/NamesAsTyped.h"
#include "inspection/ReplayedChips.h"

#include <memory>

namespace Inspection {

struct Condition {
   TablePart field;
   std::string value; // as a dump has it

   // "IppdFerTrapCfg.cpuStrengthN = 0x0"
   std::string text() const { return field.text() + " = " + value; }
};

// "TABLE.FIELD=VALUE", decimal or hexadecimal; the table may be left out where one alone has the field.
Condition conditionOf( std::string const & typed );

// The write that a condition has begun or ceased to hold by.
struct Turn {
   U32 event;
   std::string what; // the event, as people say it
   U64 seq;
   std::string function;
   std::string source;
   std::string cause;
   std::string other; // the value before it began, or after it ended
};

using TurnPtr = std::shared_ptr< Turn const >; // null: there is none

// An entry in which the condition holds, or did. It holds where it does in any copy.
struct Holding {
   U16 fap;
   Catalogue::Layout const * layout;
   U32 array;
   U32 entry;
   bool holds; // at the end
   // Since when at the latest; none: since before the start.
   TurnPtr since = {};
   TurnPtr until = {}; // where it holds no more
};

struct Bisection {
   Condition condition;
   U32 events = 0; // of the journal
   // Where it holds at the end; by event of its beginning, and then by place.
   std::vector< Holding > holdings = {};
   // Where it did and does no more, the latest first.
   std::vector< Holding > former = {};
   std::vector< std::string > remarks = {};
};

struct BisectionFilter {
   std::optional< U16 > fap = {};
   TypedPlace place = {};
};

Bisection bisect( JournalReader & journal, Condition const & condition, BisectionFilter const & filter );

} // namespace Inspection
