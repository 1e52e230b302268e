#include "inspection/KnownToggles.h"
#include "inspection/files/Json.h"
#include "inspection/views/Terminal.h"
#include "l3sm/verbs/Verbs.h"

#include <iostream>
#include <memory>
#include <sstream>

namespace Cli {

using namespace Inspection;

namespace {

void list( std::ostream & out, Style const & style ) {
   Columns columns;
   columns.row(
      { style.faint( "toggle" ), style.faint( "file" ), style.faint( "default" ), style.faint( "read by" ) } );
   for ( KnownToggle const & toggle : knownToggles() ) {
      std::istringstream readers{ std::string( toggle.readers ) };
      std::string name( toggle.name );
      std::string file( toggle.file );
      std::string state = toggle.defaultState ? "on" : "off";
      for ( std::string reader; readers >> reader; ) {
         columns.row( { style.strong( name ), file, state, reader } );
         name.clear();
         file.clear();
         state.clear();
      }
   }
   columns.print( out );
   out << "\nFor a run: --toggle FILE:NAME=off; in a scenario: \"toggles\": {FILE: {NAME: false}}\n";
}

} // namespace

Action defineToggles( VerbOptions & verb ) {
   auto const json = std::make_shared< bool >( false );
   verb.flag( "--json", *json, "for programs" );
   return [json] {
      if ( *json ) {
         std::cout << toJson( Rex::Value::Object{ { "toggles", knownTogglesValue() } }, 3 ) << '\n';
      } else {
         list( std::cout, Style::of( std::cout ) );
      }
      return 0;
   };
}

} // namespace Cli
