#include "simulator/Chip.h"

#include "assert/Assert.h"

#include <algorithm>
#include <bit>

namespace Simulator {

namespace {

std::string placeText( ChipId id, std::string const & name, SchanAddress const & at ) {
   std::ostringstream text;
   text << "chip " << id.value << " (" << name << ") block " << at.selectorA << "/" << at.selectorB << " address 0x"
        << std::hex << at.address;
   return text.str();
}

} // namespace

bool Chip::Entry::copiesDiffer() const {
   for ( U32 copy = 1; copy < copies(); ++copy ) {
      if ( !std::ranges::equal( words( 0 ), words( copy ) ) ) {
         return true;
      }
   }
   return false;
}

Chip::Chip( ChipId id, std::string name, AddressMap const & map )
   : Chip( id, std::move( name ), map, ChipMemory::own( map ) ) {}

Chip::Chip( ChipId id, std::string name, AddressMap const & map, ChipMemory memory )
   : map_( map ), memory_( std::move( memory ) ), id_( id ), name_( std::move( name ) ) {
   static constexpr AddressMap::Range nowhere{};
   latest_ = map.ranges().empty() ? &nowhere : map.ranges().data();
   Rex::sassert( memory_.words.size() == map.words(), "memory.words.size() == map.words()" );
}

void Chip::fill( SchanAddress const & at, std::span< U32 const > words ) {
   Found const found = find( at, words.size() );
   for ( U32 copy = 0; copy < found.range.copies; ++copy ) {
      std::memcpy( wordsOf( found.range, found.index, copy ), words.data(), words.size_bytes() );
   }
   mark( found.range, found.index );
}

U32 Chip::nextValued( U32 from ) const {
   for ( std::size_t at = from / 64; at < memory_.valued.size(); ++at ) {
      U64 const here = memory_.valued[at] & ( at == from / 64 ? ~U64{ 0 } << from % 64 : ~U64{ 0 } );
      if ( here != 0 ) {
         return static_cast< U32 >( at * 64 + static_cast< unsigned >( std::countr_zero( here ) ) );
      }
   }
   return map_.entries();
}

void Chip::takeContents( Chip const & other ) {
   for ( U32 entry = other.nextValued( 0 ); entry < map_.entries(); entry = other.nextValued( entry + 1 ) ) {
      AddressMap::Range const & range = map_.rangeOf( entry );
      for ( U32 copy = 0; copy < range.copies; ++copy ) {
         U32 const index = entry - range.firstEntry;
         std::memcpy( wordsOf( range, index, copy ), other.wordsOf( range, index, copy ), range.width * sizeof( U32 ) );
      }
      mark( range, entry - range.firstEntry );
   }
   for ( auto const & [control, value] : other.controls() ) {
      controlIs( control, value );
   }
}

Chip::Entry Chip::entry( SchanAddress const & at ) const {
   Found const found = find( at );
   U32 const number = found.range.firstEntry + found.index;
   return Entry( found.range, wordsOf( found.range, found.index, 0 ), memory_.valued[number / 64] >> number % 64 & 1 );
}

void Chip::refuseAddress( SchanAddress const & at ) const {
   Rex::SassertHelper( "range" ) << placeText( id_, name_, at )
                                 << ( map_.hasBlock( at.selectorA, at.selectorB )
                                         ? ": nothing is at this address of the block; no chip operation was made"
                                         : ": the chip has no such block; no chip operation was made" );
}

void Chip::refuseWidth( SchanAddress const & at, U32 width, std::size_t words ) const {
   Rex::SassertHelper( "range.width == words" ) << placeText( id_, name_, at ) << ": the entry is " << width
                                                << " words wide, not " << words << "; no chip operation was made";
}

} // namespace Simulator
