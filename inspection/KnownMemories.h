// What the chips remember of the road on which a state was reached, deliberately or as the plug-in can't know better:
// a second start, or another order of events, leaves these entries as others. Each with its reason.
//
//    if ( KnownMemory const * known = knownMemory( "AdditionalHeadersMapTable0", "protocolSpecificInformation" ) ) {
//       … known->reason …
//    }
//
// Tests compare the list with what second starts and other roads show: what is missing in it, and what nothing shows
// any more, fails.
#pragma once

#include "simulator/Row.h"

#include <set>

namespace Inspection {

struct KnownMemory {
   std::string_view table; // "controls", "published"
   std::string_view field; // empty: all of them
   std::string_view reason;
   bool atRestart;           // a second start shows it
   std::string_view example; // that shows it; empty: random states do
};

std::span< KnownMemory const > knownMemories();
// Null where none is known.
KnownMemory const * knownMemory( std::string_view table, std::string_view field );
// What is known of the fields that a row changes; null among them where nothing is known of one.
std::set< KnownMemory const * > knownMemoriesOf( Simulator::Row const & row );

} // namespace Inspection
