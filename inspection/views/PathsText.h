// The paths of the state, for people and for programs.
#pragma once

#include "inspection/StatePaths.h"
#include "inspection/views/Terminal.h"

#include <ostream>

namespace Inspection {

// A line for each path; or, of a few, everything: attributes, what they take, defaults, whom they reach, and an event
// to copy.
void listPaths( std::ostream & out, std::vector< StatePath const * > const & paths, Style const & style );
void showPath( std::ostream & out, StatePath const & path, Style const & style );

Rex::Value pathsValue( std::vector< StatePath const * > const & paths );

// What an attribute takes, for people: "true or false", "0-65535", "interface → Vxlan::VtiStatus".
std::string takesText( Rex::Attribute const & attribute );
std::string takesText( Rex::ValueType const & type );

// An event that changes an attribute, as a scenario has it: a value that differs from the default, a key that could be.
Rex::Value eventFor( StatePath const & path, StateAttribute const & attribute );

} // namespace Inspection
