// Whoever walks a table as the catalogue tells it is understood: every array index that it has leads to an address, on
// every chip and in every variant, at the first entry and at the last.
#include "generated/Chips.h"

#include "generated/Catalogue.h"

namespace {

TEST( ArrayIndex, ofTheCatalogueLeadsToAnAddress ) {
   std::size_t walked = 0;
   for ( auto const & table : Catalogue::tables() ) {
      for ( auto const & layout : table.layouts ) {
         auto const accessor = Hardware::stringObj( table.name, ChipType{ layout.chipType }, layout.variant );
         U32 const lastEntry = layout.entries == 0 ? 0 : layout.entries - 1;
         for ( U32 index = layout.arrayIndexFirst; index < layout.arrayIndexFirst + U32{ layout.arrayElements };
               ++index ) {
            for ( U32 const entry : { 0u, lastEntry } ) {
               U32 address = 0;
               U32 selectorA = 0;
               U32 selectorB = 0;
               EXPECT_TRUE(
                  accessor->getSchanAddress( address, selectorA, selectorB, 0, entry, static_cast< U16 >( index ) ) )
                  << table.name << " on chip " << int{ layout.chipType } << ", variant " << int{ layout.variant };
               EXPECT_EQ( address, layout.base + entry + index * layout.arrayStep )
                  << table.name << " [" << index << "]";
               ++walked;
            }
         }
      }
   }
   EXPECT_GT( walked, 1500u );
}

} // namespace
