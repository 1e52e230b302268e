// Chips of journals and of files side by side, where the sides have other FAPs or other kinds of chip.
#include "inspection/FileDifferences.h"
#include "inspection/Replay.h"
#include "inspection/StateOfRun.h"
#include "inspection/views/ReplayText.h"

#include "l3sm/Command.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using namespace Inspection;

std::string const first = R"({"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}})";
std::string const firstAsAnother =
   R"({"fapId": 0, "revision": {"chipType": "BCM88850_A0", "sdkVersion": 7, "major": 8}})";
std::string const second = R"({"fapId": 1, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}})";

// A run that did nothing.
std::string quietRun( std::string const & faps, std::string const & more = "" ) {
   return R"({"op": "begin", "format": 2, "l3sm": "1.0.0", "plugin": "", "scenario": {"switch": {"slice": )"
          R"({"name": "L"}, "faps": [)" +
          faps + "]}" + more + "}}\n" + R"({"op": "event", "event": 0, "what": {"start": {}}})" + "\n" +
          R"({"op": "end", "ended": "complete", "events": 0, "operations": 0})" + "\n";
}

// A write as journals of format 1 have it, which don't tell what chips there are.
std::string oldWrite( std::string const & place, std::string const & more = "" ) {
   return R"({"op": "write", "seq": 1, "event": 0, "fap": 0, "table": "IppdFerTrapCfg", "variant": 0, )" + place +
          R"(, "scope": "all", "words": ["0x00000a00"], "changed": true, "function": "f", "source": "a.cpp:1", )"
          R"("cause": "start")" +
          more + "}\n";
}
std::string const oldTrap = R"("array": 3, "entry": null)";

struct ChipsSidesTest : testing::Test {
   FileDifferences differences( std::string const & a, std::string const & b, ContentsFilter const & filter = {} ) {
      return differencesOf( { .a = folder.file( "a", a ), .b = folder.file( "b", b ), .filter = filter } );
   }
   // The kinds of chip that differ, "fap a b", a line each.
   std::vector< std::string > kinds( std::string const & a, std::string const & b ) {
      std::vector< std::string > lines;
      for ( Difference const & it : differences( a, b ).chips ) {
         if ( it.table == Difference::chipType ) {
            lines.push_back( std::to_string( it.fap ) + " " + it.values.front().a.value_or( "-" ) + " " +
                             it.values.front().b.value_or( "-" ) );
         }
      }
      return lines;
   }
   template< class Ask >
   std::string refusal( Ask const & ask ) {
      try {
         ask();
      } catch ( InputError const & error ) {
         std::string told = error.what();
         std::string const before = folder / "";
         for ( auto at = told.find( before ); at != std::string::npos; at = told.find( before ) ) {
            told.erase( at, before.size() );
         }
         return told;
      }
      return "answered";
   }
   Folder const folder;
};

using Kinds = std::vector< std::string >;

TEST_F( ChipsSidesTest, tellAFapThatOneJournalLacksOrHasAsAnotherChip ) {
   EXPECT_EQ( kinds( quietRun( first + ", " + second ), quietRun( first ) ), Kinds{ "1 BCM88690_B0 -" } );
   EXPECT_EQ( kinds( quietRun( first ), quietRun( first + ", " + second ) ), Kinds{ "1 - BCM88690_B0" } );
   EXPECT_EQ( kinds( quietRun( first ), quietRun( firstAsAnother ) ), Kinds{ "0 BCM88690_B0 BCM88850_A0" } );
}

TEST_F( ChipsSidesTest, tellAFapThatAFileOrItsJournalLacks ) {
   auto const fileOf = []( std::string const & fap ) {
      return R"({"faps": {")" + fap + R"(": {"chipType": "BCM88690_B0", "controls": {}, "tables": {}}}})";
   };
   EXPECT_EQ( kinds( fileOf( "1" ), quietRun( first ) ), ( Kinds{ "1 BCM88690_B0 -", "0 - BCM88690_B0" } ) );
   EXPECT_EQ( kinds( quietRun( first ), fileOf( "1" ) ), ( Kinds{ "1 - BCM88690_B0", "0 BCM88690_B0 -" } ) );
}

TEST_F( ChipsSidesTest, refuseAFapThatNeitherHas ) {
   auto const run = quietRun( first );
   EXPECT_EQ( refusal( [&] { differences( run, run, { {}, {}, U16{ 9 } } ); } ), "neither side has a FAP 9" );
}

TEST_F( ChipsSidesTest, tellBitsThatBelongToNoField ) {
   auto const fileWith = []( char const * word ) {
      return R"({"faps": {"0": {"chipType": "BCM88690_B0", "controls": {}, "tables": )"
             R"({"IppdFerTrapCfg": {"0": {"3": {"0": {"words": [")" +
             std::string( word ) + R"("]}}}}}}}})";
   };
   auto const found = differences( fileWith( "0x00000001" ), fileWith( "0x80000001" ) ).chips;
   ASSERT_EQ( found.size(), 1u );
   ASSERT_EQ( found.front().values.size(), 1u );
   EXPECT_EQ( found.front().values.front().name, "bits outside of every field" );
   EXPECT_EQ( found.front().values.front().a, "0x00000001" );
   EXPECT_EQ( found.front().values.front().b, "0x80000001" );
}

