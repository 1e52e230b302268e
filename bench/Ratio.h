// Ratios: two sides that do the same work, timed in turns in the same run.
//
//    Bench::Ratio const one{ "dispatch to 1 subscriber",
//                            { "publisher", []( std::size_t times ) { ... } },
//                            { "function pointers", []( std::size_t times ) { ... } },
//                            1.35 };                                    // the goal; 0 where there is none
//
// prints one line of the benchmark's report, ending in
//
//    publisher 2.31 ns, function pointers 1.98 ns: ratio 1.17 (goal <= 1.35)
//
// Each side is a function that does its work `times` times, a loop of its own without a call through this header. The
// sides take turns, and of each the fastest turn counts, because others use the machine too. A ratio is a static object
// of a benchmark program; a goal that is missed is told on the line and makes the benchmark an error.
#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <string>

namespace Bench {

struct Side {
   std::string name;
   std::function< void( std::size_t times ) > run;
};

class Ratio {
 public:
   Ratio( std::string const & name, Side measured, Side against, double goal ) {
      benchmark::RegisterBenchmark( name.c_str(),
                                    [=]( benchmark::State & state ) {
                                       for ( auto _ : state ) {
                                          compare( state, measured, against, goal );
                                       }
                                    } )
         ->Iterations( 1 )
         ->Unit( benchmark::kMillisecond );
   }

 private:
   static constexpr int turns = 40;
   static constexpr double nanosecondsOfATurn = 2e6;

   static double nanoseconds( Side const & side, std::size_t times ) {
      auto const start = std::chrono::steady_clock::now();
      side.run( times );
      std::chrono::duration< double, std::nano > const taken = std::chrono::steady_clock::now() - start;
      return taken.count();
   }

   // How often the work must be done to fill a turn.
   static std::size_t timesOfATurn( Side const & side ) {
      std::size_t times = 1;
      while ( nanoseconds( side, times ) < nanosecondsOfATurn / 2 ) {
         times *= 2;
      }
      return times;
   }

   static void compare( benchmark::State & state, Side const & measured, Side const & against, double goal ) {
      std::size_t const measuredTimes = timesOfATurn( measured );
      std::size_t const againstTimes = timesOfATurn( against );
      double measuredBest = std::numeric_limits< double >::max();
      double againstBest = measuredBest;
      for ( int turn = 0; turn < turns; ++turn ) {
         measuredBest = std::min( measuredBest, nanoseconds( measured, measuredTimes ) );
         againstBest = std::min( againstBest, nanoseconds( against, againstTimes ) );
      }
      double const measuredEach = measuredBest / static_cast< double >( measuredTimes );
      double const againstEach = againstBest / static_cast< double >( againstTimes );
      double const ratio = measuredEach / againstEach;

      char numbers[64];
      std::string text = measured.name;
      std::snprintf( numbers, sizeof numbers, " %.2f ns, ", measuredEach );
      text += numbers + against.name;
      std::snprintf( numbers, sizeof numbers, " %.2f ns: ratio %.2f", againstEach, ratio );
      text += numbers;
      if ( goal > 0 ) {
         std::snprintf( numbers, sizeof numbers, " (goal <= %.2f)", goal );
         text += numbers;
      }
      state.counters["ratio"] = ratio;
      if ( goal > 0 && ratio > goal ) {
         state.SkipWithError( ( text + " MISSED" ).c_str() );
      } else {
         state.SetLabel( text );
      }
   }
};

} // namespace Bench
