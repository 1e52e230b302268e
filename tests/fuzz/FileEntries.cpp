#include "Entries.h"

#include "generator/Check.h"
#include "generator/Emit.h"
#include "generator/Read.h"
#include "inspection/Replay.h"
#include "inspection/Why.h"
#include "inspection/files/ChipsReader.h"
#include "inspection/files/Scenario.h"
#include "inspection/report/Report.h"
#include "l3sm/CommandLine.h"

#include <CLI/CLI.hpp>
#include <sys/mman.h>
#include <unistd.h>

namespace Fuzz {

namespace {

using namespace Inspection;

// The bytes as a file that has a path and no place on a disk.
class BytesFile {
 public:
   explicit BytesFile( std::string const & bytes ) : file_( ::memfd_create( "input", 0 ) ) {
      for ( std::size_t at = 0; at < bytes.size(); ) {
         at += static_cast< std::size_t >( ::write( file_, bytes.data() + at, bytes.size() - at ) );
      }
   }
   BytesFile( BytesFile const & ) = delete;
   BytesFile & operator=( BytesFile const & ) = delete;
   ~BytesFile() { ::close( file_ ); }

   std::string path() const { return "/proc/self/fd/" + std::to_string( file_ ); }

 private:
   int file_;
};

// Runs a reader that may refuse what it reads.
template< class Read >
void mayRefuse( Read const & read ) {
   try {
      read();
   } catch ( InputError const & ) { // NOLINT(bugprone-empty-catch)
   }
}

void scenario( std::string const & bytes ) {
   BytesFile const file( bytes );
   mayRefuse( [&] {
      Scenario const read = readScenario( file.path() );
      valueOf( read );
   } );
}

// All answers that read a journal.
void journal( std::string const & bytes ) {
   BytesFile const file( bytes );
   mayRefuse( [&] { replayOf( { .journal = file.path() }, OutputFile( "" ) ); } );
   for ( char const * subject :
         { "IppdFerTrapCfg", "evpn/status", "L3Sm::handleLooseUrpfFailFwdConfig", "Ethernet1" } ) {
      mayRefuse( [&] {
         JournalReader reader( file.path() );
         WhyReader why( whySubjectOf( subject ), {} );
         whyOf( reader, why );
      } );
   }
   mayRefuse( [&] {
      JournalReader reader( file.path() );
      ReportData data( reader.scenario() );
      reader.read( data );
      reportOf( data, reader.remarks() );
   } );
}

void chips( std::string const & bytes ) {
   BytesFile const file( bytes );
   mayRefuse( [&] { chipTypesIn( file.path() ); } );
   mayRefuse( [&] { eachFap( file.path(), { .tables = { "IppdFerTrapCfg" } }, []( U16, FapContents ) {} ); } );
   mayRefuse( [&] {
      ChipsFile const read = Inspection::readChips( file.path() );
      differencesOf( read, {} );
   } );
}

// One table's file beside the chips that there are, up to the sources that it would give.
void catalogue( std::string const & bytes ) {
   static auto const chipsThere = ::readChips( L3SM_SOURCE_DIR "/catalogue/chips.yaml" );
   BytesFile const file( bytes );
   try {
      Model::Catalogue read{ .chips = chipsThere, .tables = { readTable( file.path(), chipsThere ) }, .fieldIds = {} };
      checkTable( read.tables.front(), read.chips );
      for ( auto const & field : read.tables.front().fieldNames ) {
         read.fieldIds.emplace( field, static_cast< unsigned >( read.fieldIds.size() + 1 ) );
      }
      emitAll( read );
   } catch ( Error const & ) { // NOLINT(bugprone-empty-catch)
   }
}

// The arguments, one a line. They are read, and what they ask for isn't done.
void commandLine( std::string const & bytes ) {
   std::vector< std::string > words;
   std::istringstream in( bytes );
   for ( std::string word; std::getline( in, word ) && words.size() < 20; ) {
      words.push_back( word );
   }
   std::reverse( words.begin(), words.end() ); // as the parser takes them
   CLI::App app;
   std::function< int() > action;
   Cli::defineCommandLine( app, action );
   mayRefuse( [&] {
      try {
         app.parse( words );
      } catch ( CLI::Error const & ) { // NOLINT(bugprone-empty-catch)
      }
   } );
}

} // namespace

std::vector< Entry > const & entries() {
   static std::vector< Entry > const all{
      { "scenario", scenario },
      { "journal", journal },
      { "chips", chips },
      { "catalogue", catalogue },
      { "commandLine", commandLine },
   };
   return all;
}

} // namespace Fuzz
