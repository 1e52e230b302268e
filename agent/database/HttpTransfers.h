// Questions over HTTP on the loop of the agent, with answers that end, and such that don't.
//
//    HttpTransfers transfers( loop );
//    auto const one = transfers.post( { .url = url, .body = body }, [&]( HttpTransfers::Ending const & ending ) { … }
//    ); auto const stream = transfers.post( { .url = url, .patience = 0 }, ended, [&]( std::string_view bytes ) { … }
//    ); stream.rests( true );                // what comes waits on the other side of the wire
//
// A transfer that is let go of is off. From within the calls everything may be let go of.
//
// Threading: the agent's loop. Answers come from the loop, never from within a call.
#pragma once

#include "agent/EventLoop.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Live {

class HttpTransfers {
 public:
   struct Impl;

   struct Request {
      std::string url;
      std::string body = {};
      std::vector< std::string > headers = {}; // "Name: value"
      Rex::Seconds patience = 5;               // for all of it; 0: endless, once it has begun
      // Files in PEM, for https.
      std::string authorities = {};
      std::string certificate = {};
      std::string key = {};
   };
   struct Ending {
      std::string failure = {}; // why there is no answer, or an incomplete one
      long status = 0;
      std::string body = {}; // what nobody has taken as it came
   };
   using Ended = std::function< void( Ending const & ) >;
   using Comes = std::function< void( std::string_view bytes ) >;

   class Transfer {
    public:
      Transfer() = default;
      Transfer( std::weak_ptr< Impl > of, U64 number ) : of_( std::move( of ) ), number_( number ) {}
      Transfer( Transfer && other ) noexcept : of_( std::exchange( other.of_, {} ) ), number_( other.number_ ) {}
      Transfer & operator=( Transfer && other ) noexcept;
      ~Transfer();
      void rests( bool does ) const;

    private:
      std::weak_ptr< Impl > of_;
      U64 number_ = 0;
   };

   explicit HttpTransfers( EventLoop & loop );
   ~HttpTransfers();
   HttpTransfers( HttpTransfers const & ) = delete;
   HttpTransfers & operator=( HttpTransfers const & ) = delete;

   [[nodiscard]] Transfer post( Request const & request, Ended ended, Comes comes = {} );
   // At once, and nothing else meanwhile: the last words of who ends.
   static Ending postAndWait( Request const & request );

 private:
   std::shared_ptr< Impl > impl_;
};

} // namespace Live
