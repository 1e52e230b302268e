// How paths of the state are told, for people and for programs.
#include "inspection/views/PathsText.h"
#include "inspection/files/Json.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using namespace Inspection;

Rex::Value pathValueOf( std::string const & path ) {
   return pathsValue( { statePathOf( path ) } ).object()->at( "paths" ).object()->at( path );
}

std::string attributeOf( std::string const & path, std::string const & attribute ) {
   return toJson( pathValueOf( path ).object()->at( "attributes" ).object()->at( attribute ), 0 );
}

std::string shownPath( std::string const & path ) {
   std::ostringstream text;
   showPath( text, *statePathOf( path ), Style() );
   return text.str();
}

TEST( PathsText, tellsWhatADirectoryHolds ) {
   EXPECT_EQ( shownPath( "routing/nexthopgroup/input/config" ),
              "routing/nexthopgroup/input/config  Rex::Dir\n"
              "  entities by name, each L3::Tunnel::UdpDestinationPortConfig\n" );
}

TEST( PathsText, tellsAnAttributeItsDefaultItsHearersAndAnEventToCopy ) {
   EXPECT_EQ( shownPath( "interface/config/global" ),
              "interface/config/global  Interface::GlobalIntfConfig\n"
              "  attribute  takes         default  functions that hear of it\n"
              "  l3Mtu      0-4294967295  1500     L3IntfSm::RexIpIntfConfigFilter::handleMtuOrForwardingModel\n"
              "  event  {\"set\": {\"path\": \"interface/config/global\", \"attribute\": \"l3Mtu\", \"value\": 1}}\n" );
}

TEST( PathsText, ofProgramsHasWhatADirectoryHolds ) {
   EXPECT_EQ( toJson( pathValueOf( "routing/nexthopgroup/input/config" ), 0 ),
              R"({"attributes": {}, "entries": "L3::Tunnel::UdpDestinationPortConfig", "kind": "state", )"
              R"("type": "Rex::Dir"})" );
}

TEST( PathsText, ofProgramsHasWhatAnAttributeTakes ) {
   EXPECT_EQ( attributeOf( "bridging/config", "bridgeMacAddr" ),
              R"({"default": "00:00:00:00:00:00", "heardBy": [], "kind": "value", "readAtStartBy": [], )"
              R"("takes": {"of": "MAC address", "type": "text"}})" );
   EXPECT_EQ( attributeOf( "shared/sliceSmStateData", "slotIds" ),
              R"({"default": {}, "heardBy": [], "key": {"of": "text", "type": "text"}, "kind": "map", )"
              R"("readAtStartBy": [], "takes": {"highest": 4294967295, "type": "number"}})" );
   EXPECT_EQ( attributeOf( "shared/sliceSmStateData", "revision" ),
              R"({"defaultOfSwitch": true, "heardBy": [], "kind": "value", "readAtStartBy": [], )"
              R"("takes": {"members": {"chipType": {"choices": ["BCM88690_B0", "BCM88800_A0", "BCM88850_A0", )"
              R"("BCM88859_A2", "BCM88480_A0", "BCM88480_B0"], "of": "chip", "type": "text"}, )"
              R"("major": {"highest": 4294967295, "type": "number"}, )"
              R"("sdkVersion": {"highest": 4294967295, "type": "number"}}, "type": "object"}})" );
   EXPECT_EQ( attributeOf( "interface/status/subintf", "intfStatus" ),
              R"({"default": {}, "entity": "Interface::SubIntfStatus", "heardBy": [], )"
              R"("key": {"of": "interface", "type": "text"}, "kind": "collection", "readAtStartBy": []})" );
}

} // namespace
