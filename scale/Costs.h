// What things cost, as bench/FabricBench has measured it, and what is taken for granted beside that.
//
//    Costs const costs = Costs::of( Inspection::readJson( "scale/costs.json" ) );      // InputError
//    costs.server.write;                                    // a writer's transaction, in seconds of a processor
//
// Threading: plain data.
#pragma once

#include "inspection/files/Json.h"
#include "rex/Clock.h"

namespace Scale {

struct Costs {
   // Of a member of the cluster, in seconds of one of its processors.
   struct Server {
      Rex::Seconds write;        // a transaction of a writer's
      Rex::Seconds delivery;     // telling one agent of it
      Rex::Seconds report;       // an agent's transaction
      Rex::Seconds snapshotKey;  // reading one, in a page
      Rex::Seconds publishedKey; // writing one
      Rex::Seconds start;        // an agent that comes: its lease, and its watch
      Rex::Seconds idleSecond;   // one that is there
      Rex::Seconds sync;         // its disk
   } server;
   // Of an agent, in seconds of its processor.
   struct Agent {
      Rex::Seconds delivery; // hearing of a change and programming it
      Rex::Seconds report;
      Rex::Seconds start;
      Rex::Seconds snapshotKey;
   } agent;
   // Nobody has measured these here.
   struct Assumed {
      std::size_t members;  // of the cluster
      std::size_t cores;    // of each
      Rex::Seconds latency; // of the network, one way
      Rex::Seconds breath;  // that an agent takes between two reports
   } assumed;

   static Costs of( Rex::Value const & value );
};

} // namespace Scale
