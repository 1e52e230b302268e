#include "simulator/Chip.h"
#include "simulator/ChipDriver.h"

#include "rex/Value.h"
#include "sal/SwitchControlSal.h"

#include <gtest/gtest.h>
#include <stdexcept>

using namespace Simulator;

namespace {

// A chip with a memory in two copies, a memory in one, and a register beside the first copy of the former.
AddressMap smallMap() {
   return AddressMap( std::vector< AddressRange >{
      { .blocks = { { 10, 2 }, { 24, 9 } }, .base = 0x1000, .count = 64, .width = 2 },
      { .blocks = { { 2, 5 } }, .base = 0x27000, .count = 1024, .width = 10 },
      { .blocks = { { 10, 2 }, { 24, 9 } }, .base = 0x1040, .count = 1, .width = 16 },
   } );
}

struct ChipTest : testing::Test {
   AddressMap map = smallMap();
   Chip chip{ ChipId{ 3 }, "BCM88690_B0", map };

   std::vector< U32 > read( U32 a, U32 b, U32 address, std::size_t width ) {
      std::vector< U32 > words( width, 0xdeadbeef );
      chip.read( SchanAddress{ address, a, b }, words );
      return words;
   }
   bool write( U32 a, U32 b, U32 address, std::vector< U32 > const & words ) {
      return chip.write( SchanAddress{ address, a, b }, words );
   }
};
using ChipDeathTest = ChipTest;

TEST_F( ChipTest, readsZeroWhereNothingWasEverWritten ) {
   EXPECT_EQ( read( 10, 2, 0x1000, 2 ), ( std::vector< U32 >{ 0, 0 } ) );
   EXPECT_FALSE( chip.entry( SchanAddress{ 0x1000, 10, 2 } ).hasValue() );
}

TEST_F( ChipTest, holdsAWordForEachCopyApart ) {
   EXPECT_TRUE( write( 24, 9, 0x1005, { 7, 8 } ) );
   EXPECT_EQ( read( 24, 9, 0x1005, 2 ), ( std::vector< U32 >{ 7, 8 } ) );
   EXPECT_EQ( read( 10, 2, 0x1005, 2 ), ( std::vector< U32 >{ 0, 0 } ) );

   auto const entry = chip.entry( SchanAddress{ 0x1005, 10, 2 } );
   EXPECT_TRUE( entry.hasValue() );
   EXPECT_TRUE( entry.copiesDiffer() );
   EXPECT_EQ( entry.copies(), 2u );
   EXPECT_EQ( entry.words( 1 )[1], 8u );

   EXPECT_TRUE( write( 10, 2, 0x1005, { 7, 8 } ) );
   EXPECT_FALSE( chip.entry( SchanAddress{ 0x1005, 24, 9 } ).copiesDiffer() );
}

TEST_F( ChipTest, touchesNoNeighbour ) {
   write( 10, 2, 0x1005, { ~0u, ~0u } );
   write( 10, 2, 0x103f, { ~0u, ~0u } );
   EXPECT_EQ( read( 10, 2, 0x1004, 2 ), ( std::vector< U32 >{ 0, 0 } ) );
   EXPECT_EQ( read( 10, 2, 0x1006, 2 ), ( std::vector< U32 >{ 0, 0 } ) );
   EXPECT_EQ( read( 24, 9, 0x1000, 2 ), ( std::vector< U32 >{ 0, 0 } ) );
   EXPECT_EQ( read( 10, 2, 0x1040, 16 ), std::vector< U32 >( 16, 0 ) );
   EXPECT_FALSE( chip.entry( SchanAddress{ 0x1004, 10, 2 } ).hasValue() );
   EXPECT_FALSE( chip.entry( SchanAddress{ 0x1006, 10, 2 } ).hasValue() );
}

TEST_F( ChipTest, tellsWhetherAWriteMadeADifference ) {
   EXPECT_TRUE( write( 10, 2, 0x1000, { 1, 0 } ) );
   EXPECT_FALSE( write( 10, 2, 0x1000, { 1, 0 } ) );
   EXPECT_TRUE( write( 10, 2, 0x1000, { 1, 0x80000000 } ) );
   EXPECT_FALSE( write( 10, 2, 0x1001, { 0, 0 } ) ) << "a value of zero is a value, but no difference";
   EXPECT_TRUE( chip.entry( SchanAddress{ 0x1001, 10, 2 } ).hasValue() );
}

TEST_F( ChipTest, isFilledInEveryCopyThroughAnyOfThem ) {
   chip.fill( SchanAddress{ 0x1002, 24, 9 }, std::vector< U32 >{ 5, 6 } );
   EXPECT_EQ( read( 10, 2, 0x1002, 2 ), ( std::vector< U32 >{ 5, 6 } ) );
   EXPECT_EQ( read( 24, 9, 0x1002, 2 ), ( std::vector< U32 >{ 5, 6 } ) );
   EXPECT_TRUE( chip.entry( SchanAddress{ 0x1002, 10, 2 } ).hasValue() );
}

TEST_F( ChipTest, tellsWhetherAControlBecameDifferent ) {
   EXPECT_TRUE( chip.controlIs( 64, 0 ) );
   EXPECT_FALSE( chip.controlIs( 64, 0 ) );
   EXPECT_TRUE( chip.controlIs( 64, 255 ) );
   EXPECT_EQ( chip.controls(), ( std::map< U32, U32 >{ { 64, 255 } } ) );
}

TEST_F( ChipTest, hasRoomForSoManyControls ) {
   for ( U32 control = 0; control < ChipControls::most; ++control ) {
      EXPECT_TRUE( chip.controlIs( 3 * control, control ) );
   }
   try {
      chip.controlIs( 1, 0 );
      FAIL() << "there is room for more";
   } catch ( Rex::ValueError const & error ) {
      EXPECT_STREQ( error.what(), "a chip has room for 1023 controls" );
   }
   EXPECT_EQ( chip.control( 1 ), std::nullopt );
   EXPECT_TRUE( chip.controlIs( 3, 7 ) );
   EXPECT_EQ( chip.control( 3 ), 7u );
   EXPECT_EQ( chip.controls().size(), ChipControls::most );
}

TEST_F( ChipDeathTest, refusesAnAddressThatIsNotInTheBlock ) {
   EXPECT_DEATH( read( 10, 2, 0x1041, 2 ),
                 "chip 3 \\(BCM88690_B0\\) block 10/2 address 0x1041: nothing is at this address of the block; no chip "
                 "operation was made\n.*\"range\" == nullptr" );
   EXPECT_DEATH( read( 10, 2, 0xfff, 2 ), "block 10/2 address 0xfff: nothing is at this address" );
   EXPECT_DEATH( write( 2, 5, 0x1000, { 0, 0 } ), "block 2/5 address 0x1000: nothing is at this address" );
}

TEST_F( ChipDeathTest, refusesACopyThatDoesNotExist ) {
   EXPECT_DEATH( write( 24, 36, 0x27000, std::vector< U32 >( 10, 0 ) ),
                 "chip 3 \\(BCM88690_B0\\) block 24/36 address 0x27000: the chip has no such block" );
   EXPECT_DEATH( read( 200, 2, 0x1000, 2 ), "block 200/2 address 0x1000: the chip has no such block" );
}

TEST_F( ChipDeathTest, refusesAnotherWidth ) {
   EXPECT_DEATH(
      read( 10, 2, 0x1000, 3 ),
      "chip 3 \\(BCM88690_B0\\) block 10/2 address 0x1000: the entry is 2 words wide, not 3; no chip operation "
      "was made" );
   EXPECT_DEATH( write( 10, 2, 0x1040, { 1 } ), "the entry is 16 words wide, not 1" );
}

TEST( AddressMap, takesTwoFormatsOfOneMemoryForOne ) {
   AddressMap const map( std::vector< AddressRange >{
      { .blocks = { { 2, 5 } }, .base = 0x27000, .count = 1024, .width = 10 },
      { .blocks = { { 2, 5 } }, .base = 0x27000, .count = 1024, .width = 10 },
   } );
   EXPECT_EQ( map.ranges().size(), 1u );
   EXPECT_EQ( map.words(), 10240u );
}

TEST( AddressMap, refusesRangesThatOverlapOrLieNowhere ) {
   auto const whyNot = []( std::vector< AddressRange > const & ranges ) -> std::string {
      try {
         AddressMap const map( ranges );
      } catch ( std::invalid_argument const & refusal ) {
         return refusal.what();
      }
      return "";
   };
   AddressRange const present{ .blocks = { { 2, 5 } }, .base = 0x100, .count = 16, .width = 2 };
   EXPECT_EQ( whyNot( { present, { .blocks = { { 2, 5 } }, .base = 0x10f, .count = 1, .width = 2 } } ),
              "address range at 0x10f in block 2/5 overlaps another" );
   EXPECT_EQ( whyNot( { present, { .blocks = { { 1, 1 }, { 2, 5 } }, .base = 0xf8, .count = 9, .width = 2 } } ),
              "address range at 0xf8 in block 1/1 in block 2/5 overlaps another" );
   EXPECT_EQ( whyNot( { present, { .blocks = { { 2, 5 } }, .base = 0x100, .count = 16, .width = 3 } } ),
              "address range at 0x100 in block 2/5 overlaps another" );
   EXPECT_EQ( whyNot( { { .blocks = { { 64, 5 } }, .base = 0, .count = 1, .width = 1 } } ),
              "address range at 0x0 in block 64/5 has a selector above 63" );
   EXPECT_EQ( whyNot( { { .blocks = {}, .base = 4, .count = 1, .width = 1 } } ),
              "address range at 0x4 must have one or two copies" );
   EXPECT_EQ( whyNot( { { .blocks = { { 2, 5 } }, .base = 4, .count = 1, .width = 0 } } ),
              "address range at 0x4 in block 2/5 is empty" );
   EXPECT_EQ( whyNot( { present, { .blocks = { { 2, 5 } }, .base = 0x110, .count = 1, .width = 2 } } ), "" );
}

TEST( ChipDriver, keepsTheChipsOfASwitchApart ) {
   AddressMap const map = smallMap();
   ChipDriver driver;
   driver.chipIs( ChipId{ 9 }, "BCM88690_B0", map );
   driver.chipIs( ChipId{ 2 }, "BCM88690_B0", map );

   std::vector< U32 > const written{ 1, 2 };
   EXPECT_TRUE( driver.write( ChipId{ 9 }, SchanAddress{ 0x1000, 10, 2 }, written ) );
   std::vector< U32 > words( 2 );
   driver.read( ChipId{ 2 }, SchanAddress{ 0x1000, 10, 2 }, words );
   EXPECT_EQ( words, ( std::vector< U32 >{ 0, 0 } ) );
   driver.read( ChipId{ 9 }, SchanAddress{ 0x1000, 10, 2 }, words );
   EXPECT_EQ( words, written );

   EXPECT_TRUE( driver.control( ChipId{ 2 }, 1, 16384 ) );
   EXPECT_TRUE( driver.chip( ChipId{ 9 } )->controls().empty() );
   ASSERT_EQ( driver.chips().size(), 2u );
   EXPECT_EQ( driver.chips()[0]->id(), ChipId{ 2 } );
   EXPECT_EQ( driver.chip( ChipId{ 3 } ), nullptr );
}

TEST( SwitchControlDeathTest, refusesWhatIsNothing ) {
   EXPECT_DEATH( DaceSal::switchControlSalFactory( nullptr, nullptr ), "Assertion `sdkHandle' failed" );
   AddressMap const map = smallMap();
   ChipDriver driver;
   driver.chipIs( ChipId{ 3 }, "BCM88690_B0", map );
   auto const controls = DaceSal::switchControlSalFactory( &driver, nullptr );
   EXPECT_EQ( controls->switchControlSet( 3, 64, 7, 0 ), 0 );
   EXPECT_DEATH( controls->switchControlSet( 3, 64, 7, 1 ), "Assertion `flags == 0' failed" );
}

TEST( ChipDriverDeathTest, refusesAChipThatTheSwitchDoesNotHave ) {
   ChipDriver driver;
   std::vector< U32 > words( 2 );
   EXPECT_DEATH( driver.read( ChipId{ 7 }, SchanAddress{ 0x1000, 10, 2 }, words ),
                 "chip 7: the switch has no such chip; no chip operation was made\n.*\"chip\" == nullptr" );
   EXPECT_DEATH( driver.control( ChipId{ 7 }, 1, 2 ), "chip 7: the switch has no such chip" );
}

} // namespace
