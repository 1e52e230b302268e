// The verb `plan`: what a start on these chips and this state, or a scenario's events, would change, without a change.
#include "inspection/views/PlanText.h"
#include "l3sm/ScenarioToPlay.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

constexpr int hasSomethingToChange = 1;

struct Options : PlanTextOptions {
   std::string scenario;
   std::string plugin;
   std::vector< std::string > toggles;
   bool json = false;
};

int answer( Options const & options ) {
   Scenario const scenario = scenarioToPlay( options.scenario, options.toggles, options.plugin );
   if ( options.fap ) {
      scenario.fap( *options.fap );
   }
   Plan const plan = planOf( scenario, options.plugin );
   if ( options.json ) {
      std::cout << toJson( planValue( plan, options.fap ), 4 ) << '\n';
   } else {
      showPlan( std::cout, plan, options, Style::of( std::cout ) );
   }
   return plan.isEmpty() ? 0 : hasSomethingToChange;
}

} // namespace

Action definePlan( VerbOptions & verb ) {
   auto const options = std::make_shared< Options >();
   verb.text(
      "scenario", options->scenario, "the scenario to plan; without one, the built-in example", "SCENARIO.json" );
   verb.flag( "--stat", options->stat, "count by table" );
   verb.number( "--fap", options->fap, "only this FAP" );
   verb.flag( "--all", options->all, "every entry that would change" );
   verb.repeated( "--toggle", options->toggles, "set a toggle; may be given several times", "FILE:NAME=on|off" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer( "Exit status: 0 nothing would change, 1 something would." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
