// Which functions of the plug-in a closed gate keeps from running: the one that it stands in, and those which that one
// calls behind it. The gate at the list of a chip's initialisation stops every function of the list; a machine that
// isn't built runs none of its functions.
//
//    behindGatesOf( "L3SmMounter::createPluginStatePhase2" );      // { itself, "L3Sm::initEnablersVectors", ... }
//
// It is known from the sources of the plug-in: KnownGateReach.cpp, which a test compares and ./dev golden writes anew.
#pragma once

#include <set>
#include <span>
#include <string_view>

namespace Inspection {

struct GateReach {
   std::string_view function;
   std::string_view behind; // one space between them
};

// By function. One that only keeps itself from going on isn't listed.
std::span< GateReach const > knownGateReach();

std::set< std::string_view > behindGatesOf( std::string_view function );

} // namespace Inspection
