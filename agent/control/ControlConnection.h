// A client of the control socket: its requests, one line each, and their answers, one after the other.
//
//    ControlConnection connection( loop, std::move( socket ), peer, limits,
//                                  { .line = [&]( std::string const & line ) { … connection.answer( text ); },
//                                    .ended = [&]( std::string const & why ) { … it goes … } } );
//
// A client that doesn't read its answer is asked for nothing more until it has, and dropped after a while. As long as
// an answer is under way, what it sends waits in the kernel: nothing that a client does makes the agent hold more than
// a line and an answer of it.
//
// Threading: the agent's loop.
#pragma once

#include "agent/EventLoop.h"
#include "agent/control/ControlSocket.h"

namespace Live {

struct ConnectionLimits {
   std::size_t line = std::size_t{ 1 } << 20; // bytes of a request
   Rex::Seconds patience = 10;                // that a client may leave an answer unread
};

class ControlConnection {
 public:
   struct Owner {
      // A request has come. What answers it: answer(), or later, after busyIs( true ).
      std::function< void( std::string const & line ) > line;
      // The connection is over: it is to be destroyed, at once if need be. `why` is empty where the client wanted it.
      std::function< void( std::string const & why ) > ended;
   };

   ControlConnection( EventLoop & loop, Descriptor socket, Peer peer, ConnectionLimits limits, Owner owner );

   Peer const & peer() const { return peer_; }
   int socket() const { return socket_.number(); }
   // The line goes to the client; nothing for nobody.
   void answer( std::string const & line );
   // The same, and then the connection ends.
   void lastAnswer( std::string const & line, std::string why );
   // Somebody else writes the answer; the client's next request waits until that is over.
   void busyIs( bool busy );
   // Nothing is asked, nothing under way, since then.
   bool isIdle() const { return !isBusy_ && out_.empty() && in_.empty(); }
   Rex::Seconds lastHeard() const { return lastHeard_; }

 private:
   void ready( U32 events );
   void receive();
   void send();
   void goOn();
   void serve();
   bool isWaitingForClient() const { return isBusy_ || !out_.empty(); }
   std::size_t lineEnd();

   EventLoop & loop_;
   Descriptor socket_;
   Peer peer_;
   ConnectionLimits limits_;
   Owner owner_;
   std::string in_;
   std::size_t searched_ = 0; // of it, without the end of a line
   std::string out_;
   bool isBusy_ = false;
   bool hasAll_ = false; // the client sends nothing any more
   bool isLast_ = false; // nothing is served any more
   bool isGone_ = false;
   std::string why_;
   Rex::Seconds lastHeard_;
   EventLoop::Source ready_;
   EventLoop::Source again_;
   EventLoop::Source unread_;
};

} // namespace Live
