// How the chips of one switch differ from those of another: entry by entry, field by field.
//
//    std::vector< Difference > const all = differencesOf( readChips( "a.json" ), readChips( "b.json" ) );
//    showDifferences( std::cout, all, Style::of( std::cout ) );
//
// Entries are the same if FAP, table, variant, array index and entry are.
#pragma once

#include "inspection/files/ChipsFile.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

// A field, or a control, with its value on each side as a dump has it; nothing where the side lacks it.
struct ValueDifference {
   std::string name;
   std::optional< std::string > a;
   std::optional< std::string > b;
};

// One place where the sides differ. Controls stand under the table "controls", each as an entry.
struct Difference {
   U16 fap;
   std::string table;
   std::string place; // as people read it
   U32 variant = 0;
   U32 array = 0;
   U32 entry = 0;
   bool inA = true;
   bool inB = true;
   std::vector< ValueDifference > values;
};

std::vector< Difference > differencesOf( ChipsFile const & a, ChipsFile const & b );

// A summary by table, then each place. `nameA`, `nameB`: what the sides are, for entries that one side lacks.
void showDifferences( std::ostream & out,
                      std::vector< Difference > const & all,
                      std::string const & nameA,
                      std::string const & nameB,
                      Style const & style );
Rex::Value differencesValue( std::vector< Difference > const & all );

} // namespace Inspection
