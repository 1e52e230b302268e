#include "agent/database/RedisLease.h"

#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <unistd.h>

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

std::string firstLine( std::string const & file ) {
   std::string line;
   std::getline( std::ifstream( file ), line );
   return line;
}

// When a process was started, in the kernel's own ticks; empty where there is no such process.
std::string startOf( std::string const & process ) {
   constexpr int fieldsBefore = 19; // between the name, which ends in the last bracket, and the time
   std::string const status = firstLine( "/proc/" + process + "/stat" );
   auto const name = status.rfind( ')' );
   if ( name == std::string::npos ) {
      return {};
   }
   std::istringstream fields( status.substr( name + 1 ) );
   std::string field;
   fields >> field;
   if ( field == "Z" || field == "X" ) { // it has ended, and nobody has noticed yet
      return {};
   }
   for ( int at = 0; at < fieldsBefore; ++at ) {
      fields >> field;
   }
   return field;
}

std::string processSpace() {
   std::error_code none;
   return std::filesystem::read_symlink( "/proc/self/ns/pid", none ).string();
}

} // namespace

LeaseHolder LeaseHolder::thisProcess() {
   static unsigned instances = 0;
   std::array< char, 256 > host{};
   ::gethostname( host.data(), host.size() - 1 );
   std::string const process = std::to_string( ::getpid() );
   return { host.data(),
            firstLine( "/proc/sys/kernel/random/boot_id" ),
            processSpace(),
            process,
            startOf( process ),
            std::to_string( ++instances ) };
}

LeaseHolder LeaseHolder::of( std::string_view text ) {
   LeaseHolder holder;
   std::istringstream parts{ std::string( text ) };
   parts >> holder.host >> holder.boot >> holder.space >> holder.process >> holder.started >> holder.instance;
   return holder;
}

std::string LeaseHolder::text() const {
   return host + " " + boot + " " + space + " " + process + " " + started + " " + instance;
}

bool LeaseHolder::isDead() const {
   bool const isHere =
      !boot.empty() && boot == firstLine( "/proc/sys/kernel/random/boot_id" ) && space == processSpace();
   return isHere && !process.empty() && startOf( process ) != started;
}

std::string LeaseHolder::forPeople() const {
   return process.empty() ? "somebody who doesn't tell his name" : "process " + process + " on " + host;
}

RedisLease::RedisLease( RedisLayout const & layout, std::string const & slice )
   : key_( layout.lease( slice ) ), agents_( layout.agents() ), slice_( slice ),
     token_( LeaseHolder::thisProcess().text() ) {}

void RedisLease::take( RedisConnection & connection,
                       std::function< void() > ours,
                       std::function< void( std::string const & who ) > others ) {
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
