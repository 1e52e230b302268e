// The verb `compare`: scenarios on every kind of chip, and with each toggle flipped alone: where the programming
// differs; or with another build of the plug-in: what that does otherwise.
#include "inspection/NamesAsTyped.h"
#include "inspection/RandomScenario.h"
#include "inspection/views/ChipComparisonText.h"
#include "inspection/views/PluginComparisonText.h"
#include "l3sm/ScenarioToPlay.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

struct CompareOptions : ComparisonOptions {
   std::vector< std::string > scenarios;
   std::string against;
   std::optional< U32 > random;
   std::optional< U32 > seed;
   std::vector< std::string > settings;
   bool all = false;
   bool json = false;
};

constexpr int isOtherwise = 1;

std::vector< Scenario > scenariosOf( CompareOptions const & options ) {
   std::vector< Scenario > all;
   bool const needsOne = !options.random;
   auto const files = options.scenarios.empty() && needsOne ? std::vector< std::string >{ "" } : options.scenarios;
   for ( std::string const & file : files ) {
      all.push_back( scenarioToPlay( file, options.settings, options.plugin ) );
   }
   for ( U32 number = 0; number < options.random.value_or( 0 ); ++number ) {
      U64 const seed = U64{ options.seed.value_or( 1 ) } + number;
      // The chips are those of each comparison.
      auto & scenario = all.emplace_back( randomScenario( chanceOf( seed ) ) );
      scenario.name = scenario.file = "random state " + std::to_string( seed );
   }
   return all;
}

int answerAgainst( CompareOptions const & options ) {
   if ( options.toggles || !options.tables.empty() ) {
      throw InputError( "--against compares all that two builds do; leave out --toggles and --table" );
   }
   if ( options.seed && !options.random ) {
      throw InputError( "--seed is for --random" );
   }
   PluginComparison const comparison =
      comparePlugins( scenariosOf( options ), { .plugin = options.plugin, .against = options.against } );
   if ( options.json ) {
      std::cout << toJson( pluginComparisonValue( comparison ), 4 ) << '\n';
   } else {
      showPluginComparison( std::cout, comparison, options.all, Style::of( std::cout ) );
   }
   return comparison.isEqual() ? 0 : isOtherwise;
}

int answer( CompareOptions const & options ) {
   if ( !options.against.empty() ) {
      return answerAgainst( options );
   }
   if ( options.random || options.seed ) {
      throw InputError( "--random and --seed are for --against" );
   }
   if ( options.scenarios.size() > 1 ) {
      throw InputError( "one scenario at a time, but with --against" );
   }
   for ( std::string const & table : options.tables ) {
      if ( table != "controls" ) {
         tableNamed( table );
      }
   }
   Scenario const scenario =
      scenarioToPlay( options.scenarios.empty() ? "" : options.scenarios.front(), options.settings, options.plugin );
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
   auto const options = std::make_shared< CompareOptions >();
   verb.texts( "scenario",
               options->scenarios,
               "the scenario to play; without one, the built-in example. With --against several",
               "SCENARIO.json" );
   verb.text( "--against", options->against, "another build of the plug-in: what it does otherwise", "PATH" );
   verb.number( "--random", options->random, "with --against: as many random scenarios, too" );
   verb.number( "--seed", options->seed, "chance begins here; without it, at 1" );
   verb.flag( "--toggles", options->toggles, "play it with each toggle flipped alone, too" );
   verb.texts( "--table", options->tables, "only these tables; `controls` for the driver's controls" );
   verb.flag( "--all", options->all, "every row of tables that differ" );
   verb.repeated(
      "--toggle", options->settings, "set a toggle for all runs; may be given several times", "FILE:NAME=on|off" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer( "Exit status: 0; with --against 0 equal, 1 something differs." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
