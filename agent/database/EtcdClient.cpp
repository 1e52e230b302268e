#include "agent/database/EtcdClient.h"

#include "inspection/files/Json.h"

namespace Live {

namespace {

constexpr long ok = 200;
// Where a member is slower, another one may not be.
constexpr Rex::Seconds patience = 5;
constexpr Rex::Seconds patienceOfWhoGoes = 1;

std::string withRemedy( std::string const & error ) {
   auto const has = [&]( char const * what ) { return error.find( what ) != std::string::npos; };
   if ( has( "database space exceeded" ) ) {
      return error + "; its quota is used up: compact, defragment, and disarm the alarm, with etcdctl";
   }
   if ( has( "user name is empty" ) || has( "authentication failed" ) ) {
      return error + "; --database-user NAME and --database-password FILE say who comes";
   }
   if ( has( "permission denied" ) ) {
      return error + "; its role needs to read and write all keys that begin with l3sm:CELL";
   }
   return error;
}

bool isOfToken( std::string const & error ) {
   return error.find( "invalid auth token" ) != std::string::npos ||
          error.find( "revision of auth store is old" ) != std::string::npos;
}

std::string failureOf( HttpTransfers::Ending const & ending, EtcdReply const & reply ) {
   if ( !ending.failure.empty() ) {
      return ending.failure;
   }
   if ( !reply.error.empty() ) {
      return reply.error;
   }
   return ending.status == ok ? "" : "it answers with the status " + std::to_string( ending.status );
}

} // namespace

EtcdClient::EtcdClient( EventLoop & loop, EtcdAddress const & address, std::size_t member, Lost lost )
   : address_( address ), url_( address.urlOf( member ) ), lost_( std::move( lost ) ),
     isOn_( address.credentials.user.empty() ), transfers_( loop ) {
   if ( !isOn_ ) {
      signOn();
   }
}

HttpTransfers::Request EtcdClient::request( std::string const & what, std::string const & body ) const {
   HttpTransfers::Request request{ .url = url_ + "/v3/" + what,
                                   .body = body,
                                   // A member that has no leader can neither write nor tell what is new.
                                   .headers = { "Grpc-Metadata-hasleader: true" },
                                   .patience = patience,
                                   .authorities = address_.credentials.authorities,
                                   .certificate = address_.credentials.certificate,
                                   .key = address_.credentials.key };
   if ( !token_.empty() ) {
      request.headers.push_back( "Authorization: " + token_ );
   }
   return request;
}

void EtcdClient::signOn() {
   isOn_ = false;
   token_.clear();
   auto const body = "{\"name\":" + Inspection::quoted( address_.credentials.user ) +
                     ",\"password\":" + Inspection::quoted( address_.password ) + "}";
   auto const place = questions_.insert( questions_.end(),
                                         { .what = "auth/authenticate",
                                           .body = body,
                                           .answer =
                                              [this]( EtcdReply const & reply ) {
                                                 isOn_ = true;
                                                 token_ = reply.token;
                                                 for ( auto at = questions_.begin(); at != questions_.end(); ++at ) {
                                                    if ( !at->isSent ) {
                                                       send( at );
                                                    }
                                                 }
                                              },
                                           .errors = Errors::endConnection,
                                           .isRepeated = true } );
   send( place );
}

void EtcdClient::send( Place question ) {
   question->isSent = true;
   question->token = token_;
   question->transfer =
      transfers_.post( request( question->what, question->body ),
                       [this, question]( HttpTransfers::Ending const & ending ) { answered( question, ending ); } );
}

void EtcdClient::ask( std::string const & what, std::string const & body, Answer answer, Errors errors ) {
   if ( isLost_ ) {
      return; // it is told already, or soon
   }
   auto const place = questions_.insert( questions_.end(), { what, body, std::move( answer ), errors } );
   if ( isOn_ ) {
      send( place );
   }
}

void EtcdClient::answered( Place question, HttpTransfers::Ending const & ending ) {
   EtcdReply reply;
   if ( ending.failure.empty() ) {
      reply = EtcdReply::of( ending.body );
   }
   std::string const failure = failureOf( ending, reply );
   if ( isOfToken( failure ) && !question->isRepeated && !address_.credentials.user.empty() ) {
      question->isSent = false; // it has done nothing
      if ( isOn_ && question->token != token_ ) {
         send( question );
      } else if ( isOn_ ) {
         question->isRepeated = true;
         signOn();
      }
      return;
   }
   auto const answer = std::move( question->answer );
   auto const errors = question->errors;
   auto const what = question->what;
   questions_.erase( question );
   if ( failure.empty() ) {
      answer( reply );
   } else if ( errors == Errors::areTold && ending.failure.empty() ) {
      reply.error = withRemedy( failure );
      answer( reply );
   } else {
      fails( ( ending.failure.empty() ? what + ": " : "" ) + withRemedy( failure ) );
   }
}

std::unique_ptr< EtcdClient::Stream >
EtcdClient::stream( std::string const & what, std::string const & body, Answer answer ) {
   auto stream = std::make_unique< Stream >();
   auto of = request( what, body );
   of.patience = 0;
   stream->transfer_ = transfers_.post(
      of,
      [this, what]( HttpTransfers::Ending const & ending ) {
         auto const failure = failureOf( ending, ending.body.empty() ? EtcdReply() : EtcdReply::of( ending.body ) );
         fails( what + ": " + ( failure.empty() ? "the stream has ended" : withRemedy( failure ) ) );
      },
      [this, what, of = stream.get(), does = std::move( answer ), life = std::weak_ptr< char >( stream->life_ )](
         std::string_view bytes ) {
         of->line_.append( bytes );
         for ( auto end = of->line_.find( '\n' ); end != std::string::npos;
               end = life.expired() ? std::string::npos : of->line_.find( '\n' ) ) {
            std::string const line = of->line_.substr( 0, end );
            of->line_.erase( 0, end + 1 );
            auto const reply = EtcdReply::of( line );
            if ( !reply.error.empty() ) {
               fails( what + ": " + withRemedy( reply.error ) );
               return;
            }
            does( reply );
         }
      } );
   return stream;
}

void EtcdClient::sayAndGo( std::string const & what, std::string const & body ) const {
   if ( !isLost_ && isOn_ ) {
      auto last = request( what, body );
      last.patience = patienceOfWhoGoes;
      HttpTransfers::postAndWait( last );
   }
}

void EtcdClient::fails( std::string const & reason ) {
   if ( std::exchange( isLost_, true ) ) {
      return;
   }
   auto const lost = lost_; // which may end this
   lost( ( address_.members.size() > 1 ? url_.substr( url_.find( "://" ) + 3 ) + ": " : "" ) + reason );
}

} // namespace Live
