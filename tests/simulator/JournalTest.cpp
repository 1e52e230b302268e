#include "simulator/Journal.h"

#include "generated/Catalogue.h"
#include "rex/Assert.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

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
   Journal journal{ [this] { return cause; } };
   std::filesystem::path path = std::filesystem::temp_directory_path() / ( "journal-" + std::to_string( getpid() ) );

   JournalTest() { std::filesystem::remove( path ); }
   ~JournalTest() override { std::filesystem::remove( path ); }

   std::string file() const {
      std::ostringstream text;
      text << std::ifstream( path ).rdbuf();
      return text.str();
   }

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
using JournalDeathTest = JournalTest;

// The line without the two keys that name a place in this file.
std::string withoutPlace( std::string line ) {
   auto const from = line.find( ", \"function\"" );
   auto const to = line.find( ", \"cause\"" );
   return line.erase( from, to - from );
}

TEST_F( JournalTest, tellsOfAReadFromAnyCopy ) {
   std::vector< U32 > const words{ 0xa00 };
   journal.operation( DaceFapNi::readTrap( words ) );
   ASSERT_EQ( journal.size(), 1u );
   EXPECT_EQ( withoutPlace( Journal::json( journal.row( 0 ) ) ),
              R"({"seq": 1, "event": 0, "op": "read", "fap": 3, "table": "IppdFerTrapCfg", "variant": 0, "array": 4, )"
              R"("entry": null, "scope": "any", "words": ["0x00000a00"], "cause": "chip-init"})" );
}

TEST_F( JournalTest, tellsOfAWriteToAllCopiesAndToOneCore ) {
   writeVector( 21, { 4, 0x400 } );
   writeVector( 0, { 0xffffffff, 0 }, Scope::core, 1 );
   EXPECT_EQ(
      withoutPlace( Journal::json( journal.row( 0 ) ) ),
      R"({"seq": 1, "event": 0, "op": "write", "fap": 0, "table": "EnablersVectors", "variant": 1, "array": 3, )"
      R"("entry": 21, "scope": "all", "words": ["0x00000004", "0x00000400"], "changed": true, )"
      R"("cause": "chip-init"})" );
   EXPECT_EQ(
      withoutPlace( Journal::json( journal.row( 1 ) ) ),
      R"({"seq": 2, "event": 0, "op": "write", "fap": 0, "table": "EnablersVectors", "variant": 1, "array": 3, )"
      R"("entry": 0, "scope": "core", "core": 1, "words": ["0xffffffff", "0x00000000"], "changed": true, )"
      R"("cause": "chip-init"})" );
}

TEST_F( JournalTest, tellsOfAControl ) {
   cause = "start";
   control( 64, 255, false );
   EXPECT_EQ( withoutPlace( Journal::json( journal.row( 0 ) ) ),
              R"({"seq": 1, "event": 0, "op": "control", "fap": 1, "control": 64, "value": 255, "changed": false, )"
              R"("cause": "start"})" );
}

TEST_F( JournalTest, namesFunctionAndSourceOfEachRow ) {
   unsigned const line = __LINE__ + 1;
   journal.operation( DaceFapNi::readTrap( {} ) );
   auto const row = journal.row( 0 );
   EXPECT_EQ( row.source, "JournalTest.cpp:" + std::to_string( line ) );
   EXPECT_NE( row.function.find( "::TestBody" ), std::string_view::npos );
   EXPECT_EQ( row.function.find( "void" ), std::string_view::npos );
}

