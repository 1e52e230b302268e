// A real etcd of a test's own, of one member or some, on an address of the loopback that no other process has; its
// files are in a folder of its own. Both go with it, and with the process.
//
//    EtcdServer server( 3 );
//    server.put( "l3sm:1#epoch", "e1" );
//    server.members[server.leader()]->dies();                // kill -9
#pragma once

#include "ChildProgram.h"
#include "Folder.h"
#include "agent/database/EtcdSession.h"

#include <gtest/gtest.h>
#include <memory>

// An address that belongs to this process: those of the loopback are many, and numbers of processes have 22 bits.
inline std::string addressOfThisProcess() {
   static auto const number = static_cast< unsigned >( ::getpid() ); // a copy of it keeps it
   auto const part = [&]( unsigned shift ) { return std::to_string( number >> shift & 255U ); };
   return "127." + std::to_string( 64 + ( number >> 16 & 63U ) ) + "." + part( 8 ) + "." + part( 0 );
}

class EtcdMember : public ChildProgram {
 public:
   EtcdMember( Folder const & folder, unsigned number ) : folder_( folder ), number_( number ) {}

   std::string name() const { return "m" + std::to_string( number_ ); }
   std::string host() const { return addressOfThisProcess() + ":" + std::to_string( 2379 + 2 * number_ ); }
   std::string peer() const { return "http://" + addressOfThisProcess() + ":" + std::to_string( 2380 + 2 * number_ ); }
   std::string data() const { return folder_ / name(); }
   std::string log() const { return folder_.text( name() + ".log" ); }

   // `cluster`: what all of them are called, and where they are.
   void begins( std::string const & cluster, std::string const & state, Words const & options, bool isSecure ) {
      std::string const url = ( isSecure ? "https://" : "http://" ) + host();
      Words words{ "etcd",
                   "--name",
                   name(),
                   "--data-dir",
                   data(),
                   "--listen-client-urls",
                   url,
                   "--advertise-client-urls",
                   url,
                   "--listen-peer-urls",
                   peer(),
                   "--initial-advertise-peer-urls",
                   peer(),
                   "--initial-cluster",
                   cluster,
                   "--initial-cluster-state",
                   state,
                   "--unsafe-no-fsync",
                   "--heartbeat-interval",
                   "30",
                   "--election-timeout",
                   "300" };
      words.insert( words.end(), options.begin(), options.end() );
      ChildProgram::begins( std::move( words ), folder_ / ( name() + ".log" ) );
   }

 private:
   Folder const & folder_;
   unsigned number_;
};

class EtcdServer {
 public:
   using Words = EtcdMember::Words;

   explicit EtcdServer( unsigned count = 1, Words options = {}, Live::DatabaseCredentials credentials = {} )
      : options_( std::move( options ) ), credentials_( std::move( credentials ) ) {
      for ( unsigned at = 0; at < count; ++at ) {
         members.push_back( std::make_unique< EtcdMember >( folder_, at ) );
      }
      starts();
   }

   std::string url() const {
      std::string all;
      for ( auto const & member : members ) {
         all += ( all.empty() ? "" : "," ) + member->host();
      }
      return ( isSecure() ? "etcds://" : "etcd://" ) + all;
   }
   Live::EtcdAddress address() const { return Live::EtcdAddress::of( url(), credentials_ ); }
   Live::DatabaseCredentials const & credentials() const { return credentials_; }
   Folder const & folder() const { return folder_; }

