// Which functions of the plug-in read and write a table, as journals show it.
#pragma once

#include "l3sm/JournalFile.h"
#include "rex/Value.h"

namespace Cli {

struct Touch {
   std::string function;
   std::string source; // the file
   std::size_t reads = 0;
   std::size_t writes = 0;
   std::string fields; // that its writes changed, one space between them
};

// In alphabetical order of functions.
std::vector< Touch > touchesOf( Catalogue::Table const & table, std::vector< std::string > const & journals );
Rex::Value touchesValue( std::vector< Touch > const & touches );

} // namespace Cli
