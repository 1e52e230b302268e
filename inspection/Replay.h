// Replaying a journal: its writes on fresh chips, each read and each `before` compared, and the contents at the end.
//
//    Replay const replay = replayOf( { .journal = "run.jsonl.zst", .chips = "chips.json" }, OutputFile( "" ) );
//    replay.isAlike();                                  // InputError where a file can't be read
#pragma once

#include "inspection/ChipDifferences.h"
#include "inspection/ReplayedChips.h"
#include "inspection/files/OutputFile.h"

namespace Inspection {

struct ReplayQuestion {
   std::string journal;
   std::string chips = {};    // to compare with; empty: nothing
   std::string scenario = {}; // what the run began with, for journals of format 1
};

struct Replay {
   U64 reads = 0;
   U64 writes = 0;
   U64 controls = 0;
   std::size_t chips = 0;
   OtherContentsList begunWith = {};
   OtherContentsList others = {};
   std::optional< std::vector< Difference > > differences = {}; // none: nothing to compare with
   std::vector< std::string > remarks = {};                     // about the journal, a line each

   bool isAlike() const { return others.seqs.empty() && ( !differences || differences->empty() ); }
};

// Writes the contents at the end to `out`, where it is wanted.
Replay replayOf( ReplayQuestion const & question, OutputFile const & out );
Rex::Value valueOf( Replay const & replay );

} // namespace Inspection
