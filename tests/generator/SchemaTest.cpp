// What the generator says of a catalogue that is wrong: always the file, the line, and what to do.
#include "generator/Check.h"
#include "generator/Read.h"

#include <gtest/gtest.h>

#include <fstream>

#include <unistd.h>

namespace {

class SchemaTest : public testing::Test {
 protected:
   SchemaTest() : folder_( std::filesystem::temp_directory_path() / ( "l3sm-schema-" + std::to_string( getpid() ) ) ) {
      std::filesystem::create_directories( folder_ );
      write( "chips.yaml", "BCM88690_B0: {number: 10, instances: 2}\nBCM88800_A0: {number: 11, instances: 1}\n" );
   }
   ~SchemaTest() override { std::filesystem::remove_all( folder_ ); }

   void write( std::string const & name, std::string const & text ) const { std::ofstream( folder_ / name ) << text; }

   // What reading and checking a table of this text says, without the folder; empty where it is fine.
   std::string fault( std::string const & text ) const {
      write( "Table.yaml", text );
      try {
         auto const chips = readChips( ( folder_ / "chips.yaml" ).string() );
         checkTable( readTable( ( folder_ / "Table.yaml" ).string(), chips ), chips );
         return "";
      } catch ( Error const & e ) {
         return std::string( e.what() ).substr( folder_.string().size() + 1 );
      }
   }

   // The same of the whole folder.
   std::string catalogueFault() const {
      try {
         readCatalogue( folder_ );
         return "";
      } catch ( Error const & e ) {
         return std::string( e.what() ).substr( folder_.string().size() + 1 );
      }
   }

