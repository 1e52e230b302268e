// Well-known LIFs and destinations of the VXLAN and MPLS paths, set through the driver's numbered controls.
#include "FapGate.h"
#include "L3Sm.h"
#include "constants/DestinationId.h"
#include "constants/WellKnown.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {

using FapStatusPtr = L3Sm::FapStatusPtr;
using SwitchControlSalPtr = L3Sm::SwitchControlSalPtr;

Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };

// The driver's numbers of the controls.
enum class Control : U32 {
   vxlanDefaultVsi = 1,
   mplsDefaultFwdResult = 2,
   vxlanVtt5DefaultLif = 65,
   vtt5VniToVrfDummyLif = 66,
   mcastSgiMissLif = 92,
   mcastSgiProgram1 = 93,
   mcastSgiProgram2 = 94,
   mcastSgiProgram3 = 95,
   sipMissLif = 96,
   vtt5DefaultLif = 117,
   saProcedureFwd2Ctx0 = 132,
   saProcedureFwd2Ctx1 = 133,
};

void controlIs( SwitchControlSalPtr const & sal,
                FapStatusPtr const & fapStatus,
                Control control,
                U32 value,
                std::source_location origin = std::source_location::current() ) {
   sal->switchControlSet( fapStatus->fapId().value(), static_cast< U32 >( control ), value, 0, origin );
}

constexpr auto lif = Hardware::Dace::Jericho2VttConstants::wellKnownLifOffsetToHwIndex;

void traceSetTo( char const * function, char const * what, U32 value, FapStatusPtr const & fapStatus ) {
   trace( 0, "L3Sm::", function, what, value, " fapId ", fapStatus->fapId() );
}

} // namespace

void L3Sm::initMplsDefaultFwdResult( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal ) {
   Hardware::Dace::DestinationId destination;
   destination.fwsIs( 3 );
   destination.destinationIs( 226 );
   controlIs( sal, fapStatus, Control::mplsDefaultFwdResult, 2 * destination.encodedDestId( fapType3 ) );
}

void L3Sm::initSaProcedureFwd2RoutingCtxs( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal ) {
   controlIs( sal, fapStatus, Control::saProcedureFwd2Ctx0, 0 );
   controlIs( sal, fapStatus, Control::saProcedureFwd2Ctx1, 0 );
   trace( 0, "L3Sm::", "initSaProcedureFwd2RoutingCtxs", " fap ", fapStatus->fapId() );
}

void L3Sm::doSetupVtt5DefaultLif( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal ) {
   controlIs( sal, fapStatus, Control::vtt5DefaultLif, lif( 1 ) );
   traceSetTo( "doSetupVtt5DefaultLif", " VTT5 default Lif index set to ", lif( 1 ), fapStatus );
}

void L3Sm::doSetupVxlanDefaultVsi( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal ) {
   constexpr U32 defaultVsi = 16384;
   controlIs( sal, fapStatus, Control::vxlanDefaultVsi, defaultVsi );
   traceSetTo( "doSetupVxlanDefaultVsi", " vxlan default vsi set to ", defaultVsi, fapStatus );
}

void L3Sm::doSetupVxlanVtt5DefaultLif( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal ) {
   controlIs( sal, fapStatus, Control::vxlanVtt5DefaultLif, lif( 15 ) );
   traceSetTo( "doSetupVxlanVtt5DefaultLif", " vxlan VTT5 default Lif index set to ", lif( 15 ), fapStatus );
}

void L3Sm::doSetupVtt5VniToVrfDummyLif( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal ) {
   controlIs( sal, fapStatus, Control::vtt5VniToVrfDummyLif, lif( 25 ) );
   traceSetTo( "doSetupVtt5VniToVrfDummyLif", " VTT5 VNI-to-VRF dummy Lif index set to ", lif( 25 ), fapStatus );
}

void L3Sm::doSetupVxlanMcastSgiProgram( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal ) {
   controlIs( sal, fapStatus, Control::mcastSgiMissLif, lif( 19 ) );
   controlIs( sal, fapStatus, Control::mcastSgiProgram1, lif( 28 ) );
   controlIs( sal, fapStatus, Control::mcastSgiProgram2, 318 );
   controlIs( sal, fapStatus, Control::mcastSgiProgram3, 6 );
   traceSetTo( "doSetupVxlanMcastSgiProgram", " vxlan multicast SGI miss Lif index set to ", lif( 19 ), fapStatus );
}

void L3Sm::doSetupVxlanSipMissLif( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal ) {
   controlIs( sal, fapStatus, Control::sipMissLif, lif( 20 ) );
   traceSetTo( "doSetupVxlanSipMissLif", " vxlan ipv4 decap SIP miss Lif index set to ", lif( 20 ), fapStatus );
}

} // namespace DaceFapNi
