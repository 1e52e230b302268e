#include "ChipFixture.h"

using namespace DaceFapNi;

namespace {

class WellKnownLifsTest : public EveryChip {
 public:
   using Function = void( FapStatusPtr const &, L3Sm::SwitchControlSalPtr const & );
   // Expects the function to do nothing but set the controls, and to tell of it afterwards.
   void expectControls( Function * function, std::vector< std::string > const & controls, std::string const & trace ) {
      switchIs( { .faps = { { .fapId = FapId( 3 ), .revision = revisionOf( GetParam() ) } } } );
      std::vector< std::string > whenTold = controls;
      TraceListener const traces( "DaceFapNiL3Sm", 9, [&] { whenTold = operations(); } );
      function( fap( FapId( 3 ) ), sal() );
      EXPECT_EQ( operations(), controls );
      EXPECT_EQ( whenTold, controls ) << "what is told to be set was not set yet";
      EXPECT_EQ( traces.records(),
                 trace.empty() ? std::vector< std::string >{} : std::vector{ "DaceFapNiL3Sm/0 L3Sm::" + trace } );
      for ( auto const & row : rows() ) {
         EXPECT_EQ( row.fap, 3u );
      }
   }
};

// The index of well-known LIF n is 0x3fffc0 + 2 n.

TEST_P( WellKnownLifsTest, setsTheDefaultLifOfVtt5 ) {
   expectControls( L3Sm::doSetupVtt5DefaultLif,
                   { "control 117 = 4194242" },
                   "doSetupVtt5DefaultLif VTT5 default Lif index set to 4194242 fapId 3" );
}

TEST_P( WellKnownLifsTest, setsTheDefaultVsiOfVxlan ) {
   expectControls( L3Sm::doSetupVxlanDefaultVsi,
                   { "control 1 = 16384" },
                   "doSetupVxlanDefaultVsi vxlan default vsi set to 16384 fapId 3" );
}

TEST_P( WellKnownLifsTest, setsTheDefaultLifOfVxlanInVtt5 ) {
   expectControls( L3Sm::doSetupVxlanVtt5DefaultLif,
                   { "control 65 = 4194270" },
                   "doSetupVxlanVtt5DefaultLif vxlan VTT5 default Lif index set to 4194270 fapId 3" );
}

TEST_P( WellKnownLifsTest, setsTheDummyLifOfTheStepFromVniToVrf ) {
   expectControls( L3Sm::doSetupVtt5VniToVrfDummyLif,
                   { "control 66 = 4194290" },
                   "doSetupVtt5VniToVrfDummyLif VTT5 VNI-to-VRF dummy Lif index set to 4194290 fapId 3" );
}

TEST_P( WellKnownLifsTest, programsVxlanMulticastInFourControls ) {
   expectControls( L3Sm::doSetupVxlanMcastSgiProgram,
                   { "control 92 = 4194278", "control 93 = 4194296", "control 94 = 318", "control 95 = 6" },
                   "doSetupVxlanMcastSgiProgram vxlan multicast SGI miss Lif index set to 4194278 fapId 3" );
}

TEST_P( WellKnownLifsTest, setsTheLifOfUnknownSourcesInVxlan ) {
   expectControls( L3Sm::doSetupVxlanSipMissLif,
                   { "control 96 = 4194280" },
                   "doSetupVxlanSipMissLif vxlan ipv4 decap SIP miss Lif index set to 4194280 fapId 3" );
}

TEST_P( WellKnownLifsTest, sendsUnknownLabelsToATrap ) {
   // Twice 3 << 17 | 226.
   expectControls( L3Sm::initMplsDefaultFwdResult, { "control 2 = 786884" }, "" );
}

TEST_P( WellKnownLifsTest, takesRoutingContextsOutOfTheSourceProcedure ) {
   expectControls( L3Sm::initSaProcedureFwd2RoutingCtxs,
                   { "control 132 = 0", "control 133 = 0" },
                   "initSaProcedureFwd2RoutingCtxs fap 3" );
}

INSTANTIATE_TEST_SUITE_P( Chips, WellKnownLifsTest, everyChip, chipNameOf );

} // namespace
