// A read, a change and a write of an entry of a simulated chip, against the same through memcpy on a plain array.
//
// Goals, the time of the former by that of the latter, where entries are walked one after the other, as programming
// does: at most 6 at 8 bytes, at most 2 at 64. At random over many ranges, where the chip's memory of the latest range
// never helps, the ratio is shown without a goal.
//
// And chips that stand in memory that outlives the agent: what a write costs there against one in a chip's own memory
// (goal: at most 1.1), how long they take to be made and to be found again, and how long a fork of an agent that has
// them stands still.
#include "Ratio.h"
#include "simulator/ChipsMapping.h"
#include "simulator/TableMap.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

using namespace Simulator;

namespace {

constexpr U32 rangesPerWidth = 32;
constexpr U32 entriesPerRange = 64;
constexpr Block block{ 10, 2 };

AddressMap mapOf( U16 width ) {
   std::vector< AddressRange > ranges;
   for ( U32 range = 0; range < rangesPerWidth; ++range ) {
      ranges.push_back( { .blocks = { block }, .base = 0x10000 * range, .count = entriesPerRange, .width = width } );
   }
   return AddressMap( ranges );
}

enum class Walk { inOrder, random };

std::vector< U32 > walkOf( Walk walk ) {
   std::vector< U32 > entries( rangesPerWidth * entriesPerRange );
   for ( U32 index = 0; index < entries.size(); ++index ) {
      entries[index] = index;
   }
   if ( walk == Walk::random ) {
      std::shuffle( entries.begin(), entries.end(), std::mt19937{ 1 } ); // NOLINT(cert-msc51-cpp)
   }
   return entries;
}

// The two sides. Neither knows the width when it is compiled, as a driver doesn't.
void onChip( DaceSal::SchanDriver & driver, std::vector< U32 > const & walk, U32 width ) {
   std::array< U32, 16 > words;
   for ( U32 const index : walk ) {
      SchanAddress const at{
         0x10000 * ( index / entriesPerRange ) + index % entriesPerRange, block.selectorA, block.selectorB };
      driver.read( ChipId{ 0 }, at, { words.data(), width } );
      words[0] += 1;
      benchmark::DoNotOptimize( driver.write( ChipId{ 0 }, at, { words.data(), width } ) );
   }
}

void onArray( U32 * array, std::vector< U32 > const & walk, U32 width ) {
   std::array< U32, 16 > words;
   for ( U32 const index : walk ) {
      std::memcpy( words.data(), array + std::size_t{ index } * width, width * sizeof( U32 ) );
      words[0] += 1;
      std::memcpy( array + std::size_t{ index } * width, words.data(), width * sizeof( U32 ) );
      benchmark::ClobberMemory();
   }
}

// Runs one side for a while and returns nanoseconds for an entry: the fastest of several rounds, as others use the
// machine too.
template< class Side >
double nanoseconds( Side side, std::size_t entries ) {
   using Clock = std::chrono::steady_clock;
   double best = 1e9;
   for ( int round = 0; round < 30; ++round ) {
      auto const start = Clock::now();
      for ( int repeat = 0; repeat < 40; ++repeat ) {
         side();
      }
      std::chrono::duration< double, std::nano > const taken = Clock::now() - start;
      best = std::min( best, taken.count() / 40 / static_cast< double >( entries ) );
   }
   return best;
}

void compare( benchmark::State & state, U16 width, Walk walkKind, double goal ) {
   AddressMap const map = mapOf( width );
   ChipDriver driver;
   driver.chipIs( ChipId{ 0 }, "bench", map );
   std::vector< U32 > array( std::size_t{ rangesPerWidth } * entriesPerRange * width );
   std::vector< U32 > const walk = walkOf( walkKind );
   U32 runtimeWidth = width;
   benchmark::DoNotOptimize( runtimeWidth );

   for ( auto _ : state ) {
      double const chip = nanoseconds( [&] { onChip( driver, walk, runtimeWidth ); }, walk.size() );
      double const plain = nanoseconds( [&] { onArray( array.data(), walk, runtimeWidth ); }, walk.size() );
      state.counters["chip_ns"] = chip;
      state.counters["memcpy_ns"] = plain;
      state.counters["ratio"] = chip / plain;
      if ( goal > 0 ) {
         state.counters["goal"] = goal;
      }
      if ( goal > 0 && chip / plain > goal ) {
         state.SkipWithError( "goal missed" );
      }
   }
}

// A chip as a switch has it: in memory of its own, and in memory that stays.
constexpr auto kind = Hardware::ChipType::BCM88690_B0;

SwitchDescription switchOf( std::size_t faps ) {
   SwitchDescription description;
   for ( std::size_t fap = 0; fap < faps; ++fap ) {
      description.faps.push_back(
         { .fapId = Hardware::Dace::FapId( static_cast< U16 >( fap ) ), .revision = { 5, kind, 7 } } );
   }
   return description;
}

// Writes all entries of the chip, one after the other, until it has written so many.
void writeAll( ChipDriver & driver, std::size_t times ) {
   std::array< U32, 64 > words{};
   for ( ;; ) {
      for ( auto const & range : addressMap( kind ).ranges() ) {
         for ( U32 entry = 0; entry < range.count; ++entry ) {
            if ( times-- == 0 ) {
               return;
            }
            words[0] += 1;
            benchmark::DoNotOptimize(
               driver.write( ChipId{ 0 },
                             { range.base + entry, range.blocks[0] >> 8, range.blocks[0] & 0xff },
                             { words.data(), range.width } ) );
         }
      }
   }
}

ChipDriver & own() {
   static ChipDriver driver;
   static bool const isMade = ( boot( driver.chipIs( ChipId{ 0 }, "own", addressMap( kind ) ), kind ), true );
   benchmark::DoNotOptimize( isMade );
   return driver;
}

ChipDriver & mapped() {
   static auto const chips = ChipsMapping::makeInMemory( switchOf( 1 ) );
   static ChipDriver driver;
   static bool const isMade =
      ( driver.chipIs( ChipId{ 0 }, "mapped", addressMap( kind ), chips.chip( Hardware::Dace::FapId( 0 ) ) ), true );
   benchmark::DoNotOptimize( isMade );
   return driver;
}

// Made before anybody looks at the clock.
[[maybe_unused]] ChipDriver const & madeOwn = own();
[[maybe_unused]] ChipDriver const & madeMapped = mapped();
Bench::Ratio const writing{ "write to a chip that outlives the agent",
                            { "mapped", []( std::size_t times ) { writeAll( mapped(), times ); } },
                            { "own memory", []( std::size_t times ) { writeAll( own(), times ); } },
                            1.1 };

void chipsAreMade( benchmark::State & state ) {
   auto const description = switchOf( static_cast< std::size_t >( state.range( 0 ) ) );
   for ( auto _ : state ) {
      benchmark::DoNotOptimize( ChipsMapping::makeInMemory( description ) );
   }
}

void chipsAreFoundAgain( benchmark::State & state ) {
   auto const description = switchOf( static_cast< std::size_t >( state.range( 0 ) ) );
   int const file = ::dup( ChipsMapping::makeInMemory( description ).file() );
   for ( auto _ : state ) {
      benchmark::DoNotOptimize( ChipsMapping::of( file, description ) );
   }
   ::close( file );
}

void forkStandsStill( benchmark::State & state ) {
   auto const description = switchOf( static_cast< std::size_t >( state.range( 0 ) ) );
   auto const chips = ChipsMapping::makeInMemory( description );
   for ( auto _ : state ) {
      pid_t const copy = ::fork();
      if ( copy == 0 ) {
         ::_exit( 0 );
      }
      state.PauseTiming();
      ::waitpid( copy, nullptr, 0 );
      state.ResumeTiming();
   }
}

} // namespace

BENCHMARK_CAPTURE( compare, 8_bytes_in_order, 2, Walk::inOrder, 6.0 )->Iterations( 1 );
BENCHMARK_CAPTURE( compare, 64_bytes_in_order, 16, Walk::inOrder, 2.0 )->Iterations( 1 );
BENCHMARK_CAPTURE( compare, 8_bytes_at_random, 2, Walk::random, 0.0 )->Iterations( 1 );
BENCHMARK_CAPTURE( compare, 64_bytes_at_random, 16, Walk::random, 0.0 )->Iterations( 1 );
BENCHMARK( chipsAreMade )->Arg( 1 )->Arg( 64 )->Unit( benchmark::kMillisecond );
BENCHMARK( chipsAreFoundAgain )->Arg( 1 )->Arg( 64 )->Unit( benchmark::kMillisecond );
BENCHMARK( forkStandsStill )->Arg( 0 )->Arg( 1 )->Arg( 8 )->Arg( 64 )->Unit( benchmark::kMillisecond );
