// Transcripts: what a person types, and what the program answers, to the letter.
//
// Each file of transcripts/ is one session in a folder of its own, in which the examples of the tree stand:
//
//    $ l3sm run urpf-and-ip-traps.json --quiet --journal run.jsonl
//    $ l3sm why run.jsonl IppdFerTrapCfg.cpuStrengthN --fap 0
//    IppdFerTrapCfg.cpuStrengthN
//    ...
//    $ l3sm show missing.json
//    l3sm: missing.json: can't be read: No such file or directory
//    [2]
//
// Below a command stand its output and what it says on standard error, and its exit status where that isn't 0. Line
// numbers of the source are written as `N`: they change with every edit of a file. To write the answers anew, run with
// L3SM_TRANSCRIPTS=write in the environment, and look at what git makes of it.
#include "l3sm/Session.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

fs::path const source = L3SM_SOURCE_DIR;
fs::path const transcripts = source / "tests/l3sm/transcripts";

std::vector< std::string > names() {
   std::vector< std::string > all;
   for ( auto const & file : fs::directory_iterator( transcripts ) ) {
      all.push_back( file.path().stem() );
   }
   std::ranges::sort( all );
   return all;
}

struct TranscriptTest : testing::TestWithParam< std::string > {};

TEST_P( TranscriptTest, isAnsweredToTheLetter ) {
   fs::path const path = transcripts / ( GetParam() + ".txt" );
   std::string const expected = contentsOf( path );
   Session const session( "." );
   std::string actual;
   std::istringstream lines( expected );
   for ( std::string line; std::getline( lines, line ); ) {
      if ( line.starts_with( "$ " ) ) {
         actual += session.play( line.substr( 2 ) );
      }
   }
   if ( char const * const what = std::getenv( "L3SM_TRANSCRIPTS" ); what && std::string_view( what ) == "write" ) {
      std::ofstream( path ) << actual;
      return;
   }
   EXPECT_EQ( actual, expected );
}

INSTANTIATE_TEST_SUITE_P( All, TranscriptTest, testing::ValuesIn( names() ), []( auto const & of ) {
   std::string name = of.param;
   std::ranges::replace( name, '-', '_' );
   return name;
} );

} // namespace
