#include "agent/database/HttpTransfers.h"

#include "agent/database/WithoutPipeSignal.h"

#include <array>
#include <curl/curl.h>
#include <map>
#include <sys/epoll.h>
#include <utility>

namespace Live {

namespace {

constexpr long connectMilliseconds = 2000;
constexpr double milliseconds = 1000; // in a second

void begin() {
   static bool const isBegun = ::curl_global_init( CURL_GLOBAL_DEFAULT ) == CURLE_OK;
   static_cast< void >( isBegun );
}

struct FreeEasy {
   void operator()( CURL * easy ) const { ::curl_easy_cleanup( easy ); }
};
struct FreeList {
   void operator()( curl_slist * list ) const { ::curl_slist_free_all( list ); }
};
struct FreeMulti {
   void operator()( CURLM * multi ) const { ::curl_multi_cleanup( multi ); }
};

// One question, as libcurl has it.
struct Question {
   HttpTransfers::Request request;
   std::unique_ptr< CURL, FreeEasy > easy{ ::curl_easy_init() };
   std::unique_ptr< curl_slist, FreeList > headers{};
   std::string bytes{};                         // that have come, and nobody has taken
   std::array< char, CURL_ERROR_SIZE > error{}; // which libcurl fills

   explicit Question( HttpTransfers::Request of ) : request( std::move( of ) ) {
      add( "Content-Type: application/json" );
      add( "Expect:" ); // no question of one's own before a long one
      for ( auto const & header : request.headers ) {
         add( header );
      }
      is( CURLOPT_URL, request.url.c_str() );
      is( CURLOPT_POSTFIELDS, request.body.c_str() );
      is( CURLOPT_POSTFIELDSIZE_LARGE, static_cast< curl_off_t >( request.body.size() ) );
      is( CURLOPT_HTTPHEADER, headers.get() );
      is( CURLOPT_HTTP_VERSION, static_cast< long >( CURL_HTTP_VERSION_1_1 ) );
      is( CURLOPT_PROXY, "" ); // which is no affair of an agent's environment
      is( CURLOPT_PROTOCOLS_STR, "http,https" );
      is( CURLOPT_NOSIGNAL, 1L );
      is( CURLOPT_TCP_KEEPALIVE, 1L );
      is( CURLOPT_CONNECTTIMEOUT_MS, connectMilliseconds );
      is( CURLOPT_TIMEOUT_MS, static_cast< long >( request.patience * milliseconds ) );
      is( CURLOPT_ERRORBUFFER, error.data() );
      is( CURLOPT_WRITEDATA, this );
      is( CURLOPT_WRITEFUNCTION, written );
      file( CURLOPT_CAINFO, request.authorities );
      file( CURLOPT_SSLCERT, request.certificate );
      file( CURLOPT_SSLKEY, request.key );
   }
   template< class Value >
   void is( CURLoption option, Value value ) {
      ::curl_easy_setopt( easy.get(), option, value );
   }
   void file( CURLoption option, std::string const & name ) {
      if ( !name.empty() ) {
         is( option, name.c_str() );
      }
   }
   void add( std::string const & header ) { headers.reset( ::curl_slist_append( headers.release(), header.c_str() ) ); }
   static std::size_t written( char * from, std::size_t size, std::size_t count, void * to ) {
      static_cast< Question * >( to )->bytes.append( from, size * count );
      return size * count;
   }
   HttpTransfers::Ending ended( CURLcode result ) {
      HttpTransfers::Ending ending;
      if ( result != CURLE_OK ) {
         ending.failure = error[0] != '\0' ? error.data() : ::curl_easy_strerror( result );
      }
      ::curl_easy_getinfo( easy.get(), CURLINFO_RESPONSE_CODE, &ending.status );
      ending.body = std::move( bytes );
      return ending;
   }
};

} // namespace

struct HttpTransfers::Impl : std::enable_shared_from_this< Impl > {
   struct Open {
      std::unique_ptr< Question > question;
      Ended ended;
      Comes comes;
   };

   explicit Impl( EventLoop & on ) : loop( on ) {
      ::curl_multi_setopt( multi.get(), CURLMOPT_SOCKETDATA, this );
      ::curl_multi_setopt( multi.get(), CURLMOPT_SOCKETFUNCTION, socketIs );
      ::curl_multi_setopt( multi.get(), CURLMOPT_TIMERDATA, this );
      ::curl_multi_setopt( multi.get(), CURLMOPT_TIMERFUNCTION, timeIs );
   }
   ~Impl() {
      WithoutPipeSignal const guard; // a connection is told that it ends
      ::curl_multi_setopt( multi.get(), CURLMOPT_TIMERFUNCTION, nullptr );
      for ( auto const & [number, each] : open ) {
         ::curl_multi_remove_handle( multi.get(), each.question->easy.get() );
      }
      open.clear();
      multi.reset();
   }
   Impl( Impl const & ) = delete;
   Impl & operator=( Impl const & ) = delete;

