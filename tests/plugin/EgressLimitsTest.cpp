#include "ChipFixture.h"

using namespace DaceFapNi;

namespace {

class EgressLimitsTest : public EveryChip {};

// ---- ingress termination

TEST_P( EgressLimitsTest, disablesTerminationInTheIngress ) {
   chipIs( GetParam() );
   L3Sm::disableIngressTermination( fap() );
   auto const zero = []( Words const & words ) { return words == Words( words.size() ); };
   EXPECT_TRUE( zero( words( "TerminateNetworkHeaders", {} ) ) );
   EXPECT_TRUE( zero( words( "MappingFwdInfoToEnTerm", {} ) ) );
   EXPECT_TRUE( zero( words( "MappingFwdInfoToEnTerm", { .variant = 1 } ) ) );
   EXPECT_EQ( operations(),
              ( std::vector< std::string >{ "write TerminateNetworkHeaders 0/0",
                                            "write MappingFwdInfoToEnTerm 0/0",
                                            "write MappingFwdInfoToEnTerm 1/0" } ) );
}

// ---- recycle profiles

TEST_P( EgressLimitsTest, sendsRecycledPacketsToTheirTraps ) {
   chipIs( GetParam() );
   char const table[] = "IppeRecycFwdProfileMapping";
   auto const code = [&]( int profile ) {
      return field( table, {}, ( "recycFwdTrapCode" + std::to_string( profile ) ).c_str() );
   };
   auto const strength = [&]( int profile ) {
      return field( table, {}, ( "recycFwdStrength" + std::to_string( profile ) ).c_str() );
   };
   fieldIs( table, {}, "recycFwdTrapCode0", 0x111 ); // not in the map: kept
   fieldIs( table, {}, "recycFwdStrength0", 9 );
   fieldIs( table, {}, "recycFwdTrapCode7", 5 ); // not in the map, the code of an MTU failure: changed
   fieldIs( table, {}, "recycFwdStrength7", 3 );
   fieldIs( table, {}, "recycFwdTrapCode13", 0x1ff );
   L3Sm::initIppeRecycFwdProfileMappingReg( fap() );

   std::map< int, U64 > const mapped{ { 1, 0xc1 }, { 3, 0xc4 }, { 6, 6 }, { 10, 0x11a }, { 13, 5 }, { 14, 0xd2 } };
   for ( auto const & [profile, trapCode] : mapped ) {
      EXPECT_EQ( code( profile ), trapCode ) << profile;
      EXPECT_EQ( strength( profile ), 15u ) << profile;
   }
   EXPECT_EQ( code( 0 ), 0x111u );
   EXPECT_EQ( strength( 0 ), 9u );
   EXPECT_EQ( code( 7 ), 6u );
   EXPECT_EQ( strength( 7 ), 3u );
   EXPECT_EQ(
      operations(),
      ( std::vector< std::string >{ "read IppeRecycFwdProfileMapping 0/0", "write IppeRecycFwdProfileMapping 0/0" } ) );
}

// ---- the recycle path of MTU failures

class MtuRecycleTest : public EveryChip {};

constexpr char const * portTables[] = { "EtppEnc1ContextSelectionPortProfile",
                                        "EtppEnc2ContextSelectionPortProfile",
                                        "EtppEnc3ContextSelectionPortProfile",
                                        "EtppEnc4ContextSelectionPortProfile",
                                        "EtppEnc5ContextSelectionPortProfile",
                                        "EtppTrapContextSelectionPortProfile" };

// The values of recycled packets in the six tables, and of the trap table at the recirculation ports.
struct PortProfiles {
   std::array< U32, 6 > recycled;
   U32 recycledForTrap;
};
std::map< ChipType, PortProfiles > const portProfiles{
   { ChipType::BCM88690_B0, { { 1, 2, 3, 1, 2, 4 }, 6 } },
   { ChipType::BCM88800_A0, { { 2, 2, 1, 3, 3, 5 }, 7 } },
   { ChipType::BCM88850_A0, { { 3, 1, 2, 2, 3, 9 }, 12 } },
   { ChipType::BCM88859_A2, { { 3, 3, 1, 2, 1, 10 }, 5 } },
   { ChipType::BCM88480_A0, { { 2, 1, 3, 1, 2, 3 }, 1 } },
};

TEST_P( MtuRecycleTest, givesTheMtuPortAndTheRecirculationPortOfEachCoreTheirProfiles ) {
   chipIs( GetParam() );
   for ( char const * const table : portTables ) {
      for ( int const port : { 170, 171, 255 } ) {
         wordsAre( table, { .entry = port }, { 0 } );
      }
   }
   L3Sm::initMtuRecycleLog( fap(), sal() );

   auto const & profiles = portProfiles.at( GetParam() );
   U16 const cores = copiesOf( GetParam() );
   std::vector< std::string > expected;
   for ( std::size_t table = 0; table < 6; ++table ) {
      char const * const name = portTables[table];
      U32 const recirculated = table == 5 ? profiles.recycledForTrap : profiles.recycled[table];
      for ( U32 copy = 0; copy < cores; ++copy ) {
         EXPECT_EQ( words( name, { .entry = 255 }, copy ), Words{ profiles.recycled[table] } ) << name;
         // A core's port is known on that core alone.
         EXPECT_EQ( words( name, { .entry = 170 }, copy ), Words{ copy == 0 ? recirculated : 0 } ) << name;
         EXPECT_EQ( words( name, { .entry = 171 }, copy ), Words{ copy == 1 ? recirculated : 0 } ) << name;
      }
      expected.push_back( "write " + std::string( name ) + " 0/0/255" );
      expected.push_back( "write " + std::string( name ) + " 0/0/170 core 0" );
      if ( cores == 2 ) {
         expected.push_back( "write " + std::string( name ) + " 0/0/171 core 1" );
      }
   }
   expected.push_back( "control 64 = 255" );
   EXPECT_EQ( operations(), expected );
   EXPECT_EQ( controls(), ( std::map< U32, U32 >{ { 64, 255 } } ) );
}

TEST_P( MtuRecycleTest, writesTheMtuPortAloneWithoutCores ) {
   chipIs( GetParam(), { .cores = U16{ 0 } } );
   L3Sm::initMtuRecycleLog( fap(), sal() );
   std::vector< std::string > expected;
   for ( char const * const table : portTables ) {
      expected.push_back( "write " + std::string( table ) + " 0/0/255" );
   }
   expected.push_back( "control 64 = 255" );
   EXPECT_EQ( operations(), expected );
}

INSTANTIATE_TEST_SUITE_P( Chips,
                          MtuRecycleTest,
                          testing::Values( ChipType::BCM88690_B0,
                                           ChipType::BCM88800_A0,
                                           ChipType::BCM88850_A0,
                                           ChipType::BCM88859_A2,
                                           ChipType::BCM88480_A0 ),
                          chipNameOf );

using MtuRecycle = ChipFixture;

TEST_F( MtuRecycle, isSkippedOnAChipWhoseSdkHasNoSuchProfile ) {
   chipIs( ChipType::BCM88480_B0 );
   TraceListener const traces( "DaceFapNiL3Sm", 9 );
   L3Sm::initMtuRecycleLog( fap(), sal() );
   EXPECT_TRUE( operations().empty() );
   EXPECT_TRUE( controls().empty() );
   EXPECT_EQ( traces.records(),
              ( std::vector< std::string >{ "DaceFapNiL3Sm/0 L3Sm::initMtuRecycleLog Skipping programming of the mtu "
                                            "port because it doesn't exist in the SDK." } ) );
}

using MtuRecycleDeathTest = ChipFixture;

TEST_F( MtuRecycleDeathTest, failsAtAThirdCore ) {
   chipIs( ChipType::BCM88690_B0, { .cores = U16{ 3 } } );
   EXPECT_DEATH( L3Sm::initMtuRecycleLog( fap(), sal() ),
                 "fapPortId: 172, out of recircPort range\n.*`\"fapPortId <= recircPortCoreMax\" == nullptr'" );
}

TEST_F( MtuRecycleDeathTest, failsInTheDriverAtACoreWithoutACopyOfItsOwn ) {
   chipIs( ChipType::BCM88800_A0, { .cores = U16{ 2 } } );
   EXPECT_DEATH( L3Sm::initMtuRecycleLog( fap(), sal() ),
                 "EtppEnc1ContextSelectionPortProfile has no copy for core 1 on BCM88800_A0: it has 1 copy\\. No chip "
                 "operation was made" );
}

// ---- limits

TEST_P( EgressLimitsTest, keepsTheTtlOfEveryCodeWithBit2 ) {
   chipIs( GetParam() );
   L3Sm::initEtppCfgFwdDoNotTtlDecrement( fap() );
   EXPECT_EQ( words( "EtppCfgFwdDoNotTtlDecrement", {} ), Words( 16, 0xf0f0f0f0 ) );
   EXPECT_EQ( operations(), std::vector< std::string >{ "write EtppCfgFwdDoNotTtlDecrement 0/0" } );
}

TEST_P( EgressLimitsTest, letsTheSourceCheckIgnoreDefaultRoutes ) {
   chipIs( GetParam() );
   L3Sm::initFlpRpfFormatConfig( fap() );
   EXPECT_EQ( field( "FlpRpfFormatConfiguration", { .entry = 57 }, "defaultConfig" ), 5u );
   EXPECT_EQ( field( "FlpRpfFormatConfiguration", { .entry = 59 }, "defaultConfig" ), 5u );
   for ( auto const & place : changedPlaces() ) {
      EXPECT_TRUE( place == "FlpRpfFormatConfiguration 0/0/57" || place == "FlpRpfFormatConfiguration 0/0/59" )
         << place;
   }
   // The rest of the entry survives: defaultConfig is its uppermost field, from bit 95 on.
   auto const & old = before().tables.at( "FlpRpfFormatConfiguration" ).at( 0 ).at( 0 ).at( 57 ).copies[0];
   auto const now = words( "FlpRpfFormatConfiguration", { .entry = 57 } );
   EXPECT_EQ( now[0], old[0] );
   EXPECT_EQ( now[1], old[1] );
   EXPECT_EQ( now[2], ( old[2] & 0x7fffffff ) | 0x80000000 );
   EXPECT_EQ( now[3], 2u );
   EXPECT_EQ( operations(),
              ( std::vector< std::string >{ "read FlpRpfFormatConfiguration 0/0/57",
                                            "write FlpRpfFormatConfiguration 0/0/57",
                                            "read FlpRpfFormatConfiguration 0/0/59",
                                            "write FlpRpfFormatConfiguration 0/0/59" } ) );
}

TEST_P( EgressLimitsTest, leavesTheSourceCheckAloneWithTheToggleOff ) {
   toggleIs( "Dace.json", "UrpfIgnoreDefaultRouteJericho2", false );
   chipIs( GetParam() );
   L3Sm::initFlpRpfFormatConfig( fap() );
   EXPECT_TRUE( operations().empty() );
}

TEST_P( EgressLimitsTest, allowsMulticastToFallBackToBridgingWhereTheChipCan ) {
   bool const hasRegister = GetParam() == ChipType::BCM88850_A0 || GetParam() == ChipType::BCM88859_A2;
   chipIs( GetParam() );
   L3Sm::initLifMcBridgeFallbackAllowReg( fap() );
   if ( hasRegister ) {
      EXPECT_EQ( words( "IppbLifMcBridgeFallbackAllow", {} ), Words( 8, 0xffffffff ) );
      EXPECT_EQ( operations(),
                 ( std::vector< std::string >{ "read IppbLifMcBridgeFallbackAllow 0/0",
                                               "write IppbLifMcBridgeFallbackAllow 0/0" } ) );
   } else {
      EXPECT_TRUE( operations().empty() );
   }
}

TEST_P( EgressLimitsTest, allowsNoFallBackOnOtherMajorRevisions ) {
   for ( U32 const major : { 0u, 7u, 10u } ) {
      chipIs( GetParam(), { .fapRevMajor = major } );
      L3Sm::initLifMcBridgeFallbackAllowReg( fap() );
      EXPECT_TRUE( operations().empty() );
   }
}

// ---- ARP entries of access circuits, multicast with two outgoing LIFs

TEST_P( EgressLimitsTest, countsAccessCircuitsByForwardDomain ) {
   chipIs( GetParam() );
   for ( char const * const table : { "EtppcEnc1Arr0FormatCfg", "EtppbEnc5Arr0FormatCfg" } ) {
      fieldIs( table, { .entry = 37 }, "forwardDomainConfig", 0x1a5c3 );
      fieldIs( table, { .entry = 37 }, "lifStatisticsObjectIdConfig", 0 );
   }
   L3Sm::doCopyFwdDomainConfigToLifStatsForEtpsArpAc( fap(), sal() );
   for ( char const * const table : { "EtppcEnc1Arr0FormatCfg", "EtppbEnc5Arr0FormatCfg" } ) {
      EXPECT_EQ( field( table, { .entry = 37 }, "lifStatisticsObjectIdConfig" ), 0x1a5c3u );
      EXPECT_EQ( field( table, { .entry = 37 }, "forwardDomainConfig" ), 0x1a5c3u );
   }
   EXPECT_EQ( changedPlaces(),
              ( std::set< std::string >{ "EtppcEnc1Arr0FormatCfg 0/0/37", "EtppbEnc5Arr0FormatCfg 0/0/37" } ) );
   EXPECT_EQ( operations(),
              ( std::vector< std::string >{ "read EtppcEnc1Arr0FormatCfg 0/0/37",
                                            "write EtppcEnc1Arr0FormatCfg 0/0/37",
                                            "read EtppbEnc5Arr0FormatCfg 0/0/37",
                                            "write EtppbEnc5Arr0FormatCfg 0/0/37" } ) );
}

TEST_P( EgressLimitsTest, leavesAccessCircuitsAloneWithTheToggleOff ) {
   toggleIs( "Dace.json", "J2L2EvpnMplsMultiHomed", false );
   chipIs( GetParam() );
   L3Sm::doCopyFwdDomainConfigToLifStatsForEtpsArpAc( fap(), sal() );
   EXPECT_TRUE( operations().empty() );
}

TEST_P( EgressLimitsTest, swapsDoubleOutLifsInTheFirstProgram ) {
   chipIs( GetParam() );
   wordsAre( "EtppaPrpFesProgramTable", {}, Words( 6, 0 ) );
   L3Sm::doSetupVxlanMcastEtppDoubleOutLifSwap( fap(), sal() );
   // 17 at bit 14 and 18 at bit 35.
   EXPECT_EQ( words( "EtppaPrpFesProgramTable", { .entry = 0 } ), ( Words{ 17u << 14, 18u << 3, 0, 0, 0, 0 } ) );
   EXPECT_EQ(
      operations(),
      ( std::vector< std::string >{ "read EtppaPrpFesProgramTable 0/0/0", "write EtppaPrpFesProgramTable 0/0/0" } ) );
}

TEST_P( EgressLimitsTest, leavesDoubleOutLifsAloneWithTheToggleOff ) {
   toggleIs( "DaceToggles.json", "J2EvpnMcastVxlanMultihoming", false );
   chipIs( GetParam() );
   L3Sm::doSetupVxlanMcastEtppDoubleOutLifSwap( fap(), sal() );
   EXPECT_TRUE( operations().empty() );
}

INSTANTIATE_TEST_SUITE_P( Chips, EgressLimitsTest, everyChip, chipNameOf );

// ---- router interfaces, at the start of the machine

using EgressOutrifTest = ChipFixture;

TEST_F( EgressOutrifTest, limitsRouterInterfacesByTheRevisionOfEachFap ) {
   switchIs( { .faps = { { .fapId = FapId( 7 ), .cores = 1, .revision = { 5, ChipType::BCM88690_B0, 7 } },
                         { .fapId = FapId( 2 ), .cores = 1, .revision = { 9, ChipType::BCM88859_A2, 7 } },
                         { .fapId = FapId( 4 ), .cores = 1, .revision = { 77, ChipType::BCM88480_A0, 7 } } } } );
   start();
   std::map< FapId, U64 > const limits{ { FapId( 7 ), 32768 }, { FapId( 2 ), 57344 }, { FapId( 4 ), 4096 } };
   constexpr char const * const fields[] = { "cfgOutrifMaxValue", "outrifMaxValue", "cfgRifMaxValue" };
   for ( auto const & [fapId, limit] : limits ) {
      for ( U8 const variant : { 0, 1, 2 } ) {
         EXPECT_EQ( field( "EgressOutrifMaxValue", { .variant = variant }, fields[variant], 0, fapId ), limit )
            << fapId << " " << fields[variant];
      }
   }
   // FAPs in the order of their numbers, variants in theirs.
   std::vector< std::string > found;
   for ( auto const & row : rows() ) {
      if ( row.table == "EgressOutrifMaxValue" ) {
         found.push_back( std::to_string( row.fap ) + ": " + text( row ) );
      }
   }
   std::vector< std::string > expected;
   for ( char const * const fap : { "2: ", "4: ", "7: " } ) {
      for ( char const * const place : { "0/0", "1/0", "2/0" } ) {
         expected.push_back( fap + std::string( "read EgressOutrifMaxValue " ) + place );
         expected.push_back( fap + std::string( "write EgressOutrifMaxValue " ) + place );
      }
   }
   EXPECT_EQ( found, expected );
}

} // namespace
