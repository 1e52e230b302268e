// The microcode's key programs of the second forwarding stage: which fields a context copies into a lookup key.
//
// A context has 38 instructions, in five memories: 2, 4, 8, 16 and 8 of them, four to an entry (two in the first
// memory), the elements of a memory's array one behind the other. For each of the 18 keys that the context can build
// there is a builder: a bit for each instruction that takes part, and the database that the key is looked up in.
//
// The one program that matters to the agent is the seventh key of the unified IPv4 context: it builds the key of the
// reduced exact-match database, the leading bits of the destination address and then the VRF. Exactly one of its
// instructions copies from a header, and exactly one copies literally. All other programs are noise of the right form.
#pragma once

#include "simulator/Noise.h"

namespace Simulator::KeyProgram {

// Composes an entry of FwdFfcTable.
void instructions( BootRow const & row );
// Composes an entry of FwdKbrTable.
void builder( BootRow const & row );

} // namespace Simulator::KeyProgram
