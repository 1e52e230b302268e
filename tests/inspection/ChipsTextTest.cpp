// Chips files that hold something wrong: each part is refused by what is wrong with it, and where.
#include "inspection/files/ChipsText.h"
#include "inspection/files/ChipsReader.h"

#include "Folder.h"

#include <gtest/gtest.h>

namespace {

using namespace Inspection;

std::string tableTextRefusal( std::string const & text ) {
   try {
      tableFromText( text );
   } catch ( Rex::ValueError const & error ) {
      return error.place() + ": " + error.what();
   }
   return "read";
}

std::string entryRefusal( std::string const & entry ) {
   return tableTextRefusal( R"({"0": {"3": {"0": )" + entry + "}}}" );
}

std::string controlsRefusal( std::string const & text ) {
   try {
      controlsFromText( text );
   } catch ( Rex::ValueError const & error ) {
      return error.place() + ": " + error.what();
   }
   return "read";
}

std::string chipsFileRefusal( std::string const & text ) {
   Folder const folder;
   try {
      eachFap( folder.file( "chips.json", text ), {}, []( U16, FapContents const & ) {} );
   } catch ( InputError const & error ) {
      std::string const told = error.what();
      return told.substr( told.find( "chips.json" ) );
   }
   return "read";
}

TEST( ChipsText, refusesAnEntryThatIsNeitherWordsNorInstances ) {
   EXPECT_EQ( entryRefusal( R"({"words": ["0x00000a00"]})" ), "read" );
   EXPECT_EQ( entryRefusal( R"({"instances": {"0": ["0x00000a00"], "1": ["0x00000a01"]}, "fields": {}})" ), "read" );
   EXPECT_EQ( entryRefusal( "{}" ), R"(/0/3/0: an entry has either "words" or "instances")" );
   EXPECT_EQ( entryRefusal( R"({"instances": {"0": ["0x00000a00"], "1": ["0x00000a01"]}, "words": ["0x00000a00"]})" ),
              R"(/0/3/0: an entry has either "words" or "instances")" );
   EXPECT_EQ( entryRefusal( R"({"words": ["0x00000a00"], "instances": {"0": ["0x00000a00"], "1": ["0x00000a01"]}})" ),
              R"(/0/3/0: an entry has either "words" or "instances")" );
   EXPECT_EQ( entryRefusal( R"({"words": ["0x00000a00"], "words": ["0x00000a01"]})" ),
              R"(/0/3/0: an entry has either "words" or "instances")" );
   EXPECT_EQ( entryRefusal( R"({"word": ["0x00000a00"]})" ),
              R"(/0/3/0: an entry has "words" or "instances", no "word")" );
}

TEST( ChipsText, refusesInstancesThatAreNotCountedFromZero ) {
   EXPECT_EQ( entryRefusal( R"({"instances": {"0": ["0x00000a00"], "2": ["0x00000a01"]}})" ),
              "/0/3/0/instances/2: expected instance 1" );
   EXPECT_EQ( entryRefusal( R"({"instances": {"0": ["0x00000a00"]}})" ),
              R"(/0/3/0/instances: instances are two or more: give "words" where all hold the same)" );
}

TEST( ChipsText, takesInstancesInAnyOrder ) {
   std::vector< Simulator::Words > expected;
   std::string text;
   for ( U32 instance = 0; instance < 12; ++instance ) {
      expected.push_back( { instance } );
      text = "\"" + std::to_string( instance ) + "\": [\"" + wordText( instance ) + "\"]" +
             ( text.empty() ? "" : ", " ) + text;
   }
   std::string const entry = "{\"instances\": {" + text + "}}";
   EXPECT_EQ( tableFromText( R"({"0": {"3": {"0": )" + entry + "}}}" ).at( 0 ).at( 3 ).at( 0 ).copies, expected );
   auto const value = parseJson( R"({"IppdFerTrapCfg": {"0": {"3": {"0": )" + entry + "}}}}", "" );
   EXPECT_EQ( tablesFromValue( value ).at( "IppdFerTrapCfg" ).at( 0 ).at( 3 ).at( 0 ).copies, expected );
}

TEST( ChipsText, tellsTheInstanceWhoseWordsAreNone ) {
   EXPECT_EQ( entryRefusal( R"({"instances": {"1": ["0x00000a00"], "0": ["no"]}})" ),
              R"(/0/3/0/instances/0: expected words such as "0x00000a00")" );
   EXPECT_EQ( entryRefusal( R"({"instances": {"1": ["0x00000a00"], "1": ["0x00000a00"]}})" ),
              "/0/3/0/instances/1: stands twice" );
   EXPECT_EQ( entryRefusal( R"({"words": 7})" ), "/0/3/0/words: expected a list of words" );
}

TEST( ChipsText, refusesANumberThatStandsTwice ) {
   EXPECT_EQ( tableTextRefusal( R"({"0": {"3": {}, "3": {}}})" ), "/0/3: stands twice" );
   EXPECT_EQ( tableTextRefusal( R"({"0": []})" ), "/0: expected an object" );
}

TEST( ChipsText, refusesAControlThatNoChipCanHold ) {
   EXPECT_EQ( controlsRefusal( R"({"64": 4294967295})" ), "read" );
   EXPECT_EQ( controlsRefusal( R"({"64": 4294967296})" ), "/64: expected a number from 0 to 4294967295" );
   EXPECT_EQ( controlsRefusal( R"({"64": "1"})" ), "/64: expected a number from 0 to 4294967295" );
}

TEST( ChipsText, refusesAFapOrAPartThatStandsTwice ) {
   std::string const fap = R"({"chipType": "BCM88690_B0", "controls": {}, "tables": {}})";
   EXPECT_EQ( chipsFileRefusal( R"({"faps": {"0": )" + fap + "}}" ), "read" );
   EXPECT_EQ( chipsFileRefusal( R"({"faps": {"0": )" + fap + R"(, "0": )" + fap + "}}" ),
              "chips.json:1:75: /faps/0: this key stands twice in the object" );
   EXPECT_EQ( chipsFileRefusal( R"({"faps": {"0": {"chipType": "BCM88690_B0", "controls": {}, "controls": {}}}})" ),
              "chips.json:1:60: /faps/0/controls: this key stands twice in the object" );
   std::string const trap = R"("IppdFerTrapCfg": {})";
   EXPECT_EQ(
      chipsFileRefusal( R"({"faps": {"0": {"chipType": "BCM88690_B0", "tables": {)" + trap + ", " + trap + "}}}}" ),
      "chips.json:1:77: /faps/0/tables/IppdFerTrapCfg: this key stands twice in the object" );
}

} // namespace
