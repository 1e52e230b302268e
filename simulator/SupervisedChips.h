// The chips of a switch as an agent lives with them: what they are expected to hold stands beside them, and they can be
// made to fail.
//
//    SupervisedChips & supervised = sw.supervise();       // once the chips hold what they begin with
//    sw.start();
//    supervised.arm( fault );                             // Rex::ValueError
//    supervised.audit().finish( [&]( Mismatch const & it ) { … } );
//
//    accessors ──► ShadowDriver ──► FaultyDriver ──► chips
//                   expected        while armed
//
// Threading: the agent's scheduler thread.
#pragma once

#include "simulator/Audit.h"
#include "simulator/FaultyDriver.h"
#include "simulator/Journal.h"

namespace Simulator {

class ChipsMapping;

struct Supervision {
   std::function< void( Rex::Seconds ) > delays = {}; // lets time pass; none: the clock of the process is moved
   ShadowDriver::Degraded degraded = {};
};

class SupervisedChips {
 public:
   // Takes the place of the chips as the driver of the process. All of them outlive this. Where the chips stand in a
   // mapping, what is expected of them stands there, too, and is as their last agent left it.
   SupervisedChips( ChipDriver & chips,
                    SwitchDescription const & description,
                    Journal & journal,
                    ChipsMapping const * mapping,
                    Supervision supervision );
   ~SupervisedChips();
   SupervisedChips( SupervisedChips const & ) = delete;
   SupervisedChips & operator=( SupervisedChips const & ) = delete;

   U32 arm( Fault const & fault );
   bool disarm( U32 number );
   void disarmAll();
   std::vector< FaultyDriver::Armed > const & armed() const { return faulty_.armed(); }
   U64 fired() const { return fired_; } // faults, in all

   ShadowDriver & shadow() { return shadow_; }
   ShadowDriver const & shadow() const { return shadow_; }
   Audit & audit() { return audit_; }

 private:
   void fires( FiredFault const & fired );
   void misses( ChipId chip, SchanAddress const & at );

   ChipDriver & chips_;
   Journal & journal_;
   U64 fired_ = 0;
   ChipDriver expected_;
   FaultyDriver faulty_;
   ShadowDriver shadow_;
   Audit audit_;
};

} // namespace Simulator
