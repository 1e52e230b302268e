// The verb `show`: chip contents, from a chips file or a journal, decoded by field; and the state, from a state file or
// a journal.
#include "inspection/FileContents.h"
#include "inspection/StateOfRun.h"
#include "inspection/StatePaths.h"
#include "inspection/views/ContentsText.h"
#include "inspection/views/ReplayText.h"
#include "inspection/views/StateText.h"
#include "l3sm/AgentFiles.h"
#include "l3sm/verbs/Verbs.h"

#include <algorithm>
#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

using Rex::Value;

struct ShowOptions {
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

constexpr int nothingThere = 1;

// `path`: as typed; empty: all.
std::vector< PathValue > askedState( ToldState const & told, std::string const & path ) {
   auto const isBelow = [&]( std::string const & it ) { return it == path || it.starts_with( path + "/" ); };
   auto found = partOf( told.paths, path );
   if ( found.empty() && std::ranges::none_of( statePaths(), isBelow, &StatePath::path ) && !statePathOf( path ) ) {
      statePathsNamed( path ); // InputError where there can't be anything
   }
   return found;
}

int showState( ShowOptions const & options, std::string const & file, std::vector< std::string > const & paths ) {
   ToldState const told = toldState( file, options.at );
   std::vector< PathValue > found;
   for ( std::string const & path : paths.empty() ? std::vector< std::string >{ "" } : paths ) {
      auto const part = askedState( told, path.substr( 0, path.find_last_not_of( '/' ) + 1 ) );
      found.insert( found.end(), part.begin(), part.end() );
   }
   if ( options.json ) {
      Value::Object answer;
      for ( PathValue const & it : found ) {
         answer[it.path] = it.value;
      }
      if ( !told.remarks.empty() ) {
         answer["remarks"] = Value::List( told.remarks.begin(), told.remarks.end() );
      }
      std::cout << toJson( answer, 3 ) << '\n';
   } else {
      showRemarks( std::cout, told.remarks, Style::of( std::cout ) );
      showState( std::cout, found );
      std::cout << ( found.empty() ? "nothing stands there\n" : "" );
   }
   return found.empty() ? nothingThere : 0;
}

int answer( ShowOptions const & options ) {
   auto parts = options.parts;
   if ( options.agent.isGiven() && !options.file.empty() ) {
      parts.insert( parts.begin(), options.file ); // the first place is no file then
   } else if ( !options.agent.isGiven() && options.file.empty() ) {
      missing( "show", "FILE" );
   }
   if ( !parts.empty() && parts.front() == "state" ) {
      parts.erase( parts.begin() );
      return showState( options, options.agent.isGiven() ? options.agent.state() : options.file, parts );
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
   auto const options = std::make_shared< ShowOptions >();
   verb.text(
      "FILE", options->file, "a file that `l3sm run --chips`, `--journal` or `--state` wrote; `-`: standard input" );
   verb.texts( "TABLE",
               options->parts,
               "only these: TABLE, TABLE.FIELD, `controls` or control.NUMBER; or `state`, and behind it paths of it" );
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
