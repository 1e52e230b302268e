// A simulated chip: words by block and address, for each physical copy, and numbered controls.
//
//    AddressMap const map{ ranges };
//    Chip chip{ ChipId{ 0 }, "BCM88690_B0", map };
//    chip.fill( at, words );          // contents from the start, into every copy
//    chip.write( at, words );         // into the one copy whose block `at` names
//    chip.entry( at ).words( 1 );     // what the second copy holds
//
// A chip knows blocks and addresses, nothing of tables. Its memory is its own, or one that outlives it (ChipMemory.h).
//
// Reading or writing what the chip doesn't have ends the process by assertion, with a message that names the chip, the
// block and the address.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "simulator/ChipMemory.h"

#include <cstring>
#include <string>

namespace Simulator {

using DaceSal::ChipId;
using DaceSal::SchanAddress;

class Chip {
 public:
   // One entry as it stands, in every copy.
   class Entry {
    public:
      // Whether the entry was ever given a value.
      bool hasValue() const { return hasValue_; }
      U32 copies() const { return range_->copies; }
      U32 width() const { return range_->width; }
      std::span< U32 const > words( U32 copy = 0 ) const {
         return { words_ + std::size_t{ copy } * range_->copyStep(), range_->width };
      }
      bool copiesDiffer() const;

    private:
      friend class Chip;
      Entry( AddressMap::Range const & range, U32 const * words, bool hasValue )
         : range_( &range ), words_( words ), hasValue_( hasValue ) {}
      AddressMap::Range const * range_;
      U32 const * words_; // of copy 0
      bool hasValue_;
   };

   // The map must outlive the chip. `name` is that of the kind of chip, for messages.
   Chip( ChipId id, std::string name, AddressMap const & map );
   // With what is in the memory, which is laid out by the map.
   Chip( ChipId id, std::string name, AddressMap const & map, ChipMemory memory );
   Chip( Chip && ) = default;

   ChipId id() const { return id_; }
   AddressMap const & map() const { return map_; }

   // What the driver does. `write` returns whether the contents of the copy became different.
   void read( SchanAddress const & at, std::span< U32 > words ) const;
   bool write( SchanAddress const & at, std::span< U32 const > words );

   // As those of the memory.
   bool controlIs( U32 control, U32 value ) { return memory_.controls.valueIs( control, value ); }
   std::map< U32, U32 > controls() const { return memory_.controls.all(); }
   std::optional< U32 > control( U32 control ) const { return memory_.controls.value( control ); }

   // Contents that no program wrote: gives every copy of the entry at `at` (in any of its blocks) the words.
   void fill( SchanAddress const & at, std::span< U32 const > words );

   // The first entry that was ever given a value, from a number on (AddressMap.h); map().entries() where there is none.
   U32 nextValued( U32 from ) const;
   // Becomes what another chip with the same map is.
   void takeContents( Chip const & other );

   // Whether the chip has the address in the block.
   bool has( SchanAddress const & at ) const { return map_.find( at.selectorA, at.selectorB, at.address ) != nullptr; }
   // The entry at `at`, in any of its blocks.
   Entry entry( SchanAddress const & at ) const;

 private:
   struct Found {
      AddressMap::Range const & range;
      U32 index; // of the entry in its range
      U32 copy;
   };

   Found find( SchanAddress const & at ) const;
   Found find( SchanAddress const & at, std::size_t words ) const;
   U32 * wordsOf( AddressMap::Range const & range, U32 index, U32 copy ) const {
      return memory_.words.data() + range.firstWord + copy * range.copyStep() + index * range.width;
   }
   void mark( AddressMap::Range const & range, U32 index ) {
      U32 const entry = range.firstEntry + index;
      memory_.valued[entry / 64] |= U64{ 1 } << entry % 64;
   }
   [[noreturn]] void refuseAddress( SchanAddress const & at ) const;
   [[noreturn]] void refuseWidth( SchanAddress const & at, U32 width, std::size_t words ) const;

   AddressMap const & map_;
   mutable AddressMap::Range const * latest_; // a write mostly follows a read of the same place
   ChipMemory memory_;
   ChipId id_;
   std::string name_;
};

namespace Impl {

// Most entries are a word or two, and what is written was often put together word by word a moment ago: those are moved
// word by word, as wider loads would wait for the narrower stores before them. The others go four words at a time.
inline constexpr std::size_t fewWords = 4;

inline void copyWords( U32 * to, U32 const * from, std::size_t words ) {
   std::size_t word = 0;
   if ( words > fewWords ) {
      for ( ; word + 4 <= words; word += 4 ) {
         std::memcpy( to + word, from + word, 4 * sizeof( U32 ) );
      }
   }
   for ( ; word < words; ++word ) {
      to[word] = from[word];
   }
}

// Returns whether `stored` became different by it.
inline bool replaceWords( U32 * stored, U32 const * from, std::size_t words ) {
   U64 difference = 0;
   std::size_t word = 0;
   if ( words > fewWords ) {
      for ( ; word + 4 <= words; word += 4 ) {
         std::array< U64, 2 > before;
         std::array< U64, 2 > after;
         std::memcpy( before.data(), stored + word, sizeof before );
         std::memcpy( after.data(), from + word, sizeof after );
         difference |= ( before[0] ^ after[0] ) | ( before[1] ^ after[1] );
         std::memcpy( stored + word, after.data(), sizeof after );
      }
   }
   for ( ; word < words; ++word ) {
      difference |= stored[word] ^ from[word];
      stored[word] = from[word];
   }
   return difference != 0;
}

} // namespace Impl

inline Chip::Found Chip::find( SchanAddress const & at ) const {
   U32 const block = at.selectorA << 8 | at.selectorB;
   AddressMap::Range const * range = latest_;
   bool const inRange = at.address - range->base < range->count;
   if ( !inRange || ( block != range->blocks[0] && block != range->blocks[1] ) ) [[unlikely]] {
      range = map_.find( at.selectorA, at.selectorB, at.address );
      if ( !range ) [[unlikely]] {
         refuseAddress( at );
      }
      latest_ = range;
   }
   return Found{ *range, at.address - range->base, block == range->blocks[0] ? 0u : 1u };
}

inline Chip::Found Chip::find( SchanAddress const & at, std::size_t words ) const {
   Found const found = find( at );
   if ( found.range.width != words ) [[unlikely]] {
      refuseWidth( at, found.range.width, words );
   }
   return found;
}

inline void Chip::read( SchanAddress const & at, std::span< U32 > words ) const {
   Found const found = find( at, words.size() );
   Impl::copyWords( words.data(), wordsOf( found.range, found.index, found.copy ), words.size() );
}

inline bool Chip::write( SchanAddress const & at, std::span< U32 const > words ) {
   Found const found = find( at, words.size() );
   U32 * const stored = wordsOf( found.range, found.index, found.copy );
   mark( found.range, found.index );
   return Impl::replaceWords( stored, words.data(), words.size() );
}

} // namespace Simulator
