#include "l3sm/ScenarioToPlay.h"

#include "inspection/Play.h"
#include "inspection/views/Terminal.h"

#include <iostream>

namespace Cli {

using namespace Inspection;

namespace {

constexpr std::size_t told = 20; // of many warnings

void tell( std::vector< Warning > const & warnings ) {
   for ( std::size_t index = 0; index < std::min( told, warnings.size() ); ++index ) {
      auto const & [place, text, event] = warnings[index];
      std::string const where = event ? "event " + std::to_string( *event ) + ": " : "";
      std::cerr << "l3sm: " << printable( place ) << ": warning: " << where << printable( text ) << '\n';
   }
   if ( warnings.size() > told ) {
      std::cerr << "l3sm: ... and " << warnings.size() - told << " more warnings\n";
   }
}

} // namespace

Scenario
scenarioToPlay( std::string const & file, std::vector< std::string > const & toggles, std::string const & plugin ) {
   loadPlugin( plugin );
   Scenario scenario = file.empty() ? builtInScenario() : readScenario( file );
   for ( auto const & toggle : toggles ) {
      toggleIs( scenario.description.toggles, toggle );
   }
   tell( scenario.warnings );
   return scenario;
}

} // namespace Cli
