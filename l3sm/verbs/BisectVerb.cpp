// The verb `bisect`: the event of a run since which a field has a value.
#include "inspection/files/Json.h"
#include "inspection/views/BisectionText.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

constexpr int holdsNowhere = 1;

struct BisectOptions : BisectionFilter {
   std::string journal;
   std::string condition;
   bool all = false;
   bool json = false;
};

int answer( BisectOptions const & options ) {
   Condition const condition = conditionOf( options.condition );
   JournalReader journal( options.journal );
   Bisection const bisection = bisect( journal, condition, options );
   if ( options.json ) {
      std::cout << toJson( bisectionValue( bisection ), 2 ) << '\n';
   } else {
      showBisection( std::cout, bisection, options.all, Style::of( std::cout ) );
   }
   return bisection.holdings.empty() ? holdsNowhere : 0;
}

} // namespace

Action defineBisect( VerbOptions & verb ) {
   auto const options = std::make_shared< BisectOptions >();
   verb.required( "JOURNAL", options->journal, "a file that `l3sm run --journal` wrote" );
   verb.required( "CONDITION", options->condition, "TABLE.FIELD=VALUE, the value in decimal or after 0x" );
   verb.number( "--fap", options->fap, "only this FAP" );
   verb.number( "--variant", options->place.variant, "only this variant" );
   verb.number( "--array", options->place.array, "only this array index" );
   verb.number( "--entry", options->place.entry, "only this entry" );
   verb.flag( "--all", options->all, "every event and place" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer( "Exit status: 0 it holds at the end, 1 it holds nowhere." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
