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
#include <unordered_set>

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

   void add( Values & values, std::string value, Simulator::Row const & row );

   std::map< std::pair< std::string, std::string >, Values > all_; // by table and field, or path and attribute
   std::unordered_set< U64 > seen_;                                // contents of entries, as a hash
   bool isWhole_ = true;
};

} // namespace Inspection
