// How two files differ: chips, as chips files hold them and as journals tell of them, states, and saved scenarios.
//
//    FileDifferences const it = differencesOf( { .a = "before.json", .b = "run.jsonl.zst", .events = { 17 } } );
//    it.isAlike();
//    differencesOf( { .a = "run.jsonl", .events = { 3, 17 } } );        // between two events of one run
//
// Chips are compared as the files are read, part by part: neither is ever held whole. InputError where a file can't be
// read, or the two aren't of kinds that can be compared.
//
// Threading: none.
#pragma once

#include "inspection/ContentsFilter.h"
#include "inspection/PathDifferences.h"

namespace Inspection {

struct DiffQuestion {
   std::string a;
   std::string b = {};             // none: `a` once more
   std::vector< U32 > events = {}; // when these were over, in journals; none: at their end
   ContentsFilter filter = {};     // of chips
   bool countsOnly = false;        // the differences themselves needn't be kept
};

struct FileDifferences {
   std::string nameA;
   std::string nameB;
   std::vector< std::string > remarks = {}; // about journals
   bool areChips = true;                    // else states, or scenarios
   DifferenceCounts counts = {};
   std::vector< Difference > chips = {};
   std::vector< PathDifference > values = {}; // of states; and of a scenario, beside its chips

   bool isAlike() const { return counts.entries() == 0 && values.empty(); }
};

FileDifferences differencesOf( DiffQuestion const & question );

} // namespace Inspection
