// The control socket of an agent: who connects asks, one JSON-RPC request a line, and is answered.
//
//    ControlServer server( loop, commands, { .path = controlPath( slice ) } );     // InputError
//
//    $ echo '{"jsonrpc": "2.0", "id": 1, "method": "status"}' | nc -U /run/l3sm/Linecard3.ctl
//    {"jsonrpc": "2.0", "id": 1, "result": {"phase": "running", …}}
//
// Whoever may connect may look. Commands that change something are for the owner of the agent and for root.
//
// Nothing that a client does keeps the agent from its work: one request of a client is served each time that the loop
// turns; what takes long is answered by a copy of the process; a client that is over a limit is told so and dropped.
// Where all places are taken, the client goes that has asked for nothing the longest, if that is a while.
//
// Threading: the agent's loop.
#pragma once

#include "agent/control/AnsweringCopies.h"
#include "agent/control/ControlConnection.h"
#include "agent/control/JsonRpc.h"

namespace Live {

class ControlServer {
 public:
   struct Options {
      std::string path;
      std::size_t clients = 64;
      Rex::Seconds idle = 60; // after which a client may have to go for another
      ConnectionLimits connection = {};
      AnsweringCopies::Limits copies = {};
      std::function< Peer( int socket ) > peerOf = Live::peerOf;
      // Hears of each command that has changed something.
      std::function< void( std::string const & name, Rex::Value const & given ) > changed = []( std::string const &,
                                                                                                Rex::Value const & ) {};
      // Hears of who was dropped, and why.
      std::function< void( std::string const & line ) > log = []( std::string const & ) {};
   };

   ControlServer( EventLoop & loop, Commands const & commands, Options options );
   // The socket goes from the file system.
   ~ControlServer();
   ControlServer( ControlServer const & ) = delete;
   ControlServer & operator=( ControlServer const & ) = delete;

   std::string const & path() const { return options_.path; }
   std::size_t clients() const { return clients_.size(); }

 private:
   struct Client {
      std::unique_ptr< ControlConnection > connection = {};
      std::optional< AnsweringCopies::Number > copy = {};
   };
   using Place = std::list< Client >::iterator;

   void accept();
   bool makeRoom();
   void served( Place client, std::string const & line );
   void call( Place client, Request const & request );
   void begin( Place client, Rex::Value const & id, LongAnswer answer );
   void drop( Place client, std::string const & why );
   bool mayChange( Peer const & peer ) const;

   EventLoop & loop_;
   Commands const & commands_;
   Options options_;
   Descriptor listening_;
   AnsweringCopies copies_;
   std::list< Client > clients_;
   EventLoop::Source ready_;
};

} // namespace Live
