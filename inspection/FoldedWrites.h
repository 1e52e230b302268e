// Writes that say the same, told once: the entries that one place in the source gave the same values.
//
//    for ( WriteGroup const & group : groupsOf( rows ) ) { ... group.places() ... group.fields ... }
#pragma once

#include "simulator/Row.h"

#include <string>

namespace Inspection {

// A field on which all the writes of a group agree.
struct GroupField {
   std::string name;   // "csProfile0-63" for neighbours that are told alike
   bool changed;       // by at least one of the writes
   std::string before; // "0x3", "0x3 0x5" where the writes found different values, "various" where those are many
   std::string after;
};

struct WriteGroup {
   std::vector< Simulator::Row const * > writes; // in their order
   std::vector< GroupField > fields;             // those that changed first, each kind in the order of the catalogue

   Simulator::Row const & first() const { return *writes.front(); }
   bool changed() const;
   // "array 3, entries 0-31 127"; empty for a register without an array.
   std::string places() const;
};

// The table writes among the rows, grouped; groups in the order of their first write.
std::vector< WriteGroup > groupsOf( std::vector< Simulator::Row const * > const & rows );

// "0-31 127": ascending numbers, runs joined.
std::string ranges( std::vector< U32 > numbers );

} // namespace Inspection
