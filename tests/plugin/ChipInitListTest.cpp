#include "ChipFixture.h"
#include "toggle/Toggle.h"

using namespace DaceFapNi;

namespace {

// Each function of the list, with its first operation on BCM88850_A0, which has every table. Written down row by row.
constexpr struct {
   char const * function;
   char const * firstOperation;
} chipInitList[] = {
   // clang-format off
   { "L3Sm::clearInLifProfileCsMapMsb",                    "write InLifProfileCsFlagsMsb 0/0" },
   { "L3Sm::clearInLifProfileCsMapLsb",                    "write InLifProfileCsFlagsLsb 0/0" },
   { "L3Sm::initEnablersVectors",                          "write EnablersVectors 0/0/0" },
   { "L3Sm::initVsiProfileTable",                          "write VsiProfileEnablers 0/0/224" },
   { "L3Sm::initSviLearning",                              "read FlpaInitContextEnablers 0/0/26" },
   { "L3Sm::initInLifProfileTable",                        "write IppdInLifProfileTable 0/0/128" },
   { "L3Sm::initIpTrapsFwd",                               "read IppbTtl0ActionProfile 0/0" },
   { "L3Sm::initIpTrapsVtt",                               "read VttTrapStrengths3 0/0" },
   { "L3Sm::disableIngressTermination",                    "write TerminateNetworkHeaders 0/0" },
   { "L3Sm::initInlifOrientationMapTable",                 "read ErppInlifOrientationMap 0/0/10" },
   { "L3Sm::initOutlifOrientationMap",                     "read ErppCfgMappingOutLifProfile 0/0/2" },
   { "L3Sm::initSplitHorizonTrapParamCfgReg",              "read EtppCfgSplitHorizonTrapParams 0/0" },
   { "L3Sm::initIppbProgTrapCfgReg",                       "read IppbProgTrapCfg 0/2" },
   { "L3Sm::initIppbFlpbResContextEnablersReg",            "read IppbFlpbResContextEnablers 0/0/57" },
   { "L3Sm::initIppeRecycFwdProfileMappingReg",            "read IppeRecycFwdProfileMapping 0/0" },
   { "L3Sm::initMtuRecycleLog",                            "write EtppEnc1ContextSelectionPortProfile 0/0/255" },
   { "L3Sm::initKapsInterfaceDefault",                     "write EnableKapsInterfaceDefault 0/0" },
   { "L3Sm::initKapsStrengthMapping",                      "write FlpKapsStrengthMapping 0/2/0" },
   { "L3Sm::initMplsDefaultFwdResult",                     "control 2 = 786884" },
   { "L3Sm::initIppdFerTrapCfgReg",                        "read IppdFerTrapCfg 0/3" },
   { "L3Sm::initIppcInLifProfileCsMapping",                "read IppcInLifProfileCsFlags 0/0/0" },
   { "L3Sm::initVrfFallbackMapping",                       "read InLifProfileCsFlagsLsb 0/2" },
   { "L3Sm::initEtppCfgFwdDoNotTtlDecrement",              "write EtppCfgFwdDoNotTtlDecrement 0/0" },
   { "L3Sm::initSaProcedureFwd2RoutingCtxs",               "control 132 = 0" },
   { "L3Sm::setupMplsPopFheiFormat",                       "write IppdPphAttributesByEei 0/0/8" },
   { "L3Sm::setupVplsVlanAwareCsProfile",                  "read InLifProfileCsFlagsLsb 1/3" },
   { "L3Sm::setupAegisSetSecondaryVrfCsProfile",           "read InLifProfileCsFlagsLsb 1/3" },
   { "L3Sm::setupVxlanUdpEspCsProfile",                    "read InLifProfileCsFlagsLsb 0/1" },
   { "L3Sm::doSetupVtt5DefaultLif",                        "control 117 = 4194242" },
   { "L3Sm::doSetupVxlanDefaultVsi",                       "control 1 = 16384" },
   { "L3Sm::doSetupVxlanVtt5DefaultLif",                   "control 65 = 4194270" },
   { "L3Sm::doSetupVtt5VniToVrfDummyLif",                  "control 66 = 4194290" },
   { "L3Sm::doSetupVxlanMcastEtppDoubleOutLifSwap",        "read EtppaPrpFesProgramTable 0/0/0" },
   { "L3Sm::doSetupVxlanMcastSgiProgram",                  "control 92 = 4194278" },
   { "L3Sm::doSetupVxlanSipMissLif",                       "control 96 = 4194280" },
   { "L3Sm::doCopyFwdDomainConfigToLifStatsForEtpsArpAc",  "read EtppcEnc1Arr0FormatCfg 0/0/37" },
   { "L3Sm::initFlpRpfFormatConfig",                       "read FlpRpfFormatConfiguration 0/0/57" },
   { "L3Sm::initLifMcBridgeFallbackAllowReg",              "read IppbLifMcBridgeFallbackAllow 0/0" },
   // clang-format on
};

class ChipInitListTest : public EveryChip {
 public:
   // The functions in the order of their operations, each once for each run of operations, with the first of them.
   std::vector< std::pair< std::string, std::string > > runs() const {
      std::vector< std::pair< std::string, std::string > > all;
      for ( auto const & row : rows() ) {
         if ( row.cause == "chip-init" && ( all.empty() || all.back().first != row.function ) ) {
            all.emplace_back( row.function, text( row ) );
         }
      }
      return all;
   }
};

TEST_P( ChipInitListTest, runsItsFunctionsInOrder ) {
   toggleIs( "Dace.json", "ArmOrderedSwTable", false );
   chipIs( GetParam() );
   start();
   // What a chip lacks: the egress profile of recycled packets, the multicast fallback register.
   std::set< std::string > lacking;
   if ( GetParam() == ChipType::BCM88480_B0 ) {
      lacking.insert( "L3Sm::initMtuRecycleLog" );
   }
   if ( GetParam() != ChipType::BCM88850_A0 && GetParam() != ChipType::BCM88859_A2 ) {
      lacking.insert( "L3Sm::initLifMcBridgeFallbackAllowReg" );
   }
   std::vector< std::string > expected;
   for ( auto const & row : chipInitList ) {
      if ( !lacking.contains( row.function ) ) {
         expected.emplace_back( row.function );
      }
   }
   std::vector< std::string > found;
   for ( auto const & [function, operation] : runs() ) {
      found.push_back( function );
   }
   EXPECT_EQ( found, expected );
}

TEST_P( ChipInitListTest, isClosedOnFapType3WithTheTogglesAtTheirDefaults ) {
   chipIs( GetParam() );
   start();
   EXPECT_TRUE( runs().empty() );
}

TEST_P( ChipInitListTest, opensWithTheOtherToggleOffAsWell ) {
   toggleIs( "DaceToggles.json", "J2DaceL3Ni", false );
   chipIs( GetParam() );
   start();
   ASSERT_FALSE( runs().empty() );
   EXPECT_EQ( runs().front().first, "L3Sm::clearInLifProfileCsMapMsb" );
}

INSTANTIATE_TEST_SUITE_P( Chips, ChipInitListTest, everyChip, chipNameOf );

class ChipInitListOfOneChip : public ChipFixture {};

TEST_F( ChipInitListOfOneChip, beginsEachFunctionWithItsFirstOperation ) {
   chipIs( ChipType::BCM88850_A0 );
   L3Sm::initChip( fap(), sal() );
   std::vector< std::pair< std::string, std::string > > found;
   for ( auto const & row : rows() ) {
      if ( found.empty() || found.back().first != row.function ) {
         found.emplace_back( row.function, text( row ) );
      }
   }
   std::vector< std::pair< std::string, std::string > > expected;
   for ( auto const & row : chipInitList ) {
      expected.emplace_back( row.function, row.firstOperation );
   }
   EXPECT_EQ( found, expected );
}

TEST_F( ChipInitListOfOneChip, readsTheseTogglesEachOnce ) {
   chipIs( ChipType::BCM88850_A0 );
   L3Sm::initChip( fap(), sal() );
   std::set< std::string > read;
   for ( auto const & reading : Toggle::readings() ) {
      EXPECT_TRUE( reading.state );
      read.insert( reading.file + ":" + reading.name );
   }
   EXPECT_EQ( read,
              ( std::set< std::string >{ "Dace.json:CampusVtepToVtepBridgingGen4",
                                         "Dace.json:DaceVplsPhase2",
                                         "Dace.json:J2L2EvpnMplsMultiHomed",
                                         "Dace.json:UrpfIgnoreDefaultRouteJericho2",
                                         "Dace.json:V6LinkLocalSrcPuntToCpu",
                                         "DaceLib.json:DaceEvpnDualEncapDciAaMh",
                                         "DaceToggles.json:J2EvpnMcastVxlanMultihoming",
                                         "DaceToggles.json:J2SRv6" } ) );
}

TEST_F( ChipInitListOfOneChip, isIdempotentAsTheClearsGoFirst ) {
   chipIs( ChipType::BCM88859_A2 );
   L3Sm::initChip( fap(), sal() );
   auto const once = contents();
   L3Sm::initChip( fap(), sal() );
   EXPECT_EQ( contents(), once );
}

TEST_F( ChipInitListOfOneChip, programsEachFapByItsOwnKindAndNoOther ) {
   toggleIs( "Dace.json", "ArmOrderedSwTable", false );
   switchIs( { .faps = { { .fapId = FapId( 5 ), .cores = 1, .revision = revisionOf( ChipType::BCM88859_A2 ) },
                         { .fapId = FapId( 1 ), .cores = 1, .revision = revisionOf( ChipType::BCM88800_A0 ) } } } );
   start();
   Place const ofTwo{ .variant = 1, .array = 4 };
   EXPECT_EQ( field( "InLifProfileCsFlagsLsb", ofTwo, "csProfile15", 0, FapId( 5 ) ), 11u );
   EXPECT_EQ( field( "InLifProfileCsFlagsLsb", { .variant = 1 }, "csProfile15", 0, FapId( 1 ) ), 11u );
   // One after the other, in the order of their numbers.
   std::vector< U16 > order;
   for ( auto const & row : rows() ) {
      if ( row.cause == "chip-init" && ( order.empty() || order.back() != row.fap ) ) {
         order.push_back( row.fap );
      }
   }
   EXPECT_EQ( order, ( std::vector< U16 >{ 1, 5 } ) );
}

// ---- the second list, of the machine

TEST_F( ChipInitListOfOneChip, isFollowedByTheMachinesOwnList ) {
   toggleIs( "Dace.json", "ArmOrderedSwTable", false );
   chipIs( ChipType::BCM88690_B0 );
   start();
   auto const first = [&]( std::string const & operation ) {
      auto const all = rows();
      for ( auto const & row : all ) {
         if ( row.cause != "chip-init" && text( row ) == operation ) {
            return row.seq;
         }
      }
      ADD_FAILURE() << "no " << operation;
      return U64{ 0 };
   };
   U64 const limits = first( "write EgressOutrifMaxValue 2/0" );
   U64 const loose = first( "write IppdFerTrapCfg 0/3" );
   U64 const strict = first( "write IppdFerTrapCfg 0/4" );
   EXPECT_LT( limits, loose );
   EXPECT_LT( loose, strict );
   // The flood set, which the machine has written once more between them.
   U64 flood = 0;
   for ( auto const & row : rows() ) {
      if ( row.table == "UnknownDaProfile" && row.kind == Simulator::Row::Kind::write ) {
         flood = row.seq;
      }
   }
   EXPECT_LT( limits, flood );
   EXPECT_LT( flood, loose );
}

} // namespace
