// The agent of one slice: follows a database (StateFollower.h) and programs its chips, for as long as it lives.
//
//    EventLoop loop;
//    EmbeddedDatabase database( loop );
//    SliceAgent agent( loop, database, scenario );          // chips are booted, nothing is written yet
//    agent.begin();
//    loop.run();
//
// One transaction of the database is one event of the switch, whole. The first whole state starts the plug-in. What the
// database doesn't name is as the switch's file has it. A database that can't be reached, or that holds nothing, leaves
// the chips as they are.
//
// Whoever looks on (recording, metrics, control) is an AgentOnlooker; what the chips are told, rows of the switch's
// journal.
//
// Threading: the agent's loop.
#pragma once

#include "agent/LastWords.h"
#include "agent/PublishedState.h"
#include "agent/StateDoor.h"
#include "agent/StateFollower.h"
#include "simulator/ChipsMapping.h"
#include "simulator/StagedDriver.h"

namespace Live {

class SliceAgent final : public StateFollower {
 public:
   // The plug-in's library is loaded already. Throws InputError where state or chips of the scenario don't fit. The
   // database and the loop outlive the agent.
   // `chips` outlive it, too; where an agent had them before this one, they are as that one left them.
   SliceAgent( EventLoop & loop,
               Database & database,
               Inspection::Scenario scenario,
               std::string version = {},
               Simulator::ChipsMapping const * chips = nullptr );
   ~SliceAgent() override;

   // A start on chips that were programmed already is staged: what it would change is brought to them when it is known,
   // or held until commits() is called. Before begin().
   void driftIsHeld( bool isHeld ) { isHeld_ = isHeld; }
   bool isWarm() const { return isWarm_; }
   // Tells the database that it goes, and stops the plug-in. Idempotent.
   void end();

   // What the start would change on chips that were programmed already: entries and controls that wait for commits().
   std::size_t drift() const { return placesHeld().value_or( 0 ); }
   // Brings what is held to the chips, and goes on. Returns how much there was.
   std::size_t commits();
   // How many writes of its start have changed a chip that was programmed already; none: the chips were new.
   std::optional< std::size_t > startChangingWrites() const { return startChangingWrites_; }
   // The chips may have failed, or answer again.
   void chipsAreAnother();

   Inspection::Scenario const & scenario() const { return scenario_; }
   Simulator::SimulatedSwitch & sw() { return sw_; }
   Simulator::SimulatedSwitch const & sw() const { return sw_; }
   // Nor before it is known whether the chips are to stay as they are.
   bool mayWrite() const override { return StateFollower::mayWrite() && ( isStarted() || !isWarm_ || !isHeld_ ); }
   Paths const & published() const { return published_.all(); }

 private:
   void start( std::vector< Inspection::Event > const & changes ) override;
   std::optional< std::size_t > placesHeld() const override;
   std::optional< std::string > degradation() const override;
   Paths takePublished( bool isWhole ) override;

   Inspection::Scenario scenario_;
   LastWords lastWords_; // before the switch
   bool const isWarm_;   // the chips were programmed before
   Simulator::SimulatedSwitch sw_;
   StateDoor door_;
   PublishedState published_;
   std::optional< Simulator::StagedDriver > staged_; // while a start is held, or under way on chips that stand already
   std::size_t drift_ = 0;
   std::optional< std::size_t > startChangingWrites_;
   bool isHeld_ = false;
   std::string failure_; // of a chip
};

} // namespace Live
