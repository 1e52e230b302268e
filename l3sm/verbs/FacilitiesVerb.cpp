#include "inspection/Facilities.h"
#include "inspection/files/Json.h"
#include "inspection/views/Terminal.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <map>
#include <memory>

namespace Cli {

using namespace Inspection;

namespace {

struct FacilitiesOptions {
   std::string facility;
   bool json = false;
};

void list( std::ostream & out, Style const & style ) {
   Columns columns;
   columns.row( { style.faint( "facility" ), style.faint( "levels, with the number of texts of each" ) } );
   for ( std::string const & facility : knownFacilities() ) {
      std::map< int, int > counts;
      for ( KnownTrace const & trace : tracesOf( facility ) ) {
         ++counts[trace.level];
      }
      std::string levels;
      for ( auto const & [level, count] : counts ) {
         levels += ( levels.empty() ? "" : "  " ) + style.strong( std::to_string( level ) ) + " " +
                   style.faint( "(" + std::to_string( count ) + ")" );
      }
      columns.row( { facility, levels } );
   }
   columns.print( out );
   out << "\n`l3sm facilities FACILITY` tells what each level says; `l3sm run --trace FACILITY/LEVEL` shows it, with "
          "all "
          "levels below\n";
}

void show( std::ostream & out, std::string const & facility, Style const & style ) {
   Columns columns;
   columns.row( { style.faint( "level" ), style.faint( "tells" ), style.faint( "source" ) } );
   for ( KnownTrace const & trace : tracesOf( facility ) ) {
      columns.row( { std::to_string( trace.level ), std::string( trace.text ), style.faint( trace.source ) } );
   }
   columns.rightAlign( 0 );
   columns.print( out );
}

int answer( FacilitiesOptions const & options ) {
   auto const facilities = options.facility.empty() ? knownFacilities() : std::vector{ options.facility };
   if ( options.json ) {
      std::cout << toJson( tracesValue( facilities ), 4 ) << '\n';
   } else if ( options.facility.empty() ) {
      list( std::cout, Style::of( std::cout ) );
   } else {
      show( std::cout, options.facility, Style::of( std::cout ) );
   }
   return 0;
}

} // namespace

Action defineFacilities( VerbOptions & verb ) {
   auto const options = std::make_shared< FacilitiesOptions >();
   verb.text( "FACILITY", options->facility, "tell what each level of this facility says; without it, list all" );
   verb.flag( "--json", options->json, "for programs" );
   return [options] { return answer( *options ); };
}

} // namespace Cli
