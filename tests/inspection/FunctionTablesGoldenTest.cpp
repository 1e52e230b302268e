// The catalogue tells which functions touch a table from a list in the source. It holds what the examples show: they
// are played here, and ./dev golden writes the list anew.
#include "inspection/FunctionTables.h"
#include "inspection/GoldenList.h"
#include "l3sm/Command.h"

#include <set>

namespace {

namespace fs = std::filesystem;

fs::path const source = L3SM_SOURCE_DIR;

std::vector< Inspection::KeptRows > journalsOfTheExamples() {
   std::vector< Inspection::KeptRows > journals;
   for ( fs::path const & example : exampleScenarios() ) {
      Command const l3sm( "run '" + example.string() + "' --quiet --journal journal" );
      EXPECT_EQ( l3sm.status, 0 ) << example << l3sm.errors;
      journals.push_back( Inspection::rowsOf( ( l3sm.folder / "journal" ).string() ) );
   }
   return journals;
}

std::string rowOf( Inspection::Touch const & touch ) {
   auto const text = []( std::string const & of ) { return "\"" + of + "\", "; };
   return "      { " + text( touch.table ) + text( touch.function ) + text( touch.source ) +
          ( touch.reads ? "true, " : "false, " ) + ( touch.writes ? "true, \"" : "false, \"" ) + touch.fields +
          "\" },\n";
}

TEST( TouchesGolden, areWhatTheExamplesShow ) {
   auto const journals = journalsOfTheExamples();
   std::string rows;
   for ( auto const & table : Catalogue::tables() ) {
      for ( Inspection::Touch const & touch : touchesOf( table, journals ) ) {
         rows += rowOf( touch );
      }
   }
   for ( Inspection::Touch const & touch : controlTouches( journals ) ) {
      rows += rowOf( touch );
   }
   expectList( "inspection/KnownFunctionTables.cpp", "touches[] = {\n", rows );
}

TEST( ControlsGolden, areWhatTheExamplesShow ) {
   std::set< std::pair< U32, std::string > > controls;
   for ( auto const & journal : journalsOfTheExamples() ) {
      for ( auto const & row : journal.all() ) {
         if ( row.kind == Simulator::Row::Kind::control ) {
            controls.emplace( row.control, row.function );
         }
      }
   }
   std::string rows;
   for ( auto const & [number, function] : controls ) {
      rows += "      { " + std::to_string( number ) + ", \"" + function + "\" },\n";
   }
   expectList( "inspection/KnownControls.cpp", "controls[] = {\n", rows );
}

} // namespace
