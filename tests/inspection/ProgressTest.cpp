#include "inspection/views/Progress.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using namespace std::chrono_literals;

struct ProgressTest : testing::Test {
   Inspection::Progress::Time now{};
   std::ostringstream terminal;
   std::function< Inspection::Progress::Time() > clock = [this] { return now; };

   // What has been told since it was asked last.
   std::string told() { return std::exchange( terminal, std::ostringstream() ).str(); }
};

TEST_F( ProgressTest, saysNothingForASecond ) {
   {
      Inspection::Progress progress( "playing", clock, &terminal );
      progress.stands( 1, 9 );
      now += 999ms;
      progress.stands( 2, 9 );
   }
   EXPECT_EQ( told(), "" );
}

TEST_F( ProgressTest, writesOneLineOverAndErasesIt ) {
   {
      Inspection::Progress progress( "playing", clock, &terminal );
      now += 1s;
      progress.stands( 3, 9 );
      EXPECT_EQ( told(), "\r\033[Kplaying: 3 of 9\r" );
      now += 99ms;
      progress.stands( 4, 9 );
      EXPECT_EQ( told(), "" ) << "ten times a second is enough";
      now += 1ms;
      progress.stands( 5, 9 );
      EXPECT_EQ( told(), "\r\033[Kplaying: 5 of 9\r" );
   }
   EXPECT_EQ( told(), "\r\033[K" );
}

TEST_F( ProgressTest, saysNothingWithoutATerminal ) {
   Inspection::Progress progress( "playing", clock, nullptr );
   now += 1h;
   progress.stands( 1, 2 );
}

} // namespace
