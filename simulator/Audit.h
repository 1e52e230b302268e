// A walk over all copies of all entries of a switch's chips, which compares them with what they are expected to hold, a
// bit at a time.
//
//    Audit audit( chips, shadow );
//    while ( !audit.step( 2000, [&]( Mismatch const & it ) { … } ) ) {   // between which something else may be done
//    }
//
// What is written between two steps is written to both, so that a walk never finds what was only under way. Degraded
// chips are passed over.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "simulator/ShadowDriver.h"

namespace Simulator {

// A copy of an entry, or a control, that doesn't hold what it is expected to. Words are valid during the visit only.
struct Mismatch {
   ChipId chip;
   SchanAddress at;              // of an entry
   std::optional< U32 > control; // a control; `expected` and `found` are one word then, or none
   std::span< U32 const > expected;
   std::span< U32 const > found;
};

class Audit {
 public:
   using Visit = std::function< void( Mismatch const & ) >;

   Audit( ChipDriver const & chips, ShadowDriver & shadow ) : chips_( chips ), shadow_( shadow ) {}

   // Looks at so many entries more. True: that was the end of a walk over all chips; the next step begins another.
   bool step( std::size_t entries, Visit const & visit );
   // The rest of the walk.
   void finish( Visit const & visit );
   // From the beginning.
   void restart() { chip_ = entry_ = 0; }

 private:
   void compare( Chip const & chip, U32 entry, Visit const & visit );
   void compareControls( Chip const & chip, Visit const & visit );

   ChipDriver const & chips_;
   ShadowDriver & shadow_;
   U32 chip_ = 0;  // in the order of their numbers
   U32 entry_ = 0; // the next to look at
};

} // namespace Simulator
