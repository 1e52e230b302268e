#include "RemFfcModifierSm.h"

#include "Programming.h"
#include "Toggles.h"
#include "constants/Contexts.h"
#include "rex/Trace.h"

#include <cstring>

namespace DaceFapNi {

namespace {

using Hardware::FfcInstruction;

Rex::TraceFacility const trace{ "DaceFapNiRemFfcModifierSm" };
Rex::DualTrace const dualTrace{ trace };

constexpr short prefixLenAttribute = 0x102;

// Formats of an instruction.
constexpr U8 literally = 2;
constexpr U8 relativeHeader = 3;

// Where an instruction that copies all 32 bits of the IPv4 destination begins. A copy of the leading N bits begins
// 32 - N further on.
constexpr U16 destinationOffset = 992;

// The key of the exact-match lookup, of those that the context builds.
constexpr int exactMatchKey = 6;

constexpr U8 urpfVrfFieldSize = 12; // as the field has it: bits less one

// An instruction word over a buffer of its own, to be read or to be put together.
class Instruction {
 public:
   Instruction( Hardware::ChipType chipType, U8 format ) : ffc_( chipType, buf_, sizeof buf_, false, format ) {}
   Instruction( Hardware::ChipType chipType, U8 format, U64 word )
      : ffc_( chipType, filled( word ), sizeof buf_, true, format ) {}

   FfcInstruction * operator->() { return &ffc_; }
   U64 word() const {
      U64 word = 0;
      std::memcpy( &word, buf_, sizeof buf_ );
      return word;
   }
   static bool is( Hardware::ChipType chipType, U8 format, U64 word ) {
      U8 buf[sizeof buf_];
      std::memcpy( buf, &word, sizeof buf );
      return FfcInstruction::isFfcInstruction( chipType, buf, sizeof buf, format );
   }

 private:
   U8 * filled( U64 word ) {
      std::memcpy( buf_, &word, sizeof buf_ );
      return buf_;
   }

   alignas( 8 ) U8 buf_[8] = {};
   FfcInstruction ffc_;
};

// The database whose entries have the shape of an accessor. The accessor knows it; no entry is read or written.
template< class Entry >
U8 databaseOf( Hardware::ChipType chipType ) {
   alignas( 8 ) U8 buf[40] = {};
   return static_cast< U8 >( Entry( chipType, buf, sizeof buf, false, 0 ).tid() );
}
U8 reducedPrefixDatabase( Hardware::ChipType chipType ) {
   return databaseOf< Hardware::Ipv4PcremFwdDestPcrem >( chipType );
}
U8 hostDatabase( Hardware::ChipType chipType ) {
   return databaseOf< Hardware::PrivateHostReducedVrf >( chipType );
}

U64 valueOf( std::map< Hardware::Dace::FfcInfoKey, U64 > const & map, Hardware::Dace::FfcInfoKey key ) {
   auto const found = map.find( key );
   return found == map.end() ? 0 : found->second;
}

} // namespace

U8 chipTypeToFapRevMajor( Hardware::ChipType chipType ) {
   U8 const number = static_cast< U8 >( chipType );
   if ( number == 15 || number == 16 ) {
      return 4;
   }
   if ( number == 20 ) {
      toggleJ3AiBringupEnabled(); // the chip has the same width in both states
   }
   Rex::sassert( ( number >= 1 && number <= 20 ) || number == 24 || number == 25, "0 && \"Invalid chipType\"" );
   return 5;
}

RemFfcModifierSm::RemFfcModifierSm( CellStatusPtr const & cellStatus,
                                    PrefixLensPtr const & mergedPrefixLensInExactMatchV4 )
   : FfcModifierSm( cellStatus, Hardware::Dace::IngressStage::fwd2 ),
     mergedPrefixLensInExactMatchV4_( mergedPrefixLensInExactMatchV4 ) {
   mergedPrefixLensInExactMatchV4_.subscribe( mergedPrefixLensInExactMatchV4Dispatch, this );
   handleInitialized();
}

RemFfcModifierSm::~RemFfcModifierSm() {
   hasNotificationActiveIs( false );
   rexDoZombieReactors( true );
   mergedPrefixLensInExactMatchV4_.unsubscribe();
}

Corvo::Ptr< RemFfcModifierSm >
RemFfcModifierSm::RemFfcModifierSmIs( CellStatusPtr const & cellStatus,
                                      PrefixLensPtr const & mergedPrefixLensInExactMatchV4 ) {
   auto const sm = Corvo::makePtr< RemFfcModifierSm >( cellStatus, mergedPrefixLensInExactMatchV4 );
   sm->hasNotificationActiveIs( true );
   return sm;
}

Corvo::Ptr< RemFfcModifierSm >
remFfcModifierSmFactory( CellStatusPtr const & cellStatus,
                         RemFfcModifierSm::PrefixLensPtr const & mergedPrefixLensInExactMatchV4 ) {
   return RemFfcModifierSm::RemFfcModifierSmIs( cellStatus, mergedPrefixLensInExactMatchV4 );
}

void RemFfcModifierSm::rexDoZombieReactors( bool zombie ) {
   markAndSweepFlagSet( zombie );
}

void RemFfcModifierSm::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() != active ) {
      nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
      mergedPrefixLensInExactMatchV4_.activeIs( active, mergedPrefixLensInExactMatchV4Dispatch, this );
   }
}

