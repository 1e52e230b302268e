// A journal, read back: what a run did to its chips, line by line.
//
//    JournalFile const journal = readJournal( "journal.jsonl" );      // InputError "journal.jsonl:17: ..."
//    for ( Simulator::Journal::Row const & row : journal.rows() ) { ... }
//    Catalogue::Layout const * layout = layoutOf( row );
#pragma once

#include "generated/Catalogue.h"
#include "simulator/Journal.h"

#include <set>

namespace Inspection {

class JournalFile {
 public:
   using Row = Simulator::Journal::Row;

   explicit JournalFile( std::string path ) : path_( std::move( path ) ) {}
   JournalFile( JournalFile && ) = default;

   std::string const & path() const { return path_; }
   // Row N stands on line N + 1.
   std::vector< Row > const & rows() const { return rows_; }
   void rowIs( Row row ) { rows_.push_back( std::move( row ) ); }
   // The journal's own copy of a text: what rows refer to.
   std::string_view kept( std::string const & text ) { return *texts_.insert( text ).first; }

 private:
   std::string path_;
   std::vector< Row > rows_;
   std::set< std::string, std::less<> > texts_;
};

JournalFile readJournal( std::string const & path );

// The layout of the table that an operation was made on. Where the journal doesn't say what kind of chip it was, the
// first of the table's layouts that has the place.
Catalogue::Layout const * layoutOf( Simulator::Journal::Row const & row );

} // namespace Inspection
