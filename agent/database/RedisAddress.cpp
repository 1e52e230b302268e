#include "agent/database/RedisAddress.h"

#include "inspection/files/InputError.h"

#include <charconv>
#include <cstdlib>
#include <string_view>

namespace Live {

namespace {

constexpr std::string_view tcp = "redis://";
constexpr std::string_view unixSocket = "redis+unix://";

// What may hold a password is not repeated.
[[noreturn]] void refuse( std::string const & what ) {
   throw Inspection::InputError( "the address of the database " + what );
}

template< class Number >
Number numberOf( std::string_view text, char const * what ) {
   Number number{};
   auto const [end, error] = std::from_chars( text.data(), text.data() + text.size(), number );
   if ( error != std::errc() || end != text.data() + text.size() ) {
      refuse( "has \"" + std::string( text ) + "\" where " + what + " is expected" );
   }
   return number;
}

// Takes the user from the beginning, where there is one.
void takeUser( std::string_view & rest, RedisAddress & address ) {
   auto const at = rest.substr( 0, rest.find( '/' ) ).find( '@' );
   if ( at == std::string_view::npos ) {
      return;
   }
   auto const user = rest.substr( 0, at );
   if ( user.find( ':' ) != std::string_view::npos ) {
      refuse( std::string( "has a password in it: put it into the environment, " ) + redisPasswordVariable );
   }
   address.user = user;
   rest.remove_prefix( at + 1 );
}

void takeSocket( std::string_view rest, RedisAddress & address ) {
   takeUser( rest, address );
   auto const query = rest.find( "?/" );
   if ( query != std::string_view::npos ) {
      address.number = numberOf< U32 >( rest.substr( query + 2 ), "the number of a database" );
   }
   address.path = rest.substr( 0, query );
   if ( !address.path.starts_with( '/' ) ) {
      refuse( "has no path of a socket: redis+unix:///path.sock" );
   }
}

void takeHost( std::string_view rest, RedisAddress & address ) {
   takeUser( rest, address );
   auto const slash = rest.find( '/' );
   if ( slash != std::string_view::npos && slash + 1 < rest.size() ) {
      address.number = numberOf< U32 >( rest.substr( slash + 1 ), "the number of a database" );
   }
   rest = rest.substr( 0, slash );
   bool const isBracketed = rest.starts_with( '[' ); // an address of IPv6
   auto const end = isBracketed ? rest.find( ']' ) : rest.find( ':' );
   if ( isBracketed && end == std::string_view::npos ) {
      refuse( "has a \"[\" without its \"]\"" );
   }
   address.host = isBracketed ? rest.substr( 1, end - 1 ) : rest.substr( 0, end );
   auto const behind =
      end == std::string_view::npos ? std::string_view() : rest.substr( end + ( isBracketed ? 1 : 0 ) );
   if ( !behind.empty() ) {
      if ( behind.front() != ':' ) {
         refuse( "has \"" + std::string( behind ) + "\" behind the host" );
      }
      address.port = numberOf< U16 >( behind.substr( 1 ), "a port" );
   }
   if ( address.host.empty() || address.port == 0 ) {
      refuse( "names no host: redis://host[:port][/n]" );
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
      refuse( "begins neither with redis:// nor with redis+unix://" );
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
   bool const isBracketed = host.find( ':' ) != std::string::npos;
   return std::string( tcp ) + ( isBracketed ? "[" + host + "]" : host ) + ":" + std::to_string( port ) + at;
}

} // namespace Live
