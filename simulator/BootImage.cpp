#include "simulator/BootImage.h"

#include "constants/Contexts.h"
#include "constants/MicrocodeActions.h"
#include "simulator/KeyProgram.h"
#include "simulator/Noise.h"
#include "simulator/TableMap.h"

#include <algorithm>
#include <iterator>

namespace Simulator {

namespace {

using DacePPExport::ctx_encap_1;
using DacePPExport::ctx_encap_2;
using Hardware::ChipType;
using Hardware::Dace::UcodeProfileType;

// Their entries are formats of what routes and groups put there.
constexpr std::string_view lookupMemories[] = {
   "Ipv4PcremFwdDestPcrem", "PpmcDoubleOutLifSwap", "PrivateHostReducedVrf" };

void set( BootRow const & row, std::string_view field, U64 value ) {
   if ( Catalogue::Field const * const found = row.layout.field( field ) ) {
      fieldBitsIs( row.words, *found, value );
   }
}

void flpacsAction( BootRow const & row ) {
   set( row,
        "flpacsAction",
        DacePPExport::IPPB_FLPACS_ACTION_ENTRY( UcodeProfileType::routing, row.chipType, 0, 0, row.entry ) );
}

void vtecsAction( BootRow const & row ) {
   set( row,
        "vtecsAction",
        DacePPExport::IPPA_VTECS_ACTION_ENTRY( UcodeProfileType::routing, row.chipType, 0, 0, row.entry ) );
}

// Two profiles have the trap code of an MTU failure that the agent's own map doesn't name.
void recycleProfiles( BootRow const & row ) {
   set( row, "recycFwdTrapCode2", 5 );
   set( row, "recycFwdTrapCode8", 5 );
}

// The rows of the second encapsulation's choice that lead to VXLAN bridging, with and without propagation of QoS, some
// for packets that the first stage left alone and some for others. The remaining rows lead elsewhere.
struct BridgingRow {
   U32 entry;
   ctx_encap_2 program;
   bool afterNop;
};
constexpr BridgingRow bridgingRows[] = {
   { 5, ctx_encap_2::vxlanBridge, true },
   { 6, ctx_encap_2::vxlanBridge, false },
   { 11, ctx_encap_2::vxlanIpv6Bridge, true },
   { 12, ctx_encap_2::vxlanIpv6Bridge, false },
   { 19, ctx_encap_2::vxlanBridgeQos, true },
   { 20, ctx_encap_2::vxlanBridgeQos, false },
   { 27, ctx_encap_2::vxlanIpv6BridgeQos, true },
   { 28, ctx_encap_2::vxlanIpv6BridgeQos, false },
   { 40, ctx_encap_2::vxlanBridge, true },
   { 41, ctx_encap_2::vxlanIpv6Bridge, true },
   { 67, ctx_encap_2::vxlanBridge, true },
};

void encapsulation2Row( BootRow const & row ) {
   constexpr ctx_encap_2 elsewhere[] = {
      ctx_encap_2::ethernet, ctx_encap_2::mplsPush, ctx_encap_2::vxlanRoute, ctx_encap_2::ethernet };
   constexpr ctx_encap_1 others[] = {
      ctx_encap_1::ethernet, ctx_encap_1::ipTunnel, ctx_encap_1::mplsPush, ctx_encap_1::vxlan };

   U64 const noise = row.noise.at( 0 );
   auto const bridging = std::ranges::find( bridgingRows, row.entry, &BridgingRow::entry );
   bool const isBridging = bridging != std::end( bridgingRows );
   bool const afterNop = isBridging ? bridging->afterNop : noise % 4 == 0;
   ctx_encap_2 const program = isBridging ? bridging->program : elsewhere[noise / 4 % 4];
   ctx_encap_1 const current = afterNop ? ctx_encap_1::nop : others[noise / 16 % 4];

   // A program is a context with the bit set that says so.
   set( row, "program", 2 * ctx_encap_2_value( row.chipType, program ) + 1 );
   set( row, "valid", 1 );
   set( row, "currentContext", ctx_encap_1_value( row.chipType, current ) );
   set( row, "currentContextMask", 0x3f );
   set( row, "currentContextProfile", afterNop ? 0 : 1 + noise / 64 % 63 ); // profile 0 is the one of the NOP context
   set( row, "currentContextProfileMask", 0x3f );
}

constexpr struct {
   std::string_view table;
   void ( *compose )( BootRow const & row );
} deliberate[] = {
   { "EtppcEncapsulation2ContextSelectionCam", encapsulation2Row },
   { "FwdFfcTable", KeyProgram::instructions },
   { "FwdKbrTable", KeyProgram::builder },
   { "IppaVtecsAction", vtecsAction },
   { "IppbFlpacsAction", flpacsAction },
   { "IppeRecycFwdProfileMapping", recycleProfiles },
};

// The bits of an entry that a field covers.
std::vector< U32 > fieldMask( Catalogue::Layout const & layout ) {
   std::vector< U32 > mask( layout.width );
   for ( Catalogue::Field const & field : layout.fields ) {
      for ( unsigned bit = field.offset; bit < unsigned{ field.offset } + field.width; ++bit ) {
         mask[bit / 32] |= U32{ 1 } << bit % 32;
      }
   }
   return mask;
}

void bootTable( Chip & chip,
                ChipType chipType,
                Catalogue::Table const & table,
                Catalogue::Layout const & layout,
                BootNoise bootNoise ) {
   U32 const flip = bootNoise == BootNoise::inverted ? ~U32{ 0 } : 0;
   auto const * const special = std::ranges::find( deliberate, table.name, []( auto const & it ) { return it.table; } );
   std::vector< U32 > const mask = fieldMask( layout );
   std::vector< U32 > words( layout.width );
   for ( U32 const array : arrayIndices( layout ) ) {
      for ( U32 entry = 0; entry < entryCount( layout ); ++entry ) {
         Noise const noise( table.name, { layout.chipType, layout.variant, array, entry } );
         for ( std::size_t word = 0; word < words.size(); ++word ) {
            words[word] = ( static_cast< U32 >( noise.at( 1 + word ) ) ^ flip ) & mask[word];
         }
         if ( special != std::end( deliberate ) ) {
            special->compose( BootRow{ layout, chipType, array, entry, noise, words } );
         }
         if ( std::ranges::all_of( words, []( U32 word ) { return word == 0; } ) ) {
            words[layout.fields[0].offset / 32] |= U32{ 1 } << layout.fields[0].offset % 32;
         }
         chip.fill( addressOf( layout, array, entry ), words );
      }
   }
}

} // namespace

void boot( Chip & chip, ChipType chipType, BootNoise bootNoise ) {
   for ( Catalogue::Table const & table : Catalogue::tables() ) {
      if ( !table.hasMemory || std::ranges::find( lookupMemories, table.name ) != std::end( lookupMemories ) ) {
         continue;
      }
      for ( Catalogue::Layout const & layout : table.layouts ) {
         if ( layout.chipType == static_cast< U8 >( chipType ) ) {
            bootTable( chip, chipType, table, layout, bootNoise );
         }
      }
   }
}

} // namespace Simulator
