// What was probably meant by a name that is no subject of a question: the remedy at the end of its refusal.
//
//    remedyOf( "l3Mt" );            // "; did you mean "interface/config/global.l3Mtu"?"
//    remedyOf( "handleurpf" );      // "; did you mean "L3Sm::handleUrpfFailFwdConfig"?"
//    remedyOf( "ethernet1" );       // "; did you mean "Ethernet1"?"
//    remedyOf( "evpn" );            // "; there is L3Sm::handleEvpnDciGateway, L3Sm::handleEvpnEncapType, evpn/status"
#pragma once

#include "inspection/StatePaths.h"

#include <string>
#include <vector>

namespace Inspection {

std::string remedyOf( std::string const & typed, std::vector< std::string > const & functions );

// The paths of the state that have an attribute of this name.
std::vector< StatePath const * > pathsWith( std::string const & attribute );

} // namespace Inspection
