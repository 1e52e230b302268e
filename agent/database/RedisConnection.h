// One connection to a Redis, on the loop of the agent.
//
//    RedisConnection connection( loop, address, [&]( std::string reason ) { … } );     // it is lost
//    connection.ask( { "GET", "l3sm:{1}#epoch" }, [&]( RedisReply reply ) { reply.text(); } );
//    connection.ask( … );                                  // at once: answers come in the order of the questions
//
// It signs on by itself: password, database, name. An error that the server answers with ends the connection like a
// broken wire, unless who asks wants to hear of errors himself: a database that can't do one thing of a conversation
// can't be relied on for the rest.
//
// From within `lost`, or an answer, the connection may be destroyed. No answer comes then.
//
// Threading: the agent's loop. Answers come from the loop, never from within a call.
#pragma once

#include "agent/EventLoop.h"
#include "agent/database/RedisAddress.h"
#include "agent/database/RedisReply.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Live {

class RedisConnection {
 public:
   using Words = std::vector< std::string_view >;
   using Answer = std::function< void( RedisReply ) >;
   using Lost = std::function< void( std::string ) >;
   enum class Errors : U8 { endConnection, areTold };
   // endless: it may take as long as it likes, and so may what is asked behind it.
   enum class Patience : U8 { usual, endless };

   RedisConnection( EventLoop & loop, RedisAddress const & address, std::string const & clientName, Lost lost );
   ~RedisConnection();
   RedisConnection( RedisConnection const & ) = delete;
   RedisConnection & operator=( RedisConnection const & ) = delete;

   void ask( Words const & words,
             Answer answer,
             Errors errors = Errors::endConnection,
             Patience patience = Patience::usual );
   // What is published on a channel from now on, as lists {"message", channel, what}; the first answer is {"subscribe",
   // …}. Nothing else can be asked then.
   void subscribe( std::string const & channel, Answer answer );
   // The last thing before the connection is destroyed: what has been asked is on its way.
   void flush();

   // Questions without an answer.
   std::size_t asked() const;
   // Since when the server hasn't answered, though it should have, in seconds.
   Rex::Seconds silentFor() const;
   // Whether there is a server at all.
   bool hasAnswered() const;
   RedisAddress const & address() const { return address_; }

   struct Impl;

 private:
   void signOn( std::string const & clientName );
   void refused( std::string const & error );
   void fails( std::string const & reason );

   RedisAddress address_;
   Lost lost_;
   std::shared_ptr< Impl > impl_;
   EventLoop::Source failure_; // tells soon what has failed at once
};

} // namespace Live
