#include "ChipFixture.h"
#include "SharedFunctions.h"

using namespace DaceFapNi;

namespace {

constexpr char lsb[] = "InLifProfileCsFlagsLsb";
constexpr char msb[] = "InLifProfileCsFlagsMsb";

bool hasTwoElements( ChipType chipType ) {
   return chipType == ChipType::BCM88850_A0 || chipType == ChipType::BCM88859_A2;
}
// The array indices of variant 1.
std::vector< int > arraysOfVariant1( ChipType chipType ) {
   return hasTwoElements( chipType ) ? std::vector{ 3, 4 } : std::vector{ 0 };
}

class InLifProfilesTest : public EveryChip {
 public:
   // What every element of the register holds, by variant and array index, as far as it isn't 0: in-LIF profile to
   // nibble.
   using Nibbles = std::map< int, U64 >;
   Nibbles nibbles( char const * table, U8 variant, int array ) const {
      Nibbles nonZero;
      for ( int profile = 0; profile < 128; ++profile ) {
         auto const name = "csProfile" + std::to_string( profile );
         if ( U64 const value = field( table, { .variant = variant, .array = array }, name.c_str() ) ) {
            nonZero[profile] = value;
         }
      }
      return nonZero;
   }
   void cleared() {
      L3Sm::clearInLifProfileCsMapMsb( fap() );
      L3Sm::clearInLifProfileCsMapLsb( fap() );
   }
};

// ---- the clears

TEST_P( InLifProfilesTest, clearsEveryElementOfBothRegistersWithoutReading ) {
   chipIs( GetParam() );
   cleared();
   for ( char const * const table : { msb, lsb } ) {
      for ( U8 const variant : { 0, 1 } ) {
         for ( int const array : variant == 0 ? std::vector{ 0, 1, 2 } : arraysOfVariant1( GetParam() ) ) {
            for ( U32 copy = 0; copy < copiesOf( GetParam() ); ++copy ) {
               EXPECT_EQ( words( table, { .variant = variant, .array = array }, copy ), Words( 16 ) )
                  << table << " " << array;
            }
         }
      }
   }
   std::vector< std::string > expected;
   for ( char const * const table : { "write InLifProfileCsFlagsMsb ", "write InLifProfileCsFlagsLsb " } ) {
      for ( char const * const place : { "0/0", "0/1", "0/2" } ) {
         expected.push_back( std::string( table ) + place );
      }
      for ( int const array : arraysOfVariant1( GetParam() ) ) {
         expected.push_back( std::string( table ) + "1/" + std::to_string( array ) );
      }
   }
   EXPECT_EQ( operations(), expected );
}

// ---- IppdInLifProfileTable and -Map

// The RPF mode of the profiles 128 to 255.
constexpr U64 rpfModes[128] = {
   // clang-format off
   0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, // 128
   0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, // 144
   0, 1, 0, 1, 0, 1, 0, 1, 0, 2, 0, 2, 0, 2, 0, 2, // 160
   0, 1, 0, 1, 0, 1, 0, 1, 0, 2, 0, 2, 0, 2, 0, 2, // 176
   0, 0, 0, 0, 1, 1, 1, 1, 0, 0, 0, 0, 2, 2, 2, 2, // 192
   0, 0, 0, 0, 1, 1, 1, 1, 0, 0, 0, 0, 2, 2, 2, 2, // 208
   0, 1, 0, 1, 1, 1, 1, 1, 0, 2, 0, 2, 2, 2, 2, 2, // 224
   0, 1, 0, 1, 1, 1, 1, 1, 0, 2, 0, 2, 2, 2, 2, 2, // 240
   // clang-format on
};

TEST_P( InLifProfilesTest, givesComposedProfilesTheirRpfMode ) {
   chipIs( GetParam() );
   L3Sm::initInLifProfileTable( fap() );
   bool const hasOneMode = GetParam() == ChipType::BCM88690_B0;
   for ( int profile = 128; profile < 256; ++profile ) {
      Place const place{ .entry = profile };
      U32 const mode = static_cast< U32 >( rpfModes[profile - 128] );
      // One mode, or one for IPv4 and one for IPv6 above it. What else the entry had is gone.
      EXPECT_EQ( words( "IppdInLifProfileTable", place ), Words{ hasOneMode ? mode : mode | mode << 2 } ) << profile;
   }
   EXPECT_EQ( layout( "IppdInLifProfileTable", {} ).field( "inLifRpfMode" ) != nullptr, hasOneMode );
   EXPECT_EQ( layout( "IppdInLifProfileTable", {} ).field( "inLifRpfModeIpv4" ) != nullptr, !hasOneMode );
   EXPECT_EQ( layout( "IppdInLifProfileTable", {} ).field( "inLifRpfModeIpv6" ) != nullptr, !hasOneMode );
   EXPECT_EQ( rpfModes[128 - 128], 0u );
   EXPECT_EQ( rpfModes[161 - 128], 1u );
   EXPECT_EQ( rpfModes[169 - 128], 2u );
   EXPECT_EQ( rpfModes[196 - 128], 1u );
}

TEST_P( InLifProfilesTest, writesComposedProfilesInOrderAndNoOthers ) {
   chipIs( GetParam() );
   L3Sm::initInLifProfileTable( fap() );
   std::vector< std::string > expected;
   for ( int profile = 128; profile < 256; ++profile ) {
      expected.push_back( "write IppdInLifProfileTable 0/0/" + std::to_string( profile ) );
   }
   EXPECT_EQ( operations( "IppdInLifProfileTable" ), expected );
}

TEST_P( InLifProfilesTest, mapsProfilesToThemselvesWhereTheChipHasAMap ) {
   chipIs( GetParam() );
   L3Sm::initInLifProfileTable( fap() );
   bool const hasMap = GetParam() != ChipType::BCM88690_B0 && GetParam() != ChipType::BCM88800_A0;
   std::vector< std::string > expected;
   if ( hasMap ) {
      for ( U32 profile = 0; profile < 256; ++profile ) {
         EXPECT_EQ( words( "IppdInLifProfileMap", { .entry = static_cast< int >( profile ) } ), Words{ profile } );
         expected.push_back( "write IppdInLifProfileMap 0/0/" + std::to_string( profile ) );
      }
   }
   EXPECT_EQ( operations( "IppdInLifProfileMap" ), expected );
   EXPECT_EQ( rows().size(), hasMap ? 384u : 128u );
}

// ---- IppcInLifProfileCsFlags

TEST_P( InLifProfilesTest, selectsContextsInTheIppcStage ) {
   chipIs( GetParam() );
   L3Sm::initIppcInLifProfileCsMapping( fap() );
   std::map< int, U64 > const expected[2] = {
      { { 23, 4 } },
      { { 10, 1 }, { 11, 1 }, { 12, 1 }, { 13, 1 }, { 14, 1 }, { 15, 1 }, { 21, 3 }, { 65, 2 }, { 66, 2 } },
   };
   for ( U8 const variant : { 0, 1 } ) {
      std::map< int, U64 > nonZero;
      for ( int profile = 0; profile < 256; ++profile ) {
         Place const place{ .variant = variant, .entry = profile };
         if ( U64 const value = field( "IppcInLifProfileCsFlags", place, "csInlifProfileMap" ) ) {
            nonZero[profile] = value;
         }
      }
      EXPECT_EQ( nonZero, expected[variant] ) << "variant " << unsigned{ variant };
   }
}

TEST_P( InLifProfilesTest, leavesSrv6OutOfTheIppcStageWithTheToggleOff ) {
   toggleIs( "DaceToggles.json", "J2SRv6", false );
   chipIs( GetParam() );
   L3Sm::initIppcInLifProfileCsMapping( fap() );
   std::map< int, U64 > const others{ { 10, 1 }, { 15, 1 }, { 65, 2 }, { 66, 2 } };
   for ( int profile = 15; profile < 70; ++profile ) {
      Place const place{ .variant = 1, .entry = profile };
      auto const other = others.find( profile );
      EXPECT_EQ( field( "IppcInLifProfileCsFlags", place, "csInlifProfileMap" ),
                 other == others.end() ? 0u : other->second )
         << profile;
   }
}

TEST_P( InLifProfilesTest, walksTheIppcStageVariantByVariantReadingEachEntry ) {
   chipIs( GetParam() );
   L3Sm::initIppcInLifProfileCsMapping( fap() );
   std::vector< std::string > expected;
   for ( char const * const variant : { "0", "1" } ) {
      for ( int profile = 0; profile < 256; ++profile ) {
         std::string const place =
            std::string( " IppcInLifProfileCsFlags " ) + variant + "/0/" + std::to_string( profile );
         expected.push_back( "read" + place );
         expected.push_back( "write" + place );
      }
   }
   EXPECT_EQ( operations(), expected );
}

// ---- the nibbles of single profiles

TEST_P( InLifProfilesTest, setsUpTheNibblesOfVplsSecondaryVrfAndVxlan ) {
   for ( U32 const sdkVersion : { 6u, 7u } ) {
      chipIs( GetParam(), { .sdkVersion = sdkVersion } );
      cleared();
      L3Sm::setupVplsVlanAwareCsProfile( fap() );
      L3Sm::setupAegisSetSecondaryVrfCsProfile( fap() );
      L3Sm::setupVxlanUdpEspCsProfile( fap() );
      for ( int const array : arraysOfVariant1( GetParam() ) ) {
         EXPECT_EQ( nibbles( lsb, 1, array ), ( Nibbles{ { 9, 1 }, { 15, 11 } } ) ) << array;
         EXPECT_EQ( nibbles( msb, 1, array ), Nibbles{} );
      }
      EXPECT_EQ( nibbles( lsb, 0, 0 ), Nibbles{} );
      EXPECT_EQ( nibbles( lsb, 0, 1 ), ( Nibbles{ { 64, 2 } } ) );
      EXPECT_EQ( nibbles( lsb, 0, 2 ), Nibbles{} );
   }
}

TEST_P( InLifProfilesTest, keepsWhatOthersHaveSetInANibble ) {
   chipIs( GetParam() );
   cleared();
   int const array = arraysOfVariant1( GetParam() ).back();
   fieldIs( lsb, { .variant = 1, .array = array }, "csProfile15", 4 );
   fieldIs( lsb, { .variant = 1, .array = array }, "csProfile14", 5 );
   L3Sm::setupVplsVlanAwareCsProfile( fap() );
   EXPECT_EQ( nibbles( lsb, 1, array ), ( Nibbles{ { 14, 5 }, { 15, 15 } } ) );
}

TEST_P( InLifProfilesTest, readsAndWritesTheRegisterOnceForEachNibble ) {
   chipIs( GetParam() );
   L3Sm::setupVplsVlanAwareCsProfile( fap() );
   L3Sm::setupAegisSetSecondaryVrfCsProfile( fap() );
   L3Sm::setupVxlanUdpEspCsProfile( fap() );
   std::vector< std::string > const vpls =
      hasTwoElements( GetParam() )
         ? std::vector< std::string >{ "read InLifProfileCsFlagsLsb 1/3",
                                       "write InLifProfileCsFlagsLsb 1/3",
                                       "read InLifProfileCsFlagsLsb 1/4",
                                       "write InLifProfileCsFlagsLsb 1/4" }
         : std::vector< std::string >{ "read InLifProfileCsFlagsLsb 1/0", "write InLifProfileCsFlagsLsb 1/0" };
   std::vector< std::string > expected = vpls;
   expected.insert( expected.end(), vpls.begin(), vpls.end() ); // the secondary VRF
   expected.push_back( "read InLifProfileCsFlagsLsb 0/1" );
   expected.push_back( "write InLifProfileCsFlagsLsb 0/1" );
   EXPECT_EQ( operations(), expected );
   EXPECT_EQ( rows().front().function, "L3Sm::setupVplsVlanAwareCsProfile" );
   EXPECT_EQ( rows().back().function, "L3Sm::setupVxlanUdpEspCsProfile" );
}

TEST_P( InLifProfilesTest, doesNothingForVplsWithTheToggleOff ) {
   toggleIs( "Dace.json", "DaceVplsPhase2", false );
   chipIs( GetParam() );
   TraceListener const traces( "DaceFapNiL3Sm", 0 );
   L3Sm::setupVplsVlanAwareCsProfile( fap() );
   EXPECT_TRUE( operations().empty() );
   EXPECT_TRUE( traces.records().empty() );
}

TEST_F( ChipFixture, tellsWhatTheSetupsOfContextSelectionEnable ) {
   TraceListener const traces( "DaceFapNiL3Sm", 0 );
   chipIs( ChipType::BCM88850_A0, { .sdkVersion = 6 } );
   L3Sm::setupVplsVlanAwareCsProfile( fap() );
   chipIs( ChipType::BCM88690_B0 );
   L3Sm::setupVplsVlanAwareCsProfile( fap() );
   L3Sm::setupAegisSetSecondaryVrfCsProfile( fap() );
   L3Sm::setupVxlanUdpEspCsProfile( fap() );
   EXPECT_EQ(
      traces.records(),
      ( std::vector< std::string >{
         "DaceFapNiL3Sm/0 L3Sm::setupVplsVlanAwareCsProfile enableValue = 11 chipType = BCM88850_A0 usingSdkV6 = "
         "true",
         "DaceFapNiL3Sm/0 L3Sm::setupVplsVlanAwareCsProfile enableValue = 11 chipType = BCM88690_B0 usingSdkV6 = "
         "false",
         "DaceFapNiL3Sm/0 L3Sm::setupAegisSetSecondaryVrfCsProfile enableValue = 1 chipType = BCM88690_B0",
         "DaceFapNiL3Sm/0 L3Sm::setupVxlanUdpEspCsProfile enableValue = 2 chipType = BCM88690_B0" } ) );
}

// ---- one nibble

TEST_P( InLifProfilesTest, addsBitsToOneNibbleOfOneElement ) {
   chipIs( GetParam() );
   cleared();
   doWriteVttCsInLifProfLsb( GetParam(), FapId( 0 ), 127, 0, 2, 6 );
   doWriteVttCsInLifProfLsb( GetParam(), FapId( 0 ), 127, 0, 2, 9 );
   EXPECT_EQ( words( lsb, { .array = 2 } )[15], 0xf0000000u );
   EXPECT_EQ( nibbles( lsb, 0, 2 ), ( Nibbles{ { 127, 15 } } ) );
   EXPECT_EQ( nibbles( lsb, 0, 1 ), Nibbles{} );
}

using InLifProfilesDeathTest = ChipFixture;

TEST_F( InLifProfilesDeathTest, refusesAProfileThatTheRegisterDoesNotHave ) {
   chipIs( ChipType::BCM88690_B0 );
   EXPECT_DEATH( doWriteVttCsInLifProfLsb( ChipType::BCM88690_B0, FapId( 0 ), 128, 0, 0, 1 ), "`inLifProfile < 128'" );
}

TEST_F( InLifProfilesDeathTest, refusesAValueWiderThanANibble ) {
   chipIs( ChipType::BCM88690_B0 );
   EXPECT_DEATH( doWriteVttCsInLifProfLsb( ChipType::BCM88690_B0, FapId( 0 ), 1, 0, 0, 16 ), "`value <= 0xf'" );
}

INSTANTIATE_TEST_SUITE_P( Chips, InLifProfilesTest, everyChip, chipNameOf );

} // namespace
