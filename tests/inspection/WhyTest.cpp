// Why a chip is as it is, from journals: the chain, its folding, what a gate kept from running, and how a run ended.
#include "inspection/Why.h"

#include "inspection/views/ChainStepText.h"
#include "inspection/views/WhyText.h"
#include "l3sm/Command.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using namespace Inspection;
using Simulator::Row;

std::string const examples = L3SM_SOURCE_DIR "/examples/";

// The journal of an example that was played with `options`.
class Played {
 public:
   explicit Played( std::string const & example, std::string const & options = "" )
      : l3sm_( "run '" + examples + example + ".json' --quiet --journal j " + options ) {
      EXPECT_EQ( l3sm_.status, 0 ) << l3sm_.errors;
   }

   WhyAnswer why( std::string const & subject, WhyFilter const & filter = {} ) const {
      JournalReader journal( path() );
      WhyReader reader( whySubjectOf( subject ), filter );
      return whyOf( journal, reader );
   }
   std::string path() const { return ( l3sm_.folder / "j" ).string(); }

 private:
   Command l3sm_;
};

std::vector< U32 > eventsOf( WhyAnswer const & answer ) {
   std::vector< U32 > events;
   for ( ChainEvent const & event : answer.chain ) {
      events.push_back( event.event );
   }
   return events;
}

TEST( Why, leadsFromAnEventOverAFunctionToAWrite ) {
   auto const answer = Played( "urpf-and-ip-traps" ).why( "IppdFerTrapCfg.cpuStrengthN", { .fap = U16{ 0 } } );
   ASSERT_EQ( eventsOf( answer ), ( std::vector< U32 >{ 3, 2, 1, 0 } ) );
   ChainEvent const & newest = answer.chain.front();
   EXPECT_EQ( newest.input.text(), "routing/hardware/config urpfLooseFailForward = false" );
   ASSERT_EQ( newest.steps.size(), 1u );
   ChainStep const & step = newest.steps.front();
   EXPECT_EQ( step.function, "L3Sm::handleUrpfFailFwdConfig" );
   EXPECT_EQ( step.cause, "routing/hardware/config urpfLooseFailForward" );
   ASSERT_EQ( step.changes.size(), 1u );
   EXPECT_EQ( step.changes.front().befores, std::vector< std::string >{ "0x0" } );
   EXPECT_EQ( step.changes.front().after, "0x5" );
   EXPECT_EQ( step.places, ( std::map< U16, ChainStep::Arrays >{ { 0, { { 3, { 0 } } } } } ) );
}

TEST( Why, keepsTheNewestEventsAndCountsTheOthers ) {
   auto const answer = Played( "urpf-and-ip-traps" ).why( "IppdFerTrapCfg.cpuStrengthN", { .events = 2 } );
   EXPECT_EQ( eventsOf( answer ), ( std::vector< U32 >{ 3, 2 } ) );
   EXPECT_EQ( answer.earlier, 2u );
}

TEST( Why, atAnEventKnowsNothingOfLaterOnes ) {
   Played const played( "urpf-and-ip-traps" );
   EXPECT_EQ( eventsOf( played.why( "IppdFerTrapCfg.cpuStrengthN", { .at = U32{ 2 } } ) ),
              ( std::vector< U32 >{ 2, 1, 0 } ) );
   EXPECT_EQ( eventsOf( played.why( "routing/hardware/config.urpfLooseFailForward", { .at = U32{ 2 } } ) ),
              std::vector< U32 >{ 1 } );
   EXPECT_THROW( played.why( "IppdFerTrapCfg.cpuStrengthN", { .at = U32{ 9 } } ), InputError );
}

TEST( Why, foldsWritesThatLeaveTheSame ) {
   Played const played( "urpf-and-ip-traps" );
   auto const answer = played.why( "FlpKapsStrengthMapping", { .fap = U16{ 0 } } );
   ASSERT_EQ( answer.chain.size(), 1u );
   std::size_t writes = 0;
   for ( ChainStep const & step : answer.chain.front().steps ) {
      writes += step.times;
   }
   EXPECT_GT( writes, 500u );
   EXPECT_LT( answer.chain.front().steps.size(), 10u );
}

