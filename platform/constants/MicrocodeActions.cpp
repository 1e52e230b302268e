#include "constants/MicrocodeActions.h"

#include "assert/Assert.h"
#include "constants/Contexts.h"

#include <algorithm>

namespace DacePPExport {

namespace {

using Hardware::ChipType;
using Hardware::Dace::UcodeProfileType;

// What the microcode does at one entry: the context that it goes to, and the upper bits of the word.
struct Action {
   U8 context;
   U8 upper;
};

// FLPACS: contexts of the second forwarding stage.
// clang-format off
constexpr std::array< Action, actionEntries > flpacsActions{ {
   { 24, 0x0a }, { 9, 0x4a }, { 3, 0x74 }, { 12, 0x2f }, { 13, 0x22 }, { 12, 0x2d }, { 13, 0x4b }, { 47, 0x33 },
   { 9, 0x3e }, { 47, 0x39 }, { 31, 0x1f }, { 24, 0x12 }, { 12, 0x1b }, { 40, 0x0f }, { 3, 0x54 }, { 23, 0x72 },
   { 12, 0x77 }, { 40, 0x73 }, { 3, 0x48 }, { 24, 0x30 }, { 23, 0x71 }, { 9, 0x54 }, { 9, 0x6d }, { 40, 0x18 },
   { 3, 0x67 }, { 40, 0x41 }, { 40, 0x69 }, { 23, 0x56 }, { 3, 0x22 }, { 9, 0x07 }, { 24, 0x73 }, { 9, 0x5d },
   { 23, 0x08 }, { 23, 0x23 }, { 9, 0x45 }, { 13, 0x48 }, { 40, 0x07 }, { 3, 0x2a }, { 9, 0x0c }, { 9, 0x4f },
   { 47, 0x03 }, { 45, 0x32 }, { 40, 0x41 }, { 13, 0x01 }, { 45, 0x7c }, { 40, 0x3b }, { 9, 0x39 }, { 40, 0x09 },
   { 23, 0x45 }, { 3, 0x41 }, { 3, 0x33 }, { 23, 0x7d }, { 24, 0x6f }, { 12, 0x15 }, { 40, 0x35 }, { 40, 0x1d },
   { 23, 0x77 }, { 12, 0x2a }, { 31, 0x6d }, { 40, 0x56 }, { 12, 0x31 }, { 13, 0x46 }, { 13, 0x0c }, { 46, 0x2f },
   { 9, 0x36 }, { 31, 0x1a }, { 3, 0x53 }, { 13, 0x4c }, { 31, 0x6b }, { 9, 0x52 }, { 12, 0x43 }, { 23, 0x73 },
   { 45, 0x0f }, { 13, 0x2b }, { 13, 0x3f }, { 3, 0x56 }, { 13, 0x1a }, { 45, 0x45 }, { 12, 0x2a }, { 31, 0x39 },
   { 13, 0x14 }, { 12, 0x52 }, { 45, 0x5e }, { 31, 0x4d }, { 24, 0x31 }, { 23, 0x29 }, { 45, 0x3e }, { 13, 0x5b },
   { 3, 0x71 }, { 47, 0x31 }, { 3, 0x75 }, { 23, 0x21 }, { 12, 0x1d }, { 13, 0x49 }, { 3, 0x7b }, { 3, 0x3c },
   { 9, 0x1b }, { 3, 0x15 }, { 47, 0x07 }, { 40, 0x13 }, { 12, 0x76 }, { 12, 0x68 }, { 3, 0x68 }, { 24, 0x6e },
   { 9, 0x08 }, { 24, 0x1b }, { 3, 0x4b }, { 3, 0x20 }, { 40, 0x70 }, { 12, 0x20 }, { 31, 0x60 }, { 24, 0x0f },
   { 40, 0x48 }, { 9, 0x09 }, { 40, 0x20 }, { 23, 0x1a }, { 3, 0x60 }, { 12, 0x59 }, { 31, 0x47 }, { 23, 0x7c },
   { 3, 0x76 }, { 3, 0x76 }, { 13, 0x04 }, { 23, 0x67 }, { 46, 0x31 }, { 3, 0x68 }, { 45, 0x0a }, { 40, 0x21 },
} };

// VTECS: contexts of the first forwarding stage.
constexpr std::array< Action, actionEntries > vtecsActions{ {
   { 1, 0x10 }, { 1, 0x10 }, { 38, 0x2b }, { 14, 0x68 }, { 37, 0x6f }, { 15, 0x79 }, { 44, 0x1d }, { 44, 0x08 },
   { 39, 0x28 }, { 38, 0x38 }, { 14, 0x37 }, { 36, 0x04 }, { 20, 0x6d }, { 2, 0x3a }, { 2, 0x75 }, { 38, 0x56 },
   { 2, 0x3e }, { 15, 0x7a }, { 44, 0x5c }, { 39, 0x18 }, { 7, 0x3d }, { 37, 0x19 }, { 44, 0x7e }, { 36, 0x2d },
   { 37, 0x18 }, { 14, 0x78 }, { 44, 0x07 }, { 7, 0x3a }, { 58, 0x1a }, { 14, 0x78 }, { 14, 0x6f }, { 36, 0x38 },
   { 15, 0x48 }, { 61, 0x3f }, { 36, 0x38 }, { 7, 0x10 }, { 36, 0x1f }, { 61, 0x20 }, { 15, 0x54 }, { 14, 0x18 },
   { 1, 0x65 }, { 39, 0x34 }, { 44, 0x63 }, { 58, 0x40 }, { 1, 0x52 }, { 1, 0x60 }, { 20, 0x79 }, { 2, 0x08 },
   { 15, 0x28 }, { 1, 0x3c }, { 15, 0x10 }, { 37, 0x41 }, { 20, 0x45 }, { 15, 0x69 }, { 38, 0x0a }, { 58, 0x60 },
   { 37, 0x1d }, { 61, 0x07 }, { 38, 0x28 }, { 14, 0x67 }, { 58, 0x47 }, { 61, 0x53 }, { 38, 0x1c }, { 38, 0x58 },
   { 58, 0x5b }, { 15, 0x09 }, { 37, 0x3a }, { 59, 0x61 }, { 15, 0x4a }, { 2, 0x45 }, { 2, 0x67 }, { 2, 0x2b },
   { 36, 0x34 }, { 1, 0x73 }, { 7, 0x47 }, { 36, 0x53 }, { 2, 0x1c }, { 38, 0x16 }, { 2, 0x29 }, { 38, 0x78 },
   { 14, 0x4d }, { 37, 0x2e }, { 44, 0x19 }, { 14, 0x55 }, { 36, 0x67 }, { 38, 0x61 }, { 36, 0x73 }, { 1, 0x48 },
   { 20, 0x59 }, { 39, 0x48 }, { 36, 0x6a }, { 15, 0x0b }, { 7, 0x51 }, { 1, 0x4d }, { 37, 0x61 }, { 7, 0x4b },
   { 36, 0x38 }, { 39, 0x2d }, { 44, 0x0e }, { 20, 0x56 }, { 20, 0x61 }, { 37, 0x11 }, { 20, 0x77 }, { 44, 0x25 },
   { 60, 0x39 }, { 37, 0x02 }, { 39, 0x7e }, { 37, 0x3f }, { 7, 0x75 }, { 36, 0x38 }, { 44, 0x39 }, { 39, 0x67 },
   { 61, 0x77 }, { 2, 0x1b }, { 7, 0x56 }, { 1, 0x01 }, { 44, 0x32 }, { 14, 0x20 }, { 44, 0x01 }, { 58, 0x51 },
   { 36, 0x24 }, { 38, 0x4c }, { 20, 0x49 }, { 38, 0x23 }, { 39, 0x1b }, { 38, 0x02 }, { 1, 0x09 }, { 37, 0x6a },
} };
// clang-format on

// The microcode of this chip looks labels up in another stage: what leads to an MPLS context elsewhere leads to a
// context of its own here.
constexpr ChipType labelsElsewhere = ChipType::BCM88859_A2;

U8 targetNumber( ChipType chipType, ctx_fwd2 target ) {
   if ( chipType == labelsElsewhere && target >= ctx_fwd2::mplsOneLabel ) {
      target = ctx_fwd2::opaque;
   }
   return static_cast< U8 >( ctx_fwd2_value( chipType, target ) );
}

U8 targetNumber( ChipType chipType, ctx_fwd1 target ) {
   if ( chipType == labelsElsewhere && target >= ctx_fwd1::mplsLabel ) {
      target = ctx_fwd1::ipv4Nat;
   }
   return static_cast< U8 >( ctx_fwd1_value( chipType, target ) );
}

constexpr std::size_t profileCount = 2;
using Words = std::array< U16, actionEntries >;
using WordsByProfileAndChip = std::array< std::array< Words, Hardware::allChipTypes.size() >, profileCount >;

// The words of both microcode images. The second image has the same actions as the first, half the list further on.
template< class Context >
WordsByProfileAndChip compose( std::array< Action, actionEntries > const & actions ) {
   WordsByProfileAndChip all{};
   for ( std::size_t profile = 0; profile < profileCount; ++profile ) {
      for ( std::size_t chip = 0; chip < Hardware::allChipTypes.size(); ++chip ) {
         for ( std::size_t entry = 0; entry < actionEntries; ++entry ) {
            Action const & action = actions[( entry + profile * actionEntries / 2 ) % actionEntries];
            U8 const number = targetNumber( Hardware::allChipTypes[chip], Context{ action.context } );
            all[profile][chip][entry] = static_cast< U16 >( action.upper << 6 | number );
         }
      }
   }
   return all;
}

U16 const & word( WordsByProfileAndChip const & words, UcodeProfileType profile, ChipType chipType, U32 entryIndex ) {
   auto const profileIndex = static_cast< std::size_t >( profile ) - 1;
   auto const chip = std::ranges::find( Hardware::allChipTypes, chipType ) - Hardware::allChipTypes.begin();
   Rex::sassert( profileIndex < profileCount, "profileIndex < profileCount" );
   Rex::sassert( static_cast< std::size_t >( chip ) < Hardware::allChipTypes.size(), "chip < allChipTypes.size()" );
   Rex::sassert( entryIndex < actionEntries, "entryIndex < actionEntries" );
   return words[profileIndex][static_cast< std::size_t >( chip )][entryIndex];
}

} // namespace

U16 const & IPPB_FLPACS_ACTION_ENTRY( UcodeProfileType profile, ChipType chipType, U32, U32, U32 entryIndex ) {
   static WordsByProfileAndChip const words = compose< ctx_fwd2 >( flpacsActions );
   return word( words, profile, chipType, entryIndex );
}

U16 const & IPPA_VTECS_ACTION_ENTRY( UcodeProfileType profile, ChipType chipType, U32, U32, U32 entryIndex ) {
   static WordsByProfileAndChip const words = compose< ctx_fwd1 >( vtecsActions );
   return word( words, profile, chipType, entryIndex );
}

} // namespace DacePPExport
