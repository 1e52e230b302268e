// EVPN and VXLAN: context-selection flags and orientations of the in-LIF profiles that follow the EVPN and VXLAN
// status.
//
// An in-LIF profile has four flag bits, by which the VTT stages choose their context, and an orientation. The handlers
// change single bits and entries of what the static programming wrote.
#include "L3Sm.h"
#include "SharedFunctions.h"
#include "rex/Gate.h"
#include "rex/Trace.h"

#include <span>

namespace DaceFapNi {

namespace {

Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };

// In-LIF profiles whose flag says that EVPN runs over VXLAN.
constexpr U8 vxlanProfiles[] = { 72, 73, 74, 75, 76, 77, 78, 79, 64, 68, 69, 70 };
constexpr U8 vxlanFlag = 1;

// In-LIF profiles with fixed flags, whatever runs.
constexpr U8 fixedProfiles[] = { 29, 35, 33 };
constexpr U8 fixedFlags = 3;
constexpr U8 fixedMask = 7; // the fourth flag is somebody else's

// In-LIF profiles whose flag says that every VXLAN packet is decapsulated and routed.
constexpr U8 decapProfiles[] = { 68, 66, 64, 65 };
constexpr U8 decapFlag = 2;

// In-LIF profiles on the network's side of a DCI gateway, and one on the side of the data centre.
constexpr int firstCoreProfile = 72;
constexpr int lastCoreProfile = 79;
constexpr int gatewayProfile = 31;
constexpr U8 coreOrientation[] = { 6, 4 };    // by whether this is a DCI gateway
constexpr U8 gatewayOrientation[] = { 1, 7 }; // likewise

constexpr U8 flagsVariant = 1; // the flags of the forwarding VTT stages

// Gives the masked flags of some profiles a value, one profile after the other.
void changeFlags( Fap const & fap,
                  int element,
                  std::span< U8 const > profiles,
                  U8 mask,
                  U8 flags,
                  std::source_location origin = std::source_location::current() ) {
   for ( U8 const profile : profiles ) {
      modify< Hardware::InLifProfileCsFlagsLsb >(
         fap,
         { .variant = flagsVariant, .array = element },
         [&]( auto & cs ) {
            cs.csProfileIs( profile, static_cast< U8 >( ( cs.csProfile( profile ) & ~mask ) | flags ) );
         },
         origin );
   }
}

// Gives a profile its orientation, in the ingress and the egress map.
void changeOrientation( Fap const & fap,
                        int profile,
                        U8 orientation,
                        std::source_location origin = std::source_location::current() ) {
   Place const place{ .entry = profile };
   auto ingress = accessor< Hardware::ErppInlifOrientationMap >( fap );
   auto egress = accessor< Hardware::EtppInlifOrientationMap >( fap );
   readAny( ingress, fap, place, origin );
   readAny( egress, fap, place, origin );
   ingress.inlifOrientationIs( orientation );
   egress.inlifOrientationMappingIs( orientation );
   writeAll( ingress, fap, place, origin );
   writeAll( egress, fap, place, origin );
}

} // namespace

void L3Sm::handleEvpnEncapType() {
   if ( !Rex::gate( initialized_, notInitialized ) ) {
      return;
   }
   bool const vxlanEnabled = in_.evpnStatus->vxlanEnabled();
   trace( 8,
          "L3Sm::",
          "handleEvpnEncapType",
          " vxlanEnabled ",
          vxlanEnabled,
          " mplsEnabled ",
          in_.evpnStatus->mplsEnabled() );
   forEachFap( in_.cellStatus, [&]( Fap const & fap, auto const & status ) {
      for ( int const element : csArraysOfVariant1( status.revision() ) ) {
         changeFlags( fap, element, vxlanProfiles, vxlanFlag, vxlanEnabled ? vxlanFlag : 0 );
         changeFlags( fap, element, fixedProfiles, fixedMask, fixedFlags );
      }
   } );
}

void L3Sm::handleDecapRouteAll() {
   bool const decapRouteAll = in_.vtiStatusDir->decapRouteAll();
   trace( 8, "L3Sm::", "handleDecapRouteAll", " initialized: ", initialized_, " decapRouteAll: ", decapRouteAll );
   if ( !Rex::gate( initialized_, notInitialized ) ) {
      return;
   }
   forEachFap( in_.cellStatus, [&]( Fap const & fap, auto const & status ) {
      for ( int const element : csArraysOfVariant1( status.revision() ) ) {
         changeFlags( fap, element, decapProfiles, decapFlag, decapRouteAll ? decapFlag : 0 );
      }
   } );
}

// All FAPs are told of the network's side before the first one hears of the gateway's own.
void L3Sm::handleEvpnDciGateway() {
   bool const evpnDciEnabled = in_.evpnStatus->evpnDciEnabled();
   trace( 8, "L3Sm::", "handleEvpnDciGateway", " initialized: ", initialized_, " evpnDciEnabled: ", evpnDciEnabled );
   if ( !Rex::gate( initialized_, notInitialized ) ) {
      return;
   }
   forEachFap( in_.cellStatus, [&]( Fap const & fap, auto const & ) {
      for ( int profile = firstCoreProfile; profile <= lastCoreProfile; ++profile ) {
         changeOrientation( fap, profile, coreOrientation[evpnDciEnabled] );
      }
   } );
   forEachFap( in_.cellStatus, [&]( Fap const & fap, auto const & ) {
      changeOrientation( fap, gatewayProfile, gatewayOrientation[evpnDciEnabled] );
   } );
}

} // namespace DaceFapNi
