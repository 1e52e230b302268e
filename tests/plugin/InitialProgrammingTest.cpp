// What the machine programs when it becomes initialized, function by function, and what runs by name.
#include "ChipFixture.h"
#include "ChipView.h"
#include "rex/Operations.h"

#include <gtest/gtest.h>

namespace {

using namespace Test;

// The functions of L3Sm that worked on the chip at the start, each once for each run of operations.
std::vector< std::string > functionsOf( TestSwitch const & sw ) {
   std::vector< std::string > all;
   for ( auto const & row : sw.rows( 0 ) ) {
      if ( all.empty() || all.back() != row.function ) {
         all.emplace_back( row.function );
      }
   }
   return all;
}

TEST( InitialProgramming, runsBehindTheChildrenInItsOrder ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } ); // no chip-init list: the toggles keep it away
   sw.setAttributes( "routing/mpls/routingInfo/status", Object{ { "mplsLookupLabelCount", 2 } } );
   sw.setAttributes( "hardware/dace/lag/daceLagStatus", Object{ { "slotLoadBalance", Object{ { "0", Object{} } } } } );
   sw.setAttributes( "interface/status/eth/vxlan", Object{ { "vtiStatus", Object{ { "Vxlan1", Object{} } } } } );
   sw.start();
   EXPECT_EQ( functionsOf( sw ),
              ( std::vector< std::string >{ "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestUdpPort",
                                            "DaceL3UnicastVtiStatusDirSm::doSetupVxlanDestSecUdpPort",
                                            "DaceL3UnicastVtiStatusDirSm::doSetupVxlanFloodSet",
                                            "VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg",
                                            "GueNexthopGroupSm::doWriteAdditionalHeaderMapTable0",
                                            "MplsParserCfgSm::handleParserConfig",
                                            "doWriteFlpacsAction",
                                            "L3Sm::handleEvpnEncapType",
                                            "L3Sm::handleEvpnDciGateway",
                                            "L3Sm::handleDecapRouteAll",
                                            "L3Sm::initEgressOutrifMaxValueReg",
                                            "DaceL3UnicastVtiStatusDirSm::doSetupVxlanFloodSet",
                                            "L3Sm::setupMplsLookupFbIpFwdContext",
                                            "doProgramGueTunnelTermination",
                                            "L3Sm::handlePrefixLensInExactMatch",
                                            "L3Sm::handleUrpfFailFwdConfig",       // loose and strict
                                            "doProgramGueTunnelTermination" } ) ); // the slot's own reactor
}

// ---- By name, for those who don't include the plug-in

class ByName : public DaceFapNi::ChipFixture {
 public:
   std::vector< std::string > operationsOf( char const * name ) {
      auto const before = operations().size();
      auto const * operation = Rex::Operations::find( "DaceFapNi::L3Sm", name );
      EXPECT_NE( operation, nullptr ) << name;
      if ( operation ) {
         ( *operation )( fap(), sal() );
      }
      auto all = operations();
      all.erase( all.begin(), all.begin() + static_cast< long >( before ) );
      return all;
   }
};

TEST_F( ByName, theFunctionsThatTakeTheDriverRunAsTheOthersDo ) {
   chipIs( ChipType::BCM88850_A0 );
   struct {
      char const * name;
      char const * firstOperation;
   } const rows[] = {
      { "initMtuRecycleLog", "write EtppEnc1ContextSelectionPortProfile 0/0/255" },
      { "initMplsDefaultFwdResult", "control 2 = 786884" },
      { "initSaProcedureFwd2RoutingCtxs", "control 132 = 0" },
      { "doSetupVtt5DefaultLif", "control 117 = 4194242" },
      { "doSetupVxlanDefaultVsi", "control 1 = 16384" },
      { "doSetupVxlanVtt5DefaultLif", "control 65 = 4194270" },
      { "doSetupVtt5VniToVrfDummyLif", "control 66 = 4194290" },
      { "doSetupVxlanMcastEtppDoubleOutLifSwap", "read EtppaPrpFesProgramTable 0/0/0" },
      { "doSetupVxlanMcastSgiProgram", "control 92 = 4194278" },
      { "doSetupVxlanSipMissLif", "control 96 = 4194280" },
      { "doCopyFwdDomainConfigToLifStatsForEtpsArpAc", "read EtppcEnc1Arr0FormatCfg 0/0/37" },
   };
   for ( auto const & row : rows ) {
      auto const made = operationsOf( row.name );
      ASSERT_FALSE( made.empty() ) << row.name;
      EXPECT_EQ( made.front(), row.firstOperation ) << row.name;
   }
}

TEST_F( ByName, everyFunctionOfTheChipInitListIsThere ) {
   chipIs( ChipType::BCM88850_A0 );
   auto const names = Rex::Operations::names( "DaceFapNi::L3Sm" );
   EXPECT_EQ( names.size(), 37u + 1 ); // and the verification
   EXPECT_EQ( std::set< std::string >( names.begin(), names.end() ).size(), names.size() );
}

} // namespace
