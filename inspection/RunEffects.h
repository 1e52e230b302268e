// What a run leaves of each event, to be compared with what another leaves: which fields became different, from what to
// what, by which function; and how it came to it, in numbers.
//
//    RunEffects effects;
//    journal.read( effects );
//    for ( EventEffects const & event : effects.events() ) { … event.changes.at( place ) … }
//
// A change is that of an event as a whole: what was written and written back is none. Its function is the one that set
// the field to what it ends as.
//
// Threading: one thread.
#pragma once

#include "simulator/Row.h"

#include <map>
#include <string>

namespace Inspection {

struct EffectPlace {
   U16 fap;
   std::string table; // "controls", "published"
   U8 variant;
   int array;
   U32 entry; // of a control its number
   U32 copy;
   std::string field; // of what is published path and attribute
   friend auto operator<=>( EffectPlace const &, EffectPlace const & ) = default;
};

struct Effect {
   std::string from; // as a dump has it; empty where nobody knows
   std::string to;
   std::string function;
   std::string source;
};

struct EventEffects {
   U32 event;
   std::string what; // as people say it
   std::map< EffectPlace, Effect > changes = {};
   U64 operations = 0;
   U64 writes = 0;
   U64 hash = 0; // over its operations: places, values and functions in their order
};

class RunEffects final : public Simulator::RowReader {
 public:
   void eventBegins( U32 event, Rex::Value const & what ) override;
   void row( Simulator::Row const & row ) override;
   void eventEnds( U32 event ) override;
   void ends( Simulator::Ending const & ending ) override { ending_ = ending; }

   // Those of events that came to their end.
   std::vector< EventEffects > const & events() const { return events_; }
   Simulator::Ending const & ending() const { return ending_; }

 private:
   void became( EffectPlace place, std::string const & before, std::string const & after, Simulator::Row const & row );

   EventEffects under_{};
   std::map< EffectPlace, Effect > changes_; // of the event under way, those that come to nothing as well
   std::vector< EventEffects > events_;
   Simulator::Ending ending_;
};

} // namespace Inspection
