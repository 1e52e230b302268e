// A conversation with one member of an etcd's cluster, on the loop of the agent.
//
//    EtcdClient client( loop, address, 0, [&]( std::string reason ) { … } );           // it is lost
//    client.ask( "kv/range", EtcdRange{ key }.text(), [&]( EtcdReply const & reply ) { … } );
//    auto const watch = client.stream( "watch", body, [&]( EtcdReply const & reply ) { … } );
//
// It signs on by itself, and again when its token has run out. A member that doesn't answer in time, or has no leader,
// ends the conversation, and so does an error that it answers with, unless who asks wants to hear of errors himself.
//
// From within `lost`, or an answer, the client may be destroyed. No answer comes then.
//
// Threading: the agent's loop. Answers come from the loop, never from within a call.
#pragma once

#include "agent/database/EtcdAddress.h"
#include "agent/database/EtcdMessages.h"
#include "agent/database/HttpTransfers.h"

#include <list>

namespace Live {

class EtcdClient {
 public:
   using Answer = std::function< void( EtcdReply const & ) >;
   using Lost = std::function< void( std::string ) >;
   enum class Errors : U8 { endConnection, areTold }; // the latter in EtcdReply::error

   // `member`: of those that the address has.
   EtcdClient( EventLoop & loop, EtcdAddress const & address, std::size_t member, Lost lost );
   EtcdClient( EtcdClient const & ) = delete;
   EtcdClient & operator=( EtcdClient const & ) = delete;

   void ask( std::string const & what, std::string const & body, Answer answer, Errors errors = Errors::endConnection );

   // As long as it lives, an answer comes each time that there is something to tell.
   class Stream {
    public:
      // What comes waits until it may.
      void rests( bool does ) const { transfer_.rests( does ); }

    private:
      friend EtcdClient;
      HttpTransfers::Transfer transfer_;
      std::string line_;
      std::shared_ptr< char > life_ = std::make_shared< char >();
   };
   [[nodiscard]] std::unique_ptr< Stream > stream( std::string const & what, std::string const & body, Answer answer );

   // The last words, said at once; whoever hears them needn't answer.
   void sayAndGo( std::string const & what, std::string const & body ) const;

   EtcdAddress const & address() const { return address_; }

 private:
   // What is asked, and asked again where the token has run out.
   struct Question {
      std::string what;
      std::string body;
      Answer answer;
      Errors errors;
      bool isRepeated = false;
      bool isSent = false;
      std::string token = {}; // that it was sent with
      HttpTransfers::Transfer transfer = {};
   };
   using Place = std::list< Question >::iterator;

   HttpTransfers::Request request( std::string const & what, std::string const & body ) const;
   void signOn();
   void send( Place question );
   void answered( Place question, HttpTransfers::Ending const & ending );
   void fails( std::string const & reason );

   EtcdAddress address_;
   std::string url_;
   Lost lost_;
   bool isOn_; // signed on, or nobody wants it
   bool isLost_ = false;
   std::string token_;
   std::list< Question > questions_;
   HttpTransfers transfers_;
};

} // namespace Live
