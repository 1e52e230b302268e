// What a chip holds before the agent programs it: the image that its microcode and its SDK have left there.
//
//    Chip chip{ ChipId{ 0 }, "BCM88690_B0", addressMap( ChipType::BCM88690_B0 ) };
//    boot( chip, ChipType::BCM88690_B0 );
//
// Every table and register holds something, the same in every copy and at every boot, different from entry to entry and
// from chip to chip: what a program must leave alone can be seen to survive. Only the lookup memories are empty, as
// their entries come and go with routes. Some rows are deliberate: action words, encapsulation programs, and the key
// program of the unified IPv4 context, which the rest of the system finds its way by.
//
// The contents are the reference platform's own; the true image belongs to the chip's maker.
#pragma once

#include "chip/ChipType.h"
#include "simulator/Chip.h"

namespace Simulator {

// How the bits come out that nothing depends on. Two runs that differ in nothing else tell what a program has set from
// what it has left alone: of the bits of the noise, those that are alike in both.
enum class BootNoise : U8 { plain, inverted };

// Fills the chip, whose addresses are those of the kind.
void boot( Chip & chip, Hardware::ChipType chipType, BootNoise bootNoise = BootNoise::plain );

} // namespace Simulator
