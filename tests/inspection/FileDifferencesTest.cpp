// Two chips files side by side: in the order of parts that the program writes, and in any other.
#include "inspection/FileDifferences.h"
#include "JournalSample.h"

using namespace Inspection;

namespace {

std::string fap( std::string const & number, std::string const & tables, std::string const & controls = "{}" ) {
   return "\"" + number + R"(": {"chipType": "BCM88690_B0", "controls": )" + controls + R"(, "tables": {)" + tables +
          "}}";
}
std::string trap( std::string const & array, std::string const & word ) {
   return R"("IppdFerTrapCfg": {"0": {")" + array + R"(": {"0": {"words": [")" + word + R"("]}}}})";
}
std::string file( std::string const & faps ) {
   return "{\"faps\": {" + faps + "}}\n";
}

struct FileDifferencesTest : testing::Test {
   // "fap table place name a b", a line each.
   std::vector< std::string > between( std::string const & a, std::string const & b, DiffQuestion question = {} ) {
      question.a = folder.file( "a.json", a );
      question.b = folder.file( "b.json", b );
      std::vector< std::string > lines;
      for ( Difference const & it : differencesOf( question ).chips ) {
         for ( auto const & value : it.values ) {
            lines.push_back( std::to_string( it.fap ) + " " + it.table + " " + it.place + " " + value.name + " " +
                             value.a.value_or( "-" ) + " " + value.b.value_or( "-" ) );
         }
      }
      return lines;
   }
   std::string errorOf( std::string const & a, std::string const & b ) {
      try {
         between( a, b );
      } catch ( InputError const & error ) {
         return error.what();
      }
      return "";
   }
   Folder const folder;
};

using Lines = std::vector< std::string >;

TEST_F( FileDifferencesTest, TellsFieldsControlsAndFaps ) {
   auto const a = file( fap( "0", trap( "3", "0x00000001" ), R"({"64": 1})" ) + "," + fap( "2", "" ) );
   auto const b =
      file( fap( "0", trap( "3", "0x00000003" ), R"({"64": 2})" ) + "," + fap( "7", trap( "3", "0x00000001" ) ) );
   EXPECT_EQ( between( a, a ), Lines{} );
   EXPECT_EQ( between( a, b ),
              ( Lines{ "0 controls 64 value 1 2",
                       "0 IppdFerTrapCfg [3] cpuSnoopCodeN 0x1 0x3",
                       "2 chip type  chip type BCM88690_B0 -",
                       "7 chip type  chip type - BCM88690_B0" } ) );
}

TEST_F( FileDifferencesTest, TellsTheSameOfPartsInAnotherOrder ) {
   auto const one = fap( "1", trap( "3", "0x00000001" ) );
   auto const two = fap( "2", trap( "4", "0x00000001" ) );
   auto const a = file( one + "," + two );
   EXPECT_EQ( between( a, file( two + "," + one ) ), Lines{} );
   auto const other = fap( "2", trap( "4", "0x00000002" ) );
   EXPECT_EQ( between( a, file( other + "," + one ) ), Lines{ "2 IppdFerTrapCfg [4] cpuSnoopCodeN 0x1 0x2" } );
   std::string const kindLast = R"({"faps": {"1": {"tables": {)" + trap( "3", "0x00000005" ) +
                                R"(}, "controls": {}, "chipType": "BCM88690_B0"}}})";
   EXPECT_EQ( between( file( one ), kindLast ), Lines{ "1 IppdFerTrapCfg [3] cpuSnoopCodeN 0x1 0x5" } );
}

TEST_F( FileDifferencesTest, ComparesEventsOfOneRunInAnyOrder ) {
   std::string run =
      R"({"op": "begin", "format": 2, "l3sm": "1.0.0", "plugin": "", "scenario": {"switch": {"slice": {"name": "L"}, "faps": [)"
      R"({"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}},)"
      R"({"fapId": 1, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}}]}}})"
      "\n";
   for ( auto const number : { "0", "1", "2", "3" } ) {
      run += R"({"op": "event", "event": )" + std::string( number ) + R"(, "what": {"start": {}}})" + "\n" +
             R"({"op": "write", "seq": 1, "event": )" + number +
             R"(, "fap": 1, "table": "IppdFerTrapCfg", "variant": 0, "array": 3, "entry": null, "scope": "all", )" +
             R"("words": ["0x0000000)" + number + R"("], "changed": true, "function": "f", "source": "a.cpp:1", )" +
             R"("cause": "start"})" + "\n";
   }
   auto const path =
      folder.file( "run.jsonl", run + R"({"op": "end", "ended": "complete", "events": 3, "operations": 4})" );
   auto const apart = [&]( std::vector< U32 > events ) {
      std::string told;
      for ( Difference const & it : differencesOf( { .a = path, .events = std::move( events ) } ).chips ) {
         for ( auto const & value : it.values ) {
            told += std::to_string( it.fap ) + " " + it.table + " " + *value.a + " " + *value.b;
         }
      }
      return told;
   };
   EXPECT_EQ( apart( { 1, 3 } ), "1 IppdFerTrapCfg 0x1 0x3" );
   EXPECT_EQ( apart( { 3, 1 } ), "1 IppdFerTrapCfg 0x3 0x1" );
   EXPECT_EQ( apart( { 2 } ), "1 IppdFerTrapCfg 0x2 0x3" );
   EXPECT_EQ( apart( { 2, 2 } ), "" );
}

TEST_F( FileDifferencesTest, KeepsToWhatIsAskedFor ) {
   auto const a = file( fap( "0", trap( "3", "0x00000001" ), R"({"64": 1})" ) );
   auto const b = file( fap( "0", trap( "3", "0xffffffff" ), R"({"64": 2})" ) );
   auto const of = [&]( std::vector< std::string > const & typed, TypedPlace place = {} ) {
      return between( a, b, { .a = "", .filter = ContentsFilter( typed, place, {} ) } ).size();
   };
   EXPECT_EQ( of( {} ), 4u );
   EXPECT_EQ( of( { "IppdFerTrapCfg" } ), 3u );
   EXPECT_EQ( of( { "IppdFerTrapCfg.cpuStrengthN" } ), 1u );
   EXPECT_EQ( of( { "IppdFerTrapCfg" }, { .array = 4 } ), 0u );
   EXPECT_EQ( of( { "controls" } ), 1u );
   EXPECT_EQ( of( { "control.65" } ), 0u );
}

TEST_F( FileDifferencesTest, RefusesWhatIsWrongInEither ) {
   auto const good = file( fap( "0", trap( "3", "0x00000001" ) ) );
   auto const bad = file( fap( "0", trap( "99", "0x00000001" ) ) );
   EXPECT_NE( errorOf( good, bad ).find( "b.json:1:" ), std::string::npos ) << errorOf( good, bad );
   EXPECT_NE( errorOf( bad, good ).find( "a.json:1:" ), std::string::npos ) << errorOf( bad, good );
   EXPECT_NE( errorOf( good, good.substr( 0, good.size() / 2 ) ), "" );
   EXPECT_NE( errorOf( good, R"({"evpn/status": {}})" ).find( "b.json a state file" ), std::string::npos );
}

} // namespace
