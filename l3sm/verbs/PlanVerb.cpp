// The verb `plan`: what a start on these chips and this state, or a scenario's events, would change, without a change.
#include "agent/database/StateFile.h"
#include "inspection/files/ChipsFile.h"
#include "inspection/files/InputFile.h"
#include "inspection/files/JournalReader.h"
#include "inspection/files/Json.h"
#include "inspection/views/PlanText.h"
#include "l3sm/AgentFiles.h"
#include "l3sm/ScenarioToPlay.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;
using Rex::Value;

namespace {

constexpr int hasSomethingToChange = 1;

struct PlanVerbOptions : PlanTextOptions {
   std::string scenario;
   AgentOptions agent;
   std::string plugin;
   std::vector< std::string > toggles;
   std::optional< U16 > fap;
   bool json = false;
};

int shown( Plan const & plan, PlanVerbOptions const & options ) {
   if ( options.json ) {
      std::cout << toJson( planValue( plan ), 4 ) << '\n';
   } else {
      showPlan( std::cout, plan, options, Style::of( std::cout ) );
   }
   return plan.isEmpty() ? 0 : hasSomethingToChange;
}

// What another build of the plug-in would change at its start, on the agent's chips and state as they are.
int planUpgrade( PlanVerbOptions const & options ) {
   if ( !options.toggles.empty() ) {
      throw InputError( "an agent has its toggles already: leave out --toggle" );
   }
   JournalReader const journal( options.agent.journal() );
   Value begun = journal.scenario();
   ( *begun.object() )["state"] = Live::stateIn( options.agent.state() );
   Scenario scenario = scenarioOf( std::move( begun ), options.agent.name );
   scenario.name = options.agent.name + " with " + options.plugin;
   checkHasFap( scenario.description, options.fap );
   for ( auto & [fap, it] : readChips( options.agent.chips( {} ) ) ) {
      scenario.chips[fap] = it.contents;
   }
   return shown( planOf( scenario, options.plugin, { .fap = options.fap } ), options );
}

// The agent plans on a copy of itself, and tells it as text and as a value.
int askAgent( PlanVerbOptions const & options ) {
   if ( options.scenario.empty() && !options.plugin.empty() ) {
      return planUpgrade( options );
   }
   if ( options.scenario.empty() ) {
      throw InputError(
         "SCENARIO.json, whose events are planned, is required, or --plugin, whose start is; l3sm plan --help "
         "tells what there is" );
   }
   if ( !options.plugin.empty() || !options.toggles.empty() ) {
      throw InputError(
         "an agent has its plug-in and its toggles already: leave out --plugin and --toggle, or, to plan "
         "another build's start, the scenario" );
   }
   Value::Object params{ { "events", eventsIn( options.scenario ) },
                         { "name", inputName( options.scenario ) },
                         { "stat", options.stat },
                         { "all", options.all },
                         { "width", lineWidth() },
                         { "colour", !Style::of( std::cout ).strong( "" ).empty() } };
   if ( options.fap ) {
      params["fap"] = *options.fap;
   }
   Value const plan = options.agent.call( "plan", params ).value();
   Fields fields( plan );
   if ( options.json ) {
      std::cout << toJson( fields.required( "plan" ), 4 ) << '\n';
   } else {
      std::cout << fields.required< std::string >( "text" );
   }
   return fields.required< bool >( "isEmpty" ) ? 0 : hasSomethingToChange;
}

int answer( PlanVerbOptions const & options ) {
   if ( options.agent.isGiven() ) {
      return askAgent( options );
   }
   Scenario const scenario = scenarioToPlay( options.scenario, options.toggles, options.plugin );
   checkHasFap( scenario.description, options.fap );
   return shown( planOf( scenario, options.plugin, { .fap = options.fap } ), options );
}

} // namespace

Action definePlan( VerbOptions & verb ) {
   auto const options = std::make_shared< PlanVerbOptions >();
   verb.text(
      "scenario", options->scenario, "the scenario to plan; without one, the built-in example", "SCENARIO.json" );
   options->agent.declare( verb );
   verb.flag( "--stat", options->stat, "count by table" );
   verb.number( "--fap", options->fap, "only this FAP" );
   verb.flag( "--all", options->all, "every entry that would change" );
   verb.repeated( "--toggle", options->toggles, "set a toggle; may be given several times", "FILE:NAME=on|off" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer( "With --agent and --plugin alone: what that build of the plug-in would change at its start.\n"
                "Exit status: 0 nothing would change, 1 something would." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
