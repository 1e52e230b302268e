#include "agent/control/ControlClient.h"

#include "agent/control/JsonRpc.h"
#include "inspection/files/Json.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <simdjson.h>
#include <sys/socket.h>

namespace Live {

namespace {

using Inspection::InputError;
using Rex::Value;

constexpr std::size_t answerAtATime = 1 << 18;

// With room behind it, as the parser wants.
template< class Use >
void parsed( std::string const & line, std::string_view part, Use const & use ) {
   std::size_t const from = static_cast< std::size_t >( part.data() - line.data() );
   simdjson::ondemand::parser parser;
   simdjson::ondemand::document document;
   auto const room = line.capacity() - from;
   if ( parser.iterate( part.data(), part.size(), room ).get( document ) == simdjson::SUCCESS ) {
      use( document );
   }
}

} // namespace

Value ControlAnswer::value() const {
   return Inspection::parseJson( std::string( text() ), "answer" );
}

void ControlAnswer::eachMember( std::function< void( std::string_view ) > const & each ) const {
   parsed( line_, text(), [&]( simdjson::ondemand::document & list ) {
      simdjson::ondemand::array members;
      if ( list.get_array().get( members ) != simdjson::SUCCESS ) {
         return;
      }
      for ( auto member : members ) {
         std::string_view text;
         if ( simdjson::to_json_string( member ).get( text ) == simdjson::SUCCESS ) {
            each( text );
         }
      }
   } );
}

ControlClient::ControlClient( Options options )
   : options_( std::move( options ) ), socket_( connectTo( options_.path ) ) {
   if ( options_.name.empty() ) {
      options_.name = options_.path;
   }
}

void ControlClient::fail( std::string const & what ) const {
   throw InputError( options_.name, what );
}

void ControlClient::wait( int events ) {
   pollfd agent{ socket_.number(), static_cast< short >( events ), 0 };
   int const ready = ::poll( &agent, 1, options_.timeout * millisecondsInSecond );
   if ( ready == 0 ) {
      fail( "hasn't answered for " + std::to_string( options_.timeout ) + " s; --timeout S waits longer" );
   }
   if ( ready < 0 && errno != EINTR ) {
      fail( std::string( "can't be asked: " ) + std::strerror( errno ) );
   }
}

// An agent that takes no more may have said why: what it has sent is read.
void ControlClient::send( std::string_view text ) {
   while ( !text.empty() ) {
      auto const sent = ::send( socket_.number(), text.data(), text.size(), MSG_NOSIGNAL | MSG_DONTWAIT );
      if ( sent > 0 ) {
         text.remove_prefix( static_cast< std::size_t >( sent ) );
      } else if ( errno == EAGAIN || errno == EWOULDBLOCK ) {
         wait( POLLOUT );
      } else if ( errno != EINTR ) {
         return;
      }
   }
}

std::string ControlClient::line() {
   std::string line = std::move( ahead_ );
   for ( std::size_t searched = 0;; ) {
      auto const end = line.find( '\n', searched );
      if ( end != std::string::npos ) {
         ahead_ = line.substr( end + 1 );
         line.resize( end );
         line.reserve( end + simdjson::SIMDJSON_PADDING );
         return line;
      }
      searched = line.size();
      line.resize( searched + answerAtATime );
      auto const got = ::recv( socket_.number(), line.data() + searched, answerAtATime, MSG_DONTWAIT );
      line.resize( searched + ( got > 0 ? static_cast< std::size_t >( got ) : 0 ) );
      if ( got == 0 || ( got < 0 && errno == ECONNRESET ) ) {
         fail( searched == 0 ? "has ended before it answered" : "has ended in the middle of its answer" );
      }
      if ( got < 0 && ( errno == EAGAIN || errno == EWOULDBLOCK ) ) {
         wait( POLLIN );
      } else if ( got < 0 && errno != EINTR ) {
         fail( std::string( "can't be read: " ) + std::strerror( errno ) );
      }
   }
}

ControlAnswer ControlClient::call( std::string const & command, Value const & params ) {
   send( requestLine( command, params, ++latest_ ) );
   std::string answer = line();
   std::string_view result;
   std::string error;
   parsed( answer, answer, [&]( simdjson::ondemand::document & document ) {
      simdjson::ondemand::object object;
      if ( document.get_object().get( object ) != simdjson::SUCCESS ) {
         return;
      }
      for ( auto field : object ) {
         std::string_view key;
         if ( field.unescaped_key().get( key ) != simdjson::SUCCESS || ( key != "result" && key != "error" ) ) {
            continue;
         }
         std::string_view text;
         if ( simdjson::to_json_string( field.value() ).get( text ) != simdjson::SUCCESS ) {
            return;
         }
         if ( key == "result" ) {
            result = text;
         } else {
            error = text;
         }
      }
   } );
   if ( !error.empty() ) {
      auto const said = Inspection::parseJson( error, options_.name );
      Inspection::inFile( options_.name, [&] {
         Inspection::Fields fields( said );
         auto const code = fields.required( "code" ).integer();
         throw CommandError( code ? static_cast< CommandError::Code >( *code ) : CommandError::broken,
                             fields.required< std::string >( "message" ) );
      } );
   }
   if ( result.empty() ) {
      fail( "has answered something that is no JSON-RPC" );
   }
   auto const begin = static_cast< std::size_t >( result.data() - answer.data() );
   return { std::move( answer ), begin, result.size() };
}

} // namespace Live
