// What an agent tells of itself, written into the database: one transaction a report, or some where it doesn't fit into
// one, the agent's own key last. While one is under way, and for a tenth of a second after it, the next ones become
// one: a slow server costs no memory, and an agent that plays much writes little.
//
// The first on a connection is to be whole (Report::isWhole): what another process has left there goes.
//
// A cluster that has no space left for it is told of in the log, and asked again after some seconds: what the agent
// follows can be read all the same.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/Database.h"
#include "agent/database/EtcdLease.h"

#include <optional>

namespace Live {

class EtcdPublisher {
 public:
   EtcdPublisher( EventLoop & loop, EtcdLayout const & layout, EtcdLease const & lease, std::string slice )
      : loop_( loop ), layout_( layout ), lease_( lease ), slice_( std::move( slice ) ) {}

   // `fails`: the connection is of no use any more, or the slice is another's.
   void publish( EtcdClient & client, Report const & report, std::function< void( std::string const & ) > fails );
   // The connection is another one.
   void begin();

 private:
   void merge( Report const & report );
   void gather();
   void write();
   void written( EtcdReply const & reply );
   EtcdTransaction transaction() const;

   EventLoop & loop_;
   EtcdLayout layout_;
   EtcdLease const & lease_;
   std::string slice_;
   EtcdClient * client_ = nullptr;
   std::function< void( std::string const & ) > fails_;
   std::optional< Report > waiting_; // all but what is published
   bool isWhole_ = false;
   Paths published_;                     // as it stands there, or is going to
   std::set< std::string > changed_;     // of it
   std::vector< EtcdTransaction > rest_; // of the report under way, the next one last
   bool isUnderWay_ = false;
   EventLoop::Source again_;
   Tether tether_;
};

} // namespace Live
