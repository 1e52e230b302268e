// Contexts of the chip's pipeline: the programs between which a stage chooses, packet by packet.
//
//    using namespace DacePPExport;
//    if ( ctx_fwd2_exists( chipType, ctx_fwd2::mplsTwoLabels ) ) {
//       U32 const entry = ctx_fwd2_value( chipType, ctx_fwd2::mplsTwoLabels ); // entry of a table with one row a
//       context
//    }
//
// A context has one enumerator for all chips and a number of its own on each chip, below 64. A chip can lack a context.
//
// The numbers are the reference platform's own: plausible, different from chip to chip, with gaps. The true ones belong
// to a closed library. The numbers of the enumerators are fixed; their names were chosen here. `ctx_fwd1{ 36 }` is the
// context number 36.
#pragma once

#include "chip/ChipType.h"

#include <array>
#include <span>

namespace DacePPExport {

// The first forwarding stage.
enum class ctx_fwd1 : U8 {
   ethernet = 1,
   ethernetTunnelled = 2,
   trill = 7,
   ipv4Multicast = 14,
   ipv6Multicast = 15,
   srv6Endpoint = 20,
   ipv4Unicast = 36,
   ipv6Unicast = 37,
   ipv4UnicastUrpfLoose = 38,
   ipv4UnicastUrpfStrict = 39,
   ipv4Nat = 44,
   ipv4UnicastSvi = 50,
   ipv6UnicastSvi = 51,
   ipv4UrpfLooseSvi = 52,
   ipv4UrpfStrictSvi = 53,
   mplsLabel = 58,
   mplsLabelOrIp = 59,
   mplsTerminatedLabelOrIp = 60,
   mplsTerminatedLabel = 61,
};

// The second forwarding stage.
enum class ctx_fwd2 : U8 {
   ethernet = 3,
   bridgedTunnel = 9,
   ipv4Multicast = 12,
   ipv6Multicast = 13,
   ipv4Unified = 23,
   ipv6Unicast = 24,
   srv6Endpoint = 31,
   opaque = 40,
   mplsOneLabel = 45,
   mplsTwoLabels = 46,
   mplsOneLabelTerminated = 47,
};

// The first encapsulation stage.
enum class ctx_encap_1 : U8 {
   ethernet = 3,
   ipTunnel = 8,
   nop = 12,
   mplsPush = 17,
   vxlan = 26,
};

// The second encapsulation stage.
enum class ctx_encap_2 : U8 {
   ethernet = 5,
   mplsPush = 11,
   greTunnel = 16,
   vxlanBridge = 22,
   vxlanBridgeQos = 23,
   vxlanRoute = 30,
   vxlanIpv6BridgeQos = 37,
   vxlanIpv6Bridge = 38,
};

// Whether the chip has the context. False for a number that is no context and for an unknown chip.
bool ctx_fwd1_exists( Hardware::ChipType chipType, ctx_fwd1 context );
bool ctx_fwd2_exists( Hardware::ChipType chipType, ctx_fwd2 context );
bool ctx_encap_1_exists( Hardware::ChipType chipType, ctx_encap_1 context );
bool ctx_encap_2_exists( Hardware::ChipType chipType, ctx_encap_2 context );

// The chip's number of the context; 0, which is no context's number, where the chip has none.
U32 ctx_fwd1_value( Hardware::ChipType chipType, ctx_fwd1 context );
U32 ctx_fwd2_value( Hardware::ChipType chipType, ctx_fwd2 context );
U32 ctx_encap_1_value( Hardware::ChipType chipType, ctx_encap_1 context );
U32 ctx_encap_2_value( Hardware::ChipType chipType, ctx_encap_2 context );

// One row of the tables behind the functions above.
struct ContextRow {
   U8 enumerator;
   char const * name;
   // By chip, in the order of Hardware::allChipTypes; 0 where the chip lacks the context.
   std::array< U8, Hardware::allChipTypes.size() > value;
};

// Every context that the platform knows, by stage, in the order of the enumerators.
std::span< ContextRow const > ctx_fwd1_rows();
std::span< ContextRow const > ctx_fwd2_rows();
std::span< ContextRow const > ctx_encap_1_rows();
std::span< ContextRow const > ctx_encap_2_rows();

} // namespace DacePPExport
