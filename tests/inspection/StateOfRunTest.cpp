// The state that a journal tells is that of the switch which wrote it.
#include "inspection/StateOfRun.h"

#include "inspection/files/Json.h"
#include "l3sm/Command.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;
using Rex::Value;

class StateOfExample : public testing::TestWithParam< std::string > {};

TEST_P( StateOfExample, atItsEndIsWhatTheSwitchHeld ) {
   Command const l3sm( "run '" L3SM_SOURCE_DIR "/examples/" + GetParam() + ".json' --quiet --journal j --state s" );
   ASSERT_EQ( l3sm.status, 0 ) << l3sm.errors;
   auto const told = toldState( ( l3sm.folder / "j" ).string(), {} );
   EXPECT_EQ( told.remarks, std::vector< std::string >() );
   EXPECT_EQ( toJson( told.paths, 9 ), toJson( parseJson( l3sm.file( "s" ), "s" ), 9 ) );
   EXPECT_EQ( toldState( ( l3sm.folder / "s" ).string(), {} ).paths, told.paths );
}

INSTANTIATE_TEST_SUITE_P( All, StateOfExample, testing::ValuesIn( exampleNames() ), NameOfExample() );

TEST( StateOfRun, ofAnEventIsWhatTheRunHeldWhenItWasOver ) {
   Command const l3sm( "run '" L3SM_SOURCE_DIR "/examples/interface-mtu.json' --quiet --journal j" );
   std::string const journal = ( l3sm.folder / "j" ).string();
   auto const mtu = [&]( U32 event, std::string const & path ) {
      auto const found = partOf( toldState( journal, event ).paths, path + "/mtu" );
      return found.size() == 1 ? found.front().value : Value();
   };
   std::string const status = "shared/phySmStateSharedStatus/allEthPhyIntfStatusDir/intfStatus/Ethernet1";
   std::string const managed = "managed/intfStatusDir/intfStatus/Ethernet1";
   EXPECT_EQ( mtu( 0, status ), Value( 1500 ) );
   EXPECT_EQ( mtu( 1, status ), Value( 4000 ) );
   EXPECT_EQ( mtu( 2, status ), Value( 1500 ) );
   EXPECT_EQ( mtu( 1, managed ), Value( 4000 ) );
   EXPECT_EQ( mtu( 3, "interface/status/subintf/intfStatus/Ethernet1.2" ), Value( 2000 ) );
   EXPECT_THROW( toldState( journal, 6 ), InputError );
}

TEST( StateOfRun, isThatOfAPathOrOfAllBelowIt ) {
   auto const paths =
      objectOf( parseJson( R"({"a/b": {"x": 1, "all": {"Ethernet3/1": {"mtu": 7}}}, "a/c": null})", "s" ) );
   auto const found = [&]( std::string const & path ) {
      std::vector< std::string > names;
      for ( PathValue const & it : partOf( paths, path ) ) {
         names.push_back( it.path + " " + toJson( it.value, 0 ) );
      }
      return names;
   };
   using Names = std::vector< std::string >;
   EXPECT_EQ( found( "a" ).size(), 2u );
   EXPECT_EQ( found( "a/c" ), Names{ "a/c null" } );
   EXPECT_EQ( found( "a/b/x" ), Names{ "a/b/x 1" } );
   EXPECT_EQ( found( "a/b/all/Ethernet3/1/mtu" ), Names{ "a/b/all/Ethernet3/1/mtu 7" } );
   EXPECT_EQ( found( "a/b/all/Ethernet3" ), Names() );
   EXPECT_EQ( found( "" ).size(), 2u );
}

} // namespace
