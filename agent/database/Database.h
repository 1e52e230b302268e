// The central database as an agent sees it: three calls, and what comes back of them.
//
//    database.followerIs( this );
//    database.snapshot();                        // → snapshotIs( … ), whose position is where it stands
//    database.since( position );                 // → transactionsAre( … ), as soon as there are any; or gapIs( … )
//    database.publish( report );                 // what the agent has done, for others to see
//
// Behind it: the process itself (the state of a file, changed through the control socket), Redis, a recording.
//
// A database never decides what its answers mean for the chips, and never tries again by itself: it tells that it
// can't, and whoever follows it calls again after a while. Every call ends what an earlier one of the same kind has
// begun.
//
// Threading: the agent's loop. Answers come from the loop, never from within a call.
#pragma once

#include "agent/database/Paths.h"
#include "inspection/files/Scenario.h"

namespace Live {

// A place in the life of the state, comparable with == alone. What it means is the database's business.
struct Position {
   std::string server = {}; // which life of the server: another one may have forgotten what it told
   std::string epoch = {};  // which life of the state: whoever loads one anew begins another
   std::string entry = {};  // the last transaction; empty: before all

   bool operator==( Position const & ) const = default;
};

// The whole state at one moment.
struct Snapshot {
   Position position;
   Paths paths;
   // What can't be read, by its place: a path, which is there but not in `paths`, and at which whoever follows keeps
   // what he has; or an entry of a log, which changes nothing.
   std::map< std::string, std::string > unreadable = {};
};

// What was changed at once, and is one event of an agent.
struct Transaction {
   Position position; // behind it
   std::vector< Inspection::Event > changes;
   // What in it can't be read, each with its place: "3-1: /0/set/path: expected text". The rest stands in `changes`.
   std::vector< std::string > unreadable = {};
   // When it was written, in seconds since the epoch of Unix as the database's clock has it; 0: it doesn't tell.
   double written = 0;

   // How long ago that was by our clock, in seconds; what lies ahead of it is no lag. None where it isn't told.
   std::optional< Rex::Seconds > lag() const;
};

// What an agent tells of itself, whole: the fields that others read beside the state.
struct Report {
   Position applied;       // all transactions up to here are on the chips, or rejected
   Attributes fields = {}; // "phase", "reason", "drift", "rejected", "version": as they are written, without JSON
   // What the plug-in publishes, by path: what has changed since the report before. A path without attributes is gone.
   Paths published = {};
   // Instead of changes, `published` is all there is: what the database has beside it goes.
   bool isWhole = false;
};

class Database {
 public:
   class Follower {
    public:
      virtual ~Follower() = default;
      virtual void snapshotIs( Snapshot snapshot ) = 0;
      // The next ones in their order, one at least. Once for each since(): who can't keep up isn't given more.
      virtual void transactionsAre( std::vector< Transaction > transactions ) = 0;
      // What came after the position that since() was asked for can't be had any more, or belongs to another life.
      virtual void gapIs( std::string reason ) = 0;
      // The database can't be reached, or has answered with an error. Everything that was asked of it is off.
      virtual void unreachable( std::string reason ) = 0;
      // It can be reached and holds no state: nobody has loaded one.
      virtual void withoutState( std::string reason ) = 0;
      // Another agent serves this slice.
      virtual void refused( std::string reason ) = 0;
      // What comes behind the position that since() was asked for will be told. Only where it was begun anew: after a
      // snapshot, or when the database could not be reached.
      virtual void follows() {}
   };

   virtual ~Database() = default;

   void followerIs( Follower * follower ) { follower_ = follower; }
   // For people: where it is, without a password.
   virtual std::string name() const = 0;

   virtual void snapshot() = 0;
   virtual void since( Position const & position ) = 0;
   // May be lost where the database can't be reached; the next one says all that is still so.
   virtual void publish( Report const & report ) = 0;
   // Nothing is asked any more: no answer comes from now on.
   virtual void stop() = 0;
   // Called now and then, with the watchdog: what a database should look after while nothing happens.
   virtual void tick() {}

 protected:
   Follower * follower() const { return follower_; }

 private:
   Follower * follower_ = nullptr;
};

// Why what was followed goes on no more, as all databases tell it.
constexpr char const * anotherStateText = "another state was loaded";
// Why a database holds no state, as all of them tell it.
constexpr char const * noStateText = "the database holds no state yet; load one: l3sm state load FILE";
constexpr char const * lostStateText =
   "the database has lost its state: there is not one path; load it again: l3sm state load FILE";

} // namespace Live
