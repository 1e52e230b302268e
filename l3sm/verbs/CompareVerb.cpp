// The verb `compare`: one scenario on every kind of chip, and with each toggle flipped alone: where the programming
// differs.
#include "inspection/NamesAsTyped.h"
#include "inspection/views/ChipComparisonText.h"
#include "l3sm/ScenarioToPlay.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

struct Options : ComparisonOptions {
   std::string scenario;
   std::vector< std::string > settings;
   bool all = false;
   bool json = false;
};

int answer( Options const & options ) {
   for ( std::string const & table : options.tables ) {
      if ( table != "controls" ) {
         tableNamed( table );
      }
   }
   Scenario const scenario = scenarioToPlay( options.scenario, options.settings, options.plugin );
   ChipComparison const comparison = compareChips( scenario, options );
   if ( options.json ) {
      std::cout << toJson( comparisonValue( comparison, options.toggles ), 2 ) << '\n';
   } else {
      showComparison( std::cout, comparison, options.all, Style::of( std::cout ) );
   }
   return 0;
}

} // namespace

Action defineCompare( VerbOptions & verb ) {
   auto const options = std::make_shared< Options >();
   verb.text(
      "scenario", options->scenario, "the scenario to play; without one, the built-in example", "SCENARIO.json" );
   verb.flag( "--toggles", options->toggles, "play it with each toggle flipped alone, too" );
   verb.texts( "--table", options->tables, "only these tables; `controls` for the driver's controls" );
   verb.flag( "--all", options->all, "every row of tables that differ" );
   verb.repeated(
      "--toggle", options->settings, "set a toggle for all runs; may be given several times", "FILE:NAME=on|off" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   verb.flag( "--json", options->json, "for programs" );
   return [options] { return answer( *options ); };
}

} // namespace Cli
