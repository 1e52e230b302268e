#include "agent/database/EtcdStore.h"

#include "agent/database/EtcdReader.h"
#include "agent/database/EtcdWatch.h"
#include "inspection/files/InputError.h"

#include <algorithm>

namespace Live {

namespace {

// The key of writes, and the two of a life, go along with what is written.
constexpr std::size_t besides = 3;
// In one transaction.
constexpr std::size_t mostBelow = 16;
// How long others' revisions are waited for that are there already.
constexpr Rex::Seconds longestLook = 2;

bool hasBelow( Paths const & paths, std::string const & path ) {
   auto const next = paths.upper_bound( path + "/" );
   return next != paths.end() && next->first.starts_with( path + "/" );
}

std::string fieldIn( Attributes const & fields, char const * name ) {
   auto const found = fields.find( name );
   auto const value = found == fields.end() ? Rex::Value() : valueOfText( found->second );
   return value.text() ? *value.text() : std::string();
}

} // namespace

// ---- looking

Snapshot EtcdStore::snapshot( std::string const & path ) {
   auto snapshot =
      session_.snapshot( layout_, path.empty() ? EtcdSnapshot::Parts() : EtcdSnapshot::partsAt( layout_, path ) );
   seen_ = revisionOf( snapshot.position.entry );
   return snapshot;
}

Paths EtcdStore::about( std::string const & path ) {
   auto snapshot = session_.snapshot( layout_, EtcdSnapshot::partsAbout( layout_, path ) );
   seen_ = revisionOf( snapshot.position.entry );
   return std::move( snapshot.paths );
}

StateStore::Mark EtcdStore::mark() {
   EtcdTransaction transaction;
   transaction.range( { .key = layout_.epoch() } );
   transaction.range( { .key = layout_.writes() } );
   auto const reply = session_.ask( "kv/txn", transaction.text() );
   if ( !reply.only() ) {
      refuse( noStateText );
   }
   auto const * const last = reply.only( 1 );
   return { reply.only()->value, std::to_string( last ? last->modified : 0 ) };
}

// A position may be that of a revision that has nothing to do with the state.
bool EtcdStore::isBehind( Position const & position, Mark const & mark ) const {
   return mark.epoch != position.epoch || revisionOf( mark.entry ) > revisionOf( position.entry );
}

std::optional< std::vector< Transaction > > EtcdStore::since( Position const & position, Mark const & mark ) {
   std::vector< Transaction > all;
   bool isOver = mark.epoch != position.epoch;
   bool hasGap = isOver;
   EtcdClient client( loop(), session_.address(), 0, [&]( std::string const & ) { isOver = hasGap = true; } );
   EtcdReader reader( loop(),
                      client,
                      layout_,
                      position,
                      0,
                      { .begins = [] {},
                        .are =
                           [&]( std::vector< Transaction > some ) {
                              std::ranges::move( some, std::back_inserter( all ) );
                              isOver = revisionOf( all.back().position.entry ) >= revisionOf( mark.entry );
                              reader.more( all.back().position );
                           },
                        .gap = [&]( std::string const & ) { isOver = hasGap = true; },
                        .without = [&]( std::string const & ) { isOver = hasGap = true; } } );
   auto const late = loop().timer( longestLook, [&] { isOver = hasGap = true; } );
   while ( !isOver ) {
      loop().turn( 1 );
   }
   if ( hasGap ) {
      return std::nullopt;
   }
   seen_ = revisionOf( all.back().position.entry );
   return all;
}

// ---- writing

std::string EtcdStore::newToken() {
   return writer_ + " " + std::to_string( ++count_ );
}

EtcdStore::Writes EtcdStore::writesOf( StateChange const & change, Paths const & after ) const {
   Writes writes;
   std::string gone = "\n"; // with all below it
   std::set< std::string > touched;
   for ( PathChange const & each : change.changes ) {
      touched.insert( each.path );
   }
   for ( auto const & path : touched ) {
      if ( auto const there = after.find( path ); there != after.end() ) {
         writes.keys[layout_.key( path )] = textOf( there->second );
      } else if ( !path.starts_with( gone ) ) {
         writes.keys[layout_.key( path )] = std::nullopt;
         auto const next = touched.upper_bound( path + "/" );
         bool const holds = next != touched.end() && next->starts_with( path + "/" );
         if ( holds && writes.below.size() < mostBelow && !hasBelow( after, path ) ) {
            gone = path + "/";
            writes.below.push_back( layout_.key( gone ) );
         }
      }
   }
   return writes;
}

std::string
EtcdStore::commit( StateChange const & change, Paths const & after, Inspection::Event const & event, Mark & mark ) {
   Writes writes = writesOf( change, after );
   if ( writes.size() == 0 ) {
      return mark.entry; // and nobody hears of it
   }
   std::size_t const each = most_ - besides;
   std::size_t const parts = ( writes.size() + each - 1 ) / each;
   auto at = writes.keys.begin();
   for ( std::size_t part = 0; part < parts; ++part ) {
      EtcdTransaction transaction;
      std::string const token = newToken();
      transaction.ifValueIs( layout_.epoch(), mark.epoch );
      transaction.ifModifiedAt( layout_.writes(), revisionOf( mark.entry ) );
      transaction.put( layout_.writes(), token );
      for ( auto const & below : part == 0 ? writes.below : std::vector< std::string >() ) {
         transaction.remove( below, endOf( below ) );
      }
      for ( ; at != writes.keys.end() && transaction.size() < each + 1; ++at ) {
         transaction.ifNotModifiedSince( at->first, seen_ );
         at->second ? transaction.put( at->first, *at->second ) : transaction.remove( at->first );
      }
      auto const revision = written( transaction, token, revisionOf( mark.entry ) );
      if ( revision == 0 && part > 0 ) {
         refuse( event.text() + ": somebody else has written meanwhile; " + std::to_string( part ) + " of its " +
                 std::to_string( parts ) + " parts are written" );
      }
      if ( revision == 0 ) {
         mark = this->mark();
         return {};
      }
      mark.entry = std::to_string( revision );
      seen_ = revision;
   }
   if ( parts > 1 ) {
      note( event.text() + ": written as " + std::to_string( parts ) + " transactions, " +
            std::to_string( writes.size() ) + " paths; the server takes " + std::to_string( most_ ) +
            " operations in one" );
   }
   return mark.entry;
}

// Without an answer it may have been done, or may be yet. With one that says no, too: what carries the question repeats
// it, where a connection was gone before it could tell. Another one's write stands there then, or its own.
U64 EtcdStore::written( EtcdTransaction const & transaction, std::string const & token, U64 before ) {
   auto const body = transaction.text();
   for ( ;; ) {
      auto const reply = session_.tell( "kv/txn", body );
      if ( reply && reply->succeeded ) {
         return reply->revision;
      }
      try {
         auto const [revision, by] = writtenBehind( before );
         if ( reply || revision != 0 ) {
            return by == token ? revision : 0;
         }
      } catch ( Inspection::InputError const & error ) {
         throw Inspection::InputError( std::string( error.what() ) + "; whether it was written, nobody can tell now" );
      }
   }
}

std::pair< U64, std::string > EtcdStore::writtenBehind( U64 before ) {
   std::pair< U64, std::string > first{ 0, {} };
   for ( U64 at = 0;; at = first.first - 1 ) { // now, and back from there
      auto const reply = session_.ask( "kv/range", EtcdRange{ .key = layout_.writes(), .revision = at }.text() );
      auto const * const there = reply.only();
      if ( !there || there->modified <= before ) {
         return first;
      }
      first = { there->modified, there->value };
      if ( there->version == 1 || there->modified == before + 1 ) {
         return first;
      }
   }
}

// The old life ends before the new one is written: nobody takes half of it for a state.
std::string EtcdStore::load( Paths const & paths ) {
   std::string const epoch = newEpoch();
   std::string const token = newToken();
   EtcdTransaction end;
   end.remove( layout_.mark(), endOf( layout_.mark() ) );
   end.remove( layout_.epoch() );
   end.put( layout_.writes(), token );
   session_.ask( "kv/txn", end.text() );
   std::vector< EtcdTransaction > all( 1 );
   for ( auto const & [path, attributes] : paths ) {
      if ( all.back().size() == most_ - besides ) {
         all.emplace_back();
      }
      all.back().put( layout_.key( path ), textOf( attributes ) );
   }
   all.back().put( layout_.mark(), epoch );
   all.back().put( layout_.epoch(), epoch );
   for ( EtcdTransaction & each : all ) {
      each.ifValueIs( layout_.writes(), token );
      if ( !session_.ask( "kv/txn", each.text() ).succeeded ) {
         refuse( "somebody else has loaded a state meanwhile" );
      }
   }
   return epoch;
}

// ---- waiting for agents

Position EtcdStore::place() {
   auto const now = mark();
   auto const reply = session_.ask( "kv/range", EtcdRange{ .key = layout_.epoch() }.text() );
   U64 const begun = reply.only() ? reply.only()->modified : 0;
   return { reply.cluster, now.epoch, std::to_string( std::max( begun, revisionOf( now.entry ) ) ) };
}

std::vector< AwaitedAgent > EtcdStore::agents( std::vector< std::string > slices, Position const & place ) {
   std::string const begin = layout_.agents();
   if ( slices.empty() ) {
      auto const reply =
         session_.ask( "kv/range", EtcdRange{ .key = begin, .end = endOf( begin ), .keysOnly = true }.text() );
      for ( EtcdKey const & each : reply.ranges.empty() ? std::vector< EtcdKey >() : reply.ranges.front() ) {
         slices.push_back( each.key.substr( begin.size() ) );
      }
   }
   std::vector< AwaitedAgent > agents;
   for ( auto const & slice : slices ) {
      AwaitedAgent & agent = agents.emplace_back( AwaitedAgent{ .slice = slice } );
      auto const reply = session_.ask( "kv/range", EtcdRange{ .key = layout_.agent( slice ) }.text() );
      agent.isThere = reply.only() != nullptr;
      try {
         Attributes const fields = agent.isThere ? attributesOf( reply.only()->value ) : Attributes();
         agent.applied = fieldIn( fields, "applied" );
         agent.hasCaughtUp =
            fieldIn( fields, "epoch" ) == place.epoch && revisionOf( agent.applied ) >= revisionOf( place.entry );
         agent.phase = fieldIn( fields, "phase" );
         agent.reason = fieldIn( fields, "reason" );
      } catch ( Rex::ValueError const & ) { // no agent has written that
      }
   }
   return agents;
}

std::unique_ptr< StateWatch > EtcdStore::watch( StateWatch::Answers answers ) {
   return std::make_unique< EtcdWatch >( session_, layout_, place(), std::move( answers ) );
}

} // namespace Live
