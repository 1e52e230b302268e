// How a run ends: interrupted, killed, by an assertion of the plug-in. Every event before is in the journal.
#include "l3sm/Running.h"

#include "inspection/files/Json.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <regex>
#include <set>

namespace {

using Rex::Value;

std::string toggling( int events ) {
   std::string list;
   for ( int event = 0; event < events; ++event ) {
      list += std::string( event ? ",\n" : "" ) +
              R"({"set": {"path": "routing/hardware/config", "attribute": "urpfLooseFailForward", "value": )" +
              ( event % 2 ? "false" : "true" ) + "}}";
   }
   return list;
}

std::string longScenario( int events = 100000 ) {
   return scenarioWith( R"(, "events": [)" + toggling( events ) + "]" );
}

struct Journal {
   std::vector< std::size_t > writes; // by event
   std::string ended;                 // how; empty: nothing tells
   std::size_t events = 0;            // that the end tells
   bool isCut = false;                // its last line is
   Value end;
};

Journal journalOf( std::string const & text ) {
   Journal journal;
   journal.isCut = !text.empty() && text.back() != '\n';
   std::istringstream in( text.substr( 0, text.rfind( '\n' ) + 1 ) );
   for ( std::string line; std::getline( in, line ); ) {
      auto const row = Inspection::parseJson( line, "journal" );
      auto const & members = *row.object();
      auto const op = *members.at( "op" ).text();
      if ( op == "event" ) {
         EXPECT_EQ( members.at( "event" ), Value( journal.writes.size() ) );
         journal.writes.push_back( 0 );
      } else if ( op == "write" ) {
         ++journal.writes.back();
      } else if ( op == "end" ) {
         journal.ended = *members.at( "ended" ).text();
         journal.events = static_cast< std::size_t >( *members.at( "events" ).integer() );
         journal.end = row;
      }
   }
   return journal;
}

// Every event before `last` wrote what it writes.
void expectWhole( Journal const & journal, std::size_t last ) {
   ASSERT_GT( journal.writes.size(), last );
   EXPECT_GT( journal.writes.front(), 1000u );
   for ( std::size_t event = 1; event < last; ++event ) {
      ASSERT_EQ( journal.writes[event], 1u ) << event;
   }
}

std::size_t someEvent() {
   static std::random_device device;
   return std::uniform_int_distribution< std::size_t >( 2, 400 )( device );
}

TEST( Ending, killedLeavesEveryEarlierEventInTheJournal ) {
   std::size_t const event = someEvent();
   Running l3sm( "run s.json --journal j", { { "s.json", longScenario() } } );
   ASSERT_TRUE( l3sm.waitsForEvent( "j", event ) );
   l3sm.kill( SIGKILL );
   EXPECT_EQ( l3sm.wait(), 128 + SIGKILL );
   auto const journal = journalOf( l3sm.file( "j" ) );
   EXPECT_EQ( journal.ended, "" );
   expectWhole( journal, std::max( event, journal.writes.size() - 1 ) );
}

TEST( Ending, interruptedCompletesTheEventAndTheFiles ) {
   for ( int const signal : { SIGTERM, SIGINT } ) {
      std::size_t const event = someEvent();
      Running l3sm( "run s.json --journal j --chips c --state s", { { "s.json", longScenario() } } );
      ASSERT_TRUE( l3sm.waitsForEvent( "j", event ) );
      l3sm.kill( signal );
      EXPECT_EQ( l3sm.wait(), 128 + signal );
      auto const journal = journalOf( l3sm.file( "j" ) );
      EXPECT_FALSE( journal.isCut );
      EXPECT_EQ( journal.ended, "interrupted" );
      EXPECT_GE( journal.events, event );
      ASSERT_EQ( journal.writes.size(), journal.events + 1 );
      expectWhole( journal, journal.events );
      EXPECT_EQ( journal.writes.back(), 1u );
      EXPECT_NE( l3sm.output().find( "Interrupted after event " + std::to_string( journal.events ) + " of 100000\n" ),
                 std::string::npos );
      EXPECT_TRUE( Inspection::parseJson( l3sm.file( "c" ), "c" ).object()->contains( "faps" ) );
      EXPECT_TRUE( Inspection::parseJson( l3sm.file( "s" ), "s" ).object()->contains( "evpn/status" ) );
      EXPECT_EQ( l3sm.errors(), "" );
   }
}

TEST( Ending, atOnceAtTheSecondSignal ) {
   // Nobody reads on after some events: the process waits for room in the pipe, in the middle of an event.
   Running l3sm( "run s.json --journal j", { { "s.json", longScenario() } }, { "j" } );
   l3sm.readsFrom( "j", 100000 );
   l3sm.kill( SIGTERM );
   ASSERT_TRUE( l3sm.waitsUntilNotCaught( SIGTERM ) ); // the first was noted
   l3sm.kill( SIGTERM );
   EXPECT_EQ( l3sm.wait(), 128 + SIGTERM );
   EXPECT_EQ( l3sm.output(), "" );
}

// Events, and then one that the plug-in can't live with: a port becomes active before its interface has a status.
std::string failingScenario( std::size_t events ) {
   auto scenario = scenarioWith(
      R"(, "state": {"vxlan/ecnConfig": null,
             "shared/phySmStateData": {"allEthPhyIntfConfigDir": {"intfConfig": {"Ethernet7": {}}}}},
           "events": [)" +
      toggling( static_cast< int >( events ) ) +
      R"(, {"set": {"path": "shared/portStateInfo", "attribute": "portState", "key": "11",
                    "value": {"active": true, "intfId": "Ethernet7"}}}, )" +
      toggling( 3 ) + "]" );
   auto const toggles = scenario.find( R"("Dace.json")" );
   return scenario.insert( toggles, R"("VeloroSAI.json": {"VeloroSAIMode": false}, )" );
}

