#include "inspection/GateReach.h"

#include <algorithm>

namespace Inspection {

std::set< std::string_view > behindGatesOf( std::string_view function ) {
   std::set< std::string_view > all{ function };
   auto const known = knownGateReach();
   auto const found = std::ranges::find( known, function, &GateReach::function );
   if ( found == known.end() ) {
      return all;
   }
   for ( std::string_view rest = found->behind; !rest.empty(); ) {
      auto const end = rest.find( ' ' );
      all.insert( rest.substr( 0, end ) );
      rest = end == std::string_view::npos ? std::string_view() : rest.substr( end + 1 );
   }
   return all;
}

} // namespace Inspection
