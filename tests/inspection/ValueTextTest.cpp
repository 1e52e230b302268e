// Values that no view knows more of, and what stands in the state, as people read them.
#include "inspection/views/ValueText.h"
#include "inspection/files/Json.h"
#include "inspection/views/StateText.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using namespace Inspection;

std::string writtenValue( std::string const & json, std::vector< std::string > const & first = {} ) {
   std::ostringstream text;
   writeValue( text, parseJson( json, "value" ), Style(), first );
   return text.str();
}

std::string shownState( std::string const & path, std::string const & json ) {
   std::ostringstream text;
   showState( text, { { path, parseJson( json, "state" ) } } );
   return text.str();
}

TEST( ValueText, putsAListOfFewOnOneLine ) {
   EXPECT_EQ( writtenValue( R"({"faps": [0, 2], "empty": [], "on": true, "off": false, "none": null, "text": ""})" ),
              "empty\n"
              "faps   0, 2\n"
              "none   -\n"
              "off    no\n"
              "on     yes\n"
              "text   -\n" );
}

TEST( ValueText, putsObjectsOfAListOneBelowTheOther ) {
   EXPECT_EQ( writtenValue( R"({"faps": [{"fap": 0}, {"fap": 1}], "phase": "running"})" ),
              "phase  running\n"
              "faps\n"
              "  fap  0\n"
              "\n"
              "  fap  1\n" );
}

TEST( ValueText, putsTheNamesFirstThatAreAskedFor ) {
   EXPECT_EQ( writtenValue( R"({"events": 17, "phase": "running"})", { "phase", "missing" } ),
              "phase   running\n"
              "events  17\n" );
}

TEST( ValueText, leavesATextOfSeveralLinesAndAListOfTextsAsLines ) {
   EXPECT_EQ( writtenValue( R"("a 1\nb 2")" ), "a 1\nb 2\n" );
   EXPECT_EQ( writtenValue( R"(["one", "two"])" ), "one\ntwo\n" );
   EXPECT_EQ( writtenValue( "17" ), "17\n" );
}

TEST( StateText, saysWhatIsNotThereOrEmpty ) {
   EXPECT_EQ( shownState( "evpn/status", "null" ), "evpn/status (nothing stands there)\n" );
   EXPECT_EQ( shownState( "interface/status/eth/vxlan", "{}" ), "interface/status/eth/vxlan (empty)\n" );
}

TEST( StateText, tellsAnAttributeWithThePathOfWhatHasIt ) {
   EXPECT_EQ( shownState( "interface/config/global/l3Mtu", "2000" ), "interface/config/global l3Mtu = 2000\n" );
   EXPECT_EQ( shownState( "interface/config/global", R"({"l3Mtu": 2000})" ), "interface/config/global l3Mtu = 2000\n" );
}

TEST( StateText, tellsEntitiesOfACollectionByTheirNames ) {
   std::string const vtis = "interface/status/eth/vxlan/vtiStatus/Vxlan1 udpPort = 4789\n"
                            "interface/status/eth/vxlan/vtiStatus/Vxlan2 udpPort = 4790\n";
   EXPECT_EQ( shownState( "interface/status/eth/vxlan",
                          R"({"vtiStatus": {"Vxlan1": {"udpPort": 4789}, "Vxlan2": {"udpPort": 4790}}})" ),
              vtis );
   EXPECT_EQ( shownState( "interface/status/eth/vxlan/vtiStatus",
                          R"({"Vxlan1": {"udpPort": 4789}, "Vxlan2": {"udpPort": 4790}})" ),
              vtis );
}

} // namespace
