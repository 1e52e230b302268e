#include "l3sm/CommandLine.h"

#include "inspection/files/InputError.h"
#include "inspection/files/Json.h"
#include "inspection/views/Pager.h"
#include "inspection/views/Terminal.h"
#include "inspection/views/VersionText.h"
#include "l3sm/Completion.h"
#include "l3sm/verbs/Verbs.h"
#include "rex/Nearest.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

constexpr int wrongUsage = 2;

struct Verb {
   char const * name;
   char const * does;
   Action ( *define )( VerbOptions & );
};

constexpr Verb verbs[] = {
   { "run", "boot a simulated switch, load the plug-in, play a scenario, tell what is on the chips", defineRun },
   { "new", "write a scenario to start from: chips, and the state and events of some subjects", defineNew },
   { "catalogue", "the chip tables: geometry, addresses, and where their fields lie", defineCatalogue },
   { "constants",
     "what the platform stands in for: context numbers, action words, well-known numbers",
     defineConstants },
   { "show", "chip contents, decoded by field", defineShow },
   { "diff",
     "two files of a kind (chips, journals, states, saved scenarios), entry by entry, field by field",
     defineDiff },
   { "why", "which operation wrote it, where in the source, on which cause", defineWhy },
   { "report", "the page that shows a run in a browser, from its journal or from a scenario", defineReport },
   { "compare", "one scenario on every kind of chip, and with each toggle flipped alone", defineCompare },
   { "replay",
     "apply the writes of a journal to a fresh switch, or play a recording again, and compare",
     defineReplay },
   { "plan", "what a start and the events of a scenario would change, without changing anything", definePlan },
   { "check", "play a scenario and verify what can be verified on the chips afterwards", defineCheck },
   { "bisect", "the event of a run since which a field has a value", defineBisect },
   { "explore", "reach a scenario's last state by other roads: which entries remember the road", defineExplore },
   { "coverage", "which tables, fields and values on which chips runs have written", defineCoverage },
   { "paths", "the state by path: attributes, what they take, defaults, whom they reach", definePaths },
   { "schema", "the JSON Schema of a scenario, for editors and validators", defineSchema },
   { "toggles", "the toggles: file, default, and which functions read them", defineToggles },
   { "facilities", "the trace facilities, and what each level tells", defineFacilities },
   { "serve",
     "be the agent of a slice: follow the state in a database, program the chips, until told to end",
     defineServe },
   { "state", "the state in a central database that agents follow: look at it, change it, wait for them", defineState },
   { "ctl", "ask a running agent how it is doing, and tell it what to do", defineCtl },
};

int failed( std::string const & text ) {
   std::cerr << "l3sm: " << printable( text ) << std::endl;
   return wrongUsage;
}

int unknownVerb( std::string const & word ) {
   std::vector< std::string > names;
   for ( auto const & verb : verbs ) {
      names.emplace_back( verb.name );
   }
   auto const remedy = Rex::didYouMean( word, names );
   return failed( "there is no verb \"" + word + "\"" + ( remedy.empty() ? "; l3sm --help lists them" : remedy ) );
}

// For the scripts in completions/, not for people: no help lists it.
constexpr char const * completeVerb = "complete";

// `l3sm help VERB` is `l3sm VERB --help`, and `l3sm help` is `l3sm --help`.
std::vector< char const * > withoutHelpVerb( std::vector< std::string > const & typed ) {
   std::vector< char const * > words;
   for ( auto const & word : typed ) {
      words.push_back( word.c_str() );
   }
   if ( typed.size() > 1 && typed[1] == "help" ) {
      words.erase( words.begin() + 1 );
      words.resize( std::min< std::size_t >( words.size(), 2 ) );
      words.push_back( "--help" );
   }
   return words;
}

bool isVerb( std::string const & word ) {
   return word == completeVerb ||
          std::any_of( std::begin( verbs ), std::end( verbs ), [&]( Verb const & verb ) { return word == verb.name; } );
}

} // namespace

void defineCommandLine( CLI::App & app, Action & action ) {
   app.name( "l3sm" );
   app.description( "l3sm: programs simulated chips with the layer-3 unicast plug-in, and shows them." );
   app.require_subcommand( 1 );
   auto const json = std::make_shared< bool >( false );
   app.add_flag( "--json", *json, "with --version: for programs" );
   app.set_version_flag(
      "--version",
      [json] { return *json ? toJson( versionValue( thisVersion() ), 1 ) : versionText( thisVersion() ); },
      "which program this is: version, build, and the plug-in's library" );
   app.footer(
      "`l3sm help VERB` explains a verb.\nExit status: 0 fine, 1 the answer is \"no\", 2 wrong usage or input, "
      "3 nothing could be judged." );
   for ( auto const & verb : verbs ) {
      auto * const sub = app.add_subcommand( verb.name, verb.does );
      VerbOptions options( *sub );
      sub->callback( [&action, does = verb.define( options )] { action = does; } );
      sub->add_flag_callback( "--no-pager", Pager::off, "on a terminal, don't page what is longer than the screen" );
   }
   auto * const complete = app.add_subcommand( completeVerb, "what can follow on a line that is being typed" );
   complete->group( "" );
   auto const words = std::make_shared< std::vector< std::string > >();
   takesWordsAsTyped( *complete->add_option( "words", *words ) );
   complete->callback( [&app, &action, words] {
      action = [&app, words] {
         writeCompletion( std::cout, app, *words );
         return 0;
      };
   } );
}

int commandLine( int argumentCount, char const * const * arguments ) {
   std::vector< std::string > typed( arguments, arguments + argumentCount );
   try {
      typed = withoutCtl( typed );
   } catch ( InputError const & error ) {
      std::ranges::for_each( error.lines(), failed );
      return wrongUsage;
   }
   auto const words = withoutHelpVerb( typed );
   int const argc = static_cast< int >( words.size() );
   char const * const * const argv = words.data();
   CLI::App app;
   Action action;
   defineCommandLine( app, action );
   if ( argc < 2 ) {
      return failed( "say what to do; l3sm --help lists the verbs" );
   }
   if ( argv[1][0] != '-' && !isVerb( argv[1] ) ) {
      return unknownVerb( argv[1] );
   }
   try {
      app.parse( argc, argv );
      int const status = [&] {
         Pager const pager;
         return action();
      }();
      std::cout.flush();
      return std::cout ? status : failed( "standard output can't be written" );
   } catch ( CLI::Success const & answer ) { // --help, --version
      return app.exit( answer );
   } catch ( CLI::ParseError const & error ) {
      std::string const verb = isVerb( argv[1] ) ? std::string( " " ) + argv[1] : "";
      return failed( std::string( error.what() ) + "; l3sm" + verb + " --help tells what there is" );
   } catch ( InputError const & error ) {
      std::ranges::for_each( error.lines(), failed );
      return wrongUsage;
   }
}

} // namespace Cli
