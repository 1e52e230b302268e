// An agent as a process: everything that `l3sm serve` puts together around a SliceAgent, and its life from the first
// line to the last.
//
//    Daemon daemon( { .scenario = readScenario( "switch.json" ), .database = "redis+unix:///run/redis.sock" } );   //
//    InputError return daemon.run();                          // until SIGTERM, SIGINT or `ctl exit`
//
// Threading: one at a time in a process.
#pragma once

#include "agent/SliceAgent.h"

namespace Live {

struct DaemonOptions {
   Inspection::Scenario scenario; // without events; its slice is the agent's
   U32 cell = 1;
   std::string database = {}; // an URL; empty: the process itself
   std::string version = {};
};

class Daemon {
 public:
   explicit Daemon( DaemonOptions options );
   ~Daemon();
   Daemon( Daemon const & ) = delete;
   Daemon & operator=( Daemon const & ) = delete;

   // The exit status.
   int run();

   EventLoop & loop();
   SliceAgent & agent();

 private:
   struct Parts;
   std::unique_ptr< Parts > parts_;
};

} // namespace Live
