// The verb `report`: the page of a run, from its journal, or of a scenario that is played for it.
#include "inspection/Play.h"
#include "inspection/files/JournalReader.h"
#include "inspection/files/OutputFile.h"
#include "inspection/report/Report.h"
#include "inspection/views/Terminal.h"
#include "l3sm/ScenarioToPlay.h"
#include "l3sm/verbs/Verbs.h"

#include <array>
#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

struct ReportOptions {
   std::string file;
   std::string out;
   std::string plugin;
   std::vector< std::string > toggles;
};

// A journal has an object with "op" on each line; an empty file can't be told, and is reported as no journal.
bool isJournal( std::string const & path ) {
   if ( isCompressedName( path ) ) {
      return true;
   }
   ByteSource source( path );
   std::array< char, 256 > buffer{};
   std::string_view const start( buffer.data(), source.read( buffer ) );
   auto const line = start.substr( 0, start.find( '\n' ) );
   return start.empty() || line.find( "\"op\"" ) != std::string_view::npos;
}

void fromJournal( ReportOptions const & options, OutputFile const & out ) {
   JournalReader journal( options.file );
   ReportData data( journal.scenario() );
   journal.read( data );
   for ( std::string const & remark : journal.remarks() ) {
      std::cerr << "l3sm: " << printable( remark ) << '\n';
   }
   out.write( reportOf( data, journal.remarks() ) );
}

void fromScenario( ReportOptions const & options, OutputFile const & out ) {
   Scenario scenario = scenarioToPlay( options.file, options.toggles, options.plugin );
   scenario.description.journalled = Simulator::SwitchDescription::Journalled::streamed;
   ReportFile page( out, valueOf( scenario, Parts::withoutEvents ) );
   Simulator::SimulatedSwitch sw( scenario.description );
   sw.journal().readerAdd( page );
   play( scenario, sw );
   sw.journal().ends( Simulator::Ending::Kind::complete );
}

int answer( ReportOptions const & options ) {
   if ( options.out.empty() ) {
      throw InputError( "say where to write the page: l3sm report " + options.file + " -o PAGE.html" );
   }
   OutputFile const out( options.out );
   eachAlone( { options.file, options.out } );
   if ( !isJournal( options.file ) ) {
      fromScenario( options, out );
   } else if ( !options.toggles.empty() ) {
      throw InputError( options.file, "is a journal, whose toggles are what they were; --toggle needs a scenario" );
   } else {
      fromJournal( options, out );
   }
   return 0;
}

} // namespace

Action defineReport( VerbOptions & verb ) {
   auto const options = std::make_shared< ReportOptions >();
   verb.required( "FILE", options->file, "a file that `l3sm run --journal` wrote, or a scenario, which is played" );
   verb.text( "-o,--out", options->out, "the page", "PAGE.html" );
   verb.repeated( "--toggle", options->toggles, "set a toggle of the scenario", "FILE:NAME=on|off" );
   verb.text( "--plugin", options->plugin, "the plug-in's library; the default lies beside this program", "PATH" );
   verb.footer( "A journal that is cut, or that an assertion has ended, is shown up to there, and the page says so." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
