// The verb `replay`: applies the writes of a journal to a fresh switch, and compares.
#include "inspection/Replay.h"
#include "inspection/files/OutputFile.h"
#include "inspection/views/ReplayText.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

struct Options {
   ReplayQuestion question;
   std::string out;
   bool json = false;
};

int answer( Options const & options ) {
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
   auto const options = std::make_shared< Options >();
   verb.required( "JOURNAL", options->question.journal, "a file that `l3sm run --journal` wrote" );
   verb.text( "--chips", options->question.chips, "compare with this file of `l3sm run --chips`", "FILE" );
   verb.text( "--scenario",
              options->question.scenario,
              "begin with the chip contents of this scenario, where the journal doesn't tell them",
              "FILE" );
   verb.text( "--out", options->out, "write the contents of the chips", "FILE" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer(
      "Every read, and what every write found before it, is compared. A journal of format 1 doesn't tell what its run "
      "began with: a place that is read before it is written began with what was read. Exit status: 0 alike, 1 "
      "something read or the contents differ." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
