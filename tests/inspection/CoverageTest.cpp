// What the examples and random states with fixed seeds cover: every table that the plug-in can write, on every chip
// that has it. What it never writes stands in Coverage.cpp, with its reason.
#include "inspection/Coverage.h"
#include "BuildFolder.h"
#include "inspection/OnChip.h"
#include "inspection/RandomScenario.h"
#include "inspection/files/Json.h"
#include "l3sm/Command.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;
using Hardware::allChipTypes;

std::string const plugin = buildFolder() + "/lib/libL3SmPlugin.so";

// On the chips in turn: half of the random states each has two of them.
Coverage coverageOfAll() {
   constexpr U64 randomStates = 60;
   Coverage coverage;
   for ( auto const & path : exampleScenarios() ) {
      for ( auto const chipType : allChipTypes ) {
         cover( coverage, onChip( readScenario( path ), chipType ), plugin );
      }
   }
   // Without contexts of their own, reduced keys go by port; where chips are served that ends the process by design.
   Scenario byPort = readScenario( L3SM_SOURCE_DIR "/examples/gate.json" );
   byPort.description.toggles["DaceL3Unicast.json"]["UnifiedIPv4Fwd2Ctx"] = false;
   for ( auto const chipType : allChipTypes ) {
      cover( coverage, onChip( byPort, chipType ), plugin );
   }
   for ( U64 seed = 1; seed <= randomStates; ++seed ) {
      cover( coverage, randomScenario( chanceOf( seed ) ), plugin );
   }
   return coverage;
}

TEST( Coverage, ofExamplesAndRandomStatesIsWhole ) {
   Coverage const coverage = coverageOfAll();
   for ( Catalogue::Table const & table : Catalogue::tables() ) {
      for ( auto const chipType : allChipTypes ) {
         if ( !Coverage::has( table, chipType ) ) {
            continue;
         }
         bool const isWritten = coverage.cell( table, chipType ) != nullptr;
         EXPECT_NE( isWritten, Coverage::whyUnwritten( table, chipType ) != nullptr )
            << table.name << " on " << Hardware::chipTypeName( chipType )
            << ( isWritten ? " is written: take it out of what never is" : " is never written, for no known reason" );
      }
   }
   EXPECT_EQ( coverage.pairs().percent(), 100.0 );
}

TEST( Coverage, goesFromOneProcessToAnother ) {
   Coverage one;
   cover( one, readScenario( L3SM_SOURCE_DIR "/examples/gue.json" ), plugin );
   Coverage other;
   other.add( one.text() );
   EXPECT_EQ( one.text(), other.text() );
   auto const * const cell =
      one.cell( *Catalogue::table( "AdditionalHeadersMapTable0" ), Hardware::ChipType::BCM88690_B0 );
   ASSERT_NE( cell, nullptr );
   EXPECT_TRUE( cell->fields.at( "protocolSpecificInformation" ).values.contains( "0x33d7" ) );
   EXPECT_EQ( one.cell( *Catalogue::table( "AdditionalHeadersMapTable0" ), Hardware::ChipType::BCM88800_A0 ), nullptr );
}

TEST( Coverage, ofAJournalIsThatOfItsScenario ) {
   Command const l3sm( "run '" L3SM_SOURCE_DIR "/examples/gue.json' --quiet --journal j && '" + buildFolder() +
                       "/bin/l3sm' coverage j --json" );
   Command const played( "coverage '" L3SM_SOURCE_DIR "/examples/gue.json' --json" );
   EXPECT_EQ( l3sm.status, 0 ) << l3sm.errors;
   EXPECT_EQ( l3sm.output, played.output );
}

TEST( Coverage, isMissedWithStatusOne ) {
   EXPECT_EQ( Command( "coverage '" L3SM_SOURCE_DIR "/examples/gue.json' --min 90" ).status, 1 );
   EXPECT_EQ( Command( "coverage '" L3SM_SOURCE_DIR "/examples/gue.json' --min 5" ).status, 0 );
   Command const nothing( "coverage" );
   EXPECT_EQ( nothing.status, 2 );
   EXPECT_NE( nothing.errors.find( "name a journal or a scenario" ), std::string::npos ) << nothing.errors;
}

} // namespace
