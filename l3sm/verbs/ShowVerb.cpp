// The verb `show`: chip contents, from a chips file or a journal, decoded by field.
#include "inspection/FileContents.h"
#include "inspection/views/ContentsText.h"
#include "inspection/views/ReplayText.h"
#include "l3sm/AgentFiles.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

using Rex::Value;

struct Options {
   std::string file;
   AgentOptions agent;
   std::vector< std::string > parts;
   std::vector< std::string > tables; // likewise
   TypedPlace place;
   std::optional< U16 > fap;
   std::optional< U32 > at; // an event of a journal
   bool all = false;        // unset fields too
   bool json = false;
};

int showText( ContentsQuestion const & question, bool all ) {
   Style const style = Style::of( std::cout );
   bool isFirst = true;
   eachContents( question,
                 { .remarks = [&]( auto const & lines ) { showRemarks( std::cout, lines, style ); },
                   .fap =
                      [&]( U16 number, FapContents const & contents ) {
                         std::cout << ( isFirst ? "" : "\n" );
                         showContents( std::cout, number, contents, { question.filter, all }, style );
                         isFirst = false;
                      } } );
   if ( isFirst ) {
      std::cout << "no FAP\n";
   }
   return 0;
}

int showJson( ContentsQuestion const & question, bool all ) {
   Value::Object faps;
   Value::Object answer;
   eachContents( question,
                 { .remarks =
                      [&]( auto const & lines ) {
                         if ( !lines.empty() ) {
                            answer["remarks"] = Value::List( lines.begin(), lines.end() );
                         }
                      },
                   .fap =
                      [&]( U16 number, FapContents const & contents ) {
                         faps[std::to_string( number )] = contentsValue( contents, { question.filter, all } );
                      } } );
   answer["faps"] = std::move( faps );
   std::cout << toJson( answer, 7 ) << '\n';
   return 0;
}

int answer( Options const & options ) {
   auto parts = options.parts;
   if ( options.agent.isGiven() && !options.file.empty() ) {
      parts.insert( parts.begin(), options.file ); // the first place is no file then
   } else if ( !options.agent.isGiven() && options.file.empty() ) {
      missing( "show", "FILE" );
   }
   parts.insert( parts.end(), options.tables.begin(), options.tables.end() );
   ContentsQuestion question{
      .file = options.file, .event = options.at, .filter = ContentsFilter( parts, options.place, options.fap ) };
   if ( options.agent.isGiven() ) {
      question.file = options.agent.chips( question.filter );
   }
   return options.json ? showJson( question, options.all ) : showText( question, options.all );
}

} // namespace

Action defineShow( VerbOptions & verb ) {
   auto const options = std::make_shared< Options >();
   verb.text( "FILE", options->file, "a file that `l3sm run --chips` or `--journal` wrote; `-`: standard input" );
   verb.texts( "TABLE", options->parts, "only these: TABLE, TABLE.FIELD, `controls` or control.NUMBER" );
   verb.texts( "--table", options->tables, "the same", "TABLE" );
   verb.number( "--fap", options->fap, "only this FAP" );
   verb.number( "--variant", options->place.variant, "only this variant" );
   verb.number( "--array", options->place.array, "only this array index" );
   verb.number( "--entry", options->place.entry, "only this entry" );
   verb.number( "--at", options->at, "from a journal: what stood there when this event was over, not at its end" );
   options->agent.declare( verb );
   verb.flag( "--all", options->all, "unset fields too" );
   verb.flag( "--json", options->json, "for programs" );
   return [options] { return answer( *options ); };
}

} // namespace Cli
