// The verb `diff`: two files that tell of chips or of state, entry by entry and field by field.
#include "inspection/FileDifferences.h"
#include "inspection/files/FileKind.h"
#include "inspection/views/DifferencesText.h"
#include "l3sm/AgentFiles.h"
#include "l3sm/verbs/Verbs.h"

#include <algorithm>
#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

constexpr std::size_t mostEvents = 2;

struct DiffOptions {
   std::string a;
   std::string b;
   std::vector< std::string > agents;
   AgentOptions agent; // how they are asked
   std::vector< std::string > at;
   std::vector< std::string > tables;
   TypedPlace place;
   std::optional< U16 > fap;
   bool stat = false;
   bool all = false;
   bool json = false;
};

U32 eventNamed( std::string const & typed ) {
   try {
      return Rex::Codec< U32 >::fromKey( typed );
   } catch ( Rex::ValueError const & ) {
      throw InputError( "--at " + typed, "is no event; events have numbers, 0 for the start" );
   }
}

// Agents come before files. What one is asked for is what the other side tells of.
void askAgents( DiffOptions & options ) {
   if ( options.agents.empty() ) {
      if ( options.a.empty() ) {
         missing( "diff", "A" );
      }
      return;
   }
   std::vector< std::string > files;
   std::ranges::copy_if( std::vector{ options.a, options.b }, std::back_inserter( files ), [&]( auto const & file ) {
      return !file.empty();
   } );
   if ( options.agents.size() + files.size() != 2 ) {
      throw InputError( "there are two sides; an agent, by --agent, is one of them" );
   }
   if ( !options.at.empty() && ( files.empty() || kindOfFile( files[0] ) != FileKind::journal ) ) {
      throw InputError( "--at asks for an event of a journal; an agent tells of what stands there now" );
   }
   bool const isState = !files.empty() && kindOfFile( files[0] ) == FileKind::state;
   ContentsFilter const filter( options.tables, options.place, options.fap );
   std::vector< std::string > sides;
   for ( auto const & agent : options.agents ) {
      AgentOptions const asked{ agent, options.agent.timeout };
      sides.push_back( isState ? asked.state() : asked.chips( filter ) );
   }
   sides.insert( sides.end(), files.begin(), files.end() );
   options.a = sides[0];
   options.b = sides[1];
}

int answer( DiffOptions options ) {
   askAgents( options );
   DiffQuestion question{ .a = options.a,
                          .b = options.b,
                          .filter = ContentsFilter( options.tables, options.place, options.fap ),
                          .countsOnly = options.stat };
   for ( auto const & event : options.at ) {
      question.events.push_back( eventNamed( event ) );
   }
   if ( question.events.size() > mostEvents ) {
      throw InputError( "--at is given " + std::to_string( question.events.size() ) + " times; there are two sides" );
   }
   auto const differences = differencesOf( question );
   if ( options.json ) {
      std::cout << toJson( valueOf( differences, options.stat ), 2 ) << '\n';
   } else {
      showDifferences( std::cout,
                       differences,
                       options.stat  ? DifferencesShown::counts
                       : options.all ? DifferencesShown::all
                                     : DifferencesShown::first,
                       Style::of( std::cout ) );
   }
   return differences.isAlike() ? 0 : 1;
}

} // namespace

Action defineDiff( VerbOptions & verb ) {
   auto const options = std::make_shared< DiffOptions >();
   verb.text(
      "A", options->a, "a file that `l3sm run` wrote with --chips, --journal, --state or --save; `-`: standard input" );
   verb.text( "B", options->b, "another; of a journal alone, two of its events are compared: --at EVENT --at EVENT" );
   verb.repeated( "--agent", options->agents, "a running agent as the first side; given twice: as both", "SLICE" );
   verb.number( "--timeout", options->agent.timeout, "of an agent: seconds in which it says nothing; 10 without it" );
   verb.repeated( "--at",
                  options->at,
                  "of a journal: what stood there when this event was over, not at its end; given twice: of each side",
                  "EVENT" );
   verb.texts( "--table", options->tables, "only these: TABLE, TABLE.FIELD, `controls` or control.NUMBER", "TABLE" );
   verb.number( "--fap", options->fap, "only this FAP" );
   verb.number( "--variant", options->place.variant, "only this variant" );
   verb.number( "--array", options->place.array, "only this array index" );
   verb.number( "--entry", options->place.entry, "only this entry" );
   verb.flag( "--stat", options->stat, "count by table" );
   verb.flag( "--all", options->all, "every place that differs" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer( "A chips file and a journal can be compared with each other. Exit status: 0 no difference, 1 there are "
                "some." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
