#include "agent/control/ControlServer.h"

#include <algorithm>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace Live {

using Rex::Value;

ControlServer::ControlServer( EventLoop & loop, Commands const & commands, Options options )
   : loop_( loop ), commands_( commands ), options_( std::move( options ) ), listening_( listenAt( options_.path ) ),
     copies_( loop, options_.copies ) {
   ready_ = loop_.io( listening_.number(), EPOLLIN, [this]( U32 ) { accept(); } );
}

ControlServer::~ControlServer() {
   ::unlink( options_.path.c_str() );
}

void ControlServer::accept() {
   Descriptor socket( ::accept4( listening_.number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK ) );
   if ( !socket ) {
      return;
   }
   Peer const peer = options_.peerOf( socket.number() );
   if ( clients_.size() >= options_.clients && !makeRoom() ) {
      std::string const why = "there are " + std::to_string( clients_.size() ) + " clients already";
      std::string const line = errorLine( {}, CommandError::tooMuch, why );
      ::send( socket.number(), line.data(), line.size(), MSG_NOSIGNAL | MSG_DONTWAIT );
      options_.log( "control: " + peer.text() + " was refused: " + why );
      return;
   }
   auto const client = clients_.insert( clients_.end(), Client() );
   client->connection = std::make_unique< ControlConnection >(
      loop_,
      std::move( socket ),
      peer,
      options_.connection,
      ControlConnection::Owner{ .line = [this, client]( std::string const & line ) { served( client, line ); },
                                .ended = [this, client]( std::string const & why ) { drop( client, why ); } } );
}

bool ControlServer::makeRoom() {
   auto longest = clients_.end();
   for ( auto at = clients_.begin(); at != clients_.end(); ++at ) {
      ControlConnection const & connection = *at->connection;
      if ( connection.isIdle() && Rex::now() - connection.lastHeard() >= options_.idle &&
           ( longest == clients_.end() || connection.lastHeard() < longest->connection->lastHeard() ) ) {
         longest = at;
      }
   }
   if ( longest == clients_.end() ) {
      return false;
   }
   std::string const why = "others wait for the place, and it asks for nothing";
   longest->connection->answer( errorLine( {}, CommandError::tooMuch, why ) );
   drop( longest, why );
   return true;
}

void ControlServer::served( Place client, std::string const & line ) {
   Request request;
   try {
      request = requestOf( line );
   } catch ( RequestError const & error ) {
      client->connection->answer( errorLine( error.id, error.code(), error.what() ) );
      return;
   }
   try {
      call( client, request );
   } catch ( ... ) {
      if ( request.id ) {
         auto const error = commandErrorOf( std::current_exception() );
         client->connection->answer( errorLine( *request.id, error.code(), error.what() ) );
      }
   }
}

bool ControlServer::mayChange( Peer const & peer ) const {
   return peer.user == 0 || peer.user == ::geteuid();
}

void ControlServer::call( Place client, Request const & request ) {
   Command const & command = commands_.named( request.method );
   if ( command.changes && !mayChange( client->connection->peer() ) ) {
      throw CommandError( CommandError::noRight,
                          command.name + " changes the agent: only its owner and root may; this is user " +
                             std::to_string( client->connection->peer().user ) );
   }
   Answer answer = command.answer( Arguments( command, request.params ) );
   if ( command.changes ) {
      options_.changed( command.name, request.params );
   }
   if ( !request.id ) {
      return;
   }
   if ( auto * const value = std::get_if< Value >( &answer ) ) {
      client->connection->answer( answerLine( *request.id, *value ) );
   } else {
      begin( client, *request.id, std::move( std::get< LongAnswer >( answer ) ) );
   }
}

void ControlServer::begin( Place client, Value const & id, LongAnswer answer ) {
   LongCall call{ .socket = client->connection->socket(), .id = id, .answer = std::move( answer ) };
   client->copy = copies_.begin( std::move( call ), [this, client, id]( CopyEnd const & end ) {
      client->copy.reset();
      if ( !end.isWhole && end.hasBegun ) {
         drop( client, "its answer broke off: " + end.what );
         return;
      }
      if ( !end.isWhole ) {
         client->connection->answer( errorLine( id, CommandError::refused, end.what ) );
      }
      client->connection->busyIs( false );
   } );
   client->connection->busyIs( true ); // where nothing failed before
}

void ControlServer::drop( Place client, std::string const & why ) {
   if ( !why.empty() ) {
      options_.log( "control: " + client->connection->peer().text() + " was dropped: " + why );
   }
   if ( client->copy ) {
      copies_.forget( *client->copy );
   }
   clients_.erase( client );
}

} // namespace Live
