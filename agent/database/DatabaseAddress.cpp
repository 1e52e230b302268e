#include "agent/database/DatabaseAddress.h"

#include "inspection/files/InputError.h"

#include <charconv>
#include <limits>

namespace Live {

void refuseAddress( std::string const & what ) {
   throw Inspection::InputError( "the address of the database " + what );
}

U32 numberInAddress( std::string_view text, std::string const & what, U32 largest ) {
   U32 number = 0;
   auto const [end, error] = std::from_chars( text.data(), text.data() + text.size(), number );
   if ( error != std::errc() || end != text.data() + text.size() || number > largest ) {
      refuseAddress( "has \"" + std::string( text ) + "\" where " + what + " is expected" );
   }
   return number;
}

HostPort HostPort::of( std::string_view text, U16 usualPort ) {
   bool const isBracketed = text.starts_with( '[' );
   auto const end = text.find( isBracketed ? ']' : ':' );
   if ( isBracketed && end == std::string_view::npos ) {
      refuseAddress( "has a \"[\" without its \"]\"" );
   }
   HostPort at{ .host = std::string( isBracketed ? text.substr( 1, end - 1 ) : text.substr( 0, end ) ),
                .port = usualPort };
   auto const behind = end == std::string_view::npos ? "" : text.substr( isBracketed ? end + 1 : end );
   if ( !behind.empty() ) {
      if ( behind.front() != ':' ) {
         refuseAddress( "has \"" + std::string( behind ) + "\" behind the host" );
      }
      at.port =
         static_cast< U16 >( numberInAddress( behind.substr( 1 ), "a port", std::numeric_limits< U16 >::max() ) );
   }
   return at;
}

std::string HostPort::text() const {
   bool const isBracketed = host.find( ':' ) != std::string::npos;
   return ( isBracketed ? "[" + host + "]" : host ) + ":" + std::to_string( port );
}

} // namespace Live
