#include "ChipFixture.h"

using namespace DaceFapNi;

namespace {

constexpr char vectors[] = "EnablersVectors";
constexpr char enablers[] = "VsiProfileEnablers";
constexpr char flags[] = "VsiProfileFlags";

// The variant that holds an array index, in both tables.
U8 variantOf( int array ) {
   return array < 3 ? 0 : 1;
}

class RoutingTest : public EveryChip {
 public:
   U64 vectorOf( int array, int routingProfile ) const {
      return field(
         vectors, { .variant = variantOf( array ), .array = array, .entry = routingProfile }, "routingEnableVector" );
   }
   U64 routingProfile( int array, int vsiProfile ) const {
      char const * const slots[] = { "routingProfile0", "routingProfile1", "routingProfile2", "routingProfile3" };
      return field(
         enablers, { .variant = variantOf( array ), .array = array, .entry = vsiProfile / 4 }, slots[vsiProfile % 4] );
   }
};

// ---- EnablersVectors

// What array 4, which has no exception, holds.
constexpr U64 baseVectors[32] = {
   0x004, 0x014, 0x0a4, 0x0b4, 0x044, 0x054, 0x0e4, 0x0f4, // 0 to 7
   0x004, 0x014, 0x0a4, 0x0b4, 0x044, 0x054, 0x0e4, 0x0f4, // 8 to 15: the same
   0x104, 0x114, 0x1a4, 0x1b4, 0x144, 0x154, 0x1e4, 0x1f4, // 16 to 23
   0x104, 0x114, 0x1a4, 0x1b4, 0x144, 0x154, 0x1e4, 0x1f4, // 24 to 31
};

TEST_P( RoutingTest, givesEveryRoutingProfileItsVector ) {
   chipIs( GetParam() );
   L3Sm::initEnablersVectors( fap() );
   std::map< std::pair< int, int >, U64 > const exceptions{
      { { 1, 0 }, 0x1000000000000004 },  // bit 60
      { { 1, 22 }, 0x1000000000000000 }, // bit 60 alone
      { { 3, 0 }, 12 },
      { { 3, 21 }, 0x0000040000000154 }, // bit 42
      { { 2, 8 }, 0 },
      { { 3, 8 }, 0 },
   };
   for ( int array = 0; array < 5; ++array ) {
      for ( int profile = 0; profile < 32; ++profile ) {
         auto const exception = exceptions.find( { array, profile } );
         EXPECT_EQ( vectorOf( array, profile ),
                    exception == exceptions.end() ? baseVectors[profile] : exception->second )
            << "array " << array << " profile " << profile;
      }
   }
   // What the exceptions leave alone beside them.
   EXPECT_EQ( vectorOf( 0, 8 ), 4u );
   EXPECT_EQ( vectorOf( 1, 8 ), 4u );
   EXPECT_EQ( vectorOf( 4, 8 ), 4u );
   EXPECT_EQ( vectorOf( 1, 21 ), 0x154u );
}

TEST_P( RoutingTest, leavesSrv6OutOfTheVectorsWithTheToggleOff ) {
   toggleIs( "DaceToggles.json", "J2SRv6", false );
   chipIs( GetParam() );
   L3Sm::initEnablersVectors( fap() );
   EXPECT_EQ( vectorOf( 3, 21 ), 0x154u );
   EXPECT_EQ( vectorOf( 4, 21 ), 0x154u );
}

TEST_P( RoutingTest, writesTheVectorsEntryByEntryAndReadsNothing ) {
   chipIs( GetParam() );
   L3Sm::initEnablersVectors( fap() );
   std::vector< std::string > expected;
   for ( int entry = 0; entry < 32; ++entry ) {
      for ( char const * const place : { "0/0/", "0/1/", "0/2/", "1/3/", "1/4/" } ) {
         expected.push_back( "write EnablersVectors " + ( place + std::to_string( entry ) ) );
      }
   }
   EXPECT_EQ( operations(), expected );
}

TEST_P( RoutingTest, writesTheVectorsToEveryCopy ) {
   chipIs( GetParam() );
   L3Sm::initEnablersVectors( fap() );
   for ( U32 copy = 0; copy < copiesOf( GetParam() ); ++copy ) {
      EXPECT_EQ( words( vectors, { .variant = 1, .array = 3, .entry = 21 }, copy ), ( Words{ 0x154, 0x400 } ) );
   }
   EXPECT_EQ( rows().front().scope, Simulator::Row::Scope::all );
}

TEST_F( ChipFixture, readsTheSrv6ToggleOnlyWhenTheVectorThatItDecidesIsWritten ) {
   chipIs( ChipType::BCM88690_B0 );
   EXPECT_TRUE( Toggle::readings().empty() );
   L3Sm::initEnablersVectors( fap() );
   ASSERT_EQ( Toggle::readings().size(), 1u );
   EXPECT_EQ( Toggle::readings()[0].name, "J2SRv6" );
   EXPECT_EQ( Toggle::readings()[0].file, "DaceToggles.json" );
}

// ---- VsiProfileEnablers

TEST_P( RoutingTest, givesLowAndHighVsiProfilesTheRoutingProfileOfTheirNumber ) {
   chipIs( GetParam() );
   L3Sm::initVsiProfileTable( fap() );
   std::vector< int > written;
   for ( int profile = 0; profile < 32; ++profile ) {
      written.push_back( profile );
   }
   for ( int profile = 896; profile < 1024; ++profile ) {
      written.push_back( profile );
   }
   for ( int const profile : written ) {
      bool const isUnrouted = profile == 8 || profile == 9 || profile == 17 || profile == 18;
      for ( int array = 0; array < 5; ++array ) {
         U64 expected = static_cast< U64 >( profile ) % 32;
         expected = expected >= 24 ? expected - 8 : expected >= 8 && expected < 16 ? expected - 8 : expected;
         if ( isUnrouted && ( array == 2 || array == 3 ) ) {
            expected = 8;
         }
         if ( profile == 16 && array == 4 ) {
            expected = 5;
         }
         EXPECT_EQ( routingProfile( array, profile ), expected ) << "array " << array << " profile " << profile;
      }
   }
}

TEST_P( RoutingTest, takesFourVsiProfilesOutOfRoutingInTwoPlacesOnly ) {
   chipIs( GetParam() );
   L3Sm::initVsiProfileTable( fap() );
   U64 const expected[5][4] = {
      // profiles 8, 9, 17, 18 by array
      { 0, 1, 17, 18 },
      { 0, 1, 17, 18 },
      { 8, 8, 8, 8 },
      { 8, 8, 8, 8 },
      { 0, 1, 17, 18 },
   };
   for ( int array = 0; array < 5; ++array ) {
      EXPECT_EQ( routingProfile( array, 8 ), expected[array][0] ) << array;
      EXPECT_EQ( routingProfile( array, 9 ), expected[array][1] ) << array;
      EXPECT_EQ( routingProfile( array, 17 ), expected[array][2] ) << array;
      EXPECT_EQ( routingProfile( array, 18 ), expected[array][3] ) << array;
      EXPECT_EQ( routingProfile( array, 16 ), array == 4 ? 5u : 16u ) << array;
      EXPECT_EQ( routingProfile( array, 10 ), 2u ) << array; // their neighbours in the entries
      EXPECT_EQ( routingProfile( array, 19 ), 19u ) << array;
   }
}

TEST_P( RoutingTest, keepsTheChipsOwnRoutingProfilesBetweenLowAndHigh ) {
   chipIs( GetParam() );
   for ( int array = 0; array < 5; ++array ) {
      for ( int const entry : { 16, 17 } ) {
         wordsAre( enablers, { .variant = variantOf( array ), .array = array, .entry = entry }, { 0xfffff } );
      }
   }
   L3Sm::initVsiProfileTable( fap() );
   for ( int array = 0; array < 5; ++array ) {
      for ( int const profile : { 64, 65, 66, 68 } ) {
         EXPECT_EQ( routingProfile( array, profile ), array == 3 ? 0u : 31u ) << array << " " << profile;
      }
      for ( int const profile : { 67, 69, 70, 71 } ) {
         EXPECT_EQ( routingProfile( array, profile ), 31u ) << array << " " << profile;
      }
   }
   for ( auto const & operation : operations( enablers ) ) {
      int const entry = std::stoi( operation.substr( operation.rfind( '/' ) + 1 ) );
      EXPECT_TRUE( entry < 8 || entry == 16 || entry == 17 || entry >= 224 ) << operation;
   }
}

// Five bits for each of the four profiles of an entry.
TEST_P( RoutingTest, makesTheExceptionsOfAnEntryInTheOrderOfTheirProfiles ) {
   chipIs( GetParam() );
   wordsAre( enablers, { .variant = 1, .array = 3, .entry = 16 }, { 0xfffff } );
   L3Sm::initVsiProfileTable( fap() );
   auto const written = [&]( std::string const & place ) {
      Words all;
      for ( auto const & row : rows() ) {
         if ( text( row ) == "write VsiProfileEnablers " + place ) {
            all.push_back( row.words[0] );
         }
      }
      return all;
   };
   EXPECT_EQ( written( "1/3/16" ), ( Words{ 0xfffe0, 0xffc00, 0xf8000 } ) );
   EXPECT_EQ( written( "0/2/2" ), ( Words{ 0x18820, 0x18828, 0x18908 } ) );
   EXPECT_EQ( written( "1/3/4" ), ( Words{ 0x9ca30, 0x9c910, 0x9a110 } ) );
}

TEST_P( RoutingTest, programsVsiProfilesHighThenLowThenTheExceptions ) {
   chipIs( GetParam() );
   L3Sm::initVsiProfileTable( fap() );
   std::vector< std::string > expected;
   auto const everywhere = [&]( int entry ) {
      for ( char const * const place : { "0/0/", "0/1/", "0/2/", "1/3/", "1/4/" } ) {
         expected.push_back( "write VsiProfileEnablers " + ( place + std::to_string( entry ) ) );
      }
   };
   for ( int entry = 224; entry < 256; ++entry ) {
      everywhere( entry );
   }
   for ( int entry = 0; entry < 8; ++entry ) {
      everywhere( entry );
   }
   for ( char const * const place : { "0/2/2",
                                      "1/3/2",
                                      "0/2/2",
                                      "1/3/2",
                                      "0/2/4",
                                      "1/3/4",
                                      "0/2/4",
                                      "1/3/4", // routing off
                                      "1/3/17",
                                      "1/3/16",
                                      "1/3/16",
                                      "1/3/16",
                                      "1/4/4" } ) {
      expected.push_back( std::string( "read VsiProfileEnablers " ) + place );
      expected.push_back( std::string( "write VsiProfileEnablers " ) + place );
   }
   for ( int entry = 0; entry < 128; ++entry ) {
      expected.push_back( "write VsiProfileFlags 1/0/" + std::to_string( entry ) );
   }
   EXPECT_EQ( operations(), expected );
}

// ---- VsiProfileFlags

TEST_P( RoutingTest, letsVsiProfilesCheckSourcesByTwoBitsOfTheirNumber ) {
   chipIs( GetParam() );
   L3Sm::initVsiProfileTable( fap() );
   constexpr U64 byBits3And2[] = { 0x00000000, 0x10101010, 0x22220000, 0x32321010 };
   for ( int profile = 0; profile < 128; ++profile ) {
      EXPECT_EQ( field( flags, { .variant = 1, .entry = profile }, "fwdDomainCsProfileVec" ),
                 byBits3And2[profile / 4 % 4] )
         << profile;
   }
   for ( auto const & place : changedPlaces() ) {
      EXPECT_NE( place.substr( 0, 18 ), "VsiProfileFlags 0/" );
   }
}

// ---- learning

class LearningAtStartTest : public EveryChip {};

std::vector< std::string > learningOperations( std::vector< int > const & contexts ) {
   std::vector< std::string > expected;
   for ( int const context : contexts ) {
      for ( char const * const table : { "FlpaInitContextEnablers", "FlpaResContextEnablers" } ) {
         expected.push_back( std::string( "read " ) + table + " 0/0/" + std::to_string( context ) );
         expected.push_back( std::string( "write " ) + table + " 0/0/" + std::to_string( context ) );
      }
   }
   return expected;
}

// The chip's numbers of the contexts 36, 50, 38, 52, 39, 53 and then 37, 51, without those that the chip lacks.
std::map< ChipType, std::vector< int > > const learningContexts{
   { ChipType::BCM88690_B0, { 45, 1, 12, 48, 16, 56, 42, 9 } },
   { ChipType::BCM88800_A0, { 44, 61, 51, 37, 8, 21, 43 } },
   { ChipType::BCM88850_A0, { 26, 32, 43, 17, 1, 62, 55, 36 } },
   { ChipType::BCM88859_A2, { 16, 18, 46, 57, 41, 59, 32, 33 } },
   { ChipType::BCM88480_A0, { 3, 21, 4, 37, 29 } },
   { ChipType::BCM88480_B0, { 42, 3, 19, 54, 27 } },
};
std::map< ChipType, std::vector< int > > const learningContextsOfSdk6{
   { ChipType::BCM88690_B0, { 45, 1, 12, 48, 16, 56 } },
   { ChipType::BCM88800_A0, { 44, 61, 51, 37, 8 } },
   { ChipType::BCM88850_A0, { 26, 32, 43, 17, 1, 62 } },
   { ChipType::BCM88859_A2, { 16, 18, 46, 57, 41, 59 } },
   { ChipType::BCM88480_A0, { 3, 21, 4, 37, 29 } },
   { ChipType::BCM88480_B0, { 42, 3, 19, 54, 27 } },
};

TEST_P( LearningAtStartTest, switchesLearningOnInEightContexts ) {
   chipIs( GetParam() );
   L3Sm::initSviLearning( fap() );
   EXPECT_EQ( operations(), learningOperations( learningContexts.at( GetParam() ) ) );
   for ( int const context : learningContexts.at( GetParam() ) ) {
      EXPECT_EQ( field( "FlpaInitContextEnablers", { .entry = context }, "contextLearnAllowedEnable" ), 1u );
      EXPECT_EQ( field( "FlpaInitContextEnablers", { .entry = context }, "learningFixedKeyEnable" ), 1u );
      EXPECT_EQ( field( "FlpaResContextEnablers", { .entry = context }, "learnInfoResolutionEnable" ), 1u );
   }
}

TEST_P( LearningAtStartTest, leavesTwoContextsOutWithSdk6 ) {
   chipIs( GetParam(), { .sdkVersion = 6 } );
   L3Sm::initSviLearning( fap() );
   EXPECT_EQ( operations(), learningOperations( learningContextsOfSdk6.at( GetParam() ) ) );
}

TEST_P( LearningAtStartTest, leavesTheForwardingUpdateAlone ) {
   int const context = learningContexts.at( GetParam() )[0];
   for ( U64 const chips : { 0u, 1u } ) {
      chipIs( GetParam() );
      fieldIs( "FlpaResContextEnablers", { .entry = context }, "fwdUpdateEnable", chips );
      L3Sm::initSviLearning( fap() );
      EXPECT_EQ( field( "FlpaResContextEnablers", { .entry = context }, "fwdUpdateEnable" ), chips );
   }
}

// ---- programmable trap 2

TEST_P( RoutingTest, switchesTheProgrammableTrapOffForOneContext ) {
   std::map< ChipType, int > const contexts{
      { ChipType::BCM88690_B0, 51 },
      { ChipType::BCM88800_A0, 37 },
      { ChipType::BCM88850_A0, 57 },
      { ChipType::BCM88859_A2, 30 },
      { ChipType::BCM88480_A0, 41 },
      { ChipType::BCM88480_B0, 34 },
   };
   int const context = contexts.at( GetParam() );
   chipIs( GetParam() );
   fieldIs( "IppbFlpbResContextEnablers", { .entry = context }, "progTrap2Enable", 1 );
   auto expected = words( "IppbFlpbResContextEnablers", { .entry = context } );
   auto const & trap = *layout( "IppbFlpbResContextEnablers", {} ).field( "progTrap2Enable" );
   expected[trap.offset / 32] &= ~( 1u << trap.offset % 32 );

   L3Sm::initIppbFlpbResContextEnablersReg( fap() );
   std::string const place = "IppbFlpbResContextEnablers 0/0/" + std::to_string( context );
   EXPECT_EQ( words( "IppbFlpbResContextEnablers", { .entry = context } ), expected );
   EXPECT_EQ( changedPlaces(), std::set{ place } );
   EXPECT_EQ( operations(), ( std::vector{ "read " + place, "write " + place } ) );
}

INSTANTIATE_TEST_SUITE_P( Chips, RoutingTest, everyChip, chipNameOf );
INSTANTIATE_TEST_SUITE_P( Chips, LearningAtStartTest, everyChip, chipNameOf );

} // namespace
