// The verb `why`: which input led over which function to a write, a publication or a gate.
#include "inspection/Why.h"
#include "inspection/files/InputFile.h"
#include "inspection/files/Json.h"
#include "inspection/views/WhyText.h"
#include "l3sm/AgentFiles.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <limits>
#include <memory>
#include <utility>

namespace Cli {

using namespace Inspection;

namespace {

struct WhyOptions {
   std::string journal;
   AgentOptions agent;
   std::string subject;
   WhyFilter filter;
   std::optional< U32 > last;
   bool all = false;
   bool allGates = false;
   bool json = false;
};

// What an agent has forgotten can't be told.
void tellOfForgotten( WhyAnswer & answer, std::string const & journal ) {
   if ( auto const first = AgentOptions::reachesBackTo( journal ) ) {
      answer.remarks.insert( answer.remarks.begin(),
                             inputName( journal ) + ": remembers back to event " + std::to_string( *first ) +
                                "; what was before isn't told" );
   }
}

int answer( WhyOptions options ) {
   if ( options.agent.isGiven() && options.subject.empty() ) {
      options.subject = std::exchange( options.journal, {} ); // the first place is no journal then
   }
   if ( options.journal.empty() != options.agent.isGiven() ) {
      if ( options.agent.isGiven() ) {
         throw InputError( options.journal, "is one place too many: --agent stands for the journal" );
      }
      missing( "why", "JOURNAL" );
   }
   if ( options.subject.empty() ) {
      throw InputError( "SUBJECT is required; l3sm why --help tells what there is" );
   }
   WhySubject const subject = whySubjectOf( options.subject );
   TypedPlace const & place = options.filter.place;
   if ( subject.kind == WhySubject::Kind::part ) {
      checkPlace( *subject.part.table, place );
   } else if ( place.variant || place.array || place.entry ) {
      throw InputError( "--variant, --array and --entry are places of a table; " + subject.text() + " is none" );
   }
   WhyFilter filter = options.filter;
   if ( !filter.table.empty() ) {
      filter.table = tableNamed( filter.table ).name;
   }
   filter.events = options.all ? std::numeric_limits< std::size_t >::max() : options.last.value_or( filter.events );
   if ( options.agent.isGiven() ) {
      options.journal = options.agent.journal();
   }
   JournalReader journal( options.journal );
   WhyReader reader( subject, filter );
   WhyAnswer answer = whyOf( journal, reader );
   if ( options.agent.isGiven() ) {
      tellOfForgotten( answer, options.journal );
   }
   if ( options.json ) {
      std::cout << toJson( whyValue( answer ), 4 ) << '\n';
   } else {
      WhyShown const shown{ .everything = options.all || filter.event, .otherGates = options.allGates };
      writeWhy( std::cout, answer, shown, Style::of( std::cout ) );
   }
   return 0;
}

} // namespace

Action defineWhy( VerbOptions & verb ) {
   auto const options = std::make_shared< WhyOptions >();
   verb.text( "JOURNAL", options->journal, "a file that `l3sm run --journal` wrote" );
   verb.text( "SUBJECT",
              options->subject,
              "TABLE, TABLE.FIELD, TABLE.FIELD:BIT, control.NUMBER, PATH or PATH.ATTRIBUTE of the state, a function, "
              "or an interface" );
   options->agent.declare( verb );
   verb.number( "--fap", options->filter.fap, "only this FAP" );
   verb.number( "--variant", options->filter.place.variant, "only this variant" );
   verb.number( "--array", options->filter.place.array, "only this array index" );
   verb.number( "--entry", options->filter.place.entry, "only this entry" );
   verb.number( "--event", options->filter.event, "only this event, in full" );
   verb.number( "--at", options->filter.at, "as it stood when this event was over, not at the journal's end" );
   verb.text( "--function", options->filter.function, "only functions with this in their name" );
   verb.text( "--cause", options->filter.cause, "only causes with this in them" );
   verb.text( "--table", options->filter.table, "only what was done to this table" );
   verb.number( "--last", options->last, "the last events of the chain, as many" );
   verb.flag( "--all", options->all, "the whole chain" );
   verb.flag( "--gates", options->allGates, "every gate that was found closed" );
   verb.flag( "--json", options->json, "for programs" );
   return [options] { return answer( *options ); };
}

} // namespace Cli
