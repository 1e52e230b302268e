#include "agent/database/RedisStore.h"

#include "agent/database/LogEntry.h"
#include "agent/database/RedisWatch.h"

#include <algorithm>

namespace Live {

namespace {

constexpr char const * longestLog = "100000";

} // namespace

// ---- looking

Snapshot RedisStore::snapshot( std::string const & path ) {
   auto const isWanted = [&]( std::string const & at ) { return path.empty() || Rex::isAtOrBelow( at, path ); };
   auto snapshot = session_.snapshot( layout_, isWanted );
   std::erase_if( snapshot.paths, [&]( auto const & each ) { return !isWanted( each.first ); } );
   return snapshot;
}

Paths RedisStore::about( std::string const & path ) {
   std::vector< std::string > names;
   session_.ask( { "SMEMBERS", layout_.paths() }, [&]( RedisReply reply ) {
      for ( RedisReply const name : reply ) {
         std::string const text( name.text() );
         if ( Rex::isAtOrBelow( text, path ) || Rex::isAtOrBelow( path, text ) ) {
            names.push_back( text );
         }
      }
   } );
   session_.wait();
   Paths paths;
   for ( auto const & name : names ) {
      session_.ask( { "HGETALL", layout_.hash( name ) },
                    [&attributes = paths[name]]( RedisReply fields ) { attributes = attributesOf( fields ); } );
   }
   session_.wait();
   return paths;
}

std::optional< std::vector< Transaction > > RedisStore::since( Position const & position, Mark const & ) {
   std::vector< Transaction > all;
   bool isUpToDate = false;
   bool hasGap = false;
   Position from = position;
   while ( !isUpToDate && !hasGap ) {
      askBehind( session_.connection(), layout_, from, Waiting::not_, [&]( LogPage & page ) {
         isUpToDate = !page.isFull;
         hasGap = !gapBehind( from, page.state ).empty();
         std::ranges::move( page.transactions, std::back_inserter( all ) );
      } );
      session_.wait();
      from = all.empty() ? from : all.back().position;
   }
   return hasGap ? std::nullopt : std::optional( std::move( all ) );
}

// ---- writing

void RedisStore::watchKeys( Mark & into ) {
   session_.ask( { "WATCH", layout_.epoch(), layout_.paths(), layout_.log() } );
   session_.ask( { "GET", layout_.epoch() }, [&into]( RedisReply reply ) { into.epoch = reply.text(); } );
   session_.ask( { "XREVRANGE", layout_.log(), "+", "-", "COUNT", "1" },
                 [&into]( RedisReply reply ) { into.entry = reply[0][0].text(); } );
}

StateStore::Mark RedisStore::mark() {
   Mark now;
   watchKeys( now );
   session_.wait();
   if ( now.epoch.empty() ) {
      refuse( noStateText );
   }
   return now;
}

bool RedisStore::isBehind( Position const & position, Mark const & mark ) const {
   return mark.epoch != position.epoch || mark.entry != position.entry;
}

void RedisStore::ask( StateChange const & change ) {
   for ( auto const & path : change.fresh ) {
      session_.ask( { "DEL", layout_.hash( path ) } ); // what isn't among the paths isn't there, whatever lies there
   }
   for ( PathChange const & each : change.changes ) {
      std::string const key = layout_.hash( each.path );
      switch ( each.kind ) {
      case PathChange::Kind::stands:
         session_.ask( { "SADD", layout_.paths(), each.path } );
         break;
      case PathChange::Kind::set:
         session_.ask( { "SADD", layout_.paths(), each.path } );
         session_.ask( { "HSET", key, each.attribute, each.text } );
         break;
      case PathChange::Kind::clear:
         session_.ask( { "HDEL", key, each.attribute } );
         break;
      case PathChange::Kind::remove:
         session_.ask( { "DEL", key } );
         session_.ask( { "SREM", layout_.paths(), each.path } );
         break;
      }
   }
}

void RedisStore::askLog( std::string const & changes,
                         std::string const & epoch,
                         char const * approximately,
                         char const * most ) {
   session_.ask(
      { "XADD", layout_.log(), "MAXLEN", approximately, most, "*", changesField, changes, epochField, epoch } );
}

std::string
RedisStore::commit( StateChange const & change, Paths const &, Inspection::Event const & event, Mark & mark ) {
   session_.ask( { "MULTI" } );
   ask( change );
   askLog( changesText( std::span( &event, 1 ) ), mark.epoch, "~", longestLog );
   std::string entry;
   std::string failed;
   session_.ask( { "EXEC" }, [&]( RedisReply reply ) {
      for ( RedisReply const each : reply ) {
         failed = each.isError() ? std::string( each.text() ) : failed;
         entry = each.text();
      }
   } );
   watchKeys( mark ); // for the next one, in the same breath
   session_.wait();
   if ( !failed.empty() ) {
      refuse( failed );
   }
   return entry;
}

// ---- waiting for agents

Position RedisStore::place() {
   return session_.place( layout_ );
}

std::vector< AwaitedAgent > RedisStore::agents( std::vector< std::string > slices, Position const & place ) {
   if ( slices.empty() ) {
      session_.ask( { "SMEMBERS", layout_.agents() }, [&]( RedisReply reply ) {
         for ( RedisReply const name : reply ) {
            slices.emplace_back( name.text() );
         }
      } );
      session_.wait();
      std::ranges::sort( slices );
   }
   std::vector< AwaitedAgent > agents;
   agents.reserve( slices.size() );
   for ( auto const & slice : slices ) {
      AwaitedAgent & agent = agents.emplace_back( AwaitedAgent{ .slice = slice } );
      session_.ask( { "EXISTS", layout_.lease( slice ) },
                    [&agent]( RedisReply reply ) { agent.isThere = reply.number() == 1; } );
      session_.ask( { "HMGET", layout_.agent( slice ), "epoch", "applied", "phase", "reason" },
                    [&agent, &place]( RedisReply reply ) {
                       agent.applied = reply[1].text();
                       agent.hasCaughtUp =
                          reply[0].text() == place.epoch && EntryId::of( agent.applied ) >= EntryId::of( place.entry );
                       agent.phase = reply[2].text();
                       agent.reason = reply[3].text();
                    } );
   }
   session_.wait();
   return agents;
}

std::unique_ptr< StateWatch > RedisStore::watch( StateWatch::Answers answers ) {
   return std::make_unique< RedisWatch >( session_, layout_, place(), std::move( answers ) );
}

} // namespace Live
