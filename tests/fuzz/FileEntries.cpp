// The files that verbs read, each by all the answers that read it.
#include "Entries.h"
#include "EntryTools.h"

#include "agent/EventLoop.h"
#include "agent/database/RecordedDatabase.h"
#include "agent/recording/RecordedRun.h"
#include "agent/recording/RecordedRunText.h"
#include "inspection/Replay.h"
#include "inspection/Why.h"
#include "inspection/files/ChipsReader.h"
#include "inspection/files/Scenario.h"
#include "inspection/files/ScenarioText.h"
#include "inspection/report/Report.h"
#include "inspection/views/ContentsText.h"
#include "inspection/views/CoverageText.h"
#include "inspection/views/DifferencesText.h"
#include "inspection/views/ReplayText.h"
#include "inspection/views/WhyText.h"

#include "inspection/FileContents.h"
#include "rex/Log.h"

namespace Fuzz {

namespace {

using namespace Inspection;

void show( ContentsQuestion const & question ) {
   mayRefuse( [&] {
      ForPeople out;
      eachContents( question,
                    { .remarks = [&]( auto const & lines ) { showRemarks( out, lines, Style() ); },
                      .fap =
                         [&]( U16 fap, FapContents const & contents ) {
                            showContents( out, fap, contents, { question.filter, true }, Style() );
                            contentsValue( contents, { question.filter, false } );
                         } } );
   } );
}

void diff( DiffQuestion const & question ) {
   mayRefuse( [&] {
      ForPeople out;
      auto const differences = differencesOf( question );
      showDifferences( out, differences, DifferencesShown::all, Style() );
      valueOf( differences, false );
   } );
}

void why( std::string const & path, char const * subject, WhyFilter const & filter = {} ) {
   mayRefuse( [&] {
      JournalReader journal( path );
      WhyReader reader( whySubjectOf( subject ), filter );
      auto const answer = whyOf( journal, reader );
      ForPeople out;
      writeWhy( out, answer, { .everything = true, .otherGates = true }, Style() );
      whyValue( answer );
   } );
}

// Asks for nothing but what comes next, as an agent does.
class Follower final : public Live::Database::Follower {
 public:
   explicit Follower( Live::Database & database ) : database_( database ) {
      database_.followerIs( this );
      database_.snapshot();
   }
   void snapshotIs( Live::Snapshot snapshot ) override { database_.since( snapshot.position ); }
   void transactionsAre( std::vector< Live::Transaction > transactions ) override {
      database_.since( transactions.back().position );
   }
   void gapIs( std::string ) override {}
   void unreachable( std::string ) override {}
   void withoutState( std::string ) override {}
   void refused( std::string ) override {}

 private:
   Live::Database & database_;
};

} // namespace

void scenario( std::string const & bytes ) {
   BytesFile const file( bytes );
   mayRefuse( [&] {
      Scenario const read = readScenario( file.path() );
      scenarioText( valueOf( read ) );
   } );
}

void journal( std::string const & bytes ) {
   BytesFile const file( bytes );
   auto const path = file.path();
   mayRefuse( [&] {
      auto const replay = replayOf( { .journal = path }, OutputFile( "" ) );
      ForPeople out;
      showReplay( out, replay, "", Style() );
      valueOf( replay );
   } );
   for ( char const * subject : { "IppdFerTrapCfg", "control.7", "Ethernet1" } ) {
      why( path, subject );
   }
   why( path, "evpn/status", { .at = 1 } );
   why( path, "L3Sm::handleLooseUrpfFailFwdConfig", { .fap = 0, .events = 1 } );
   mayRefuse( [&] {
      JournalReader reader( path );
      ReportData data( reader.scenario() );
      reader.read( data );
      reportOf( data, reader.remarks() );
   } );
   mayRefuse( [&] {
      JournalReader reader( path );
      Coverage coverage;
      coverage.beginsWith( reader.chipTypes() );
      reader.read( coverage, { .readsToo = false } );
      ForPeople out;
      showCoverage( out, coverage, true, Style() );
      coveragePage( coverage );
   } );
   show( { .file = path, .event = 1 } );
   diff( { .a = path, .events = { 0, 1 } } );
}

void chips( std::string const & bytes ) {
   static std::string const others = L3SM_SOURCE_DIR "/tests/fuzz/corpus/chips/some-tables.json";
   BytesFile const file( bytes );
   auto const path = file.path();
   mayRefuse( [&] { chipTypesIn( path ); } );
   mayRefuse( [&] { eachFap( path, { .tables = { "IppdFerTrapCfg" } }, []( U16, FapContents ) {} ); } );
   show( { .file = path } );
   diff( { .a = path, .b = others } );
   diff( { .a = others, .b = path } );
   mayRefuse( [&] {
      ChipsFile const read = readChips( path );
      differencesOf( read, {} );
   } );
}

// Without a plug-in: what one asserts is meant to end the process.
void recording( std::string const & bytes ) {
   Rex::logSinkIs( []( Rex::LogEntry const & ) {} );
   BytesFile const file( bytes );
   auto const path = file.path();
   mayRefuse( [&] {
      std::vector< std::string > remarks;
      scenarioText( Live::scenarioOfRecording( path, remarks ) );
   } );
   mayRefuse( [&] {
      ForPeople out;
      auto const run = Live::recordedRunOf( path );
      Live::showRecordedRun( out, run, Style() );
      Live::valueOf( run );
   } );
   mayRefuse( [&] {
      Live::EventLoop loop;
      Live::RecordedDatabase database( loop, path );
      Follower const follower( database );
      while ( loop.turn() ) {
      }
   } );
}

} // namespace Fuzz
