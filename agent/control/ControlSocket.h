// The control socket of an agent in the file system: where it is, who may use it, and whether somebody listens.
//
//    controlPath( "Linecard3" );                     // "/run/l3sm/Linecard3.ctl"
//    Descriptor const socket = listenAt( path );     // InputError: another agent listens there
//    Descriptor const socket = connectTo( path );    // InputError: nobody does, or no permission
//
// Threading: none.
#pragma once

#include "simulator/Descriptor.h"

#include <string>
#include <sys/types.h>
#include <vector>

namespace Live {

using Simulator::Descriptor;

inline constexpr char const * controlFolder = "/run/l3sm";

// What poll counts in.
inline constexpr int millisecondsInSecond = 1000;

std::string controlPath( std::string const & slice, std::string const & folder = controlFolder );
// The slices that have a socket in the folder, sorted.
std::vector< std::string > slicesThere( std::string const & folder = controlFolder );

// Owner and group may connect. What a dead agent has left there is replaced.
Descriptor listenAt( std::string const & path );
Descriptor connectTo( std::string const & path );

// Who has connected.
struct Peer {
   pid_t process = 0;
   uid_t user = 0;

   std::string text() const;
};
Peer peerOf( int socket );

} // namespace Live
