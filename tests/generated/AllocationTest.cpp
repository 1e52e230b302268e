// A field access allocates nothing, whatever the field's width and place. Every allocation of this program is counted.
#include "generated/DaceFapNiPluginL3UnicastMetaInfo.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <new>

namespace {

std::size_t allocations = 0;

} // namespace

void * operator new( std::size_t size ) {
   ++allocations;
   if ( void * const memory = std::malloc( size ) ) {
      return memory;
   }
   throw std::bad_alloc();
}
void operator delete( void * memory ) noexcept {
   std::free( memory );
}
void operator delete( void * memory, std::size_t ) noexcept {
   std::free( memory );
}

namespace {

using Hardware::ChipType;

// How often `access` allocates.
template< class Access >
std::size_t allocationsOf( Access access ) {
   std::size_t const before = allocations;
   access();
   return allocations - before;
}

TEST( Allocation, isCounted ) {
   EXPECT_EQ( allocationsOf( [] { delete new int; } ), 1u );
}

TEST( Allocation, aFieldAccessMakesNone ) {
   for ( ChipType const chip : Hardware::allChipTypes ) {
      U64 seen = 0;
      EXPECT_EQ( allocationsOf( [&] {
                    // narrow, in a register
                    Hardware::IppdFerTrapCfg::WithStorage trap( chip, false, 0 );
                    trap.cpuStrengthNIs( 5 );
                    seen += trap.cpuStrengthN();
                    // 64 bits, at the same place on every chip
                    Hardware::ErppCfgSplitHorizonFilter::WithStorage filter( chip, false, 0 );
                    filter.cfgSplitHorizonFilterIs( 0x8040201000040c08 );
                    seen += filter.cfgSplitHorizonFilter();
                    // across words
                    Hardware::IppbFlpLePd1::WithStorage strengths( chip, false, 0 );
                    strengths.constStrengthVecIs( 0x123456789abcdef0 );
                    seen += strengths.constStrengthVec();
                    // by index
                    Hardware::FwdFfcTable::WithStorage ffc( chip, false, 0 );
                    ffc.ffcInstructionIs( 1, 0x10b50420 );
                    seen += ffc.ffcInstruction( 1 );
                    // wide
                    Hardware::EtppOutlifOrientationMap::WithStorage map( chip, false, 0 );
                    map.outlifOrientationMappingIs( Raw256( 7 ) );
                    seen += map.outlifOrientationMapping().word64( 0 );
                    seen += map.getAllFields().word64( 0 );
                    // what is asked of a field
                    seen += filter.cfgSplitHorizonFilterLen() + filter.cfgSplitHorizonFilterOffset() +
                            filter.isCfgSplitHorizonFilterValid();
                    seen += map.tableVariantCount( static_cast< U32 >( chip ) ) + filter.width();
                 } ),
                 0u )
         << chip;
      EXPECT_NE( seen, 0u );
   }
}

// One for the accessor and what counts its users.
TEST( Allocation, anAccessorByNameMakesOne ) {
   std::string name = "ErppCfgSplitHorizonFilter";        // taken by value: a copy of it would count
   Hardware::stringObj( name, ChipType::BCM88690_B0, 0 ); // the map of names is built at its first use
   std::shared_ptr< AsicUtils::AsicBase > accessor;
   EXPECT_EQ( allocationsOf( [&] { accessor = Hardware::stringObj( std::move( name ), ChipType::BCM88690_B0, 0 ); } ),
              1u );
   EXPECT_TRUE( accessor );
}

} // namespace
