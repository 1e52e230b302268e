// Time that passes as fast as there is nothing to do.
#include "agent/EventLoop.h"

#include <cmath>
#include <gmock/gmock.h>

namespace {

using namespace Live;
using testing::ElementsAre;

struct VirtualTimeTest : testing::Test {
   void all() {
      while ( time.turn() ) {
      }
   }
   auto tells( std::string const & what ) {
      return [this, what] { told.push_back( what + " at " + std::to_string( std::lround( time.now() * 1000 ) ) ); };
   }

   VirtualTime time;
   EventLoop one{ time };
   EventLoop other{ time };
   std::vector< std::string > told;
};

TEST_F( VirtualTimeTest, timersComeInTheirOrderWithoutAnybodyWaiting ) {
   auto const late = one.timer( 3600, tells( "late" ) );
   auto const soon = one.timer( 0.5, tells( "soon" ) );
   auto const atOnce = other.timer( 0.5, tells( "asked for later" ) );
   all();
   EXPECT_THAT( told, ElementsAre( "soon at 500", "asked for later at 500", "late at 3600000" ) );
   EXPECT_EQ( EventLoop::clock(), 3600 );
}

TEST_F( VirtualTimeTest, aTimerThatIsLetGoOfNeverComes ) {
   auto timer = one.timer( 1, tells( "never" ) );
   timer = {};
   all();
   EXPECT_THAT( told, ElementsAre() );
}

TEST_F( VirtualTimeTest, aTimerCanBeSetAgainFromItsOwnCall ) {
   EventLoop::Source timer;
   int count = 0;
   timer = one.timer( 1, [&] {
      tells( "again" )();
      if ( ++count < 3 ) {
         timer.timeIs( 2 );
      }
   } );
   all();
   EXPECT_THAT( told, ElementsAre( "again at 1000", "again at 3000", "again at 5000" ) );
}

TEST_F( VirtualTimeTest, whoIsBusyKeepsHisOwnLoopWaitingAlone ) {
   one.soon( [&] {
      time.spends( 2 );
      tells( "worked" )();
   } );
   one.soon( tells( "behind it" ) );
   auto const others = other.timer( 1, tells( "another's" ) );
   all();
   EXPECT_THAT( told, ElementsAre( "worked at 2000", "another's at 1000", "behind it at 2000" ) );
}

TEST_F( VirtualTimeTest, turnsUntilATimeLeavesWhatIsDueLater ) {
   auto const before = one.timer( 1, tells( "before" ) );
   auto const behind = one.timer( 3, tells( "behind" ) );
   time.turnsUntil( 2 );
   EXPECT_THAT( told, ElementsAre( "before at 1000" ) );
   EXPECT_EQ( time.now(), 2 );
}

TEST_F( VirtualTimeTest, hasNoFilesAndNoMachineToRunOn ) {
   EXPECT_THROW( static_cast< void >( one.io( 0, 0, []( U32 ) {} ) ), std::logic_error );
   EXPECT_THROW( one.run(), std::logic_error );
   EXPECT_THROW( VirtualTime(), std::logic_error );
}

} // namespace
