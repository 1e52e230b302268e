// RemFfcModifierSm: keeps the exact-match key of the second forwarding stage in step with the IPv4 prefix lengths that
// the exact-match engine holds.
//
// The key is the destination's leading bits (DIP) and then the VRF, each copied by one instruction that the microcode
// loaded. For the prefix length in force the modifier rewrites both, and points the key's builder at the database with
// keys of that shape:
//
//    prefix   DIP bits   VRF at bit   database
//    32       32         32           hosts
//    24       24         24           hosts
//    21       21         21           reduced prefixes
//
// Where the fields are copied from is learned once, from the microcode's image; so a run is idempotent and every length
// can be left again.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "agent/FfcModifierSm.h"
#include "corvo/Watched.h"
#include "state/Routing.h"

namespace DaceFapNi {

class RemFfcModifierSm final : public Hardware::Dace::FfcModifierSm {
 public:
   using ChipType = Hardware::ChipType;
   using FapId = Hardware::Dace::FapId;
   using FfcInfoKey = Hardware::Dace::FfcInfoKey;
   using FfcInstructionHwLocation = Hardware::Dace::FfcInstructionHwLocation;
   using CellStatusPtr = Corvo::Ptr< Hardware::Dace::Cell::CellStatus const >;
   using PrefixLensPtr = Corvo::Ptr< Routing::Hardware::PrefixLensInExactMatch const >;

   static constexpr U8 ipv4IpLen = 32;
   static constexpr U8 ipv4UrpfPrefixLen = 24;
   static constexpr U8 ipv4PcremPrefixLen = 21;

   // Subscribes to the prefix lengths, and runs handleInitialized.
   RemFfcModifierSm( CellStatusPtr const & cellStatus, PrefixLensPtr const & mergedPrefixLensInExactMatchV4 );
   ~RemFfcModifierSm() override;
   // Makes a RemFfcModifierSm and activates it.
   static Corvo::Ptr< RemFfcModifierSm > RemFfcModifierSmIs( CellStatusPtr const & cellStatus,
                                                             PrefixLensPtr const & mergedPrefixLensInExactMatchV4 );
   // Idempotent. Subscribes to or unsubscribes from the prefix lengths.
   void hasNotificationActiveIs( bool active );
   void rexDoZombieReactors( bool zombie );

   U64 getFfcInstruction( ChipType chipType,
                          FfcInstructionHwLocation const & location,
                          int contextId,
                          FapId fapId ) const override;
   U16 getBaseFieldOffsetForHeader( U64 instruction, ChipType chipType ) const override;
   U8 getBaseKeyOffsetForHeader( U64 instruction, ChipType chipType ) const override;
   U16 getBaseFieldOffsetForLiterally( U64 instruction, ChipType chipType ) const override;
   U8 getBaseKeyOffsetForLiterally( U64 instruction, ChipType chipType ) const override;
   bool isFfcLiterally( ChipType chipType, U64 instruction ) const override;
   bool isFfcRelativeHeader( ChipType chipType, U64 instruction ) const override;
   bool isAppDbIdInteresting( ChipType chipType, int contextId, FapId fapId, int kbrArrayIdx ) const override;
   U64 getFfcBitMap( ChipType chipType, int contextId, FapId fapId, int kbrArrayIdx ) const override;
   // Only with the unified IPv4 context; otherwise the process ends: "toggleUnifiedIPv4Fwd2CtxEnabled()".
   int getFwd2Context( ChipType chipType ) const override;
   void writeFfcInstructionForStage( ChipType chipType, FfcInfoKey key ) override;

   // The prefix length in force: of those that matter, the one with the lowest key; 32 if there is none.
   U8 getPrefixLen() const;
   // The instruction words for a prefix length.
   U64 modifyInterestingFfcForDip( ChipType chipType, FfcInfoKey key, U32 prefixLen, FapId fapId ) const;
   U64 modifyInterestingFfcForVrf( ChipType chipType, FfcInfoKey key, U32 prefixLen, FapId fapId ) const;

   void handlePrefixLengthInExactMatch();

 private:
   void handleInitialized();
   void handleAppDbModification();
   void writeFfcInstruction( FapId fapId, ChipType chipType, int contextId, U64 instruction, U64 ffcIndex );
   static void
   mergedPrefixLensInExactMatchV4Dispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );

   Corvo::Watched< Routing::Hardware::PrefixLensInExactMatch const > mergedPrefixLensInExactMatchV4_;
};

// Makes a RemFfcModifierSm and activates it.
Corvo::Ptr< RemFfcModifierSm >
remFfcModifierSmFactory( RemFfcModifierSm::CellStatusPtr const & cellStatus,
                         RemFfcModifierSm::PrefixLensPtr const & mergedPrefixLensInExactMatchV4 );

// The width of a VRF in the keys of hosts and reduced prefixes, in bits. A chip type that has none ends the process:
// "0 && \"Invalid chipType\"".
U8 chipTypeToFapRevMajor( Hardware::ChipType chipType );

} // namespace DaceFapNi
