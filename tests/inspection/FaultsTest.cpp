// Chips that fail while a scenario is played: what they are expected to hold is what they would hold without, and a
// repair never undoes what was written last.
#include "BuildFolder.h"
#include "inspection/Play.h"
#include "inspection/RandomScenario.h"
#include "inspection/WrongPlace.h"
#include "rex/Log.h"
#include "simulator/RandomFaults.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;
using Hardware::ChipType;

// What the chips hold in the end; with a seed, after faults, audits and repairs at random among the events.
std::map< U16, Simulator::Contents > chipsAfter( Scenario scenario, std::optional< U64 > faults, U64 & fired ) {
   scenario.description.journalled = Simulator::SwitchDescription::Journalled::none;
   Simulator::SimulatedSwitch sw( scenario.description );
   scenario.prepare( sw );
   auto & chips = sw.supervise();
   sw.start();
   Simulator::RandomFaults random( faults.value_or( 0 ) );
   auto const choose = chanceOf( faults.value_or( 0 ) + 1 );
   auto const repair = [&]( Simulator::Mismatch const & it ) { chips.shadow().repair( it.chip, it.at ); };
   for ( Event const & event : scenario.events ) {
      if ( faults && choose( 2 ) == 0 ) {
         sw.fault( random.next() );
      }
      scenario.play( sw, event );
      if ( faults && choose( 2 ) == 0 ) {
         chips.audit().step( choose( 3000 ), repair );
      }
   }
   if ( faults ) {
      fired += chips.fired();
      EXPECT_TRUE( chips.shadow().degraded().empty() );
      chips.disarmAll();
      chips.audit().restart();
      chips.audit().finish( repair );
      chips.audit().finish(
         [&]( Simulator::Mismatch const & it ) { ADD_FAILURE() << wrongPlaceOf( sw.description(), it ).text(); } );
   }
   std::map< U16, Simulator::Contents > all;
   for ( auto const & fap : scenario.description.faps ) {
      all[fap.fapId.value()] = contentsOf( sw.chip( fap.fapId ), fap.revision.chipType() );
   }
   sw.stop();
   return all;
}

TEST( Faults, leaveNothingBehindOnceTheyAreRepaired ) {
   Rex::logSinkIs( []( auto const & ) {} );
   loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
   U64 all = 0; // faults that fired
   for ( U64 seed = 1; seed <= 10; ++seed ) {
      Scenario const scenario = randomScenario(
         chanceOf( seed ), { .chipTypes = { ChipType::BCM88690_B0 }, .toggles = false, .mostEvents = 40 } );
      Child const child = inChild( [&]( std::ostream & out ) {
         U64 fired = 0;
         auto const without = chipsAfter( scenario, std::nullopt, fired );
         auto const with = chipsAfter( scenario, seed, fired );
         // An entry that a bit has turned in holds a value from then on, even if nobody has written one.
         bool isSame = true;
         for ( auto const & [fap, contents] : without ) {
            for ( auto const & [table, variants] : contents.tables ) {
               for ( auto const & [variant, arrays] : variants ) {
                  for ( auto const & [array, entries] : arrays ) {
                     for ( auto const & [entry, is] : entries ) {
                        isSame =
                           isSame && with.at( fap ).tables.at( table ).at( variant ).at( array ).at( entry ) == is;
                     }
                  }
               }
            }
         }
         out << fired << ( isSame ? " same" : " another" ) << ( ::testing::Test::HasFailure() ? ", and worse" : "" );
      } );
      if ( child.isFine ) { // a scenario may end the plug-in by design
         all += std::stoull( child.output );
         EXPECT_EQ( child.output.substr( child.output.find( ' ' ) ), " same" ) << "seed " << seed;
      }
   }
   EXPECT_GT( all, 50u );
}

} // namespace
