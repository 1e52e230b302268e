#include "simulator/AddressMap.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <stdexcept>

namespace Simulator {

namespace {

[[noreturn]] void refuse( AddressRange const & range, char const * why ) {
   std::ostringstream text;
   text << "address range at 0x" << std::hex << range.base << std::dec;
   for ( Block const block : range.blocks ) {
      text << " in block " << unsigned{ block.selectorA } << "/" << unsigned{ block.selectorB };
   }
   text << " " << why;
   throw std::invalid_argument( text.str() );
}

} // namespace

AddressMap::AddressMap( std::span< AddressRange const > ranges ) {
   std::map< Block, std::map< U32, U32 > > rangeByBaseByBlock;
   for ( AddressRange const & range : ranges ) {
      if ( range.blocks.empty() || range.blocks.size() > mostCopies ) {
         refuse( range, "must have one or two copies" );
      }
      if ( range.count == 0 || range.width == 0 ) {
         refuse( range, "is empty" );
      }
      auto const & first = rangeByBaseByBlock[range.blocks[0]];
      auto const same = first.find( range.base );
      if ( same != first.end() && ranges_[same->second].count == range.count &&
           ranges_[same->second].width == range.width && ranges_[same->second].copies == range.blocks.size() ) {
         continue; // another format of the same memory
      }
      Range laidOut{ .base = range.base,
                     .count = range.count,
                     .width = range.width,
                     .copies = static_cast< U32 >( range.blocks.size() ),
                     .firstWord = words_,
                     .firstEntry = entries_ };
      for ( std::size_t copy = 0; copy < mostCopies; ++copy ) {
         Block const block = range.blocks[std::min( copy, range.blocks.size() - 1 )];
         if ( block.selectorA >= selectors || block.selectorB >= selectors ) {
            refuse( range, "has a selector above 63" );
         }
         laidOut.blocks[copy] = U32{ block.selectorA } << 8 | block.selectorB;
      }
      for ( Block const block : range.blocks ) {
         auto & byBase = rangeByBaseByBlock[block];
         auto const next = byBase.lower_bound( range.base );
         bool const overlapsNext = next != byBase.end() && next->first - range.base < range.count;
         bool const overlapsPrevious =
            next != byBase.begin() && range.base - std::prev( next )->first < ranges_[std::prev( next )->second].count;
         if ( overlapsNext || overlapsPrevious ) {
            refuse( range, "overlaps another" );
         }
         byBase.emplace( range.base, static_cast< U32 >( ranges_.size() ) );
      }
      words_ += laidOut.copyStep() * laidOut.copies;
      entries_ += laidOut.count;
      ranges_.push_back( laidOut );
   }
   for ( auto const & [block, byBase] : rangeByBaseByBlock ) {
      blocks_[block.selectorA * selectors + block.selectorB] =
         Run{ static_cast< U16 >( places_.size() ), static_cast< U16 >( byBase.size() ) };
      for ( auto const & [base, range] : byBase ) {
         places_.push_back( Place{ base, range } );
      }
   }
}

AddressMap::Range const * AddressMap::find( U32 selectorA, U32 selectorB, U32 address ) const {
   if ( !hasBlock( selectorA, selectorB ) ) {
      return nullptr;
   }
   Run const run = blocks_[selectorA * selectors + selectorB];
   // The last place whose base is not above the address. Halving without a branch: which way it goes can't be foretold.
   Place const * place = places_.data() + run.first;
   for ( U32 left = run.count; left > 1; ) {
      U32 const half = left / 2;
      place += place[half].base <= address ? half : 0;
      left -= half;
   }
   Range const & range = ranges_[place->range];
   return address - range.base < range.count ? &range : nullptr;
}

bool AddressMap::hasBlock( U32 selectorA, U32 selectorB ) const {
   return selectorA < selectors && selectorB < selectors && blocks_[selectorA * selectors + selectorB].count != 0;
}

AddressMap::Range const & AddressMap::rangeOf( U32 entry ) const {
   return *std::prev( std::ranges::upper_bound( ranges_, entry, {}, &Range::firstEntry ) );
}

} // namespace Simulator
