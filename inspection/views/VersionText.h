// Which program this is, for people and for programs.
//
//    l3sm 1.0.0
//    build    f110b496ba77
//    plug-in  /usr/lib/libL3SmPlugin.so
//             sha256:4f0c…
//
// Threading: none.
#pragma once

#include "inspection/Version.h"
#include "rex/Value.h"

namespace Inspection {

std::string versionText( Version const & version );
Rex::Value versionValue( Version const & version );

} // namespace Inspection
