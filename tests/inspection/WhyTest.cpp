// Why a chip is as it is, from journals: the chain, its folding, what a gate kept from running, and how a run ended.
#include "inspection/Why.h"

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

TEST( Why, ofAnInterfaceTellsWhyItLacksItsMtu ) {
   auto const answer = Played( "interface-mtu" ).why( "Ethernet1" );
   ASSERT_TRUE( answer.interface );
   EXPECT_EQ( answer.interface->l3Mtu, 3000u );
   EXPECT_EQ( answer.interface->statusMtu, 2000u );
   EXPECT_EQ( answer.interface->reasons, std::vector< std::string >{ "the interface is not enabled (event 4)" } );
   EXPECT_THROW( Played( "interface-mtu" ).why( "Ethernet77" ), InputError );
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

TEST( WhySubject, isRefusedWithWhatWasMeant ) {
   EXPECT_EQ( refusalOf( "EtherneTrap" ), "no table has the name \"EtherneTrap\"; did you mean \"EthernetTrap\"?" );
   EXPECT_EQ( refusalOf( "IppdFerTrapCfg.cpuStrengthN:4" ), "IppdFerTrapCfg.cpuStrengthN has the bits 0 to 3" );
   EXPECT_EQ( refusalOf( "interface/config/globl" ),
              "the state has no path \"interface/config/globl\"; did you mean \"interface/config/global\"?" );
   EXPECT_NE( refusalOf( "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/Ethernet1.mtuu" )
                 .find( "did you mean \"mtu\"?" ),
              std::string::npos );
   EXPECT_EQ( refusalOf( "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/Ethernet1.mtu" ), "understood" );
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
