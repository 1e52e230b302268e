// What the agent hands over to those who ask what is on its chips, why, and what events would change.
#include "agent/control/AgentCommands.h"
#include "agent/control/MemoryFile.h"
#include "inspection/Plan.h"
#include "inspection/files/ChipsFile.h"
#include "inspection/files/ChipsWriter.h"
#include "inspection/files/JournalWriter.h"
#include "inspection/files/Json.h"
#include "inspection/views/PlanText.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace Live {

namespace {

using namespace Inspection;
using Rex::Value;
using Type = Argument::Type;

struct Wanted {
   std::optional< U16 > fap;
   std::vector< std::string > tables; // none: all
};

void writeWanted( std::ostream & out, Simulator::SimulatedSwitch const & sw, Wanted const & wanted ) {
   if ( !wanted.fap && wanted.tables.empty() ) {
      writeChipsOf( sw, out );
      return;
   }
   checkHasFap( sw.description(), wanted.fap );
   ChipsFile chips;
   for ( auto const & fap : sw.description().faps ) {
      if ( wanted.fap && *wanted.fap != fap.fapId.value() ) {
         continue;
      }
      auto const chipType = fap.revision.chipType();
      auto & kept = chips[fap.fapId.value()];
      kept = { chipType, contentsOf( sw.chip( fap.fapId ), chipType ) };
      std::erase_if( kept.contents.tables, [&]( auto const & table ) {
         return !wanted.tables.empty() && std::ranges::find( wanted.tables, table.first ) == wanted.tables.end();
      } );
   }
   writeChips( out, chips );
}

// A list of the lines of a journal. What the run began with is known where nobody else has told the agent of a state.
void writeRows( std::ostream & out, AgentSubjects const & subjects ) {
   MemoryFile const file( "rows" );
   Value scenario = valueOf( subjects.agent.scenario(), Parts::withoutEvents );
   if ( !subjects.embedded ) {
      scenario.object()->erase( "state" );
   }
   auto const first = subjects.ring.firstEvent();
   auto const reaches = first.value_or( subjects.agent.isStarted() ? subjects.agent.sw().event() + 1 : 0 );
   JournalWriter writer( file.path(),
                         { .scenario = std::move( scenario ),
                           .plugin = subjects.plugin,
                           .reachesBackTo = reaches > 0 ? std::optional( reaches ) : std::nullopt } );
   subjects.ring.play( writer );
   char before = '[';
   file.eachLine( [&]( std::string_view line ) { out << std::exchange( before, ',' ) << line; } );
   out << ']';
}

// As long as the plan is told.
struct PlanShown : PlanTextOptions {
   std::optional< U16 > fap;
   std::optional< U32 > width;
   bool colour = false;
};

void writePlan( std::ostream & out,
                SliceAgent & agent,
                std::string const & name,
                std::vector< Event > const & events,
                PlanShown const & shown ) {
   if ( !agent.isStarted() ) {
      throw CommandError( CommandError::refused, "nothing is on the chips yet: " + agent.reason() );
   }
   Plan const plan = planOn( agent.sw(), name, events, shown.fap );
   if ( shown.width ) {
      ::setenv( "COLUMNS", std::to_string( *shown.width ).c_str(), 1 );
   }
   std::ostringstream text;
   showPlan( text, plan, shown, Style( shown.colour ) );
   Value const answer =
      Value::Object{ { "isEmpty", plan.isEmpty() }, { "plan", planValue( plan ) }, { "text", text.str() } };
   out << toJson( answer, 0 );
}

} // namespace

void addAnswerCommands( Commands & commands, AgentSubjects const & subjects ) {
   SliceAgent & agent = subjects.agent;
   commands.add(
      { .name = "show",
        .does = "what is on the chips, as `l3sm run --chips` writes it",
        .arguments = { { .name = "fap", .type = Type::number, .isOptional = true, .what = "only this FAP" },
                       { .name = "tables", .type = Type::texts, .isOptional = true, .what = "only these tables" } },
        .answer = [&agent]( Arguments const & given ) -> Answer {
           Wanted const wanted{ given.optional< U16 >( "fap" ), given.texts( "tables" ) };
           return LongAnswer{ [&agent, wanted]( std::ostream & out ) { writeWanted( out, agent.sw(), wanted ); } };
        } } );
   commands.add( { .name = "why",
                   .does = "what it has done of late: the lines of a journal, as far back as it remembers",
                   .answer = [subjects]( Arguments const & ) -> Answer {
                      return LongAnswer{ [subjects]( std::ostream & out ) { writeRows( out, subjects ); } };
                   } } );
   commands.add(
      { .name = "plan",
        .does = "what events of a scenario would change on the chips, now, without doing it",
        .arguments = { { .name = "events", .type = Type::value, .what = "a list of events as a scenario has them" },
                       { .name = "name", .isOptional = true, .what = "of the scenario" },
                       { .name = "fap", .type = Type::number, .isOptional = true, .what = "only this FAP" },
                       { .name = "stat", .type = Type::flag, .isOptional = true, .what = "count by table" },
                       { .name = "all", .type = Type::flag, .isOptional = true, .what = "every entry" },
                       { .name = "width", .type = Type::number, .isOptional = true, .what = "columns of the text" },
                       { .name = "colour", .type = Type::flag, .isOptional = true, .what = "for a terminal" } },
        .answer = [&agent]( Arguments const & given ) -> Answer {
           PlanShown shown;
           shown.fap = given.optional< U16 >( "fap" );
           shown.stat = given.flag( "stat" );
           shown.all = given.flag( "all" );
           shown.width = given.optional< U32 >( "width" );
           shown.colour = given.flag( "colour" );
           checkHasFap( agent.scenario().description, shown.fap );
           auto const name = given.optional< std::string >( "name" ).value_or( "" );
           return LongAnswer{ [&agent, shown, name, events = given.value( "events" )]( std::ostream & out ) {
              writePlan( out, agent, name, eventsOf( events ), shown );
           } };
        } } );
}

} // namespace Live
