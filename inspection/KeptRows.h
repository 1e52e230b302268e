// All rows of a journal, kept in memory: for answers that look at a short run more than once.
//
//    KeptRows const rows = rowsOf( "run.jsonl" );      // InputError
//    for ( Simulator::Row const & row : rows.all() ) { … }
#pragma once

#include "simulator/Row.h"

#include <deque>

namespace Inspection {

class KeptRows final : public Simulator::RowReader {
 public:
   KeptRows() = default;
   KeptRows( KeptRows && ) = default; // rows refer to the texts and words that are kept beside them
   KeptRows & operator=( KeptRows && ) = default;
   std::deque< Simulator::Row > const & all() const { return rows_; }
   // What is odd about the journal that they are from.
   std::vector< std::string > remarks = {};
   void row( Simulator::Row const & row ) override;

 private:
   std::string_view kept( std::string_view text ) { return texts_.emplace_back( text ); }

   std::deque< Simulator::Row > rows_;
   std::deque< std::string > texts_;
   std::deque< std::vector< U32 > > words_;
   std::deque< Rex::Value > values_;
};

KeptRows rowsOf( std::string const & journal );

} // namespace Inspection
