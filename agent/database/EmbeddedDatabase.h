// The database of an agent that has none: its state lives in the process, and is changed through the control socket.
//
//    EmbeddedDatabase database( loop );
//    database.transact( events );            // Rex::ValueError, before anything has changed
//
// Threading: the agent's loop.
#pragma once

#include "agent/EventLoop.h"
#include "agent/database/Database.h"
#include "agent/database/Tether.h"

namespace Live {

class EmbeddedDatabase final : public Database {
 public:
   // `paths`: the state that it begins with, beside what the agent has by itself.
   explicit EmbeddedDatabase( EventLoop & loop, Paths paths = {} );

   std::string name() const override { return "none"; }
   void snapshot() override;
   void since( Position const & position ) override;
   void publish( Report const & ) override {}
   void stop() override;

   // All of them at once. Throws Rex::ValueError for the first that doesn't fit, and nothing has changed then.
   void transact( std::vector< Inspection::Event > changes );

 private:
   Position position() const;
   void hand();

   EventLoop & loop_;
   Paths paths_;
   U64 entry_ = 0;
   std::vector< Transaction > waiting_; // that nobody has asked beyond
   bool isFollowed_ = false;
   Tether tether_; // of what was asked for
};

} // namespace Live
