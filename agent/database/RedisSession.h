// A connection for who waits for its answers: the command line.
//
//    RedisSession session( address );
//    session.ask( { "GET", key }, [&]( RedisReply reply ) { epoch = reply.text(); } );
//    session.wait();                           // Inspection::InputError where the server is gone, or silent for 10 s
//
// Threading: none; while it waits, everything on its loop is served.
#pragma once

#include "agent/database/RedisConnection.h"
#include "agent/database/RedisSnapshot.h"

#include <optional>

namespace Live {

class RedisSession {
 public:
   explicit RedisSession( RedisAddress const & address );

   EventLoop & loop() { return loop_; }
   RedisConnection & connection() { return connection_; }
   void ask( RedisConnection::Words const & words, RedisConnection::Answer answer ) {
      connection_.ask( words, std::move( answer ) );
   }
   // Whatever the answer is.
   void ask( RedisConnection::Words const & words ) {
      ask( words, []( RedisReply ) {} );
   }
   // Until everything that was asked is answered.
   void wait();
   void until( std::function< bool() > const & holds );
   // Throws where it holds none.
   Snapshot snapshot( RedisLayout const & layout, std::function< bool( std::string const & path ) > wanted = {} );

   // The end of the log. Throws likewise.
   Position place( RedisLayout const & layout );
   std::string name() const { return connection_.address().name(); }
   [[noreturn]] void refuse( std::string const & what ) const;

 private:
   EventLoop loop_;
   std::optional< std::string > lost_;
   RedisConnection connection_;
};

} // namespace Live
