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
// Who stands still for longer than the right to serve its slice lasts (RedisLease.h), and finds it taken, is refused.
//
// Transactions come in pages of up to 1,000. One more is read ahead; what waits behind it is in the log.
//
// Threading: the agent's loop. Answers come from the loop, never from within a call.
#pragma once

#include "agent/database/CentralDatabase.h"
#include "agent/database/RedisLease.h"
#include "agent/database/RedisPublisher.h"
#include "agent/database/RedisReader.h"
#include "agent/database/RedisSnapshot.h"

namespace Live {

class RedisDatabase final : public CentralDatabase< RedisConnection, RedisSnapshot, RedisReader > {
 public:
   RedisDatabase( EventLoop & loop, RedisAddress const & address, U32 cell, std::string const & slice );
   ~RedisDatabase() override;

   std::string name() const override { return address_.name(); }
   void publish( Report const & report ) override;
   void tick() override;

 private:
   std::unique_ptr< RedisConnection > newConnection() override;
   void takesRight() override;
   void givesRightUp() override;
   std::unique_ptr< RedisSnapshot > newSnapshot( SnapshotAnswers answers ) override;
   std::unique_ptr< RedisReader > newReader( Position const & position, ReaderAnswers answers ) override;
   void rests() override;

   RedisConnection::Lost lost();
   void hearOfEpochs();
   void lookAtLog();

   EventLoop & loop_;
   RedisAddress address_;
   RedisLayout layout_;
   std::string clientName_;
   RedisLease lease_;
   RedisPublisher publisher_;
   std::unique_ptr< RedisConnection > hearing_;
};

} // namespace Live
