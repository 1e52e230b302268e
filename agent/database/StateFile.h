// A state out of a file, as a database takes it: the `state` of a scenario, of a saved one too, or what
// `l3sm run --state` wrote.
//
//    Paths const paths = stateOfFile( "scenario.json" );       // Inspection::InputError
//
// It is checked like a scenario's. What the description of a switch tells, and what a plug-in publishes, is left out:
// it isn't the database's to say. Every path that agents mount is there.
#pragma once

#include "agent/database/Paths.h"

namespace Live {

// What a file of state, or a scenario, sets at its paths, without what the switch or the plug-in makes itself.
// InputError.
Rex::Value::Object stateIn( std::string const & path );

Paths stateOfFile( std::string const & path );

// The events of a scenario, or a list of such events.
std::vector< Inspection::Event > eventsOfFile( std::string const & path );

} // namespace Live
