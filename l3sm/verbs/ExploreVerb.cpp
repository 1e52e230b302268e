// The verb `explore`: reaches a scenario's last state by other roads, and tells which entries remember the road.
#include "inspection/views/HistoriesText.h"
#include "l3sm/ScenarioToPlay.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

constexpr int remembers = 1;

struct ExploreOptions {
   std::string scenario;
   std::string plugin;
   std::vector< std::string > toggles;
   std::optional< U32 > count;
   std::optional< U32 > seconds;
   std::optional< U32 > seed;
   bool all = false;
   bool json = false;
};

int answer( ExploreOptions const & options ) {
   Scenario const scenario = scenarioToPlay( options.scenario, options.toggles, options.plugin );
   HistoryOptions how;
   how.count = options.count.value_or( how.count );
   how.seconds = options.seconds ? *options.seconds : how.seconds;
   how.seed = options.seed.value_or( how.seed );
   Histories const found = explore( scenario, how );
   if ( options.json ) {
      std::cout << toJson( historiesValue( found ), 4 ) << '\n';
   } else {
      showHistories( std::cout, found, options.all, Style::of( std::cout ) );
   }
   return found.remembers() ? remembers : 0;
}

} // namespace

Action defineExplore( VerbOptions & verb ) {
   auto const options = std::make_shared< ExploreOptions >();
   verb.text( "scenario",
              options->scenario,
              "the scenario whose last state is reached; without one, the built-in example",
              "SCENARIO.json" );
   verb.number( "--count", options->count, "as many roads; without it, 10000" );
   verb.number( "--seconds", options->seconds, "play no longer; without it, 10; 0: as long as it takes" );
   verb.number( "--seed", options->seed, "chance begins here; without it, at 1" );
   verb.flag( "--all", options->all, "every step and field" );
   verb.repeated( "--toggle", options->toggles, "set a toggle; may be given several times", "FILE:NAME=on|off" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer( "Exit status: 0 nothing remembers its road, 1 something does." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
