// A place of a chip that doesn't hold what was written to it, as people and programs read it.
//
//    audit.finish( [&]( Simulator::Mismatch const & it ) {
//       wrongPlaceOf( sw.description(), it ).text();   // "FAP 0 IppdFerTrapCfg[3] copy 1: cpuSnoopCodeN is 0x195, …"
//    } );
//
// Threading: the agent's scheduler thread.
#pragma once

#include "rex/Value.h"
#include "simulator/SimulatedSwitch.h"

namespace Inspection {

struct WrongPlace {
   struct Field {
      std::string name;
      std::string expected; // hexadecimal
      std::string found;
   };

   U16 fap;
   std::string place;           // "IppdFerTrapCfg[3] copy 1", "control 64"
   std::vector< Field > fields; // that differ; of a control "value"
   std::vector< U32 > bits;     // of the entry

   std::string text() const;
   // {"fap", "place", "fields": {name: {"expected", "found"}}, "bits"}
   Rex::Value::Object value() const;
};

WrongPlace wrongPlaceOf( Simulator::SwitchDescription const & description, Simulator::Mismatch const & it );
} // namespace Inspection
