// Chips that fail under a running agent, and chips that outlive it.
#include "BuildFolder.h"
#include "Served.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::Not;

std::string switchWith( std::string const & faps, bool isDci ) {
   return R"({"switch": {"faps": [)" + faps + R"(]}, "toggles": {"Dace.json": {"ArmOrderedSwTable": false}},)" +
          R"( "state": {"evpn/status": {"evpnDciEnabled": )" + ( isDci ? "true" : "false" ) + "}}}";
}
std::string fap( int number ) {
   return R"({"fapId": )" + std::to_string( number ) +
          R"(, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}})";
}
std::string const one = switchWith( fap( 0 ), false );

struct ServedChips : testing::Test {
   Folder const folder;

   static std::string setDci( char const * value ) {
      return std::string( "state set evpn/status evpnDciEnabled " ) + value;
   }
   static std::string metric( ServedAgent const & agent, std::string const & name ) {
      auto const text = agent.output( "ctl --socket '" + agent.socket() + "' metrics" );
      auto const at = text.find( "\n" + name + " " );
      return at == std::string::npos
                ? "none"
                : text.substr( at + name.size() + 2, text.find( '\n', at + 1 ) - at - name.size() - 2 );
   }
};

TEST_F( ServedChips, areRepairedWhereABitHasTurned ) {
   ServedAgent agent( folder, "Linecard3", one, "" );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   auto const before = agent.ctl( "show" );
   EXPECT_THAT( agent.ctl( "audit status" ), HasSubstr( "\"period\": 60" ) ); // unless another is named
   EXPECT_THAT( agent.ctl( "fault add 'IppdFerTrapCfg[3]' --copy 1 --kind flip:7" ), HasSubstr( "\"fired\": 1" ) );
   EXPECT_NE( agent.ctl( "show" ), before );
   EXPECT_THAT( agent.ctl( "audit run" ), HasSubstr( "\"mismatches\": 1,\n \"repaired\": 1" ) );
   EXPECT_EQ( agent.ctl( "show" ), before );
   EXPECT_THAT( agent.ctl( "audit status" ),
                HasSubstr( R"({"bits": [7], "event": 1, "fap": 0, "fields": {"cpuSnoopCodeN": )" ) );
   EXPECT_THAT( agent.log(), HasSubstr( "FAP 0 IppdFerTrapCfg[3] copy 1: cpuSnoopCodeN is " ) );
   EXPECT_EQ( metric( agent, R"(l3sm_audit_mismatches_total{fap="0",kind="soft"})" ), "1" );
   EXPECT_EQ( metric( agent, R"(l3sm_repairs_total{fap="0",result="repaired"})" ), "1" );
   EXPECT_EQ( metric( agent, R"(l3sm_faults_injected_total{kind="flip"})" ), "1" );
}

TEST_F( ServedChips, areGivenUpWhereABitIsStuckUntilTheyAreTriedAgain ) {
   ServedAgent agent( folder, "Linecard3", one, "" );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   auto const before = agent.ctl( "show" );
   agent.ctl( "fault add 'IppdFerTrapCfg[3]' --copy 1 --kind stuck:7=1" );
   EXPECT_THAT( agent.ctl( "audit run" ), HasSubstr( "\"hard\": 0,\n \"mismatches\": 1,\n \"repaired\": 0" ) );
   EXPECT_THAT( agent.ctl( "audit run" ), HasSubstr( "\"hard\": 1,\n \"mismatches\": 1,\n \"repaired\": 0" ) );
   EXPECT_EQ( metric( agent, R"(l3sm_audit_mismatches_total{fap="0",kind="hard"})" ), "1" );
   EXPECT_THAT( agent.ctl( "fault clear" ), HasSubstr( "\"cleared\": 1" ) );
   agent.ctl( "audit run" );
   EXPECT_NE( agent.ctl( "show" ), before ); // it is left
   EXPECT_THAT( agent.ctl( "audit status" ), Not( HasSubstr( "\"hard\": []" ) ) );
   EXPECT_THAT( agent.ctl( "repair" ), HasSubstr( "\"repaired\": 1" ) );
   EXPECT_EQ( agent.ctl( "show" ), before );
   EXPECT_THAT( agent.ctl( "audit status" ), HasSubstr( "\"hard\": []" ) );
}

