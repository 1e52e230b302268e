// The values that a run has put into fields, controls and published attributes, each with the event that did it first:
// what the page finds when a person searches for a number.
//
//    SearchableValues values;
//    values.follow( row );
//    values.json();       // ["IppdFerTrapCfg","cpuStrengthN","0x5",0,0, …]: table, field, value, event, FAP or -1
//
// Memory: at most so many values for each field; isWhole() tells whether that was enough.
#pragma once

#include "simulator/Row.h"

#include <map>
#include <string>
#include <vector>

namespace Inspection {

class SearchableValues {
 public:
   void follow( Simulator::Row const & row );
   std::string json() const;
   bool isWhole() const { return isWhole_; }

 private:
   struct First {
      U32 event;
      int fap;
   };
   using Values = std::map< std::string, First >;
   // A set of hashes, side by side; the next place in turn on collision.
   class Hashes {
    public:
      // False where it is there already.
      bool add( U64 hash );
      std::size_t size() const { return size_; }

    private:
      static constexpr std::size_t fewest = 1 << 10; // places; a power of two
      void grow();
      std::vector< U64 > places_; // 0: free
      std::size_t size_ = 0;
   };

   void add( Values & values, std::string value, Simulator::Row const & row );

   std::map< std::pair< std::string, std::string >, Values > all_; // by table and field, or path and attribute
   Hashes seen_;                                                   // contents of entries
   bool isWhole_ = true;
};

} // namespace Inspection
