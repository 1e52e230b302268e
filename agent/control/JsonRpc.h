// JSON-RPC 2.0, one object a line: what stands in a request, and the lines that answer it.
//
//    Request const request = requestOf( R"({"jsonrpc": "2.0", "id": 1, "method": "status"})" );   // RequestError
//    answerLine( *request.id, value );               // {"jsonrpc": "2.0", "id": 1, "result": …}
//    errorLine( *request.id, CommandError::refused, "frozen already" );
//
// Threading: plain data.
#pragma once

#include "agent/control/Commands.h"

namespace Live {

struct Request {
   std::string method;
   Rex::Value params = {};              // an object, a list, or null
   std::optional< Rex::Value > id = {}; // none: nobody waits for an answer
};

// A line that is no request. The id is null where none can be made out.
struct RequestError : CommandError {
   RequestError( Code code, std::string const & what, Rex::Value id_ = {} )
      : CommandError( code, what ), id( std::move( id_ ) ) {}
   Rex::Value id;
};

Request requestOf( std::string const & line );

// Lines, with their ends.
std::string requestLine( std::string const & method, Rex::Value const & params, Rex::Value const & id );
std::string answerLine( Rex::Value const & id, Rex::Value const & result );
std::string errorLine( Rex::Value const & id, CommandError::Code code, std::string const & what );
// An answer up to where its result begins, and what stands behind the result.
std::string answerBegin( Rex::Value const & id );
constexpr std::string_view answerEnd = "}\n";

} // namespace Live
