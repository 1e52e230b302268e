// What `l3sm run` writes: chips, journal, state, traces, summary.
#include "BuildFolder.h"
#include "l3sm/Command.h"

#include "inspection/Version.h"
#include "inspection/files/ChipsFile.h"
#include "inspection/files/Json.h"

#include <gtest/gtest.h>
#include <regex>

namespace {

using Rex::Value;

Value const & at( Value const & value, std::vector< std::string > const & keys ) {
   Value const * part = &value;
   for ( auto const & key : keys ) {
      part = &part->object()->at( key );
   }
   return *part;
}

// The driver operations of a journal.
std::vector< Value > operationsOf( std::string const & journal ) {
   std::vector< Value > rows;
   std::istringstream in( journal );
   for ( std::string line; std::getline( in, line ); ) {
      auto row = Inspection::parseJson( line, "journal" );
      if ( row.object()->contains( "seq" ) ) {
         rows.push_back( std::move( row ) );
      }
   }
   return rows;
}

std::string text( Value const & row, std::string const & key ) {
   return *row.object()->at( key ).text();
}

TEST( Run, playsTheBuiltInExampleAndTellsWhatWasProgrammedByWhom ) {
   Command const l3sm( "run" );
   EXPECT_EQ( l3sm.status, 0 );
   EXPECT_EQ( l3sm.errors, "" );
   EXPECT_TRUE( l3sm.output.starts_with( "uRPF fail-forward and IP traps on two kinds of chip\n\n"
                                         "Switch, slice Linecard3\n"
                                         "  FAP 0  Fap3/0  BCM88690_B0, major 5, SDK 7, 2 cores  served\n"
                                         "  FAP 1  Fap3/1  BCM88850_A0, major 8, SDK 7, 2 cores  served\n" ) )
      << l3sm.output;
   EXPECT_NE( l3sm.output.find( "  Toggles that were read: ArmOrderedSwTable (Dace.json) off, " ), std::string::npos );
   EXPECT_NE( l3sm.output.find( "Event 1: set routing/hardware/config urpfLooseFailForward = true\n"
                                "  2 reads, 2 writes (2 with a change)\n"
                                "  FAPs 0-1, each\n"
                                "    L3Sm::handleUrpfFailFwdConfig\n"
                                "      IppdFerTrapCfg  array 3  L3SmUrpf.cpp:" ),
              std::string::npos );
   EXPECT_NE( l3sm.output.find( "        cpuStrengthN  0x5 -> 0x0\n"
                                "        snoopStrengthN  0x0 -> 0x5\n\n" ),
              std::string::npos );
}

TEST( Run, beginsAJournalWithTheProgramAndThePlugIn ) {
   Command const l3sm( "run --quiet --journal j" );
   std::string const journal = l3sm.file( "j" );
   Value const begin = Inspection::parseJson( journal.substr( 0, journal.find( '\n' ) ), "j" );
   EXPECT_EQ( text( begin, "l3sm" ), Inspection::versionNumber() );
   EXPECT_EQ( text( begin, "plugin" ), Inspection::libraryId( buildFolder() + "/lib/libL3SmPlugin.so" ) );
}

TEST( Run, saysWhatKeepsAFapFromBeingServedAndHowToOpenTheGate ) {
   Command const l3sm( "run s.json --toggle Dace.json:ArmOrderedSwTable=on", { { "s.json", scenarioWith( "" ) } } );
   EXPECT_EQ( l3sm.status, 0 );
   std::string const words = std::regex_replace( l3sm.output, std::regex( "\\s+" ), " " );
   EXPECT_NE( words.find( "NOT SERVED: FAP type 3 is not served while the toggles ArmOrderedSwTable and "
                          "J2DaceL3Ni are on; --toggle Dace.json:ArmOrderedSwTable=off opens it, as does "
                          "DaceToggles.json:J2DaceL3Ni=off " ),
              std::string::npos )
      << l3sm.output;
}

TEST( Run, quietPrintsNothing ) {
   Command const l3sm( "run --quiet" );
   EXPECT_EQ( l3sm.status, 0 );
   EXPECT_EQ( l3sm.output + l3sm.errors, "" );
}

TEST( Run, writesTheChipsByTableVariantArrayAndEntryWithDecodedFields ) {
   Command const l3sm( "run --quiet --chips chips.json" );
   auto const chips = Inspection::parseJson( l3sm.file( "chips.json" ), "chips" );
   EXPECT_EQ( at( chips, { "faps", "0", "chipType" } ), Value( "BCM88690_B0" ) );
   EXPECT_EQ( at( chips, { "faps", "1", "chipType" } ), Value( "BCM88850_A0" ) );
   // cpuSnoopCodeN 0x123 from the scenario, cpuStrengthN 5, snoopStrengthN 0.
   EXPECT_EQ( at( chips, { "faps", "0", "tables", "IppdFerTrapCfg", "0", "3", "0" } ),
              ( Value::Object{ { "words", Value::List{ "0x00000b23" } },
                               { "fields",
                                 Value::Object{ { "cpuSnoopCodeN", "0x123" },
                                                { "cpuStrengthN", "0x5" },
                                                { "snoopStrengthN", "0x0" } } } } ) );
   auto const & controls = at( chips, { "faps", "0", "controls" } );
   EXPECT_TRUE( controls.object() );
}

TEST( Run, readsBackTheChipsThatItWrote ) {
   Command const l3sm( "run --quiet --chips chips.json" );
   auto const chips = Inspection::readChips( ( l3sm.folder / "chips.json" ).string() );
   std::ostringstream again;
   Inspection::writeChips( again, chips );
   EXPECT_EQ( again.str(), l3sm.file( "chips.json" ) );
}

TEST( Run, putsContentsOfTheScenarioOnTopOfTheBootImageInAllCopiesOrInEach ) {
   // The table has two physical copies on this chip, and the plug-in leaves the array's elements 5 and 6 alone.
   std::string const scenario = scenarioWith( R"(, "chips": {"0": {"IppdFerTrapCfg": {"0": {
      "5": {"0": {"words": ["0x00000abc"], "fields": {"cpuSnoopCodeN": "0xbc"}}},
      "6": {"0": {"instances": {"0": ["0x00000001"], "1": ["0x00000002"]}}}}}}})" );
   Command const l3sm( "run s.json --quiet --chips chips.json", { { "s.json", scenario } } );
   EXPECT_EQ( l3sm.errors, "" );
   auto const chips = Inspection::parseJson( l3sm.file( "chips.json" ), "chips" );
   auto const & table = at( chips, { "faps", "0", "tables", "IppdFerTrapCfg", "0" } );
   EXPECT_EQ( at( table, { "5", "0", "words" } ), ( Value::List{ "0x00000abc" } ) );
   EXPECT_EQ( at( table, { "6", "0" } ),
              ( Value::Object{
                 { "instances",
                   Value::Object{ { "0", Value::List{ "0x00000001" } }, { "1", Value::List{ "0x00000002" } } } } } ) );
   EXPECT_EQ( Inspection::readChips( ( l3sm.folder / "chips.json" ).string() )
                 .at( 0 )
                 .contents.tables.at( "IppdFerTrapCfg" )
                 .at( 0 )
                 .at( 6 )
                 .at( 0 )
                 .copies,
              ( std::vector< Simulator::Words >{ { 1 }, { 2 } } ) );
}