   std::filesystem::path folder_;
};

// A table that is fine, in lines 1 to 9; what a test adds follows.
std::string const good = "kind: memory\n"
                         "geometry:\n"
                         "  - {entries: 32, width: 2, sdkId: 8278}\n"
                         "addresses:\n"
                         "  - {chips: [BCM88690_B0], base: 0x930000, selectors: [[18, 2], [0, 10]]}\n"
                         "  - {chips: [BCM88800_A0], base: 0x930000, selectors: [[6, 10]]}\n"
                         "fields:\n"
                         "  - bits:\n"
                         "      vector: [0, 32]\n";

std::string replaced( std::string text, std::string const & what, std::string const & by ) {
   auto const at = text.find( what );
   EXPECT_NE( at, std::string::npos ) << what;
   return text.replace( at, what.size(), by );
}

TEST_F( SchemaTest, ATableThatIsFine ) {
   EXPECT_EQ( fault( good ), "" );
}

TEST_F( SchemaTest, AnUnknownKey ) {
   EXPECT_EQ( fault( good + "colour: blue\n" ),
              "Table.yaml:10: unknown key 'colour'; known here: kind, chips, variants, geometry, addresses, fields, "
              "indexed, tag" );
   EXPECT_EQ( fault( replaced( good, "sdkId", "sdk" ) ),
              "Table.yaml:3: unknown key 'sdk'; known here: chips, variants, entries, width, array, firstIndex, "
              "accepts, instances, sdkId" );
}

TEST_F( SchemaTest, AKeyTwice ) {
   EXPECT_EQ( fault( good + "      vector: [32, 8]\n" ), "Table.yaml:10: the key 'vector' stands here twice" );
}

TEST_F( SchemaTest, FieldsThatOverlapAndAreNoViews ) {
   EXPECT_EQ( fault( good + "      part: [31, 2]\n" ),
              "Table.yaml:10: field 'part' overlaps 'vector' on BCM88690_B0 variant 0; declare one of them a view" );
   EXPECT_EQ( fault( good + "      part: [31, 2, view]\n" ), "" );
}

TEST_F( SchemaTest, AFieldPastTheWidth ) {
   EXPECT_EQ( fault( good + "      rest: [32, 33]\n" ),
              "Table.yaml:10: field 'rest' ends at bit 64, past the 2 words of BCM88690_B0 variant 0" );
   EXPECT_EQ( fault( good + "      slot0..4: {at: 32, width: 7, step: 7}\n" ),
              "Table.yaml:10: field 'slot4' ends at bit 66, past the 2 words of BCM88690_B0 variant 0" );
}

TEST_F( SchemaTest, AFieldWithoutBits ) {
   EXPECT_EQ( fault( good + "      none: [32, 0]\n" ), "Table.yaml:10: field 'none' must have 1 to 512 bits" );
   EXPECT_EQ( fault( good + "      odd: [32]\n" ),
              "Table.yaml:10: a field is [offset, width] or [offset, width, view]" );
   EXPECT_EQ( fault( good + "      odd: [32, x]\n" ), "Table.yaml:10: 'x' is not a number of 32 bits" );
}

TEST_F( SchemaTest, SelectorsThatAreMissing ) {
   EXPECT_EQ( fault( replaced( good, "[[18, 2], [0, 10]]", "[[18, 2]]" ) ),
              "Table.yaml:5: BCM88690_B0 variant 0 has 2 copies, but 1 pairs of selectors are given" );
   EXPECT_EQ( fault( replaced( good, ", selectors: [[6, 10]]", "" ) ), "Table.yaml:6: 'selectors' is missing" );
   EXPECT_EQ( fault( replaced( good, "[[6, 10]]", "[[6]]" ) ), "Table.yaml:6: a list of 2 is expected here" );
}

TEST_F( SchemaTest, APairThatNothingSpeaksOf ) {
   EXPECT_EQ( fault( replaced( good, "  - {chips: [BCM88800_A0], base: 0x930000, selectors: [[6, 10]]}\n", "" ) ),
              "Table.yaml:1: no address for BCM88800_A0 variant 0" );
   EXPECT_EQ( fault( replaced( good, "{entries", "{chips: [BCM88690_B0], entries" ) ),
              "Table.yaml:1: no geometry for BCM88800_A0 variant 0" );
   EXPECT_EQ( fault( replaced( good, "  - bits", "  - chips: [BCM88690_B0]\n    bits" ) ),
              "Table.yaml:1: no fields for BCM88800_A0 variant 0" );
}

TEST_F( SchemaTest, APairThatTwoBlocksSpeakOf ) {
   EXPECT_EQ( fault( replaced( good, "addresses:", "  - {entries: 16, width: 2}\naddresses:" ) ),
              "Table.yaml:4: the geometry of BCM88690_B0 variant 0 was told in line 3" );
}

TEST_F( SchemaTest, ChipsAndVariantsThatAreNotThere ) {
   EXPECT_EQ( fault( replaced( good, "chips: [BCM88800_A0]", "chips: [BCM1]" ) ), "Table.yaml:6: unknown chip 'BCM1'" );
   EXPECT_EQ( fault( replaced( good, "{entries", "{variants: [1], entries" ) ),
              "Table.yaml:3: the table has no variant 1" );
   EXPECT_EQ( fault( replaced( good, "kind: memory", "kind: memory\nchips: [BCM88690_B0]" ) ),
              "Table.yaml:7: the table does not exist on BCM88800_A0" );
}

TEST_F( SchemaTest, ARegisterWithEntries ) {
   EXPECT_EQ( fault( replaced( good, "memory", "register" ) ), "Table.yaml:3: a register has no 'entries'" );
   EXPECT_EQ( fault( replaced( good, "memory", "cupboard" ) ),
              "Table.yaml:1: kind 'cupboard' is neither memory nor register" );
}

TEST_F( SchemaTest, AnArrayWithoutAStep ) {
   EXPECT_EQ( fault( replaced( good, "width: 2", "width: 2, array: 3" ) ),
              "Table.yaml:5: 'arrayStep' must be given on BCM88690_B0 variant 0 exactly where 'array' is more than 1" );
}

TEST_F( SchemaTest, NamesThatCollideInTheClass ) {
   EXPECT_EQ( fault( good + "      width: [32, 4]\n" ),
              "Table.yaml:10: field 'width' would give the class a second member 'width'" );
   EXPECT_EQ( fault( good + "      vectorLen: [32, 4]\n" ),
              "Table.yaml:10: field 'vectorLen' would give the class a second member 'vectorLen'" );
}

TEST_F( SchemaTest, ATagThatDoesNotFit ) {
   EXPECT_EQ( fault( good + "tag:\n  - {bits: [[32, 2, 4]]}\n" ),
              "Table.yaml:11: a tag has at most 8 bits, and a value that fits them" );
   EXPECT_EQ( fault( good + "tag:\n  - {bits: [[62, 3, 4]]}\n" ),
              "Table.yaml:11: the tag goes past the width of BCM88690_B0 variant 0" );
}

TEST_F( SchemaTest, WithoutAFieldThatIsNotThere ) {
   EXPECT_EQ( fault( good + "  - without: [other]\n" ),
              "Table.yaml:10: there is no field 'other' on BCM88690_B0 variant 0" );
}

TEST_F( SchemaTest, ARunThatIsNotThere ) {
   EXPECT_EQ( fault( good + "indexed: [slot]\n" ), "Table.yaml:10: there is no field 'slot0'" );
}

TEST_F( SchemaTest, BrokenYaml ) {
   EXPECT_EQ( fault( "kind: [memory\n" ).substr( 0, 11 ), "Table.yaml:" );
   EXPECT_EQ( fault( "memory\n" ), "Table.yaml:1: a map of keys and values is expected here" );
}

TEST_F( SchemaTest, AFolderNamedLikeATable ) {
   write( "Fine.yaml", good );
   std::filesystem::create_directories( folder_ / "Table.yaml" );
   EXPECT_EQ( catalogueFault(), "Table.yaml:1: cannot be read" );
}

TEST_F( SchemaTest, NumbersThatNoTableHas ) {
   EXPECT_EQ( fault( "variants: 400000000\n" + good ), "Table.yaml:1: a table has 1 to 255 variants" );
   EXPECT_EQ( fault( "variants: 0\n" + good ), "Table.yaml:1: a table has 1 to 255 variants" );
   auto const run = []( std::string const & name ) {
      return good + "      " + name + ": {at: 32, width: 1, step: 1}\n";
   };
   for ( std::string const name : { "slot0..400000000", "slot0..1024", "slot99999999999999999999..3" } ) {
      EXPECT_EQ( fault( run( name ) ), "Table.yaml:10: the fields of a run have numbers below 1024" ) << name;
   }
   EXPECT_EQ( fault( run( "slot3..2" ) ), "Table.yaml:10: a run of fields counts upwards" );
   EXPECT_EQ( fault( run( "slot0..31" ) ), "" );
}

// Sums of such numbers don't begin at 0 again.
TEST_F( SchemaTest, PlacesFarBehindTheEntry ) {
   auto const pastTheWidth = []( std::string const & text ) {
      return text.find( "past the 2 words of BCM88690_B0 variant 0" ) != std::string::npos;
   };
   EXPECT_TRUE( pastTheWidth( fault( good + "      far: [4294967295, 2]\n" ) ) );
   EXPECT_TRUE( pastTheWidth( fault( good + "      far0..1: {at: 32, width: 1, step: 4294967295}\n" ) ) );
   EXPECT_EQ( fault( good + "tag:\n  - bits: [[4294967295, 2, 1]]\n" ),
              "Table.yaml:11: the tag goes past the width of BCM88690_B0 variant 0" );
}

TEST_F( SchemaTest, IdsThatDoNotFitTheFields ) {
   write( "Table.yaml", good );
   write( "field-ids.yaml", "vector: 3\nvoid: 4\n" );
   EXPECT_EQ( catalogueFault(), "field-ids.yaml:2: no table has a field 'void'" );
   write( "field-ids.yaml", "{}\n" );
   EXPECT_EQ( catalogueFault(), "field-ids.yaml:1: field 'vector' of Table has no id" );
   write( "Table.yaml", good + "      Abc: [32, 1]\n" );
   write( "field-ids.yaml", "vector: 3\nAbc: 4\n" );
   EXPECT_EQ( catalogueFault(), "field-ids.yaml:2: 'Abc' must follow 'vector' in the alphabet and have a higher id" );
   write( "field-ids.yaml", "Abc: 3\nvector: 3\n" );
   EXPECT_EQ( catalogueFault(), "field-ids.yaml:2: 'vector' must follow 'Abc' in the alphabet and have a higher id" );
   write( "field-ids.yaml", "Abc: 3\nvector: 4\n" );
   EXPECT_EQ( catalogueFault(), "" );
}

} // namespace
