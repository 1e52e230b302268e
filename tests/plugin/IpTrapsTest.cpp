#include "ChipFixture.h"

using namespace DaceFapNi;

namespace {

using Fields = std::map< std::string, U64 >;

class IpTrapsTest : public EveryChip {
 public:
   // Expects the fields of a register to have the values, and all its other bits to be as before.
   void expectChanged( char const * table, Place const & place, Fields const & fields ) const {
      auto const variant = U32{ place.variant };
      auto expected =
         before().tables.at( table ).at( variant ).at( static_cast< U32 >( place.array ) ).at( 0 ).copies[0];
      for ( auto const & [name, value] : fields ) {
         Simulator::fieldBitsIs( expected, *layout( table, place ).field( name ), value );
      }
      for ( U32 copy = 0; copy < copiesOf( GetParam() ); ++copy ) {
         EXPECT_EQ( words( table, place, copy ), expected ) << table << " " << variant << "/" << place.array;
      }
   }
};

// ---- the forward stage

TEST_P( IpTrapsTest, setsTheTrapStrengthsOfTheForwardStage ) {
   chipIs( GetParam() );
   L3Sm::initIpTrapsFwd( fap() );
   expectChanged( "IppbIpv4ActionProfilesCfg",
                  {},
                  { { "actionProfileIpv4VersionErrorFwd", 7 },
                    { "actionProfileIpv4ChecksumErrorFwd", 3 },
                    { "actionProfileIpv4HeaderLengthErrorFwd", 7 },
                    { "actionProfileIpv4HasOptionsFwd", 4 } } );
   expectChanged( "IppbIpv6ActionProfiles0Cfg",
                  {},
                  { { "actionProfileIpv6NextHeaderNullFwd", 3 },
                    { "actionProfileIpv6VersionErrorFwd", 7 },
                    { "actionProfileIpv6UnspecifiedDestinationFwd", 7 },
                    { "actionProfileIpv6MulticastSourceFwd", 7 },
                    { "actionProfileIpv6LinkLocalSourceFwd", 7 } } );
}

TEST_P( IpTrapsTest, keepsTheStrengthOfLinkLocalSourcesWithTheToggleOff ) {
   toggleIs( "Dace.json", "V6LinkLocalSrcPuntToCpu", false );
   for ( U64 const chips : { 2u, 5u } ) {
      chipIs( GetParam() );
      fieldIs( "IppbIpv6ActionProfiles0Cfg", {}, "actionProfileIpv6LinkLocalSourceFwd", chips );
      L3Sm::initIpTrapsFwd( fap() );
      expectChanged( "IppbIpv6ActionProfiles0Cfg",
                     {},
                     { { "actionProfileIpv6NextHeaderNullFwd", 3 },
                       { "actionProfileIpv6VersionErrorFwd", 7 },
                       { "actionProfileIpv6UnspecifiedDestinationFwd", 7 },
                       { "actionProfileIpv6MulticastSourceFwd", 7 },
                       { "actionProfileIpv6LinkLocalSourceFwd", chips } } );
   }
}

TEST_P( IpTrapsTest, setsTheStrengthOfTtl0InBothProfilesAndNothingElseOfThem ) {
   for ( U32 const chips : { 0x00000000u, 0xffffffffu, 0xa5c35a3cu } ) {
      chipIs( GetParam() );
      auto value = words( "IppbTtl0ActionProfile", {} );
      value[0] = chips;
      wordsAre( "IppbTtl0ActionProfile", {}, value );
      L3Sm::initIpTrapsFwd( fap() );
      value[0] = ( chips & 0xfff0fff0 ) | 0x00070007;
      EXPECT_EQ( words( "IppbTtl0ActionProfile", {} ), value );
   }
}

// ---- the VTT stages

TEST_P( IpTrapsTest, setsTheTrapStrengthsOfTheVttStages ) {
   chipIs( GetParam() );
   L3Sm::initIpTrapsVtt( fap() );
   for ( U8 const variant : { 0, 1 } ) {
      Place const place{ .variant = variant };
      expectChanged(
         "VttTrapStrengths3",
         place,
         { { "ipv4VersionErrorFwd", 7 }, { "ipv4ChecksumErrorFwd", 3 }, { "ipv4HeaderLengthErrorFwd", 7 } } );
      expectChanged( "VttTrapStrengths4", place, { { "ipv4Ttl0Fwd", 7 }, { "ipv4HasOptionsFwd", 4 } } );
      expectChanged(
         "VttTrapStrengths5",
         place,
         { { "ipv6VersionErrorFwd", 7 }, { "ipv6HopCount0Fwd", 7 }, { "ipv6UnspecifiedDestinationFwd", 7 } } );
      expectChanged( "VttTrapStrengths6", place, { { "ipv6MulticastSourceFwd", 7 }, { "ipv6NextHeaderNullFwd", 7 } } );
      expectChanged( "EthernetTrap",
                     place,
                     { { "eth1CpuTrapCode", 199 }, { "eth1CpuTrapStrength", variant == 0 ? U64{ 4 } : U64{ 0 } } } );
   }
}

TEST_P( IpTrapsTest, readsAndWritesEachTrapRegisterOnceForwardStageFirst ) {
   chipIs( GetParam() );
   L3Sm::initIpTraps( fap() );
   std::vector< std::string > expected;
   for ( char const * const place : { "IppbTtl0ActionProfile 0/0",
                                      "IppbIpv4ActionProfilesCfg 0/0",
                                      "IppbIpv6ActionProfiles0Cfg 0/0",
                                      "VttTrapStrengths3 0/0",
                                      "VttTrapStrengths4 0/0",
                                      "VttTrapStrengths5 0/0",
                                      "VttTrapStrengths6 0/0",
                                      "EthernetTrap 0/0",
                                      "VttTrapStrengths3 1/0",
                                      "VttTrapStrengths4 1/0",
                                      "VttTrapStrengths5 1/0",
                                      "VttTrapStrengths6 1/0",
                                      "EthernetTrap 1/0" } ) {
      expected.push_back( std::string( "read " ) + place );
      expected.push_back( std::string( "write " ) + place );
   }
   EXPECT_EQ( operations(), expected );
}

// ---- the three trap registers

TEST_P( IpTrapsTest, setsTheStrengthOfSplitHorizon ) {
   chipIs( GetParam() );
   L3Sm::initSplitHorizonTrapParamCfgReg( fap() );
   expectChanged( "EtppCfgSplitHorizonTrapParams", {}, { { "cfgSplitHorizonFwdActionStrength", 6 } } );
   EXPECT_EQ( operations(),
              ( std::vector< std::string >{ "read EtppCfgSplitHorizonTrapParams 0/0",
                                            "write EtppCfgSplitHorizonTrapParams 0/0" } ) );
}

TEST_P( IpTrapsTest, setsTheCpuStrengthOfFailedSourceChecks ) {
   chipIs( GetParam() );
   L3Sm::initIppdFerTrapCfgReg( fap() );
   expectChanged( "IppdFerTrapCfg", { .array = 3 }, { { "cpuStrengthN", 5 } } );
   expectChanged( "IppdFerTrapCfg", { .array = 4 }, { { "cpuStrengthN", 5 } } );
   EXPECT_EQ( operations(),
              ( std::vector< std::string >{ "read IppdFerTrapCfg 0/3",
                                            "write IppdFerTrapCfg 0/3",
                                            "read IppdFerTrapCfg 0/4",
                                            "write IppdFerTrapCfg 0/4" } ) );
}

TEST_P( IpTrapsTest, trapsBfdOnTheMemberLinksOfALagByItsAddress ) {
   chipIs( GetParam() );
   L3Sm::initIppbProgTrapCfgReg( fap() );
   expectChanged( "IppbProgTrapCfg",
                  { .array = 2 },
                  { { "progTrapEnableBmpN", 1 },
                    { "progTrapFwdActionStrengthN", 7 },
                    { "progTrapFwdActionCodeN", 235 },
                    { "progTrapDaN", 0x01005e900001 },
                    { "progTrapDaBitsN", 48 } } );
   EXPECT_EQ( field( "IppbProgTrapCfg", { .array = 2 }, "progTrapDaBitsN" ), 48u );
   EXPECT_EQ( operations(), ( std::vector< std::string >{ "read IppbProgTrapCfg 0/2", "write IppbProgTrapCfg 0/2" } ) );
}

INSTANTIATE_TEST_SUITE_P( Chips, IpTrapsTest, everyChip, chipNameOf );

} // namespace
