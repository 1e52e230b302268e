#include "ChipFixture.h"
#include "SharedFunctions.h"
#include "rex/Operations.h"

using namespace DaceFapNi;

namespace {

constexpr char strengths[] = "FlpKapsStrengthMapping";
constexpr char lsb[] = "InLifProfileCsFlagsLsb";

class KapsTest : public EveryChip {
 public:
   std::pair< U64, U64 > strengthsOf( int array, int entry, U32 copy = 0 ) const {
      Place const place{ .array = array, .entry = entry };
      return { field( strengths, place, "strengthDefault0", copy ),
               field( strengths, place, "strengthDefault1", copy ) };
   }
   void strengthIs( int array, int entry, char const * name, U64 value ) {
      fieldIs( strengths, { .array = array, .entry = entry }, name, value );
   }
};
using KapsDeathTest = KapsTest;

// ---- VRF fallback

class VrfFallbackTest : public EveryChip {};

TEST_P( VrfFallbackTest, marksThreeInLifProfiles ) {
   chipIs( GetParam() );
   L3Sm::clearInLifProfileCsMapLsb( fap() );
   L3Sm::initVrfFallbackMapping( fap() );

   bool const hasTwoElements = GetParam() == ChipType::BCM88850_A0 || GetParam() == ChipType::BCM88859_A2;
   // The nibbles of the profiles 8, 17 and 18; all others are 0.
   Words variant0( 16 );
   variant0[1] = 0x00000001;
   variant0[2] = 0x00000220;
   Words variant1( 16 );
   variant1[1] = 0x00000004;
   variant1[2] = 0x00000240;
   EXPECT_EQ( words( lsb, { .array = 0 } ), Words( 16 ) );
   EXPECT_EQ( words( lsb, { .array = 1 } ), Words( 16 ) );
   EXPECT_EQ( words( lsb, { .array = 2 } ), variant0 );
   if ( hasTwoElements ) {
      EXPECT_EQ( words( lsb, { .variant = 1, .array = 3 } ), variant1 );
      EXPECT_EQ( words( lsb, { .variant = 1, .array = 4 } ), variant1 );
   } else {
      EXPECT_EQ( words( lsb, { .variant = 1, .array = 0 } ), variant1 );
   }
}

TEST_P( VrfFallbackTest, goesProfileByProfileAndReadsBeforeEachWrite ) {
   chipIs( GetParam() );
   L3Sm::initVrfFallbackMapping( fap() );
   bool const hasTwoElements = GetParam() == ChipType::BCM88850_A0 || GetParam() == ChipType::BCM88859_A2;
   std::vector< std::string > const places =
      hasTwoElements ? std::vector< std::string >{ "0/2", "0/2", "0/2", "1/3", "1/4", "1/3", "1/4", "1/3", "1/4" }
                     : std::vector< std::string >{ "0/2", "0/2", "0/2", "1/0", "1/0", "1/0" };
   std::vector< std::string > expected;
   for ( auto const & place : places ) {
      expected.push_back( "read InLifProfileCsFlagsLsb " + place );
      expected.push_back( "write InLifProfileCsFlagsLsb " + place );
   }
   EXPECT_EQ( operations(), expected );
   for ( auto const & row : rows() ) {
      EXPECT_EQ( row.function, "L3Sm::initVrfFallbackMapping" );
   }
}

TEST_F( ChipFixture, tellsOfEachVrfFallbackMark ) {
   switchIs(
      { .faps = { { .fapId = FapId( 0 ), .name = "Fap3/0", .revision = revisionOf( ChipType::BCM88690_B0 ) } } } );
   TraceListener const traces( "DaceFapNiL3Sm", 8 );
   L3Sm::initVrfFallbackMapping( fap() );
   EXPECT_EQ(
      traces.records(),
      ( std::vector< std::string >{
         "DaceFapNiL3Sm/8 L3Sm::initVrfFallbackMapping Fap3/0 inLifprofile: 8 tableVariant: 0 arrayIndex: 2 CS "
         "profile value: 1",
         "DaceFapNiL3Sm/8 L3Sm::initVrfFallbackMapping Fap3/0 inLifprofile: 17 tableVariant: 0 arrayIndex: 2 CS "
         "profile value: 2",
         "DaceFapNiL3Sm/8 L3Sm::initVrfFallbackMapping Fap3/0 inLifprofile: 18 tableVariant: 0 arrayIndex: 2 CS "
         "profile value: 2",
         "DaceFapNiL3Sm/8 L3Sm::initVrfFallbackMapping Fap3/0 inLifprofile: 8 tableVariant: 1 arrayIndex: 0 CS "
         "profile value: 4",
         "DaceFapNiL3Sm/8 L3Sm::initVrfFallbackMapping Fap3/0 inLifprofile: 17 tableVariant: 1 arrayIndex: 0 CS "
         "profile value: 4",
         "DaceFapNiL3Sm/8 L3Sm::initVrfFallbackMapping Fap3/0 inLifprofile: 18 tableVariant: 1 arrayIndex: 0 CS "
         "profile value: 2" } ) );
}

// ---- defaults

TEST_P( KapsTest, turnsTheInterfaceDefaultOn ) {
   chipIs( GetParam() );
   wordsAre( "EnableKapsInterfaceDefault", {}, { 0 } );
   L3Sm::initKapsInterfaceDefault( fap() );
   EXPECT_EQ( words( "EnableKapsInterfaceDefault", {} ), Words{ 15 } );
   EXPECT_EQ( operations(), std::vector< std::string >{ "write EnableKapsInterfaceDefault 0/0" } );
}

TEST_P( KapsTest, fillsTheStrengthsOfEveryEntry ) {
   chipIs( GetParam() );
   L3Sm::initKapsStrengthMapping( fap() );
   using Pair = std::pair< U64, U64 >;
   for ( int entry = 0; entry < 256; ++entry ) {
      for ( int const array : { 0, 2, 3 } ) {
         EXPECT_EQ( strengthsOf( array, entry ), Pair( 5, 0 ) ) << array << "/" << entry;
      }
      Pair const expected = entry == 32 ? Pair( 1, 0 ) : entry <= 152 ? Pair( 1, 1 ) : Pair( 3, 3 );
      for ( U32 copy = 0; copy < copiesOf( GetParam() ); ++copy ) {
         EXPECT_EQ( strengthsOf( 1, entry, copy ), expected ) << entry;
      }
   }
}

TEST_P( KapsTest, writesTheStrengthsInOrderWithoutReading ) {
   chipIs( GetParam() );
   L3Sm::initKapsStrengthMapping( fap() );
   std::vector< std::string > expected;
   for ( char const * const array : { "2", "3", "0", "1" } ) {
      for ( int entry = 0; entry < 256; ++entry ) {
         expected.push_back( std::string( "write FlpKapsStrengthMapping 0/" ) + array + "/" + std::to_string( entry ) );
      }
   }
   EXPECT_EQ( operations(), expected );
}

TEST( Kaps, hasThreeRangesOfStrengths ) {
   using Range = std::pair< int, int >;
   EXPECT_EQ( rangeToDefault0StrengthMapping(),
              ( std::map< Range, U32 >{ { { 0, 152 }, 1 }, { { 153, 160 }, 3 }, { { 161, 255 }, 3 } } ) );
}

// ---- verification

TEST_P( KapsTest, verifiesWhatItFilled ) {
   chipIs( GetParam() );
   L3Sm::initKapsStrengthMapping( fap() );
   TraceListener const traces( "DaceFapNiL3Sm", 0 );
   auto const filled = rows().size();
   L3Sm::verifyKapsStrengthMapping( fap() );
   EXPECT_EQ(
      traces.records(),
      ( std::vector< std::string >{
         "DaceFapNiL3Sm/0 L3Sm::verifyKapsStrengthMapping expStrengthDefault0 1 range.first 0 range.second 152",
         "DaceFapNiL3Sm/0 L3Sm::verifyKapsStrengthMapping expStrengthDefault0 3 range.first 153 range.second 160",
         "DaceFapNiL3Sm/0 L3Sm::verifyKapsStrengthMapping expStrengthDefault0 3 range.first 161 range.second "
         "255" } ) );
   // The last entry of each span is not read.
   std::vector< std::string > expected;
   for ( int const array : { 2, 3, 0, 1 } ) {
      for ( int entry = 0; entry < 255; ++entry ) {
         if ( array != 1 || ( entry != 152 && entry != 160 ) ) {
            expected.push_back( "read FlpKapsStrengthMapping 0/" + std::to_string( array ) + "/" +
                                std::to_string( entry ) );
         }
      }
   }
   auto const all = operations();
   EXPECT_EQ( std::vector( all.begin() + static_cast< std::ptrdiff_t >( filled ), all.end() ), expected );
}

TEST_P( KapsTest, overlooksTheLastEntryOfEachSpan ) {
   chipIs( GetParam() );
   L3Sm::initKapsStrengthMapping( fap() );
   for ( int const array : { 0, 1, 2, 3 } ) {
      strengthIs( array, 255, "strengthDefault0", 7 );
   }
   strengthIs( 1, 152, "strengthDefault1", 6 );
   strengthIs( 1, 160, "strengthDefault0", 0 );
   L3Sm::verifyKapsStrengthMapping( fap() );
}

TEST_P( KapsTest, verifiesNothingInAnEmptySpan ) {
   chipIs( GetParam() );
   verifyKapsStrengthMappingEntry( fap(), 1, 9, 9, 10, 10 );
   verifyKapsStrengthMappingEntry( fap(), 1, 9, 9, 10, 9 );
   EXPECT_TRUE( operations().empty() );
}

TEST_P( KapsDeathTest, failsWhereTheFirstStrengthIsWrong ) {
   chipIs( GetParam() );
   L3Sm::initKapsStrengthMapping( fap() );
   strengthIs( 2, 254, "strengthDefault0", 4 );
   EXPECT_DEATH( L3Sm::verifyKapsStrengthMapping( fap() ),
                 "verifyKapsStrengthMappingEntry arrayIndex 2 entry 254 expValue 5 readValue \x04\n"
                 ".*`\"kapsStrengthMapping.strengthDefault0\\(\\) == expectedStrengthDefault0\" == nullptr'" );
}

TEST_P( KapsDeathTest, failsWhereTheSecondStrengthIsWrong ) {
   chipIs( GetParam() );
   L3Sm::initKapsStrengthMapping( fap() );
   strengthIs( 1, 33, "strengthDefault1", 2 );
   EXPECT_DEATH( L3Sm::verifyKapsStrengthMapping( fap() ),
                 "verifyKapsStrengthMappingEntry arrayIndex 1 entry 33 expValue 1 readValue \x02\n"
                 ".*`\"kapsStrengthMapping.strengthDefault1\\(\\) == expectedStrengthDefault1\" == nullptr'" );
}

TEST_P( KapsDeathTest, failsWhereTheExceptionalEntryHasTheStrengthOfItsRange ) {
   chipIs( GetParam() );
   L3Sm::initKapsStrengthMapping( fap() );
   strengthIs( 1, 32, "strengthDefault1", 1 );
   EXPECT_DEATH( L3Sm::verifyKapsStrengthMapping( fap() ),
                 "verifyKapsStrengthMappingEntry arrayIndex 1 entry 32 expValue 0 readValue \x01\n"
                 ".*`\"kapsStrengthMapping.strengthDefault1\\(\\) == 0\" == nullptr'" );
}

// ---- by name, for those who only load the library

TEST_P( KapsTest, isVerifiedByNameAsAnOperationOfTheMachinesType ) {
   chipIs( GetParam() );
   auto const operation = [&]( char const * name ) -> Rex::Operation const & {
      auto const * const found = Rex::Operations::find( "DaceFapNi::L3Sm", name );
      Rex::sassert( found != nullptr, name );
      return *found;
   };
   operation( "initKapsStrengthMapping" )( fap() );
   operation( "verifyKapsStrengthMapping" )( fap() );
   EXPECT_EQ( rows().back().function, "L3Sm::verifyKapsStrengthMapping" );
}

TEST_P( KapsDeathTest, failsByNameAsWell ) {
   chipIs( GetParam() );
   strengthIs( 2, 0, "strengthDefault0", 4 );
   EXPECT_DEATH( ( *Rex::Operations::find( "DaceFapNi::L3Sm", "verifyKapsStrengthMapping" ) )( fap() ),
                 "verifyKapsStrengthMappingEntry arrayIndex 2 entry 0 expValue 5" );
}

INSTANTIATE_TEST_SUITE_P( Chips, KapsTest, everyChip, chipNameOf );
INSTANTIATE_TEST_SUITE_P( Chips, VrfFallbackTest, everyChip, chipNameOf );
INSTANTIATE_TEST_SUITE_P( Chips, KapsDeathTest, everyChip, chipNameOf );

} // namespace
