// What one agent of a simulated fabric tells of itself, as EtcdPublisher writes it: reports that come while one is
// under way, and for a breath after it, become one; what is published is written in transactions of as many keys as a
// server takes, the agent's own key last.
//
//    FabricPublisher publisher( loop, weight );
//    publisher.publish( connection, report );
//
// Threading: the agent's loop.
#pragma once

#include "scale/FabricConnection.h"

namespace Scale {

class FabricPublisher {
 public:
   FabricPublisher( Live::EventLoop & loop, std::size_t weight ) : loop_( loop ), weight_( weight ) {}

   void publish( FabricConnection & connection, Live::Report const & report );
   // The connection is another one.
   void begin();

   // The last revision that the database has a report of.
   U64 reported() const { return reported_; }

 private:
   void gather();
   void write( std::size_t left );
   void written( std::size_t left, U64 applied );

   Live::EventLoop & loop_;
   std::size_t weight_;
   FabricConnection * connection_ = nullptr;
   bool isUnderWay_ = false;
   bool isWaiting_ = false;
   std::size_t keys_ = 0; // to be published
   U64 applied_ = 0;
   U64 reported_ = 0;
   Live::EventLoop::Source again_;
   Live::Tether tether_;
};

} // namespace Scale