   // The loop and libcurl. Nobody else is called from within these two.
   static int socketIs( CURL *, curl_socket_t socket, int what, void * self, void * ) {
      static_cast< Impl * >( self )->wants( socket, what );
      return 0;
   }
   static int timeIs( CURLM *, long after, void * self ) {
      auto & it = *static_cast< Impl * >( self );
      if ( after < 0 ) {
         it.timer = {};
      } else {
         it.timer = it.loop.timer( static_cast< double >( after ) / milliseconds,
                                   [&it] { it.acts( CURL_SOCKET_TIMEOUT, 0 ); } );
      }
      return 0;
   }
   void wants( curl_socket_t socket, int what ) {
      files.erase( socket ); // the number may be another file's by now
      if ( what != CURL_POLL_REMOVE ) {
         U32 const events =
            ( ( what & CURL_POLL_IN ) != 0 ? EPOLLIN : 0U ) | ( ( what & CURL_POLL_OUT ) != 0 ? EPOLLOUT : 0U );
         files[socket] = loop.io( socket, events, [this, socket]( U32 come ) {
            int const in = ( come & ( EPOLLIN | EPOLLHUP ) ) != 0 ? CURL_CSELECT_IN : 0;
            int const out = ( come & EPOLLOUT ) != 0 ? CURL_CSELECT_OUT : 0;
            acts( socket, in | out | ( ( come & EPOLLERR ) != 0 ? CURL_CSELECT_ERR : 0 ) );
         } );
      }
   }
   void acts( curl_socket_t socket, int events ) {
      auto const alive = shared_from_this();
      int running = 0;
      {
         WithoutPipeSignal const guard;
         ::curl_multi_socket_action( multi.get(), socket, events, &running );
      }
      tell();
   }
   // What has come, to whom it belongs.
   void tell() {
      std::vector< U64 > streams;
      for ( auto const & [number, each] : open ) {
         if ( each.comes && !each.question->bytes.empty() && isOk( each ) ) {
            streams.push_back( number );
         }
      }
      for ( U64 const number : streams ) {
         if ( auto const at = open.find( number ); at != open.end() ) {
            auto const comes = at->second.comes; // which may end it
            auto const bytes = std::exchange( at->second.question->bytes, {} );
            comes( bytes );
         }
      }
      int left = 0;
      while ( CURLMsg const * const message = ::curl_multi_info_read( multi.get(), &left ) ) {
         if ( message->msg == CURLMSG_DONE ) {
            ends( message->easy_handle, message->data.result );
         }
      }
   }
   // An error is told when all of it has come.
   static bool isOk( Open const & of ) {
      constexpr long ok = 200;
      long status = 0;
      ::curl_easy_getinfo( of.question->easy.get(), CURLINFO_RESPONSE_CODE, &status );
      return status == ok;
   }
   void ends( CURL const * easy, CURLcode result ) {
      for ( auto at = open.begin(); at != open.end(); ++at ) {
         if ( at->second.question->easy.get() == easy ) {
            auto const ended = std::move( at->second.ended );
            auto const ending = at->second.question->ended( result );
            gone( at->first );
            ended( ending );
            return;
         }
      }
   }
   void gone( U64 number ) {
      if ( auto const at = open.find( number ); at != open.end() ) {
         auto const question = std::move( at->second.question );
         auto const ended = std::move( at->second.ended ); // whose captures may hold more than one thinks
         auto const comes = std::move( at->second.comes );
         open.erase( at );
         WithoutPipeSignal const guard;
         ::curl_multi_remove_handle( multi.get(), question->easy.get() );
      }
   }

   EventLoop & loop;
   std::map< curl_socket_t, EventLoop::Source > files;
   EventLoop::Source timer;
   std::unique_ptr< CURLM, FreeMulti > multi{ ::curl_multi_init() };
   std::map< U64, Open > open;
   U64 next = 1;
};

HttpTransfers::Transfer & HttpTransfers::Transfer::operator=( Transfer && other ) noexcept {
   std::swap( of_, other.of_ );
   std::swap( number_, other.number_ );
   return *this;
}

HttpTransfers::Transfer::~Transfer() {
   if ( auto const of = of_.lock() ) {
      of->gone( number_ );
   }
}

void HttpTransfers::Transfer::rests( bool does ) const {
   auto const of = of_.lock();
   auto const at = of ? of->open.find( number_ ) : decltype( of->open.end() )();
   if ( of && at != of->open.end() ) {
      WithoutPipeSignal const guard;
      ::curl_easy_pause( at->second.question->easy.get(), does ? CURLPAUSE_RECV : CURLPAUSE_CONT );
   }
}

HttpTransfers::HttpTransfers( EventLoop & loop ) {
   begin();
   impl_ = std::make_shared< Impl >( loop );
}

HttpTransfers::~HttpTransfers() {
   while ( !impl_->open.empty() ) { // who is just being told something may let go of all
      impl_->gone( impl_->open.begin()->first );
   }
}

HttpTransfers::Transfer HttpTransfers::post( Request const & request, Ended ended, Comes comes ) {
   U64 const number = impl_->next++;
   auto & open = impl_->open[number];
   open = { std::make_unique< Question >( request ), std::move( ended ), std::move( comes ) };
   ::curl_multi_add_handle( impl_->multi.get(), open.question->easy.get() );
   return { impl_, number };
}

HttpTransfers::Ending HttpTransfers::postAndWait( Request const & request ) {
   begin();
   WithoutPipeSignal const guard;
   Question question( request );
   return question.ended( ::curl_easy_perform( question.easy.get() ) );
}

} // namespace Live
