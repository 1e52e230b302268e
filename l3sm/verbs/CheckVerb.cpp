// The verb `check`: plays a scenario and verifies what the plug-in can verify on the chips afterwards.
#include "inspection/Play.h"
#include "inspection/views/VerdictsText.h"
#include "l3sm/verbs/Verbs.h"

#include <algorithm>
#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

constexpr int foundAFault = 1;
constexpr int judgedNothing = 3;

struct Options {
   std::string scenario;
   std::string chips;
   std::string plugin;
   std::vector< std::string > toggles;
   bool json = false;
};

int statusOf( std::vector< Verdict > const & verdicts ) {
   auto const has = [&]( Verdict::Kind kind ) {
      return std::ranges::any_of( verdicts, [&]( Verdict const & it ) { return it.kind == kind; } );
   };
   return has( Verdict::Kind::fault ) ? foundAFault : has( Verdict::Kind::fine ) ? 0 : judgedNothing;
}

int answer( Options const & options ) {
   Scenario scenario = options.scenario.empty() ? builtInScenario() : readScenario( options.scenario );
   for ( auto const & toggle : options.toggles ) {
      toggleIs( scenario.description.toggles, toggle );
   }
   ChipsFile const chips = options.chips.empty() ? ChipsFile() : readChips( options.chips );
   loadPlugin( options.plugin );
   Simulator::SimulatedSwitch sw( scenario.description );
   play( scenario, sw );
   fillWith( sw, scenario, options.chips, chips );

   auto const verdicts = verdictsOf( sw );
   if ( options.json ) {
      std::cout << toJson( Rex::Value::Object{ { "verifications", verdictsValue( verdicts ) } }, 2 ) << '\n';
   } else {
      showVerdicts( std::cout, verdicts, Style::of( std::cout ) );
   }
   return statusOf( verdicts );
}

} // namespace

Action defineCheck( VerbOptions & verb ) {
   auto const options = std::make_shared< Options >();
   verb.text(
      "scenario", options->scenario, "the scenario to play; without one, the built-in example", "SCENARIO.json" );
   verb.text( "--chips", options->chips, "verify with these contents on the chips", "FILE" );
   verb.repeated( "--toggle", options->toggles, "set a toggle; may be given several times", "FILE:NAME=on|off" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer( "Exit status: 0 fine, 1 a fault was found, 3 nothing could be judged." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
