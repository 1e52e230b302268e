// The short name of a function, as people speak of it, from what the compiler says of a place in the source.
//
//    functionName( "static void DaceFapNi::L3Sm::initIpTraps(const FapStatusPtr&)" ) == "L3Sm::initIpTraps"
//    fileName( "DaceL3Unicast/DaceFapNiPlugin/L3SmRouting.cpp" ) == "L3SmRouting.cpp"
#pragma once

#include <string>
#include <string_view>

namespace Simulator {

// The function without result, arguments and the namespaces DaceFapNi and of no name; for a lambda, the function that
// it stands in.
std::string functionName( std::string_view signature );

// The last part of a path.
std::string_view fileName( std::string_view path );

} // namespace Simulator
