#include "simulator/ChipMemory.h"

#include "rex/Value.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

namespace Simulator {

namespace {

constexpr std::size_t pagesFor( std::size_t bytes ) {
   return ( bytes + ChipMemory::page - 1 ) / ChipMemory::page * ChipMemory::page;
}

// Where the pieces lie.
struct Places {
   explicit Places( AddressMap const & map )
      : valuedCount( map.entries() / 64 + 1 ), valued( pagesFor( ( 1 + ChipControls::most ) * sizeof( U64 ) ) ),
        words( valued + pagesFor( valuedCount * sizeof( U64 ) ) ),
        end( words + pagesFor( std::size_t{ map.words() } * sizeof( U32 ) ) ) {}
   std::size_t valuedCount;
   std::size_t valued;
   std::size_t words;
   std::size_t end;
};

} // namespace

std::span< U64 > ChipControls::inUse() const {
   return slots_.subspan( 1, std::min< std::size_t >( slots_[0], most ) );
}

bool ChipControls::valueIs( U32 control, U32 value ) {
   U64 const both = U64{ control } << 32 | value;
   auto const there = inUse();
   auto const found = std::ranges::find( there, control, []( U64 slot ) { return slot >> 32; } );
   if ( found != there.end() ) {
      return std::atomic_ref( *found ).exchange( both ) != both;
   }
   if ( there.size() == most ) {
      throw Rex::ValueError( "", "a chip has room for " + std::to_string( most ) + " controls" );
   }
   // The slot is nothing until it is counted.
   std::atomic_ref( slots_[1 + there.size()] ).store( both );
   std::atomic_ref( slots_[0] ).store( there.size() + 1 );
   return true;
}

std::optional< U32 > ChipControls::value( U32 control ) const {
   for ( U64 const slot : inUse() ) {
      if ( slot >> 32 == control ) {
         return static_cast< U32 >( slot );
      }
   }
   return std::nullopt;
}

std::map< U32, U32 > ChipControls::all() const {
   std::map< U32, U32 > all;
   for ( U64 const slot : inUse() ) {
      all.emplace( static_cast< U32 >( slot >> 32 ), static_cast< U32 >( slot ) );
   }
   return all;
}

std::size_t ChipMemory::bytes( AddressMap const & map ) {
   return Places( map ).end;
}

ChipMemory ChipMemory::at( std::byte * begin, AddressMap const & map, std::shared_ptr< void const > owner ) {
   Places const places( map );
   auto * const controls = reinterpret_cast< U64 * >( begin );
   auto * const valued = reinterpret_cast< U64 * >( begin + places.valued );
   auto * const words = reinterpret_cast< U32 * >( begin + places.words );
   return { .words = { words, map.words() },
            .valued = { valued, places.valuedCount },
            .controls = ChipControls( { controls, 1 + ChipControls::most } ),
            .owner = std::move( owner ) };
}

ChipMemory ChipMemory::own( AddressMap const & map ) {
   // Zeroed by the system, page by page, when it is first touched.
   std::shared_ptr< void > const memory( std::calloc( bytes( map ), 1 ), std::free );
   if ( !memory ) {
      throw std::bad_alloc();
   }
   return at( static_cast< std::byte * >( memory.get() ), map, memory );
}

} // namespace Simulator
