// What a second start does to the chips, and which values fields pass through without keeping them: over all examples,
// on every kind of chip, with each toggle as the example has it and flipped. tests/golden/second-start/ has what was
// found, a file for each example; what ends as another also has its reason (inspection/KnownMemories.h).
#include "BuildFolder.h"
#include "inspection/KnownMemories.h"
#include "inspection/KnownToggles.h"
#include "inspection/OnChip.h"
#include "inspection/Play.h"
#include "inspection/Restart.h"
#include "l3sm/Command.h"
#include "rex/Log.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using namespace Inspection;
using Simulator::Row;

std::string const plugin = buildFolder() + "/lib/libL3SmPlugin.so";

Scenario exampleNamed( std::string const & name ) {
   return readScenario( std::string( L3SM_SOURCE_DIR "/examples/" ) + name + ".json" );
}

std::string eventName( U32 event ) {
   return event == 0 ? "start" : "event " + std::to_string( event );
}

void tellWindows( std::ostream & out, std::string const & when, std::vector< PassingValue > const & windows ) {
   for ( PassingValue const & it : windows ) {
      out << when << ( when.empty() ? eventName( it.event ) : "" ) << "  passes  " << it.table
          << ( it.field.empty() ? "" : "." + it.field ) << "  " << it.setBy
          << ( it.leftBy == it.setBy ? "" : " -> " + it.leftBy ) << '\n';
   }
}

// A line for each kind of finding; some of them many times.
std::string findings( Scenario const & scenario ) {
   return inChild( [&]( std::ostream & out ) {
             Rex::logSinkIs( []( auto const & ) {} );
             PassingValues ofRun;
             Restart const restart = restartAfter( scenario, plugin, { &ofRun } );
             tellWindows( out, "", ofRun.all() );
             for ( Row const & row : restart.start().changes ) {
                auto const known = knownMemoriesOf( row );
                out << "second start  ends as another  "
                    << ( row.kind == Row::Kind::control ? "control " + std::to_string( row.control )
                                                        : std::string( row.table ) )
                    << "  " << row.function << ( known.contains( nullptr ) ? "  FOR NO KNOWN REASON" : "" ) << '\n';
             }
             tellWindows( out, "second start", restart.windows );
             out << "came to its end\n";
          } )
      .output;
}

std::vector< Toggle::Settings > settingsOf( Scenario const & scenario ) {
   std::vector< Toggle::Settings > all{ scenario.description.toggles };
   for ( KnownToggle const & toggle : knownToggles() ) {
      auto flipped = scenario.description.toggles;
      auto const [at, isNew] =
         flipped[std::string( toggle.file )].try_emplace( std::string( toggle.name ), toggle.defaultState );
      at->second = !at->second;
      all.push_back( flipped );
   }
   return all;
}

struct SecondStartGolden : testing::TestWithParam< std::string > {};

TEST_P( SecondStartGolden, isAsItWasFound ) {
   if ( isSanitized() && GetParam() != "gue" ) {
      GTEST_SKIP() << "a second start takes the same way on every example; one is enough for the sanitizers";
   }
   Scenario const base = exampleNamed( GetParam() );
   std::map< std::string, std::set< std::string > > chipsOf; // that show a finding
   for ( auto const chipType : Hardware::allChipTypes ) {
      std::string const chip = Hardware::chipTypeName( chipType );
      for ( Toggle::Settings const & toggles : settingsOf( base ) ) {
         Scenario scenario = onChip( base, chipType );
         scenario.description.toggles = toggles;
         std::string const found = findings( scenario );
         std::istringstream lines( found );
         for ( std::string line; std::getline( lines, line ); ) {
            chipsOf[line].insert( chip );
         }
         if ( !found.ends_with( "came to its end\n" ) ) {
            chipsOf["a toggle flipped alone ends the process"].insert( chip );
         }
      }
   }
   std::string text;
   for ( auto const & [line, chips] : chipsOf ) {
      text += line;
      if ( chips.size() < Hardware::allChipTypes.size() ) {
         for ( std::string const & chip : chips ) {
            text += " " + chip;
         }
      }
      text += '\n';
   }
   EXPECT_EQ( text.find( "FOR NO KNOWN REASON" ), std::string::npos ) << text;
   auto const path = fs::path( L3SM_SOURCE_DIR "/tests/golden/second-start" ) / ( GetParam() + ".txt" );
   if ( std::getenv( "L3SM_GOLDEN_WRITE" ) ) {
      fs::create_directories( path.parent_path() );
      std::ofstream( path ) << text;
      return;
   }
   EXPECT_EQ( text, contentsOf( path ) ) << "To write it anew: ./dev golden";
}

INSTANTIATE_TEST_SUITE_P( Examples, SecondStartGolden, testing::ValuesIn( exampleNames() ), NameOfExample() );

TEST( KnownMemories, areEachShownByTheExampleThatTheyName ) {
   for ( KnownMemory const & known : knownMemories() ) {
      if ( !known.atRestart ) {
         continue; // other roads show it
      }
      bool isShown = false;
      Restart const restart = restartAfter( exampleNamed( std::string( known.example ) ), plugin );
      for ( Row const & row : restart.start().changes ) {
         isShown = isShown || knownMemoriesOf( row ).contains( &known );
      }
      EXPECT_TRUE( isShown ) << known.table << "." << known.field << ": take it out";
   }
}

} // namespace