void RemFfcModifierSm::mergedPrefixLensInExactMatchV4Dispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const *, void const * ) {
   Corvo::Ptr< RemFfcModifierSm > const self = slot->owner< RemFfcModifierSm >();
   if ( attribute == prefixLenAttribute && !self->isZombie() ) {
      self->handlePrefixLengthInExactMatch();
   }
}

void RemFfcModifierSm::handleInitialized() {
   trace( 2, "RemFfcModifierSm::", "handleInitialized" );
   fwd12FfcInstructionLocationIs( Corvo::makePtr< Hardware::Dace::Fwd12FfcInstructionLocation const >() );
   findInterestingInstructions();
   handlePrefixLengthInExactMatch();
}

void RemFfcModifierSm::handlePrefixLengthInExactMatch() {
   trace( 2, "RemFfcModifierSm::", "handlePrefixLengthInExactMatch" );
   handleFfcModification();
   handleAppDbModification();
}

U8 RemFfcModifierSm::getPrefixLen() const {
   for ( auto const & [key, prefixLen] : mergedPrefixLensInExactMatchV4_->prefixLen() ) {
      trace( 2, "RemFfcModifierSm::", "getPrefixLen", " mergedPrefixLensInExactMatchV4 ", prefixLen );
      if ( prefixLen == ipv4UrpfPrefixLen ) {
         return ipv4UrpfPrefixLen;
      }
      if ( toggleUnifiedIPv4Fwd2CtxEnabled() && prefixLen == ipv4PcremPrefixLen ) {
         return ipv4PcremPrefixLen;
      }
   }
   return ipv4IpLen;
}

U64 RemFfcModifierSm::getFfcInstruction( ChipType chipType,
                                         FfcInstructionHwLocation const & location,
                                         int contextId,
                                         FapId fapId ) const {
   Fap const fap( fapId, chipType );
   auto ffc = accessor< Hardware::FwdFfcTable >( fap, location.variant );
   readAny( ffc, fap, { .array = location.arrayIndex, .entry = contextId } );
   return ffc.ffcInstruction( location.element );
}

U16 RemFfcModifierSm::getBaseFieldOffsetForHeader( U64, ChipType ) const {
   return destinationOffset; // of the whole address, however much of it the instruction copies
}

U8 RemFfcModifierSm::getBaseKeyOffsetForHeader( U64 instruction, ChipType chipType ) const {
   return Instruction( chipType, relativeHeader, instruction )->ffcKeyOffset();
}

