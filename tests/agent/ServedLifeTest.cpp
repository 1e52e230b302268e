// Agents as processes of their own: how they begin, what signals do, and how they end.
#include "Served.h"
#include "agent/RedisState.h"

#include <gtest/gtest.h>

namespace {

constexpr char const * oneFap =
   R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7}}]},
 "toggles": {"Dace.json": {"ArmOrderedSwTable": false}}})";

bool has( std::string const & text, std::string const & part ) {
   return text.find( part ) != std::string::npos;
}

TEST( ServedLife, endsCleanlyWhenItIsToldTo ) {
   Folder const folder;
   ServedAgent agent( folder, "Linecard3", oneFap, "" );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   EXPECT_TRUE( has( agent.ctl( "show" ), "\"IppdFerTrapCfg\"" ) );
   EXPECT_EQ( agent.endsBy( SIGTERM ), 0 ) << agent.log();
   EXPECT_FALSE( std::filesystem::exists( agent.socket() ) );
}

TEST( ServedLife, readsItsTraceLevelsAgainOnSighup ) {
   Folder const folder;
   auto const file = folder.file( "trace", "# none yet\n" );
   ServedAgent agent( folder, "Linecard3", oneFap, "", { "--trace", file } );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   EXPECT_FALSE( has( agent.ctl( "trace list" ), "\"8\"" ) );
   folder.file( "trace", "DaceFapNiL3Sm/8\n" );
   ::kill( agent.process(), SIGHUP );
   EXPECT_TRUE( soon( [&] { return has( agent.ctl( "trace list" ), "\"DaceFapNiL3Sm\": \"8\"" ); } ) ) << agent.log();
   folder.file( "trace", "DaceFapNiL3Sm\n" );
   ::kill( agent.process(), SIGHUP );
   EXPECT_TRUE( soon( [&] { return has( agent.log(), "trace:1: expected FACILITY/LEVEL" ); } ) ) << agent.log();
   EXPECT_TRUE( has( agent.ctl( "trace list" ), "\"DaceFapNiL3Sm\": \"8\"" ) ) << "the levels stay as they were";
}

TEST( ServedLife, refusesAFileOfTraceLevelsThatIsWrong ) {
   Folder const folder;
   auto const file = folder.file( "trace", "DaceFapNiL3Sm/8\r\n# for people\n , */off, NoFacility/3\n" );
   ServedAgent agent( folder, "Linecard3", oneFap, "", { "--trace", file } );
   EXPECT_EQ( agent.ended(), 2 );
   EXPECT_TRUE( has( agent.log(), "l3sm: " + file + ":3: facility: there is no NoFacility; there are " ) )
      << agent.log();
   folder.file( "trace", "DaceFapNiL3Sm/10" );
   agent.starts();
   EXPECT_EQ( agent.ended(), 2 );
   EXPECT_TRUE( has( agent.log(), "l3sm: " + file + ":1: level: expected a level from 0 to 9, or off; got \"10\"\n" ) )
      << agent.log();
}

TEST( ServedLife, leavesItsMetricsInAFileWhenItEnds ) {
   Folder const folder;
   std::string const file = folder / "l3sm.prom";
   ServedAgent agent( folder, "Linecard3", oneFap, "", { "--metrics", file } );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   agent.ctl( "state set evpn/status vxlanEnabled true" );
   ASSERT_TRUE( soon( [&] { return has( agent.ctl( "status" ), "\"events\": 1," ); } ) );
   EXPECT_EQ( agent.endsBy( SIGTERM ), 0 ) << agent.log();
   EXPECT_TRUE( has( folder.text( "l3sm.prom" ), "\nl3sm_phase{phase=\"running\"} 1\n" ) )
      << folder.text( "l3sm.prom" );
   EXPECT_TRUE( has( folder.text( "l3sm.prom" ), "\nl3sm_events_total{cause=\"evpn/status\"} 1\n" ) )
      << folder.text( "l3sm.prom" );
}

TEST( ServedLife, saysThatItsMetricsCantBeWritten ) {
   Folder const folder;
   std::string const file = folder / "nowhere/l3sm.prom";
   ServedAgent agent( folder, "Linecard3", oneFap, "", { "--metrics", file, "--audit", "2" } );
   EXPECT_TRUE( soon( [&] {
      return has( agent.log(), "l3sm: " + file + ": metrics can't be written: No such file or directory\n" );
   } ) )
      << agent.log();
   EXPECT_EQ( agent.phase(), "running" ) << "and goes on";
}

