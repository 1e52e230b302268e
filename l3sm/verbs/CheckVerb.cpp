// The verb `check`: plays a scenario and verifies what can be verified: what the plug-in can read back, that a second
// start changes nothing, that no entry passes through a value that it doesn't keep, and that the chips hold what was
// written to them.
#include "inspection/Play.h"
#include "inspection/views/AuditText.h"
#include "inspection/views/RestartText.h"
#include "inspection/views/VerdictsText.h"
#include "inspection/views/WindowsText.h"
#include "l3sm/ScenarioToPlay.h"
#include "l3sm/verbs/Verbs.h"

#include <algorithm>
#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

constexpr int foundAFault = 1;
constexpr int judgedNothing = 3;
constexpr std::size_t fewWindows = 20;
constexpr std::size_t fewWrong = 20; // places of chips

struct CheckOptions {
   std::string scenario;
   std::string chips;
   std::string plugin;
   std::vector< std::string > toggles;
   bool restart = false;
   bool windows = false;
   bool audit = false;
   bool all = false;
   bool json = false;
};

int statusOf( std::vector< Verdict > const & verdicts ) {
   auto const has = [&]( Verdict::Kind kind ) {
      return std::ranges::any_of( verdicts, [&]( Verdict const & it ) { return it.kind == kind; } );
   };
   return has( Verdict::Kind::fault ) ? foundAFault : has( Verdict::Kind::fine ) ? 0 : judgedNothing;
}

int readBack( Scenario const & scenario, CheckOptions const & options ) {
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

int startAgain( Scenario const & scenario, CheckOptions const & options ) {
   Restart const restart = restartAfter( scenario, options.plugin );
   if ( options.json ) {
      std::cout << toJson( Rex::Value::Object{ { "restart", restartValue( restart ) } }, 4 ) << '\n';
   } else {
      showRestart( std::cout, restart, options.all, Style::of( std::cout ) );
   }
   return restart.plan.isEmpty() ? 0 : foundAFault;
}

int lookForWindows( Scenario const & scenario, CheckOptions const & options ) {
   PassingValues windows;
   planOf( scenario, options.plugin, { .others = { &windows } } );
   if ( options.json ) {
      std::cout << toJson( Rex::Value::Object{ { "windows", windowsValue( windows.all() ) } }, 3 ) << '\n';
   } else if ( windows.all().empty() ) {
      std::cout << "No field passes through a value that it doesn't keep.\n";
   } else {
      std::cout << counted( windows.all().size(), "field passes", "fields pass" )
                << " through a value that the event doesn't keep:\n";
      showWindows( std::cout, windows.all(), options.all ? 0 : fewWindows, Style::of( std::cout ) );
   }
   return 0;
}

// What the scenario's faults have left on the chips that the plug-in hasn't written.
int auditChips( Scenario const & scenario, CheckOptions const & options ) {
   ChipsAudit const audit = auditAfter( scenario, options.plugin );
   if ( options.json ) {
      std::cout << toJson( auditValue( audit ), 3 ) << '\n';
   } else {
      showAudit( std::cout, audit, options.all ? 0 : fewWrong );
   }
   return audit.isFine() ? 0 : foundAFault;
}

int answer( CheckOptions const & options ) {
   if ( options.audit && ( options.restart || options.windows || !options.chips.empty() ) ) {
      throw InputError( "--audit plays the scenario with its faults; leave --restart, --windows and --chips out" );
   }
   if ( options.restart && options.windows ) {
      throw InputError( "--restart tells the windows of a second start, --windows those of the run; give one of them" );
   }
   if ( ( options.restart || options.windows ) && !options.chips.empty() ) {
      throw InputError( "--chips is for what is read back; --restart and --windows play the scenario as it is" );
   }
   Scenario const scenario = scenarioToPlay( options.scenario, options.toggles, options.plugin );
   return options.audit     ? auditChips( scenario, options )
          : options.restart ? startAgain( scenario, options )
          : options.windows ? lookForWindows( scenario, options )
                            : readBack( scenario, options );
}

} // namespace

Action defineCheck( VerbOptions & verb ) {
   auto const options = std::make_shared< CheckOptions >();
   verb.text(
      "scenario", options->scenario, "the scenario to play; without one, the built-in example", "SCENARIO.json" );
   verb.text( "--chips", options->chips, "verify with these contents on the chips", "FILE" );
   verb.flag( "--restart", options->restart, "start the plug-in a second time, and tell what that changes" );
   verb.flag( "--windows", options->windows, "tell the fields that pass through a value they don't keep" );
   verb.flag( "--audit", options->audit, "compare what the chips hold with what was written, faults and all" );
   verb.flag( "--all", options->all, "every one of them" );
   verb.repeated( "--toggle", options->toggles, "set a toggle; may be given several times", "FILE:NAME=on|off" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer( "Exit status: 0 fine, 1 a fault was found (with --restart: an entry ends as another), 3 nothing could "
                "be judged." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
