#include "agent/Daemon.h"
#include "inspection/Version.h"
#include "l3sm/ScenarioToPlay.h"
#include "l3sm/verbs/Verbs.h"

#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

struct Options {
   std::string file;
   std::string slice;
   std::optional< U32 > cell;
   std::string database;
   std::vector< std::string > toggles;
   std::string plugin;
};

int serve( Options const & options ) {
   Scenario scenario = scenarioToPlay( options.file, options.toggles, options.plugin );
   if ( !scenario.events.empty() ) {
      throw InputError( scenario.file + ": /events",
                        "an agent's events come from its database; leave them out, or play them: l3sm run" );
   }
   if ( !options.slice.empty() ) {
      scenario.description.sliceName = options.slice;
   }
   Live::Daemon daemon( { .scenario = std::move( scenario ),
                          .cell = options.cell.value_or( 1 ),
                          .database = options.database,
                          .version = std::string( versionNumber() ) } );
   return daemon.run();
}

} // namespace

Action defineServe( VerbOptions & verb ) {
   auto const options = std::make_shared< Options >();
   verb.required( "SWITCH.json", options->file, "switch, toggles, chips and state of a scenario, without events" );
   verb.text( "--slice", options->slice, "which slice it serves; the default stands in the file", "NAME" );
   verb.number( "--cell", options->cell, "whose state it follows; the default is 1" );
   verb.text(
      "--database", options->database, "where the state is; without one, the file's, changed by `l3sm ctl`", "URL" );
   verb.repeated( "--toggle", options->toggles, "set a toggle; may be given several times", "FILE:NAME=on|off" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   return [options] { return serve( *options ); };
}

} // namespace Cli