U16 RemFfcModifierSm::getBaseFieldOffsetForLiterally( U64 instruction, ChipType chipType ) const {
   return Instruction( chipType, literally, instruction )->ffcFieldOffset();
}

U8 RemFfcModifierSm::getBaseKeyOffsetForLiterally( U64 instruction, ChipType chipType ) const {
   return Instruction( chipType, literally, instruction )->ffcKeyOffset();
}

bool RemFfcModifierSm::isFfcLiterally( ChipType chipType, U64 instruction ) const {
   return Instruction::is( chipType, literally, instruction );
}

bool RemFfcModifierSm::isFfcRelativeHeader( ChipType chipType, U64 instruction ) const {
   return Instruction::is( chipType, relativeHeader, instruction );
}

bool RemFfcModifierSm::isAppDbIdInteresting( ChipType chipType, int contextId, FapId fapId, int kbrArrayIdx ) const {
   Fap const fap( fapId, chipType );
   auto builder = accessor< Hardware::FwdKbrTable >( fap );
   readAny( builder, fap, { .array = kbrArrayIdx, .entry = contextId } );
   U8 const expected = toggleUnifiedIPv4Fwd2CtxEnabled() ? reducedPrefixDatabase( chipType ) : hostDatabase( chipType );
   dualTrace( 9,
              "RemFfcModifierSm::",
              "isAppDbIdInteresting",
              " fapId ",
              fapId,
              " chipType ",
              chipType,
              " context ",
              contextId,
              " ISEM appDb ",
              builder.appDb(),
              ", Expected ISEM appDb ",
              expected );
   return builder.appDb() == expected;
}

U64 RemFfcModifierSm::getFfcBitMap( ChipType chipType, int contextId, FapId fapId, int kbrArrayIdx ) const {
   trace( 0,
          "RemFfcModifierSm::",
          "getFfcBitMap",
          " contextId ",
          contextId,
          " fapId ",
          fapId,
          " kbrArrayIdx ",
          kbrArrayIdx );
   Fap const fap( fapId, chipType );
   auto builder = accessor< Hardware::FwdKbrTable >( fap );
   readAny( builder, fap, { .array = kbrArrayIdx, .entry = contextId } );
   return builder.kbr();
}

int RemFfcModifierSm::getFwd2Context( ChipType chipType ) const {
   Rex::sassert( toggleUnifiedIPv4Fwd2CtxEnabled(), "toggleUnifiedIPv4Fwd2CtxEnabled()" );
   return static_cast< int >( DacePPExport::ctx_fwd2_value( chipType, DacePPExport::ctx_fwd2::ipv4Unified ) );
}

// The leading bits of the destination, at the bottom of the key.
U64 RemFfcModifierSm::modifyInterestingFfcForDip( ChipType chipType,
                                                  FfcInfoKey key,
                                                  U32 prefixLen,
                                                  FapId fapId ) const {
   Instruction dip( chipType, relativeHeader );
   dip->ffcKeyOffsetIs( 0 );
   dip->ffcFieldSizeIs( static_cast< U8 >( prefixLen - 1 ) );
   dip->ffcFieldOffsetIs( static_cast< U16 >( valueOf( ffcBaseFieldOffsetRhFfc(), key ) - prefixLen + ipv4IpLen ) );
   dip->ffcIndexIs( 0 );
   trace( 2,
          "RemFfcModifierSm::",
          "modifyInterestingFfcForDip",
          " fapId ",
          fapId,
          " writing ffcIndex: ",
          dip->ffcIndex(),
          " ffcFieldSize: ",
          dip->ffcFieldSize(),
          " ffcKeyOffset: ",
          dip->ffcKeyOffset(),
          " ffcFieldOffset: ",
          dip->ffcFieldOffset() );
   return dip.word();
}

