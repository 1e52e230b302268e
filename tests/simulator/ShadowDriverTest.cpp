// What was written is known, whatever became of it on the chip.
#include "FailingChips.h"

namespace {

using namespace Simulator;
using testing::ElementsAre;
using testing::IsEmpty;

struct ShadowDriverTest : FailingChips {
   Audit audit{ chips, shadow };
   std::vector< std::string > found() {
      std::vector< std::string > all;
      audit.finish( [&]( Mismatch const & it ) {
         all.push_back( it.control ? "control " + std::to_string( *it.control )
                                   : std::to_string( it.expected[0] ) + " is " + std::to_string( it.found[0] ) );
      } );
      return all;
   }
};
using AuditTest = ShadowDriverTest;

TEST_F( ShadowDriverTest, answersReadsFromWhatWasWritten ) {
   write( shadow, trapCfg(), 5 );
   faulty.arm( fault( "flip:1", "IppdFerTrapCfg[3].0" ) );
   EXPECT_EQ( read( shadow, trapCfg() ), 5 );
}

TEST_F( ShadowDriverTest, tellsOfAWriteWhatItChangesInWhatIsExpected ) {
   U32 const word = 5;
   U32 before = 99;
   EXPECT_TRUE( shadow.exchange( fap, trapCfg(), { &word, 1 }, { &before, 1 } ) );
   EXPECT_EQ( before, 0 );
   write( chips, trapCfg(), 7 ); // which nobody has asked for
   EXPECT_FALSE( shadow.exchange( fap, trapCfg(), { &word, 1 }, { &before, 1 } ) );
   EXPECT_EQ( before, 5 );
   EXPECT_EQ( read( chips, trapCfg() ), 5 ); // and what is written arrives nevertheless
}

TEST_F( ShadowDriverTest, triesAgainWhereAnOperationFails ) {
   Fault error = fault( "error", "IppdFerTrapCfg" );
   error.count = ShadowDriver::mostTries - 1;
   faulty.arm( error );
   write( shadow, trapCfg(), 5 );
   EXPECT_EQ( read( chips, trapCfg() ), 5 );
   EXPECT_FALSE( shadow.isDegraded( fap ) );
}

TEST_F( ShadowDriverTest, leavesAChipAloneThatGoesOnFailing ) {
   Fault error = fault( "error", "IppdFerTrapCfg" );
   error.count = ShadowDriver::mostTries;
   faulty.arm( error );
   write( shadow, trapCfg(), 5 );
   EXPECT_TRUE( shadow.isDegraded( fap ) );
   EXPECT_THAT( degraded, ElementsAre( "write to IppdFerTrapCfg failed" ) );
   write( shadow, inlif(), 3 );
   EXPECT_EQ( read( chips, inlif() ), 0 );
   EXPECT_EQ( read( shadow, inlif() ), 3 ); // as if nothing had happened
   EXPECT_THAT( found(), IsEmpty() );       // nobody can tell
   shadow.triesAgain( fap );
   EXPECT_THAT( found(), ElementsAre( "3 is 0", "5 is 0" ) );
   EXPECT_TRUE( shadow.repair( fap, trapCfg() ) );
   EXPECT_EQ( read( chips, trapCfg() ), 5 );
}

TEST_F( AuditTest, findsNothingOnChipsThatHoldWhatWasWritten ) {
   write( shadow, trapCfg( 0 ), 5 );
   write( shadow, trapCfg( 1 ), 5 );
   shadow.control( fap, 64, 255 );
   EXPECT_THAT( found(), IsEmpty() );
}

TEST_F( AuditTest, findsTheCopyThatHoldsSomethingElse ) {
   write( shadow, trapCfg( 0 ), 5 );
   write( shadow, trapCfg( 1 ), 6 );
   write( chips, trapCfg( 1 ), 4 );
   EXPECT_THAT( found(), ElementsAre( "6 is 4" ) );
}

TEST_F( AuditTest, findsWhatNobodyHasEverWritten ) {
   write( chips, inlif( 1 ), 1 );
   EXPECT_THAT( found(), ElementsAre( "0 is 1" ) );
}

TEST_F( AuditTest, findsControls ) {
   shadow.control( fap, 64, 255 );
   shadow.control( fap, 65, 1 );
   chips.control( fap, 64, 254 );
   EXPECT_THAT( found(), ElementsAre( "control 64" ) );
   EXPECT_TRUE( shadow.repairControl( fap, 64 ) );
   EXPECT_THAT( found(), IsEmpty() );
}

TEST_F( AuditTest, looksAtEverythingOnceInSlices ) {
   boot( *chips.chip( fap ), chipType );
   expected.chip( fap )->takeContents( *chips.chip( fap ) );
   write( chips, trapCfg( 1 ), ~read( chips, trapCfg( 1 ) ) );
   write( chips, inlif( 0 ), ~read( chips, inlif( 0 ) ) & 0x1f );
   std::size_t steps = 1;
   std::size_t mismatches = 0;
   while ( !audit.step( 100, [&]( Mismatch const & ) { ++mismatches; } ) ) {
      ++steps;
   }
   EXPECT_EQ( mismatches, 2u );
   EXPECT_GT( steps, 20u );
}

TEST_F( AuditTest, doesNotTakeForWrongWhatIsWrittenBetweenTwoSteps ) {
   boot( *chips.chip( fap ), chipType );
   expected.chip( fap )->takeContents( *chips.chip( fap ) );
   std::size_t mismatches = 0;
   for ( U32 word = 1; !audit.step( 50, [&]( Mismatch const & ) { ++mismatches; } ); ++word ) {
      write( shadow, trapCfg( word % 2 ), word );
      write( shadow, inlif( word % 2 ), word % 32 );
   }
   EXPECT_EQ( mismatches, 0u );
}

} // namespace
