// What a run did to its chips in a few digits: the number of driver operations, and a hash over all of them. Two runs
// that agree on both did the same, read the same and wrote the same, in the same order.
//
//    OperationHash hash;
//    hash.add( row );                                // of its operations; other rows don't count
//    hash.count(), hash.text();                      // 17, "0x3f0a…"
//
// A table counts with its name, so that the numbers of the catalogue may change.
//
// Threading: one thread.
#pragma once

#include "simulator/Row.h"

#include <string>

namespace Inspection {

class OperationHash {
 public:
   void add( Simulator::Row const & row );
   // As if there had been none.
   void clear() { *this = {}; }

   U64 count() const { return count_; }
   U64 value() const { return hash_; }
   std::string text() const { return hashText( hash_ ); }
   static std::string hashText( U64 hash );

   bool operator==( OperationHash const & ) const = default;

 private:
   void add( U64 part );
   void add( Simulator::WordView words );

   U64 count_ = 0;
   U64 hash_ = 0x9ae16a3b2f90404f; // where nothing has happened
};

} // namespace Inspection
