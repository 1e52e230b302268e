#include "simulator/Journal.h"

#include "assert/Assert.h"
#include "generated/Catalogue.h"

#include <gtest/gtest.h>

using namespace Simulator;
using DaceSal::ChipId;
using DaceSal::Operation;
using Kind = Operation::Kind;
using Scope = Operation::Scope;

namespace DaceFapNi {
// What the plug-in's own functions would do.
Operation readTrap( std::span< U32 const > words, std::source_location at = std::source_location::current() ) {
   return { .kind = Kind::read,
            .isRegister = true,
            .chip = ChipId{ 3 },
            .table = Catalogue::table( "IppdFerTrapCfg" )->number,
            .arrayIndex = 4,
            .words = words,
            .origin = at };
}
} // namespace DaceFapNi

namespace {

struct JournalTest : testing::Test {
   std::string cause = "chip-init";
   Journal journal{ { .cause = [this] { return cause; } } };

   JournalTest() { journal.rowsAreKept(); }

   void writeVector( U32 entry, std::vector< U32 > const & words, Scope scope = Scope::all, int core = 0 ) {
      journal.operation( { .kind = Kind::write,
                           .scope = scope,
                           .changed = true,
                           .chip = ChipId{ 0 },
                           .table = Catalogue::table( "EnablersVectors" )->number,
                           .variant = 1,
                           .arrayIndex = 3,
                           .core = core,
                           .entry = entry,
                           .words = words,
                           .origin = std::source_location::current() } );
   }
   void control( U32 number, U32 value, bool changed ) {
      journal.operation( { .kind = Kind::control,
                           .changed = changed,
                           .chip = ChipId{ 1 },
                           .controlNumber = number,
                           .controlValue = value,
                           .words = {},
                           .origin = std::source_location::current() } );
   }
};

TEST_F( JournalTest, namesFunctionAndSourceOfEachRow ) {
   unsigned const line = __LINE__ + 1;
   journal.operation( DaceFapNi::readTrap( {} ) );
   auto const row = journal.rows()[0];
   EXPECT_EQ( row.source, "JournalTest.cpp:" + std::to_string( line ) );
   EXPECT_NE( row.function.find( "::TestBody" ), std::string_view::npos );
   EXPECT_EQ( row.function.find( "void" ), std::string_view::npos );
}

TEST_F( JournalTest, keepsTheEventAndCauseOfEachRow ) {
   control( 1, 1, true );
   journal.eventEnds();
   journal.eventBegins( 1, {} );
   cause = "evpn/status evpnDciEnabled";
   control( 1, 2, true );
   cause = "chip-init";
   control( 1, 3, true );
   auto const rows = journal.rows();
   ASSERT_EQ( rows.size(), 3u );
   EXPECT_EQ( rows[0].event, 0u );
   EXPECT_EQ( rows[1].event, 1u );
   EXPECT_EQ( rows[0].cause, "chip-init" );
   EXPECT_EQ( rows[1].cause, "evpn/status evpnDciEnabled" );
   EXPECT_EQ( rows[2].cause, "chip-init" );
   EXPECT_EQ( rows[2].seq, 3u );
}

TEST_F( JournalTest, answersToTests ) {
   writeVector( 7, { 1, 2 } );
   control( 65, 9, true );
   auto const rows = journal.rows();
   EXPECT_EQ( rows[0].table, "EnablersVectors" );
   EXPECT_EQ( rows[0].kind, Row::Kind::write );
   EXPECT_EQ( rows[0].entry, 7u );
   EXPECT_EQ( rows[0].array, 3 );
   EXPECT_EQ( rows[0].variant, 1 );
   EXPECT_EQ( rows[0].words, ( std::vector< U32 >{ 1, 2 } ) );
   EXPECT_EQ( rows[1].kind, Row::Kind::control );
   EXPECT_EQ( rows[1].fap, 1 );
   EXPECT_EQ( rows[1].control, 65u );
   EXPECT_EQ( rows[1].value, 9u );
   EXPECT_FALSE( rows[1].entry.has_value() );
}

TEST_F( JournalTest, keepsItsAnswersWhileItGrows ) {
   writeVector( 7, { 1, 2 } );
   auto const before = journal.rows()[0];
   for ( U32 entry = 0; entry < 1000; ++entry ) {
      cause = "cause " + std::to_string( entry );
      writeVector( entry % 32, { entry, 0 } );
   }
   EXPECT_EQ( before.cause, "chip-init" );
   EXPECT_EQ( before.table, "EnablersVectors" );
   EXPECT_EQ( before.words, ( std::vector< U32 >{ 1, 2 } ) );
}

// Writes down what it hears.
struct Heard : RowReader {
   std::vector< std::string > all;
   void eventBegins( U32 event, Rex::Value const & what ) override {
      all.push_back( "event " + std::to_string( event ) + " " + Rex::toText( what ) );
   }
   void row( Row const & row ) override {
      all.push_back( row.kind == Row::Kind::gate ? "gate " + std::string( row.reason )
                                                 : "control " + std::to_string( row.control ) );
   }
   void eventEnds( U32 event ) override { all.push_back( "end of " + std::to_string( event ) ); }
   void ends( Ending const & ending ) override {
      all.push_back( "ends after " + std::to_string( ending.events ) + " events, " +
                     std::to_string( ending.operations ) + " operations" );
   }
};

TEST( Journal, handsEachEventToItsReadersWhenItIsOverAndForgetsIt ) {
   Journal journal{ { .cause = [] { return std::string( "start" ); } } };
   Heard heard;
   journal.readerAdd( heard );
   auto const control = [&]( U32 number ) {
      journal.operation( { .kind = Kind::control, .controlNumber = number, .words = {} } );
   };
   control( 64 );
   EXPECT_TRUE( heard.all.empty() );
   EXPECT_EQ( journal.rows().size(), 1u );
   journal.eventEnds();
   EXPECT_EQ( heard.all, ( std::vector< std::string >{ R"(event 0 {"start": {}})", "control 64", "end of 0" } ) );
   EXPECT_TRUE( journal.rows().empty() );

   heard.all.clear();
   journal.eventBegins( 1, "what" );
   control( 65 );
   journal.gateClosed( { "the toggle is off", U16{ 3 }, std::source_location::current() } );
   control( 66 );
   journal.eventEnds();
   journal.ends( Ending::Kind::complete );
   journal.ends( Ending::Kind::interrupted );
   EXPECT_EQ( heard.all,
              ( std::vector< std::string >{ R"(event 1 "what")",
                                            "control 65",
                                            "gate the toggle is off",
                                            "control 66",
                                            "end of 1",
                                            "ends after 1 events, 3 operations" } ) );
}

TEST( JournalDeath, handsOverWhatThereIsOfAnEventThatFails ) {
   struct Telling : Heard {
      void ends( Ending const & ending ) override {
         for ( std::string const & line : all ) {
            std::fprintf( stderr, "%s;", line.c_str() );
         }
         std::fprintf( stderr, "%s in %s;", ending.text.c_str(), ending.source.substr( 0, 15 ).c_str() );
      }
   };
   EXPECT_DEATH(
      {
         Journal journal{ { .cause = [] { return std::string( "start" ); } } };
         Telling heard;
         journal.readerAdd( heard );
         journal.operation( { .kind = Kind::control, .controlNumber = 64, .words = {} } );
         Rex::sassert( false, "the end" );
      },
      R"(event 0 ."start": ...;control 64;the end in JournalTest.cpp;)" );
}

TEST_F( JournalTest, tellsOfAGateWhereItWasFoundClosed ) {
   journal.listens();
   cause = "evpn/status vxlanEnabled";
   EXPECT_TRUE( Rex::gate( true, "this one is open" ) );
   EXPECT_FALSE( Rex::gate( false, "the toggle \"X\" is off" ) );
   control( 1, 2, true );
   EXPECT_FALSE( Rex::gate( false, "the chip lacks the context", U16{ 3 } ) );

   auto const rows = journal.rows();
   ASSERT_EQ( rows.size(), 3u );
   EXPECT_EQ( rows[0].kind, Row::Kind::gate );
   EXPECT_EQ( rows[0].reason, "the toggle \"X\" is off" );
   EXPECT_FALSE( rows[0].isOfFap );
   EXPECT_EQ( rows[0].cause, "evpn/status vxlanEnabled" );
   EXPECT_TRUE( rows[0].source.starts_with( "JournalTest.cpp:" ) );
   EXPECT_EQ( rows[1].seq, 1u );
   EXPECT_TRUE( rows[2].isOfFap );
   EXPECT_EQ( rows[2].fap, 3 );
   EXPECT_EQ( journal.operations().size(), 1u );
}

TEST_F( JournalTest, hearsNoMoreAtItsEnd ) {
   {
      Journal ending{ { .cause = [] { return std::string( "start" ); } } };
      ending.listens();
      EXPECT_EQ( DaceSal::operationListener(), &ending );
   }
   EXPECT_EQ( DaceSal::operationListener(), nullptr );
   EXPECT_EQ( Rex::gateListener(), nullptr );
}

TEST_F( JournalTest, givesRowsTheirLayoutWhereTheKindOfChipIsKnown ) {
   journal.chipIs( 0, Hardware::ChipType::BCM88800_A0 );
   writeVector( 5, { 1, 0 } );
   journal.operation( DaceFapNi::readTrap( {} ) );
   EXPECT_EQ( journal.rows()[0].layout, Catalogue::layout( *Catalogue::table( "EnablersVectors" ), 11, 1 ) );
   EXPECT_EQ( journal.rows()[1].layout, nullptr );
}

TEST_F( JournalTest, knowsTheLayoutOfEveryTableAndVariant ) {
   journal.chipIs( 0, Hardware::ChipType::BCM88690_B0 );
   for ( Catalogue::Table const & table : Catalogue::tables() ) {
      for ( Catalogue::Layout const & layout : table.layouts ) {
         if ( layout.chipType == 10 && table.hasMemory ) {
            journal.operation( { .kind = Kind::read, .table = table.number, .variant = layout.variant } );
            EXPECT_EQ( journal.rows().back().layout, &layout ) << table.name << " " << unsigned{ layout.variant };
         }
      }
   }
}

TEST_F( JournalTest, tellsWhatStoodThereBefore ) {
   std::vector< U32 > const words{ 1, 2 };
   std::vector< U32 > const before{ 3, 4 };
   journal.operation( { .kind = Kind::write, .changed = true, .table = 1, .words = words, .before = before } );
   writeVector( 0, words );
   journal.operation( { .kind = Kind::control, .controlBefore = 7, .words = {} } );
   auto const rows = journal.rows();
   EXPECT_EQ( rows[0].words, words );
   EXPECT_EQ( rows[0].before, before );
   EXPECT_TRUE( rows[1].before.empty() );
   EXPECT_EQ( rows[2].valueBefore, 7u );
}

} // namespace

// Given a run without an end, whose state has ever new names.
TEST( JournalForEver, tellsEachCauseAndRemembersFew ) {
   std::string cause;
   Journal journal{ { .cause = [&] { return cause; } } };
   journal.causesAreForgotten();
   struct Reader : RowReader {
      void row( Row const & row ) override {
         last = row.cause;
         highest = std::max( highest, row.causeNumber );
      }
      std::string last;
      U32 highest = 0;
   } reader;
   journal.readerAdd( reader );
   std::vector< U32 > const words{ 1 };
   for ( U32 event = 1; event <= 20'000; ++event ) {
      cause = "interface/status/subintf intfStatus/Ethernet" + std::to_string( event );
      journal.eventBegins( event, {} );
      journal.operation( DaceFapNi::readTrap( words ) );
      journal.eventEnds();
      ASSERT_EQ( reader.last, cause );
   }
   EXPECT_LT( reader.highest, 5'000u );
}
