// What stood at a place before each operation of a journal, as far as the operations before it tell: a function that
// changes a part of an entry reads it first, and the journal has what it read.
//
//    History history;
//    for ( auto const & row : journal.rows() ) {
//       std::optional< Words > const before = history.before( row );    // nothing: not known
//       history.follow( row );
//    }
#pragma once

#include "simulator/ChipContents.h"
#include "simulator/Journal.h"

#include <tuple>

namespace Inspection {

class History {
 public:
   // Of the place that a read or a write was made on.
   std::optional< Simulator::Words > before( Simulator::Journal::Row const & row ) const;
   // Of a control.
   std::optional< U32 > controlBefore( Simulator::Journal::Row const & row ) const;
   void follow( Simulator::Journal::Row const & row );

 private:
   using Key = std::tuple< U16, std::string_view, U8, int, U32 >; // FAP, table, variant, array index, entry
   struct Known {
      std::optional< Simulator::Words > common;  // of the copies that no write to one core has set apart
      std::map< int, Simulator::Words > ofCores; // of the others
   };
   static Key keyOf( Simulator::Journal::Row const & row ) {
      return { row.fap, row.table, row.variant, row.array, row.entry.value_or( 0 ) };
   }
   std::map< Key, Known > known_;
   std::map< std::pair< U16, U32 >, U32 > controls_;
};

// A field that an operation changed, or all that the words have where it isn't known what stood there before.
struct FieldChange {
   Catalogue::Field const * field;
   std::optional< std::string > before; // as a dump has it
   std::string after;
   bool isChange() const { return !before || *before != after; }
};

// Every field, in the order of the catalogue.
std::vector< FieldChange > fieldChanges( Catalogue::Layout const & layout,
                                         std::optional< Simulator::Words > const & before,
                                         Simulator::Words const & after );

} // namespace Inspection
