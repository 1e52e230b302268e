#include "agent/database/RedisLease.h"

#include <iomanip>
#include <sstream>

namespace Live {

namespace {

constexpr char const * leaseMilliseconds = "10000";

// KEYS: the lease. ARGV: our token, milliseconds, the token of one who is dead.
constexpr char const * takeScript = "local holder = redis.call( 'GET', KEYS[1] ) "
                                    "if not holder or holder == ARGV[1] or holder == ARGV[3] then "
                                    "redis.call( 'SET', KEYS[1], ARGV[1], 'PX', ARGV[2] ) return {} end "
                                    "return { holder, redis.call( 'PTTL', KEYS[1] ) }";
// KEYS: the lease, the slices that have an agent. ARGV: our token, the slice.
constexpr char const * releaseScript = "if redis.call( 'GET', KEYS[1] ) == ARGV[1] then "
                                       "redis.call( 'DEL', KEYS[1] ) redis.call( 'SREM', KEYS[2], ARGV[2] ) end";

} // namespace

RedisLease::RedisLease( RedisLayout const & layout, std::string const & slice )
   : key_( layout.lease( slice ) ), agents_( layout.agents() ), slice_( slice ),
     token_( LeaseHolder::thisProcess().text() ) {}

void RedisLease::take( RedisConnection & connection,
                       std::function< void() > const & ours,
                       std::function< void( std::string const & who ) > const & others ) {
   takeFrom( connection, "", ours, others );
}

void RedisLease::takeFrom( RedisConnection & connection,
                           std::string const & dead,
                           std::function< void() > const & ours,
                           std::function< void( std::string const & who ) > const & others ) {
   connection.ask( { "EVAL", takeScript, "1", key_, token_, leaseMilliseconds, dead },
                   [this, &connection, dead, ours, others]( RedisReply reply ) {
                      if ( reply.size() == 0 ) {
                         ours();
                         return;
                      }
                      std::string const token( reply[0].text() );
                      auto const holder = LeaseHolder::of( token );
                      if ( token != dead && holder.isDead() ) {
                         takeFrom( connection, token, ours, others );
                         return;
                      }
                      std::ostringstream text;
                      text << "slice " << slice_ << " is served by " << holder.forPeople();
                      auto const left = static_cast< double >( reply[1].number() ) / 1000;
                      if ( left >= 0 ) {
                         text << ", which has the right to it for " << std::fixed << std::setprecision( 1 ) << left
                              << " s more unless it renews it";
                      }
                      others( text.str() );
                   } );
}

void RedisLease::release( RedisConnection & connection ) {
   connection.ask( { "EVAL", releaseScript, "2", key_, agents_, token_, slice_ }, []( RedisReply ) {} );
}

} // namespace Live
