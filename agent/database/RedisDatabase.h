// The state in a Redis, as an agent follows it: how it lies there is told in RedisLayout.h.
//
//    RedisDatabase database( loop, RedisAddress::of( "redis+unix:///run/redis/redis.sock" ), 1, "Linecard3" );
//    database.followerIs( &agent );
//    database.snapshot();
//
// Three connections: one for what is asked, one that waits at the end of the log, and one on which the server tells
// that the epoch was changed, so that a flushed database is noticed while nothing is written. Where it can't tell that,
// tick() finds it out.
//
// Nothing is asked before the agent has the right to serve its slice (RedisLease.h). Who stands still for longer than
// it lasts, and finds it taken, is refused.
//
// Transactions come in pages of up to 1,000. One more is read ahead; what waits behind it is in the log.
//
// Threading: the agent's loop. Answers come from the loop, never from within a call.
#pragma once

#include "agent/database/Database.h"
#include "agent/database/RedisLease.h"
#include "agent/database/RedisPublisher.h"
#include "agent/database/RedisReader.h"
#include "agent/database/RedisSnapshot.h"

namespace Live {

class RedisDatabase final : public Database {
 public:
   RedisDatabase( EventLoop & loop, RedisAddress const & address, U32 cell, std::string const & slice );
   ~RedisDatabase() override;

   std::string name() const override { return address_.name(); }
   void snapshot() override;
   void since( Position const & position ) override;
   void publish( Report const & report ) override;
   void stop() override;
   void tick() override;

 private:
   void withRight( std::function< void() > what );
   void hearOfEpochs();
   void lookAtLog();
   void ends();
   void fails( std::string const & reason );
   void refuses( std::string const & who );
   void holdsNothing( std::string const & reason );

   EventLoop & loop_;
   RedisAddress address_;
   RedisLayout layout_;
   std::string clientName_;
   RedisLease lease_;
   RedisPublisher publisher_;
   std::unique_ptr< RedisConnection > asking_;
   bool hasRight_ = false;
   std::function< void() > wanted_; // once we have the right
   std::unique_ptr< RedisConnection > hearing_;
   std::unique_ptr< RedisSnapshot > snapshot_;
   std::unique_ptr< RedisReader > reader_;
   Tether tether_;
};

} // namespace Live
