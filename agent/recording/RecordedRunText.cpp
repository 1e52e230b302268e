#include "agent/recording/RecordedRunText.h"

#include "inspection/views/ReplayText.h"

namespace Live {

using namespace Inspection;

void showRecordedRun( std::ostream & out, RecordedRun const & run, Style const & style ) {
   showRemarks( out, run.remarks, style );
   out << counted( run.events, "event", "events" ) << " of " << counted( run.segments, "segment", "segments" )
       << " played, " << counted( run.operations, "driver operation", "driver operations" ) << " compared\n";
   if ( !run.difference ) {
      out << ( run.events == 0 ? "" : "every one did what it did then\n" );
      return;
   }
   auto const & it = *run.difference;
   out << '\n'
       << style.differs( it.event == 0 ? "the start" : "event " + std::to_string( it.event ) )
       << " does something else than it did then: " << printable( it.cause ) << '\n';
   Columns columns;
   columns.row(
      { "then", counted( it.expectedOperations, "operation", "operations" ), style.before( it.expectedHash ) } );
   columns.row( { "now", counted( it.operations, "operation", "operations" ), style.after( it.hash ) } );
   columns.print( out, 2 );
   out << "  in " << printable( it.segment ) << '\n';
}

} // namespace Live
