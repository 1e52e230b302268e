#include "inspection/Version.h"

#include "inspection/Play.h"
#include "inspection/Revision.h"

#include <sha2.h>

namespace Inspection {

std::string_view versionNumber() {
   return L3SM_VERSION;
}

Version thisVersion() {
   std::string const plugin = pluginBeside();
   return { std::string( versionNumber() ),
            *revision ? std::optional< std::string >( revision ) : std::nullopt,
            plugin,
            libraryId( plugin ) };
}

std::optional< std::string > libraryId( std::string const & path ) {
   char digits[SHA256_DIGEST_STRING_LENGTH];
   if ( !SHA256File( path.c_str(), digits ) ) {
      return std::nullopt;
   }
   return std::string( "sha256:" ) + digits;
}

} // namespace Inspection
