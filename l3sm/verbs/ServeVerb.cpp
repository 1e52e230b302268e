#include "agent/Daemon.h"
#include "inspection/Play.h"
#include "inspection/Version.h"
#include "l3sm/DatabaseOptions.h"
#include "l3sm/ScenarioToPlay.h"
#include "l3sm/verbs/Verbs.h"

#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

struct ServeOptions {
   std::string file;
   std::string slice;
   std::optional< U32 > cell;
   std::string database;
   Live::DatabaseCredentials credentials;
   std::string socket;
   std::string record;
   std::string metrics;
   std::string trace;
   std::optional< U32 > audit;
   std::string chipsFile;
   std::string onDrift;
   std::optional< U32 > faultSeed;
   std::vector< std::string > toggles;
   std::string plugin;
};

std::unique_ptr< Live::Daemon > daemonOf( Live::DaemonOptions const & options ) {
   try {
      return std::make_unique< Live::Daemon >( options );
   } catch ( Simulator::ChipsRefused const & refused ) {
      throw InputError( "--chips-file", refused.what() );
   }
}

int serve( ServeOptions const & options ) {
   if ( !options.onDrift.empty() && options.onDrift != "commit" && options.onDrift != "hold" ) {
      throw InputError( "--on-drift", "expected commit or hold, got \"" + options.onDrift + "\"" );
   }
   Scenario scenario = scenarioToPlay( options.file, options.toggles, options.plugin );
   if ( !scenario.events.empty() ) {
      throw InputError( scenario.file + ": /events",
                        "an agent's events come from its database; leave them out, or play them: l3sm run" );
   }
   if ( !options.slice.empty() ) {
      scenario.description.sliceName = options.slice;
   }
   std::string const plugin = options.plugin.empty() ? pluginBeside() : options.plugin;
   auto const daemon = daemonOf( { .scenario = std::move( scenario ),
                                   .cell = options.cell.value_or( 1 ),
                                   .database = options.database,
                                   .credentials = options.credentials,
                                   .socket = options.socket,
                                   .record = options.record,
                                   .metrics = options.metrics,
                                   .trace = options.trace,
                                   .audit = options.audit ? *options.audit : Live::DaemonOptions::usualAudit,
                                   .chipsFile = options.chipsFile,
                                   .isDriftHeld = options.onDrift == "hold",
                                   .faultSeed = options.faultSeed,
                                   .version = std::string( versionNumber() ),
                                   .plugin = libraryId( plugin ).value_or( "" ) } );
   return daemon->run();
}

} // namespace

Action defineServe( VerbOptions & verb ) {
   auto const options = std::make_shared< ServeOptions >();
   verb.required( "SWITCH.json", options->file, "switch, toggles, chips and state of a scenario, without events" );
   verb.text( "--slice", options->slice, "which slice it serves; the default stands in the file", "NAME" );
   verb.number( "--cell", options->cell, "whose state it follows; the default is 1" );
   verb.text(
      "--database", options->database, "where the state is; without one, the file's, changed by `l3sm ctl`", "URL" );
   defineCredentials( verb, options->credentials );
   verb.text( "--socket", options->socket, "where it is controlled; the default is /run/l3sm/SLICE.ctl", "PATH" );
   verb.text( "--record", options->record, "record what it is told there, so that it can be played again", "DIR" );
   verb.text( "--metrics",
              options->metrics,
              "tell its metrics in a file for the node exporter, or over HTTP on a loopback address",
              "PATH|ADDRESS:PORT" );
   verb.text(
      "--trace", options->trace, "which facilities to trace, FACILITY/LEVEL a line; SIGHUP has it read again", "FILE" );
   verb.number( "--audit",
                options->audit,
                "seconds in which all that the chips hold is compared with what was written; 60, and 0 for never" );
   verb.text( "--chips-file",
              options->chipsFile,
              "what the chips hold stands there, and is there for the next agent, however this one ends",
              "PATH" );
   verb.text( "--on-drift",
              options->onDrift,
              "what a start does with chips that it would program otherwise: commit, the default, or hold",
              "commit|hold" );
   verb.number( "--fault-seed", options->faultSeed, "let the chips fail now and then, by this seed" );
   verb.repeated( "--toggle", options->toggles, "set a toggle; may be given several times", "FILE:NAME=on|off" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   return [options] { return serve( *options ); };
}

} // namespace Cli
