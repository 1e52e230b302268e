// The metrics over HTTP, on a loopback address: http://127.0.0.1:9109/metrics.
//
//    MetricsServer server( loop, "127.0.0.1:9109", metrics );      // InputError; also "localhost:9109", "[::1]:9109"
//
// It answers from the agent's loop, a few clients at a time, each of which is given seconds, and has no thread.
// Whatever a client does, the agent goes on.
//
// Threading: the agent's loop.
#pragma once

#include "agent/EventLoop.h"
#include "agent/metrics/Metrics.h"

struct MHD_Daemon;

namespace Live {

class MetricsServer {
 public:
   // Whether a text means an address, not a file: it has no slash, and a port.
   static bool isAddress( std::string const & text );

   // Port 0: one that is free. `patience`: how many seconds a client has to say something.
   MetricsServer( EventLoop & loop, std::string const & address, Metrics const & metrics, unsigned patience = 10 );
   ~MetricsServer();
   MetricsServer( MetricsServer const & ) = delete;
   MetricsServer & operator=( MetricsServer const & ) = delete;

   U16 port() const;

 private:
   void serve();

   Metrics const & metrics_;
   MHD_Daemon * daemon_;
   EventLoop & loop_;
   EventLoop::Source clients_;
   EventLoop::Source patience_; // with clients that are slow
};

} // namespace Live