TEST( Why, ofABitLeavesOutWhatDidNotChangeIt ) {
   Played const played( "urpf-and-ip-traps" );
   // 0x5: the bits 0 and 2.
   EXPECT_FALSE( played.why( "IppdFerTrapCfg.cpuStrengthN:2", { .event = 3 } ).chain.empty() );
   EXPECT_TRUE( played.why( "IppdFerTrapCfg.cpuStrengthN:1", { .event = 3 } ).chain.empty() );
}

TEST( Why, namesTheGateThatStoppedTheListBeforeTheFunctionThatWrites ) {
   auto const answer = Played( "gate" ).why( "IppdFerTrapCfg.cpuStrengthN" );
   ASSERT_EQ( answer.stopped.size(), 1u );
   StoppedStep const & gate = answer.stopped.front();
   EXPECT_EQ( gate.function, "L3SmMounter::createPluginStatePhase2" );
   EXPECT_EQ( gate.reason, "FAP type 3 is not served while the toggles ArmOrderedSwTable and J2DaceL3Ni are on" );
   EXPECT_EQ( gate.faps, std::set< U16 >{ 0 } );
   EXPECT_EQ( gate.kept, std::vector< std::string >{ "L3Sm::initIppdFerTrapCfgReg" } );
}

TEST( Why, knowsWhatStopsAFunction ) {
   auto const answer = Played( "gate" ).why( "L3Sm::initFlpRpfFormatConfig" );
   EXPECT_TRUE( answer.chain.empty() );
   ASSERT_EQ( answer.stopped.size(), 1u );
   EXPECT_EQ( answer.stopped.front().function, "L3SmMounter::createPluginStatePhase2" );
}

TEST( Why, ofAControlKnowsWhoWouldHaveSetIt ) {
   auto const answer = Played( "gate" ).why( "control.117" );
   EXPECT_TRUE( answer.chain.empty() );
   ASSERT_EQ( answer.stopped.size(), 1u );
   EXPECT_EQ( answer.stopped.front().kept, std::vector< std::string >{ "L3Sm::doSetupVtt5DefaultLif" } );
   EXPECT_THROW( Played( "gate" ).why( "control.7777" ), InputError );
}

TEST( Why, ofAnAttributeTellsAllThatItCaused ) {
   auto const answer = Played( "interface-mtu" ).why( "interface/config/global.l3Mtu" );
   EXPECT_EQ( eventsOf( answer ), ( std::vector< U32 >{ 5, 3 } ) );
   EXPECT_EQ( answer.atStart, Rex::Value( 1500 ) );
   EXPECT_EQ( answer.chain.front().steps.front().kind, Row::Kind::gate );
   EXPECT_EQ( answer.chain.back().steps.front().kind, Row::Kind::publish );
   EXPECT_EQ( answer.chain.back().steps.front().after, Rex::Value( 2000 ) );
}

TEST( Why, ofAnAttributeTellsOfItsEntityThatComesAndGoes ) {
   auto const answer = Played( "vti" ).why( "interface/status/eth/vxlan/vtiStatus/Vxlan1.udpPort" );
   EXPECT_EQ( eventsOf( answer ), ( std::vector< U32 >{ 5, 4, 1 } ) );
}

TEST( Why, ofAPublishedAttributeTellsWhoSetIt ) {
   auto const answer =
      Played( "interface-mtu" ).why( "shared/phySmStateSharedStatus/allEthPhyIntfStatusDir/intfStatus/Ethernet1.mtu" );
   EXPECT_EQ( eventsOf( answer ), ( std::vector< U32 >{ 3, 2, 1, 0 } ) );
   EXPECT_EQ( answer.chain.front().steps.front().cause, "interface/config/global l3Mtu" );
}

