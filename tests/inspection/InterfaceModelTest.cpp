// What the inputs of a run tell of an interface, by the rules of the machine that serves interfaces.
#include "inspection/InterfaceModel.h"

#include "inspection/files/Json.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;

std::string const configs = "shared/phySmStateData/allEthPhyIntfConfigDir";
std::string const statuses = "shared/phySmStateSharedStatus/allEthPhyIntfStatusDir";

// A switch with one interface in service.
InterfaceModel served() {
   InterfaceModel model( "Ethernet1" );
   model.beginsWith( parseJson( R"({"state": {
      "shared/phySmStateData": {"allEthPhyIntfConfigDir": {"intfConfig": {"Ethernet1": {"mtu": 4000}}}},
      "shared/phySmStateSharedStatus": {"allEthPhyIntfStatusDir": {"intfStatus": {"Ethernet1": {"mtu": 4000}}}},
      "shared/portStateInfo": {"portState": {"10": {"intfId": "Ethernet1", "active": true}}}}})",
                                "scenario" ) );
   return model;
}

void change( InterfaceModel & model, U32 event, std::string const & text ) {
   model.changed( event, EventInput::of( parseJson( text, "event" ) ) );
}

using Reasons = std::vector< std::string >;

TEST( InterfaceModel, hasItsMtuWhereTheStatusHasIt ) {
   InterfaceModel const model = served();
   EXPECT_TRUE( model.story().hasItsMtu );
   EXPECT_EQ( model.story().reasons, Reasons() );
}

TEST( InterfaceModel, takesTheGlobalMtuWithoutOneOfItsOwn ) {
   InterfaceModel model = served();
   change(
      model, 1, R"({"set": {"path": ")" + configs + R"(/intfConfig/Ethernet1", "attribute": "mtu", "value": 0}})" );
   EXPECT_EQ( model.story().l3Mtu, 1500u );
   EXPECT_EQ( model.story().reasons, Reasons{ "the MTU hasn't reached Ethernet1 yet" } );
}

TEST( InterfaceModel, keepsToTheConfigurationThatItCameIntoServiceWith ) {
   InterfaceModel model = served();
   change( model,
           1,
           R"({"set": {"path": ")" + configs +
              R"(", "attribute": "intfConfig", "key": "Ethernet1", "value": {"mtu": 5000, "enabled": false}}})" );
   EXPECT_EQ( model.story().l3Mtu, 5000u );
   EXPECT_EQ( model.story().reasons,
              Reasons{ "its configuration was replaced while it was served (event 1): the machine keeps to the one "
                       "before, whose L3 MTU is 4000" } );
}

TEST( InterfaceModel, tellsThatItsStatusWentAndCame ) {
   InterfaceModel model = served();
   change( model,
           1,
           R"({"set": {"path": ")" + statuses + R"(", "attribute": "intfStatus", "key": "Ethernet1", "value": {}}})" );
   EXPECT_EQ( model.story().reasons,
              Reasons{ "its status was replaced or taken away while it was served (event 1): the machine keeps to the "
                       "one before" } );
}

TEST( InterfaceModel, isServedNoMoreWhenItsPortIsGone ) {
   InterfaceModel model = served();
   change(
      model, 1, R"({"set": {"path": "shared/portStateInfo/portState/10", "attribute": "active", "value": false}})" );
   EXPECT_TRUE( model.story().isServed ) << "a port that stops being active takes nothing out of service";
   change( model, 2, R"({"delete": {"path": "shared/portStateInfo", "attribute": "portState", "key": "10"}})" );
   EXPECT_FALSE( model.story().isServed );
   EXPECT_EQ( model.story().reasons, Reasons{ "it is not served: no port has it (event 2)" } );
}

TEST( InterfaceModel, tellsAStandbyAndADisabledInterface ) {
   InterfaceModel model = served();
   change( model, 1, R"({"set": {"path": "shared/sliceSmStateData", "attribute": "smMode", "value": 1}})" );
   change( model,
           2,
           R"({"set": {"path": ")" + configs + R"(/intfConfig/Ethernet1", "attribute": "enabled", "value": false}})" );
   change(
      model, 3, R"({"set": {"path": ")" + configs + R"(/intfConfig/Ethernet1", "attribute": "mtu", "value": 9000}})" );
   EXPECT_EQ( model.story().reasons,
              ( Reasons{ "the slice is not the active one (event 1)", "the interface is not enabled (event 2)" } ) );
}

TEST( InterfaceModel, comesIntoServiceWhenTheDirectoriesCome ) {
   InterfaceModel model( "Ethernet1" );
   model.beginsWith( parseJson( R"({"state": {
      "shared/phySmStateData": null,
      "shared/portStateInfo": {"portState": {"10": {"intfId": "Ethernet1", "active": true}}}}})",
                                "scenario" ) );
   EXPECT_FALSE( model.story().isServed );
   EXPECT_EQ( model.story().reasons, Reasons{ "it is not served: the directories of interfaces are not there" } );
   change( model,
           1,
           R"({"set": {"path": "shared/phySmStateData", "attribute": "allEthPhyIntfConfigDir", )"
           R"("value": {"intfConfig": {"Ethernet1": {"mtu": 4000}}}}})" );
   EXPECT_TRUE( model.story().isServed );
   EXPECT_EQ( model.story().l3Mtu, 4000u );
}

TEST( InterfaceModel, isStoppedByWhatHoldsOfItAlone ) {
   InterfaceModel model = served();
   EXPECT_FALSE( model.canBeStoppedBy( "the interface is not enabled" ) );
   EXPECT_FALSE( model.canBeStoppedBy( "the slice is not active" ) );
   EXPECT_FALSE( model.canBeStoppedBy( "the interface has no status" ) );
   change( model, 1, R"({"set": {"path": "shared/sliceSmStateData", "attribute": "smMode", "value": 1}})" );
   change( model,
           2,
           R"({"set": {"path": ")" + configs + R"(/intfConfig/Ethernet1", "attribute": "enabled", "value": false}})" );
   change( model, 3, R"({"delete": {"path": ")" + statuses + R"(", "attribute": "intfStatus", "key": "Ethernet1"}})" );
   EXPECT_TRUE( model.canBeStoppedBy( "the interface is not enabled" ) );
   EXPECT_TRUE( model.canBeStoppedBy( "the slice is not active" ) );
   EXPECT_TRUE( model.canBeStoppedBy( "the interface has no status" ) );
   EXPECT_FALSE( model.canBeStoppedBy( "one that each passes" ) );
}

} // namespace
