#include "simulator/TableMap.h"
#include "simulator/ChipContents.h"

#include <gtest/gtest.h>

using namespace Simulator;
using Hardware::ChipType;

namespace {

struct TableMapTest : testing::Test {
   static Chip chipOf( ChipType chipType ) { return { ChipId{ 0 }, chipTypeName( chipType ), addressMap( chipType ) }; }
};

TEST( TableMap, laysOutEveryKindOfChip ) {
   for ( ChipType const chipType : Hardware::allChipTypes ) {
      EXPECT_GT( addressMap( chipType ).entries(), 8000u ) << chipType;
   }
   EXPECT_EQ( &addressMap( ChipType::BCM88690_B0 ), &addressMap( ChipType::BCM88690_B0 ) );
}

TEST( TableMap, putsTablesWhereTheChipHasThem ) {
   AddressMap const & map = addressMap( ChipType::BCM88690_B0 );
   // IppdFerTrapCfg: eight registers from 0x1f7, in blocks 14/2 and 28/9.
   ASSERT_NE( map.find( 14, 2, 0x1fa ), nullptr );
   EXPECT_EQ( map.find( 14, 2, 0x1fa )->width, 1u );
   EXPECT_EQ( map.find( 28, 9, 0x1fa ), map.find( 14, 2, 0x1fa ) );
   // The second variant of EnablersVectors: its array elements 3 and 4, 32 entries apart, from 0x8f0060.
   EXPECT_EQ( map.find( 8, 2, 0x8f0060 ), nullptr );
   ASSERT_NE( map.find( 8, 2, 0x8f0060 + 3 * 32 ), nullptr );
   EXPECT_EQ( map.find( 22, 9, 0x8f0060 + 4 * 32 + 31 )->width, 2u );
   EXPECT_EQ( map.find( 8, 2, 0x8f0060 + 5 * 32 ), nullptr );
   // IppbFlpLePd0 is eight words wide here and six elsewhere.
   EXPECT_EQ( map.find( 10, 2, 0x2730000 )->width, 8u );
   EXPECT_EQ( addressMap( ChipType::BCM88480_A0 ).find( 0, 17, 0x2730000 )->width, 6u );
}

TEST( TableMap, countsOnFromTheFirstVariantInTheContextSelectionRegistersOfTwoChips ) {
   for ( char const * const name : { "InLifProfileCsFlagsLsb", "InLifProfileCsFlagsMsb" } ) {
      Catalogue::Table const & table = *Catalogue::table( name );
      EXPECT_EQ( *arrayIndices( *Catalogue::layout( table, 10, 1 ) ).begin(), 0u );
      EXPECT_EQ( *arrayIndices( *Catalogue::layout( table, 12, 1 ) ).begin(), 3u );
      EXPECT_EQ( *arrayIndices( *Catalogue::layout( table, 14, 1 ) ).begin(), 3u );
      EXPECT_EQ( *arrayIndices( *Catalogue::layout( table, 14, 0 ) ).begin(), 0u );
   }
   AddressMap const & map = addressMap( ChipType::BCM88850_A0 );
   EXPECT_EQ( map.find( 4, 14, 0x1ca ), nullptr );
   EXPECT_NE( map.find( 4, 14, 0x1ca + 3 ), nullptr );
   EXPECT_NE( map.find( 4, 26, 0x1ca + 4 ), nullptr );
}

TEST( TableMap, givesTwoFormatsOfOneMemoryOneMemory ) {
   ChipType const chipType = ChipType::BCM88480_A0;
   Chip chip = TableMapTest::chipOf( chipType );
   Words words( 10 );
   words[0] = 0x155;
   apply( { { "Ipv4PcremFwdDestPcrem", { { 0, { { 0, { { 1023, { { words } } } } } } } } } }, chip, chipType );
   auto const contents = contentsOf( chip, chipType );
   EXPECT_EQ( contents.tables.at( "PrivateHostReducedVrf" ).at( 0 ).at( 0 ).at( 1023 ).copies[0], words );
   EXPECT_EQ( chip.entry( SchanAddress{ 0x23000 + 1023, 8, 20 } ).words()[0], 0x155u );
}

TEST( TableMap, givesAFormatNoMemory ) {
   for ( AddressMap::Range const & range : addressMap( ChipType::BCM88690_B0 ).ranges() ) {
      EXPECT_NE( range.count, 4294967295u );
   }
   EXPECT_FALSE( addressMap( ChipType::BCM88690_B0 ).hasBlock( 10, 1 ) );
}

TEST( TableMap, readsAndSetsTheBitsOfAField ) {
   std::vector< U32 > words{ 0xffffffff, 0, 0xffffffff };
   Catalogue::Field const field{ "key", 28, 40, false };
   EXPECT_EQ( fieldBits( words, field ), 0xf00000000fu );
   fieldBitsIs( words, field, 0x1234567890123 ); // the upper bits don't fit
   EXPECT_EQ( fieldBits( words, field ), 0x4567890123u );
   EXPECT_EQ( words[0], 0x3fffffffu );
   EXPECT_EQ( words[2], 0xfffffff4u );
}

} // namespace
