// An agent of a simulated fabric: follows its database with the code that a real one has (agent/StateFollower.h); where
// that one's plug-in would program chips, time goes by.
//
//    FabricAgent agent( cluster, number, size );
//    agent.begin();
//
// Threading: one thread.
#pragma once

#include "agent/StateFollower.h"
#include "scale/FabricDatabase.h"

namespace Scale {

// What stands in the state of a cell, and how much of it is simulated.
struct FabricSize {
   std::size_t agents = 0;
   std::size_t interfaces = 0;

   static constexpr std::size_t keysOfAnInterface = 4;
   static constexpr std::size_t publishedOfAnInterface = 2;
   static constexpr std::size_t paths = 100; // that are there; each stands for as many as make up the keys

   std::size_t weight() const { return interfaces * keysOfAnInterface / paths; }
   std::size_t publishedPaths() const { return interfaces * publishedOfAnInterface / weight(); }
   Paths state() const;
   static std::string pathOf( std::size_t number );
};

// Has its loop and its database before what follows that is made.
class FabricAgentParts {
 protected:
   class CostlyDoor final : public Live::Door {
    public:
      explicit CostlyDoor( FabricCluster & cluster ) : cluster_( cluster ) {}
      void play( std::vector< Inspection::Event > const & changes ) override {
         cluster_.time().spends( static_cast< double >( changes.size() ) * cluster_.costs().agent.delivery );
      }

    private:
      FabricCluster & cluster_;
   };

   FabricAgentParts( FabricCluster & cluster, std::size_t number, FabricSize const & size )
      : ownLoop( cluster.time() ), ownDatabase( ownLoop, cluster, number, size.weight() ), door( cluster ) {}

   Live::EventLoop ownLoop;
   FabricDatabase ownDatabase;
   CostlyDoor door;
};

class FabricAgent final : private FabricAgentParts, public Live::StateFollower {
 public:
   FabricAgent( FabricCluster & cluster, std::size_t number, FabricSize const & size )
      : FabricAgentParts( cluster, number, size ),
        StateFollower( ownLoop, ownDatabase, FabricAgentParts::door, {}, "simulated" ), cluster_( cluster ),
        size_( size ) {}
   ~FabricAgent() override { ends(); }

   U64 reported() const { return ownDatabase.reported(); }

 private:
   void start( std::vector< Inspection::Event > const & ) override {
      cluster_.time().spends( cluster_.costs().agent.start );
   }
   Paths takePublished( bool isWhole ) override;

   FabricCluster & cluster_;
   FabricSize size_;
};

} // namespace Scale
