#include "inspection/EndOfRun.h"

#include "inspection/files/InputError.h"

namespace Inspection {

using Simulator::Ending;

std::string whereItEnded( Ending const & ending ) {
   std::string const event = ending.events == 0 ? "the start" : "event " + std::to_string( ending.events );
   switch ( ending.kind ) {
   case Ending::Kind::complete:
      return {};
   case Ending::Kind::interrupted:
      return "; the run was interrupted after " + event;
   case Ending::Kind::assertion:
      return "; the run ended in " + event + " by an assertion";
   case Ending::Kind::cut:
      break;
   }
   return "; the journal is cut in or after " + event;
}

void checkEvent( std::string const & file, U32 event, Ending const & ending ) {
   if ( event > ending.events ) {
      throw InputError( file,
                        "there is no event " + std::to_string( event ) + "; the last is " +
                           std::to_string( ending.events ) + whereItEnded( ending ) );
   }
}

} // namespace Inspection
