// How two builds of the plug-in are told apart, for people and for programs.
#include "inspection/views/PluginComparisonText.h"
#include "inspection/files/Json.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using namespace Inspection;

Effect effectFrom( std::string from, std::string to ) {
   return { .from = std::move( from ), .to = std::move( to ), .function = "L3Sm::f", .source = "L3Sm.cpp:41" };
}

EffectPlace strengthAt( std::string const & table, U32 entry, std::string const & field ) {
   EffectPlace place{};
   place.table = table;
   place.entry = entry;
   place.field = field;
   return place;
}

PluginComparison betweenBuilds( std::vector< RunDifferences > runs ) {
   return { .plugin = "new.so", .against = "old.so", .runs = std::move( runs ) };
}

std::string buildsTextOf( PluginComparison const & comparison, bool all = false ) {
   std::ostringstream text;
   showPluginComparison( text, comparison, all, Style() );
   return text.str();
}

TEST( PluginComparisonText, saysThatEqualRunsTookOtherOperations ) {
   EXPECT_EQ( buildsTextOf( betweenBuilds( { { .scenario = "a/gue.json", .chip = "" },
                                             { .scenario = "a/vti.json", .chip = "", .isOtherRoad = true } } ) ),
              "here   new.so\n"
              "there  old.so\n\n"
              "Equal in all events of 2 runs of 2 scenarios; 1 of them by other operations.\n" );
}

TEST( PluginComparisonText, tellsRunsThatEndOtherwise ) {
   EXPECT_EQ(
      buildsTextOf( betweenBuilds(
         { { .scenario = "a/gue.json", .chip = "BCM88690_B0", .endHere = "", .endThere = "L3Sm::f: it isn't so" } } ) ),
      "here   new.so\n"
      "there  old.so\n\n"
      "0 fields differ, in 1 of 1 run of 1 scenario.\n"
      "\n"
      "gue.json on BCM88690_B0  ends otherwise\n"
      "    here   comes to its end\n"
      "    there  L3Sm::f: it isn't so\n" );
}

TEST( PluginComparisonText, namesTheChipsAndThePlaceOfADifference ) {
   SideDifference const ofMemory{ .event = 2,
                                  .what = "set a",
                                  .place = strengthAt( "EnablersVectors", 22, "enablersVector" ),
                                  .here = effectFrom( "0x0", "0x5" ),
                                  .there = std::nullopt };
   SideDifference inCopy = ofMemory;
   inCopy.place.copy = 2;
   inCopy.place.variant = 1;
   inCopy.place.table = "AdditionalHeadersMapTable0";
   inCopy.place.field = "protocolSpecificInformation";
   inCopy.here.reset();
   inCopy.there = effectFrom( "", "0x7" );
   auto const text =
      buildsTextOf( betweenBuilds( { { .scenario = "gue.json", .chip = "BCM88690_B0", .differences = { ofMemory } },
                                     { .scenario = "gue.json", .chip = "BCM88800_A0", .differences = { ofMemory } },
                                     { .scenario = "gue.json", .chip = "BCM88850_A0", .differences = { inCopy } } } ) );
   EXPECT_EQ( text,
              "here   new.so\n"
              "there  old.so\n\n"
              "2 fields differ, in 3 of 3 runs of 1 scenario.\n"
              "\n"
              "EnablersVectors.enablersVector  2 runs, BCM88690_B0 BCM88800_A0  first: gue.json on BCM88690_B0, "
              "event 2, FAP 0 variant 0 [0] 22\n"
              "    here   0x0 → 0x5  L3Sm::f  L3Sm.cpp:41\n"
              "    there  no change\n"
              "\n"
              "AdditionalHeadersMapTable0.protocolSpecificInformation  1 run, BCM88850_A0  first: gue.json on "
              "BCM88850_A0, event 2, FAP 0 variant 1 22 copy 1\n"
              "    here   no change\n"
              "    there  unknown → 0x7  L3Sm::f  L3Sm.cpp:41\n" );
}

TEST( PluginComparisonText, showsTwelveWaysUnlessAllAreAskedFor ) {
   RunDifferences run{ .scenario = "gue.json", .chip = "" };
   for ( U32 control = 0; control < 14; ++control ) {
      run.differences.push_back( { .event = 0,
                                   .what = "start",
                                   .place = strengthAt( "controls", control, "" ),
                                   .here = effectFrom( "", "1" ),
                                   .there = std::nullopt } );
   }
   EXPECT_TRUE( buildsTextOf( betweenBuilds( { run } ) ).ends_with( "\n... and 2 more ways; --all shows them\n" ) );
   EXPECT_NE( buildsTextOf( betweenBuilds( { run } ), true ).find( "controls.13  1 run  first: gue.json, start\n" ),
              std::string::npos );
}

TEST( PluginComparisonText, ofProgramsHasNothingForASideWithoutAChange ) {
   RunDifferences const run{ .scenario = "gue.json",
                             .chip = "",
                             .differences = { { .event = 0,
                                                .what = "start",
                                                .place = strengthAt( "controls", 64, "" ),
                                                .here = effectFrom( "", "1" ),
                                                .there = std::nullopt } } };
   EXPECT_EQ( toJson( pluginComparisonValue( betweenBuilds( { run } ) ), 0 ),
              R"({"against": "old.so", "equal": false, "plugin": "new.so", "runs": [{"chip": null, "differences": [)"
              R"({"array": 0, "copy": null, "entry": 64, "event": 0, "fap": 0, "field": "", )"
              R"("here": {"from": null, "function": "L3Sm::f", "source": "L3Sm.cpp:41", "to": "1"}, )"
              R"("table": "controls", "there": null, "variant": 0, "what": "start"}], )"
              R"("endHere": "", "endThere": "", "equal": false, "operationsHere": 0, "operationsThere": 0, )"
              R"("otherOperations": false, "scenario": "gue.json"}]})" );
}

} // namespace
