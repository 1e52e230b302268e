// What a run has programmed: the values that it has set on the chips, without those that it has left alone.
//
//    ProgrammedValues const it = programmedValuesOf( scenario, plugin );
//    it.values.at( { 0, "IppdFerTrapCfg", "[3]", "cpuStrengthN" } );     // "0x5"
//
// A boot image holds something everywhere, and something else on every chip; a function that changes a part of an entry
// keeps the rest. So each scenario is played twice, in a child process: once with the boot image as it is, and once
// with the bits inverted that nothing depends on. What is alike afterwards, or has become different from the boot
// image, was set; where an entry was written without having been read, all of it was.
#pragma once

#include "inspection/Play.h"
#include "toggle/Toggle.h"

#include <compare>

namespace Inspection {

struct ProgrammedPlace {
   U16 fap;
   std::string table; // "controls" for controls
   std::string place; // as people read it: "variant 1 [3] 12"; of a control its number
   std::string field; // of a control ""
   U32 order[3];      // variant, array index, entry: as chips count them
   friend bool operator==( ProgrammedPlace const &, ProgrammedPlace const & ) = default;
   friend auto operator<=>( ProgrammedPlace const & a, ProgrammedPlace const & b ) {
      return std::tie( a.table, a.fap, a.order[0], a.order[1], a.order[2], a.place, a.field ) <=>
             std::tie( b.table, b.fap, b.order[0], b.order[1], b.order[2], b.place, b.field );
   }
};

struct ProgrammedValues {
   std::string failure; // the run's last words, where it didn't come to its end
   std::vector< Toggle::Reading > toggles;
   // The value as a dump has it. Where only some bits of a field were set: "<value>/<those bits>".
   std::map< ProgrammedPlace, std::string > values;
};

// InputError where the scenario doesn't fit, or the library can't be loaded.
ProgrammedValues programmedValuesOf( Scenario const & scenario, std::string const & plugin );

} // namespace Inspection