TEST( Ending, byAnAssertionLeavesEverythingUpToThere ) {
   std::size_t const event = someEvent();
   Command const l3sm( "run s.json --journal j --chips c --state s --report r.html",
                       { { "s.json", failingScenario( event ) } } );
   EXPECT_EQ( l3sm.status, 128 + SIGABRT );
   auto const journal = journalOf( l3sm.file( "j" ) );
   EXPECT_FALSE( journal.isCut );
   EXPECT_EQ( journal.ended, "assertion" );
   EXPECT_EQ( journal.events, event + 1 );
   ASSERT_EQ( journal.writes.size(), event + 2 );
   expectWhole( journal, event + 1 );
   for ( char const * part : { "text", "function", "source" } ) {
      EXPECT_NE( *journal.end.object()->at( part ).text(), "" ) << part;
   }
   EXPECT_TRUE( Inspection::parseJson( l3sm.file( "c" ), "c" ).object()->contains( "faps" ) );
   EXPECT_TRUE( Inspection::parseJson( l3sm.file( "s" ), "s" ).object()->contains( "evpn/status" ) );
   EXPECT_NE( l3sm.file( "r.html" ).find( "</html>" ), std::string::npos );
   EXPECT_NE( l3sm.output.find( "Ended by an assertion in event " + std::to_string( event + 1 ) + " of " ),
              std::string::npos );
}

TEST( Ending, byAnAssertionTellsLastWhereItHappenedAndWhatIsSuspicious ) {
   Command const l3sm( "run s.json", { { "s.json", failingScenario( 2 ) } } );
   EXPECT_EQ( l3sm.status, 128 + SIGABRT );
   auto const assertion = l3sm.errors.find(
      "Assertion `ptr != nullptr' failed.\nno DaceFapNi::L3IntfSm::RexIpIntfConfigFilter::RexIntfStatus\n" );
   ASSERT_NE( assertion, std::string::npos ) << l3sm.errors;
   auto const last = l3sm.errors.find( "The run ended by an assertion: ptr != nullptr, no " );
   ASSERT_NE( last, std::string::npos ) << l3sm.errors;
   EXPECT_LT( assertion, last );
   std::string const words = l3sm.errors.substr( last );
   for ( std::string const line :
         { "  event 3: set shared/portStateInfo portState[11] = {\"active\": true, \"intfId\": \"Ethernet7\"}\n",
           "  FAP: none was worked on in this event\n",
           "  function: L3IntfSm::RexIpIntfConfigFilter::handleInitialized in libL3SmPlugin.so, which called ",
           "  cause: shared/portStateInfo portState\n",
           "  suspicious: port 11 is active and its interface Ethernet7 is configured, but "
           "shared/phySmStateSharedStatus/allEthPhyIntfStatusDir/intfStatus has no Ethernet7\n",
           "  suspicious: the state leaves out vxlan/ecnConfig (null)\n" } ) {
      EXPECT_NE( words.find( line ), std::string::npos ) << line << "\n" << words;
   }
}

