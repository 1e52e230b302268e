// How the chips of one switch differ from those of another: entry by entry, field by field.
//
//    std::vector< Difference > const all = differencesOf( readChips( "a.json" ), readChips( "b.json" ) );
//    eachDifference( 3, &contentsA, &contentsB, [&]( Difference it ) { … } );           // of one FAP
//
// Entries are the same if FAP, table, variant, array index and entry are.
#pragma once

#include "inspection/files/ChipsFile.h"

#include <functional>

namespace Inspection {

// A field, or a control, with its value on each side as a dump has it; nothing where the side lacks it.
struct ValueDifference {
   std::string name;
   std::optional< std::string > a;
   std::optional< std::string > b;
};

// One place where the sides differ. Controls stand under the table "controls", each as an entry.
struct Difference {
   static constexpr std::string_view controls = "controls";
   static constexpr std::string_view chipType = "chip type";

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

using EachDifference = std::function< void( Difference difference ) >;

// Of one FAP; null: the side has no such FAP.
void eachDifference( U16 fap, FapContents const * a, FapContents const * b, EachDifference const & each );

std::vector< Difference > differencesOf( ChipsFile const & a, ChipsFile const & b );

// {"a": "0x0", "b": null}
Rex::Value::Object sidesOf( ValueDifference const & value );
Rex::Value differencesValue( std::vector< Difference > const & all );

// How many there are, by table.
class DifferenceCounts {
 public:
   struct Count {
      std::set< U16 > faps = {};
      std::size_t entries = 0;
      std::size_t fields = 0;
   };
   void add( Difference const & it );
   std::size_t entries() const { return entries_; }
   std::map< std::string, Count > const & byTable() const { return byTable_; }
   Rex::Value value() const;

 private:
   std::map< std::string, Count > byTable_;
   std::size_t entries_ = 0;
};

} // namespace Inspection
