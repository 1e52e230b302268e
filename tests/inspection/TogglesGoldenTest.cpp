// The list of toggles is what the sources of the plug-in say; ./dev golden writes it anew.
#include "inspection/KnownToggles.h"

#include "inspection/GoldenList.h"
#include "inspection/PluginSource.h"
#include "inspection/files/Json.h"

#include <algorithm>
#include <regex>

namespace {

using Inspection::toggleNamed;

PluginSource const & source() {
   static PluginSource const theSource( L3SM_SOURCE_DIR "/DaceL3Unicast/DaceFapNiPlugin" );
   return theSource;
}

// By file and name.
std::map< std::pair< std::string, std::string >, std::string > rowsOfTheSources() {
   auto const & files = source().files();
   auto const file =
      std::ranges::find_if( files, []( PluginSource::File const & of ) { return of.name == "Toggles.cpp"; } );
   std::smatch found;
   std::regex const reader( R"(getToggleState\( #name, file, (true|false) \))" );
   EXPECT_TRUE( std::regex_search( file->text, found, reader ) );
   std::string const defaultState = found[1];

   std::map< std::pair< std::string, std::string >, std::string > rows;
   std::regex const toggle( R"re(TOGGLE\( (\w+), "([\w.]+)" \))re" );
   for ( std::sregex_iterator it( file->text.begin(), file->text.end(), toggle ), end; it != end; ++it ) {
      std::string const name = ( *it )[1];
      std::string readers;
      for ( std::string const & function : source().readersOf( "toggle" + name + "Enabled" ) ) {
         readers += ( readers.empty() ? "" : " " ) + function;
      }
      EXPECT_NE( readers, "" ) << name << " is read by nothing";
      rows[{ ( *it )[2], name }] =
         "      { \"" + name + "\", \"" + ( *it )[2].str() + "\", " + defaultState + ", \"" + readers + "\" },\n";
   }
   return rows;
}

TEST( TogglesGolden, areThoseOfTheSources ) {
   std::string text;
   for ( auto const & [key, row] : rowsOfTheSources() ) {
      text += row;
   }
   expectList( "inspection/KnownToggles.cpp", "toggles[] = {\n", text );
}

// What a run reads is in the list, with the default that the plug-in has asked with.
TEST( Toggles, haveThoseThatRunsRead ) {
   std::set< std::string > read;
   for ( auto const & example : exampleScenarios() ) {
      Command const l3sm( "run --json '" + example.string() + "'" );
      auto const run = Inspection::parseJson( l3sm.output, "run" );
      for ( auto const & reading : *run.object()->at( "toggles" ).list() ) {
         auto const & file = *reading.object()->at( "file" ).text();
         auto const & name = *reading.object()->at( "name" ).text();
         EXPECT_NE( toggleNamed( file, name ), nullptr ) << file << ' ' << name;
         read.insert( name );
      }
   }
   // All but the one that only another family of chips asks.
   EXPECT_EQ( read.size() + 1, Inspection::knownToggles().size() );
   EXPECT_FALSE( read.contains( "J3AiBringup" ) );
}

TEST( Toggles, areNotFoundUnderAnotherFile ) {
   EXPECT_NE( toggleNamed( "Dace.json", "ArmOrderedSwTable" ), nullptr );
   EXPECT_EQ( toggleNamed( "DaceToggles.json", "ArmOrderedSwTable" ), nullptr );
   EXPECT_EQ( toggleNamed( "Dace.json", "ArmOrdered" ), nullptr );
}

} // namespace
