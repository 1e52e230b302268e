// A real redis-server of a test's own, on a socket in a folder of its own; both go with it, and with the process.
//
//    RedisServer server;
//    server.ask( { "SET", "l3sm:{1}#epoch", "e1" } );
//    server.dies();                                // kill -9
//    server.starts();
#pragma once

#include "ChildProgram.h"
#include "Folder.h"
#include "agent/database/RedisAddress.h"
#include "agent/database/RedisReply.h"

#include <gtest/gtest.h>
#include <memory>

class RedisServer {
 public:
   using Words = ChildProgram::Words;

   explicit RedisServer( Words options = {} ) : options_( std::move( options ) ) { starts(); }
   void optionsAre( Words options ) { options_ = std::move( options ); }

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
                   "--enable-debug-command",
                   "local" };
      words.insert( words.end(), options_.begin(), options_.end() );
      program_.begins( std::move( words ), folder_ / "log" );
      while ( !connect() && program_.isRunning() ) {
         ::usleep( 1000 );
      }
      if ( !client_ ) {
         program_.dies();
         throw std::runtime_error( "redis-server doesn't start: " + folder_.text( "log" ) );
      }
   }
   void dies() {
      client_.reset();
      program_.dies();
   }
   void standsStill() const { program_.standsStill(); }
   void goesOn() const { program_.goesOn(); }
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
   ChildProgram program_;
   std::unique_ptr< redisContext, Free > client_;
};