TEST( Why, namesWhoHearsOfAnInputWhereAPublicationDoesNotSay ) {
   auto const answer = Played( "interface-mtu" ).why( "interface/config/global.l3Mtu" );
   ASSERT_EQ( eventsOf( answer ), ( std::vector< U32 >{ 5, 3 } ) );
   EXPECT_EQ( answer.chain.back().hearers,
              std::vector< std::string >{ "L3IntfSm::RexIpIntfConfigFilter::handleMtuOrForwardingModel" } );
}

// What is asked for is a part of the run; what ran in the rest of it ran all the same.
TEST( Why, doesNotSayThatAFunctionWasIdleWhereOnlyAPartWasAskedFor ) {
   Played const played( "urpf-and-ip-traps" );
   std::string const subject = "IppdFerTrapCfg.cpuStrengthN";
   EXPECT_EQ( played.why( subject, { .event = U32{ 2 } } ).idle, std::vector< std::string >() );
   EXPECT_EQ( played.why( subject, { .function = "handleUrpf" } ).idle, std::vector< std::string >() );
   EXPECT_EQ( played.why( subject, { .cause = "urpfStrict" } ).idle, std::vector< std::string >() );
   EXPECT_EQ( played.why( subject, { .place = { .array = 7 } } ).idle, std::vector< std::string >() );
   EXPECT_EQ( Played( "gate" ).why( "EtppcEncapsulation2ContextSelectionCam", { .fap = U16{ 0 } } ).idle,
              std::vector< std::string >{ "VxlanQosSm::handleBridgedQosPropagationEnabled" } );
}

std::string textOf( WhyAnswer const & answer ) {
   std::ostringstream out;
   writeWhy( out, answer, {}, Style( false ) );
   return out.str();
}

TEST( Why, tellsOfEachFapWhatStoodThere ) {
   auto const text = textOf( Played( "urpf-and-ip-traps" ).why( "IppdFerTrapCfg" ) );
   EXPECT_NE( text.find( "    FAP 0  [3]  cpuStrengthN  0x0 → 0x5\n" ), std::string::npos ) << text;
   EXPECT_NE( text.find( "    FAP 1  [3-4]  cpuStrengthN  0x6 or 0x3 → 0x5\n" ), std::string::npos ) << text;
}

TEST( Why, countsTheOtherFapsWhereItsPlacesAreMany ) {
   ChainStep const step{ .kind = Row::Kind::write,
                         .function = "f",
                         .source = "a.cpp:1",
                         .table = Catalogue::table( "IppdFerTrapCfg" ),
                         .isArrayed = true,
                         .places = { { U16{ 0 }, { { 3, { 0 } } } },
                                     { U16{ 1 }, { { 3, { 0 } } } },
                                     { U16{ 2 }, { { 4, { 0 } } } },
                                     { U16{ 3 }, { { 5, { 0 } } } } } };
   std::ostringstream out;
   std::string function;
   ChainStepText( out, true, true, Style( false ) ).write( step, function );
   EXPECT_EQ( out.str(), "  f  a.cpp:1\n    FAPs 0-1  [3]  and on 2 other FAPs  no change\n" );
}

// What doesn't fit goes on in the next line: no reason and no place is cut off.
TEST( Why, fitsANarrowTerminal ) {
   setenv( "COLUMNS", "60", 1 );
   auto const mtu = textOf( Played( "interface-mtu" ).why( "Ethernet1" ) );
   auto const gate = textOf( Played( "gate" ).why( "IppdFerTrapCfg.cpuStrengthN" ) );
   unsetenv( "COLUMNS" );
   for ( std::string const & text : { mtu, gate } ) {
      std::istringstream lines( text );
      for ( std::string line; std::getline( lines, line ); ) {
         EXPECT_LE( widthOf( line ), 60u ) << line;
      }
      EXPECT_EQ( text.find( "..." ), std::string::npos ) << text;
   }
   EXPECT_NE(
      gate.find(
         "stopped: FAP type 3 is not served while the toggles\n          ArmOrderedSwTable and J2DaceL3Ni are on" ),
      std::string::npos )
      << gate;
}

