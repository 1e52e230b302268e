#include "l3sm/RunEvents.h"

#include <charconv>
#include <sstream>

namespace Cli {

using namespace Inspection;

namespace {

U32 eventNumber( std::string const & text, std::size_t events ) {
   U32 number = 0;
   auto const [end, error] = std::from_chars( text.data(), text.data() + text.size(), number );
   if ( text.empty() || error != std::errc() || end != text.data() + text.size() ) {
      throw InputError( "--event " + text, "expected numbers with commas between them, all, or last" );
   }
   if ( number > events ) {
      throw InputError( "--event " + text,
                        "there is no such event; the scenario has " +
                           ( events == 0 ? "none, and the start, 0" : "1 to " + std::to_string( events ) ) +
                           ( events == 0 ? "" : ", and the start, 0" ) );
   }
   return number;
}

} // namespace

RunSummary::Wanted
wantedOf( std::string const & events, std::optional< U16 > fap, bool isForPrograms, Scenario const & scenario ) {
   RunSummary::Wanted wanted;
   wanted.readsToo = isForPrograms || !events.empty();
   wanted.startToo = isForPrograms;
   if ( events == "all" ) {
      wanted.everyEvent = true;
   } else if ( events == "last" ) {
      wanted.onlyTheLast = true;
   } else {
      std::istringstream parts( events );
      for ( std::string part; std::getline( parts, part, ',' ); ) {
         wanted.events.insert( eventNumber( part, scenario.events.size() ) );
      }
   }
   checkHasFap( scenario.description, fap );
   wanted.fap = fap;
   return wanted;
}

} // namespace Cli
