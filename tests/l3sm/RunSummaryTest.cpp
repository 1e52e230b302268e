// The summary of a run fits the screen, however long the run was and however narrow the screen is.
#include "l3sm/Command.h"

#include "inspection/files/Json.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace {

// In characters.
std::size_t widthOf( std::string const & line ) {
   return static_cast< std::size_t >(
      std::ranges::count_if( line, []( char letter ) { return ( letter & 0xc0 ) != 0x80; } ) );
}

std::string set( std::string const & path, std::string const & attribute, std::string const & value ) {
   return R"({"set": {"path": ")" + path + R"(", "attribute": ")" + attribute + R"(", "value": )" + value + "}}";
}

std::string toggling( int events ) {
   std::string list;
   for ( int event = 0; event < events; ++event ) {
      list +=
         ( event ? ", " : "" ) + set( "routing/hardware/config", "urpfLooseFailForward", event % 2 ? "false" : "true" );
   }
   return scenarioWith( R"(, "events": [)" + list + "]" );
}

TEST( RunSummary, ofTheBuiltInExampleFitsAScreen ) {
   ::setenv( "COLUMNS", "110", 1 );
   Command const l3sm( "run" );
   auto const lines = linesOf( l3sm.output );
   EXPECT_GE( lines.size(), 30u );
   EXPECT_LE( lines.size(), 70u );
}

TEST( RunSummary, isNoWiderThanTheTerminal ) {
   for ( std::size_t const width : { 60, 80, 110 } ) {
      ::setenv( "COLUMNS", std::to_string( width ).c_str(), 1 );
      for ( std::string const arguments : { "run",
                                            "run --event all --unchanged",
                                            "run '" L3SM_SOURCE_DIR "/examples/interface-port.json' --interfaces" } ) {
         Command const l3sm( arguments );
         EXPECT_EQ( l3sm.status, 0 );
         for ( auto const & line : linesOf( l3sm.output ) ) {
            ASSERT_LE( widthOf( line ), width ) << arguments << "\n" << line;
         }
      }
   }
}

TEST( RunSummary, staysShortWhereTheRunIsLong ) {
   Command const l3sm( "run s.json", { { "s.json", toggling( 2000 ) } } );
   EXPECT_LE( linesOf( l3sm.output ).size(), 140u );
   EXPECT_NE( l3sm.output.find( "\n2000 events\n  2000 reads, 2000 writes (2000 with a change)\n" ), std::string::npos )
      << l3sm.output;
   EXPECT_NE( l3sm.output.find( "\nEvent 2000: " ), std::string::npos );
   EXPECT_EQ( l3sm.output.find( "\nEvent 1000: " ), std::string::npos );
   auto const json =
      Inspection::parseJson( Command( "run s.json --json", { { "s.json", toggling( 2000 ) } } ).output, "json" );
   EXPECT_EQ( json.object()->at( "eventCount" ), Rex::Value( 2000 ) );
   EXPECT_LE( json.object()->at( "events" ).list()->size(), 13u );
}

TEST( RunSummary, saysWhyNothingCameOfAnEvent ) {
   std::string const events = set( "routing/hardware/config", "urpfLooseFailForward", "false" ) + ", " +
                              set( "bridging/config", "bridgeMacAddr", "\"02:00:00:00:00:01\"" );
   Command const l3sm( "run s.json", { { "s.json", scenarioWith( R"(, "events": [)" + events + "]" ) } } );
   EXPECT_NE( l3sm.output.find( "urpfLooseFailForward = false\n  nothing changed: it had this value already\n" ),
              std::string::npos )
      << l3sm.output;
   EXPECT_NE( l3sm.output.find( "\"02:00:00:00:00:01\"\n  nobody listens to bridging/config\n" ), std::string::npos );
}

TEST( RunSummary, tellsAnEventInFullAndUnchangedFieldsOnDemand ) {
   Command const all( "run --event all" );
   EXPECT_TRUE( all.output.starts_with( "Event 0: start\n" ) );
   EXPECT_EQ( all.output.find( "unchanged:" ), std::string::npos );
   for ( char const * event : { "\nEvent 1: ", "\nEvent 2: ", "\nEvent 3: " } ) {
      EXPECT_NE( all.output.find( event ), std::string::npos );
   }
   Command const last( "run --event last --fap 1 --unchanged" );
   EXPECT_TRUE( last.output.starts_with( "Event 3: " ) );
   EXPECT_NE( last.output.find( "  FAP 1\n" ), std::string::npos );
   EXPECT_EQ( last.output.find( "FAP 0" ), std::string::npos );
   EXPECT_NE( last.output.find( "unchanged: cpuSnoopCodeN" ), std::string::npos );
   Command const some( "run --event 3,1" );
   EXPECT_TRUE( some.output.starts_with( "Event 1: " ) );
   EXPECT_NE( some.output.find( "\nEvent 3: " ), std::string::npos );
   EXPECT_EQ( some.output.find( "\nEvent 2: " ), std::string::npos );
}

TEST( RunSummary, refusesEventsAndFapsThatThereAreNot ) {
   EXPECT_EQ( Command( "run --event 4" ).errors,
              "l3sm: --event 4: there is no such event; the scenario has 1 to 3, and the start, 0\n" );
   EXPECT_EQ( Command( "run --event first" ).errors,
              "l3sm: --event first: expected numbers with commas between them, all, or last\n" );
   Command const fap( "run --fap 7" );
   EXPECT_EQ( fap.status, 2 );
   EXPECT_EQ( fap.errors, "l3sm: --fap 7: the switch has no such FAP; it has 0-1\n" );
}

} // namespace
