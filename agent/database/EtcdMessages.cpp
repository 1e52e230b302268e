#include "agent/database/EtcdMessages.h"

#include "agent/database/Base64.h"
#include "inspection/files/Json.h"
#include "inspection/files/JsonElements.h"

#include <charconv>

namespace Live {

namespace {

namespace Json = Inspection::JsonElements;
using Json::dom::element;

std::string member( char const * name, std::string_view bytes ) {
   return std::string( "\"" ) + name + "\":\"" + toBase64( bytes ) + "\"";
}

void append( std::string & list, std::string const & what ) {
   list += ( list.empty() ? "" : "," ) + what;
}

U64 numberIn( element of, char const * name ) { // numbers of 64 bits are texts
   element found;
   if ( of[name].get( found ) ) {
      return 0;
   }
   std::string_view text;
   U64 number = 0;
   if ( !found.get( text ) ) {
      std::from_chars( text.data(), text.data() + text.size(), number );
   } else if ( found.get( number ) ) {
      number = 0;
   }
   return number;
}

std::string textIn( element of, char const * name ) {
   std::string_view text;
   return of[name].get( text ) ? std::string() : std::string( text );
}

bool flagIn( element of, char const * name ) {
   bool flag = false;
   return !of[name].get( flag ) && flag;
}

EtcdKey keyOf( element of ) {
   return { .key = fromBase64( textIn( of, "key" ) ),
            .value = fromBase64( textIn( of, "value" ) ),
            .modified = numberIn( of, "mod_revision" ),
            .version = numberIn( of, "version" ),
            .lease = numberIn( of, "lease" ) };
}

template< class Does >
void forEach( element of, char const * name, Does const & does ) {
   Json::dom::array list;
   if ( !of[name].get( list ) ) {
      for ( element const each : list ) {
         does( each );
      }
   }
}

std::vector< EtcdKey > keysOf( element of ) {
   std::vector< EtcdKey > keys;
   forEach( of, "kvs", [&]( element each ) { keys.push_back( keyOf( each ) ); } );
   return keys;
}

EtcdEvent eventOf( element of ) {
   EtcdEvent event{ .isDelete = textIn( of, "type" ) == "DELETE" };
   element part;
   if ( !of["kv"].get( part ) ) {
      event.now = keyOf( part );
   }
   if ( !of["prev_kv"].get( part ) ) {
      event.before = keyOf( part );
   }
   return event;
}

std::string errorIn( element of ) {
   element error;
   if ( of["error"].get( error ) ) {
      return {};
   }
   std::string_view text;
   std::string const told = error.get( text ) ? textIn( error, "message" ) : std::string( text );
   return told.empty() ? "an error without a text" : told;
}

} // namespace

std::string EtcdRange::text() const {
   std::string all = "{" + member( "key", key );
   if ( !end.empty() ) {
      all += "," + member( "range_end", end );
   }
   all += limit == 0 ? "" : ",\"limit\":" + std::to_string( limit );
   all += revision == 0 ? "" : ",\"revision\":" + std::to_string( revision );
   return all + ( keysOnly ? ",\"keys_only\":true}" : "}" );
}

void EtcdTransaction::compare( std::string const & key,
                               char const * target,
                               char const * result,
                               std::string const & of ) {
   append( compares_,
           "{" + member( "key", key ) + ",\"target\":\"" + target + "\",\"result\":\"" + result + "\"," + of + "}" );
}

void EtcdTransaction::ifValueIs( std::string const & key, std::string const & value ) {
   compare( key, "VALUE", "EQUAL", member( "value", value ) );
}

void EtcdTransaction::ifModifiedAt( std::string const & key, U64 revision ) {
   compare( key, "MOD", "EQUAL", "\"mod_revision\":" + std::to_string( revision ) );
}

void EtcdTransaction::ifNotModifiedSince( std::string const & key, U64 revision ) {
   compare( key, "MOD", "LESS", "\"mod_revision\":" + std::to_string( revision + 1 ) );
}

void EtcdTransaction::ifLeaseIs( std::string const & key, U64 lease ) {
   compare( key, "LEASE", "EQUAL", "\"lease\":" + std::to_string( lease ) );
}

void EtcdTransaction::operation( std::string const & what ) {
   append( then_, what );
   ++operations_;
}

void EtcdTransaction::put( std::string const & key, std::string const & value, U64 lease ) {
   operation( "{\"request_put\":{" + member( "key", key ) + "," + member( "value", value ) +
              ( lease == 0 ? "" : ",\"lease\":" + std::to_string( lease ) ) + "}}" );
}

void EtcdTransaction::remove( std::string const & key, std::string const & end ) {
   operation( "{\"request_delete_range\":{" + member( "key", key ) +
              ( end.empty() ? "" : "," + member( "range_end", end ) ) + "}}" );
}

void EtcdTransaction::range( EtcdRange const & of ) {
   operation( "{\"request_range\":" + of.text() + "}" );
}

void EtcdTransaction::otherwise( EtcdRange const & of ) {
   append( otherwise_, "{\"request_range\":" + of.text() + "}" );
}

std::string EtcdTransaction::text() const {
   return "{\"compare\":[" + compares_ + "],\"success\":[" + then_ + "],\"failure\":[" + otherwise_ + "]}";
}

EtcdReply EtcdReply::of( std::string_view json ) {
   thread_local simdjson::dom::parser parser;
   EtcdReply reply;
   element all;
   if ( parser.parse( json.data(), json.size() ).get( all ) || !all.is_object() ) {
      reply.error = "what it answers is no object of JSON";
      return reply;
   }
   reply.error = errorIn( all );
   element inner;
   if ( !all["result"].get( inner ) ) { // of a stream
      all = inner;
   }
   if ( element header; !all["header"].get( header ) ) {
      reply.cluster = textIn( header, "cluster_id" );
      reply.revision = numberIn( header, "revision" );
   }
   reply.succeeded = flagIn( all, "succeeded" );
   reply.hasMore = flagIn( all, "more" );
   reply.watch = numberIn( all, "watch_id" );
   reply.isCreated = flagIn( all, "created" );
   reply.isCancelled = flagIn( all, "canceled" );
   reply.compacted = numberIn( all, "compact_revision" );
   reply.reason = textIn( all, "cancel_reason" );
   reply.lease = numberIn( all, "ID" );
   reply.ttl = static_cast< std::int64_t >( numberIn( all, "TTL" ) );
   reply.token = textIn( all, "token" );
   forEach( all, "events", [&]( element each ) { reply.events.push_back( eventOf( each ) ); } );
   forEach( all, "responses", [&]( element each ) {
      element range;
      if ( !each["response_range"].get( range ) ) {
         reply.ranges.push_back( keysOf( range ) );
         reply.hasMore = reply.hasMore || flagIn( range, "more" );
      }
   } );
   if ( element list; !all["kvs"].get( list ) ) {
      reply.ranges.push_back( keysOf( all ) );
   }
   return reply;
}

std::string textOf( Attributes const & attributes ) {
   std::string all;
   for ( auto const & [name, text] : attributes ) {
      append( all, Inspection::quoted( name ) + ":" + text );
   }
   return "{" + all + "}";
}

Attributes attributesOf( std::string const & text ) {
   thread_local simdjson::dom::parser parser;
   Json::dom::object object;
   if ( parser.parse( text.data(), text.size() ).get( object ) ) {
      throw Rex::ValueError( "", "expected an object of JSON, attribute to value" );
   }
   Attributes attributes;
   for ( auto const [name, value] : object ) {
      attributes.emplace( name, Rex::toText( Json::valueOf( value ) ) );
   }
   return attributes;
}

} // namespace Live
