#include "simulator/ChipContents.h"
#include "rex/Value.h"
#include "simulator/BootImage.h"
#include "simulator/TableMap.h"

#include <gtest/gtest.h>

using namespace Simulator;
using Hardware::ChipType;

namespace {

struct ChipContentsTest : testing::Test {
   ChipType const chipType = ChipType::BCM88690_B0;
   Chip chip{ ChipId{ 0 }, "BCM88690_B0", addressMap( ChipType::BCM88690_B0 ) };

   // What is said of contents that don't fit.
   std::string refusal( TablesContents const & tables ) {
      try {
         apply( tables, chip, chipType );
      } catch ( Rex::ValueError const & error ) {
         std::string all;
         for ( auto const & fault : error.faults() ) {
            all += ( all.empty() ? "" : "\n" ) + fault.place + ( fault.isKey ? "#: " : ": " ) + fault.text;
         }
         return all;
      }
      return "none";
   }
   static TablesContents one( char const * table, U32 variant, U32 array, U32 entry, EntryContents const & contents ) {
      return { { table, { { variant, { { array, { { entry, contents } } } } } } } };
   }
};

TEST_F( ChipContentsTest, ofAFreshChipAreEmpty ) {
   EXPECT_EQ( contentsOf( chip, chipType ), Contents{} );
}

TEST_F( ChipContentsTest, holdTheEntriesThatHaveAValueAndTheControls ) {
   // IppdFerTrapCfg at array index 3, in both copies; then one copy of EtppEnc1ContextSelectionPortProfile, entry 171.
   chip.write( SchanAddress{ 0x1f7 + 3, 14, 2 }, Words{ 0xa00 } );
   chip.write( SchanAddress{ 0x1f7 + 3, 28, 9 }, Words{ 0xa00 } );
   chip.write( SchanAddress{ 0x2740000 + 171, 12, 10 }, Words{ 2 } );
   chip.controlIs( 64, 255 );

   Contents const contents = contentsOf( chip, chipType );
   EXPECT_EQ( contents.tables,
              ( TablesContents{
                 { "IppdFerTrapCfg", { { 0, { { 3, { { 0, { { { 0xa00 } } } } } } } } } },
                 { "EtppEnc1ContextSelectionPortProfile", { { 0, { { 0, { { 171, { { { 0 }, { 2 } } } } } } } } } },
              } ) );
   EXPECT_EQ( contents.controls, ( std::map< U32, U32 >{ { 64, 255 } } ) );
}

TEST_F( ChipContentsTest, ofEveryKindOfChipComeBackAsTheyWere ) {
   for ( ChipType const kind : Hardware::allChipTypes ) {
      Chip booted( ChipId{ 0 }, "booted", addressMap( kind ) );
      boot( booted, kind );
      Contents const contents = contentsOf( booted, kind );
      Chip copy( ChipId{ 1 }, "copy", addressMap( kind ) );
      apply( contents.tables, copy, kind );
      EXPECT_EQ( contentsOf( copy, kind ), contents );
   }
}

TEST_F( ChipContentsTest, withDifferingCopiesComeBackAsTheyWere ) {
   auto const tables = one( "EtppTrapContextSelectionPortProfile", 0, 0, 170, { { { 1 }, { 2 } } } );
   apply( tables, chip, chipType );
   EXPECT_EQ( contentsOf( chip, chipType ).tables, tables );
}

TEST_F( ChipContentsTest, areKeyedByTheIndicesThatCallersUse ) {
   Chip other( ChipId{ 0 }, "BCM88850_A0", addressMap( ChipType::BCM88850_A0 ) );
   boot( other, ChipType::BCM88850_A0 );
   auto const variants = contentsOf( other, ChipType::BCM88850_A0 ).tables.at( "InLifProfileCsFlagsLsb" );
   EXPECT_TRUE( variants.at( 1 ).contains( 3 ) );
   EXPECT_TRUE( variants.at( 1 ).contains( 4 ) );
   EXPECT_EQ( variants.at( 1 ).size(), 2u );
   EXPECT_EQ( variants.at( 0 ).size(), 3u );
}

TEST_F( ChipContentsTest, thatDoNotFitAreRefusedWithTheirPlace ) {
   EXPECT_EQ( refusal( one( "IppdFerTrap", 0, 3, 0, { { { 1 } } } ) ),
              "/IppdFerTrap#: no table has this name; did you mean \"IppdFerTrapCfg\"?" );
   EXPECT_EQ( refusal( one( "a/b~", 0, 3, 0, { { { 1 } } } ) ),
              "/a~1b~0#: no table has this name; `l3sm catalogue` lists them" );
   EXPECT_EQ( refusal( one( "FfcInstruction", 0, 0, 0, { { { 1 } } } ) ),
              "/FfcInstruction#: this is a format, which has no memory of its own" );
   EXPECT_EQ( refusal( one( "IppdInLifProfileMap", 0, 0, 0, { { { 1 } } } ) ),
              "/IppdInLifProfileMap#: the BCM88690_B0 has no such table" );
   EXPECT_EQ( refusal( one( "IppdFerTrapCfg", 1, 3, 0, { { { 1 } } } ) ),
              "/IppdFerTrapCfg/1#: no such variant; there is only 0" );
   EXPECT_EQ( refusal( one( "IppdFerTrapCfg", 0, 8, 0, { { { 1 } } } ) ),
              "/IppdFerTrapCfg/0/8#: no such array index; there is 0 to 7" );
   EXPECT_EQ( refusal( one( "EnablersVectors", 1, 2, 0, { { { 1, 0 } } } ) ),
              "/EnablersVectors/1/2#: no such array index; there is 3 to 4" );
   EXPECT_EQ( refusal( one( "IppdFerTrapCfg", 0, 3, 1, { { { 1 } } } ) ),
              "/IppdFerTrapCfg/0/3/1#: no such entry; there is only 0" );
   EXPECT_EQ( refusal( one( "EnablersVectors", 1, 3, 32, { { { 1, 0 } } } ) ),
              "/EnablersVectors/1/3/32#: no such entry; there is 0 to 31" );
   EXPECT_EQ( refusal( one( "EnablersVectors", 1, 3, 31, { { { 1 } } } ) ),
              "/EnablersVectors/1/3/31/words: an entry has 2 words, not 1" );
   EXPECT_EQ( refusal( one( "EnablersVectors", 1, 3, 31, { { { 1, 2 }, { 1 } } } ) ),
              "/EnablersVectors/1/3/31/instances/1: an entry has 2 words, not 1" );
   EXPECT_EQ( refusal( one( "EnablersVectors", 1, 3, 31, { { { 1, 2 }, { 1, 2 }, { 1, 2 } } } ) ),
              "/EnablersVectors/1/3/31/instances: the table has 2 instances, not 3" );
}

TEST_F( ChipContentsTest, thatDoNotFitInSeveralPlacesAreToldTogether ) {
   auto tables = one( "EnablersVectors", 1, 3, 32, { { { 1, 0 } } } );
   tables["EnablersVectors"][1][2][0] = { { { 1, 0 } } };
   tables["EnablersVectors"][1][3][0] = { { { 1, 0 } } };
   tables.merge( one( "Nothing", 0, 0, 0, { { { 1 } } } ) );
   EXPECT_EQ( refusal( tables ),
              "/EnablersVectors/1/2#: no such array index; there is 3 to 4\n"
              "/EnablersVectors/1/3/32#: no such entry; there is 0 to 31\n"
              "/Nothing#: no table has this name; `l3sm catalogue` lists them" );
}

TEST_F( ChipContentsTest, thatDoNotFitLeaveTheChipAsItWas ) {
   auto tables = one( "EnablersVectors", 0, 0, 0, { { { 1, 2 } } } );
   tables.merge( one( "Nothing", 0, 0, 0, { { { 1 } } } ) );
   EXPECT_NE( refusal( tables ), "none" );
   EXPECT_EQ( contentsOf( chip, chipType ), Contents{} );
}

TEST( Decode, namesEveryFieldWithItsValue ) {
   auto const & trap = *Catalogue::layout( *Catalogue::table( "IppdFerTrapCfg" ), 10, 0 );
   EXPECT_EQ( decode( trap, Words{ 0xa00 } ),
              ( std::vector< DecodedField >{
                 { "cpuSnoopCodeN", "0x0" }, { "cpuStrengthN", "0x5" }, { "snoopStrengthN", "0x0" } } ) );
   EXPECT_EQ( decode( trap, Words{ 0xbfff } ),
              ( std::vector< DecodedField >{
                 { "cpuSnoopCodeN", "0x1ff" }, { "cpuStrengthN", "0xf" }, { "snoopStrengthN", "0x5" } } ) );
}

TEST( Decode, printsWideFieldsWhole ) {
   auto const & layout = *Catalogue::layout( *Catalogue::table( "EtppOutlifOrientationMap" ), 10, 0 );
   EXPECT_EQ( decode( layout, Words{ 0x89abcdef, 1, 0, 0, 0, 0x10000000 } ),
              ( std::vector< DecodedField >{
                 { "outlifOrientationMapping", "0x100000000000000000000000000000000000000189abcdef" } } ) );
}

} // namespace
