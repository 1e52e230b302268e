#include "inspection/Play.h"
#include "inspection/RunValue.h"
#include "inspection/files/ChipsFile.h"
#include "inspection/files/JournalWriter.h"
#include "inspection/files/OutputFile.h"
#include "inspection/report/Report.h"
#include "inspection/views/Summary.h"
#include "l3sm/Tracing.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>
#include <sstream>

namespace Cli {

using namespace Inspection;

namespace {

struct Options {
   std::string scenario;
   std::string chips;
   std::string journal;
   std::string state;
   std::string report;
   std::string trace;
   std::string traceOut;
   std::vector< std::string > toggles;
   std::string plugin;
   bool quiet = false;
   bool json = false;
};

int run( Options const & options ) {
   if ( options.quiet && options.json ) {
      throw InputError( "--quiet prints nothing and --json does; give one of them" );
   }
   Scenario scenario = options.scenario.empty() ? builtInScenario() : readScenario( options.scenario );
   for ( auto const & toggle : options.toggles ) {
      toggleIs( scenario.description.toggles, toggle );
   }
   OutputFile const chips( options.chips );
   OutputFile const state( options.state );
   OutputFile const journal( options.journal );
   OutputFile const report( options.report );
   eachAlone( { options.scenario, options.chips, options.state, options.journal, options.report, options.traceOut } );
   Tracing tracing( options.trace, options.traceOut );
   loadPlugin( options.plugin );
   tracing.start();

   scenario.description.journalled = Simulator::SwitchDescription::Journalled::streamed;
   Simulator::SimulatedSwitch sw( scenario.description );
   std::optional< JournalWriter > writer;
   if ( journal.isWanted() ) {
      writer.emplace( options.journal, JournalWriter::Begin{ scenario.begin() } );
      sw.journal().readerAdd( *writer );
   }
   KeptRows rows;
   sw.journal().readerAdd( rows );
   play( scenario, sw );
   sw.journal().ends( Simulator::Ending::Kind::complete );
   tracing.flush();

   if ( chips.isWanted() ) {
      std::ostringstream text;
      writeChips( text, chipsOf( sw ) );
      chips.write( text.str() );
   }
   if ( state.isWanted() ) {
      state.write( toJson( sw.state().value(), 2 ) + "\n" );
   }
   if ( report.isWanted() ) {
      report.write( reportOf( scenario, sw, rows ) );
   }
   if ( options.json ) {
      std::cout << toJson( runValue( scenario, sw, rows ), 3 ) << '\n';
   } else if ( !options.quiet ) {
      writeSummary( std::cout, scenario, sw, rows );
   }
   return 0;
}

} // namespace

Action defineRun( VerbOptions & verb ) {
   auto const options = std::make_shared< Options >();
   verb.text(
      "scenario", options->scenario, "the scenario to play; without one, the built-in example", "SCENARIO.json" );
   verb.text( "--chips", options->chips, "write the contents of the chips at the end", "FILE" );
   verb.text( "--journal", options->journal, "write every driver operation, one JSON object a line", "FILE" );
   verb.text( "--state", options->state, "write the state tree at the end", "FILE" );
   verb.text( "--report", options->report, "write a page that shows the run in a browser", "FILE.html" );
   verb.text(
      "--trace", options->trace, "trace facilities up to a level; `*` for every facility", "FACILITY/LEVEL[,...]" );
   verb.text( "--trace-out", options->traceOut, "write the traces there instead of to standard error", "FILE" );
   verb.repeated( "--toggle", options->toggles, "set a toggle; may be given several times", "FILE:NAME=on|off" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   verb.flag( "--quiet", options->quiet, "print no summary" );
   verb.flag( "--json", options->json, "the summary, for programs" );
   return [options] { return run( *options ); };
}

} // namespace Cli
