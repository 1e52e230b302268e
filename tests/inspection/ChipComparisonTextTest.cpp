// How a comparison of chips and of flipped toggles is told, for people and for programs.
#include "inspection/views/ChipComparisonText.h"
#include "inspection/files/Json.h"
#include "l3sm/Command.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using namespace Inspection;
using Change = ChipComparison::Change;

ProgrammedPlace trapPlace( U16 fap ) {
   return { .fap = fap, .table = "IppdFerTrapCfg", .place = "[3]", .field = "cpuStrengthN", .order = { 0, 3, 0 } };
}

// On all six kinds of chip the same value; on the second none.
ByChip< MaybeValue > onAllButTheSecond( char const * value ) {
   ByChip< MaybeValue > values;
   values.fill( value );
   values[1].reset();
   return values;
}

std::string comparisonTextOf( ChipComparison const & comparison, bool all = false ) {
   std::ostringstream text;
   showComparison( text, comparison, all, Style() );
   return text.str();
}

TEST( ChipComparisonText, namesAChipOnWhichTheRunEndedEarlyByItsFirstWords ) {
   ChipComparison comparison{ .name = "traps", .failures = {}, .places = {}, .flips = {} };
   comparison.failures[1] = "the chip has no such port\nand more of it";
   comparison.places[trapPlace( 0 )] = onAllButTheSecond( "0x5" );
   EXPECT_EQ( comparisonTextOf( comparison ),
              "traps\n\n"
              "BCM88800_A0 didn't come to its end: the chip has no such port\n"
              "Values set, by table; chips with the same letter are programmed alike\n"
              "\n"
              "table           88690_B0  88800_A0  88850_A0  88859_A2  88480_A0  88480_B0\n"
              "IppdFerTrapCfg       1         0         1         1         1         1\n"
              "\n"
              "0 tables differ between chips, 1 alike on all\n" );
}

TEST( ChipComparisonText, showsTwelveChangesOfAToggleUnlessAllAreAskedFor ) {
   ChipComparison comparison{ .name = "traps", .failures = {}, .places = {}, .flips = {} };
   auto & flip = comparison.flips.emplace_back();
   flip.file = "Dace.json";
   flip.name = "ArmOrderedSwTable";
   flip.was = false;
   for ( U16 fap = 0; fap < 14; ++fap ) {
      flip.changes[0][trapPlace( fap )] = Change{ "0x5", std::nullopt };
   }
   flip.failures[2] = "an assertion\nwith its place";
   auto const text = comparisonTextOf( comparison );
   EXPECT_NE( text.find( "\nDace.json:ArmOrderedSwTable off → on  on 88850_A0\n"
                         "  didn't come to its end: an assertion\n" ),
              std::string::npos )
      << text;
   EXPECT_NE( text.find( "  FAP 11  IppdFerTrapCfg  [3]  cpuStrengthN  0x5 → ·\n  and 2 more; --all shows them\n" ),
              std::string::npos )
      << text;
   EXPECT_EQ( text.find( "FAP 12" ), std::string::npos ) << text;
   EXPECT_NE( comparisonTextOf( comparison, true ).find( "  FAP 13  IppdFerTrapCfg  [3]  cpuStrengthN  0x5 → ·\n" ),
              std::string::npos );
}

TEST( ChipComparisonText, ofProgramsHasEachChipsValueAndWhereItFailed ) {
   ChipComparison comparison{ .name = "traps", .failures = {}, .places = {}, .flips = {} };
   comparison.failures[1] = "no such port";
   comparison.places[trapPlace( 0 )] = onAllButTheSecond( "0x5" );
   EXPECT_EQ( toJson( comparisonValue( comparison, false ), 0 ),
              R"({"failures": {"BCM88800_A0": "no such port"}, "places": [)"
              R"({"alike": true, "fap": 0, "field": "cpuStrengthN", "place": "[3]", "table": "IppdFerTrapCfg", )"
              R"("values": {"BCM88480_A0": "0x5", "BCM88480_B0": "0x5", "BCM88690_B0": "0x5", "BCM88800_A0": null, )"
              R"("BCM88850_A0": "0x5", "BCM88859_A2": "0x5"}}]})" );
}

TEST( ChipComparisonText, ofProgramsHasWhatEachToggleChanges ) {
   ChipComparison comparison{ .name = "traps", .failures = {}, .places = {}, .flips = {} };
   auto & flip = comparison.flips.emplace_back();
   flip.file = "Dace.json";
   flip.name = "ArmOrderedSwTable";
   flip.was = true;
   flip.changes[0][trapPlace( 0 )] = Change{ "0x5", std::nullopt };
   flip.failures[1] = "no such port";
   std::string const nothing = R"({"changes": [], "failure": null})";
   EXPECT_EQ( toJson( comparisonValue( comparison, true ).object()->at( "toggles" ), 0 ),
              R"([{"chips": {"BCM88480_A0": )" + nothing + R"(, "BCM88480_B0": )" + nothing +
                 R"(, "BCM88690_B0": {"changes": [{"after": null, "before": "0x5", "fap": 0, )"
                 R"("field": "cpuStrengthN", "place": "[3]", "table": "IppdFerTrapCfg"}], "failure": null}, )"
                 R"("BCM88800_A0": {"changes": [], "failure": "no such port"}, "BCM88850_A0": )" +
                 nothing + R"(, "BCM88859_A2": )" + nothing +
                 R"(}, "file": "Dace.json", "from": true, "name": "ArmOrderedSwTable"}])" );
}

TEST( ChipComparisonText, isHeadedByItsFileWhereTheScenarioHasNoName ) {
   std::string const scenario = R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0"}}]}})";
   Command const l3sm( "compare s.json --table IppdFerTrapCfg", { { "s.json", scenario } } );
   EXPECT_EQ( l3sm.status, 0 ) << l3sm.errors;
   EXPECT_TRUE( l3sm.output.starts_with( "s.json\n\n" ) ) << l3sm.output;
}

} // namespace
