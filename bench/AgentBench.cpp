// What it costs to follow a state in a Redis: against a bare reader of the same log that parses what it reads, against
// one writer, against reading the same state, and against a bare subscriber. A real server on a Unix socket; all in one
// run.
#include "agent/RedisServer.h"
#include "agent/SliceAgent.h"
#include "agent/database/RedisDatabase.h"
#include "inspection/Play.h"
#include "inspection/files/Json.h"
#include "rex/Log.h"

#include <benchmark/benchmark.h>
#include <simdjson.h>
#include <sys/mman.h>

namespace {

using namespace Live;

constexpr char const * file = R"({"switch": {"slice": {"name": "Bench"},
 "faps": [{"fapId": 0, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}}]}})";

std::string const prefix = "l3sm:{1}:";
std::string const mtuPath = "interface/config/global";

Inspection::Scenario scenario( std::string const & slice ) {
   auto one = Inspection::scenarioOf( Inspection::parseJson( file, "bench" ), "bench" );
   one.description.sliceName = slice;
   return one;
}

void loadPlugin() {
   Rex::logSinkIs( []( auto const & ) {} );
   Inspection::loadPlugin( "" );
}

void load( RedisServer & server, std::size_t interfaces = 0 ) {
   server.atOnce( { { "SET", "l3sm:{1}#epoch", "e" },
                    { "SADD", "l3sm:{1}#paths", mtuPath },
                    { "HSET", prefix + mtuPath, "l3Mtu", "1500" },
                    { "XADD", "l3sm:{1}#log", "*", "changes", "[]", "epoch", "e" } } );
   for ( std::size_t number = 0; number < interfaces; ++number ) {
      std::string const path =
         "shared/phySmStateData/allEthPhyIntfConfigDir/intfConfig/Ethernet" + std::to_string( number + 1 );
      server.tell( { "SADD", "l3sm:{1}#paths", path } );
      server.tell( { "HSET", prefix + path, "enabled", "true", "mtu", std::to_string( 1500 + number % 1000 ) } );
      if ( number % 1000 == 999 || number + 1 == interfaces ) {
         for ( std::size_t at = 0; at < 2 * ( number % 1000 + 1 ); ++at ) {
            server.answer();
         }
      }
   }
}

std::vector< RedisServer::Words > transaction( std::size_t number ) {
   std::string const mtu = std::to_string( 1000 + number % 8000 );
   return { { "HSET", prefix + mtuPath, "l3Mtu", mtu },
            { "XADD",
              "l3sm:{1}#log",
              "*",
              "changes",
              R"([{"set": {"path": ")" + mtuPath + R"(", "attribute": "l3Mtu", "value": )" + mtu + "}}]",
              "epoch",
              "e",
              "number", // for who measures
              std::to_string( number ) } };
}

void writePipelined( RedisServer & server, std::size_t count ) {
   constexpr std::size_t depth = 64;
   std::size_t open = 0;
   auto const drain = [&] {
      for ( ; open; --open ) {
         server.answer();
      }
   };
   for ( std::size_t number = 0; number < count; ++number ) {
      server.tell( { "MULTI" } );
      for ( auto const & words : transaction( number ) ) {
         server.tell( words );
      }
      server.tell( { "EXEC" } );
      open += 4;
      if ( number % depth == depth - 1 ) {
         drain();
      }
   }
   drain();
}

// An agent of its own loop, and how far it has come.
struct Follower : AgentOnlooker {
   explicit Follower( RedisServer & server, std::string const & slice = "Bench" )
      : database( loop, server.address(), 1, slice ), agent( loop, database, scenario( slice ) ) {
      agent.onlookerAdd( *this );
   }
   void transactionPlayed( Transaction const &, Rex::Seconds ) override { ++played; }
   void runsUntil( std::function< bool() > const & isDone ) {
      while ( !isDone() ) {
         loop.turn( 1 );
      }
   }
   EventLoop loop;
   RedisDatabase database;
   SliceAgent agent;
   std::size_t played = 0;
};

double secondsOf( std::function< void() > const & what ) {
   auto const begun = EventLoop::clock();
   what();
   return EventLoop::clock() - begun;
}

