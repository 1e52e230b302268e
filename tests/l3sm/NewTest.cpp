// Scenarios to start from: whatever they are about, they are played to their end on chips that are served.
#include "BuildFolder.h"
#include "l3sm/Command.h"

#include "inspection/KeptRows.h"
#include "inspection/NewScenario.h"
#include "inspection/ServedFaps.h"
#include "inspection/files/Json.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using namespace Inspection;
using Rex::Value;

std::string allSubjects() {
   std::string all;
   for ( Subject const & subject : subjects() ) {
      all += ( all.empty() ? "" : "," ) + subject.name;
   }
   return all;
}

constexpr char const * allChips = "BCM88690_B0 BCM88800_A0 BCM88850_A0 BCM88859_A2 BCM88480_A0 BCM88480_B0";

// Writes a scenario and plays it; every FAP must be served, and every event do something.
void expectToBePlayed( std::string const & arguments, std::size_t faps ) {
   Command const l3sm( "new " + arguments + " -o s.json && '" + buildFolder() +
                       "/bin/l3sm' run s.json --quiet --journal j" );
   ASSERT_EQ( l3sm.status, 0 ) << arguments << l3sm.errors;
   auto const scenario = parseJson( l3sm.file( "s.json" ), "s.json" );
   EXPECT_EQ( scenario.object()->at( "switch" ).object()->at( "faps" ).list()->size(), faps );
   std::set< std::size_t > silent;
   for ( std::size_t event = 1; event <= scenario.object()->at( "events" ).list()->size(); ++event ) {
      silent.insert( event );
   }
   ServedFaps served;
   auto const rows = rowsOf( ( l3sm.folder / "j" ).string() );
   for ( auto const & row : rows.all() ) {
      served.follow( row );
      if ( row.kind != Simulator::Row::Kind::read && row.kind != Simulator::Row::Kind::gate ) {
         silent.erase( row.event );
      }
   }
   EXPECT_EQ( silent, std::set< std::size_t >{} ) << arguments << ": events that nothing follows from";
   for ( U16 fap = 0; fap < faps; ++fap ) {
      EXPECT_TRUE( served.of( fap ).isServed ) << arguments << " FAP " << fap;
   }
}

TEST( New, writesOfEverySubjectWhatThePluginAnswersOnServedChips ) {
   EXPECT_GE( subjects().size(), 10u );
   for ( Subject const & subject : subjects() ) {
      expectToBePlayed( "--with " + subject.name, 1 );
   }
}

TEST( New, writesOfAllSubjectsTogetherOnEveryKindOfChip ) {
   expectToBePlayed( std::string( "--chip " ) + allChips + " --with " + allSubjects(), 6 );
}

TEST( New, writesASwitchAloneWhereNoSubjectIsNamed ) {
   expectToBePlayed( "", 1 );
}

TEST( New, givesEveryChipTheCoresThatAreAskedFor ) {
   Command const l3sm( "new --chip BCM88690_B0 BCM88800_A0 --cores 1" );
   auto const scenario = parseJson( l3sm.output, "new" );
   for ( auto const & fap : *scenario.object()->at( "switch" ).object()->at( "faps" ).list() ) {
      EXPECT_EQ( fap.object()->at( "cores" ), Value( 1 ) );
   }
   EXPECT_FALSE( Command( "new" ).output.find( "cores" ) != std::string::npos );
}

TEST( New, refusesCoresThatAChipHasNot ) {
   Command const many( "new --chip BCM88690_B0 BCM88800_A0 --cores 2" );
   EXPECT_EQ( many.status, 2 );
   EXPECT_EQ( many.output, "" );
   EXPECT_EQ( many.errors,
              "l3sm: --cores 2: 2 cores are more than the chip has copies of its tables; a BCM88800_A0 has 1\n" );
   EXPECT_EQ( Command( "new --cores 0" ).status, 2 );
}

TEST( New, doesNotTouchAFileThatIsThere ) {
   Command const l3sm( "new -o mine.json", { { "mine.json", "mine" } } );
   EXPECT_EQ( l3sm.status, 2 );
   EXPECT_EQ( l3sm.errors, "l3sm: mine.json: is there already; give the scenario another name\n" );
   EXPECT_EQ( l3sm.file( "mine.json" ), "mine" );
}

TEST( New, tellsASubjectThatThereIsNot ) {
   Command const near( "new --with evpm" );
   EXPECT_EQ( near.status, 2 );
   EXPECT_EQ( near.errors, "l3sm: --with evpm: no such subject; did you mean \"evpn\"?\n" );
   Command const far( "new --with evpn,zzzzzzzz" );
   EXPECT_EQ( far.errors.substr( 0, 51 ), "l3sm: --with zzzzzzzz: no such subject; there are e" );
}

TEST( New, namesTheSchemaThatLiesBesideTheProgram ) {
   auto const scenario = parseJson( Command( "new" ).output, "new" );
   std::string const uri = *scenario.object()->at( "$schema" ).text();
   ASSERT_TRUE( uri.starts_with( "file:///" ) ) << uri;
   EXPECT_EQ( contentsOf( uri.substr( 7 ) ), Command( "schema" ).output );
}

} // namespace
