#include "inspection/LastSteps.h"

#include "inspection/views/Terminal.h"

#include <algorithm>

namespace Inspection {

std::vector< std::string > lastSteps( std::size_t most ) {
   auto const records = Rex::RingTrace::records();
   std::vector< std::string > lines;
   for ( auto at = records.size() - std::min( records.size(), most ); at < records.size(); ++at ) {
      auto const & record = records[at];
      lines.push_back( ( *record.facility ? record.facility : "ring" ) + std::string( "/" ) +
                       std::to_string( record.level ) + " " + record.text );
   }
   return lines;
}

std::vector< std::string > lastStepsBeforeFailure() {
   constexpr std::size_t most = 20;
   auto const count = Rex::RingTrace::records().size();
   if ( count == 0 ) {
      return {};
   }
   std::vector< std::string > lines{ "The last steps, of " + counted( count, "record", "records" ) +
                                     " in the ring buffer:" };
   for ( auto const & step : lastSteps( most ) ) {
      lines.push_back( "  " + step );
   }
   return lines;
}

} // namespace Inspection
