// The steps of an event that lead from its input to the chips and to the state, equal ones folded into one: the writes
// of one place in the source that leave the same values, what was published alike on several interfaces, a gate that
// was found closed again and again.
//
//    ChainSteps steps;
//    steps.add( row, changesOf( row ) );
//    for ( ChainStep const & step : steps.all() ) { … step.function, step.places, step.times … }
//
// What it keeps grows with the number of different steps and the places that they reach, not with that of the rows.
#pragma once

#include "inspection/FieldChanges.h"

#include <map>
#include <set>
#include <unordered_map>

namespace Inspection {

struct ChainStep {
   // Places in a table: FAP, array index, entry.
   using Entries = std::set< U32 >;
   using Arrays = std::map< U32, Entries >;

   struct Change {
      std::string name = {};                   // of a field; empty for a control
      U32 width = 0;                           // in bits
      std::vector< std::string > befores = {}; // the first few different ones; none where nobody knows
      bool hasMoreBefores = false;
      std::string after = {};
      // On each FAP that has it: as many different ones, and one more where there are more.
      std::map< U16, std::vector< std::string > > onFap = {};

      void addBefore( std::string const & before );
      // As if only these FAPs were in the step; nothing where none of them has the change.
      std::optional< Change > onFaps( std::set< U16 > const & faps ) const;
   };

   Simulator::Row::Kind kind = Simulator::Row::Kind::write;
   std::string cause = {};
   std::string function = {}; // empty for a publication
   std::string source = {};
   U64 seq = 0; // of the first operation
   std::size_t times = 0;

   // Reads and writes.
   Catalogue::Table const * table = nullptr;
   U8 variant = 0;
   bool isArrayed = false;
   bool isMemory = false;
   std::optional< int > core = {};
   std::map< U16, Arrays > places = {};
   bool changed = false; // writes and controls: something became different
   std::vector< Change > changes = {};

   // Controls have the FAPs of `places`, and one change without a name.
   U32 control = 0;

   // Gates.
   std::string reason = {};
   std::set< U16 > faps = {}; // none: its condition is not one of a FAP

   // Publications: on these, as their paths end, below a path.
   std::string path = {};
   std::string attribute = {};
   Rex::Value before = {};
   Rex::Value after = {};
   std::vector< std::string > names = {}; // the first few
   static constexpr std::size_t mostNames = 12;
};

class ChainSteps {
 public:
   // `changes`: what the write did to the fields that are asked about.
   void add( Simulator::Row const & row, std::vector< FieldChange > const & changes = {} );
   std::vector< ChainStep > const & all() const { return steps_; }
   bool empty() const { return steps_.empty(); }

 private:
   // The step that a row belongs to; a new one where there is none yet.
   ChainStep & stepOf( Simulator::Row const & row, std::vector< FieldChange > const & changes );

   std::vector< ChainStep > steps_; // in the order of their first rows
   // By what their rows changed; and by what the first row left behind, whatever it found.
   std::unordered_map< std::string, std::size_t > byChanges_;
   std::unordered_map< std::string, std::size_t > byWords_;
};

// The fields that a write changed, of those that `part` names; all of its table where that names none. A bit counts as
// changed where it has become different, or nobody knows what stood there.
std::vector< FieldChange > changesOf( Simulator::Row const & row, std::string const & field, std::optional< U32 > bit );

// Whether a bit is set in a number as a dump has it: "0x1f".
bool isBitSet( std::string const & value, U32 bit );

} // namespace Inspection