TEST_F( JournalTest, keepsTheEventAndCauseOfEachRow ) {
   control( 1, 1, true );
   journal.eventIs( 1 );
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
   EXPECT_EQ( rows[0].kind, Kind::write );
   EXPECT_EQ( rows[0].entry, 7u );
   EXPECT_EQ( rows[0].array, 3 );
   EXPECT_EQ( rows[0].variant, 1 );
   EXPECT_EQ( rows[0].words, ( std::vector< U32 >{ 1, 2 } ) );
   EXPECT_EQ( rows[1].kind, Kind::control );
   EXPECT_EQ( rows[1].fap, 1 );
   EXPECT_EQ( rows[1].control, 65u );
   EXPECT_EQ( rows[1].value, 9u );
   EXPECT_FALSE( rows[1].entry.has_value() );
}

TEST_F( JournalTest, keepsItsAnswersWhileItGrows ) {
   writeVector( 7, { 1, 2 } );
   auto const before = journal.row( 0 );
   for ( U32 entry = 0; entry < 1000; ++entry ) {
      cause = "cause " + std::to_string( entry );
      writeVector( entry % 32, { entry, 0 } );
   }
   EXPECT_EQ( before.cause, "chip-init" );
   EXPECT_EQ( before.table, "EnablersVectors" );
   EXPECT_EQ( before.words, ( std::vector< U32 >{ 1, 2 } ) );
   EXPECT_EQ( Journal::json( before ), Journal::json( journal.row( 0 ) ) );
}

TEST_F( JournalTest, escapesWhatJsonCannotHold ) {
   cause = "a \"b\" \\ \n";
   control( 1, 1, true );
   EXPECT_NE( Journal::json( journal.row( 0 ) ).find( R"("cause": "a \"b\" \\ \u000a"})" ), std::string::npos );
}

TEST_F( JournalTest, bringsToTheFileWhatIsNewAtEachFlush ) {
   journal.fileIs( path );
   control( 1, 1, true );
   control( 1, 2, true );
   EXPECT_EQ( file(), "" );
   journal.flush();
   std::string const lines = Journal::json( journal.row( 0 ) ) + "\n" + Journal::json( journal.row( 1 ) ) + "\n";
   EXPECT_EQ( file(), lines );
   journal.flush();
   EXPECT_EQ( file(), lines );
   control( 1, 3, true );
   journal.flush();
   EXPECT_EQ( file(), lines + Journal::json( journal.row( 2 ) ) + "\n" );
}

TEST_F( JournalTest, bringsMoreThanABufferToTheFile ) {
   journal.fileIs( path );
   std::vector< U32 > const words( 16, 0x12345678 );
   for ( U32 entry = 0; entry < 10000; ++entry ) {
      writeVector( entry, words );
   }
   journal.flush();
   std::ifstream lines( path );
   std::string line;
   std::size_t count = 0;
   while ( std::getline( lines, line ) ) {
      EXPECT_TRUE( line.starts_with( "{\"seq\": " + std::to_string( ++count ) + "," ) );
   }
   EXPECT_EQ( count, 10000u );
}

TEST_F( JournalTest, isCompleteAtItsEndAndHearsNoMore ) {
   {
      Journal ending( [] { return std::string( "start" ); } );
      DaceSal::operationListenerIs( &ending );
      ending.fileIs( path );
      ending.operation( DaceFapNi::readTrap( {} ) );
   }
   EXPECT_NE( file().find( "\"op\": \"read\"" ), std::string::npos );
   EXPECT_EQ( DaceSal::operationListener(), nullptr );
}

TEST_F( JournalTest, refusesAFileThatCannotBeMade ) {
   try {
      journal.fileIs( "/nowhere/journal.jsonl" );
      FAIL() << "no refusal";
   } catch ( std::runtime_error const & error ) {
      EXPECT_STREQ( error.what(), "/nowhere/journal.jsonl: No such file or directory" );
   }
}

TEST_F( JournalTest, reportsAFileThatCannotBeWritten ) {
   journal.fileIs( "/dev/full" );
   control( 1, 1, true );
   try {
      journal.flush();
      FAIL() << "no report";
   } catch ( std::runtime_error const & error ) {
      EXPECT_STREQ( error.what(), "/dev/full: No space left on device" );
   }
}