TEST( Why, saysOfWhichPartOfTheRunItsNoIsTrue ) {
   Played const played( "urpf-and-ip-traps" );
   std::string const subject = "IppdFerTrapCfg.cpuStrengthN";
   auto const tells = [&]( WhyFilter const & filter, std::string const & line ) {
      auto const text = textOf( played.why( subject, filter ) );
      EXPECT_NE( text.find( "\n" + line + "\n" ), std::string::npos ) << text;
   };
   tells( { .function = "initKaps" }, "Nothing changed it in this run by a function with \"initKaps\" in its name" );
   tells( { .cause = "evpn" }, "Nothing changed it in this run on a cause with \"evpn\" in it" );
   tells( { .fap = U16{ 1 }, .place = { .array = 7 } }, "Nothing changed it in this run at this place on FAP 1" );
}

// A publication doesn't say which function made it.
TEST( Why, doesNotSayThatAFunctionDidNothingWhereItMayHavePublished ) {
   auto const text = textOf( Played( "interface-mtu" ).why( "handleMtuOrForwardingModel" ) );
   EXPECT_NE( text.find( "It asked nothing of any chip in this run\n" ), std::string::npos ) << text;
   EXPECT_EQ( text.find( "did nothing" ), std::string::npos ) << text;
   EXPECT_EQ( text.find( "Known to touch" ), std::string::npos ) << text;
}

TEST( Why, ofAnInterfaceTellsWhyItLacksItsMtu ) {
   auto const answer = Played( "interface-mtu" ).why( "Ethernet1" );
   ASSERT_TRUE( answer.interface );
   EXPECT_EQ( answer.interface->l3Mtu, 3000u );
   EXPECT_EQ( answer.interface->statusMtu, 2000u );
   EXPECT_EQ( answer.interface->reasons, std::vector< std::string >{ "the interface is not enabled (event 4)" } );
   EXPECT_THROW( Played( "interface-mtu" ).why( "Ethernet77" ), InputError );
}

TEST( Why, ofAnInterfaceKnowsWhatReachedItsSubinterfaces ) {
   Played const played( "interface-mtu" );
   auto const own = played.why( "Ethernet1", { .at = U32{ 3 } } );
   EXPECT_TRUE( own.interface->hasItsMtu ) << testing::PrintToString( own.interface->reasons );
   auto const below = played.why( "Ethernet1.1", { .at = U32{ 3 } } );
   EXPECT_EQ( below.interface->parent, "Ethernet1" );
   EXPECT_EQ( below.interface->statusMtu, 2000u );
   EXPECT_TRUE( below.interface->hasItsMtu );
   ASSERT_FALSE( below.chain.empty() );
   ASSERT_FALSE( below.chain.front().steps.empty() );
   ChainStep const & step = below.chain.front().steps.front();
   EXPECT_EQ( step.path, "interface/status/subintf/intfStatus" );
   EXPECT_EQ( step.before, Rex::Value( 1500 ) );
   EXPECT_EQ( step.after, Rex::Value( 2000 ) );
   EXPECT_EQ( step.cause, "interface/config/global l3Mtu" );
}

// ---- a run that did not get there

std::string endingOf( std::string const & journal, std::string const & subject ) {
   JournalReader file( journal );
   WhyReader reader( whySubjectOf( subject ), {} );
   return endingText( whyOf( file, reader ) );
}

