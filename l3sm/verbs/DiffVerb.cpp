// The verb `diff`: two chip-contents files, entry by entry and field by field.
#include "inspection/ChipDifferences.h"
#include "inspection/NamesAsTyped.h"
#include "inspection/views/Progress.h"
#include "l3sm/verbs/Verbs.h"

#include <algorithm>
#include <iostream>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

struct Options {
   std::string a;
   std::string b;
   std::vector< std::string > tables;
   std::optional< U16 > fap;
   bool json = false;
};

int answer( Options const & options ) {
   for ( std::string const & table : options.tables ) {
      tableNamed( table );
   }
   Progress progress( "reading files" );
   auto const chipsA = readChips( options.a );
   progress.stands( 1, 2 );
   auto const chipsB = readChips( options.b );
   progress.stands( 2, 2 );
   if ( options.fap && !chipsA.contains( *options.fap ) && !chipsB.contains( *options.fap ) ) {
      throw InputError( "neither file has a FAP " + std::to_string( *options.fap ) );
   }
   auto all = differencesOf( chipsA, chipsB );
   std::erase_if( all, [&]( Difference const & it ) {
      bool const isTable =
         options.tables.empty() || std::ranges::find( options.tables, it.table ) != options.tables.end();
      return !isTable || ( options.fap && *options.fap != it.fap );
   } );
   if ( options.json ) {
      std::cout << toJson( Rex::Value::Object{ { "differences", differencesValue( all ) } }, 2 ) << '\n';
   } else {
      showDifferences( std::cout, all, options.a, options.b, Style::of( std::cout ) );
   }
   return all.empty() ? 0 : 1;
}

} // namespace

Action defineDiff( VerbOptions & verb ) {
   auto const options = std::make_shared< Options >();
   verb.required( "A", options->a, "a file that `l3sm run --chips` wrote" );
   verb.required( "B", options->b, "another" );
   verb.texts( "--table", options->tables, "only these tables" );
   verb.number( "--fap", options->fap, "only this FAP" );
   verb.flag( "--json", options->json, "for programs" );
   verb.footer( "Exit status: 0 no difference, 1 there are some." );
   return [options] { return answer( *options ); };
}

} // namespace Cli
