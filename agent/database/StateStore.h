// A central database as people and scripts use it: they wait for its answers.
//
//    auto const store = stateStoreAt( "redis://127.0.0.1", {}, 1 );          // agent/database/Databases.h
//    store->snapshot( "evpn/status" ).paths;
//    StateWriter( *store ).write( event );
//
// All of it throws Inspection::InputError: where the database can't be reached, is silent for ten seconds, or holds no
// state.
//
// Threading: none; while it waits, everything on its loop is served.
#pragma once

#include "agent/EventLoop.h"
#include "agent/database/Database.h"
#include "agent/database/StateModel.h"

namespace Live {

struct AwaitedAgent {
   std::string slice;
   bool isThere = false; // it has the right to serve its slice
   bool hasCaughtUp = false;
   std::string phase = {};
   std::string reason = {};
   std::string applied = {};

   bool isReady() const { return isThere && hasCaughtUp && phase == "running"; }
};

// Hears of every change of a state as it comes, without being an agent.
class StateWatch {
 public:
   struct Answers {
      std::function< void( Transaction const & ) > is;
      // The state is another one from now on, and why.
      std::function< void( std::string const & ) > begins;
   };
   virtual ~StateWatch() = default;
   // Waits for something to happen, some seconds at most. Inspection::InputError where the state is gone.
   virtual void turn() = 0;
};

class StateStore {
 public:
   // What was written last, as somebody saw it who is about to write.
   struct Mark {
      std::string epoch;
      std::string entry;
   };

   virtual ~StateStore() = default;

   virtual std::string name() const = 0;
   virtual EventLoop & loop() = 0;

   // What stands at a path and below it, or all.
   virtual Snapshot snapshot( std::string const & path = {} ) = 0;
   // What is there of a path: what holds it, itself, and all below it.
   virtual Paths about( std::string const & path ) = 0;

   virtual Mark mark() = 0;
   // Whether something was written behind the position that the mark tells of.
   virtual bool isBehind( Position const & position, Mark const & mark ) const = 0;
   // What was, up to the mark at least; nothing where it can't be had any more.
   virtual std::optional< std::vector< Transaction > > since( Position const & position, Mark const & mark ) = 0;
   // One transaction, where nobody has written behind the mark: where it stands. Empty: somebody has. `mark` becomes
   // what was written last. `after`: what stands at the paths that change once it is written.
   virtual std::string
   commit( StateChange const & change, Paths const & after, Inspection::Event const & event, Mark & mark ) = 0;
   // A new life of the state, whatever was there; its epoch.
   virtual std::string load( Paths const & paths ) = 0;

   // Up to where it is written.
   virtual Position place() = 0;
   // Of these slices, or of every one that has an agent: who has applied what is written up to a place.
   virtual std::vector< AwaitedAgent > agents( std::vector< std::string > slices, Position const & place ) = 0;
   virtual std::unique_ptr< StateWatch > watch( StateWatch::Answers answers ) = 0;

   // What a person should know of what was done, though it was done.
   std::vector< std::string > takeNotes() { return std::exchange( notes_, {} ); }
   [[noreturn]] void refuse( std::string const & what ) const;

 protected:
   void note( std::string text ) { notes_.push_back( std::move( text ) ); }

 private:
   std::vector< std::string > notes_;
};

// A UUID for a new life of a state.
std::string newEpoch();

} // namespace Live
