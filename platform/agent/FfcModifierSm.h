// FfcModifierSm: the frame for machines that rewrite the key programs of a forwarding stage.
//
// A stage builds its lookup keys from field-copy instructions (FFCs), which the microcode loads. A context has 38 of
// them, numbered through five memories (2, 4, 8, 16 and 8 instructions). For each key that a context can build there is
// a key builder: a bit for each instruction that takes part, and the database (appDb) that the key is looked up in.
//
// A derived machine says, through the virtual operations, how to read the memories and the builders of its chip, which
// databases it is interested in, and what an instruction looks like. The frame finds the instructions of interest,
// once, and has them rewritten whenever the derived machine says so:
//
//    MyModifierSm::MyModifierSm( cellStatus ) : FfcModifierSm( cellStatus, IngressStage::fwd2 ) {
//       fwd12FfcInstructionLocationIs( Corvo::makePtr< Fwd12FfcInstructionLocation >() );
//       findInterestingInstructions();
//       handleFfcModification();                     // calls writeFfcInstructionForStage
//    }
//
// Threading: the agent's scheduler thread.
#pragma once

#include "state/CellStatus.h"

#include <map>

namespace Hardware::Dace {

// A stage whose contexts a modifier works on. The names were chosen here.
enum class IngressStage : U8 { fwd2 = 1, vtt2 = 2, vtt3 = 3 };

// Where an instruction stands in the chip: the memory, the element of its array, and the place in the entry. The entry
// is the context.
struct FfcInstructionHwLocation {
   U8 variant = 0;
   int arrayIndex = 0;
   U32 element = 0;
   friend bool operator==( FfcInstructionHwLocation const &, FfcInstructionHwLocation const & ) = default;
};

// The places of the 38 instructions of a context, by instruction number.
class Fwd12FfcInstructionLocation : public Corvo::Node {
 public:
   static constexpr U32 instructionCount = 38;
   static constexpr int keyBuilderCount = 18; // elements of the builders' array

   Fwd12FfcInstructionLocation();

   std::map< U64, FfcInstructionHwLocation > const & location() const { return location_; }
   // The place of an instruction; the first of all places for a number that is none.
   FfcInstructionHwLocation location( U64 ffcIndex ) const;

 private:
   std::map< U64, FfcInstructionHwLocation > location_;
};

// A context of a FAP, in 32 bits: the FAP in bits 0 to 15, the context in bits 24 to 31. The bits between are 0.
class FfcInfoKey {
 public:
   constexpr FfcInfoKey( FapId fapId, U8 contextId ) : value_( U32{ contextId } << 24 | fapId.value() ) {}

   constexpr FapId fapId() const { return FapId( static_cast< U16 >( value_ ) ); }
   constexpr U8 contextId() const { return static_cast< U8 >( value_ >> 24 ); }
   constexpr U32 value() const { return value_; }

   friend constexpr auto operator<=>( FfcInfoKey, FfcInfoKey ) = default;

 private:
   U32 value_;
};

class FfcModifierSm : public Corvo::Node {
 public:
   FfcModifierSm( Corvo::Ptr< Cell::CellStatus const > const & cellStatus, IngressStage stage );

   // The instruction at a place, of a context.
   virtual U64 getFfcInstruction( ChipType chipType,
                                  FfcInstructionHwLocation const & location,
                                  int contextId,
                                  FapId fapId ) const = 0;
   // From which bit of the headers (of the stage's registers) an instruction copies, and to which bit of the key.
   virtual U16 getBaseFieldOffsetForHeader( U64 instruction, ChipType chipType ) const = 0;
   virtual U8 getBaseKeyOffsetForHeader( U64 instruction, ChipType chipType ) const = 0;
   virtual U16 getBaseFieldOffsetForLiterally( U64 instruction, ChipType chipType ) const = 0;
   virtual U8 getBaseKeyOffsetForLiterally( U64 instruction, ChipType chipType ) const = 0;
   // The format of an instruction. Most are neither.
   virtual bool isFfcLiterally( ChipType chipType, U64 instruction ) const = 0;
   virtual bool isFfcRelativeHeader( ChipType chipType, U64 instruction ) const = 0;
   // Whether a key of the context is looked up in a database that matters.
   virtual bool isAppDbIdInteresting( ChipType chipType, int contextId, FapId fapId, int kbrArrayIdx ) const = 0;
   // The instructions that take part in a key, a bit for each.
   virtual U64 getFfcBitMap( ChipType chipType, int contextId, FapId fapId, int kbrArrayIdx ) const = 0;
   // The context of the stage that matters, as the chip counts it. A machine overrides that of its own stage; the
   // others end the process by assertion.
   virtual int getVtt2Context( ChipType chipType ) const;
   virtual int getVtt3Context( ChipType chipType ) const;
   virtual int getFwd2Context( ChipType chipType ) const;
   // Rewrites the instructions that were found in a context.
   virtual void writeFfcInstructionForStage( ChipType chipType, FfcInfoKey key ) = 0;

 protected:
   // What was found: the number of the instruction, and the bit that it copies from, by context.
   using FfcMap = std::map< FfcInfoKey, U64 >;

   Corvo::Ptr< Cell::CellStatus const > const & cellStatus() const { return cellStatus_; }
   Corvo::Ptr< Fwd12FfcInstructionLocation const > const & fwd12FfcInstructionLocation() const { return location_; }
   void fwd12FfcInstructionLocationIs( Corvo::Ptr< Fwd12FfcInstructionLocation const > const & location ) {
      location_ = location;
   }
   FfcMap const & ffcIndexRhFfc() const { return ffcIndexRhFfc_; }
   FfcMap const & ffcBaseFieldOffsetRhFfc() const { return ffcBaseFieldOffsetRhFfc_; }
   FfcMap const & ffcIndexLitFfc() const { return ffcIndexLitFfc_; }
   FfcMap const & ffcBaseFieldOffsetLitFfc() const { return ffcBaseFieldOffsetLitFfc_; }

   // Looks at the stage's context on every FAP: at the keys whose database matters, and there at the instructions that
   // take part. The first relative-header instruction and the first literal one of a context are entered in the maps;
   // what the maps hold already stays. Requires the locations: assertion text "fwd12FfcInstructionLocation".
   void findInterestingInstructions();
   // Calls writeFfcInstructionForStage once for each context in which something was found, in the order of the keys.
   void handleFfcModification();

 private:
   int stageContext( ChipType chipType ) const;
   void findInContext( Cell::FapStatus const & fapStatus, int contextId );

   Corvo::Ptr< Cell::CellStatus const > const cellStatus_;
   IngressStage const stage_;
   Corvo::Ptr< Fwd12FfcInstructionLocation const > location_;
   FfcMap ffcIndexRhFfc_;
   FfcMap ffcBaseFieldOffsetRhFfc_;
   FfcMap ffcIndexLitFfc_;
   FfcMap ffcBaseFieldOffsetLitFfc_;
};

} // namespace Hardware::Dace
