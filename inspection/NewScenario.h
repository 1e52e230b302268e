// A scenario to start from: a switch of these chips, and the state and events of some subjects, on chips that are
// served.
//
//    for ( Subject const & subject : subjects() ) { ... }              // "evpn", "EVPN over VXLAN, ..."
//    Rex::Value const scenario = newScenario( { .subjects = { "evpn", "vxlan" } }, plugin );      // InputError
//
// The subjects are data: inspection/subjects/. Which toggles it takes for the chips to be served is found out by
// playing, from the gates that are closed.
#pragma once

#include "chip/ChipType.h"
#include "rex/Value.h"

#include <optional>
#include <vector>

namespace Inspection {

struct Subject {
   std::string name;
   std::string does;    // for people
   Rex::Value scenario; // toggles, state, events
};

// In alphabetical order.
std::vector< Subject > const & subjects();

struct WantedScenario {
   std::vector< Hardware::ChipType > chips = {}; // none: one of the first type
   std::optional< U16 > cores = {};              // of each; none: as many as the chip has
   std::vector< std::string > subjects = {};
   std::string schema = {}; // where editors find the schema; empty: they aren't told
};

// As it was played last, every event, without a fault. `plugin` as for loadPlugin.
Rex::Value newScenario( WantedScenario const & wanted, std::string const & plugin );

} // namespace Inspection
