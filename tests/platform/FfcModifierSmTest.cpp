#include "agent/FfcModifierSm.h"

#include <gtest/gtest.h>

using namespace Hardware::Dace;
using Hardware::ChipType;

namespace {

// A stage whose builders and instructions are in the test's hands. An instruction is its format and its two offsets.
class Modifier : public FfcModifierSm {
 public:
   enum Format { neither, literal, header };
   struct Instruction {
      Format format;
      U16 from;
      U8 to;
   };

   explicit Modifier( Corvo::Ptr< Cell::CellStatus const > const & cell, IngressStage stage = IngressStage::fwd2 )
      : FfcModifierSm( cell, stage ) {
      fwd12FfcInstructionLocationIs( Corvo::makePtr< Fwd12FfcInstructionLocation >() );
   }

   U64 getFfcInstruction( ChipType, FfcInstructionHwLocation const & at, int contextId, FapId fapId ) const override {
      read.push_back( at );
      EXPECT_EQ( contextId, context );
      EXPECT_TRUE( fapId == FapId( 2 ) || fapId == FapId( 7 ) );
      for ( auto const & [index, location] : fwd12FfcInstructionLocation()->location() ) {
         if ( location == at ) {
            return index;
         }
      }
      return ~U64{ 0 };
   }
   U16 getBaseFieldOffsetForHeader( U64 index, ChipType ) const override { return instructions.at( index ).from; }
   U8 getBaseKeyOffsetForHeader( U64 index, ChipType ) const override { return instructions.at( index ).to; }
   U16 getBaseFieldOffsetForLiterally( U64 index, ChipType ) const override { return instructions.at( index ).from; }
   U8 getBaseKeyOffsetForLiterally( U64 index, ChipType ) const override { return instructions.at( index ).to; }
   bool isFfcLiterally( ChipType, U64 index ) const override { return format( index ) == literal; }
   bool isFfcRelativeHeader( ChipType, U64 index ) const override { return format( index ) == header; }
   bool isAppDbIdInteresting( ChipType, int, FapId, int kbr ) const override {
      looked.push_back( kbr );
      return builders.contains( kbr );
   }
   U64 getFfcBitMap( ChipType, int, FapId, int kbr ) const override { return builders.at( kbr ); }
   int getFwd2Context( ChipType ) const override { return context; }
   void writeFfcInstructionForStage( ChipType chipType, FfcInfoKey key ) override {
      written.push_back( { chipType, key } );
   }

   Format format( U64 index ) const {
      return instructions.contains( index ) ? instructions.at( index ).format : neither;
   }

   using FfcModifierSm::ffcBaseFieldOffsetLitFfc;
   using FfcModifierSm::ffcBaseFieldOffsetRhFfc;
   using FfcModifierSm::ffcIndexLitFfc;
   using FfcModifierSm::ffcIndexRhFfc;
   using FfcModifierSm::findInterestingInstructions;
   using FfcModifierSm::fwd12FfcInstructionLocationIs;
   using FfcModifierSm::handleFfcModification;

