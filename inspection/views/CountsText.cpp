#include "inspection/views/CountsText.h"

#include "inspection/FoldedWrites.h"
#include "inspection/views/Terminal.h"

namespace Inspection {

std::string fapsText( std::set< U16 > const & faps ) {
   return faps.empty() ? "" : ( faps.size() == 1 ? "FAP " : "FAPs " ) + ranges( { faps.begin(), faps.end() } );
}

std::string countsText( RowCounts const & counts ) {
   std::string text;
   auto const add = [&]( U64 count, char const * one, char const * many ) {
      if ( count > 0 ) {
         text += ( text.empty() ? "" : ", " ) + counted( count, one, many );
      }
   };
   add( counts.reads, "read", "reads" );
   add( counts.writes, "write", "writes" );
   if ( counts.writes > 0 ) {
      text += " (" + std::to_string( counts.changes ) + " with a change)";
   }
   add( counts.controls, "control", "controls" );
   add( counts.publications, "value published", "values published" );
   add( counts.faults, "fault", "faults" );
   add( counts.gates, "gate closed", "gates closed" );
   return text;
}

} // namespace Inspection
