// The two sides of a comparison of chips: files, and chips as journals tell of them.
//
//    ChipsOfJournal journal( "run.jsonl", filter, { 3, 17 } );           // as they stood after events 3 and 17
//    eachDifference( journal.chips( 0 ), journal.chips( 1 ), filter, each );
//    eachDifference( "a.json", "b.json", filter, each );                 // part by part
//
// Threading: none.
#pragma once

#include "inspection/ChipDifferences.h"
#include "inspection/ContentsFilter.h"
#include "inspection/ReplayedChips.h"

namespace Inspection {

class ChipsOfJournal {
 public:
   // Reads the journal once; `events`: none: at its end. InputError where it has no such event, or no FAP that is asked
   // for.
   ChipsOfJournal( std::string const & path,
                   ContentsFilter const & filter,
                   std::vector< std::optional< U32 > > const & events );

   std::vector< std::string > const & remarks() const { return journal_.remarks(); }
   ReplayedChips & chips( std::size_t which ) { return *chips_[which]; }

 private:
   JournalReader journal_;
   std::vector< std::unique_ptr< ReplayedChips > > chips_;
};

// FAP by FAP, in the order of their numbers.
void eachDifference( ReplayedChips & a, ReplayedChips & b, ContentsFilter const & filter, EachDifference const & each );
// A chips file against them; `isFileB`: the file is the second side.
void eachDifference( std::string const & file,
                     ReplayedChips & chips,
                     ContentsFilter const & filter,
                     bool isFileB,
                     EachDifference const & each );
// Two chips files, of which one part each is held at a time. Throws PartsOutOfOrder, perhaps after some differences,
// where one has its parts in another order than `l3sm` writes.
struct PartsOutOfOrder {};
void eachDifference( std::string const & a,
                     std::string const & b,
                     ContentsFilter const & filter,
                     EachDifference const & each );

} // namespace Inspection
