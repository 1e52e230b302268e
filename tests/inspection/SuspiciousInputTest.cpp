// What in a scenario is told where the plug-in has failed on it.
#include "inspection/SuspiciousInput.h"
#include "inspection/EventReach.h"
#include "inspection/FailureReport.h"
#include "inspection/KnownMemories.h"
#include "inspection/files/Json.h"
#include "l3sm/Command.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;
using Suspicions = std::vector< std::string >;

Suspicions suspicionsWith( std::string const & state ) {
   auto const scenario =
      scenarioOf( parseJson( scenarioWith( R"(, "state": {)" + state + "}" ), "scenario" ), "scenario" );
   Simulator::SimulatedSwitch sw( scenario.description );
   scenario.prepare( sw );
   return suspicionsOf( scenario, sw );
}

TEST( SuspiciousInput, isNothingWhereNothingIsLeftOut ) {
   EXPECT_EQ( suspicionsWith( "" ), Suspicions() );
}

TEST( SuspiciousInput, isADirectoryOfInterfacesThatIsLeftOut ) {
   EXPECT_EQ( suspicionsWith( R"("shared/phySmStateData": {"allEthPhyIntfConfigDir": null})" ),
              Suspicions{ "shared/phySmStateData allEthPhyIntfConfigDir is null" } );
   EXPECT_EQ( suspicionsWith( R"("shared/phySmStateSharedStatus": {"allEthPhyIntfStatusDir": null})" ),
              Suspicions{ "shared/phySmStateSharedStatus allEthPhyIntfStatusDir is null" } );
}

TEST( SuspiciousInput, isAnActivePortWhoseInterfaceHasNoStatus ) {
   auto const ports = []( char const * active ) {
      return R"("shared/phySmStateData": {"allEthPhyIntfConfigDir": {"intfConfig": {"Ethernet1": {}}}}, )"
             R"("shared/portStateInfo": {"portState": {"10": {"intfId": "Ethernet1", "active": )" +
             std::string( active ) + "}}}";
   };
   EXPECT_EQ( suspicionsWith( ports( "false" ) ), Suspicions() );
   EXPECT_EQ( suspicionsWith( ports( "true" ) ),
              ( Suspicions{ "port 10 is active and its interface Ethernet1 is configured, but "
                            "shared/phySmStateSharedStatus/allEthPhyIntfStatusDir/intfStatus has no Ethernet1",
                            "port 10 is active and its interface Ethernet1 is configured, but "
                            "interface/status/eth/phy/local/intfStatusLocal has no Ethernet1" } ) );
}

TEST( SuspiciousInput, isToldUpToAFewInTheReport ) {
   FailureReport report;
   report.event = 2;
   report.eventText = "set a";
   report.fap = "0";
   report.function = "f";
   report.source = "a.cpp:1";
   report.text = "entry < 32";
   report.message = "is 40";
   report.cause = "b c";
   EXPECT_EQ( report.lines(),
              ( std::vector< std::string >{ "The run ended by an assertion: entry < 32, is 40",
                                            "  event 2: set a",
                                            "  FAP: 0",
                                            "  function: f  a.cpp:1",
                                            "  cause: b c",
                                            "  suspicious: nothing in the scenario that is known here" } ) );
   for ( int number = 1; number <= 30; ++number ) {
      report.suspicions.push_back( "this " + std::to_string( number ) );
   }
   auto const lines = report.lines();
   std::size_t const told = lines.size() - 6;
   EXPECT_EQ( lines[5], "  suspicious: this 1" );
   EXPECT_EQ( lines.back(), "  suspicious: " + std::to_string( 30 - told ) + " more like these" );
}

TEST( EventReach, saysWhyNothingCameOfAnEvent ) {
   EXPECT_EQ( EventReach{}.silence(), "nothing was written or published, and no gate was closed" );
   EXPECT_EQ( ( EventReach{ .isKnown = true, .isHeard = false, .path = "evpn/status" } ).silence(),
              "nobody listens to evpn/status" );
}

TEST( KnownMemories, areThoseOfAControlByItsNumber ) {
   auto const reasonOf = []( U32 control ) -> std::string {
      Simulator::Row row{};
      row.kind = Simulator::Row::Kind::control;
      row.control = control;
      auto const known = knownMemoriesOf( row );
      return known.size() == 1 && *known.begin() ? std::string( ( *known.begin() )->field ) : "none";
   };
   EXPECT_EQ( reasonOf( 97 ), "97" );
   EXPECT_EQ( reasonOf( 64 ), "none" );
}

} // namespace
