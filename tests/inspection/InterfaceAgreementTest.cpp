// What `why` makes of a run's inputs and publications is what the machines of the switch know: of every interface,
// after long runs over all that can happen to one.
#include "BuildFolder.h"
#include "inspection/Why.h"
#include "inspection/files/Json.h"
#include "l3sm/Command.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;
using Rex::Value;

Value const & member( Value const & of, std::string const & name ) {
   return objectOf( of ).at( name );
}

class InterfaceRuns : public testing::TestWithParam< int > {};

TEST_P( InterfaceRuns, areToldOfAJournalAsOfTheSwitch ) {
   std::string const maker =
      "python3 " L3SM_SOURCE_DIR "/bench/full-size-scenario --faps 1 --interfaces 20 --events 250";
   Command const l3sm( "--version >/dev/null && " + maker + " --seed " + std::to_string( GetParam() ) + " >s.json && " +
                       buildFolder() + "/bin/l3sm run s.json --journal j --json" );
   ASSERT_EQ( l3sm.status, 0 ) << l3sm.errors;
   Value const run = parseJson( l3sm.output, "run" );
   int compared = 0;
   for ( Value const & known : listOf( member( member( run, "interfaces" ), "interfaces" ) ) ) {
      std::string const & name = *member( known, "name" ).text();
      JournalReader journal( ( l3sm.folder / "j" ).string() );
      WhyReader reader( whySubjectOf( name ), {} );
      InterfaceStory const told = *whyOf( journal, reader ).interface;
      bool const isServed = *member( known, "served" ).boolean();
      EXPECT_EQ( told.isServed, isServed ) << name;
      EXPECT_EQ( told.hasItsMtu, isServed && *member( known, "synced" ).boolean() )
         << name << ": " << testing::PrintToString( told.reasons );
      compared += isServed;
   }
   EXPECT_GT( compared, 5 );
}

INSTANTIATE_TEST_SUITE_P( Random, InterfaceRuns, testing::Range( 1, 4 ) );

} // namespace
