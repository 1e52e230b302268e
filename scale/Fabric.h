// A whole fabric in a virtual time: a cluster, its agents, who writes; and what is seen of it.
//
//    Fabric fabric( costs, { .agents = 1000, .interfaces = 1000 }, 1 );      // the seed
//    Seen const start = fabric.starts();
//    Seen const change = fabric.changes( 1, 1 );                             // one
//    Seen const busy = fabric.changes( 20, 10 );                             // 20 a second, for ten
//    fabric.isConverged();
//
// The same seed gives the same, to the nanosecond.
//
// Threading: one thread; one at a time in a process.
#pragma once

#include "scale/FabricAgent.h"

#include <random>

namespace Scale {

// Of a stretch of time, until every agent has reported what was written in it.
struct Seen {
   Rex::Seconds lasted = 0;
   Rex::Seconds half = 0; // of all lags from a write to the chips of an agent
   Rex::Seconds most = 0; // of 99 in 100
   Rex::Seconds last = 0;
   Rex::Seconds worked = 0; // the cluster's processors
   double share = 0;        // of what they could have
   FabricCluster::Counts counts = {};
};

class Fabric {
 public:
   Fabric( Costs const & costs, FabricSize const & size, U64 seed );

   // All within a second, as after a failure of power.
   Seen starts();
   Seen changes( std::size_t count, double perSecond );
   // A member is killed, while one writes; with `isCompacted`, the revisions are gone when its agents come elsewhere.
   Seen losesMember( std::size_t member, bool isCompacted );
   // Every agent runs, and holds what the cluster holds.
   bool isConverged() const;

 private:
   struct Lags final : public Live::AgentOnlooker {
      explicit Lags( Fabric & fabric ) : fabric_( fabric ) {}
      void transactionPlayed( Transaction const & transaction, Rex::Seconds duration ) override;

    private:
      Fabric & fabric_;
   };

   double random(); // 0 to 1
   void write();
   bool isSettled() const;
   Seen seen( std::function< void() > const & what );

   VirtualTime time_;
   std::mt19937_64 random_;
   FabricSize size_;
   FabricCluster cluster_;
   Lags onlooker_{ *this };
   std::vector< std::unique_ptr< FabricAgent > > agents_;
   std::vector< Rex::Seconds > written_; // when, by revision
   std::vector< Rex::Seconds > lags_;
};

} // namespace Scale
