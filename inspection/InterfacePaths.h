// Where the state tells of interfaces, and how to look into it as values. For InterfaceModel alone.
#pragma once

#include "rex/Value.h"

namespace Inspection::InterfacePaths {

using Rex::isAtOrBelow;
using Rex::Value;

inline std::string const configs = "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig";
inline std::string const statuses = "shared/phySmStateSharedStatus/allEthPhyIntfStatusDir/intfStatus";
inline std::string const locals = "interface/status/eth/phy/local/intfStatusLocal";
inline std::string const subInterfaces = "interface/status/subintf/intfStatus";
inline std::string const ports = "shared/portStateInfo/portState";
inline std::string const slice = "shared/sliceSmStateData";
inline std::string const globalConfig = "interface/config/global";
inline std::string const capability = "interface/hardware/capability";

constexpr U32 activeMode = 2;
constexpr U32 defaultL3Mtu = 1500;

inline Value const * memberOf( Value const * of, std::string const & name ) {
   auto const * const object = of ? of->object() : nullptr;
   auto const found = object ? object->find( name ) : Value::Object::const_iterator();
   return object && found != object->end() ? &found->second : nullptr;
}

inline bool isTrue( Value const * of, char const * attribute, bool otherwise ) {
   auto const * const value = memberOf( of, attribute );
   return value && value->boolean() ? *value->boolean() : otherwise;
}

inline std::string textOf( Value const * value ) {
   return value && value->text() ? *value->text() : std::string();
}

inline bool isThere( Value const * value ) {
   return value && !value->isNull();
}

} // namespace Inspection::InterfacePaths
