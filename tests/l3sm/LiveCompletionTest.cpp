// What can follow on a line for a central database or a running agent.
#include "agent/control/ControlSocket.h"
#include "l3sm/Completions.h"

#include <gtest/gtest.h>

namespace {

TEST( LiveCompletion, offersTheActionsOfState ) {
   EXPECT_EQ( completions( { "l3sm", "state", "" } ),
              ( Names{ "get", "set", "delete", "load", "apply", "watch", "wait" } ) );
   EXPECT_EQ( completions( { "l3sm", "state", "wa" } ), ( Names{ "watch", "wait" } ) );
}

TEST( LiveCompletion, offersBehindAnActionOfStateThePathAndItsAttributes ) {
   EXPECT_EQ( completions( { "l3sm", "state", "set", "evpn/" } ), Names{ "evpn/status" } );
   EXPECT_EQ( completions( { "l3sm", "state", "set", "evpn/status", "" } ),
              ( Names{ "vxlanEnabled", "mplsEnabled", "evpnDciEnabled" } ) );
   EXPECT_EQ( completions( { "l3sm", "state", "delete", "evpn/status", "mp" } ), Names{ "mplsEnabled" } );
   EXPECT_EQ( completions( { "l3sm", "state", "set", "interface/status/eth/vxlan/vtiStatus/Vxlan1", "sec" } ),
              Names{ "secUdpPort" } );
   EXPECT_EQ( completions( { "l3sm", "state", "set", "nowhere", "" } ), Names{} );
   EXPECT_EQ( completions( { "l3sm", "state", "set", "evpn/status", "mplsEnabled", "" } ), Names{} ); // a value
}

TEST( LiveCompletion, leavesTheFilesOfStateToTheShell ) {
   EXPECT_EQ( completions( { "l3sm", "state", "load", "" } ), Names{ ":files" } );
   EXPECT_EQ( completions( { "l3sm", "state", "apply", "" } ), Names{ ":files" } );
}

TEST( LiveCompletion, offersWhatAnAgentTakes ) {
   EXPECT_EQ( completions( { "l3sm", "ctl", "s" } ), ( Names{ "show", "state", "status" } ) );
   EXPECT_EQ( completions( { "l3sm", "ctl", "--agent", "Linecard3", "fre" } ), Names{ "freeze" } );
   EXPECT_EQ( completions( { "l3sm", "ctl", "--json", "th" } ), Names{ "thaw" } );
   EXPECT_EQ( completions( { "l3sm", "ctl", "-t", "Linecard3", "fre" } ), Names{ "freeze" } );
   EXPECT_EQ( completions( { "l3sm", "ctl", "-tLinecard3", "fre" } ), Names{ "freeze" } );
   EXPECT_EQ( completions( { "l3sm", "ctl", "-t", "Linecard3", "--timeout", "5", "state", "set", "evpn/" } ),
              Names{ "evpn/status" } );
   EXPECT_EQ( completions( { "l3sm", "ctl", "freeze", "" } ), Names{} );
   EXPECT_EQ( completions( { "l3sm", "ctl", "" } ),
              ( Names{ "list",
                       "status",
                       "show",
                       "why",
                       "diff",
                       "plan",
                       "state",
                       "trace",
                       "record",
                       "fault",
                       "audit",
                       "repair",
                       "freeze",
                       "thaw",
                       "metrics",
                       "exit" } ) );
}

TEST( LiveCompletion, offersBehindAnAgentsCommandItsSecondWord ) {
   EXPECT_EQ( completions( { "l3sm", "ctl", "state", "" } ), ( Names{ "set", "delete", "apply" } ) );
   EXPECT_EQ( completions( { "l3sm", "ctl", "record", "" } ), ( Names{ "start", "mark", "stop" } ) );
   EXPECT_EQ( completions( { "l3sm", "ctl", "trace", "" } ), ( Names{ "list", "set", "ring" } ) );
   EXPECT_EQ( completions( { "l3sm", "ctl", "fault", "" } ), ( Names{ "add", "list", "clear" } ) );
   EXPECT_EQ( completions( { "l3sm", "ctl", "audit", "" } ), ( Names{ "run", "status" } ) );
   EXPECT_EQ( completions( { "l3sm", "ctl", "trace", "l" } ), Names{ "list" } );
   EXPECT_EQ( completions( { "l3sm", "ctl", "trace", "s" } ), Names{ "set" } );
}

TEST( LiveCompletion, offersWhatAnAgentsCommandIsAbout ) {
   EXPECT_EQ( completions( { "l3sm", "ctl", "state", "set", "evpn/" } ), Names{ "evpn/status" } );
   EXPECT_EQ( completions( { "l3sm", "ctl", "trace", "set", "DaceFapNiMpls" } ), Names{ "DaceFapNiMplsParser" } );
   EXPECT_EQ( completions( { "l3sm", "ctl", "state", "apply", "" } ), Names{ ":files" } );
   EXPECT_EQ( completions( { "l3sm", "ctl", "plan", "" } ), Names{ ":files" } );
}

TEST( LiveCompletion, offersOfAVerbThatAnAgentAnswersWhatItTakes ) {
   EXPECT_EQ( completions( { "l3sm", "show", "--agent", "Linecard3", "IppdFer" } ), Names{ "IppdFerTrapCfg" } );
   EXPECT_EQ( completions( { "l3sm", "why", "--agent=Linecard3", "IppdFerTrapCfg.cpuStr" } ),
              Names{ "IppdFerTrapCfg.cpuStrengthN" } );
   EXPECT_EQ( completions( { "l3sm", "diff", "--agent", "Linecard3", "" } ), Names{ ":files" } );
   EXPECT_EQ( completions( { "l3sm", "diff", "--agent", "Linecard3", "chips.json", "" } ), Names{} );
   EXPECT_EQ( completions( { "l3sm", "ctl", "-t", "Linecard3", "show", "IppdFer" } ), Names{ "IppdFerTrapCfg" } );
   EXPECT_EQ( completions( { "l3sm", "ctl", "show", "IppdFerTrapCfg", "--fa" } ), Names{ "--fap" } );
   EXPECT_EQ( completions( { "l3sm", "ctl", "--timeout", "5", "why", "--ga" } ), Names{ "--gates" } );
   EXPECT_EQ( completions( { "l3sm", "ctl", "diff", "--ag" } ), Names{ "--agent" } ); // a second one
   EXPECT_EQ( completions( { "l3sm", "ctl", "show", "--ag" } ), Names{} );
   EXPECT_EQ( completions( { "l3sm", "ctl", "status", "--js" } ), Names{ "--json" } );
}

// Whichever run on this machine.
TEST( LiveCompletion, offersTheAgentsThatHaveASocket ) {
   auto const slices = Live::slicesThere();
   Names const there( slices.begin(), slices.end() );
   EXPECT_EQ( completions( { "l3sm", "ctl", "--agent", "" } ), there );
   EXPECT_EQ( completions( { "l3sm", "ctl", "-t", "" } ), there );
   EXPECT_EQ( completions( { "l3sm", "show", "--agent", "" } ), there );
   EXPECT_EQ( completions( { "l3sm", "show", "--agent", "/no/slice/has/this/name" } ), Names{} );
}

TEST( LiveCompletion, offersWhatToDoAboutADrift ) {
   EXPECT_EQ( completions( { "l3sm", "serve", "s.json", "--on-drift", "" } ), ( Names{ "commit", "hold" } ) );
}

} // namespace
