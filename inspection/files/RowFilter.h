// Which rows of a journal somebody wants to hear of.
//
//    journal.read( answer, { .tables = { "IppdFerTrapCfg" }, .readsToo = false } );
//
// Threading: none.
#pragma once

#include "inspection/files/WrittenRow.h"

#include <algorithm>

namespace Inspection {

// Which rows to read. Events and the journal's end are always told.
struct RowFilter {
   std::vector< std::string > tables = {}; // reads, writes and faults: only of these; none: of all
   std::string function = {};              // operations: only of this function, and no faults; empty: of all
   std::optional< U16 > fap = {};          // operations and faults: only of this FAP
   std::optional< U32 > last = {};         // only up to this event
   bool readsToo = true;                   // else no reads
   bool controlsToo = true;                // else no controls
   bool operationsToo = true;              // else gates and publications alone
   bool gatesToo = true;                   // else no gates
   bool publicationsToo = true;            // else no publications
};

// Which rows are handed over.
class RowsWanted {
 public:
   explicit RowsWanted( RowFilter const & filter )
      : filter_( filter ), function_( "\"function\": \"" + filter.function + "\"" ) {}

   bool isKind( WrittenRow const & row ) const { return isKind( row.kind ); }
   // By how the line begins, of a wanted kind.
   bool mayBe( WrittenRow const & row ) const {
      return isEvent( row.event ) &&
             ( !row.isOperation() ||
               ( isFap( row.fap ) && ( row.kind == Simulator::Row::Kind::control || isTable( row.table ) ) ) ) &&
             ( !row.isOperation() || filter_.function.empty() || row.rest.find( function_ ) != std::string_view::npos );
   }
   bool is( Simulator::Row const & row ) const {
      return isKind( row.kind ) && isEvent( row.event ) &&
             ( !row.isOfChip() ||
               ( isFap( row.fap ) && ( row.kind == Simulator::Row::Kind::control || isTable( row.table ) ) &&
                 ( filter_.function.empty() || filter_.function == row.function ) ) );
   }

 private:
   bool isKind( Simulator::Row::Kind kind ) const {
      switch ( kind ) {
      case Simulator::Row::Kind::read:
         return filter_.operationsToo && filter_.readsToo;
      case Simulator::Row::Kind::control:
         return filter_.operationsToo && filter_.controlsToo;
      case Simulator::Row::Kind::gate:
         return filter_.gatesToo;
      case Simulator::Row::Kind::publish:
         return filter_.publicationsToo;
      default:
         return filter_.operationsToo;
      }
   }
   bool isEvent( U32 event ) const { return !filter_.last || event <= *filter_.last; }
   bool isFap( U16 fap ) const { return !filter_.fap || fap == *filter_.fap; }
   bool isTable( std::string_view table ) const {
      return filter_.tables.empty() || std::ranges::find( filter_.tables, table ) != filter_.tables.end();
   }

   RowFilter const & filter_;
   std::string function_;
};

} // namespace Inspection
