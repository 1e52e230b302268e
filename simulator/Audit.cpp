#include "simulator/Audit.h"

#include "sal/Raw.h"

#include <algorithm>
#include <limits>

namespace Simulator {

void Audit::compare( Chip const & chip, U32 entry, Visit const & visit ) {
   AddressMap::Range const & range = chip.map().rangeOf( entry );
   std::array< U32, Raw1024::words > found;
   std::span< U32 > const words( found.data(), range.width );
   for ( U32 copy = 0; copy < range.copies; ++copy ) {
      SchanAddress const at = range.at( entry, copy );
      if ( !shadow_.readChip( chip.id(), at, words ) ) {
         return;
      }
      auto const expected = shadow_.expected().chip( chip.id() )->entry( at ).words( copy );
      if ( !std::ranges::equal( words, expected ) ) {
         visit( { chip.id(), at, std::nullopt, expected, words } );
      }
   }
}

void Audit::compareControls( Chip const & chip, Visit const & visit ) {
   for ( auto const & [control, value] : shadow_.expected().chip( chip.id() )->controls() ) {
      auto const found = chip.control( control );
      if ( found != value ) {
         visit( { chip.id(), {}, control, { &value, 1 }, found ? std::span( &*found, 1 ) : std::span< U32 const >() } );
      }
   }
}

bool Audit::step( std::size_t entries, Visit const & visit ) {
   auto const all = chips_.chips();
   while ( chip_ < all.size() ) {
      Chip const & chip = *all[chip_];
      Chip const & expected = *shadow_.expected().chip( chip.id() );
      while ( !shadow_.isDegraded( chip.id() ) ) {
         entry_ = std::min( chip.nextValued( entry_ ), expected.nextValued( entry_ ) );
         if ( entry_ >= chip.map().entries() ) {
            break;
         }
         if ( entries == 0 ) {
            return false;
         }
         --entries;
         compare( chip, entry_++, visit );
      }
      if ( !shadow_.isDegraded( chip.id() ) ) {
         compareControls( chip, visit );
      }
      ++chip_;
      entry_ = 0;
   }
   chip_ = 0;
   return true;
}

void Audit::finish( Visit const & visit ) {
   step( std::numeric_limits< std::size_t >::max(), visit );
}

} // namespace Simulator
