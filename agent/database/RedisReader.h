// Reads the log from a place on, on a connection of its own, on which it waits.
//
//    RedisReader reader( loop, address, "l3sm:Linecard3", layout, position, { … } );
//
// The next page is asked for before one is told, so the server reads while it is played; it is told when more() asks for
// it, and none is asked for behind it before. So who plays slowly finds the rest in the log. It ends with a gap, with a state that is gone, or with its connection. From within the answers it may be
// destroyed.
//
// Threading: the agent's loop.
#pragma once

#include "agent/database/RedisLog.h"
#include "agent/database/Tether.h"

namespace Live {

class RedisReader {
 public:
   struct Answers {
      std::function< void( std::vector< Transaction > ) > are;
      std::function< void( std::string const & ) > gap;
      std::function< void( std::string const & ) > without;
      std::function< void( std::string const & ) > lost;
   };

   RedisReader( EventLoop & loop,
                RedisAddress const & address,
                std::string const & clientName,
                RedisLayout const & layout,
                Position position,
                Answers answers );

   // Goes on with what comes behind the page that was told last; false if that is another place.
   bool more( Position const & position );
   // What somebody else has seen of the log after now is judged by where this stands now.
   std::function< void( LogState const & ) > judge();
   Rex::Seconds silentFor() const { return connection_.silentFor(); }

 private:
   void begin();
   void next();
   void tell( std::vector< Transaction > transactions );
   // Whether it goes on.
   bool goesOn( Position const & from, LogState const & state );

   EventLoop & loop_;
   RedisLayout layout_;
   Position position_; // up to which was read
   Position told_;
   bool isAsked_ = true;               // for the next page
   std::vector< Transaction > kept_{}; // a page that nobody has asked for yet
   Answers answers_;
   std::string server_;
   RedisConnection connection_;
   Tether tether_;
};

} // namespace Live