TEST( Why, saysFirstThatAJournalIsCut ) {
   Played const played( "urpf-and-ip-traps" );
   EXPECT_EQ( endingOf( played.path(), "IppdFerTrapCfg" ), "" );
   std::string const whole = contentsOf( played.path() );
   auto const cutBefore = [&]( std::string const & text ) {
      std::ofstream( played.path() ) << whole.substr( 0, whole.find( text ) + 20 );
   };
   cutBefore( "{\"op\": \"event\", \"event\": 2" );
   EXPECT_EQ( endingOf( played.path(), "IppdFerTrapCfg" ), "" ) << "it got there";
   cutBefore( "L3Sm::clearInLifProfileCsMapMsb" );
   EXPECT_EQ( endingOf( played.path(), "IppdFerTrapCfg" ), "The run did not get there: the journal is cut in event 0" );
}

TEST( Why, saysWhereARunEndedThatDoesNotKnowWhatWasAskedFor ) {
   Played const played( "interface-mtu" );
   std::string const whole = contentsOf( played.path() );
   std::ofstream( played.path() ) << whole.substr( 0, whole.find( "{\"op\": \"event\", \"event\": 2" ) + 20 );
   auto const refusal = [&]( std::string const & subject, WhyFilter const & filter ) -> std::string {
      try {
         played.why( subject, filter );
      } catch ( InputError const & error ) {
         return std::string( error.what() ).substr( played.path().size() );
      }
      return "answered";
   };
   EXPECT_EQ( refusal( "IppdFerTrapCfg", { .at = U32{ 4 } } ),
              ": there is no event 4; the last is 1; the journal is cut in or after event 1" );
   EXPECT_EQ( refusal( "Ethernet77", {} ),
              ": it tells nothing of an interface Ethernet77; it tells of Ethernet1, Ethernet1.1, Ethernet1.2, "
              "Ethernet2, Ethernet2.1; the journal is cut in or after event 1" );
}

TEST( Why, ofTheFunctionThatEndedTheRunSaysSo ) {
   Played const played( "interface-port" );
   std::string const whole = contentsOf( played.path() );
   std::ofstream( played.path() )
      << whole.substr( 0, whole.find( "{\"op\": \"event\", \"event\": 1" ) )
      << R"({"op": "event", "event": 1, "what": {}})"
         "\n"
      << R"({"op": "end", "ended": "assertion", "events": 1, "operations": 1, "text": "a < b", )"
         R"("function": "L3IntfSm::doUpdate", "source": "a.cpp:1"})"
         "\n";
   EXPECT_EQ( endingOf( played.path(), "L3IntfSm::doUpdate" ), "The run ended here: in event 1 by an assertion in it" );
   EXPECT_THROW( endingOf( played.path(), "L3IntfSm::doUpdateOther" ), InputError );
}

// ---- names as they are typed

std::string refusalOf( std::string const & typed ) {
   try {
      whySubjectOf( typed );
   } catch ( InputError const & error ) {
      return error.what();
   }
   return "understood";
}

TEST( WhySubject, isUnderstoodWithoutItsTableWhereOneTableHasTheField ) {
   EXPECT_EQ( whySubjectOf( "cpuStrengthN" ).text(), "IppdFerTrapCfg.cpuStrengthN" );
   EXPECT_EQ( whySubjectOf( "cpuStrengthN:2" ).text(), "IppdFerTrapCfg.cpuStrengthN:2" );
   EXPECT_EQ( refusalOf( "memData" ),
              "3 tables have a field \"memData\": IppbFlpLePd0, IppbFlpLePd1, IppbFlpLePd2; say which, as in "
              "IppbFlpLePd0.memData" );
}

TEST( WhySubject, isAnAttributeByItsNameWhereOnePathHasIt ) {
   EXPECT_EQ( whySubjectOf( "l3Mtu" ).text(), "interface/config/global.l3Mtu" );
}

