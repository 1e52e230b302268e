// Reads the log from a place on, on a connection of its own, on which it waits.
//
//    RedisReader reader( loop, address, "l3sm:Linecard3", layout, position, { … }, lost );
//
// A page is asked for before it is wanted, so the server reads while the one before is played; more than one never
// waits here. It ends with its connection, too: from within `lost` it may be destroyed.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/RedisLog.h"
#include "agent/database/StateReader.h"

namespace Live {

class RedisReader final : public StateReader {
 public:
   RedisReader( EventLoop & loop,
                RedisAddress const & address,
                std::string const & clientName,
                RedisLayout const & layout,
                Position position,
                Answers answers,
                RedisConnection::Lost lost );

   // What somebody else has seen of the log after now is judged by where this stands now.
   std::function< void( LogState const & ) > judge();
   Rex::Seconds silentFor() const { return connection_.silentFor(); }

 private:
   void readsOn() override;
   void begin();
   // Whether it goes on.
   bool goesOn( Position const & from, LogState const & state );

   RedisLayout layout_;
   Position read_; // up to here
   std::string server_;
   RedisConnection connection_;
};

} // namespace Live
