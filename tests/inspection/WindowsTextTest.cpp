// How values that fields pass through are told, for people and for programs.
#include "inspection/views/WindowsText.h"
#include "chip/ChipType.h"
#include "inspection/files/Json.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using namespace Inspection;

PassingValue passing( char const * table, char const * field, int array, U32 entry, std::string through ) {
   auto const * const known = Catalogue::table( table );
   return { .event = 1,
            .fap = 0,
            .layout =
               known ? Catalogue::layout( *known, static_cast< U8 >( Hardware::ChipType::BCM88690_B0 ), 0 ) : nullptr,
            .table = table,
            .variant = 0,
            .array = array,
            .entry = entry,
            .field = field,
            .from = "0x5",
            .through = std::move( through ),
            .to = "0x6",
            .setBy = "L3Sm::f",
            .setAt = "L3Sm.cpp:41",
            .leftBy = "L3Sm::g",
            .leftAt = "L3Sm.cpp:42",
            .operations = 2 };
}

std::string windowsTextOf( std::vector< PassingValue > const & windows, std::size_t most = 0 ) {
   std::ostringstream text;
   showWindows( text, windows, most, Style() );
   return text.str();
}

TEST( WindowsText, tellsPlacesThatGoTheSameWayTogether ) {
   auto ofItself = passing( "controls", "", 0, 64, "255" );
   ofItself.event = 0;
   ofItself.leftBy = ofItself.setBy;
   auto second = passing( "IppdFerTrapCfg", "cpuStrengthN", 4, 0, "0x7" );
   second.operations = 3;
   EXPECT_EQ( windowsTextOf( { ofItself, passing( "IppdFerTrapCfg", "cpuStrengthN", 3, 0, "0x3" ), second } ),
              "  start\n"
              "    controls  FAP 0 64\n"
              "      0x5 → 255 → 0x6  for 2 operations\n"
              "      by L3Sm::f L3Sm.cpp:41 itself\n"
              "  event 1\n"
              "    IppdFerTrapCfg.cpuStrengthN  FAP 0 [3-4]\n"
              "      0x5 → 2 values, first 0x3 → 0x6  for 2 to 3 operations\n"
              "      set by L3Sm::f L3Sm.cpp:41, ended by L3Sm::g L3Sm.cpp:42\n" );
}

TEST( WindowsText, countsTheWaysThatAreLeftOut ) {
   auto const windows = std::vector{ passing( "IppdFerTrapCfg", "cpuStrengthN", 3, 0, "0x3" ),
                                     passing( "IppdFerTrapCfg", "snoopStrengthN", 3, 0, "0x3" ),
                                     passing( "IppdFerTrapCfg", "cpuSnoopCodeN", 3, 0, "0x3" ) };
   EXPECT_TRUE( windowsTextOf( windows, 1 ).ends_with( "    ... and 2 more; --all shows them\n" ) );
   EXPECT_EQ( windowsTextOf( windows, 3 ), windowsTextOf( windows ) );
}

TEST( WindowsText, ofProgramsHasNoEntryWhereARegisterHasNone ) {
   std::string const functions = R"("endedBy": {"function": "L3Sm::g", "source": "L3Sm.cpp:42"}, )";
   std::string const set = R"("setBy": {"function": "L3Sm::f", "source": "L3Sm.cpp:41"}, )";
   EXPECT_EQ( toJson( windowsValue( { passing( "IppdFerTrapCfg", "cpuStrengthN", 3, 0, "0x3" ),
                                      passing( "controls", "", 0, 64, "255" ) } ),
                      0 ),
              R"([{"array": 3, )" + functions + R"("entry": null, "event": 1, "fap": 0, "field": "cpuStrengthN", )" +
                 R"("from": "0x5", "operations": 2, )" + set +
                 R"("table": "IppdFerTrapCfg", "through": "0x3", "to": "0x6", "variant": 0}, {"array": 0, )" +
                 functions + R"("entry": 64, "event": 1, "fap": 0, "field": "", "from": "0x5", "operations": 2, )" +
                 set + R"("table": "controls", "through": "255", "to": "0x6", "variant": 0}])" );
}

} // namespace
