#include "simulator/TableMap.h"

#include <map>
#include <memory>

namespace Simulator {

namespace {

std::unique_ptr< AddressMap > makeAddressMap( U8 chipType ) {
   std::vector< AddressRange > ranges;
   for ( Catalogue::Table const & table : Catalogue::tables() ) {
      if ( !table.hasMemory ) {
         continue;
      }
      for ( Catalogue::Layout const & layout : table.layouts ) {
         if ( layout.chipType != chipType ) {
            continue;
         }
         std::vector< Block > blocks;
         for ( Catalogue::Selector const selector : layout.selectors ) {
            blocks.push_back( Block{ selector.a, selector.b } );
         }
         for ( U32 const array : arrayIndices( layout ) ) {
            ranges.push_back( { .blocks = blocks,
                                .base = addressOf( layout, array, 0 ).address,
                                .count = entryCount( layout ),
                                .width = layout.width } );
         }
      }
   }
   return std::make_unique< AddressMap >( ranges );
}

} // namespace

AddressMap const & addressMap( Hardware::ChipType chipType ) {
   static std::map< Hardware::ChipType, std::unique_ptr< AddressMap > > maps;
   auto & map = maps[chipType];
   if ( !map ) {
      map = makeAddressMap( static_cast< U8 >( chipType ) );
   }
   return *map;
}

U64 fieldBits( std::span< U32 const > words, Catalogue::Field const & field ) {
   U64 value = 0;
   for ( unsigned bit = 0; bit < field.width && bit < 64; ++bit ) {
      unsigned const at = field.offset + bit;
      value |= U64{ words[at / 32] >> at % 32 & 1 } << bit;
   }
   return value;
}

void fieldBitsIs( std::span< U32 > words, Catalogue::Field const & field, U64 value ) {
   for ( unsigned bit = 0; bit < field.width; ++bit ) {
      unsigned const at = field.offset + bit;
      U32 const mask = U32{ 1 } << at % 32;
      bool const set = bit < 64 && ( value >> bit & 1 );
      words[at / 32] = set ? words[at / 32] | mask : words[at / 32] & ~mask;
   }
}

} // namespace Simulator
