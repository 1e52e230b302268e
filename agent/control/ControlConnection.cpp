#include "agent/control/ControlConnection.h"

#include "agent/control/JsonRpc.h"

#include <array>
#include <cerrno>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <utility>

namespace Live {

namespace {

constexpr std::size_t requestAtATime = 1 << 16; // that is read at a time

} // namespace

ControlConnection::ControlConnection(
   EventLoop & loop, Descriptor socket, Peer peer, ConnectionLimits limits, Owner owner )
   : loop_( loop ), socket_( std::move( socket ) ), peer_( peer ), limits_( limits ), owner_( std::move( owner ) ),
     lastHeard_( Rex::now() ) {
   ready_ = loop_.io( socket_.number(), EPOLLIN, [this]( U32 events ) { ready( events ); } );
}

void ControlConnection::ready( U32 events ) {
   if ( events & EPOLLIN ) {
      receive();
   } else if ( events & ( EPOLLHUP | EPOLLERR ) ) {
      isGone_ = true; // nobody is there to be answered
   }
   if ( events & EPOLLOUT ) {
      send();
   }
   goOn();
}

void ControlConnection::receive() {
   std::size_t const before = in_.size();
   in_.resize( before + requestAtATime );
   auto const got = ::recv( socket_.number(), in_.data() + before, requestAtATime, MSG_DONTWAIT );
   in_.resize( before + ( got > 0 ? static_cast< std::size_t >( got ) : 0 ) );
   lastHeard_ = Rex::now();
   hasAll_ = hasAll_ || got == 0;
   isGone_ = isGone_ || ( got < 0 && errno != EAGAIN && errno != EINTR );
}

void ControlConnection::send() {
   std::size_t done = 0;
   while ( done < out_.size() ) {
      auto const sent = ::send( socket_.number(), out_.data() + done, out_.size() - done, MSG_NOSIGNAL | MSG_DONTWAIT );
      if ( sent > 0 ) {
         done += static_cast< std::size_t >( sent );
      } else if ( errno != EINTR ) {
         // Who doesn't read any more may still have been sent an answer before.
         isGone_ = isGone_ || ( errno != EAGAIN && errno != EWOULDBLOCK );
         break;
      }
   }
   out_.erase( 0, done );
   if ( out_.empty() ) {
      unread_ = {};
   } else if ( done > 0 || !unread_ ) {
      unread_ = loop_.timer( limits_.patience, [this] {
         isGone_ = true;
         why_ = "it doesn't read its answer";
         goOn();
      } );
   }
}

// Where the first line ends; npos where none is whole. What comes before the end of all is one.
std::size_t ControlConnection::lineEnd() {
   auto const end = in_.find( '\n', searched_ );
   searched_ = end == std::string::npos ? in_.size() : end;
   return end == std::string::npos && hasAll_ && !in_.empty() ? in_.size() : end;
}

// One request: others are waiting, too.
void ControlConnection::serve() {
   auto const end = lineEnd();
   if ( end > limits_.line && in_.size() > limits_.line ) {
      lastAnswer(
         errorLine( {}, CommandError::tooMuch, "a request has at most " + std::to_string( limits_.line ) + " bytes" ),
         "its request is too long" );
      return;
   }
   if ( end == std::string::npos ) {
      return;
   }
   std::string const line = in_.substr( 0, end );
   in_.erase( 0, end + 1 );
   searched_ = 0;
   if ( line.find_first_not_of( " \t\r" ) != std::string::npos ) {
      owner_.line( line );
   }
}

void ControlConnection::goOn() {
   if ( !isGone_ && !isLast_ && !isWaitingForClient() ) {
      serve();
   }
   bool const mayServe = !isLast_ && !isWaitingForClient();
   bool const hasLine = mayServe && lineEnd() != std::string::npos;
   bool const isOver = out_.empty() && ( isLast_ || ( mayServe && hasAll_ && !hasLine ) );
   if ( isGone_ || isOver ) {
      ready_ = {};
      auto const tell = owner_.ended;
      tell( std::string( why_ ) ); // after which this may not be there any more
      return;
   }
   ready_.eventsIs( ( mayServe && !hasLine && !hasAll_ ? EPOLLIN : 0U ) | ( out_.empty() ? 0U : EPOLLOUT ) );
   if ( hasLine ) {
      again_ = loop_.timer( 0, [this] { goOn(); } );
   }
}

void ControlConnection::answer( std::string const & line ) {
   out_ += line;
   send();
}

void ControlConnection::lastAnswer( std::string const & line, std::string why ) {
   isLast_ = true;
   why_ = std::move( why );
   answer( line );
}

void ControlConnection::busyIs( bool busy ) {
   isBusy_ = busy;
   if ( !busy ) {
      again_ = loop_.timer( 0, [this] { goOn(); } );
   }
}

} // namespace Live
