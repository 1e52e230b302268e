// What an agent says when an assertion ends it: its last steps, then event, FAP, function, cause, and what in its state
// is suspicious.
//
//    LastWords lastWords( scenario );                 // before the switch: hooks run from the last to the first
//    SimulatedSwitch sw( scenario.description );
//    lastWords.follows( &sw );                        // null: no more
//
// Threading: the agent's loop.
#pragma once

#include "inspection/files/Scenario.h"
#include "simulator/Row.h"

namespace Live {

class LastWords final : public Simulator::RowReader {
 public:
   explicit LastWords( Inspection::Scenario const & scenario );
   ~LastWords() override;
   LastWords( LastWords const & ) = delete;
   LastWords & operator=( LastWords const & ) = delete;

   void follows( Simulator::SimulatedSwitch * sw );

   void eventBegins( U32 event, Rex::Value const & what ) override;
   void row( Simulator::Row const & row ) override;
   void ends( Simulator::Ending const & ending ) override;

 private:
   void say() const;

   Inspection::Scenario const & scenario_;
   Simulator::SimulatedSwitch * sw_ = nullptr;
   Rex::Value const * what_ = nullptr; // the journal's, which has it while it lives
   std::optional< U16 > fap_;
   Simulator::Ending ending_;
   int hook_;
};

} // namespace Live
