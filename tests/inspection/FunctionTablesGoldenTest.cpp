// The catalogue tells which functions touch a table from a list in the source. It holds what the examples show: they
// are played here, and ./dev golden writes the list anew.
#include "l3sm/Command.h"
#include "inspection/FunctionTables.h"

#include <gtest/gtest.h>
#include <set>

namespace {

namespace fs = std::filesystem;

fs::path const source = L3SM_SOURCE_DIR;
fs::path const list = source / "inspection/KnownFunctionTables.cpp";

std::vector< Inspection::JournalFile > journalsOfTheExamples() {
   std::set< fs::path > examples;
   for ( auto const & example : fs::directory_iterator( source / "examples" ) ) {
      examples.insert( example.path() );
   }
   std::vector< Inspection::JournalFile > journals;
   for ( fs::path const & example : examples ) {
      Command const l3sm( "run '" + example.string() + "' --quiet --journal journal" );
      EXPECT_EQ( l3sm.status, 0 ) << example << l3sm.errors;
      journals.push_back( Inspection::readJournal( ( l3sm.folder / "journal" ).string() ) );
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
   std::string const before = contentsOf( list );
   std::string const first = "touches[] = {\n";
   auto const begin = before.find( first ) + first.size();
   std::string const after = before.substr( 0, begin ) + rows + before.substr( before.find( "   };\n", begin ) );
   if ( std::getenv( "L3SM_GOLDEN_WRITE" ) && after != before ) {
      std::ofstream( list ) << after;
      return;
   }
   EXPECT_EQ( after, before ) << "To write inspection/KnownFunctionTables.cpp anew: ./dev golden";
}

} // namespace
