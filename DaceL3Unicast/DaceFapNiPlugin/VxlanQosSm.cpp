#include "VxlanQosSm.h"

#include "constants/Contexts.h"
#include "rex/Gate.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {

using DacePPExport::ctx_encap_1;
using DacePPExport::ctx_encap_2;

Rex::TraceFacility const trace{ "DaceFapNiL3Vxlan" };
Rex::DualTrace const dualTrace{ trace };

constexpr short vxlanEcnConfigDscpEcnRewriteBridged = 0x104;

// A program of the table is a context with the bit set that says so.
U32 programOf( Hardware::ChipType chipType, ctx_encap_2 context ) {
   return 2 * ctx_encap_2_value( chipType, context ) + 1;
}

} // namespace

VxlanQosSm::VxlanQosSm( Corvo::Ptr< Vxlan::EcnConfig const > const & vxlanEcnConfig, CellStatusPtr const & cellStatus )
   : vxlanEcnConfig_( vxlanEcnConfig ), cellStatus_( cellStatus ) {
   vxlanEcnConfig_.subscribe( vxlanEcnConfigDispatch, this );
}

VxlanQosSm::~VxlanQosSm() {
   hasNotificationActiveIs( false );
   rexDoZombieReactors( true );
   vxlanEcnConfig_.unsubscribe();
}

Corvo::Ptr< VxlanQosSm > VxlanQosSm::VxlanQosSmIs( Corvo::Ptr< Vxlan::EcnConfig const > const & vxlanEcnConfig,
                                                   CellStatusPtr const & cellStatus ) {
   auto const sm = Corvo::makePtr< VxlanQosSm >( vxlanEcnConfig, cellStatus );
   sm->hasNotificationActiveIs( true );
   return sm;
}

Corvo::Ptr< VxlanQosSm > vxlanQosSmFactory( Corvo::Ptr< Vxlan::EcnConfig const > const & vxlanEcnConfig,
                                            CellStatusPtr const & cellStatus ) {
   return VxlanQosSm::VxlanQosSmIs( vxlanEcnConfig, cellStatus );
}

void VxlanQosSm::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() == active ) {
      return;
   }
   nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
   vxlanEcnConfig_.activeIs( active, vxlanEcnConfigDispatch, this );
}

void VxlanQosSm::rexDoZombieReactors( bool zombie ) {
   markAndSweepFlagSet( zombie );
}

void VxlanQosSm::vxlanEcnConfigDispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const *, void const * ) {
   auto * const self = slot->owner< VxlanQosSm >();
   if ( attribute == vxlanEcnConfigDscpEcnRewriteBridged && !self->isZombie() ) {
      self->handleBridgedQosPropagationEnabled();
   }
}

bool VxlanQosSm::isCurrentContextNop( Hardware::EtppcEncapsulation2ContextSelectionCam::WithStorage & entry,
                                      Hardware::Dace::FapRevision const & revision ) {
   U32 const nop = ctx_encap_1_value( revision.chipType(), ctx_encap_1::nop );
   if ( revision.fapRevMajor() == 8 || revision.fapRevMajor() == 9 ) {
      return entry.currentContextProfile() == 0; // these chips profile the context, and profile 0 is the NOP's
   }
   return entry.currentContext() == nop;
}

void VxlanQosSm::handleBridgedQosPropagationEnabled() {
   using Cam = Hardware::EtppcEncapsulation2ContextSelectionCam;
   bool const enable = vxlanEcnConfig_->dscpEcnRewriteBridged();
   constexpr auto className = "VxlanQosSm::";
   constexpr auto name = "handleBridgedQosPropagationEnabled";
   dualTrace( 8, className, name, " dscpEcnRewriteBridged", enable );

   forEachFap( cellStatus_, [&]( Fap const & fap, auto const & fapStatus ) {
      trace( 8, className, name, " update ENCAP2 program for VXLAN bridging on fap ", fapStatus.fapName() );
      // Each plain program and its counterpart that propagates QoS.
      struct {
         U32 plain;
         U32 qos;
      } const pairs[] = {
         { programOf( fap.chipType, ctx_encap_2::vxlanBridge ),
           programOf( fap.chipType, ctx_encap_2::vxlanBridgeQos ) },
         { programOf( fap.chipType, ctx_encap_2::vxlanIpv6Bridge ),
           programOf( fap.chipType, ctx_encap_2::vxlanIpv6BridgeQos ) },
      };
      int const entries = static_cast< int >( Cam::entries( static_cast< U8 >( fap.chipType ), 0 ) );
      for ( int i = 0; i < entries; ++i ) {
         auto cam = accessor< Cam >( fap );
         readAny( cam, fap, { .entry = i } );
         U32 const program = cam.program();
         for ( auto const & [plain, qos] : pairs ) {
            if ( enable && program == plain ) {
               if ( Rex::gate( isCurrentContextNop( cam, fapStatus.revision() ),
                               "the entry's current context is not the NOP",
                               fap.id.value() ) ) {
                  cam.programIs( static_cast< U8 >( qos ) );
               }
            } else if ( !enable && program == qos ) {
               cam.programIs( static_cast< U8 >( plain ) );
            }
         }
         if ( cam.program() != program ) {
            writeAll( cam, fap, { .entry = i } );
         }
      }
   } );
}

} // namespace DaceFapNi
