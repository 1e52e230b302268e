// Reads the log from a place on, on a connection of its own, on which it waits.
//
//    RedisReader reader( loop, address, "l3sm:Linecard3", layout, position, { … } );
//    reader.more( position );                        // when what it has told is done: the next page
//
// A page is asked for before it is wanted, so the server reads while the one before is played; more than one never
// waits here. It ends with a gap, with a state that is gone, or with its connection. From within the answers it may be
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
      std::function< void() > begins; // what comes behind the place will come
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
   // Whether it goes on.
   bool goesOn( Position const & from, LogState const & state );
   void endsWith( std::function< void( std::string const & ) > const & answer, std::string const & reason );
   void tell();

   EventLoop & loop_;
   RedisLayout layout_;
   Position told_; // up to here
   Position read_; // and up to here it was read
   Answers answers_;
   std::string server_;
   bool isWanted_ = true;
   std::vector< Transaction > page_{}; // read, not told
   std::function< void() > end_;       // likewise, behind it
   RedisConnection connection_;
   Tether tether_;
};

} // namespace Live