void tell( benchmark::State & state, std::string const & what, double ratio, double goal, bool isAtLeast ) {
   char text[200];
   std::snprintf(
      text, sizeof text, "%s: ratio %.2f (goal %s %.2f)", what.c_str(), ratio, isAtLeast ? ">=" : "<=", goal );
   bool const isMet = isAtLeast ? ratio >= goal : ratio <= goal;
   isMet ? state.SetLabel( text ) : state.SkipWithError( text );
}

std::string perSecond( char const * who, std::size_t count, double seconds ) {
   char text[80];
   std::snprintf( text, sizeof text, "%s %.0f/s", who, static_cast< double >( count ) / seconds );
   return text;
}

// ---- throughput

void throughput( benchmark::State & state ) {
   constexpr std::size_t count = 90'000;
   for ( auto _ : state ) {
      RedisServer server;
      load( server );
      Follower follower( server );
      follower.agent.begin();
      follower.runsUntil( [&] { return follower.agent.phase() == Phase::running; } );
      writePipelined( server, count );

      double const bare = secondsOf( [&] {
         simdjson::dom::parser parser;
         std::string from = "0-0";
         std::size_t values = 0;
         for ( std::size_t read = 0; read <= count; ) {
            auto const page = server.ask( { "XREAD", "COUNT", "1000", "STREAMS", "l3sm:{1}#log", from } );
            for ( RedisReply const entry : page[0][1] ) {
               from = entry[0].text();
               simdjson::dom::array changes;
               if ( !parser.parse( std::string( entry[1][1].text() ) ).get( changes ) ) {
                  values += changes.size();
               }
               ++read;
            }
         }
         benchmark::DoNotOptimize( values );
      } );
      double const agent = secondsOf( [&] { follower.runsUntil( [&] { return follower.played >= count; } ); } );
      tell( state,
            perSecond( "agent", count, agent ) + ", bare reader " + perSecond( "", count, bare ),
            bare / agent,
            0.5,
            true );
   }
}

void againstOneWriter( benchmark::State & state ) {
   constexpr std::size_t count = 20'000;
   for ( auto _ : state ) {
      RedisServer server;
      load( server );
      double const writer = secondsOf( [&] {
         for ( std::size_t number = 0; number < count; ++number ) {
            server.atOnce( transaction( number ) );
         }
      } );
      Follower follower( server );
      follower.agent.begin();
      follower.runsUntil( [&] { return follower.agent.phase() == Phase::running; } );
      writePipelined( server, count );
      double const agent = secondsOf( [&] { follower.runsUntil( [&] { return follower.played >= count; } ); } );
      tell( state,
            perSecond( "agent", count, agent ) + ", one writer " + perSecond( "", count, writer ),
            writer / agent,
            3,
            true );
   }
}

// ---- a whole state

void snapshot( benchmark::State & state ) {
   constexpr std::size_t interfaces = 65'535;
   for ( auto _ : state ) {
      RedisServer server;
      load( server, interfaces );
      double const bare = secondsOf( [&] {
         std::vector< std::string > paths;
         for ( auto const path : server.ask( { "SMEMBERS", "l3sm:{1}#paths" } ) ) {
            paths.emplace_back( path.text() );
         }
         std::map< std::string, std::map< std::string, std::string > > all;
         constexpr std::size_t chunk = 1000;
         for ( std::size_t from = 0; from < paths.size(); from += chunk ) {
            auto const end = std::min( paths.size(), from + chunk );
            for ( auto at = from; at < end; ++at ) {
               server.tell( { "HGETALL", prefix + paths[at] } );
            }
            for ( auto at = from; at < end; ++at ) {
               auto const fields = server.answer();
               for ( std::size_t field = 0; field + 1 < fields.size(); field += 2 ) {
                  all[paths[at]].emplace( fields[field].text(), fields[field + 1].text() );
               }
            }
         }
      } );
      Follower follower( server );
      double const agent = secondsOf( [&] {
         follower.agent.begin();
         follower.runsUntil( [&] { return follower.agent.phase() == Phase::running; } );
      } );
      char text[120];
      std::snprintf( text, sizeof text, "agent %.2f s, read bare %.2f s", agent, bare );
      tell( state, text, agent / bare, 1.5, false );
   }
}

// ---- latency

// What processes measure for each other.
struct Times {
   static constexpr std::size_t most = 1 << 16;
   double written[most];
   double bare[most];
   double played[4][most];
};

double percentile( std::vector< double > times, double part ) {
   std::ranges::sort( times );
   return times[static_cast< std::size_t >( part * static_cast< double >( times.size() - 1 ) )];
}

