// The agent of one slice: follows a database and programs its chips, for as long as it lives.
//
//    EventLoop loop;
//    EmbeddedDatabase database( loop );
//    SliceAgent agent( loop, database, scenario );          // chips are booted, nothing is written yet
//    agent.begin();
//    loop.run();
//
//                      ┌──────────────── gap, another life ────────────────┐
//                      ▼                                                   │
//    waiting ──► snapshot ──► reconciling: start, or the differences ──► running ◄──► frozen
//       ▲              ▲                                                   │
//       └── no state ──┴───────── retries, 0.1 to 5 s ◄── disconnected ◄───┘
//
// One transaction of the database is one event of the switch, whole. A whole state is acted on by its differences to
// what the agent holds; the first one starts the plug-in. What the database doesn't name is as the switch's file has
// it. A database that can't be reached, or that holds nothing, leaves the chips as they are.
//
// Whoever looks on (recording, metrics, control) is an AgentOnlooker; what the chips are told, rows of the switch's
// journal.
//
// Threading: the agent's loop.
#pragma once

#include "agent/EventLoop.h"
#include "agent/LastWords.h"
#include "agent/Phase.h"
#include "agent/PublishedState.h"
#include "agent/StateDoor.h"
#include "agent/audit/Drift.h"
#include "agent/database/Database.h"
#include "simulator/ChipsMapping.h"
#include "simulator/StagedDriver.h"

#include <deque>
#include <optional>

namespace Live {

// Hears what happens to an agent. Called when it has happened.
class AgentOnlooker {
 public:
   virtual ~AgentOnlooker() = default;
   virtual void phaseIs( [[maybe_unused]] Phase phase, [[maybe_unused]] std::string const & reason ) {}
   // A whole state has come and is on the chips: `held` is all of it.
   virtual void snapshotPlayed( [[maybe_unused]] Position const & position, [[maybe_unused]] Paths const & held ) {}
   // One event is over, which took so long. Of a resync: all differences are one.
   virtual void transactionPlayed( [[maybe_unused]] Transaction const & transaction,
                                   [[maybe_unused]] Rex::Seconds duration ) {}
   // What the start would change on chips that an agent had before; it is not on them yet.
   virtual void startIsStaged( [[maybe_unused]] std::vector< Drift > const & drifts ) {}
   // Why a whole state is taken again: a word or two, from a small set.
   virtual void resyncs( [[maybe_unused]] std::string const & reason ) {}
};

class SliceAgent final : private Database::Follower {
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
   void onlookerAdd( AgentOnlooker & onlooker ) { onlookers_.push_back( &onlooker ); }
   void begin();
   // Tells the database that it goes, and stops the plug-in. Idempotent.
   void end();

   // What the start would change on chips that were programmed already: entries and controls that wait for commits().
   std::size_t drift() const { return staged_ ? drift_ : 0; }
   // Brings what is held to the chips, and goes on. Returns how much there was.
   std::size_t commits();
   // How many writes of its start have changed a chip that was programmed already; none: the chips were new.
   std::optional< std::size_t > startChangingWrites() const { return startChangingWrites_; }
   // The chips may have failed, or answer again.
   void chipsAreAnother();

   // No transaction is taken until it is thawed, which catches up.
   void freeze();
   void thaw();

   Inspection::Scenario const & scenario() const { return scenario_; }
   Simulator::SimulatedSwitch & sw() { return sw_; }
   Simulator::SimulatedSwitch const & sw() const { return sw_; }
   Database & database() { return database_; }
   EventLoop & loop() { return loop_; }

   Phase phase() const { return phase_; }
   // Whether it may write to its chips: not while they are to stay as they are, nor before it is known whether they
   // are.
   bool mayWrite() const {
      return phase_ != Phase::frozen && phase_ != Phase::held && phase_ != Phase::disconnected &&
             ( isStarted_ || !isWarm_ || !isHeld_ );
   }
   std::string const & reason() const { return reason_; }
   Rex::Seconds phaseSince() const { return phaseSince_; }
   // The plug-in has been started: there was a whole state.
   bool isStarted() const { return isStarted_; }
   Position const & position() const { return position_; }
   // The state that the chips are to follow, wrong values included.
   Paths const & held() const { return held_; }
   StateDoor::Rejected const & rejected() const { return door_.rejected(); }
   // The first of them.
   Rex::Value rejectedTold() const { return door_.told(); }
   // Transactions that were taken and not played yet.
   std::size_t waiting() const { return waiting_.size(); }
   Paths const & published() const { return published_.all(); }
   // Why it ended by itself, another agent serving this slice; empty: it has not.
   std::string const & refusal() const { return refusal_; }

 private:
   void snapshotIs( Snapshot snapshot ) override;
   void follows() override;
   void transactionsAre( std::vector< Transaction > transactions ) override;
   void gapIs( std::string reason ) override;
   void unreachable( std::string reason ) override;
   void withoutState( std::string reason ) override;
   void refused( std::string reason ) override;

   void start( std::vector< Inspection::Event > const & changes );
   // Whether it became another, or has another reason.
   bool phaseIs( Phase phase, std::string reason = {} );
   void follow();
   void again();
   void playWaiting();
   void play( Transaction & transaction );
   void list( Transaction const & transaction );
   void hold( Inspection::Event const & change );
   bool isReset( Inspection::Event const & change ) const;
   std::vector< Inspection::Event > reset( Inspection::Event const & removal );
   std::vector< Inspection::Event > taken( std::vector< Inspection::Event > changes );
   void report( bool isWhole );

   EventLoop & loop_;
   Database & database_;
   Inspection::Scenario scenario_;
   std::string version_;
   LastWords lastWords_; // before the switch
   bool const isWarm_;   // the chips were programmed before
   Simulator::SimulatedSwitch sw_;
   StateDoor door_;
   PublishedState published_;
   std::vector< AgentOnlooker * > onlookers_;

   Phase phase_ = Phase::waiting;
   std::string reason_ = "no state has come yet";
   Rex::Seconds phaseSince_ = 0;
   bool isStarted_ = false;
   std::optional< Simulator::StagedDriver > staged_; // while a start is held, or under way on chips that stand already
   std::size_t drift_ = 0;
   std::optional< std::size_t > startChangingWrites_;
   bool isHeld_ = false;
   std::string failure_; // of a chip
   bool isFrozen_ = false;
   bool isOver_ = false;
   bool needsSnapshot_ = true;
   Paths base_; // what the file says
   Paths held_;
   PathLookup const lookup_{ held_ };
   Position position_;
   std::deque< Transaction > waiting_;
   bool isPlaying_ = false; // playWaiting is on its way
   int tries_ = 0;          // since the database answered
   int gaps_ = 0;           // since it told of a transaction
   EventLoop::Source retry_;
   std::string refusal_;
};

} // namespace Live
