// A real redis-server of a test's own, on a socket in a folder of its own; both go with it, and with the process.
//
//    RedisServer server;
//    server.ask( { "SET", "l3sm:{1}#epoch", "e1" } );
//    server.dies();                                // kill -9
//    server.starts();
#pragma once

#include "Folder.h"
#include "agent/database/RedisAddress.h"
#include "agent/database/RedisReply.h"

#include <csignal>
#include <gtest/gtest.h>
#include <memory>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

class RedisServer {
 public:
   using Words = std::vector< std::string >;

   explicit RedisServer( Words options = {} ) : options_( std::move( options ) ) { starts(); }
   void optionsAre( Words options ) { options_ = std::move( options ); }
   ~RedisServer() { dies(); }
   RedisServer( RedisServer const & ) = delete;
   RedisServer & operator=( RedisServer const & ) = delete;

   std::string url() const { return "redis+unix://" + socket(); }
   Live::RedisAddress address() const { return Live::RedisAddress::of( url() ); }

   void starts() {
      Words words{ "redis-server",
                   "--port",
                   "0",
                   "--unixsocket",
                   socket(),
                   "--dir",
                   folder_ / "",
                   "--save",
                   "",
                   "--appendonly",
                   "no",
                   "--logfile",
                   folder_ / "log",
                   "--enable-debug-command",
                   "local" };
      words.insert( words.end(), options_.begin(), options_.end() );
      std::vector< char * > arguments;
      for ( auto & word : words ) {
         arguments.push_back( word.data() );
      }
      arguments.push_back( nullptr );
      process_ = ::fork();
      if ( process_ == 0 ) {
         ::prctl( PR_SET_PDEATHSIG, SIGKILL );
         ::execvp( arguments[0], arguments.data() );
         ::_exit( 127 );
      }
      while ( !connect() && ::waitpid( process_, nullptr, WNOHANG ) == 0 ) {
         ::usleep( 1000 );
      }
      if ( !client_ ) {
         process_ = 0;
         throw std::runtime_error( "redis-server doesn't start: " + folder_.text( "log" ) );
      }
   }
   void dies() {
      client_.reset();
      if ( process_ > 0 ) {
         ::kill( process_, SIGKILL );
         ::waitpid( process_, nullptr, 0 );
         process_ = 0;
      }
   }
   // Doesn't run for a while.
   void standsStill() const { ::kill( process_, SIGSTOP ); }
   void goesOn() const { ::kill( process_, SIGCONT ); }
   // What it will hold when it starts again: what it holds now.
   void keepsDump() { ask( { "SAVE" } ); }

   class Answer : public Live::RedisReply {
    public:
      explicit Answer( redisReply * reply ) : RedisReply( reply ), reply_( reply, freeReplyObject ) {}

    private:
      std::shared_ptr< void > reply_;
   };
   Answer ask( Words const & words ) {
      tell( words );
      return answer();
   }
   // Many, one behind the other.
   void tell( Words const & words ) {
      std::vector< char const * > parts;
      std::vector< std::size_t > lengths;
      for ( auto const & word : words ) {
         parts.push_back( word.data() );
         lengths.push_back( word.size() );
      }
      redisAppendCommandArgv( client_.get(), static_cast< int >( words.size() ), parts.data(), lengths.data() );
   }
   Answer answer() {
      void * reply = nullptr;
      if ( redisGetReply( client_.get(), &reply ) != REDIS_OK ) {
         throw std::runtime_error( client_->errstr );
      }
      return Answer( static_cast< redisReply * >( reply ) );
   }
   // All in one MULTI; what EXEC says.
   Answer atOnce( std::vector< Words > const & all ) {
      tell( { "MULTI" } );
      for ( auto const & words : all ) {
         tell( words );
      }
      tell( { "EXEC" } );
      for ( std::size_t at = 0; at <= all.size(); ++at ) {
         answer();
      }
      return answer();
   }
   // How often a command was served since it started.
   std::size_t served( std::string const & command ) {
      std::string const text( ask( { "INFO", "commandstats" } ).text() );
      std::string const name = "cmdstat_" + command + ":calls=";
      auto const at = text.find( name );
      return at == std::string::npos ? 0 : std::stoul( text.substr( at + name.size() ) );
   }
   void cutsConnections( std::string const & kind = "normal" ) {
      ask( { "CLIENT", "KILL", "TYPE", kind, "SKIPME", "yes" } );
   }
   std::string socket() const { return folder_ / "redis.sock"; }
   Folder const & folder() const { return folder_; }

 private:
   bool connect() {
      client_.reset( redisConnectUnix( socket().c_str() ) );
      if ( client_ && !client_->err ) {
         return true;
      }
      client_.reset();
      return false;
   }
   struct Free {
      void operator()( redisContext * context ) const { redisFree( context ); }
   };

   Folder folder_;
   Words options_;
   pid_t process_ = 0;
   std::unique_ptr< redisContext, Free > client_;
};
