// What is found on other roads to a last state, over all examples and over random states: everything that remembers has
// its reason in inspection/KnownMemories.h, and nothing there is without an example that shows it.
//
// L3SM_STATES=10000 explores ten thousand random states instead of a few; L3SM_FIRST_STATE=N those from the Nth on.
#include "inspection/Histories.h"
#include "BuildFolder.h"
#include "inspection/KnownMemories.h"
#include "inspection/OnChip.h"
#include "inspection/Play.h"
#include "inspection/RandomScenario.h"
#include "l3sm/Command.h"
#include "rex/Log.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using namespace Inspection;

Scenario example( std::string const & name ) {
   return readScenario( std::string( L3SM_SOURCE_DIR "/examples/" ) + name + ".json" );
}

Histories explored( Scenario const & scenario, std::size_t count ) {
   loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
   return explore( scenario, { .count = count, .seconds = 0, .seed = 7 } );
}

KnownMemory const * knownOf( EndDifference const & it ) {
   return knownMemory( it.table, it.table == "controls" ? it.place : it.field );
}

bool isKnown( EndDifference const & it ) {
   return knownOf( it ) != nullptr;
}

std::string unknownIn( Histories const & found ) {
   std::string text;
   for ( History const & history : found.all ) {
      text += history.failure;
      for ( EndDifference const & it : history.differences ) {
         text += knownOf( it ) ? "" : it.key() + ": " + it.own + ", " + it.here + "\n";
      }
   }
   return text;
}

TEST( Histories, findThatTheLatestDecapGroupIsRemembered ) {
   Histories const found = explored( example( "gue" ), 200 );
   EXPECT_EQ( found.played, 200u );
   ASSERT_FALSE( found.all.empty() );
   History const & first = found.all.front();
   // Nothing is shorter than a start on the last state.
   EXPECT_EQ( lengthOf( first.road ), 0u );
   ASSERT_EQ( first.differences.size(), 2u );
   for ( EndDifference const & it : first.differences ) {
      EXPECT_EQ( it.table, "AdditionalHeadersMapTable0" );
      EXPECT_EQ( it.field, "protocolSpecificInformation" );
      EXPECT_EQ( it.own, "0x1" );
      EXPECT_EQ( it.here, "0x33d9" );
   }
}

TEST( Histories, cutADetourToThereAndBack ) {
   Histories const found = explored( example( "gue" ), 2000 );
   auto const history = std::ranges::find_if( found.all, []( History const & it ) {
      return !it.differences.empty() && it.differences.front().table == "EtppcEncapsulation2ContextSelectionCam";
   } );
   ASSERT_NE( history, found.all.end() );
   ASSERT_EQ( lengthOf( history->road ), 2u );
   auto const steps = history->road.end() - 2;
   EXPECT_EQ( steps[0].event.cause(), "vxlan/ecnConfig dscpEcnRewriteBridged" );
   EXPECT_EQ( steps[0].event.value, Rex::Value( true ) );
   EXPECT_EQ( steps[1].event.value, Rex::Value( false ) );
}

TEST( Histories, areTheSameForTheSameSeed ) {
   auto const keys = [] {
      std::vector< std::string > all;
      for ( History const & history : explored( example( "vti" ), 500 ).all ) {
         for ( EndDifference const & it : history.differences ) {
            all.push_back( it.key() );
         }
      }
      return all;
   };
   auto const once = keys();
   EXPECT_FALSE( once.empty() );
   EXPECT_EQ( once, keys() );
}

TEST( Histories, endWhenTheirTimeIsOver ) {
   loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
   Histories const found = explore( example( "gue" ), { .count = 1'000'000'000, .seconds = 0.05 } );
   EXPECT_TRUE( found.isCut );
   EXPECT_LT( found.played, 1'000'000u );
}

struct HistoriesOfExample : testing::TestWithParam< std::string > {};

TEST_P( HistoriesOfExample, areAllKnown ) {
   Histories const found = explored( example( GetParam() ), 1500 );
   EXPECT_EQ( unknownIn( found ), "" );
   for ( KnownMemory const & known : knownMemories() ) {
      if ( known.example != GetParam() ) {
         continue;
      }
      bool isShown = false;
      for ( History const & history : found.all ) {
         for ( EndDifference const & it : history.differences ) {
            isShown = isShown || knownOf( it ) == &known;
         }
      }
      EXPECT_TRUE( isShown ) << known.table << "." << known.field << ": take it out";
   }
}

INSTANTIATE_TEST_SUITE_P( Examples, HistoriesOfExample, testing::ValuesIn( exampleNames() ), NameOfExample() );

U64 numberIn( char const * variable, U64 otherwise ) {
   char const * const text = std::getenv( variable );
   return text ? std::stoull( text ) : otherwise;
}

TEST( Histories, ofRandomStatesAreAllKnown ) {
   U64 const states = numberIn( "L3SM_STATES", 6 );
   U64 const first = numberIn( "L3SM_FIRST_STATE", 1 );
   loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
   for ( U64 seed = first; seed < first + states; ++seed ) {
      // A toggle has one value for the life of a process.
      Child const child = inChild( [&]( std::ostream & out ) {
         Rex::logSinkIs( []( auto const & ) {} );
         Scenario const scenario = randomScenario( chanceOf( seed ) );
         out << unknownIn( explore( scenario, { .count = 60, .seconds = 0, .seed = seed, .isPassedOver = isKnown } ) );
      } );
      EXPECT_TRUE( child.isFine ) << seed << " " << child.errors;
      EXPECT_EQ( child.output, "" ) << "seed " << seed;
   }
}

} // namespace