TEST_F( ServedChips, areLeftAloneWhereTheyRefuseWhileTheOthersGoOn ) {
   ServedAgent agent( folder, "Linecard3", switchWith( fap( 0 ) + "," + fap( 1 ), false ), "" );
   ServedAgent right( folder, "Linecard4", switchWith( fap( 0 ) + "," + fap( 1 ), false ), "" );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   ASSERT_TRUE( right.isSoon( "running" ) ) << right.log();
   auto const showOf = []( ServedAgent const & of, int number ) {
      return of.output( "ctl --socket '" + of.socket() + "' show --json --fap " + std::to_string( number ) );
   };
   auto const before = showOf( agent, 0 );
   agent.ctl( "fault add --fap 0 --kind error" );
   agent.ctl( setDci( "true" ) );
   right.ctl( setDci( "true" ) );
   EXPECT_TRUE( agent.isSoon( "degraded" ) ) << agent.log();
   EXPECT_THAT( agent.ctl( "status" ), HasSubstr( "\"reason\": \"FAP 0: " ) );
   EXPECT_EQ( showOf( agent, 0 ), before );
   EXPECT_EQ( showOf( agent, 1 ), showOf( right, 1 ) );
   agent.ctl( "fault clear" );
   EXPECT_EQ( agent.phase(), "degraded" ); // nobody has looked
   EXPECT_THAT( agent.ctl( "repair" ), HasSubstr( "\"phase\": \"running\"" ) );
   EXPECT_EQ( showOf( agent, 0 ), showOf( right, 0 ) );
}

TEST_F( ServedChips, areAsTheyWereWhenTheirAgentStartsAgainAndRepairedWhereTheyHaveChangedMeanwhile ) {
   ServedAgent agent( folder, "Linecard3", one, "", { "--chips-file", folder / "chips", "--audit", "0" } );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   auto const before = agent.ctl( "show" );
   for ( char const * const told :
         { "1 agent had before; 0 places were wrong", "2 agents had before; 1 place was wrong" } ) {
      agent.dies();
      agent.starts();
      ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
      EXPECT_THAT( agent.log(), HasSubstr( "the chips are those that " + std::string( told ) ) );
      EXPECT_EQ( agent.ctl( "show" ), before );
      EXPECT_EQ( metric( agent, "l3sm_start_changing_writes" ), "0" );
      agent.ctl( "fault add IppdFerTrapCfg[3] --copy 0 --kind flip:3" );
   }
}

TEST_F( ServedChips, failAgainAsTheyDidWhereWhatWasRecordedIsPlayed ) {
   std::filesystem::create_directory( folder / "records" );
   ServedAgent agent( folder, "Linecard3", one, "", { "--record", folder / "records" } );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   agent.ctl( "fault add IppdFerTrapCfg[3] --copy 0 --kind flip:3" );
   agent.ctl( setDci( "true" ) );
   agent.endsBy( SIGTERM );
   EXPECT_THAT( agent.output( "replay '" + ( folder / "records" ) + "'" ),
                HasSubstr( "every one did what it did then\n" ) );
   EXPECT_THAT( agent.output( "replay '" + ( folder / "records" ) + "' --to-scenario /dev/stdout" ),
                HasSubstr( "\"fault\"" ) );
}

TEST_F( ServedChips, areHeldAsTheyAreUntilSomebodyDecides ) {
   ServedAgent agent(
      folder, "Linecard3", one, "", { "--chips-file", folder / "chips", "--on-drift", "hold", "--audit", "0" } );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   auto const right = agent.ctl( "show" );
   agent.ctl( "fault add IppdFerTrapCfg[3] --copy 0 --kind flip:3" );
   auto const before = agent.ctl( "show" );
   EXPECT_NE( before, right );
   agent.dies();
   folder.file( "Linecard3.json", switchWith( fap( 0 ), true ) );
   agent.starts();
   ASSERT_TRUE( agent.isSoon( "held" ) ) << agent.log();
   EXPECT_EQ( agent.ctl( "show" ), before );
   EXPECT_THAT( agent.ctl( "status" ), Not( HasSubstr( "\"drift\": 0" ) ) );
   EXPECT_EQ( metric( agent, "l3sm_start_changing_writes" ), "0" ); // none yet
   agent.ctl( setDci( "false" ) );                                  // waits likewise
   EXPECT_EQ( agent.ctl( "show" ), before );
   EXPECT_THAT( agent.ctl( "repair" ), HasSubstr( "\"phase\": \"running\"" ) );
   ASSERT_TRUE( agent.isSoon( "running" ) );
   EXPECT_THAT( agent.ctl( "status" ), HasSubstr( "\"drift\": 0" ) );
   EXPECT_EQ( agent.ctl( "show" ), right ); // committed, and then taken back
   EXPECT_GT( std::stoi( metric( agent, "l3sm_start_changing_writes" ) ), 0 );
}

