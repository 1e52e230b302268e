// Several changes at once: one event, as a database's transaction makes it.
#include "BuildFolder.h"
#include "inspection/EventInput.h"
#include "inspection/Play.h"
#include "inspection/files/Json.h"
#include "inspection/files/Scenario.h"
#include "rex/Log.h"

namespace {

using namespace Inspection;

constexpr char const * transactionText = R"({
 "switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}}]},
 "events": [
  {"transaction": [
   {"set": {"path": "routing/hardware/config", "attribute": "urpfLooseFailForward", "value": true}},
   {"set": {"path": "interface/status/eth/vxlan", "attribute": "vtiStatus", "key": "Vxlan1", "value": {}}},
   {"delete": {"path": "interface/status/eth/vxlan", "attribute": "vtiStatus", "key": "Vxlan1"}}]},
  {"set": {"path": "evpn/status", "attribute": "vxlanEnabled", "value": true}}]})";

TEST( Transaction, isOneEventOfARun ) {
   auto const scenario = scenarioOf( parseJson( transactionText, "t.json" ), "t.json" );
   ASSERT_EQ( scenario.events.size(), 2u );
   EXPECT_EQ( scenario.events[0].cause(), "transaction" );
   EXPECT_EQ( scenario.events[0].text(),
              "at once: set routing/hardware/config urpfLooseFailForward = true, set interface/status/eth/vxlan "
              "vtiStatus[Vxlan1] = {}, delete interface/status/eth/vxlan vtiStatus[Vxlan1]" );
   EXPECT_EQ( toJson( *valueOf( scenario ).object()->at( "events" ).list()->begin(), 0 ),
              toJson( *parseJson( transactionText, "t" ).object()->at( "events" ).list()->begin(), 0 ) );

   Rex::logSinkIs( []( auto const & ) {} );
   loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
   Simulator::SimulatedSwitch sw( scenario.description );
   play( scenario, sw );
   std::map< U32, std::set< std::string > > causes;
   for ( Simulator::Row const & row : sw.journal().rows() ) {
      causes[row.event].insert( std::string( row.cause ) );
   }
   EXPECT_EQ( sw.event(), 2u );
   EXPECT_TRUE( causes[1].contains( "routing/hardware/config urpfLooseFailForward" ) );
   EXPECT_TRUE( causes[1].contains( "interface/status/eth/vxlan vtiStatus" ) );
}

TEST( Transaction, isTakenApartForAnswers ) {
   auto const what = parseJson( transactionText, "t" ).object()->at( "events" ).list()->front();
   auto const inputs = EventInput::allOf( what );
   ASSERT_EQ( inputs.size(), 3u );
   EXPECT_EQ( inputs[0].cause(), "routing/hardware/config urpfLooseFailForward" );
   EXPECT_EQ( inputs[2].kind, EventInput::Kind::remove );
   EXPECT_EQ( EventInput::of( what ).text().substr( 0, 60 ),
              "at once: routing/hardware/config urpfLooseFailForward = true" );
}

TEST( Transaction, isRefusedWithThePlaceOfEachWrongChange ) {
   auto const wrong = [&]( std::string const & events ) {
      std::string const head =
         std::string( transactionText ).substr( 0, std::string( transactionText ).find( "\"events\"" ) );
      try {
         scenarioOf( parseJson( head + "\"events\": " + events + "}", "t.json" ), "t.json" );
      } catch ( InputError const & error ) {
         std::string all;
         for ( auto const & line : error.lines() ) {
            all += line + "\n";
         }
         return all;
      }
      return std::string();
   };
   EXPECT_EQ( wrong( R"([{"transaction": [{"set": {"path": "evpn/status", "attribute": "vxlanEnabled", "value": 3}},
                                          {"delete": {"path": "nowhere"}}]}])" ),
              "t.json: event 1, /transaction/0/set/value: expected true or false, got 3\n"
              "t.json: event 1, /transaction/1/delete/path: there is no path \"nowhere\"; `l3sm paths` lists them\n" );
   EXPECT_EQ( wrong( R"([{"transaction": []}])" ),
              "t.json: event 1, /transaction: a transaction holds one change at least\n" );
   EXPECT_EQ( wrong( R"([{"transaction": [{"transaction": []}]}])" ).substr( 0, 66 ),
              "t.json: event 1, /transaction/0/transaction: a transaction holds o" );
}

} // namespace
