// A conversation with an etcd's cluster for who waits for its answers: the command line. Where a member is lost, it
// goes on with the next one, for up to ten seconds.
//
//    EtcdSession session( address );
//    EtcdReply const reply = session.ask( "kv/range", EtcdRange{ key }.text() );      // Inspection::InputError
//    auto const written = session.tell( "kv/txn", transaction.text() );              // nothing: nobody knows
//
// Threading: none; while it waits, everything on its loop is served.
#pragma once

#include "agent/database/EtcdSnapshot.h"

#include <chrono>
#include <optional>

namespace Live {

class EtcdSession {
 public:
   explicit EtcdSession( EtcdAddress const & address ) : address_( address ) {}

   EventLoop & loop() { return loop_; }
   EtcdAddress const & address() const { return address_; }
   // As often as it takes: what changes nothing, or may be done twice.
   EtcdReply ask( std::string const & what, std::string const & body );
   // Once. Nothing where no answer came: it may have been done, or may be yet.
   std::optional< EtcdReply > tell( std::string const & what, std::string const & body );
   // Throws where it holds none.
   Snapshot snapshot( EtcdLayout const & layout, EtcdSnapshot::Parts const & parts );

   [[noreturn]] void refuse( std::string const & what ) const;

 private:
   using Clock = std::chrono::steady_clock;

   EtcdClient & client();
   // Turns the loop until it is so; false where the member is lost.
   template< class Condition >
   bool until( Condition const & holds ) {
      while ( client_ && !holds() ) {
         loop_.turn( 1 );
      }
      return client_ != nullptr;
   }
   // On to the next member; throws where that makes no sense any more.
   void next( Clock::time_point since );
   void lost( std::string const & reason );

   EventLoop loop_;
   EtcdAddress address_;
   std::size_t member_ = 0;
   std::size_t failures_ = 0; // since somebody has answered
   bool hasAnswered_ = false;
   std::string reason_;
   std::unique_ptr< EtcdClient > client_;
   std::unique_ptr< EtcdClient > gone_; // which has just told that it is lost
};

} // namespace Live
