// The toggles of the plug-in: in which file each stands, its default, and which functions ask it.
//
//    for ( KnownToggle const & toggle : knownToggles() ) { ... }
//    toggleNamed( "Dace.json", "ArmOrderedSwTable" );      // null where there is none
//
// A process tells only of the toggles that it has read; this list has them all. It is written by ./dev golden from the
// sources of the plug-in, and a test compares it with what runs read.
#pragma once

#include "rex/Value.h"

#include <span>
#include <string_view>

namespace Inspection {

struct KnownToggle {
   std::string_view name;
   std::string_view file;
   bool defaultState;
   std::string_view readers; // one space between them

   // "Dace.json:ArmOrderedSwTable"
   std::string text() const { return std::string( file ) + ":" + std::string( name ); }
};

// By file and name.
std::span< KnownToggle const > knownToggles();
KnownToggle const * toggleNamed( std::string_view file, std::string_view name );

Rex::Value knownTogglesValue();

} // namespace Inspection
