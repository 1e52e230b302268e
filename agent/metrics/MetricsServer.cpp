#include "agent/metrics/MetricsServer.h"

#include "inspection/files/InputError.h"

#include <arpa/inet.h>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <microhttpd.h>
#include <netinet/in.h>
#include <sys/epoll.h>

namespace Live {

namespace {

using Inspection::InputError;

constexpr unsigned mostClients = 16;
constexpr std::size_t clientBytes = 16 * 1024; // of memory for each

constexpr std::string_view page = "/metrics";

struct Address {
   union {
      sockaddr any;
      sockaddr_in v4;
      sockaddr_in6 v6;
   };
   bool isV6;
};

Address addressOf( std::string const & text ) {
   auto const refuse = [&] {
      throw InputError( "--metrics " + text, "expected a loopback address and a port, such as 127.0.0.1:9109" );
   };
   auto const colon = text.rfind( ':' );
   std::string host = text.substr( 0, colon );
   U16 port = 0;
   char const * const end = text.data() + text.size();
   if ( colon == std::string::npos || colon + 1 == text.size() ) {
      refuse();
   }
   auto const read = std::from_chars( text.data() + colon + 1, end, port );
   if ( read.ec != std::errc() || read.ptr != end ) {
      refuse();
   }
   Address address{};
   if ( host.starts_with( '[' ) && host.ends_with( ']' ) ) {
      host = host.substr( 1, host.size() - 2 );
      address.isV6 = true;
      address.v6.sin6_family = AF_INET6;
      address.v6.sin6_port = htons( port );
      if ( ::inet_pton( AF_INET6, host.c_str(), &address.v6.sin6_addr ) != 1 ||
           !IN6_IS_ADDR_LOOPBACK( &address.v6.sin6_addr ) ) {
         refuse();
      }
      return address;
   }
   address.v4.sin_family = AF_INET;
   address.v4.sin_port = htons( port );
   if ( ::inet_pton( AF_INET, host == "localhost" ? "127.0.0.1" : host.c_str(), &address.v4.sin_addr ) != 1 ||
        ntohl( address.v4.sin_addr.s_addr ) >> 24 != IN_LOOPBACKNET ) {
      refuse();
   }
   return address;
}

MHD_Result answer( MHD_Connection * connection, unsigned status, std::string text, char const * type ) {
   auto * const response = MHD_create_response_from_buffer( text.size(), text.data(), MHD_RESPMEM_MUST_COPY );
   if ( !response ) {
      return MHD_NO;
   }
   MHD_add_response_header( response, MHD_HTTP_HEADER_CONTENT_TYPE, type );
   auto const queued = MHD_queue_response( connection, status, response );
   MHD_destroy_response( response );
   return queued;
}

MHD_Result asked( void * metrics,
                  MHD_Connection * connection,
                  char const * url,
                  char const * method,
                  char const *,
                  char const *,
                  std::size_t *,
                  void ** ) {
   constexpr auto plain = "text/plain; charset=utf-8";
   std::string_view const does = method;
   if ( does != MHD_HTTP_METHOD_GET && does != MHD_HTTP_METHOD_HEAD ) {
      return answer( connection, MHD_HTTP_METHOD_NOT_ALLOWED, "only GET and HEAD\n", plain );
   }
   if ( url != page ) {
      return answer( connection, MHD_HTTP_NOT_FOUND, "the metrics are at /metrics\n", plain );
   }
   return answer( connection,
                  MHD_HTTP_OK,
                  static_cast< Metrics const * >( metrics )->text(),
                  "text/plain; version=0.0.4; charset=utf-8" );
}

} // namespace

bool MetricsServer::isAddress( std::string const & text ) {
   auto const colon = text.rfind( ':' );
   return text.find( '/' ) == std::string::npos && colon != std::string::npos && colon + 1 < text.size() &&
          text.find_first_not_of( "0123456789", colon + 1 ) == std::string::npos;
}

MetricsServer::MetricsServer( EventLoop & loop,
                              std::string const & address,
                              Metrics const & metrics,
                              unsigned patience )
   : metrics_( metrics ), daemon_( nullptr ), loop_( loop ) {
   Address const at = addressOf( address );
   errno = 0;
   daemon_ = MHD_start_daemon( MHD_USE_EPOLL | ( at.isV6 ? unsigned{ MHD_USE_IPv6 } : 0 ),
                               0,
                               nullptr,
                               nullptr,
                               asked,
                               const_cast< Metrics * >( &metrics_ ),
                               MHD_OPTION_SOCK_ADDR,
                               &at.any,
                               MHD_OPTION_CONNECTION_LIMIT,
                               mostClients,
                               MHD_OPTION_CONNECTION_TIMEOUT,
                               patience,
                               MHD_OPTION_CONNECTION_MEMORY_LIMIT,
                               clientBytes,
                               MHD_OPTION_END );
   if ( !daemon_ ) {
      throw InputError( "--metrics " + address,
                        std::string( "can't be listened at: " ) + ( errno ? std::strerror( errno ) : "no server" ) );
   }
   auto const * const info = MHD_get_daemon_info( daemon_, MHD_DAEMON_INFO_EPOLL_FD );
   clients_ = loop_.io( info->epoll_fd, EPOLLIN, [this]( U32 ) { serve(); } );
}

MetricsServer::~MetricsServer() {
   clients_ = {};
   patience_ = {};
   MHD_stop_daemon( daemon_ );
}

U16 MetricsServer::port() const {
   return MHD_get_daemon_info( daemon_, MHD_DAEMON_INFO_BIND_PORT )->port;
}

void MetricsServer::serve() {
   constexpr double milliseconds = 1e3; // in a second
   // A client whose time is over is told so by one run and put away by the next; whoever waits for its place is let in
   // by the one after.
   for ( int run = 0; run < 3; ++run ) {
      MHD_run( daemon_ );
   }
   MHD_UNSIGNED_LONG_LONG wait = 0;
   patience_ = MHD_get_timeout( daemon_, &wait ) == MHD_YES
                  ? loop_.timer( static_cast< double >( wait ) / milliseconds, [this] { serve(); } )
                  : EventLoop::Source();
}

} // namespace Live
