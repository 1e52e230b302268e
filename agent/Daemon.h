// An agent as a process: everything that `l3sm serve` puts together around a SliceAgent, and its life from the first
// line to the last.
//
//    Daemon daemon( { .scenario = readScenario( "switch.json" ), .database = "redis+unix:///run/redis.sock" } );   //
//    InputError return daemon.run();                          // until SIGTERM, SIGINT or `ctl exit`
//
// Threading: one at a time in a process.
#pragma once

#include "agent/SliceAgent.h"
#include "agent/database/EtcdAddress.h"

namespace Live {

struct DaemonOptions {
   static constexpr Rex::Seconds usualAudit = 60;

   Inspection::Scenario scenario; // without events; its slice is the agent's
   U32 cell = 1;
   std::string database = {}; // an URL; empty: the process itself
   DatabaseCredentials credentials = {};
   std::string socket = {};         // empty: the usual one of the slice
   std::string record = {};         // a folder; empty: nothing is recorded
   std::string metrics = {};        // a file or an address; empty: they can be asked for
   std::string trace = {};          // a file (TraceFile.h); empty: nothing is traced before `trace set`
   Rex::Seconds audit = usualAudit; // in which all of every chip is looked at; 0: on demand alone
   std::string chipsFile = {}; // that the chips stand in; empty: what the service manager keeps, where there is one
   bool isDriftHeld = false;   // what a start would change waits for `ctl repair`
   std::optional< U32 > faultSeed = {}; // chips fail now and then, under this seed
   std::string version = {};
   std::string plugin = {}; // which build of it is loaded
};

class Daemon {
 public:
   explicit Daemon( DaemonOptions const & options );
   ~Daemon();
   Daemon( Daemon const & ) = delete;
   Daemon & operator=( Daemon const & ) = delete;

   // The exit status.
   int run();

 private:
   struct Parts;
   std::unique_ptr< Parts > parts_;
};

} // namespace Live
