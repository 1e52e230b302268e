// The cluster of a simulated fabric: what an etcd does for agents, in a virtual time, at measured costs.
//
//    FabricCluster cluster( time, costs, state );
//    cluster.write( { change } );                      // a writer's transaction; watchers are told when it is
//    committed cluster.works( member, cost, [] { … } );          // what anybody asks of a member
//
// Each member has its processors, of which the one that is free first takes what comes, and a disk; what comes while
// that is being written waits for the next time, all of it together. A write costs every member as much as the one that
// was asked: no more is known. Agents are spread over the members, and are told by theirs.
//
// Threading: one thread.
#pragma once

#include "agent/VirtualTime.h"
#include "agent/database/Database.h"
#include "scale/Costs.h"

#include <deque>

namespace Scale {

using Live::Paths;
using Live::Transaction;
using Live::VirtualTime;

class FabricCluster {
 public:
   using Told = std::shared_ptr< Transaction const >;

   // A stream to an agent.
   class Watch {
    public:
      virtual ~Watch() = default;
      // On the wire already.
      virtual void comes( Told const & transaction ) = 0;
   };
   // Who has a connection to a member.
   class Client {
    public:
      virtual ~Client() = default;
      virtual void isLost() = 0;
   };
   struct Counts {
      U64 writes = 0;
      U64 deliveries = 0;
      U64 reports = 0;
      U64 snapshotKeys = 0;
      U64 publishedKeys = 0;
      U64 syncs = 0;
   };

   FabricCluster( VirtualTime & time, Costs const & costs, Paths state );

   VirtualTime & time() { return time_; }
   Costs const & costs() const { return costs_; }
   Counts & counts() { return counts_; }
   // Of processors, over all members.
   Rex::Seconds worked() const { return worked_; }
   U64 revision() const { return revision_; }
   std::shared_ptr< Paths const > state() const { return state_; }
   Live::Position position() const { return positionAt( revision_ ); }

   void works( std::size_t member, Rex::Seconds cost, std::function< void() > done );
   // Written by a majority: every member works, one disk is waited for.
   void commits( std::size_t member, Rex::Seconds cost, std::function< void() > done );
   void write( std::vector< Inspection::Event > changes );

   bool isUp( std::size_t member ) const { return members_[member].isUp; }
   std::size_t memberFor( std::size_t wanted ) const;
   void dies( std::size_t member );
   void comes( std::size_t member, Client & client );
   void goes( Client & client );
   // From behind a revision on; false: that is compacted.
   bool watch( std::size_t member, Watch & watch, U64 behind );
   void forget( Watch & watch );
   void compacts() { log_.clear(); }

   static U64 revisionOf( Live::Position const & position ) { return std::stoull( position.entry ); }

 private:
   struct Member {
      std::vector< VirtualTime::Nanoseconds > busyUntil; // its processors
      std::vector< Watch * > watches;
      std::vector< Client * > clients;
      bool isUp = true;
   };

   Live::Position positionAt( U64 revision ) const { return { "fabric", "life", std::to_string( revision ) }; }
   void sync();
   void tell( std::size_t member, Watch & watch, Told const & transaction );
   bool has( std::size_t member, Watch const & watch ) const;

   VirtualTime & time_;
   Costs costs_;
   Counts counts_;
   Rex::Seconds worked_ = 0;
   std::vector< Member > members_;
   std::shared_ptr< Paths > state_;
   U64 revision_ = 1;
   std::deque< Told > log_; // the last ones
   std::vector< std::function< void() > > unsynced_;
   bool isSyncing_ = false;
};

} // namespace Scale