   int context = 33;
   std::map< U64, Instruction > instructions;
   std::map< int, U64 > builders; // the interesting ones
   mutable std::vector< int > looked;
   mutable std::vector< FfcInstructionHwLocation > read;
   std::vector< std::pair< ChipType, FfcInfoKey > > written;
};

Corvo::Ptr< Cell::CellStatus > cellOf( std::vector< U16 > const & faps ) {
   auto const cell = Corvo::makePtr< Cell::CellStatus >();
   for ( U16 const id : faps ) {
      auto const fap = Corvo::makePtr< Cell::FapStatus >( FapId( id ) );
      fap->revisionIs( { 5, id == 2 ? ChipType::BCM88690_B0 : ChipType::BCM88480_A0, 7 } );
      cell->fapStatusIs( fap );
   }
   return cell;
}

using Map = std::map< FfcInfoKey, U64 >;

TEST( FfcModifierSm, hasThirtyEightInstructionsInFiveMemories ) {
   Fwd12FfcInstructionLocation const places;
   ASSERT_EQ( places.location().size(), 38u );
   struct {
      U64 index;
      FfcInstructionHwLocation place;
   } const rows[] = {
      { 0, { 0, 0, 0 } },
      { 1, { 0, 0, 1 } },
      { 2, { 1, 0, 0 } },
      { 5, { 1, 0, 3 } },
      { 6, { 2, 0, 0 } },
      { 10, { 2, 1, 0 } },
      { 13, { 2, 1, 3 } },
      { 14, { 3, 0, 0 } },
      { 18, { 3, 1, 0 } },
      { 25, { 3, 2, 3 } },
      { 29, { 3, 3, 3 } },
      { 30, { 4, 0, 0 } },
      { 33, { 4, 0, 3 } },
      { 37, { 4, 1, 3 } },
   };
   for ( auto const & row : rows ) {
      EXPECT_EQ( places.location( row.index ), row.place ) << row.index;
   }
   EXPECT_EQ( places.location( 38 ), ( FfcInstructionHwLocation{ 0, 0, 0 } ) );
}

TEST( FfcModifierSm, aKeyHoldsFapAndContext ) {
   FfcInfoKey const key( FapId( 0x1234 ), 0xab );
   EXPECT_EQ( key.value(), 0xab001234u );
   EXPECT_EQ( key.fapId(), FapId( 0x1234 ) );
   EXPECT_EQ( key.contextId(), 0xab );
}

TEST( FfcModifierSm, findsTheInstructionsThatTakePartInAnInterestingKey ) {
   Modifier modifier( cellOf( { 2 } ) );
   modifier.instructions = { { 3, { Modifier::header, 100, 1 } }, // takes no part
                             { 16, { Modifier::header, 992, 0 } },
                             { 20, { Modifier::neither, 0, 0 } },
                             { 31, { Modifier::literal, 1448, 32 } } };
   modifier.builders = { { 6, U64{ 1 } << 16 | U64{ 1 } << 20 | U64{ 1 } << 31 } };
   modifier.findInterestingInstructions();
   FfcInfoKey const key( FapId( 2 ), 33 );
   EXPECT_EQ( modifier.ffcIndexRhFfc(), ( Map{ { key, 16 } } ) );
   EXPECT_EQ( modifier.ffcBaseFieldOffsetRhFfc(), ( Map{ { key, 992 } } ) );
   EXPECT_EQ( modifier.ffcIndexLitFfc(), ( Map{ { key, 31 } } ) );
   EXPECT_EQ( modifier.ffcBaseFieldOffsetLitFfc(), ( Map{ { key, 1448 } } ) );
   EXPECT_EQ( modifier.looked.size(), 18u );
   EXPECT_EQ( modifier.read.size(), 3u );
}

TEST( FfcModifierSm, ofSeveralTheFirstCounts ) {
   Modifier modifier( cellOf( { 2 } ) );
   modifier.instructions = { { 4, { Modifier::header, 40, 0 } },
                             { 9, { Modifier::header, 90, 0 } },
                             { 12, { Modifier::literal, 120, 0 } },
                             { 1, { Modifier::literal, 10, 0 } } };
   modifier.builders = { { 2, U64{ 1 } << 9 | U64{ 1 } << 12 }, { 5, U64{ 1 } << 4 | U64{ 1 } << 1 } };
   modifier.findInterestingInstructions();
   FfcInfoKey const key( FapId( 2 ), 33 );
   EXPECT_EQ( modifier.ffcIndexRhFfc(), ( Map{ { key, 9 } } ) );
   EXPECT_EQ( modifier.ffcIndexLitFfc(), ( Map{ { key, 12 } } ) );
   modifier.findInterestingInstructions();
   EXPECT_EQ( modifier.ffcBaseFieldOffsetRhFfc(), ( Map{ { key, 90 } } ) );
}

TEST( FfcModifierSm, hasEachContextRewrittenOnceOnEveryFap ) {
   Modifier modifier( cellOf( { 7, 2 } ) );
   modifier.instructions = { { 4, { Modifier::header, 40, 0 } }, { 9, { Modifier::literal, 90, 0 } } };
   modifier.builders = { { 0, U64{ 1 } << 4 | U64{ 1 } << 9 } };
   modifier.findInterestingInstructions();
   modifier.handleFfcModification();
   ASSERT_EQ( modifier.written.size(), 2u );
   EXPECT_EQ( modifier.written[0], ( std::pair{ ChipType::BCM88690_B0, FfcInfoKey( FapId( 2 ), 33 ) } ) );
   EXPECT_EQ( modifier.written[1], ( std::pair{ ChipType::BCM88480_A0, FfcInfoKey( FapId( 7 ), 33 ) } ) );
}

TEST( FfcModifierSm, aContextWithOneOfTheTwoIsRewrittenToo ) {
   for ( auto const format : { Modifier::header, Modifier::literal } ) {
      Modifier modifier( cellOf( { 2 } ) );
      modifier.instructions = { { 4, { format, 40, 0 } } };
      modifier.builders = { { 0, U64{ 1 } << 4 } };
      modifier.findInterestingInstructions();
      modifier.handleFfcModification();
      EXPECT_EQ( modifier.written.size(), 1u );
   }
}

TEST( FfcModifierSm, withoutAnInterestingKeyNothingIsReadOrRewritten ) {
   Modifier modifier( cellOf( { 2 } ) );
   modifier.findInterestingInstructions();
   modifier.handleFfcModification();
   EXPECT_TRUE( modifier.read.empty() );
   EXPECT_TRUE( modifier.written.empty() );
}

TEST( FfcModifierSm, aStageWhoseContextNobodyNamesEndsTheProcess ) {
   EXPECT_DEATH( Modifier( cellOf( { 2 } ), IngressStage::vtt2 ).findInterestingInstructions(), "getVtt2Context" );
   EXPECT_DEATH( Modifier( cellOf( { 2 } ), IngressStage::vtt3 ).findInterestingInstructions(), "getVtt3Context" );
}

TEST( FfcModifierSm, needsTheInstructionsPlaces ) {
   Modifier modifier( cellOf( { 2 } ) );
   modifier.fwd12FfcInstructionLocationIs( nullptr );
   EXPECT_DEATH( modifier.findInterestingInstructions(), "fwd12FfcInstructionLocation" );
}

} // namespace
