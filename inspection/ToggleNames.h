// Toggles as people name them, in a scenario and on the command line. A misspelt one would change nothing, and nobody
// would see it.
//
//    wrongToggle( "Dace.json", "ArmOrderedSwTabel" );   // "there is no such toggle; did you mean "ArmOrderedSwTable"?"
//    toggleIs( scenario.description.toggles, "Dace.json:ArmOrderedSwTable=off" );          // InputError
//
// A plug-in may declare toggles of its own (Toggle::Declared); they count once its library is loaded.
#pragma once

#include "toggle/Toggle.h"

#include <string>

namespace Inspection {

// What is wrong with the name of a file, or of a toggle in it; empty if nothing is.
std::string wrongToggleFile( std::string const & file );
std::string wrongToggle( std::string const & file, std::string const & name );

// "FILE:NAME=on" or "FILE:NAME=off", into the settings. InputError.
void toggleIs( Toggle::Settings & toggles, std::string const & text );

} // namespace Inspection
