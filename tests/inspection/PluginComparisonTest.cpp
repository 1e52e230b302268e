// Two builds of the plug-in: the tree's with itself, and with one in which one constant is another.
#include "inspection/PluginComparison.h"
#include "BuildFolder.h"
#include "inspection/files/Json.h"
#include "l3sm/Command.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;
using Rex::Value;

std::string const example = L3SM_SOURCE_DIR "/examples/urpf-and-ip-traps.json";
std::string const own = buildFolder() + "/lib/libL3SmPlugin.so";
std::string const changed = buildFolder() + "/changed/lib/libL3SmPluginChanged.so";

Value const & at( Value const & value, std::string const & name ) {
   return value.object()->at( name );
}

TEST( PluginComparison, ofABuildWithItselfIsOneLine ) {
   Command const l3sm( "compare '" + example + "' --random 2 --against '" + own + "'" );
   EXPECT_EQ( l3sm.status, 0 ) << l3sm.errors;
   EXPECT_NE( l3sm.output.find( "\n\nEqual in all events of 18 runs of 3 scenarios.\n" ), std::string::npos )
      << l3sm.output;
}

TEST( PluginComparison, namesTheFieldOfAChangedConstantAndItsFunction ) {
   Command const l3sm( "compare '" + example + "' --against '" + changed + "' --json" );
   EXPECT_EQ( l3sm.status, 1 ) << l3sm.errors;
   Value const answer = parseJson( l3sm.output, "answer" );
   auto const & runs = *at( answer, "runs" ).list();
   ASSERT_EQ( runs.size(), 6u );
   std::set< std::string > chips;
   for ( Value const & run : runs ) {
      chips.insert( *at( run, "chip" ).text() );
      EXPECT_FALSE( at( run, "differences" ).list()->empty() );
      for ( Value const & it : *at( run, "differences" ).list() ) {
         EXPECT_EQ( *at( it, "table" ).text(), "IppbProgTrapCfg" );
         EXPECT_EQ( *at( it, "field" ).text(), "progTrapFwdActionStrengthN" );
         EXPECT_EQ( *at( it, "event" ).integer(), 0 );
         EXPECT_EQ( *at( at( it, "there" ), "to" ).text(), "0x6" );
         EXPECT_EQ( *at( at( it, "there" ), "function" ).text(), "L3Sm::initIppbProgTrapCfgReg" );
      }
   }
   EXPECT_EQ( chips.size(), 6u );
}

TEST( PluginComparison, saysWhatIsWrongWithALibrary ) {
   Command const missing( "compare '" + example + "' --against nothing.so" );
   EXPECT_EQ( missing.status, 2 );
   EXPECT_NE( missing.errors.find( "there is no such library" ), std::string::npos ) << missing.errors;
   Command const none( "compare '" + example + "' --against text.so", { { "text.so", "no library" } } );
   EXPECT_EQ( none.status, 2 );
   EXPECT_NE( none.errors.find( "can't be played" ), std::string::npos ) << none.errors;
}

TEST( PluginComparison, saysOnWhichChipAScenarioDoesNotFit ) {
   std::string const scenario = R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88850_A0"}}]},)"
                                R"( "chips": {"0": {"IppbLifMcBridgeFallbackAllow": {}}}})";
   Command const l3sm( "compare s.json --against '" + own + "'", { { "s.json", scenario } } );
   EXPECT_EQ( l3sm.status, 2 );
   EXPECT_EQ(
      l3sm.errors,
      "l3sm: s.json on BCM88690_B0: /chips/0/IppbLifMcBridgeFallbackAllow: the BCM88690_B0 has no such table\n" );
}

} // namespace
