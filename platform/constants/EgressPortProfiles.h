// The profiles by which an egress stage chooses its context for a port.
//
//    if ( Jericho2EgressPortEnc1Profile::exists( fapRevision, 1 ) ) {
//       table.contextSelectionPerPortProfileIs( Jericho2EgressPortEnc1Profile::hwValue( fapRevision, 1 ) );
//    }
//
// An item is a use of a port: 1 is a port that packets are recycled to, 2 one that they are recycled to for a trap.
//
// The values are the reference platform's own; the true ones belong to a closed library.
#pragma once

#include "chip/FapRevision.h"

#include <array>
#include <span>

namespace Hardware::Dace {

enum class EgressPortStage : U8 { Enc1, Enc2, Enc3, Enc4, Enc5, Trap };

bool egressPortProfileExists( EgressPortStage stage, FapRevision const & fapRevision, int item );
U8 egressPortProfileValue( EgressPortStage stage, FapRevision const & fapRevision, int item );

template< EgressPortStage stage >
struct EgressPortProfile {
   // Whether the chip's SDK has the item. False for an unknown item or chip.
   static bool exists( FapRevision const & fapRevision, int item ) {
      return egressPortProfileExists( stage, fapRevision, item );
   }

   // The number that stands for the item on the chip; 0 where it doesn't exist.
   static U8 hwValue( FapRevision const & fapRevision, int item ) {
      return egressPortProfileValue( stage, fapRevision, item );
   }
};

using Jericho2EgressPortEnc1Profile = EgressPortProfile< EgressPortStage::Enc1 >;
using Jericho2EgressPortEnc2Profile = EgressPortProfile< EgressPortStage::Enc2 >;
using Jericho2EgressPortEnc3Profile = EgressPortProfile< EgressPortStage::Enc3 >;
using Jericho2EgressPortEnc4Profile = EgressPortProfile< EgressPortStage::Enc4 >;
using Jericho2EgressPortEnc5Profile = EgressPortProfile< EgressPortStage::Enc5 >;
using Jericho2EgressPortTrapProfile = EgressPortProfile< EgressPortStage::Trap >;

// One row of the table behind the profiles.
struct EgressPortProfileRow {
   EgressPortStage stage;
   char const * name; // of the stage
   int item;
   // By chip, in the order of allChipTypes; 0 where the chip lacks the item.
   std::array< U8, allChipTypes.size() > value;
};

// Every item that the platform knows, by stage.
std::span< EgressPortProfileRow const > egressPortProfileRows();

} // namespace Hardware::Dace