TEST_F( ChipsSidesTest, refuseEventsWhereThereAreNone ) {
   auto const chips = folder.file( "chips", R"({"faps": {}})" );
   auto const run = folder.file( "run", quietRun( first ) );
   EXPECT_EQ( refusal( [&] {
                 differencesOf( { .a = chips, .b = run, .events = { 0, 0 } } );
              } ),
              "--at is given 2 times, and there is one journal" );
   EXPECT_EQ( refusal( [&] { differencesOf( { .a = chips, .b = chips, .events = { 0 } } ); } ),
              "chips: --at asks for an event, and only a journal has events" );
   EXPECT_EQ( refusal( [&] { toldState( folder.file( "state", R"({"evpn/status": {}})" ), 0 ); } ),
              "state: --at asks for an event, and only a journal has events" );
}

TEST_F( ChipsSidesTest, refuseToReadStandardInputTwice ) {
   Command const l3sm( "--version >/dev/null; cat chips | '" + buildFolder() + "/bin/l3sm' diff - - 2>told; true",
                       { { "chips", R"({"faps": {}})" } } );
   std::string const told = "l3sm: standard input: can be read once; name one of the two files\n";
   EXPECT_EQ( l3sm.file( "told" ), told );
   EXPECT_EQ( Command( "diff - -" ).errors, told ); // of one that is empty, too
}

// ---- replays

TEST_F( ChipsSidesTest, replayAnOldJournalOnTheChipsOfAScenario ) {
   auto const run = folder.file( "run", oldWrite( oldTrap ) );
   auto const scenario = folder.file( "s.json", R"({"switch": {"slice": {"name": "L"}, "faps": [)" + first + "]}}" );
   auto const out = folder / "out.json";
   auto const replay = replayOf( { .journal = run, .scenario = scenario }, OutputFile( out ) );
   EXPECT_EQ( replay.writes, 1u );
   EXPECT_EQ( replay.chips, 1u );
   EXPECT_TRUE( replay.isAlike() );
   auto const chips = readChips( out );
   EXPECT_EQ( chips.at( 0 ).contents.tables.at( "IppdFerTrapCfg" ).at( 0 ).at( 3 ).at( 0 ).copies.front(),
              Simulator::Words{ 0xa00 } );
   EXPECT_EQ( refusal( [&] { replayOf( { .journal = run }, OutputFile( "" ) ); } ),
              "run:1: nothing says what kind of chip FAP 0 is; give --chips or --scenario" );
}

TEST_F( ChipsSidesTest, refuseToReplayWhereTheFilesSayOtherChips ) {
   auto const run = folder.file( "run", quietRun( first ) );
   auto const chips =
      folder.file( "chips", R"({"faps": {"0": {"chipType": "BCM88850_A0", "controls": {}, "tables": {}}}})" );
   EXPECT_EQ( refusal( [&] { replayOf( { .journal = run, .chips = chips }, OutputFile( "" ) ); } ),
              "FAP 0 is a BCM88690_B0 in one file and a BCM88850_A0 in another" );
}

TEST_F( ChipsSidesTest, replayFromTheContentsThatAJournalBeginsWith ) {
   std::string const control = R"(, "chips": {"0": {"controls": {"64": 255}, "tables": {}}})";
   ReplayQuestion const question{ .journal = folder.file( "run", quietRun( first, control ) ) };
   auto const out = folder / "out.json";
   replayOf( question, OutputFile( out ) );
   EXPECT_EQ( readChips( out ).at( 0 ).contents.controls.at( 64 ), 255u );
   std::string const ofAnother = R"(, "chips": {"7": {"controls": {"64": 255}, "tables": {}}})";
   auto const wrong = folder.file( "wrong", quietRun( first, ofAnother ) );
   auto const told = refusal( [&] { replayOf( { .journal = wrong }, OutputFile( "" ) ); } );
   EXPECT_EQ( told, "wrong:1: /scenario/chips/7: the switch that the journal begins with has no such FAP; it has 0" );
}

TEST_F( ChipsSidesTest, replayTellsFiveOfTheRowsThatNothingExplains ) {
   std::string rows;
   for ( int seq = 1; seq <= 7; ++seq ) {
      rows += R"({"op": "read", "seq": )" + std::to_string( seq ) +
              R"(, "event": 0, "fap": 0, "table": "IppdFerTrapCfg", "variant": 0, "array": 3, "entry": null, )"
              R"("scope": "any", "words": ["0x0000000)" +
              std::to_string( seq ) + R"("], "function": "f", "source": "a.cpp:1", "cause": "start"})" + "\n";
   }
   auto text = quietRun( first );
   text.insert( text.find( R"({"op": "end")" ), rows );
   auto const replay = replayOf( { .journal = folder.file( "run", text ) }, OutputFile( "" ) );
   EXPECT_FALSE( replay.isAlike() );
   EXPECT_EQ( replay.others.seqs, ( std::vector< U64 >{ 1, 2, 3, 4, 5, 6, 7 } ) );
   std::ostringstream shown;
   showReplay( shown, replay, "", Style() );
   EXPECT_NE( shown.str().find( "\n7 rows told of something that nothing in the journal explains\n" ),
              std::string::npos )
      << shown.str();
   EXPECT_NE( shown.str().find( "\n  and 2 more; --json has their numbers\n" ), std::string::npos ) << shown.str();
}

} // namespace