   // Those that aren't there; returns when the cluster answers.
   void starts() {
      for ( auto const & member : members ) {
         if ( !member->isThere() ) {
            member->begins( cluster(), state_, options_, isSecure() );
         }
      }
      answers();
   }
   void answers() {
      session_.reset();
      for ( int tries = 0; tries < 3000; ++tries ) {
         try {
            ask( "kv/range", Live::EtcdRange{ "health" } );
            return;
         } catch ( std::exception const & ) {
            session_.reset();
            ::usleep( 10'000 );
         }
         for ( auto const & member : members ) {
            if ( member->isThere() && !member->isRunning() ) {
               throw std::runtime_error( "etcd doesn't start: " + member->log() );
            }
         }
      }
      throw std::runtime_error( "etcd doesn't answer: " + members.front()->log() );
   }
   void dies() {
      session_.reset();
      for ( auto const & member : members ) {
         member->dies();
      }
   }
   void optionsAre( Words options ) { options_ = std::move( options ); }
   // Of who begins from now on: "existing".
   void stateIs( std::string state ) { state_ = std::move( state ); }
   std::string cluster() const {
      std::string all;
      for ( auto const & member : members ) {
         all += ( all.empty() ? "" : "," ) + member->name() + "=" + member->peer();
      }
      return all;
   }

   // Whoever of them is asked.
   template< class Question >
   Live::EtcdReply ask( std::string const & what, Question const & question ) {
      return askText( what, question.text() );
   }
   Live::EtcdReply askText( std::string const & what, std::string const & body ) {
      if ( !session_ ) {
         session_ = std::make_unique< Live::EtcdSession >( address() );
      }
      return session_->ask( what, body );
   }
   void put( std::string const & key, std::string const & value ) {
      Live::EtcdTransaction transaction;
      transaction.put( key, value );
      ask( "kv/txn", transaction );
   }
   void remove( std::string const & key, bool withAllThatBeginsSo = false ) {
      Live::EtcdTransaction transaction;
      transaction.remove( key, withAllThatBeginsSo ? Live::endOf( key ) : "" );
      ask( "kv/txn", transaction );
   }
   std::vector< Live::EtcdKey > under( std::string const & begin ) {
      auto const reply = ask( "kv/range", Live::EtcdRange{ .key = begin, .end = Live::endOf( begin ) } );
      return reply.ranges.empty() ? std::vector< Live::EtcdKey >() : reply.ranges.front();
   }
   std::optional< Live::EtcdKey > at( std::string const & key ) {
      auto const reply = ask( "kv/range", Live::EtcdRange{ .key = key } );
      return reply.only() ? std::optional( *reply.only() ) : std::nullopt;
   }
   U64 revision() { return ask( "kv/range", Live::EtcdRange{ "none" } ).revision; }
   void compacts( U64 revision ) {
      askText( "kv/compaction", R"({"revision":)" + std::to_string( revision ) + R"(,"physical":true})" );
   }
   // Which one of them leads; asked until one says so.
   std::size_t leader() const {
      for ( ;; ::usleep( 10'000 ) ) {
         for ( std::size_t at = 0; at < members.size(); ++at ) {
            auto const status = askMember( at, "maintenance/status" );
            auto const id = wordIn( status, "member_id" );
            if ( !id.empty() && id == wordIn( status, "leader" ) ) {
               return at;
            }
         }
      }
   }
   // What one of them, and no other, answers within a second; empty: nothing.
   std::string askMember( std::size_t member, std::string const & what, std::string const & body = "{}" ) const {
      std::string const line = "curl -s -m 1 http://" + members[member]->host() + "/v3/" + what + " -d '" + body + "'";
      std::unique_ptr< FILE, int ( * )( FILE * ) > const pipe( ::popen( line.c_str(), "r" ), ::pclose );
      std::string all;
      char part[4096];
      for ( std::size_t size = 0; ( size = ::fread( part, 1, sizeof part, pipe.get() ) ) > 0; ) {
         all.append( part, size );
      }
      return all;
   }
   // `"name":"word"`
   static std::string wordIn( std::string const & json, std::string const & name ) {
      auto const at = json.find( "\"" + name + "\":\"" );
      auto const from = at + name.size() + 4;
      return at == std::string::npos ? std::string() : json.substr( from, json.find( '"', from ) - from );
   }

   std::vector< std::unique_ptr< EtcdMember > > members;

 private:
   bool isSecure() const { return !credentials_.authorities.empty(); }

   Folder folder_;
   Words options_;
   Live::DatabaseCredentials credentials_;
   std::string state_ = "new";
   std::unique_ptr< Live::EtcdSession > session_;
};