// Another build of the plug-in, which writes one constant otherwise.
TEST_F( ServedChips, areGivenByAnUpgradeWhatItsPlanHasTold ) {
   std::string const upgrade = buildFolder() + "/changed/lib/libL3SmPluginChanged.so";
   ServedAgent agent( folder, "Linecard3", one, "", { "--chips-file", folder / "chips" } );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   auto const before = agent.ctl( "show" );
   auto const plan = agent.output( "plan --agent '" + agent.socket() + "' --stat --plugin " + upgrade );
   EXPECT_THAT( plan, HasSubstr( "would change 1 entry" ) );
   EXPECT_THAT( plan, HasSubstr( "IppbProgTrapCfg" ) );
   EXPECT_EQ( agent.ctl( "show" ), before );
   EXPECT_THAT( agent.output( "plan --agent '" + agent.socket() + "' --stat --plugin " + buildFolder() +
                              "/lib/libL3SmPlugin.so" ),
                HasSubstr( "Nothing would change: " ) );
   agent.dies();
   agent.moreIs( { "--chips-file", folder / "chips", "--plugin", upgrade } );
   agent.starts();
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   EXPECT_EQ( metric( agent, "l3sm_start_changing_writes" ), "2" ); // its copies
   EXPECT_NE( agent.ctl( "show" ), before );
}

TEST_F( ServedChips, areLeftAsTheyAreWhileTheirAgentIsFrozen ) {
   ServedAgent agent( folder, "Linecard3", one, "" );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   auto const before = agent.ctl( "show" );
   agent.ctl( "freeze" );
   agent.ctl( "fault add IppdFerTrapCfg[3] --copy 0 --kind flip:3" );
   EXPECT_THAT( agent.ctl( "audit run" ), HasSubstr( "\"mismatches\": 1,\n \"repaired\": 0" ) );
   EXPECT_THAT( agent.ctl( "repair" ), HasSubstr( "the chips are to stay as they are while the agent is frozen" ) );
   EXPECT_NE( agent.ctl( "show" ), before );
   agent.ctl( "thaw" );
   EXPECT_THAT( agent.ctl( "audit run" ), HasSubstr( "\"mismatches\": 1,\n \"repaired\": 1" ) );
   EXPECT_EQ( agent.ctl( "show" ), before );
}

TEST_F( ServedChips, beginAnewWhereTheFileIsNoneOfChips ) {
   folder.file( "chips", "{\"state\": {}}" );
   ServedAgent agent( folder, "Linecard3", one, "", { "--chips-file", folder / "chips" } );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   EXPECT_THAT( agent.log(), HasSubstr( "; the chips begin anew\n" ) );
   ServedAgent fresh( folder, "Linecard4", one, "" );
   ASSERT_TRUE( fresh.isSoon( "running" ) ) << fresh.log();
   EXPECT_EQ( agent.ctl( "show" ), fresh.ctl( "show" ) );
}

TEST_F( ServedChips, haveOneAgentAtATime ) {
   ServedAgent agent( folder, "Linecard3", one, "", { "--chips-file", folder / "chips" } );
   ASSERT_TRUE( agent.isSoon( "running" ) ) << agent.log();
   ServedAgent second( folder, "Linecard4", one, "", { "--chips-file", folder / "chips" } );
   EXPECT_EQ( second.ended(), 2 );
   EXPECT_THAT( second.log(), HasSubstr( "l3sm: --chips-file: " ) );
   EXPECT_EQ( agent.phase(), "running" );
}

} // namespace