// Without any level being switched on.
TEST( Ending, byAnAssertionTellsTheLastStepsFromTheRingBuffer ) {
   Command const l3sm( "run s.json --quiet --ring ring", { { "s.json", failingScenario( 2 ) } } );
   EXPECT_EQ( l3sm.status, 128 + SIGABRT );
   std::string const step = "DaceFapNiL3Sm/8 handleInitialized: slot:0 Load Balance Config not ready\n";
   EXPECT_NE( l3sm.file( "ring" ).find( step ), std::string::npos ) << l3sm.file( "ring" );
   auto const steps = l3sm.errors.find( "The last steps, of " );
   ASSERT_NE( steps, std::string::npos ) << l3sm.errors;
   auto const report = l3sm.errors.find( "The run ended by an assertion: " );
   auto const told = l3sm.errors.substr( steps, report - steps );
   EXPECT_NE( told.find( "  " + step ), std::string::npos ) << told;
   EXPECT_LE( std::ranges::count( told, '\n' ), 21 );
}

TEST( Ending, completeLeavesTheRingBufferInItsFile ) {
   Command const l3sm( "run s.json --quiet --ring ring", { { "s.json", scenarioWith( "" ) } } );
   EXPECT_EQ( l3sm.status, 0 );
   auto const ring = l3sm.file( "ring" );
   EXPECT_NE( ring.find( "DaceFapNiL3Sm/8 handleInitialized: slot:0 " ), std::string::npos ) << ring;
}

TEST( Ending, atTheStartTellsTheFapThatWasWorkedOn ) {
   Command const l3sm( "run s.json --journal j",
                       { { "s.json", scenarioWith( R"(, "state": {"shared/sliceSmStateData": {"smMode": 0}})" ) } } );
   EXPECT_EQ( l3sm.status, 128 + SIGABRT );
   EXPECT_NE( l3sm.errors.find( "Assertion `sliceSmState()->smMode() != Hardware::Dace::smModeNull()' failed.\n" ),
              std::string::npos )
      << l3sm.errors;
   EXPECT_NE( l3sm.errors.find( "  event 0: start\n  FAP: 0, the last that was worked on\n" ), std::string::npos )
      << l3sm.errors;
   EXPECT_NE( l3sm.errors.find( "  suspicious: shared/sliceSmStateData smMode is 0, which no slice in service has\n" ),
              std::string::npos )
      << l3sm.errors;
   EXPECT_EQ( journalOf( l3sm.file( "j" ) ).ended, "assertion" );
}

// Of what contradicts the chip, that which has been played.
TEST( Ending, namesWhatContradictsTheChip ) {
   std::string const text = "{\"switch\": {\"faps\": [{\"fapId\": 0, \"revision\": {\"chipType\": \"BCM88850_A0\",\n"
                            "\"major\": 5}}]}, \"toggles\": {\"Dace.json\": {\"ArmOrderedSwTable\": false}},\n"
                            "\"events\": [{\"set\": {\"path\": \"routing/hardware/route/status\", "
                            "\"attribute\": \"prefixLensInExactMatch\", \"key\": \"1\", \"value\": 64}}]}";
   Command const l3sm( "run s.json", { { "s.json", text } } );
   EXPECT_EQ( l3sm.status, 128 + SIGABRT );
   EXPECT_NE( l3sm.errors.find( "arrayIndex >= 3" ), std::string::npos ) << l3sm.errors;
   EXPECT_NE( l3sm.errors.find( "  suspicious: s.json:2:10: the major revision 5 is that of a BCM88690_B0; "
                                "a BCM88850_A0 has 8\n" ),
              std::string::npos )
      << l3sm.errors;
   auto const last = l3sm.errors.substr( l3sm.errors.find( "The run ended by an assertion" ) );
   EXPECT_EQ( last.find( "an IPv4 prefix" ), std::string::npos ) << last;
}

TEST( Ending, byAnAssertionTellsWhatFailedAlsoWhereAFileCannotBeWritten ) {
   std::string const tooManyCores =
      R"({"switch": {"faps": [{"fapId": 0, "cores": 3, "revision": {"chipType": "BCM88690_B0"}}]},
          "toggles": {"Dace.json": {"ArmOrderedSwTable": false}}})";
   Command const l3sm( "run s.json --quiet --chips /dev/full", { { "s.json", tooManyCores } } );
   EXPECT_EQ( l3sm.status, 128 + SIGABRT );
   auto const full = l3sm.errors.find( "l3sm: /dev/full: can't be written: No space left on device\n" );
   auto const failed =
      l3sm.errors.find( "The run ended by an assertion: \"fapPortId <= recircPortCoreMax\" == nullptr, " );
   EXPECT_NE( full, std::string::npos ) << l3sm.errors;
   EXPECT_NE( failed, std::string::npos ) << l3sm.errors;
}

} // namespace
