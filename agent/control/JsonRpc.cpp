#include "agent/control/JsonRpc.h"

#include "inspection/files/Json.h"

namespace Live {

namespace {

using Inspection::InputError;
using Rex::Value;

std::string const version = R"({"jsonrpc": "2.0")";

std::string member( std::string const & key, std::string const & text ) {
   return ", \"" + key + "\": " + text;
}

bool isId( Value const & value ) {
   return value.isNull() || value.integer() || value.text();
}

} // namespace

Request requestOf( std::string const & line ) {
   Value value;
   try {
      value = Inspection::parseJson( line, "request" );
   } catch ( InputError const & error ) {
      throw RequestError( CommandError::noJson, error.lines().front() );
   }
   auto const * object = value.object();
   if ( !object ) {
      throw RequestError( CommandError::noRequest,
                          value.list() ? "batches are not served; send one request a line"
                                       : "expected an object, got " + Rex::kindOf( value ) );
   }
   auto const find = [&]( char const * key ) -> Value const * {
      auto const found = object->find( key );
      return found == object->end() ? nullptr : &found->second;
   };
   Request request;
   Value id;
   if ( auto const * given = find( "id" ) ) {
      if ( !isId( *given ) ) {
         throw RequestError( CommandError::noRequest, "id: expected a number or a string, got " + kindOf( *given ) );
      }
      id = *given;
      request.id = id;
   }
   auto const refuse = [&]( std::string const & what ) { throw RequestError( CommandError::noRequest, what, id ); };
   auto const * const protocol = find( "jsonrpc" );
   if ( !protocol || !protocol->text() || *protocol->text() != "2.0" ) {
      refuse( "jsonrpc: expected \"2.0\"" );
   }
   auto const * const method = find( "method" );
   if ( !method || !method->text() ) {
      refuse( "method: expected the name of a command" );
   }
   request.method = *method->text();
   if ( auto const * params = find( "params" ) ) {
      if ( !params->object() && !params->list() ) {
         refuse( "params: expected an object or a list, got " + Rex::kindOf( *params ) );
      }
      request.params = *params;
   }
   return request;
}

std::string requestLine( std::string const & method, Value const & params, Value const & id ) {
   return version + member( "id", Rex::toText( id ) ) + member( "method", Inspection::quoted( method ) ) +
          ( params.isNull() ? "" : member( "params", Rex::toText( params ) ) ) + "}\n";
}

std::string answerBegin( Value const & id ) {
   return version + member( "id", Rex::toText( id ) ) + member( "result", "" );
}

std::string answerLine( Value const & id, Value const & result ) {
   return answerBegin( id ) + Rex::toText( result ) + std::string( answerEnd );
}

std::string errorLine( Value const & id, CommandError::Code code, std::string const & what ) {
   Value const error = Value::Object{ { "code", static_cast< int >( code ) }, { "message", what } };
   return version + member( "id", Rex::toText( id ) ) + member( "error", Rex::toText( error ) ) + "}\n";
}

} // namespace Live
