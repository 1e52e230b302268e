// Which program this is: its version, the build it comes from, and the plug-in that it loads where none is named.
//
//    Version const version = thisVersion();
//    version.number                                           // "1.0.0"
//    version.build                                            // "f110b496ba77", "f110b496ba77-dirty"; or none
//    version.plugin                                           // "/usr/lib/libL3SmPlugin.so"
//    version.pluginId                                         // "sha256:4f0c…"; or none
//
// The number is that of the build's project: whoever tells a version tells this one.
//
// Threading: none.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Inspection {

struct Version {
   std::string number;
   std::optional< std::string > build; // the revision of the sources; none where nobody knew it
   std::string plugin;
   std::optional< std::string > pluginId; // none where the library can't be read
};

Version thisVersion();
std::string_view versionNumber();

// What tells one build of a library from another: the hash of its file. None where it can't be read.
std::optional< std::string > libraryId( std::string const & path );

} // namespace Inspection
