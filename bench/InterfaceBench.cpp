// What a served interface costs, in time and in memory, as their number grows from 1,000 to 65,535: serving them all,
// switching the slice's mode, changing one among them. The cost of one must not depend on how many there are.
//
// Each line is told against 1,000 interfaces in the same run. A small number is served in many switches side by side,
// as many as make up the large number, so that both sides touch the same amount of memory: what is compared is the
// work, not the size of this machine's caches.
#include "L3IntfSm.h"
#include "RexIpIntfConfigFilter.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <limits>
#include <malloc.h>
#include <map>
#include <memory>
#include <time.h>

namespace {

using namespace DaceFapNi;

constexpr std::size_t most = 65535;
constexpr std::size_t subIntfsOfAnIntf = 1;

// One switch with `count` ports, each with an interface of its own and a subinterface.
struct World {
   L3IntfSmArguments in;
   Corvo::Ptr< SliceSmStateInfo > slice = Corvo::makePtr< SliceSmStateInfo >();
   std::vector< Netka::IntfId > intfs;
   Corvo::Ptr< Interface::AllEthPhyIntfConfigDir > configDir = Corvo::makePtr< Interface::AllEthPhyIntfConfigDir >();
   Corvo::Ptr< L3IntfSm > sm;

   explicit World( std::size_t count ) {
      auto const statusDir = Corvo::makePtr< Interface::AllEthPhyIntfStatusDir >();
      auto const localDir = Corvo::makePtr< Interface::EthPhyIntfStatusLocalDir >();
      auto const ports = Corvo::makePtr< PortStateInfo >();
      auto const subIntfs = Corvo::makePtr< Interface::SubIntfStatusDir >();
      for ( std::size_t i = 0; i < count; ++i ) {
         Netka::IntfId const id( "Ethernet" + std::to_string( i + 1 ) );
         intfs.push_back( id );
         configDir->intfConfigIs( Corvo::makePtr< Interface::EthPhyIntfConfig >( id ) );
         statusDir->intfStatusIs( Corvo::makePtr< Interface::EthPhyIntfStatus >( id ) );
         localDir->intfStatusLocalIs( Corvo::makePtr< Interface::EthPhyIntfStatusLocal >( id ) );
         auto const port = Corvo::makePtr< PortState >( Hardware::Dace::SystemPhyPortId{ static_cast< U16 >( i ) } );
         port->intfIdIs( id );
         port->activeIs( true );
         ports->portStateIs( port );
         for ( std::size_t number = 0; number < subIntfsOfAnIntf; ++number ) {
            auto const sub = Corvo::makePtr< Interface::SubIntfStatus >(
               Netka::IntfId( id.stringValue() + "." + std::to_string( number ) ) );
            sub->parentIntfIdIs( id );
            subIntfs->intfStatusIs( sub );
         }
      }
      in = { Corvo::makePtr< Bridging::Config >(),
             Corvo::makePtr< Bridging::HwCapabilities >(),
             configDir,
             statusDir,
             localDir,
             Corvo::makePtr< Orb::TaskScheduler >(),
             Corvo::makePtr< Interface::GlobalIntfConfig >(),
             EthIntf::ethIntfVrfSmHelperFactory( nullptr ),
             slice,
             ports,
             Corvo::makePtr< RouterMac::HwCapability >(),
             Corvo::makePtr< Interface::Hardware::Capability >(),
             subIntfs,
             Corvo::makePtr< Interface::SubIntfStatusLocalDir >() };
   }
   void serve() { sm = L3IntfSm::L3IntfSmIs( in ); }
   void modeIs( U8 mode ) { slice->smModeIs( Hardware::Dace::SmMode{ mode } ); }
   void run() { in.scheduler->runUntilIdle(); }
};

// `most` interfaces, or nearly, in switches of `count` each.
std::vector< std::unique_ptr< World > > worlds( std::size_t count ) {
   std::vector< std::unique_ptr< World > > all;
   for ( std::size_t i = 0; i < most / count; ++i ) {
      all.push_back( std::make_unique< World >( count ) );
   }
   return all;
}

// Processor time: others use the machine too.
double now() {
   timespec time{};
   clock_gettime( CLOCK_THREAD_CPUTIME_ID, &time );
   return static_cast< double >( time.tv_sec ) * 1e9 + static_cast< double >( time.tv_nsec );
}

struct Cost {
   double serve = std::numeric_limits< double >::max(); // nanoseconds for each interface
   double mode = std::numeric_limits< double >::max();
   double change = std::numeric_limits< double >::max();
   double bytes = 0; // heap for each served interface
};

Cost measure( std::size_t count ) {
   Cost cost;
   for ( int turn = 0; turn < 5; ++turn ) {
      auto const all = worlds( count );
      auto const interfaces = static_cast< double >( all.size() * count );
      auto const forAll = [&]( auto work ) {
         for ( auto const & world : all ) {
            work( *world );
         }
      };
      malloc_trim( 0 ); // every turn pays for fresh pages, as many at every count; what earlier ones left is no gift
      auto const before = mallinfo2();
      double start = now();
      forAll( []( World & world ) { world.serve(); } );
      forAll( []( World & world ) { world.run(); } );
      cost.serve = std::min( cost.serve, ( now() - start ) / interfaces );
      auto const after = mallinfo2();
      cost.bytes =
         static_cast< double >( after.uordblks + after.hblkhd - before.uordblks - before.hblkhd ) / interfaces;

      start = now();
      forAll( []( World & world ) { world.modeIs( 1 ); } );
      forAll( []( World & world ) { world.modeIs( 2 ); } );
      forAll( []( World & world ) { world.run(); } );
      cost.mode = std::min( cost.mode, ( now() - start ) / interfaces );

      constexpr std::size_t changes = 20000;
      start = now();
      for ( std::size_t i = 0; i < changes; ++i ) {
         auto & world = *all[i % all.size()];
         auto const id = world.intfs[i * 7919 % count];
         world.configDir->intfConfig( id )->mtuIs( static_cast< U32 >( 2000 + turn * 100000 + i ) );
         world.run();
      }
      cost.change = std::min( cost.change, ( now() - start ) / static_cast< double >( changes ) );
   }
   return cost;
}

Cost const & costOf( std::size_t count ) {
   static std::map< std::size_t, Cost > costs;
   auto const found = costs.find( count );
   return found != costs.end() ? found->second : costs.emplace( count, measure( count ) ).first->second;
}

void compare( benchmark::State & state, double Cost::*what, std::size_t count, double goal ) {
   for ( auto _ : state ) {
      double const one = costOf( count ).*what;
      double const few = costOf( 1000 ).*what;
      char text[160];
      std::snprintf( text,
                     sizeof text,
                     "%zu: %.0f ns each, 1000: %.0f ns each: ratio %.2f (goal <= %.2f)",
                     count,
                     one,
                     few,
                     one / few,
                     goal );
      state.counters["ratio"] = one / few;
      if ( one / few > goal ) {
         state.SkipWithError( ( std::string( text ) + " MISSED" ).c_str() );
      } else {
         state.SetLabel( text );
      }
   }
}

void memory( benchmark::State & state, std::size_t count ) {
   using Filter = L3IntfSm::RexIpIntfConfigFilter;
   constexpr std::size_t objects = sizeof( Filter ) + sizeof( Filter::RexIntfConfig ) +
                                   sizeof( Filter::RexIntfStatus ) + sizeof( Filter::RexEffectiveL3Mtu ) +
                                   sizeof( Filter::RexSyncMtuSubIntfSm ) + sizeof( Interface::L3MtuSm ) +
                                   sizeof( Interface::EffectiveL3Mtu ) + sizeof( Interface::SyncMtuSubIntfWalkSm );
   for ( auto _ : state ) {
      char text[160];
      std::snprintf( text,
                     sizeof text,
                     "%zu bytes in the objects of a served interface (goal 650 to 850); %.0f bytes of heap with "
                     "maps, port reactor, managed entries, subinterface",
                     objects,
                     costOf( count ).bytes );
      state.SetLabel( text );
   }
}

[[maybe_unused]] bool const registered = [] {
   struct Row {
      char const * name;
      double Cost::*what;
   };
   for ( auto const & row : { Row{ "serve all", &Cost::serve },
                              Row{ "switch the mode", &Cost::mode },
                              Row{ "change the MTU of one", &Cost::change } } ) {
      for ( std::size_t const count : { std::size_t{ 8000 }, most } ) {
         benchmark::RegisterBenchmark( ( std::string( row.name ) + "/" + std::to_string( count ) ).c_str(),
                                       [=]( benchmark::State & state ) { compare( state, row.what, count, 1.3 ); } )
            ->Iterations( 1 )
            ->Unit( benchmark::kMillisecond );
      }
   }
   for ( std::size_t const count : { std::size_t{ 1000 }, std::size_t{ 8000 }, most } ) {
      benchmark::RegisterBenchmark( ( "memory/" + std::to_string( count ) ).c_str(),
                                    [=]( benchmark::State & state ) { memory( state, count ); } )
         ->Iterations( 1 )
         ->Unit( benchmark::kMillisecond );
   }
   return true;
}();

} // namespace
