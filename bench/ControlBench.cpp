// What a long answer costs the agent that gives it: the fork of a copy of the process, and the pages that an event
// changes while the copy has them too. For an agent with 1 FAP and with 64, the plug-in started on each, and with so
// many MB more of state and rows that it remembers, which cost little in large pages:
// GLIBC_TUNABLES=glibc.malloc.hugetlb=1 is what the unit file sets.
#include "agent/control/AnsweringCopies.h"
#include "inspection/Play.h"
#include "inspection/files/ChipsWriter.h"
#include "rex/Log.h"

#include <atomic>
#include <benchmark/benchmark.h>
#include <ctime>
#include <fstream>
#include <sys/resource.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

using namespace Live;

constexpr double goal = 5; // milliseconds that the agent may stand still

Inspection::Scenario scenario( std::size_t faps ) {
   std::string all;
   for ( std::size_t fap = 0; fap < faps; ++fap ) {
      all += ( fap == 0 ? "" : "," ) + std::string( R"({"fapId": )" ) + std::to_string( fap ) +
             R"(, "revision": {"chipType": "BCM88690_B0", "sdkVersion": 7, "major": 5}})";
   }
   std::string const text = R"({"switch": {"slice": {"name": "Bench"}, "faps": [)" + all + "]}}";
   return Inspection::scenarioOf( Inspection::parseJson( text, "bench" ), "bench" );
}

std::size_t residentKilobytes() {
   std::size_t pages = 0;
   std::ifstream( "/proc/self/statm" ) >> pages >> pages;
   return pages * static_cast< std::size_t >( ::sysconf( _SC_PAGESIZE ) ) / 1024;
}

std::size_t faults() {
   rusage used{};
   ::getrusage( RUSAGE_SELF, &used );
   return static_cast< std::size_t >( used.ru_minflt );
}

// That others have the processor meanwhile isn't the agent's doing.
double processorTime() {
   timespec time{};
   ::clock_gettime( CLOCK_THREAD_CPUTIME_ID, &time );
   return static_cast< double >( time.tv_sec ) + static_cast< double >( time.tv_nsec ) / 1e9;
}

// Chips are written to a client again and again; between the loop's turns, events go on.
void longAnswers( benchmark::State & state ) {
   Rex::logSinkIs( []( auto const & ) {} );
   Inspection::loadPlugin( "" );
   auto agent = scenario( static_cast< std::size_t >( state.range( 0 ) ) );
   agent.description.journalled = Simulator::SwitchDescription::Journalled::streamed;
   Simulator::SimulatedSwitch sw( agent.description );
   agent.prepare( sw );
   sw.start();
   std::vector< char > const more( static_cast< std::size_t >( state.range( 1 ) ) << 20, 1 );
   EventLoop loop;
   AnsweringCopies copies( loop, {} );
   int ends[2];
   ::socketpair( AF_UNIX, SOCK_STREAM, 0, ends );
   std::atomic< std::size_t > read = 0;
   std::thread client( [&] {
      std::vector< char > some( 1 << 20 );
      for ( ssize_t got = 0; ( got = ::read( ends[1], some.data(), some.size() ) ) > 0; ) {
         read += static_cast< std::size_t >( got );
      }
   } );
   double longest = 0;
   std::size_t touched = 0;
   bool value = false;
   auto const play = [&] { sw.set( "routing/hardware/config", "urpfLooseFailForward", value = !value ); };
   play();
   for ( auto _ : state ) {
      bool isOver = false;
      copies.begin( { .socket = ends[0], .id = 1, .answer = { [&]( std::ostream & out ) {
                                                     Inspection::writeChipsOf( sw, out );
                                                  } } },
                    [&]( CopyEnd const & ) { isOver = true; } );
      bool isForked = false;
      while ( !isOver ) {
         auto const begun = processorTime();
         if ( !loop.turn() ) {
            ::usleep( 200 );
            continue;
         }
         longest = std::max( longest, processorTime() - begun );
         if ( !std::exchange( isForked, true ) ) {
            auto const before = faults();
            play();
            touched = std::max( touched, faults() - before );
         }
      }
   }
   ::shutdown( ends[0], SHUT_RDWR );
   client.join();
   ::close( ends[0] );
   ::close( ends[1] );
   sw.stop();
   state.counters["longestStall_ms"] = longest * 1e3;
   state.counters["pagesOfAnEvent"] = static_cast< double >( touched );
   state.counters["resident_MB"] = static_cast< double >( residentKilobytes() ) / 1024;
   state.counters["answer_MB"] = static_cast< double >( read ) / 1e6 / static_cast< double >( state.iterations() );
   if ( longest * 1e3 > goal && state.range( 1 ) == 0 ) {
      state.SkipWithError( "the agent stands still for more than 5 ms" );
   }
}
BENCHMARK( longAnswers )
   ->ArgNames( { "faps", "MB" } )
   ->Args( { 1, 0 } )
   ->Args( { 64, 0 } )
   ->Args( { 64, 64 } )
   ->Args( { 64, 128 } )
   ->Args( { 64, 256 } )
   ->Iterations( 10 )
   ->Unit( benchmark::kMillisecond );

} // namespace