void latency( benchmark::State & state ) {
   constexpr std::size_t count = 5'000;
   constexpr double rate = 1'000;
   for ( auto _ : state ) {
      RedisServer server;
      load( server );
      auto * const times = static_cast< Times * >(
         ::mmap( nullptr, sizeof( Times ), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0 ) );
      std::vector< pid_t > children;
      auto const child = [&]( std::function< void() > const & what ) {
         auto const process = ::fork();
         if ( process == 0 ) {
            ::prctl( PR_SET_PDEATHSIG, SIGKILL );
            what();
            ::_exit( 0 );
         }
         children.push_back( process );
      };
      for ( std::size_t number = 0; number < 4; ++number ) {
         child( [&] {
            Follower follower( server, "Bench" + std::to_string( number ) );
            struct Stamp : AgentOnlooker {
               double * to = nullptr;
               void transactionPlayed( Transaction const & transaction, Rex::Seconds ) override {
                  auto const mtu = *transaction.changes.front().value.integer();
                  to[mtu - 1000] = EventLoop::clock();
               }
            } stamp;
            stamp.to = times->played[number];
            follower.agent.onlookerAdd( stamp );
            follower.agent.begin();
            follower.runsUntil( [&] { return follower.played >= count; } );
         } );
      }
      child( [&] {
         auto * const context = redisConnectUnix( server.socket().c_str() );
         std::string from = "$";
         for ( std::size_t read = 0; read < count; ) {
            RedisServer::Answer const page( static_cast< redisReply * >( redisCommand(
               context, "XREAD COUNT 1000 BLOCK 0 STREAMS l3sm:{1}#log %b", from.data(), from.size() ) ) );
            for ( RedisReply const entry : page[0][1] ) {
               from = entry[0].text();
               times->bare[std::stoul( std::string( entry[1][5].text() ) )] = EventLoop::clock();
               ++read;
            }
         }
      } );
      for ( int number = 0; number < 4; ) { // they are all there
         std::string const key = "l3sm:{1}#agent:Bench" + std::to_string( number );
         server.ask( { "HGET", key, "phase" } ).text() == "running" ? ++number : ::usleep( 1000 );
      }
      auto const begun = EventLoop::clock();
      for ( std::size_t number = 0; number < count; ++number ) {
         while ( EventLoop::clock() < begun + static_cast< double >( number ) / rate ) {
            ::usleep( 100 );
         }
         times->written[number] = EventLoop::clock();
         server.atOnce( transaction( number ) );
      }
      for ( auto const process : children ) {
         ::waitpid( process, nullptr, 0 );
      }
      std::vector< double > bare;
      std::vector< double > agents;
      for ( std::size_t number = 100; number < count; ++number ) {
         bare.push_back( times->bare[number] - times->written[number] );
         for ( auto const & played : times->played ) {
            agents.push_back( played[number] - times->written[number] );
         }
      }
      char text[160];
      double const half = percentile( agents, 0.5 ) / percentile( bare, 0.5 );
      std::snprintf( text,
                     sizeof text,
                     "p50 %.0f us of bare %.0f us: ratio %.2f (goal <= 2); p99 %.0f of bare %.0f",
                     percentile( agents, 0.5 ) * 1e6,
                     percentile( bare, 0.5 ) * 1e6,
                     half,
                     percentile( agents, 0.99 ) * 1e6,
                     percentile( bare, 0.99 ) * 1e6 );
      double const tail = percentile( agents, 0.99 ) / percentile( bare, 0.99 );
      ::munmap( times, sizeof( Times ) );
      if ( half > 2 ) {
         state.SkipWithError( text );
      } else {
         tell( state, text, tail, 5, false );
      }
   }
}

BENCHMARK( throughput )->Iterations( 1 )->Unit( benchmark::kMillisecond );
BENCHMARK( againstOneWriter )->Iterations( 1 )->Unit( benchmark::kMillisecond );
BENCHMARK( snapshot )->Iterations( 1 )->Unit( benchmark::kMillisecond );
BENCHMARK( latency )->Iterations( 1 )->Unit( benchmark::kMillisecond );

} // namespace

int main( int count, char ** arguments ) {
   loadPlugin();
   benchmark::Initialize( &count, arguments );
   benchmark::RunSpecifiedBenchmarks();
   return 0;
}