TEST( WhySubject, isRefusedWithWhatWasMeant ) {
   EXPECT_EQ( refusalOf( "EtherneTrap" ), "no table has the name \"EtherneTrap\"; did you mean \"EthernetTrap\"?" );
   EXPECT_EQ( refusalOf( "IppdFerTrapCfg.cpuStrengthN:4" ), "IppdFerTrapCfg.cpuStrengthN has the bits 0 to 3" );
   EXPECT_EQ( refusalOf( "interface/config/globl" ),
              "the state has no path \"interface/config/globl\"; did you mean \"interface/config/global\"?" );
   EXPECT_NE( refusalOf( "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/Ethernet1.mtuu" )
                 .find( "did you mean \"mtu\"?" ),
              std::string::npos );
   EXPECT_EQ( refusalOf( "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/Ethernet1.mtu" ), "understood" );
   std::string const refusal = " is no table, field, control.N, path of the state, function or interface; ";
   EXPECT_EQ( refusalOf( "handleurpf" ),
              "\"handleurpf\"" + refusal + "did you mean \"L3Sm::handleUrpfFailFwdConfig\"?" );
   EXPECT_EQ( refusalOf( "ethernet1" ), "\"ethernet1\"" + refusal + "did you mean \"Ethernet1\"?" );
   EXPECT_EQ( refusalOf( "control" ), "\"control\"" + refusal + "a control is said as in control.64" );
   EXPECT_EQ( refusalOf( "l3Mt" ), "\"l3Mt\"" + refusal + "did you mean \"interface/config/global.l3Mtu\"?" );
   EXPECT_EQ( refusalOf( "enabled" ),
              "\"enabled\"" + refusal +
                 "an attribute is said with its path, as in "
                 "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/INTERFACE.enabled" );
   EXPECT_NE( refusalOf( "evpn" ).find( "evpn/status" ), std::string::npos ) << refusalOf( "evpn" );
   EXPECT_EQ( refusalOf( "foo" ), "\"foo\" is no table, field, control.N, path of the state, function or interface" );
}

TEST( WhySubject, splitsAPathFromItsAttributeAndKey ) {
   auto const subject = whySubjectOf( "routing/hardware/route/status prefixLensInExactMatch[1]" );
   EXPECT_EQ( subject.path, "routing/hardware/route/status" );
   EXPECT_EQ( subject.attribute, "prefixLensInExactMatch" );
   EXPECT_EQ( subject.key, "1" );
   EXPECT_EQ( whySubjectOf( "interface/status/subintf/intfStatus/Ethernet1.1" ).attribute, "" );
   EXPECT_EQ( whySubjectOf( "evpn/status/evpnDciEnabled" ).text(), "evpn/status.evpnDciEnabled" );
   EXPECT_EQ( whySubjectOf( "interface/status/eth/vxlan/vtiStatus/Vxlan1/udpPort" ).attribute, "udpPort" );
   EXPECT_EQ( whySubjectOf( "interface/status/eth/vxlan/vtiStatus/Vxlan1" ).attribute, "" );
}

TEST( WhySubject, isAFunctionByItsLastPart ) {
   EXPECT_EQ( whySubjectOf( "initIppdFerTrapCfgReg" ).name, "L3Sm::initIppdFerTrapCfgReg" );
}

TEST( Place, isRefusedWhereNoChipHasIt ) {
   auto const refusal = []( TypedPlace const & place ) -> std::string {
      try {
         checkPlace( tableNamed( "IppdFerTrapCfg" ), place );
      } catch ( InputError const & error ) {
         return error.what();
      }
      return "there";
   };
   EXPECT_EQ( refusal( { .array = 7 } ), "there" );
   EXPECT_EQ( refusal( { .array = 8 } ), "IppdFerTrapCfg has no array index 8; there is 0 to 7" );
   EXPECT_EQ( refusal( { .variant = 1 } ), "IppdFerTrapCfg has no variant 1; there is 0" );
   EXPECT_EQ( refusal( { .entry = 1 } ), "IppdFerTrapCfg has no entry 1; there is 0" );
   EXPECT_EQ( refusal( { .copy = 9 } ).substr( 0, 28 ), "IppdFerTrapCfg has no copy 9" );
}

} // namespace
