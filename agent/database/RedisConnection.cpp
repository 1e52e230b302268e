#include "agent/database/RedisConnection.h"

#include "agent/database/WithoutPipeSignal.h"

#include <algorithm>
#include <hiredis/async.h>
#include <sys/epoll.h>
#include <utility>

namespace Live {

// What belongs to hiredis' context. It lives as long as the context, or as somebody looks at it.
struct RedisConnection::Impl : std::enable_shared_from_this< Impl > {
   struct Question {
      std::shared_ptr< Impl > impl;
      Answer answer;
      Errors errors;
      Patience patience;
      bool isSubscription = false;
      std::string about = {}; // for messages: "GET l3sm:{1}#epoch"
   };

   RedisConnection * owner = nullptr;     // null: nobody wants to hear anything any more
   redisAsyncContext * context = nullptr; // null: it is gone
   std::shared_ptr< Impl > own = nullptr; // as long as there is a context
   EventLoop::Source file = {};
   U32 events = EPOLLIN | EPOLLOUT;
   std::size_t asked = 0;
   std::size_t askedUsual = 0;
   Rex::Seconds heard = 0; // when the server answered last, or was asked while nothing was open
   bool hasAnswered = false;
   std::exception_ptr thrown = nullptr;

   // The loop and hiredis.
   template< U32 event, bool isWanted >
   static void want( void * self ) {
      auto * const impl = static_cast< Impl * >( self );
      U32 const wanted = isWanted ? impl->events | event : impl->events & ~event;
      if ( wanted != impl->events ) {
         impl->events = wanted;
         impl->file.eventsIs( wanted );
      }
   }
   void attach( EventLoop & loop ) {
      own = shared_from_this();
      context->ev.data = this;
      context->ev.addRead = want< EPOLLIN, true >;
      context->ev.delRead = want< EPOLLIN, false >;
      context->ev.addWrite = want< EPOLLOUT, true >;
      context->ev.delWrite = want< EPOLLOUT, false >;
      context->ev.cleanup = []( void * self ) { static_cast< Impl * >( self )->ends(); };
      file = loop.io( context->c.fd, events, [this]( U32 come ) { serve( come ); } );
   }
   void serve( U32 come ) {
      auto const alive = shared_from_this();
      WithoutPipeSignal const guard;
      if ( come & ( EPOLLIN | EPOLLHUP | EPOLLERR ) ) {
         redisAsyncHandleRead( context );
      }
      if ( context && ( come & EPOLLOUT ) ) {
         redisAsyncHandleWrite( context );
      }
      if ( thrown ) {
         std::rethrow_exception( std::exchange( thrown, nullptr ) );
      }
   }
   // The context goes, whoever has begun it.
   void ends() {
      auto const alive = std::exchange( own, nullptr );
      auto const * const gone = std::exchange( context, nullptr );
      file = {};
      if ( gone && owner ) {
         std::string const reason = gone->errstr && *gone->errstr ? gone->errstr : "the connection is closed";
         calls( [&] { std::exchange( owner, nullptr )->fails( reason ); } );
      }
   }
   // Nothing is thrown through hiredis.
   template< class Call >
   void calls( Call const & call ) {
      try {
         call();
      } catch ( ... ) {
         thrown = std::current_exception();
      }
   }
   static void answered( redisAsyncContext *, void * reply, void * of ) {
      std::unique_ptr< Question > question( static_cast< Question * >( of ) );
      question->impl->answers( RedisReply( static_cast< redisReply const * >( reply ) ), *question );
      if ( reply && question->isSubscription ) {
         (void)question.release(); // it comes again; the end of the context answers it with nothing
      }
   }
   void answers( RedisReply reply, Question const & question ) {
      if ( !question.isSubscription ) {
         --asked;
         askedUsual -= question.patience == Patience::usual ? 1 : 0;
      }
      heard = Rex::now();
      hasAnswered = hasAnswered || reply.isThere();
      if ( !owner || !reply.isThere() ) {
         return;
      }
      calls( [&] {
         if ( reply.isError() && question.errors == Errors::endConnection ) {
            owner->refused( question.about + ": " + std::string( reply.text() ) );
         } else {
            question.answer( reply );
         }
      } );
   }
};

namespace {

// What the server's errors mean to people.
std::string withRemedy( std::string const & error ) {
   auto const has = [&]( char const * code ) { return error.find( code ) != std::string::npos; };
   if ( has( "NOAUTH" ) || has( "WRONGPASS" ) ) {
      return error + "; the password comes from the environment, " + redisPasswordVariable;
   }
   if ( has( ": OOM" ) ) {
      return error + "; the server's maxmemory is used up";
   }
   return error;
}

// What was asked, and of which of our keys: nothing else of it is told, it may be a password.
std::string aboutOf( RedisConnection::Words const & words ) {
   std::string const about( words[0] );
   auto const key = std::ranges::find_if( words, []( std::string_view word ) { return word.starts_with( "l3sm:{" ); } );
   return key == words.end() ? about : about + " " + std::string( *key );
}

} // namespace

RedisConnection::RedisConnection( EventLoop & loop,
                                  RedisAddress const & address,
                                  std::string const & clientName,
                                  Lost lost )
   : address_( address ), lost_( std::move( lost ) ), impl_( std::make_shared< Impl >() ) {
   auto * const context = address.host.empty() ? redisAsyncConnectUnix( address.path.c_str() )
                                               : redisAsyncConnect( address.host.c_str(), address.port );
   impl_->owner = this;
   impl_->heard = Rex::now();
   if ( !context || context->err ) {
      std::string const reason = context ? context->errstr : "no memory";
      if ( context ) {
         redisAsyncFree( context );
      }
      failure_ = loop.timer( 0, [this, reason] { fails( reason ); } );
      return;
   }
   if ( !address.host.empty() ) {
      redisEnableKeepAlive( &context->c );
   }
   impl_->context = context;
   impl_->attach( loop );
   signOn( clientName );
}

RedisConnection::~RedisConnection() {
   impl_->owner = nullptr;
   if ( impl_->context ) {
      redisAsyncFree( impl_->context );
   }
}

void RedisConnection::signOn( std::string const & clientName ) {
   auto const nothing = []( RedisReply ) {};
   if ( !address_.password.empty() ) {
      address_.user.empty() ? ask( { "AUTH", address_.password }, nothing )
                            : ask( { "AUTH", address_.user, address_.password }, nothing );
   }
   if ( address_.number != 0 ) {
      ask( { "SELECT", std::to_string( address_.number ) }, nothing );
   }
   ask( { "CLIENT", "SETNAME", clientName }, nothing, Errors::areTold ); // for who looks at the server's clients
}

void RedisConnection::ask( Words const & words, Answer answer, Errors errors, Patience patience ) {
   if ( !impl_->context ) {
      return; // it is told already, or soon
   }
   std::vector< char const * > parts( words.size() );
   std::vector< std::size_t > lengths( words.size() );
   for ( std::size_t at = 0; at < words.size(); ++at ) {
      parts[at] = words[at].data();
      lengths[at] = words[at].size();
   }
   auto question = std::make_unique< Impl::Question >( Impl::Question{ impl_, std::move( answer ), errors, patience } );
   if ( errors == Errors::endConnection ) {
      question->about = aboutOf( words );
   }
   bool const isAsked = redisAsyncCommandArgv( impl_->context,
                                               Impl::answered,
                                               question.get(),
                                               static_cast< int >( words.size() ),
                                               parts.data(),
                                               lengths.data() ) == REDIS_OK;
   if ( !isAsked ) {
      return; // it is being torn down
   }
   (void)question.release();
   ++impl_->asked;
   if ( patience == Patience::usual && impl_->askedUsual++ == 0 ) {
      impl_->heard = Rex::now();
   }
}

void RedisConnection::subscribe( std::string const & channel, Answer answer ) {
   if ( !impl_->context ) {
      return;
   }
   auto question = std::make_unique< Impl::Question >(
      Impl::Question{ impl_, std::move( answer ), Errors::endConnection, Patience::endless, true } );
   char const * words[] = { "SUBSCRIBE", channel.c_str() };
   if ( redisAsyncCommandArgv( impl_->context, Impl::answered, question.get(), 2, words, nullptr ) == REDIS_OK ) {
      (void)question.release();
   }
}

void RedisConnection::flush() {
   auto const alive = impl_;
   WithoutPipeSignal const guard;
   if ( alive->context ) {
      alive->owner = nullptr; // what goes wrong now changes nothing
      redisAsyncHandleWrite( alive->context );
   }
}

std::size_t RedisConnection::asked() const {
   return impl_->asked;
}

bool RedisConnection::hasAnswered() const {
   return impl_->hasAnswered;
}

Rex::Seconds RedisConnection::silentFor() const {
   return impl_->askedUsual == 0 ? 0 : Rex::now() - impl_->heard;
}

void RedisConnection::refused( std::string const & error ) {
   impl_->owner = nullptr; // the first error is told, not what follows from it
   fails( withRemedy( error ) );
}

void RedisConnection::fails( std::string const & reason ) {
   auto const lost = lost_; // which may end this
   lost( address_.name() + ": " + reason );
}

} // namespace Live
