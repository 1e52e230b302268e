// Names come from outside, and answers go to terminals, where control characters would move the cursor or recolour the
// screen: what a scenario names is shown with them written out.
#include "l3sm/Command.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

// A scenario in which everything that can be named is named so.
std::string scenarioWithCharacters() {
   std::string const odd = R"(\u001b[31mX\rY\u0007\n\u0085)";
   return R"({"name": "a )" + odd + R"(", "switch": {"slice": {"name": "Line)" + odd +
          R"("}, "faps": [{"fapId": 0, "name": "Fap)" + odd +
          R"(", "cores": 2, "ports": {"1": 10},
            "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}}]},
 "state": {"interface/status/eth/vxlan": {"vtiStatus": {"Vx)" +
          odd + R"(": {}}},
           "shared/portStateInfo": {"portState": {"11": {"active": true, "intfId": "Eth)" +
          odd + R"("}}}},
 "events": [{"set": {"path": "interface/status/eth/vxlan", "attribute": "vtiStatus", "key": "V)" +
          odd + R"(", "value": {}}}]})";
}

std::size_t controlsIn( std::string const & text ) {
   return static_cast< std::size_t >( std::ranges::count_if(
      text, []( char const c ) { return ( static_cast< unsigned char >( c ) < 0x20 && c != '\n' ) || c == 0x7f; } ) );
}

TEST( ControlCharacters, reachNoTerminal ) {
   Command const made( "run s.json --quiet --journal j --chips c", { { "s.json", scenarioWithCharacters() } } );
   Command::Files const files{
      { "s.json", scenarioWithCharacters() }, { "j", made.file( "j" ) }, { "c", made.file( "c" ) } };
   for ( char const * const line : { "run s.json --event all --interfaces",
                                     "run s.json --quiet --trace '*/9'",
                                     "plan s.json",
                                     "check s.json",
                                     "compare s.json",
                                     "why j interface/status/eth/vxlan",
                                     "why j IppdFerTrapCfg",
                                     "replay j",
                                     "show c IppdFerTrapCfg",
                                     "diff c c",
                                     "run s.json --fap 7" } ) {
      Command const l3sm( line, files );
      EXPECT_NE( l3sm.output + l3sm.errors, "" ) << line;
      EXPECT_EQ( controlsIn( l3sm.output ), 0u ) << line << "\n" << l3sm.output;
      EXPECT_EQ( controlsIn( l3sm.errors ), 0u ) << line << "\n" << l3sm.errors;
   }
}

// A journal says in its rows which function did something, where it stands, what it was called for and what stopped it.
TEST( ControlCharacters, ofTheTextsInAJournalReachNoTerminal ) {
   Command const made( "run '" L3SM_SOURCE_DIR "/examples/urpf-and-ip-traps.json' --quiet --journal j" );
   for ( char const * const odd : { "\033[31m", R"(\u001b[31m)" } ) {
      std::string journal = made.file( "j" );
      for ( char const * const text : { "reason", "function", "source", "cause" } ) {
         std::string const begin = std::string( "\"" ) + text + "\": \"";
         for ( auto at = journal.find( begin ); at != std::string::npos; at = journal.find( begin, at ) ) {
            at += begin.size();
            journal.insert( at, odd );
         }
      }
      for ( char const * const line : { "why j IppdFerTrapCfg.cpuStrengthN",
                                        "why j L3SmMounter::createPluginStatePhase2 --gates",
                                        "bisect j IppdFerTrapCfg.cpuStrengthN=5" } ) {
         Command const l3sm( line, { { "j", journal } } );
         EXPECT_EQ( controlsIn( l3sm.output + l3sm.errors ), 0u ) << line << "\n" << l3sm.output << l3sm.errors;
         EXPECT_NE( ( l3sm.output + l3sm.errors ).find( "\\x1b[31m" ), std::string::npos ) << line << "\n"
                                                                                           << l3sm.output;
      }
   }
}

} // namespace