// The VRF, above the destination.
U64 RemFfcModifierSm::modifyInterestingFfcForVrf( ChipType chipType,
                                                  FfcInfoKey key,
                                                  U32 prefixLen,
                                                  FapId fapId ) const {
   Instruction vrf( chipType, literally );
   vrf->ffcKeyOffsetIs( static_cast< U8 >( prefixLen ) );
   vrf->ffcFieldSizeIs( prefixLen == ipv4UrpfPrefixLen ? urpfVrfFieldSize
                                                       : static_cast< U8 >( chipTypeToFapRevMajor( chipType ) - 1 ) );
   vrf->ffcFieldOffsetIs( static_cast< U16 >( valueOf( ffcBaseFieldOffsetLitFfc(), key ) ) );
   trace( 2,
          "RemFfcModifierSm::",
          "modifyInterestingFfcForVrf",
          " fapId ",
          fapId,
          " ffcFieldSize: ",
          vrf->ffcFieldSize(),
          " ffcKeyOffset: ",
          vrf->ffcKeyOffset(),
          " ffcFieldOffset: ",
          vrf->ffcFieldOffset() );
   return vrf.word();
}

void RemFfcModifierSm::writeFfcInstructionForStage( ChipType chipType, FfcInfoKey key ) {
   U8 const prefixLen = getPrefixLen();
   int const contextId = key.contextId();
   FapId const fapId = key.fapId();
   trace( 2,
          "RemFfcModifierSm::",
          "writeFfcInstructionForStage",
          " fapId ",
          fapId,
          " chipType ",
          chipType,
          " prefixLen ",
          prefixLen,
          " contextId ",
          contextId );
   U64 const dip = modifyInterestingFfcForDip( chipType, key, prefixLen, fapId );
   U64 const vrf = modifyInterestingFfcForVrf( chipType, key, prefixLen, fapId );
   trace( 2,
          "RemFfcModifierSm::",
          "writeFfcInstructionForStage",
          " ffcInstructionBufForDip ",
          dip,
          " ffcInstructionBufForVrf ",
          vrf );
   writeFfcInstruction( fapId, chipType, contextId, dip, valueOf( ffcIndexRhFfc(), key ) );
   writeFfcInstruction( fapId, chipType, contextId, vrf, valueOf( ffcIndexLitFfc(), key ) );
}

void RemFfcModifierSm::writeFfcInstruction(
   FapId fapId, ChipType chipType, int contextId, U64 instruction, U64 ffcIndex ) {
   trace( 2, "RemFfcModifierSm::", "writeFfcInstruction", " fapId ", fapId, " ffcIndex ", ffcIndex );
   auto const at = fwd12FfcInstructionLocation()->location( ffcIndex );
   modify< Hardware::FwdFfcTable >(
      Fap( fapId, chipType ), { .variant = at.variant, .array = at.arrayIndex, .entry = contextId }, [&]( auto & ffc ) {
         ffc.ffcInstructionIs( at.element, static_cast< U32 >( instruction ) );
      } );
}

void RemFfcModifierSm::handleAppDbModification() {
   U8 const prefixLen = getPrefixLen();
   trace( 2, "RemFfcModifierSm::", "handleAppDbModification", " prefixLen ", prefixLen );
   forEachFap( cellStatus(), [&]( Fap const & fap, auto const & ) {
      int const context = getFwd2Context( fap.chipType );
      modify< Hardware::FwdKbrTable >( fap, { .array = exactMatchKey, .entry = context }, [&]( auto & builder ) {
         trace( 2, "RemFfcModifierSm::", "handleAppDbModification", " fapId ", fap.id, " chipType ", fap.chipType );
         builder.appDbIs( prefixLen == ipv4PcremPrefixLen ? reducedPrefixDatabase( fap.chipType )
                                                          : hostDatabase( fap.chipType ) );
      } );
   } );
}

} // namespace DaceFapNi
