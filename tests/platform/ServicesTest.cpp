// What every part leans on: assertions, traces, log records, toggles.
#include "assert/Assert.h"
#include "rex/Log.h"
#include "rex/Trace.h"
#include "toggle/Toggle.h"

#include <algorithm>
#include <cstring>
#include <elf.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <link.h>

namespace {

TEST( AssertDeath, TellsFileLineFunctionAndTheCondition ) {
   EXPECT_DEATH( Rex::sassert( false, "cellStatus" ), "ServicesTest.cpp:[0-9]+: .*: Assertion `cellStatus' failed" );
}

TEST( AssertDeath, AMessageStandsBeforeTheCondition ) {
   EXPECT_DEATH( Rex::SassertHelper( "false" ) << "Unhandled chipType " << 3,
                 "Unhandled chipType 3\n.*Assertion `\"false\" == nullptr' failed" );
}

TEST( AssertDeath, HooksRunNewestFirstAlsoWhereOneFailsOrTakesItselfBack ) {
   auto const fail = [] {
      Rex::atFailure( [] { std::fprintf( stderr, "first\n" ); } );
      int const dropped = Rex::atFailure( [] { std::fprintf( stderr, "dropped\n" ); } );
      Rex::atFailure( [] { Rex::sassert( false, "inHook" ); } );
      static int self = 0;
      self = Rex::atFailure( [] {
         std::fprintf( stderr, "newest\n" );
         Rex::failureHookDel( self );
      } );
      Rex::failureHookDel( dropped );
      Rex::sassert( false, "outer" );
   };
   EXPECT_DEATH( fail(), "outer' failed.\nnewest\n.*inHook' failed.\nfirst\n$" );
}

TEST( AssertDeath, HooksRunForAnUncaughtException ) {
   auto const raise = [] { throw std::runtime_error( "nobody catches this" ); };
   auto const fail = [&]() noexcept {
      Rex::atFailure( [] { std::fprintf( stderr, "saved\n" ); } );
      raise();
   };
   EXPECT_DEATH( fail(), "saved\n" );
}

struct Traces : testing::Test {
   std::vector< std::string > lines;
   Traces() {
      Rex::RingTrace::clear();
      Rex::traceSinkIs( [this]( Rex::TraceRecord const & record ) {
         lines.push_back( std::string( record.facility ) + "/" + std::to_string( record.level ) + " " + record.text );
      } );
   }
   ~Traces() override { Rex::traceSinkIs( {} ); }
   static std::vector< std::string > ring() {
      std::vector< std::string > all;
      for ( auto const & record : Rex::RingTrace::records() ) {
         all.push_back( std::string( record.facility ) + "/" + std::to_string( record.level ) + " " + record.text );
      }
      return all;
   }
};
using Lines = std::vector< std::string >;

TEST_F( Traces, OnlyLevelsThatAreOnAreWritten ) {
   Rex::TraceFacility const trace( "Test" );
   trace( 0, "silent" );
   Rex::traceLevelIs( "Test", 5 );
   trace( 5, "five ", true, " ", U8{ 7 }, " ", 'c' );
   trace( 6, "six" );
   Rex::traceLevelIs( "Test", -1 );
   trace( 0, "silent" );
   EXPECT_EQ( lines, Lines{ "Test/5 five true 7 c" } );
   EXPECT_EQ( ring(), Lines{} );
}

TEST_F( Traces, LevelsHoldForFacilitiesThatRegisterLater ) {
   Rex::traceLevelIs( "Later", 3 );
   Rex::traceLevelIs( "*", 1 );
   Rex::TraceFacility const later( "Later" );
   Rex::TraceFacility const other( "Other" );
   EXPECT_TRUE( later.enabled( 3 ) );
   EXPECT_FALSE( later.enabled( 4 ) );
   EXPECT_TRUE( other.enabled( 1 ) );
   EXPECT_FALSE( other.enabled( 2 ) );
   auto const names = Rex::traceFacilityNames();
   EXPECT_TRUE( std::is_sorted( names.begin(), names.end() ) );
   EXPECT_EQ( std::count( names.begin(), names.end(), "Later" ), 1 );
}

TEST_F( Traces, DualTraceAlwaysReachesTheRing ) {
   Rex::TraceFacility const trace( "Dual" );
   Rex::DualTrace const dual( trace );
   dual( 8, "one" );
   Rex::traceLevelIs( "Dual", 9 );
   dual( 8, "two" );
   Rex::ringTrace( 1, "three" );
   EXPECT_EQ( lines, Lines{ "Dual/8 two" } );
   EXPECT_EQ( ring(), ( Lines{ "Dual/8 one", "Dual/8 two", "/1 three" } ) );
}

TEST_F( Traces, TheRingHoldsTheNewestAndOutlivesTheFacility ) {
   {
      std::string const name = "Short-lived facility of a library that goes";
      Rex::TraceFacility const trace( name.c_str() );
      Rex::DualTrace const dual( trace );
      for ( std::size_t i = 0; i < Rex::RingTrace::capacity + 10; ++i ) {
         dual( 1, i );
      }
   }
   auto const records = ring();
   ASSERT_EQ( records.size(), Rex::RingTrace::capacity );
   EXPECT_EQ( records.front(), "Short-lived facility of a library that goes/1 10" );
   EXPECT_EQ( records.back(), "Short-lived facility of a library that goes/1 4105" );
}

TEST_F( Traces, ASinkMayReplaceItself ) {
   Rex::TraceFacility const trace( "Replaced" );
   Rex::traceLevelIs( "Replaced", 1 );
   Rex::traceSinkIs( [this]( Rex::TraceRecord const & record ) {
      std::string const text = record.text;
      Rex::traceSinkIs( [this]( Rex::TraceRecord const & next ) { lines.push_back( "second " + next.text ); } );
      lines.push_back( "first " + text );
   } );
   trace( 1, "a" );
   trace( 1, "b" );
   EXPECT_EQ( lines, ( Lines{ "first a", "second b" } ) );
}

TEST_F( Traces, TheDefaultSinkPrintsOnStandardError ) {
   Rex::TraceFacility const trace( "Default" );
   Rex::traceLevelIs( "Default", 2 );
   Rex::traceSinkIs( {} );
   testing::internal::CaptureStderr();
   trace( 2, "text" );
   EXPECT_EQ( testing::internal::GetCapturedStderr(), "Default/2 text\n" );
}

REX_LOG_SECTION static constexpr Rex::LogMessage unsupported{ "FEATURE_NOT_SUPPORTED",
                                                              "It is not supported.",
                                                              "No such table.",
                                                              "Please unconfigure it.",
                                                              Rex::LogMessage::error,
                                                              0 };

struct Logs : testing::Test {
   std::vector< std::string > texts;
   Logs() {
      Rex::nowIs( 0 );
      Rex::logSinkIs( [this]( Rex::LogEntry const & entry ) { texts.push_back( Rex::logText( entry ) ); } );
   }
   ~Logs() override { Rex::logSinkIs( {} ); }
};

TEST_F( Logs, TellTimeCodeAndTexts ) {
   Rex::LogHandle const handle( unsupported, Rex::Seconds{ 0 }, 1.0, 0, 0 );
   Rex::nowIs( 12.5 );
   Rex::log( handle );
   Rex::log( handle );
   std::string const text =
      "12.500 s FEATURE_NOT_SUPPORTED: It is not supported. No such table. Please unconfigure it.";
   EXPECT_EQ( texts, ( Lines{ text, text } ) );
   EXPECT_EQ( &handle.message(), &unsupported );
}

TEST_F( Logs, GoToStandardErrorByDefault ) {
   Rex::logSinkIs( {} );
   Rex::LogHandle const handle( unsupported, Rex::Seconds{ 0 }, 1.0, 0, 0 );
   testing::internal::CaptureStderr();
   Rex::log( handle );
   EXPECT_EQ( testing::internal::GetCapturedStderr(),
              "0.000 s FEATURE_NOT_SUPPORTED: It is not supported. No such table. Please unconfigure it.\n" );
}

TEST_F( Logs, AreHeldBackWithinTheIntervalAndCounted ) {
   Rex::LogHandle const handle( unsupported, Rex::Seconds{ 10 }, 2.0, 2, 4 );
   auto const at = [&]( Rex::Seconds time ) {
      Rex::nowIs( time );
      auto const before = texts.size();
      Rex::log( handle );
      return texts.size() > before;
   };
   EXPECT_TRUE( at( 0 ) );   // free
   EXPECT_TRUE( at( 1 ) );   // free
   EXPECT_FALSE( at( 10 ) ); // within 10 s
   EXPECT_TRUE( at( 11 ) );  // then within 20 s
   EXPECT_NE( texts.back().find( "(held back before: 1)" ), std::string::npos );
   EXPECT_FALSE( at( 30 ) );
   EXPECT_TRUE( at( 31 ) );
   EXPECT_FALSE( at( 1000 ) ); // the fifth
}

// Where the program's own file has the section, and where the process has it.
std::string_view sectionOfMessages() {
   std::ifstream in( "/proc/self/exe", std::ios::binary );
   std::string const file( std::istreambuf_iterator< char >( in ), {} );
   Elf64_Ehdr header;
   std::memcpy( &header, file.data(), sizeof header );
   auto const section = [&]( unsigned index ) {
      Elf64_Shdr at;
      std::memcpy( &at, file.data() + header.e_shoff + index * sizeof at, sizeof at );
      return at;
   };
   Elf64_Addr bias = 0;
   dl_iterate_phdr(
      []( dl_phdr_info * info, std::size_t, void * out ) {
         *static_cast< Elf64_Addr * >( out ) = info->dlpi_addr; // the program comes first
         return 1;
      },
      &bias );
   auto const names = section( header.e_shstrndx );
   for ( unsigned index = 0; index < header.e_shnum; ++index ) {
      auto const each = section( index );
      if ( std::string( file.data() + names.sh_offset + each.sh_name ) == ".veloro_logmsg" ) {
         return { reinterpret_cast< char const * >( bias + each.sh_addr ), each.sh_size };
      }
   }
   return {};
}

TEST( LogSection, HoldsTheRecordFieldByField ) {
   auto const bytes = sectionOfMessages();
   ASSERT_EQ( bytes.size(), 40U ); // four references and two 32-bit numbers; this program has one message
   char const * texts[4];
   U32 numbers[2];
   std::memcpy( texts, bytes.data(), sizeof texts );
   std::memcpy( numbers, bytes.data() + sizeof texts, sizeof numbers );
   EXPECT_STREQ( texts[0], "FEATURE_NOT_SUPPORTED" );
   EXPECT_STREQ( texts[1], "It is not supported." );
   EXPECT_STREQ( texts[2], "No such table." );
   EXPECT_STREQ( texts[3], "Please unconfigure it." );
   EXPECT_EQ( numbers[0], 3U );
   EXPECT_EQ( numbers[1], 0U );
   EXPECT_EQ( static_cast< void const * >( bytes.data() ), &unsupported );
}

struct Toggles : testing::Test {
   std::filesystem::path folder =
      std::filesystem::path( testing::TempDir() ) /
      ( std::string( "toggles-" ) + testing::UnitTest::GetInstance()->current_test_info()->name() );
   Toggles() {
      std::filesystem::remove_all( folder );
      std::filesystem::create_directories( folder );
   }
   ~Toggles() override { std::filesystem::remove_all( folder ); }
   void file( std::string const & name, std::string const & text ) const { std::ofstream( folder / name ) << text; }
   std::string refusal() const {
      try {
         Toggle::readFolder( folder.string() );
         return "none";
      } catch ( std::runtime_error const & error ) {
         return error.what();
      }
   }
};

TEST_F( Toggles, ComeFromTheFilesOfAFolder ) {
   file( "Dace.json", R"({"ArmOrderedSwTable": false, "Other": true})" );
   file( "Empty.json", "{}" );
   file( "notes.txt", "no toggles" );
   Toggle::settingsIs( Toggle::readFolder( folder.string() ) );
   EXPECT_FALSE( getToggleState( "ArmOrderedSwTable", "Dace.json", true ) );
   EXPECT_TRUE( getToggleState( "Other", "Dace.json", false ) );
   EXPECT_EQ( Toggle::settings().size(), 2U );
}

TEST_F( Toggles, WithoutFolderFileOrEntryHaveTheirDefault ) {
   EXPECT_TRUE( Toggle::readFolder( ( folder / "nowhere" ).string() ).empty() );
   file( "Dace.json", R"({"ArmOrderedSwTable": false})" );
   Toggle::settingsIs( Toggle::readFolder( folder.string() ) );
   EXPECT_TRUE( getToggleState( "Missing", "Dace.json", true ) );
   EXPECT_FALSE( getToggleState( "Missing", "Dace.json", false ) );
   EXPECT_TRUE( getToggleState( "ArmOrderedSwTable", "Missing.json", true ) );
}

TEST_F( Toggles, FilesThatAreNoneAreRefusedWithTheirPlace ) {
   file( "Dace.json", "{\n  \"A\": true,\n  \"B\" false\n}" );
   EXPECT_EQ( refusal(), ( folder / "Dace.json" ).string() + ":3: this is not JSON" );
   file( "Dace.json", "{\"A\": 1}" );
   EXPECT_EQ( refusal(), ( folder / "Dace.json" ).string() + ": expected true or false for A, got 1" );
   file( "Dace.json", "[]" );
   EXPECT_EQ( refusal(), ( folder / "Dace.json" ).string() + ":1: expected an object of toggle names and booleans" );
   file( "Dace.json", "" );
   EXPECT_EQ( refusal(), ( folder / "Dace.json" ).string() + ":1: this is not JSON" );
}

TEST_F( Toggles, AreNotedInTheOrderOfTheFirstReading ) {
   getToggleState( "B", "Dace.json", true );
   getToggleState( "A", "Dace.json", true );
   getToggleState( "B", "Dace.json", true );
   ASSERT_EQ( Toggle::readings().size(), 2U );
   EXPECT_EQ( Toggle::readings()[0].name, "B" );
   EXPECT_EQ( Toggle::readings()[1].name, "A" );
   EXPECT_TRUE( Toggle::readings()[0].state );
}

TEST_F( Toggles, ThatWereReadCannotChangeAnyMore ) {
   Toggle::settingsIs( { { "Dace.json", { { "A", false } } } } );
   EXPECT_FALSE( getToggleState( "A", "Dace.json", true ) );
   Toggle::settingsIs( { { "Dace.json", { { "A", false }, { "B", false } } } } ); // the same for A
   EXPECT_THROW( Toggle::settingsIs( { { "Dace.json", { { "A", true } } } } ), std::logic_error );
   EXPECT_THROW( Toggle::settingsIs( {} ), std::logic_error ); // the default would be another
   EXPECT_FALSE( Toggle::settings().at( "Dace.json" ).at( "B" ) );
}

} // namespace