TEST( Run, tellsAFieldThatIsRepeatedOnce ) {
   Command const l3sm( "run --event 0" );
   EXPECT_NE( l3sm.output.find( "        csProfile1-127  various -> 0x0\n" ), std::string::npos );
   EXPECT_EQ( l3sm.output.find( "        csProfile2  " ), std::string::npos );
}

TEST( Run, journalsEveryOperationWithItsOriginAndCause ) {
   Command const l3sm( "run --quiet --journal journal.jsonl" );
   auto const rows = operationsOf( l3sm.file( "journal.jsonl" ) );
   ASSERT_GT( rows.size(), 50u );
   for ( std::size_t index = 0; index < rows.size(); ++index ) {
      EXPECT_EQ( rows[index].object()->at( "seq" ), Value( index + 1 ) );
   }
   EXPECT_EQ( text( rows.front(), "cause" ), "chip-init" );
   auto const isRead = []( Value const & row ) { return text( row, "op" ) == "read"; };
   auto const read = std::find_if( rows.begin(), rows.end(), isRead );
   ASSERT_NE( read, rows.end() );
   EXPECT_EQ( text( *read, "scope" ), "any" );
   EXPECT_FALSE( read->object()->contains( "changed" ) );

   // The last event switches loose mode back: a read and a write on each FAP, of a register without entries.
   auto const & last = rows.back();
   EXPECT_EQ( last.object()->at( "event" ), Value( 3 ) );
   EXPECT_EQ( text( last, "op" ), "write" );
   EXPECT_EQ( last.object()->at( "fap" ), Value( 1 ) );
   EXPECT_EQ( text( last, "table" ), "IppdFerTrapCfg" );
   EXPECT_EQ( last.object()->at( "variant" ), Value( 0 ) );
   EXPECT_EQ( last.object()->at( "array" ), Value( 3 ) );
   EXPECT_TRUE( last.object()->at( "entry" ).isNull() );
   EXPECT_EQ( text( last, "scope" ), "all" );
   EXPECT_EQ( last.object()->at( "changed" ), Value( true ) );
   EXPECT_EQ( text( last, "function" ), "L3Sm::handleUrpfFailFwdConfig" );
   EXPECT_TRUE( text( last, "source" ).starts_with( "L3SmUrpf.cpp:" ) );
   EXPECT_EQ( text( last, "cause" ), "routing/hardware/config urpfLooseFailForward" );
}

