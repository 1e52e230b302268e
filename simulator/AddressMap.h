// Which addresses a kind of chip has: block by block, without a word about tables.
//
// A range is a run of equally wide entries at consecutive addresses. It lies in one block for each physical copy of it,
// at the same addresses in each; a block is picked by its two selectors. Ranges are given by those who know what lies
// there; the map lays them out in one run of words (copies side by side) and finds the range of an address.
//
// Threading: a map is not changed after it was built.
#pragma once

#include "sal/Driver.h"

#include <array>
#include <span>
#include <vector>

namespace Simulator {

// The block that holds one physical copy. Both selectors are below 64.
struct Block {
   U8 selectorA = 0;
   U8 selectorB = 0;
   friend constexpr auto operator<=>( Block, Block ) = default;
};

constexpr std::size_t mostCopies = 2;

struct AddressRange {
   std::vector< Block > blocks; // of each copy, copy 0 first
   U32 base = 0;                // address of the first entry
   U32 count = 0;               // of entries
   U16 width = 0;               // of an entry, in words
};

class AddressMap {
 public:
   // A range, laid out.
   struct Range {
      std::array< U32, mostCopies > blocks{}; // selectorA << 8 | selectorB; the same twice where there is one copy
      U32 base;
      U32 count;
      U32 width;
      U32 copies;
      U32 firstWord;  // of copy 0; the other copy follows it
      U32 firstEntry; // number of the first entry among all entries of the chip

      // Words from a copy to the next.
      U32 copyStep() const { return count * width; }
      // Where an entry lies, by its number among all of the chip.
      DaceSal::SchanAddress at( U32 entry, U32 copy ) const {
         return { base + entry - firstEntry, blocks[copy] >> 8, blocks[copy] & 0xff };
      }
   };

   // Two equal ranges are one: formats of one memory. Ranges that overlap otherwise, or lie in blocks or copies that
   // can't be: std::invalid_argument, naming the block and the address.
   explicit AddressMap( std::span< AddressRange const > ranges );

   // The range that holds the address in the block, or null.
   Range const * find( U32 selectorA, U32 selectorB, U32 address ) const;
   // The range of an entry, by its number among all of the chip, which is below entries().
   Range const & rangeOf( U32 entry ) const;
   // Whether anything lies in the block.
   bool hasBlock( U32 selectorA, U32 selectorB ) const;

   std::span< Range const > ranges() const { return ranges_; }
   U32 words() const { return words_; }
   U32 entries() const { return entries_; }

 private:
   struct Place {
      U32 base;
      U32 range;
   };
   struct Run {
      U16 first = 0;
      U16 count = 0;
   };
   static constexpr U32 selectors = 64;

   std::vector< Range > ranges_;
   std::vector< Place > places_; // by block, then by base
   std::array< Run, selectors * selectors > blocks_{};
   U32 words_ = 0;
   U32 entries_ = 0;
};

} // namespace Simulator
