// What follows the state in a database for one slice, and brings it to a door; what stands behind that is the chips of
// a switch (SliceAgent), or the costs of chips in a simulation (scale/).
//
//    class Told : public StateFollower {                      // what an agent adds to it
//       void start( Events const & changes ) override { … }   // the first whole state
//    };
//    told.begin();
//    loop.run();
//
//                      ┌──────────────── gap, another life ────────────────┐
//                      ▼                                                   │
//    waiting ──► snapshot ──► reconciling: start, or the differences ──► running ◄──► frozen
//       ▲              ▲                                                   │
//       └── no state ──┴───────── retries, 0.1 to 5 s ◄── disconnected ◄───┘
//
// One transaction of the database is one event, whole. A whole state is acted on by its differences to what is held;
// the first one is the start. What the database doesn't name is as `base` has it. A database that can't be reached, or
// that holds nothing, changes nothing.
//
// Threading: the agent's loop.
#pragma once

#include "agent/AgentOnlooker.h"
#include "agent/Door.h"
#include "agent/EventLoop.h"

#include <deque>
#include <optional>

namespace Live {

class StateFollower : private Database::Follower {
 public:
   StateFollower( StateFollower const & ) = delete;
   StateFollower & operator=( StateFollower const & ) = delete;

   void onlookerAdd( AgentOnlooker & onlooker ) { onlookers_.push_back( &onlooker ); }
   void begin();

   // No transaction is taken until it is thawed, which catches up.
   void freeze();
   void thaw();

   Database & database() { return database_; }
   EventLoop & loop() { return loop_; }

   Phase phase() const { return phase_; }
   // Whether it may write to its chips: not while they are to stay as they are.
   virtual bool mayWrite() const {
      return phase_ != Phase::frozen && phase_ != Phase::held && phase_ != Phase::disconnected;
   }
   std::string const & reason() const { return reason_; }
   Rex::Seconds phaseSince() const { return phaseSince_; }
   // The plug-in has been started: there was a whole state.
   bool isStarted() const { return isStarted_; }
   Position const & position() const { return position_; }
   // The state that the chips are to follow, wrong values included.
   Paths const & held() const { return held_; }
   Door::Rejected const & rejected() const { return door_.rejected(); }
   // The first of them.
   Rex::Value rejectedTold() const { return door_.told(); }
   // Transactions that were taken and not played yet.
   std::size_t waiting() const { return waiting_.size(); }
   // Why it ended by itself, another agent serving this slice; empty: it has not.
   std::string const & refusal() const { return refusal_; }

 protected:
   // The door is used from begin() to ends() alone.
   StateFollower( EventLoop & loop, Database & database, Door & door, Paths base, std::string version );
   ~StateFollower() override;

   // The first whole state has come; these are its differences to `base`.
   virtual void start( std::vector< Inspection::Event > const & changes ) = 0;
   // What the start would change, and waits for goesOn(); none: nothing waits.
   virtual std::optional< std::size_t > placesHeld() const { return std::nullopt; }
   // Why some of the chips don't follow; none: they do.
   virtual std::optional< std::string > degradation() const { return std::nullopt; }
   // What is published: all of it, or what has changed since it was asked for last.
   virtual Paths takePublished( [[maybe_unused]] bool isWhole ) { return {}; }

   std::vector< AgentOnlooker * > const & onlookers() const { return onlookers_; }
   // Whether it became another, or has another reason.
   bool phaseIs( Phase phase, std::string reason = {} );
   // What was held is there.
   void goesOn();
   void report( bool isWhole );
   // Tells the database that it goes; whether it hadn't yet.
   bool ends();

 private:
   void snapshotIs( Snapshot snapshot ) override;
   void follows() override;
   void transactionsAre( std::vector< Transaction > transactions ) override;
   void gapIs( std::string reason ) override;
   void unreachable( std::string reason ) override;
   void withoutState( std::string reason ) override;
   void refused( std::string reason ) override;

   void follow();
   void again();
   void playWaiting();
   void play( Transaction & transaction );
   void list( Transaction const & transaction );
   void hold( Inspection::Event const & change );
   bool isReset( Inspection::Event const & change ) const;
   std::vector< Inspection::Event > reset( Inspection::Event const & removal );
   std::vector< Inspection::Event > taken( std::vector< Inspection::Event > changes );

   EventLoop & loop_;
   Database & database_;
   Door & door_;
   std::string version_;
   std::vector< AgentOnlooker * > onlookers_;
   Phase phase_ = Phase::waiting;
   std::string reason_ = "no state has come yet";
   Rex::Seconds phaseSince_ = 0;
   bool isStarted_ = false;
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
