#include "constants/EgressPortProfiles.h"

#include <algorithm>

namespace Hardware::Dace {

namespace {

constexpr U8 none = 0; // the chip's SDK lacks the item

using enum EgressPortStage;

// Columns: BCM88690_B0, BCM88800_A0, BCM88850_A0, BCM88859_A2, BCM88480_A0, BCM88480_B0.
// A value has 2 bits; a trap value 3, and 4 on BCM88850_A0 and BCM88859_A2.
// clang-format off
constexpr EgressPortProfileRow profileRows[] = {
   { Enc1, "Enc1", 1, { { 1, 2, 3,  3, 2, none } } },
   { Enc2, "Enc2", 1, { { 2, 2, 1,  3, 1, 1    } } },
   { Enc3, "Enc3", 1, { { 3, 1, 2,  1, 3, 2    } } },
   { Enc4, "Enc4", 1, { { 1, 3, 2,  2, 1, 3    } } },
   { Enc5, "Enc5", 1, { { 2, 3, 3,  1, 2, 1    } } },
   { Trap, "Trap", 1, { { 4, 5, 9, 10, 3, 2    } } },
   { Trap, "Trap", 2, { { 6, 7, 12, 5, 1, 7    } } },
};
// clang-format on

} // namespace

bool egressPortProfileExists( EgressPortStage stage, FapRevision const & fapRevision, int item ) {
   return egressPortProfileValue( stage, fapRevision, item ) != none;
}

U8 egressPortProfileValue( EgressPortStage stage, FapRevision const & fapRevision, int item ) {
   auto const chip = std::ranges::find( allChipTypes, fapRevision.chipType() );
   auto const row = std::ranges::find_if(
      profileRows, [&]( EgressPortProfileRow const & it ) { return it.stage == stage && it.item == item; } );
   if ( chip == allChipTypes.end() || row == std::end( profileRows ) ) {
      return none;
   }
   return row->value[static_cast< std::size_t >( chip - allChipTypes.begin() )];
}

std::span< EgressPortProfileRow const > egressPortProfileRows() {
   return profileRows;
}

} // namespace Hardware::Dace
