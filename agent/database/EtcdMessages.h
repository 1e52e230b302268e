// What is asked of an etcd, and what it answers, over its gateway for JSON.
//
//    EtcdTransaction transaction;
//    transaction.ifModifiedAt( key, 7 );
//    transaction.put( key, "{}" );
//    client.ask( "kv/txn", transaction.text(), [&]( EtcdReply const & reply ) { reply.succeeded; } );
//
// Threading: plain data.
#pragma once

#include "agent/database/Paths.h"
#include "corvo/Types.h"

#include <string>
#include <string_view>
#include <vector>

namespace Live {

struct EtcdRange {
   std::string key;
   std::string end = {}; // behind the last; empty: the key alone
   U64 limit = 0;
   U64 revision = 0; // 0: now
   bool keysOnly = false;

   std::string text() const;
};

struct EtcdTransaction {
   // All of them must hold, or `otherwise` is done.
   void ifValueIs( std::string const & key, std::string const & value );
   void ifModifiedAt( std::string const & key, U64 revision ); // 0: it isn't there
   void ifNotModifiedSince( std::string const & key, U64 revision );
   void ifLeaseIs( std::string const & key, U64 lease );

   void put( std::string const & key, std::string const & value, U64 lease = 0 );
   void remove( std::string const & key, std::string const & end = {} );
   void range( EtcdRange const & of );
   void otherwise( EtcdRange const & of );

   // Of what a server counts.
   std::size_t size() const { return operations_; }
   std::string text() const;

 private:
   void compare( std::string const & key, char const * target, char const * result, std::string const & of );
   void operation( std::string const & what );

   std::string compares_;
   std::string then_;
   std::string otherwise_;
   std::size_t operations_ = 0;
};

struct EtcdKey {
   std::string key = {};
   std::string value = {};
   U64 modified = 0;
   U64 version = 0;
   U64 lease = 0;
};

struct EtcdEvent {
   bool isDelete = false;
   EtcdKey now = {};
   std::optional< EtcdKey > before = {};
};

// Whatever was answered; what isn't there is empty.
struct EtcdReply {
   std::string error = {}; // the server's: all else is empty
   std::string cluster = {};
   U64 revision = 0;
   bool succeeded = false;                         // of a transaction
   std::vector< std::vector< EtcdKey > > ranges{}; // of a range, or of those in a transaction
   bool hasMore = false;
   U64 watch = 0;
   bool isCreated = false; // a watch
   bool isCancelled = false;
   U64 compacted = 0;
   std::string reason = {};
   std::vector< EtcdEvent > events = {};
   U64 lease = 0;
   std::int64_t ttl = 0;
   std::string token = {};

   // Of what is no JSON an error.
   static EtcdReply of( std::string_view json );
   EtcdKey const * only( std::size_t range = 0 ) const {
      return range < ranges.size() && !ranges[range].empty() ? &ranges[range].front() : nullptr;
   }
};

// The attributes of a path as one text, and back. The latter throws Rex::ValueError.
std::string textOf( Attributes const & attributes );
Attributes attributesOf( std::string const & text );

} // namespace Live
