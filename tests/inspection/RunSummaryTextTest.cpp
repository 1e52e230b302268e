// The summary of a run where there is much to tell, or hardly anything.
#include "l3sm/Command.h"

#include "inspection/files/Json.h"

#include <gtest/gtest.h>

namespace {

using Inspection::parseJson;

std::string servedFaps( int count ) {
   std::string faps;
   for ( int fap = 0; fap < count; ++fap ) {
      faps += ( fap == 0 ? "" : ", " ) + std::string( R"({"fapId": )" ) + std::to_string( fap ) +
              R"(, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}})";
   }
   return faps;
}

std::string scenarioOn( int faps, std::string const & more ) {
   return R"({"name": "a run", "switch": {"slice": {"name": "L"}, "faps": [)" + servedFaps( faps ) + "]}" + more + "}";
}

std::string const servedToggles = R"(, "toggles": {"Dace.json": {"ArmOrderedSwTable": false}})";

std::string summaryOf( std::string const & scenario, std::string const & options = "" ) {
   Command const l3sm( "run s.json " + options, { { "s.json", scenario } } );
   EXPECT_EQ( l3sm.status, 0 ) << l3sm.errors;
   return l3sm.output;
}

// Expects lines to stand in a text, one behind the other.
void expectLines( std::string const & text, std::string const & lines ) {
   EXPECT_NE( text.find( lines ), std::string::npos ) << text;
}

TEST( RunSummaryText, countsTheFapsThatItLeavesOut ) {
   expectLines( summaryOf( scenarioOn( 10, servedToggles ) ),
                "  FAP 7  Fap7  BCM88690_B0, major 5, SDK 7, 2 cores  served\n"
                "  … and 2 more; of all 10, 10 are served\n" );
}

TEST( RunSummaryText, namesEightTogglesThatStandOtherwiseAndThoseThatNothingHasRead ) {
   auto const summary = summaryOf( scenarioOn( 1,
                                               R"(, "toggles": {"Dace.json": {"ArmOrderedSwTable": false, )"
                                               R"("CampusVtepToVtepBridgingGen4": false, "DaceVplsPhase2": false, )"
                                               R"("J2L2EvpnMplsMultiHomed": false, )"
                                               R"("UrpfIgnoreDefaultRouteJericho2": false, )"
                                               R"("V6LinkLocalSrcPuntToCpu": false}, )"
                                               R"("DaceLib.json": {"DaceEvpnDualEncapDciAaMh": false}, )"
                                               R"("DaceToggles.json": {"DaceVxlanMplsDciMhDchVxlanPfd": false, )"
                                               R"("J2EvpnMcastVxlanMultihoming": false, "J2SRv6": false, )"
                                               R"("J3AiBringup": false}})" ) );
   auto const from = summary.find( "  Toggles that were read:" );
   auto const told = summary.substr( from, summary.find( "\nStart\n" ) - from );
   expectLines( told, " and 2 more,\n" );
   expectLines( told, " 2 others as by default\n" );
   expectLines( told, "\n  J3AiBringup (DaceToggles.json) off, but nothing has read it\n" );
}

TEST( RunSummaryText, tellsTotalsAndHowManyEventsHadNoEffect ) {
   std::string events;
   for ( int event = 0; event < 20; ++event ) {
      events += ( event == 0 ? "" : ", " ) +
                std::string( R"({"set": {"path": "routing/hardware/config", "attribute": "urpfLooseFailForward", )" ) +
                R"("value": )" + ( event < 2 ? "true" : "false" ) + "}}";
   }
   auto const summary = summaryOf( scenarioOn( 1, servedToggles + R"(, "events": [)" + events + "]" ) );
   expectLines( summary,
                "20 events\n"
                "  2 reads, 2 writes (2 with a change)\n"
                "  18 of them without any effect\n"
                "  most operations: L3Sm::handleUrpfFailFwdConfig 4\n" );
   expectLines( summary, "\n  below: those that did most, and the last\n" );
}

TEST( RunSummaryText, saysThatNoInterfaceIsThere ) {
   expectLines( summaryOf( scenarioOn( 1, servedToggles ), "--interfaces" ),
                "Interfaces at the end, active slice\n"
                "  none is configured, and none belongs to a port\n" );
}

TEST( RunSummaryText, ofProgramsNamesTheAssertionThatEndedTheRun ) {
   Command const l3sm( "run '" L3SM_SOURCE_DIR "/examples/ffc-key.json' --json "
                       "--toggle DaceL3Unicast.json:UnifiedIPv4Fwd2Ctx=off" );
   EXPECT_NE( l3sm.status, 0 );
   auto const summary = parseJson( l3sm.output, "summary" );
   auto const & ended = *summary.object()->at( "end" ).object();
   EXPECT_EQ( *ended.at( "ended" ).text(), "assertion" );
   EXPECT_EQ( *ended.at( "text" ).text(), "toggleUnifiedIPv4Fwd2CtxEnabled()" );
   EXPECT_EQ( *ended.at( "function" ).text(), "RemFfcModifierSm::getFwd2Context" );
   EXPECT_TRUE( ended.at( "source" ).text()->starts_with( "RemFfcModifierSm.cpp:" ) );
   expectLines( l3sm.errors, "  suspicious: nothing in the scenario that is known here\n" );
}

} // namespace
