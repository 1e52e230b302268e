#include "agent/control/ControlSocket.h"

#include "inspection/files/InputError.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace Live {

namespace {

using Inspection::InputError;

constexpr char const * suffix = ".ctl";
constexpr int backlog = 16;
constexpr mode_t ownerAndGroup = 0660;

sockaddr_un addressOf( std::string const & path ) {
   sockaddr_un address{};
   address.sun_family = AF_UNIX;
   if ( path.size() >= sizeof address.sun_path ) {
      throw InputError(
         path, "is too long for a socket; " + std::to_string( sizeof address.sun_path - 1 ) + " letters are possible" );
   }
   path.copy( address.sun_path, path.size() );
   return address;
}

// What ::bind and ::connect have in common.
template< class Call >
int called( Call const & call, Descriptor const & socket, std::string const & path ) {
   sockaddr_un const address = addressOf( path );
   return call( socket.number(), reinterpret_cast< sockaddr const * >( &address ), sizeof address );
}

Descriptor newSocket( int flags ) {
   Descriptor made( ::socket( AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | flags, 0 ) );
   if ( !made ) {
      throw InputError( std::string( "no socket: " ) + std::strerror( errno ) );
   }
   return made;
}

[[noreturn]] void refuse( std::string const & path, int reason ) {
   throw InputError( path, std::string( "can't be listened on: " ) + std::strerror( reason ) );
}

// Somebody listens there, though perhaps without taking the call.
bool isListenedOn( std::string const & path ) {
   Descriptor const probe = newSocket( SOCK_NONBLOCK );
   return called( ::connect, probe, path ) == 0 || ( errno != ECONNREFUSED && errno != ENOENT );
}

} // namespace

std::string controlPath( std::string const & slice, std::string const & folder ) {
   return folder + "/" + slice + suffix;
}

std::vector< std::string > slicesThere( std::string const & folder ) {
   std::vector< std::string > slices;
   std::error_code error;
   for ( auto const & entry : std::filesystem::directory_iterator( folder, error ) ) {
      if ( entry.path().extension() == suffix && entry.is_socket( error ) ) {
         slices.push_back( entry.path().stem() );
      }
   }
   std::ranges::sort( slices );
   return slices;
}

Descriptor listenAt( std::string const & path ) {
   Descriptor listening = newSocket( SOCK_NONBLOCK );
   addressOf( path );
   // Of two agents that find what a third has left, one is first.
   auto const parent = std::filesystem::path( path ).parent_path();
   Descriptor const folder( ::open( parent.empty() ? "." : parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC ) );
   if ( !folder || ::flock( folder.number(), LOCK_EX ) != 0 ) {
      refuse( path, errno );
   }
   struct stat there {};
   if ( ::lstat( path.c_str(), &there ) == 0 ) {
      if ( !S_ISSOCK( there.st_mode ) ) {
         throw InputError( path, "is there and is no socket; name another with --socket" );
      }
      if ( isListenedOn( path ) ) {
         throw InputError( path, "another agent listens there; end it, or name another socket with --socket" );
      }
      ::unlink( path.c_str() );
   }
   // Nobody may connect before it is known who may.
   auto const before = ::umask( 0777 );
   int const bound = called( ::bind, listening, path );
   int const reason = errno;
   ::umask( before );
   if ( bound != 0 ) {
      refuse( path, reason );
   }
   if ( ::listen( listening.number(), backlog ) != 0 || ::chmod( path.c_str(), ownerAndGroup ) != 0 ) {
      refuse( path, errno );
   }
   return listening;
}

Descriptor connectTo( std::string const & path ) {
   Descriptor connected = newSocket( SOCK_NONBLOCK );
   if ( called( ::connect, connected, path ) == 0 ) {
      return connected;
   }
   switch ( errno ) {
   case ENOENT:
      throw InputError( path, "no agent listens there; `l3sm serve` starts one" );
   case ECONNREFUSED:
      throw InputError( path, "the agent that listened there is gone; `l3sm serve` starts it again" );
   case EACCES:
      throw InputError( path, "no permission to connect; the agent's owner, its group and root have it" );
   case EAGAIN:
      throw InputError( path, "the agent doesn't take calls; too many wait already" );
   default:
      throw InputError( path, std::string( "can't be connected to: " ) + std::strerror( errno ) );
   }
}

std::string Peer::text() const {
   return "process " + std::to_string( process ) + " of user " + std::to_string( user );
}

Peer peerOf( int socket ) {
   ucred credentials{};
   socklen_t size = sizeof credentials;
   if ( ::getsockopt( socket, SOL_SOCKET, SO_PEERCRED, &credentials, &size ) != 0 ) {
      // A user that nobody is.
      return { .process = 0, .user = static_cast< uid_t >( -1 ) };
   }
   return { .process = credentials.pid, .user = credentials.uid };
}

} // namespace Live
