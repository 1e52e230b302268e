#include "agent/FfcModifierSm.h"

#include "assert/Assert.h"
#include "rex/Trace.h"

#include <set>

namespace Hardware::Dace {

namespace {

Rex::TraceFacility const trace{ "FfcModifierSm" };

// The five memories, in the order of the instructions' numbers.
constexpr struct {
   int arrayElements;
   U32 toAnEntry; // instructions
} memories[] = {
   { 1, 2 },
   { 1, 4 },
   { 2, 4 },
   { 4, 4 },
   { 2, 4 },
};

int noContext( char const * operation ) {
   Rex::SassertHelper( "false" ) << operation << " is not of the modifier's stage";
   __builtin_unreachable();
}

} // namespace

Fwd12FfcInstructionLocation::Fwd12FfcInstructionLocation() {
   U64 ffcIndex = 0;
   U8 variant = 0;
   for ( auto const & memory : memories ) {
      for ( int arrayIndex = 0; arrayIndex < memory.arrayElements; ++arrayIndex ) {
         for ( U32 element = 0; element < memory.toAnEntry; ++element ) {
            location_[ffcIndex++] = { variant, arrayIndex, element };
         }
      }
      ++variant;
   }
}

FfcInstructionHwLocation Fwd12FfcInstructionLocation::location( U64 ffcIndex ) const {
   auto const found = location_.find( ffcIndex );
   return found == location_.end() ? FfcInstructionHwLocation{} : found->second;
}

FfcModifierSm::FfcModifierSm( Corvo::Ptr< Cell::CellStatus const > const & cellStatus, IngressStage stage )
   : cellStatus_( cellStatus ), stage_( stage ) {}

int FfcModifierSm::getVtt2Context( ChipType ) const {
   return noContext( "getVtt2Context" );
}

int FfcModifierSm::getVtt3Context( ChipType ) const {
   return noContext( "getVtt3Context" );
}

int FfcModifierSm::getFwd2Context( ChipType ) const {
   return noContext( "getFwd2Context" );
}

int FfcModifierSm::stageContext( ChipType chipType ) const {
   switch ( stage_ ) {
   case IngressStage::vtt2:
      return getVtt2Context( chipType );
   case IngressStage::vtt3:
      return getVtt3Context( chipType );
   case IngressStage::fwd2:
      break;
   }
   return getFwd2Context( chipType );
}

void FfcModifierSm::findInterestingInstructions() {
   Rex::sassert( location_ != nullptr, "fwd12FfcInstructionLocation" );
   for ( auto const & [fapId, fapStatus] : cellStatus_->fapStatus() ) {
      findInContext( *fapStatus, stageContext( fapStatus->revision().chipType() ) );
   }
}

void FfcModifierSm::findInContext( Cell::FapStatus const & fapStatus, int contextId ) {
   ChipType const chipType = fapStatus.revision().chipType();
   FapId const fapId = fapStatus.fapId();
   FfcInfoKey const key( fapId, static_cast< U8 >( contextId ) );
   auto const enter = [&]( char const * format, FfcMap & indices, FfcMap & offsets, U64 index, U16 from, U8 to ) {
      if ( indices.try_emplace( key, index ).second ) {
         offsets[key] = from;
         trace( 2,
                "FfcModifierSm::",
                "findInterestingInstructions",
                " fapId ",
                fapId,
                " contextId ",
                contextId,
                " ",
                format,
                " ffcIndex ",
                index,
                " ffcFieldOffset ",
                from,
                " ffcKeyOffset ",
                to );
      }
   };
   for ( int kbr = 0; kbr < Fwd12FfcInstructionLocation::keyBuilderCount; ++kbr ) {
      if ( !isAppDbIdInteresting( chipType, contextId, fapId, kbr ) ) {
         continue;
      }
      U64 const taking = getFfcBitMap( chipType, contextId, fapId, kbr );
      for ( auto const & [index, location] : location_->location() ) {
         if ( !( taking >> index & 1 ) ) {
            continue;
         }
         U64 const instruction = getFfcInstruction( chipType, location, contextId, fapId );
         if ( isFfcRelativeHeader( chipType, instruction ) ) {
            enter( "relative header",
                   ffcIndexRhFfc_,
                   ffcBaseFieldOffsetRhFfc_,
                   index,
                   getBaseFieldOffsetForHeader( instruction, chipType ),
                   getBaseKeyOffsetForHeader( instruction, chipType ) );
         } else if ( isFfcLiterally( chipType, instruction ) ) {
            enter( "literally",
                   ffcIndexLitFfc_,
                   ffcBaseFieldOffsetLitFfc_,
                   index,
                   getBaseFieldOffsetForLiterally( instruction, chipType ),
                   getBaseKeyOffsetForLiterally( instruction, chipType ) );
         }
      }
   }
}

void FfcModifierSm::handleFfcModification() {
   // FAP by FAP: a key as a number has the context on top.
   std::set< std::pair< FapId, FfcInfoKey > > keys;
   for ( auto const * map : { &ffcIndexRhFfc_, &ffcIndexLitFfc_ } ) {
      for ( auto const & [key, index] : *map ) {
         keys.emplace( key.fapId(), key );
      }
   }
   for ( auto const & [fapId, key] : keys ) {
      if ( auto const fapStatus = cellStatus_->fapStatus( fapId ) ) {
         writeFfcInstructionForStage( fapStatus->revision().chipType(), key );
      }
   }
}

} // namespace Hardware::Dace
