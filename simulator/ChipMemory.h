// What a simulated chip holds, apart from the chip: memory of its own, or memory that somebody else has and that stays
// when the chip goes.
//
//    ChipMemory const own = ChipMemory::own( map );             // nothing in it
//    ChipMemory const there = ChipMemory::at( begin, map, keeper );   // what lies there, ChipMemory::bytes( map ) of
//    it Chip chip{ ChipId{ 0 }, "BCM88690_B0", map, there };
//
// Both are laid out alike. Memory in which every bit is 0 is a chip with nothing in it, so that what was never touched
// needs no page. A process that is killed between any two stores leaves each word, each bit and each control with the
// value that it had or with the one that it was to have.
//
// Threading: none.
#pragma once

#include "simulator/AddressMap.h"

#include <map>
#include <memory>
#include <optional>

namespace Simulator {

class ChipControls {
 public:
   static constexpr std::size_t most = 1023;

   // `slots`: how many controls there are, and then each, its number above its value, so that a store is all it takes.
   explicit ChipControls( std::span< U64 > slots ) : slots_( slots ) {}

   // Returns whether the value became different by it; the first value of a control always does. Rex::ValueError for
   // one control more than the most.
   bool valueIs( U32 control, U32 value );
   std::optional< U32 > value( U32 control ) const;
   std::map< U32, U32 > all() const;

 private:
   std::span< U64 > inUse() const;

   std::span< U64 > slots_;
};

struct ChipMemory {
   // Pieces begin where pages do, and an image ends where one does: the one takes no page of the other.
   static constexpr std::size_t page = 4096;

   std::span< U32 > words;
   std::span< U64 > valued; // one bit for each entry that was ever given a value
   ChipControls controls;
   std::shared_ptr< void const > owner;

   static ChipMemory own( AddressMap const & map );
   // `begin` lies at the begin of a page, and what lies there stays as long as the owner does.
   static ChipMemory at( std::byte * begin, AddressMap const & map, std::shared_ptr< void const > owner );
   static std::size_t bytes( AddressMap const & map );
};

} // namespace Simulator
