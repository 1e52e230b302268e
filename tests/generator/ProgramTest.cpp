// The generator's own program, on a tree of its own: what it writes, what it checks, and what it refuses.
#include "BuildFolder.h"
#include "ChildProgram.h"
#include "Folder.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

constexpr char const * header = "generated/DaceFapNiPluginL3UnicastMetaInfo.h";
fs::path const theTree = L3SM_SOURCE_DIR;

class GeneratorProgram : public testing::Test {
 protected:
   GeneratorProgram() {
      for ( char const * part : { "catalogue", "generated", "tests/generated" } ) {
         fs::create_directories( folder / part );
         fs::copy( theTree / part, folder / part, fs::copy_options::recursive );
      }
   }

   // What it prints, and its exit status.
   std::pair< std::string, int > ran( std::vector< std::string > words ) {
      words.insert( words.begin(), buildFolder() + "/bin/l3sm-generate" );
      fs::remove( log );
      ChildProgram generate;
      generate.begins( words, log );
      int const status = generate.ended();
      return { contentsOf( log ), status };
   }

   Folder kept;
   fs::path folder = kept / "tree";
   std::string log = kept / "log";
   using Answer = std::pair< std::string, int >;
};

TEST_F( GeneratorProgram, saysNothingOfATreeThatIsWhatTheCatalogueSays ) {
   EXPECT_EQ( ran( { folder } ), ( Answer{ "", 0 } ) );
   EXPECT_EQ( ran( { "--check", folder } ), ( Answer{ "", 0 } ) );
   EXPECT_EQ( ran( { "--check" } ), ( Answer{ "", 0 } ) ); // the tree that it was built in
}

TEST_F( GeneratorProgram, writesWhatIsNotWhatTheCatalogueSaysUnlessItOnlyChecks ) {
   std::string const whole = contentsOf( folder / header );
   std::ofstream( folder / header, std::ios::app ) << "// by hand\n";
   EXPECT_EQ( ran( { folder, "--check" } ),
              ( Answer{ std::string( header ) + " is not what the catalogue says. Run ./dev generate.\n", 1 } ) );
   EXPECT_EQ( contentsOf( folder / header ), whole + "// by hand\n" );

   EXPECT_EQ( ran( { folder } ), ( Answer{ std::string( header ) + " written.\n", 0 } ) );
   EXPECT_EQ( contentsOf( folder / header ), whole );
}

TEST_F( GeneratorProgram, tellsWhatItCannotWrite ) {
   fs::remove( folder / header );
   fs::create_directory( folder / header );
   EXPECT_EQ( ran( { folder } ),
              ( Answer{ "l3sm-generate: " + ( folder / header ).string() + ":1: cannot be written\n", 2 } ) );
}

TEST_F( GeneratorProgram, refusesWhatItDoesNotKnow ) {
   EXPECT_EQ( ran( { "--chek" } ),
              ( Answer{ "l3sm-generate: unknown option --chek; usage: l3sm-generate [--check] [SOURCE-TREE]\n", 2 } ) );
   EXPECT_EQ(
      ran( { folder / "nowhere" } ),
      ( Answer{ "l3sm-generate: " + ( folder / "nowhere/catalogue" ).string() + ":1: is not a folder\n", 2 } ) );
}

} // namespace
