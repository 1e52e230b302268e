// The microcode's default action words: what the chip's loader writes into the action tables, and what a rewritten
// action goes back to.
//
//    U16 const word = DacePPExport::IPPB_FLPACS_ACTION_ENTRY( UcodeProfileType::routing, chipType, 0, 0, entry );
//    U16 const context = word & 0x3f;
//
// A word has 13 bits. The low 6 are the number of the context that the action goes to, as the chip counts contexts; the
// others are the microcode's.
//
// The words are the reference platform's own; the true ones belong to a closed library.
#pragma once

#include "chip/ChipType.h"

namespace Hardware::Dace {

// A microcode image that a chip can be loaded with.
enum class UcodeProfileType : U8 {
   bridging = 1,
   routing = 2,
};

} // namespace Hardware::Dace

namespace DacePPExport {

inline constexpr U32 actionEntries = 128;

// The default action word of an entry; its target is a context of the second forwarding stage. The two numbers between
// are array indices of tables that have but one element: 0.
// Another profile, chip or entry ends the process by assertion.
U16 const & IPPB_FLPACS_ACTION_ENTRY(
   Hardware::Dace::UcodeProfileType profile, Hardware::ChipType chipType, U32, U32, U32 entryIndex );

// Likewise; the target is a context of the first forwarding stage.
U16 const & IPPA_VTECS_ACTION_ENTRY(
   Hardware::Dace::UcodeProfileType profile, Hardware::ChipType chipType, U32, U32, U32 entryIndex );

} // namespace DacePPExport
