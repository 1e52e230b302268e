// The trace levels of an agent: told by commands, and by a file.
#include "BuildFolder.h"
#include "Folder.h"
#include "agent/TraceFile.h"
#include "agent/control/AgentCommands.h"
#include "inspection/Play.h"
#include "inspection/files/InputError.h"
#include "rex/Trace.h"

#include <gmock/gmock.h>

namespace {

using namespace Live;
using Rex::Value;
using testing::StartsWith;

struct TraceCommandsTest : testing::Test {
   TraceCommandsTest() {
      Inspection::loadPlugin( buildFolder() + "/lib/libL3SmPlugin.so" );
      addTraceCommands( commands );
   }
   Value ask( std::string const & name, Value::List const & given = {} ) const {
      Live::Command const & command = commands.named( name );
      return std::get< Value >( command.answer( Arguments( command, given ) ) );
   }
   Value::Object levels() const { return *ask( "trace list" ).object(); }
   std::string levelOf( std::string const & facility ) const { return *levels().at( facility ).text(); }
   std::string refusalOf( Value::List const & given ) const {
      try {
         ask( "trace set", given );
      } catch ( CommandError const & error ) {
         EXPECT_EQ( error.code(), CommandError::wrongArguments );
         return error.what();
      }
      return "nothing was refused";
   }
   void reads( std::string const & text ) const { TraceFile( folder.file( "trace", text ), commands ).read(); }
   std::string whyNot( std::string const & text ) const {
      try {
         reads( text );
      } catch ( Inspection::InputError const & error ) {
         return error.what();
      }
      return "nothing was refused";
   }

   Folder const folder;
   Commands commands;
   std::string const file = folder / "trace";
};

TEST_F( TraceCommandsTest, setOneFacilityOrEveryOne ) {
   EXPECT_EQ( levelOf( "DaceFapNiL3Sm" ), "off" );
   auto const told = ask( "trace set", { "DaceFapNiL3Sm", "7" } );
   EXPECT_EQ( told, ask( "trace list" ) );
   EXPECT_EQ( levelOf( "DaceFapNiL3Sm" ), "7" );
   EXPECT_EQ( levelOf( "DaceFapNiL3Vxlan" ), "off" );
   ask( "trace set", { "*", "0" } );
   for ( auto const & [facility, level] : levels() ) {
      EXPECT_EQ( *level.text(), "0" ) << facility;
   }
   ask( "trace set", { "*", "off" } );
   EXPECT_EQ( levelOf( "DaceFapNiL3Sm" ), "off" );
}

TEST_F( TraceCommandsTest, refuseAFacilityThatThereIsntAndSayWhichWasMeant ) {
   EXPECT_EQ( refusalOf( { "DaceFapNiL3Sn", "7" } ),
              "facility: there is no DaceFapNiL3Sn; did you mean \"DaceFapNiL3Sm\"?" );
   std::string all;
   for ( auto const & [facility, level] : levels() ) {
      all += ( all.empty() ? "" : ", " ) + facility;
   }
   EXPECT_EQ( refusalOf( { "x", "7" } ), "facility: there is no x; there are " + all );
}

TEST_F( TraceCommandsTest, refuseALevelThatThereIsnt ) {
   for ( std::string const wrong : { "10", "-1", "x", "", "on" } ) {
      EXPECT_EQ( refusalOf( { "DaceFapNiL3Sm", wrong } ),
                 "level: expected a level from 0 to 9, or off; got \"" + wrong + "\"" );
   }
   EXPECT_EQ( levelOf( "DaceFapNiL3Sm" ), "off" );
}

TEST_F( TraceCommandsTest, tellTheLastSteps ) {
   Rex::RingTrace::clear();
   EXPECT_EQ( ask( "trace ring" ), Value( Value::List() ) );
   for ( int step = 1; step <= 3; ++step ) {
      Rex::ringTrace( step, "step ", step, " is done: ", true );
   }
   Value::List const all{ "ring/1 step 1 is done: true", "ring/2 step 2 is done: true", "ring/3 step 3 is done: true" };
   EXPECT_EQ( ask( "trace ring" ), Value( all ) );
   EXPECT_EQ( ask( "trace ring", { 2 } ), Value( Value::List{ all[1], all[2] } ) );
   EXPECT_EQ( ask( "trace ring", { 0 } ), Value( Value::List() ) );
   EXPECT_EQ( ask( "trace ring", { 7 } ), Value( all ) );
}

// ---- a file of them

TEST_F( TraceCommandsTest, areGivenByTheLinesOfAFile ) {
   ask( "trace set", { "*", "3" } );
   reads( "# for people: */9\n\tDaceFapNiL3Sm/8 , DaceFapNiL3Vxlan/off,,\r\n\n" );
   for ( auto const & [facility, level] : levels() ) {
      EXPECT_EQ( *level.text(), facility == "DaceFapNiL3Sm" ? "8" : "off" ) << facility;
   }
   reads( "*/2\nDaceFapNiL3Sm/4" );
   EXPECT_EQ( levelOf( "DaceFapNiL3Vxlan" ), "2" );
   EXPECT_EQ( levelOf( "DaceFapNiL3Sm" ), "4" );
   reads( "" );
   EXPECT_EQ( levelOf( "DaceFapNiL3Sm" ), "off" );
}

TEST_F( TraceCommandsTest, stayAsTheyAreWhereTheFileIsWrong ) {
   ask( "trace set", { "DaceFapNiL3Sm", "3" } );
   for ( std::string const wrong : { "DaceFapNiL3Sm", "/3", "DaceFapNiL3Sm/" } ) {
      EXPECT_EQ( whyNot( "*/9\n" + wrong + "\n" ), file + ":2: expected FACILITY/LEVEL, got \"" + wrong + "\"" );
   }
   EXPECT_EQ( whyNot( "*/9,DaceFapNiL3Sn/3\n" ),
              file + ":1: facility: there is no DaceFapNiL3Sn; did you mean \"DaceFapNiL3Sm\"?" );
   EXPECT_EQ( whyNot( "\n\n*/x\n" ), file + ":3: level: expected a level from 0 to 9, or off; got \"x\"" );
   EXPECT_EQ( levelOf( "DaceFapNiL3Sm" ), "3" );
   EXPECT_EQ( levelOf( "DaceFapNiL3Vxlan" ), "off" );
   std::filesystem::remove( file );
   EXPECT_THROW( TraceFile( file, commands ).read(), Inspection::InputError );
   TraceFile( "", commands ).read(); // which reads nothing
   EXPECT_EQ( levelOf( "DaceFapNiL3Sm" ), "3" );
}

} // namespace
