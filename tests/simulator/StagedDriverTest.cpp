// What is staged is seen by reads and by nothing below, until it is committed or dropped.
#include "simulator/StagedDriver.h"
#include "simulator/ChipDriver.h"

#include <gtest/gtest.h>

using namespace Simulator;

namespace {

// A driver that writes down what reaches it.
struct Written final : DaceSal::SchanDriver {
   explicit Written( ChipDriver & chips ) : chips_( chips ) {}
   void read( ChipId chip, SchanAddress const & at, std::span< U32 > words ) override {
      chips_.read( chip, at, words );
   }
   bool write( ChipId chip, SchanAddress const & at, std::span< U32 const > words ) override {
      all.push_back( std::to_string( at.selectorA ) + ":" + std::to_string( at.address ) + " = " +
                     std::to_string( words[0] ) );
      return chips_.write( chip, at, words );
   }
   bool control( ChipId chip, U32 control, U32 value ) override {
      all.push_back( "control " + std::to_string( control ) + " = " + std::to_string( value ) );
      return chips_.control( chip, control, value );
   }
   std::optional< U32 > controlValue( ChipId chip, U32 control ) const override {
      return chips_.controlValue( chip, control );
   }

   std::vector< std::string > all;

 private:
   ChipDriver & chips_;
};

struct StagedDriverTest : testing::Test {
   AddressMap map{ std::vector< AddressRange >{
      { .blocks = { { 10, 2 }, { 24, 9 } }, .base = 1000, .count = 64, .width = 1 },
   } };
   ChipDriver chips;
   Written under{ chips };
   StagedDriver staged{ under };
   ChipId const fap{ 3 };
   SchanAddress const first{ 1000, 10, 2 };
   SchanAddress const firstsOtherCopy{ 1000, 24, 9 };
   SchanAddress const second{ 1001, 10, 2 };

   StagedDriverTest() { chips.chipIs( fap, "BCM88690_B0", map ); }

   bool write( SchanAddress const & at, U32 word ) { return staged.write( fap, at, { &word, 1 } ); }
   U32 read( DaceSal::SchanDriver & driver, SchanAddress const & at ) {
      U32 word = 0;
      driver.read( fap, at, { &word, 1 } );
      return word;
   }
};
using StagedDriverDeathTest = StagedDriverTest;

TEST_F( StagedDriverTest, readsSeeWhatIsStagedAndTheChipsDoNot ) {
   EXPECT_TRUE( write( first, 7 ) );
   EXPECT_FALSE( write( first, 7 ) );
   EXPECT_EQ( read( staged, first ), 7u );
   EXPECT_EQ( read( staged, firstsOtherCopy ), 0u );
   EXPECT_EQ( read( chips, first ), 0u );
   EXPECT_TRUE( under.all.empty() );
}

TEST_F( StagedDriverTest, commitsWhatDiffersInTheOrderOfTheFirstWriteCopyByCopy ) {
   write( second, 5 );
   write( first, 1 );
   staged.control( fap, 64, 255 );
   write( firstsOtherCopy, 1 );
   write( second, 6 );
   EXPECT_EQ( staged.commit(), 4u );
   EXPECT_EQ( under.all,
              ( std::vector< std::string >{ "10:1001 = 6", "10:1000 = 1", "control 64 = 255", "24:1000 = 1" } ) );
   EXPECT_EQ( staged.commit(), 0u );
}

TEST_F( StagedDriverTest, commitsNothingOfWhatEndsAsItStood ) {
   U32 const five = 5;
   chips.write( fap, first, { &five, 1 } );
   chips.control( fap, 64, 1 );
   write( first, 9 );
   staged.control( fap, 64, 2 );
   write( first, 5 );
   staged.control( fap, 64, 1 );
   EXPECT_TRUE( staged.changes().empty() );
   EXPECT_EQ( staged.commit(), 0u );
   EXPECT_TRUE( under.all.empty() );
}

TEST_F( StagedDriverTest, dropsEverything ) {
   write( first, 9 );
   staged.control( fap, 64, 2 );
   staged.drop();
   EXPECT_EQ( read( staged, first ), 0u );
   EXPECT_EQ( staged.controlValue( fap, 64 ), std::nullopt );
   EXPECT_EQ( staged.commit(), 0u );
}

TEST_F( StagedDriverTest, tellsWhatWouldChangeAndFromWhat ) {
   U32 const five = 5;
   chips.write( fap, first, { &five, 1 } );
   write( first, 9 );
   staged.control( fap, 64, 2 );
   auto const changes = staged.changes();
   ASSERT_EQ( changes.size(), 2u );
   EXPECT_EQ( changes[0].at, first );
   EXPECT_EQ( changes[0].before, std::vector< U32 >{ 5 } );
   EXPECT_EQ( changes[0].after, std::vector< U32 >{ 9 } );
   EXPECT_TRUE( changes[1].isControl );
   EXPECT_TRUE( changes[1].before.empty() );
}

TEST_F( StagedDriverTest, findsEachOfManyPlacesAgainAndNoneAfterTheyAreDropped ) {
   for ( U32 round = 1; round <= 2; ++round ) {
      for ( U32 number = 0; number < 5000; ++number ) {
         EXPECT_TRUE( staged.control( fap, number, number + round ) );
      }
      for ( U32 number = 0; number < 5000; ++number ) {
         EXPECT_EQ( staged.controlValue( fap, number ), number + round );
         EXPECT_EQ( staged.placeOf( fap, number ), number );
      }
      staged.drop();
      EXPECT_EQ( staged.placeCount(), 0u );
      EXPECT_EQ( staged.controlValue( fap, 17 ), std::nullopt );
   }
}

TEST_F( StagedDriverTest, handsOverWhatStoodThereBeforeAsStaged ) {
   write( first, 9 );
   U32 const now = 10;
   U32 before = 0;
   EXPECT_TRUE( staged.exchange( fap, first, { &now, 1 }, { &before, 1 } ) );
   EXPECT_EQ( before, 9u );
}

TEST_F( StagedDriverDeathTest, failsAtAPlaceThatTheChipLacksAsTheChipDoes ) {
   EXPECT_DEATH( write( SchanAddress{ 5000, 10, 2 }, 1 ), "5000|0x1388" );
}

} // namespace