TEST_F( JournalDeathTest, isCompleteUpToTheLastOperationWhenAnAssertionFails ) {
   EXPECT_DEATH(
      {
         journal.fileIs( path );
         control( 64, 255, true );
         Rex::sassert( false, "the end" );
      },
      "the end" );
   EXPECT_NE( file().find( "\"control\": 64, \"value\": 255" ), std::string::npos );
}

void failing() {
   throw std::runtime_error( "nobody listens" );
}

TEST_F( JournalDeathTest, isCompleteUpToTheLastOperationWhenAnExceptionIsNotCaught ) {
   EXPECT_DEATH(
      {
         journal.fileIs( path );
         control( 65, 1, true );
         []() noexcept { failing(); }();
      },
      "nobody listens" );
   EXPECT_NE( file().find( "\"control\": 65" ), std::string::npos );
}

TEST_F( JournalTest, tellsTheGatesThatWereFoundClosedWithTheNextOperation ) {
   Rex::gateListenerIs( &journal );
   cause = "evpn/status vxlanEnabled";
   EXPECT_TRUE( Rex::gate( true, "this one is open" ) );
   EXPECT_FALSE( Rex::gate( false, "the toggle \"X\" is off" ) );
   EXPECT_FALSE( Rex::gate( false, "the chip lacks the context", U16{ 3 } ) );
   control( 1, 2, true );
   control( 1, 3, true );

   auto const gates = journal.row( 0 ).gates;
   ASSERT_EQ( gates.size(), 2u );
   EXPECT_EQ( gates[0].reason, "the toggle \"X\" is off" );
   EXPECT_EQ( gates[0].fap, std::nullopt );
   EXPECT_EQ( gates[1].fap, U16{ 3 } );
   EXPECT_EQ( gates[1].cause, "evpn/status vxlanEnabled" );
   EXPECT_TRUE( gates[0].source.starts_with( "JournalTest.cpp:" ) );
   EXPECT_TRUE( journal.row( 1 ).gates.empty() );

   std::string const line = Journal::json( journal.row( 0 ) );
   EXPECT_NE(
      line.find( R"("reason": "the toggle \"X\" is off", "event": 0, "cause": "evpn/status vxlanEnabled"}, {)" ),
      std::string::npos )
      << line;
   EXPECT_NE( line.find( R"("reason": "the chip lacks the context", "fap": 3, "event": 0)" ), std::string::npos )
      << line;
}

TEST_F( JournalTest, tellsTheLastGatesWithTheLastOperationAndEachGateOnce ) {
   Rex::gateListenerIs( &journal );
   journal.fileIs( path );
   control( 1, 2, true );
   Rex::gate( false, "first" );
   journal.flush();
   control( 1, 3, true );
   Rex::gate( false, "second" );
   journal.flush();

   std::string const text = file();
   EXPECT_EQ( text.find( "first" ), text.rfind( "first" ) );
   EXPECT_NE( text.find( R"("gatesAfter": [{"function": )" ), std::string::npos );
   EXPECT_EQ( text.find( R"("gates": )" ), std::string::npos ) << text;
   EXPECT_EQ( text.find( "second" ), text.rfind( "second" ) );
   EXPECT_EQ( journal.row( 1 ).gates.size(), 1u );
   EXPECT_EQ( journal.row( 1 ).gatesAfter.size(), 1u );
}

TEST_F( JournalTest, namesTheKindOfChipWhereItIsKnown ) {
   journal.chipIs( 1, Hardware::ChipType::BCM88800_A0 );
   control( 1, 2, true );
   writeVector( 5, { 1, 0 } );

   EXPECT_TRUE( Journal::json( journal.row( 0 ) ).ends_with( R"("cause": "chip-init", "chip": "BCM88800_A0"})" ) );
   EXPECT_EQ( journal.row( 1 ).chip, nullptr );
}

} // namespace
