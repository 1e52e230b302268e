// The trace facilities, and what each tells on which level.
//
//    for ( KnownTrace const & trace : knownTraces() ) { ... }        // "DaceFapNiL3Sm", 5, "L3Sm::handleInitialized
//    ..." tracesOf( "DaceFapNiL3Sm" );                                    // InputError where there is none of the name
//
// The list is written by ./dev golden from the sources; a test compares it with the facilities that register.
#pragma once

#include "rex/Value.h"

#include <span>
#include <string_view>
#include <vector>

namespace Inspection {

struct KnownTrace {
   std::string_view facility;
   int level;
   std::string_view text; // what it says, "…" for a value
   std::string_view source;
};

// By facility and level.
std::span< KnownTrace const > knownTraces();
// Each once.
std::vector< std::string > knownFacilities();
std::vector< KnownTrace > tracesOf( std::string const & facility );

Rex::Value tracesValue( std::vector< std::string > const & facilities );

} // namespace Inspection
