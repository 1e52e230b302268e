// What a run did, row by row: driver operations, reads included, gates that were found closed, and what the agent has
// published in its state. A journal is made of rows, and every answer about a run reads them.
//
//    class Counter : public Simulator::RowReader {
//       void row( Simulator::Row const & row ) override { writes += row.kind == Simulator::Row::Kind::write; }
//    };
//
// A row belongs to whoever hands it over: its texts and words are valid during the call only, unless that says more.
#pragma once

#include "generated/Catalogue.h"
#include "rex/Value.h"
#include "sal/Driver.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace Simulator {

// Words that stand elsewhere; compares by what they hold.
struct WordView : std::span< U32 const > {
   using std::span< U32 const >::span;
   WordView( std::vector< U32 > const & words ) : span( words ) {} // NOLINT(google-explicit-constructor)
   friend bool operator==( WordView a, WordView b ) { return std::ranges::equal( a, b ); }
};

struct Row {
   enum class Kind : U8 { read, write, control, gate, publish, fault };
   using Scope = DaceSal::Operation::Scope;

   Kind kind;
   U32 event;   // 0: the start
   U64 seq = 0; // operations, from 1
   // Where it came from. A publication knows its cause alone.
   std::string_view function = {};
   std::string_view source = {}; // file and line
   std::string_view cause = {};
   // Numbers that stand for function and source together, and for the cause: alike in one journal where these are.
   U32 originNumber = 0;
   U32 causeNumber = 0;

   // Operations, and gates whose condition is one of a FAP.
   bool isOfFap = true;
   U16 fap = 0;

   // Reads and writes.
   std::string_view table = {};
   U16 tableNumber = 0;
   Catalogue::Layout const * layout = nullptr; // null where the kind of chip isn't known
   U8 variant = 0;
   int array = 0;
   std::optional< U32 > entry = {}; // none for a register
   Scope scope = Scope::any;
   int core = 0; // with Scope::core
   WordView words = {};
   bool changed = false; // writes and controls: the contents of some copy became different
   WordView before = {}; // writes: what stood there; empty where the copies differed, or nobody knows

   // Controls.
   U32 control = 0;
   U32 value = 0;
   std::optional< U32 > valueBefore = {}; // none: it had none yet, or nobody knows

   // Gates: why they are closed. Faults: which fired, "flip:7"; it did so in the copy `core` of the entry, whose words
   // are those that it holds since.
   std::string_view reason = {};

   // Publications: an attribute at a path, or one entry of it.
   std::string_view path = {};
   std::string_view attribute = {};
   std::optional< std::string_view > key = {};
   Rex::Value const * published = nullptr;       // never null then
   Rex::Value const * publishedBefore = nullptr; // likewise

   bool isOperation() const { return kind <= Kind::control; }
   // Of a FAP's chip: what was done to it, or befell it.
   bool isOfChip() const { return isOperation() || kind == Kind::fault; }
};

// How a run ended.
struct Ending {
   // cut: the journal breaks off, without saying why.
   enum class Kind : U8 { complete, interrupted, assertion, cut };

   Kind kind = Kind::complete;
   U32 events = 0;            // the last that has begun
   U64 operations = 0;        // in all
   std::string text = {};     // of an assertion
   std::string function = {}; // likewise: where it stands
   std::string source = {};
};

// Hears of a run as it goes on: for each event its beginning, its rows in their order, and its end.
class RowReader {
 public:
   virtual ~RowReader() = default;
   // `what`: the change, as a scenario has it; of event 0 {"start": {}}.
   virtual void eventBegins( [[maybe_unused]] U32 event, [[maybe_unused]] Rex::Value const & what ) {}
   virtual void row( Row const & row ) = 0;
   // Not called for an event that the run broke off in.
   virtual void eventEnds( [[maybe_unused]] U32 event ) {}
   // Once, at last.
   virtual void ends( [[maybe_unused]] Ending const & ending ) {}
};

} // namespace Simulator