TEST( Run, writesTheStateAtTheEnd ) {
   Command const l3sm( "run s.json --quiet --state state.json",
                       { { "s.json", scenarioWith( R"(, "state": {"vxlan/ecnConfig": null},
        "events": [{"set": {"path": "evpn/status", "attribute": "mplsEnabled", "value": true}}])" ) } } );
   auto const state = Inspection::parseJson( l3sm.file( "state.json" ), "state" );
   EXPECT_EQ( at( state, { "evpn/status" } ),
              ( Value::Object{ { "vxlanEnabled", false }, { "mplsEnabled", true }, { "evpnDciEnabled", false } } ) );
   EXPECT_TRUE( at( state, { "vxlan/ecnConfig" } ).isNull() );
   EXPECT_EQ( at( state, { "hardware/dace/fap/status", "Linecard3", "fapStatus", "0", "ports" } ),
              ( Value::Object{ { "1", 10 } } ) );
}

TEST( Run, writesTheTracesThatWereAskedFor ) {
   Command const l3sm( "run --quiet --trace L3SmMounterDaceFapNi/8 --trace-out trace.txt" );
   EXPECT_EQ( l3sm.status, 0 );
   EXPECT_EQ( l3sm.errors, "" );
   auto const trace = l3sm.file( "trace.txt" );
   EXPECT_TRUE( trace.starts_with( "L3SmMounterDaceFapNi/8 L3SmMounter::createPluginStatePhase2\n" ) ) << trace;
   EXPECT_NE( trace.find( "L3SmMounterDaceFapNi/8 Mounting evpn/status\n" ), std::string::npos );
   EXPECT_NE( trace.find( "L3SmMounterDaceFapNi/0 L3SmMounter::doMountsComplete done\n" ), std::string::npos );
}

TEST( Run, tracesToStandardErrorByDefault ) {
   Command const l3sm( "run --quiet --trace '*/0'" );
   EXPECT_NE( l3sm.errors.find( "L3SmMounterDaceFapNi/0 L3SmMounter::doMounts done\n" ), std::string::npos );
   EXPECT_EQ( l3sm.errors.find( "/8 " ), std::string::npos );
}

TEST( Run, isTheSameAtEveryTime ) {
   char const * const everything = "run --chips c --journal j --state s --trace '*/9' --trace-out t";
   Command const first( everything );
   Command const second( everything );
   EXPECT_EQ( first.output, second.output );
   for ( char const * file : { "c", "j", "s", "t" } ) {
      EXPECT_FALSE( first.file( file ).empty() ) << file;
      EXPECT_EQ( first.file( file ), second.file( file ) ) << file;
   }
}

TEST( Run, playsEveryExampleOfTheTree ) {
   for ( auto const & example : exampleScenarios() ) {
      Command const l3sm( "run --quiet '" + example.string() + "'" );
      EXPECT_EQ( l3sm.status, 0 ) << example << l3sm.errors;
   }
}

TEST( Constants, areThereForEveryChipAndEveryRevision ) {
   Command const l3sm( "constants --json" );
   EXPECT_EQ( l3sm.status, 0 );
   auto const constants = Inspection::parseJson( l3sm.output, "constants" );
   for ( std::string const chip :
         { "BCM88690_B0", "BCM88800_A0", "BCM88850_A0", "BCM88859_A2", "BCM88480_A0", "BCM88480_B0" } ) {
      for ( std::string const stage : { "ctx_fwd1", "ctx_fwd2", "ctx_encap_1", "ctx_encap_2" } ) {
         for ( auto const & [number, context] : *at( constants, { chip, stage } ).object() ) {
            EXPECT_EQ( *at( context, { "exists" } ).boolean(), *at( context, { "value" } ).integer() != 0 ) << number;
         }
      }
      EXPECT_EQ( at( constants, { chip, "flpacsActionEntry" } ).object()->size(), 128u );
      EXPECT_EQ( at( constants, { chip, "vtecsActionEntry" } ).object()->size(), 128u );
      for ( std::string const stage : { "Enc1", "Enc2", "Enc3", "Enc4", "Enc5", "Trap" } ) {
         EXPECT_TRUE( at( constants, { chip, "egressPortProfiles", stage } ).object()->contains( "1" ) );
      }
      EXPECT_TRUE( at( constants, { "boot", chip, "IppdFerTrapCfg", "0", "3", "0", "words" } ).list() );
   }
   EXPECT_TRUE( at( constants, { "numOutRif" } ).object()->contains( "8" ) );
   EXPECT_TRUE( at( constants, { "wellKnownLifOffsetToHwIndex" } ).object()->contains( "1" ) );
   EXPECT_EQ( at( constants, { "encodedDestId" } ).list()->size(), 3u );
}

TEST( Help, explainsTheProgramAndEachVerb ) {
   Command const help( "--help" );
   EXPECT_EQ( help.status, 0 );
   EXPECT_NE( help.output.find( "run" ), std::string::npos );
   Command const run( "run --help" );
   EXPECT_EQ( run.status, 0 );
   for ( std::string const option :
         { "--chips", "--journal", "--state", "--trace", "--trace-out", "--toggle", "--plugin", "--quiet" } ) {
      EXPECT_NE( run.output.find( option + " " ), std::string::npos ) << option;
   }
}

TEST( Help, isAVerbToo ) {
   EXPECT_EQ( Command( "help" ).output, Command( "--help" ).output );
   EXPECT_EQ( Command( "help run" ).output, Command( "run --help" ).output );
   EXPECT_EQ( Command( "help rnu" ).errors, "l3sm: there is no verb \"rnu\"; did you mean \"run\"?\n" );
}

// What an operator is told at each event that leaves the contradiction as it is.
TEST( Run, tellsAMessageOfThePlugInOnceAndThenHowOftenItCame ) {
   std::string const status = R"({"set": {"path": "routing/mpls/routingInfo/status", "attribute": )";
   std::string const both = status + R"("mplsLookupFallbackIp", "value": true}})";
   std::string const one = status + R"("mplsLookupFallbackIp", "value": false}})";
   Command const l3sm( "run s.json --quiet",
                       { { "s.json",
                           scenarioWith( R"(, "events": [)" + status + R"("mplsLookupLabelCount", "value": 2}}, )" +
                                         both + ", " + one + ", " + both + ", " + one + ", " + both + "]" ) } } );
   EXPECT_EQ( l3sm.status, 0 );
   std::string const code = "DACE_MULTI_LABEL_LOOKUP_COUNT_MPLS_FALLBACK_IP_NOT_SUPPORTED: ";
   EXPECT_TRUE( l3sm.errors.starts_with( "event 2: " + code + "Configurations " ) ) << l3sm.errors;
   EXPECT_TRUE( l3sm.errors.ends_with( "\n" + code + "2 times more, the last in event 6\n" ) ) << l3sm.errors;
   EXPECT_EQ( std::ranges::count( l3sm.errors, '\n' ), 2 );
}

} // namespace
