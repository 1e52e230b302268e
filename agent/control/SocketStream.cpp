#include "agent/control/SocketStream.h"

#include "agent/control/ControlSocket.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>

namespace Live {

namespace {

constexpr std::size_t bufferBytes = 1 << 16;

} // namespace

SocketBuffer::SocketBuffer( int socket, int patience, std::atomic< U64 > & written )
   : socket_( socket ), patience_( patience ), written_( written ), buffer_( bufferBytes ) {
   drop();
}

int SocketBuffer::overflow( int letter ) {
   send( ' ' );
   *pptr() = static_cast< char >( letter );
   pbump( 1 );
   return letter;
}

void SocketBuffer::send( char lineEnd ) {
   std::replace( pbase(), pptr(), '\n', ' ' );
   if ( lineEnd == '\n' && pptr() > pbase() ) {
      pptr()[-1] = lineEnd;
   }
   for ( char const * from = pbase(); from < pptr(); ) {
      auto const sent =
         ::send( socket_, from, static_cast< std::size_t >( pptr() - from ), MSG_NOSIGNAL | MSG_DONTWAIT );
      if ( sent > 0 ) {
         from += sent;
         written_ += static_cast< U64 >( sent );
         continue;
      }
      if ( errno == EINTR ) {
         continue;
      }
      pollfd client{ socket_, POLLOUT, 0 };
      bool const mayWait = errno == EAGAIN || errno == EWOULDBLOCK;
      if ( !mayWait || ::poll( &client, 1, patience_ * millisecondsInSecond ) == 0 ) {
         throw Stuck();
      }
   }
   drop();
}

} // namespace Live
