// A plan tells what a run would do: carried out, it leaves what the run leaves.
#include "inspection/Plan.h"
#include "BuildFolder.h"
#include "inspection/AnyScenario.h"
#include "inspection/ChipDifferences.h"
#include "inspection/Play.h"
#include "inspection/files/Json.h"
#include "l3sm/Command.h"
#include "simulator/TableMap.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;
using Simulator::Row;

std::string const plugin = buildFolder() + "/lib/libL3SmPlugin.so";

// The bits that a planned change differs in, put on the chip.
void carryOut( Row const & change, Simulator::ChipDriver & chips ) {
   DaceSal::ChipId const fap{ change.fap };
   if ( change.kind == Row::Kind::control ) {
      chips.control( fap, change.control, change.value );
      return;
   }
   for ( U32 copy = 0; copy < change.layout->selectors.size(); ++copy ) {
      if ( change.scope == Row::Scope::core && static_cast< U32 >( change.core ) != copy ) {
         continue;
      }
      auto const at =
         Simulator::addressOf( *change.layout, static_cast< U32 >( change.array ), change.entry.value_or( 0 ), copy );
      std::vector< U32 > words( change.words.size() );
      chips.read( fap, at, words );
      for ( std::size_t word = 0; word < words.size(); ++word ) {
         U32 const differs = change.words[word] ^ change.before[word];
         words[word] = ( words[word] & ~differs ) | ( change.words[word] & differs );
      }
      chips.write( fap, at, words );
   }
}

ChipsFile afterPlan( Scenario const & scenario ) {
   Plan const plan = planOf( scenario, plugin );
   Simulator::SimulatedSwitch sw( scenario.description );
   scenario.fillChips( sw.driver() );
   for ( PlannedEvent const & event : plan.events ) {
      for ( Row const & change : event.changes ) {
         carryOut( change, sw.driver() );
      }
   }
   return chipsOf( sw );
}

ChipsFile afterRun( Scenario const & scenario ) {
   loadPlugin( plugin );
   Simulator::SimulatedSwitch sw( scenario.description );
   play( scenario, sw );
   return chipsOf( sw );
}

// What the plan leaves and the run doesn't, or the other way round.
std::string disagreements( Scenario const & scenario ) {
   auto const planned = afterPlan( scenario );
   std::string text;
   for ( Difference const & difference : differencesOf( planned, afterRun( scenario ) ) ) {
      for ( ValueDifference const & value : difference.values ) {
         // An entry that was written with what it held has no value in the plan, and zero in the run.
         if ( value.a.value_or( "0x0" ) != value.b.value_or( "0x0" ) ) {
            text += difference.table + " " + difference.place + " " + value.name + " " + value.a.value_or( "-" ) + " " +
                    value.b.value_or( "-" ) + "\n";
         }
      }
   }
   return text;
}

class PlanTest : public testing::TestWithParam< char const * > {};

TEST_P( PlanTest, leavesWhatTheRunLeavesWhenItIsCarriedOut ) {
   Scenario const scenario = readScenario( std::string( L3SM_SOURCE_DIR "/examples/" ) + GetParam() + ".json" );
   EXPECT_EQ( disagreements( scenario ), "" );
}

INSTANTIATE_TEST_SUITE_P(
   Examples,
   PlanTest,
   testing::Values( "urpf-and-ip-traps", "gue", "vti", "split-horizon", "vxlan-qos", "ffc-key", "prefix-lengths" ) );

TEST( Plan, ofASecondStartOnWhatTheFirstHasLeftIsEmpty ) {
   Scenario scenario = readScenario( L3SM_SOURCE_DIR "/examples/urpf-and-ip-traps.json" );
   scenario.events.clear();
   for ( auto const & [fap, contents] : afterRun( scenario ) ) {
      scenario.chips[fap] = contents.contents;
   }
   Plan const plan = planOf( scenario, plugin );
   EXPECT_TRUE( plan.isEmpty() );
   // What chip initialisation writes and corrects later would have reached the chips, unstaged.
   EXPECT_GT( plan.events.front().changingWrites, 0u );
}

TEST( Plan, tellsTheFunctionAndTheCauseOfAChange ) {
   Plan const plan = planOf( readScenario( L3SM_SOURCE_DIR "/examples/urpf-and-ip-traps.json" ), plugin );
   ASSERT_EQ( plan.events.size(), 4u );
   ASSERT_EQ( plan.events[1].changes.size(), 2u );
   Row const & change = plan.events[1].changes[0];
   EXPECT_EQ( change.table, "IppdFerTrapCfg" );
   EXPECT_EQ( change.array, 3 );
   EXPECT_EQ( change.function, "L3Sm::handleUrpfFailFwdConfig" );
   EXPECT_EQ( change.cause, "routing/hardware/config urpfLooseFailForward" );
   EXPECT_EQ( change.scope, Row::Scope::all );
   EXPECT_EQ( plan.events[1].entries(), 2u );
}

TEST( Plan, ofOneFapCountsWhatItShows ) {
   std::string const example = "plan '" L3SM_SOURCE_DIR "/examples/urpf-and-ip-traps.json' --stat --fap 0";
   Command const text( example );
   EXPECT_EQ( text.status, 1 );
   EXPECT_NE( text.output.find( "\n\nEvent 1: set routing/hardware/config urpfLooseFailForward = true  would change "
                                "1 entry  (2 operations)\n  IppdFerTrapCfg  FAP 0 1\n" ),
              std::string::npos )
      << text.output;
   Command const forPrograms( example + " --json" );
   auto const value = parseJson( forPrograms.output, "plan" );
   std::size_t entries = 0;
   std::size_t controls = 0;
   for ( auto const & event : *value.object()->at( "events" ).list() ) {
      auto const & fields = *event.object();
      auto const entriesOfEvent = static_cast< std::size_t >( *fields.at( "entries" ).integer() );
      auto const controlsOfEvent = static_cast< std::size_t >( *fields.at( "controls" ).integer() );
      EXPECT_GE( fields.at( "changes" ).list()->size(), entriesOfEvent + controlsOfEvent );
      entries += entriesOfEvent;
      controls += controlsOfEvent;
   }
   auto const totals = std::to_string( entries ) + " entries and " + std::to_string( controls ) + " controls ";
   EXPECT_NE( text.output.find( "\n\n" + totals + "would change: by the start and 3 of 3 events." ), std::string::npos )
      << text.output;
}

// To the bit: the whole chips are compared.
TEST( Plan, ofAnyScenarioLeavesWhatItsRunLeaves ) {
   EXPECT_TRUE( rc::check( [] {
      Scenario const scenario = anyScenario( { .mostEvents = 20 } );
      Child const child = inChild( [&]( std::ostream & out ) { out << disagreements( scenario ) << "compared"; } );
      RC_LOG() << child.errors;
      RC_ASSERT( child.output == "compared" );
   } ) );
}

} // namespace