TEST( ServedLife, refusesAnAddressForItsMetricsThatOthersReach ) {
   Folder const folder;
   ServedAgent agent( folder, "Linecard3", oneFap, "", { "--metrics", "0.0.0.0:9109" } );
   EXPECT_EQ( agent.ended(), 2 );
   EXPECT_TRUE( has(
      agent.log(), "l3sm: --metrics 0.0.0.0:9109: expected a loopback address and a port, such as 127.0.0.1:9109\n" ) )
      << agent.log();
}

TEST( ServedLife, letsItsChipsFailByASeed ) {
   Folder const folder;
   ServedAgent agent( folder, "Linecard3", oneFap, "", { "--fault-seed", "17", "--audit", "2" } );
   EXPECT_TRUE( soon( [&] { return has( agent.ctl( "fault list" ), "\"number\": 1," ); } ) ) << agent.log();
   EXPECT_EQ( agent.endsBy( SIGTERM ), 0 ) << agent.log();
}

TEST( ServedLife, hasChipsOfItsOwnWhereTheServiceManagerCantKeepThem ) {
   Folder const folder;
   ::setenv( "NOTIFY_SOCKET", ( folder / "nobody" ).c_str(), 1 );
   ServedAgent agent( folder, "Linecard3", oneFap, "" );
   ::unsetenv( "NOTIFY_SOCKET" );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   EXPECT_TRUE( has( agent.log(), "l3sm: the service manager can't keep chips: No such file or directory\n" ) )
      << agent.log();
   EXPECT_TRUE( has( agent.ctl( "show" ), "\"IppdFerTrapCfg\"" ) );
}

TEST( ServedLife, saysWhatItWasAtWhenAnAssertionEndsIt ) {
   Folder const folder;
   ServedAgent agent( folder,
                      "Linecard3",
                      R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7}}]},
                          "state": {"evpn/status": null}})",
                      "" );
   EXPECT_EQ( agent.ended(), 128 + SIGABRT );
   EXPECT_TRUE( has( agent.log(), "event 0: start" ) ) << agent.log();
   EXPECT_TRUE( has( agent.log(), "suspicious: the state leaves out evpn/status (null)" ) ) << agent.log();
}

TEST( ServedLife, saysItsLastStepsFirstWhenAnAssertionEndsIt ) {
   Folder const folder;
   ServedAgent agent( folder,
                      "Linecard3",
                      R"({"switch": {"faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7}}]},
                          "state": {"routing/mpls/routingInfo/status": {"mplsLookupLabelCount": 3}}})",
                      "" );
   EXPECT_EQ( agent.ended(), 128 + SIGABRT );
   auto const log = agent.log();
   auto const steps = log.find( "The last steps, of " );
   auto const step = log.find( "DaceFapNiL3Vxlan/9 VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg VXLAN configured: " );
   ASSERT_NE( steps, std::string::npos ) << log;
   ASSERT_NE( step, std::string::npos ) << log;
   EXPECT_LT( steps, step );
   EXPECT_LT( step, log.find( "event 0: start" ) ) << log;
}

TEST( ServedLife, refusesToServeASliceThatIsServed ) {
   Folder const folder;
   Folder const other;
   RedisServer server;
   loadByHand( server );
   ServedAgent agent( folder, "Linecard3", oneFap, server.url() );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   ServedAgent second( other, "Linecard3", oneFap, server.url() );
   EXPECT_EQ( second.ended(), 2 ) << second.log();
   EXPECT_TRUE( has( second.log(), std::to_string( agent.process() ) ) ) << second.log();
   EXPECT_EQ( agent.phase(), "running" );

   // One that was killed is followed at once by another on the same machine.
   agent.dies();
   agent.starts();
   EXPECT_TRUE( agent.isSoon( "running" ) ) << agent.log();
}

TEST( ServedLife, takesNoEventsAndNoDatabaseThatItDoesntKnow ) {
   Folder const folder;
   std::string const events =
      R"(, "events": [{"set": {"path": "evpn/status", "attribute": "vxlanEnabled", "value": true}}]})";
   ServedAgent agent( folder, "Linecard3", std::string( oneFap, std::string( oneFap ).size() - 1 ) + events, "" );
   EXPECT_EQ( agent.ended(), 2 );
   EXPECT_TRUE( has( agent.log(), "an agent's events come from its database" ) ) << agent.log();
   ServedAgent other( folder, "Linecard4", oneFap, "mysql://here" );
   EXPECT_EQ( other.ended(), 2 );
   EXPECT_TRUE( has( other.log(), "begins with none of redis://, redis+unix://, etcd://, etcds://" ) ) << other.log();
}

} // namespace
