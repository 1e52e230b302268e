#include "agent/database/RedisAddress.h"

#include "agent/database/DatabaseAddress.h"

#include <cstdlib>
#include <string_view>
#include <utility>

namespace Live {

namespace {

constexpr std::string_view tcp = "redis://";
constexpr std::string_view unixSocket = "redis+unix://";

// Takes the user from the beginning, where there is one.
void takeUser( std::string_view & rest, RedisAddress & address ) {
   auto const at = rest.substr( 0, rest.find( '/' ) ).find( '@' );
   if ( at == std::string_view::npos ) {
      return;
   }
   auto const user = rest.substr( 0, at );
   if ( user.find( ':' ) != std::string_view::npos ) {
      refuseAddress( std::string( "has a password in it: put it into the environment, " ) + redisPasswordVariable );
   }
   address.user = user;
   rest.remove_prefix( at + 1 );
}

void takeSocket( std::string_view rest, RedisAddress & address ) {
   takeUser( rest, address );
   auto const query = rest.find( "?/" );
   if ( query != std::string_view::npos ) {
      address.number = numberInAddress( rest.substr( query + 2 ), "the number of a database" );
   }
   address.path = rest.substr( 0, query );
   if ( !address.path.starts_with( '/' ) ) {
      refuseAddress( "has no path of a socket: redis+unix:///path.sock" );
   }
}

void takeHost( std::string_view rest, RedisAddress & address ) {
   takeUser( rest, address );
   auto const slash = rest.find( '/' );
   if ( slash != std::string_view::npos && slash + 1 < rest.size() ) {
      address.number = numberInAddress( rest.substr( slash + 1 ), "the number of a database" );
   }
   auto at = HostPort::of( rest.substr( 0, slash ), address.port );
   address.host = std::move( at.host );
   address.port = at.port;
   if ( address.host.empty() || address.port == 0 ) {
      refuseAddress( "names no host: redis://host[:port][/n]" );
   }
}

} // namespace

RedisAddress RedisAddress::of( std::string const & url ) {
   RedisAddress address;
   if ( url.starts_with( unixSocket ) ) {
      takeSocket( std::string_view( url ).substr( unixSocket.size() ), address );
   } else if ( url.starts_with( tcp ) ) {
      takeHost( std::string_view( url ).substr( tcp.size() ), address );
   } else {
      refuseAddress( "begins neither with redis:// nor with redis+unix://" );
   }
   if ( char const * const password = std::getenv( redisPasswordVariable ) ) {
      address.password = password;
   }
   return address;
}

std::string RedisAddress::name() const {
   std::string const at = number == 0 ? std::string() : "/" + std::to_string( number );
   if ( host.empty() ) {
      return std::string( unixSocket ) + path + ( at.empty() ? "" : "?" + at );
   }
   return std::string( tcp ) + HostPort{ host, port }.text() + at;
}

} // namespace Live
