// Works out what an event of a plan would change: reads the rows that play it, finds what differs in what was staged,
// and whose write each difference is.
//
//    Planner planner( plan, events, staged, fap );
//    sw.journal().readerAdd( planner );      // adds an event to the plan for each that is played, and commits it
//
// Threading: the agent's scheduler thread.
#pragma once

#include "inspection/Plan.h"

#include <vector>

namespace Inspection {

class Planner final : public Simulator::RowReader {
 public:
   // `only`: the FAP that is planned; none: all. `before`: how many events the switch has had. All of them outlive
   // this.
   Planner( Plan & plan,
            std::vector< Event > const & events,
            Simulator::StagedDriver & staged,
            std::optional< U16 > only,
            U32 before = 0 )
      : plan_( plan ), events_( events ), staged_( staged ), only_( only ), before_( before ) {}

   void eventBegins( U32 number, Rex::Value const & what ) override;
   void row( Simulator::Row const & row ) override;
   void eventEnds( U32 event ) override;

 private:
   static constexpr U32 none = ~U32{ 0 };

   // A write of the event that changed something, or a control: where, by whom, and what was written.
   struct Written {
      Catalogue::Layout const * layout; // null: a control
      U32 const * words;
      U32 entryOrControl;
      int array;
      U32 origin;
      U32 cause;
      U16 fap;
      U16 table;
      U8 variant;
      bool isRegister;
      bool isOfAllCopies;
      U32 change = none; // the last of the plan that it makes
   };

   // Who wrote to a place in the event, and the next who did.
   struct Writing {
      U32 written;
      U32 next = none;
   };

   // A copy of an entry, or a control.
   struct Place {
      U32 copy = 0;
      U32 first = none; // of the writings
      U32 last = none;
   };
   struct Part {
      Writing const * by;
      U32 * words;
   };

   bool isPlanned( U16 fap ) const { return !only_ || *only_ == fap; }
   void keep( Simulator::Row const & row );
   // What was kept last.
   void wrote( U32 number, U32 copy );
   // The last who made a field become another than it was.
   Writing const & setterOf( Catalogue::Field const & field, Place const & place, U32 const * before ) const;
   void take( Simulator::StagedDriver::ChangeView const & change );
   Simulator::Row & add( Writing const & by );
   // Copies that would change alike are one change of all. That of another copy was made by the same write; where each
   // copy was written by itself, it stands close by, mostly right before.
   bool isOtherCopyOfAChange( Simulator::Row const & row, Written const & written );
   U32 const * wordsOf( Writing const & writing ) const { return written_[writing.written].words; }

   Plan & plan_;
   std::vector< Event > const & events_;
   Simulator::StagedDriver & staged_;
   std::optional< U16 > only_;
   U32 before_;
   // Of the event under way: what was written where, by whom.
   std::vector< Place > places_; // by the number of what is staged
   std::vector< Writing > writings_;
   std::vector< Written > written_;
   Simulator::UnitStore< U32 > words_;
   std::vector< Part > parts_; // of the change that is looked at
};

} // namespace Inspection
