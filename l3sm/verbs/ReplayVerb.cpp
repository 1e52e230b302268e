// The verb `replay`: applies the writes of a journal to a fresh switch, or plays a recording again, and compares.
#include "agent/recording/RecordedRunText.h"
#include "inspection/Play.h"
#include "inspection/Replay.h"
#include "inspection/Version.h"
#include "inspection/files/FileKind.h"
#include "inspection/files/OutputFile.h"
#include "inspection/files/RecordingFolder.h"
#include "inspection/files/ScenarioText.h"
#include "inspection/views/ReplayText.h"
#include "l3sm/verbs/Verbs.h"

#include <filesystem>
#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

struct ReplayOptions {
   ReplayQuestion question;
   std::string out;
   std::string toScenario;
   std::string plugin;
   bool json = false;
};

bool isRecording( std::string const & path ) {
   return std::filesystem::is_directory( path ) || segmentOf( path ) || kindOfFile( path ) == FileKind::recording;
}

int toScenario( ReplayOptions const & options, std::string const & recording ) {
   OutputFile const file( options.toScenario );
   eachAlone( { options.toScenario }, { recording } );
   std::vector< std::string > remarks;
   auto const scenario = Live::scenarioOfRecording( recording, remarks );
   for ( auto const & remark : remarks ) {
      std::cerr << "l3sm: " << printable( remark ) << '\n';
   }
   file.write( scenarioText( scenario ) );
   return 0;
}

int replayRecording( ReplayOptions const & options ) {
   std::string const & recording = options.question.journal;
   for ( auto const & [name, value] : { std::pair( "--chips", &options.question.chips ),
                                        std::pair( "--scenario", &options.question.scenario ),
                                        std::pair( "--out", &options.out ) } ) {
      if ( !value->empty() ) {
         throw InputError( name, "is for journals, not for recordings" );
      }
   }
   std::string const plugin = options.plugin.empty() ? pluginBeside() : options.plugin;
   loadPlugin( plugin );
   if ( !options.toScenario.empty() ) {
      return toScenario( options, recording );
   }
   auto const run = Live::recordedRunOf( recording, libraryId( plugin ).value_or( "" ) );
   if ( options.json ) {
      std::cout << toJson( Live::valueOf( run ), 2 ) << '\n';
   } else {
      Live::showRecordedRun( std::cout, run, Style::of( std::cout ) );
   }
   return run.isAlike() ? 0 : 1;
}

int answer( ReplayOptions const & options ) {
   if ( isRecording( options.question.journal ) ) {
      return replayRecording( options );
   }
   if ( !options.toScenario.empty() || !options.plugin.empty() ) {
      throw InputError( options.toScenario.empty() ? "--plugin" : "--to-scenario",
                        "is for recordings, not for journals" );
   }
   OutputFile const out( options.out );
   eachAlone( { options.question.journal, options.question.chips, options.question.scenario, options.out } );
   auto const replay = replayOf( options.question, out );
   if ( options.json ) {
      std::cout << toJson( valueOf( replay ), 2 ) << '\n';
   } else {
      showReplay( std::cout, replay, options.question.chips, Style::of( std::cout ) );
   }
   return replay.isAlike() ? 0 : 1;
}

} // namespace

Action defineReplay( VerbOptions & verb ) {
   auto const options = std::make_shared< ReplayOptions >();
   verb.required(
      "JOURNAL",
      options->question.journal,
      "a file that `l3sm run --journal` wrote, or a recording of `l3sm serve --record`, a segment or all of "
      "a folder" );
   verb.text( "--chips", options->question.chips, "compare with this file of `l3sm run --chips`", "FILE" );
   verb.text( "--scenario",
              options->question.scenario,
              "begin with the chip contents of this scenario, where the journal doesn't tell them",
              "FILE" );
   verb.text( "--out", options->out, "write the contents of the chips", "FILE" );
   verb.text( "--to-scenario", options->toScenario, "of a recording: write the scenario that does the same", "FILE" );
   verb.text( "--plugin",
              options->plugin,
              "of a recording: the plug-in's library; the default lies beside this program",
              "PATH" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer(
      "Of a journal every read, and what every write found before it, is compared. A journal of format 1 doesn't tell "
      "what its run "
      "began with: a place that is read before it is written began with what was read. A recording is played event by "
      "event, and the first one whose driver operations differ in number or hash is named. Exit status: 0 alike, 1 "
      "something differs." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
