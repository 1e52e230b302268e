// Chip initialisation on the simulated switch, with the journal off, against as many plain copies between the same
// memory and a buffer: the limit of whatever moves these words.
//
// The time of the former by that of the latter: at most 15, for one FAP and for 64. Cost grows linearly with FAPs: one
// of 64 takes as long as one alone, as far as the machine's caches let it.
#include "DaceL3Unicast/DaceFapNiPlugin/L3Sm.h"
#include "simulator/SimulatedSwitch.h"
#include "simulator/TableMap.h"

#include <benchmark/benchmark.h>
#include <cstring>
#include <ctime>

using namespace Simulator;
using DaceFapNi::L3Sm;
using Hardware::ChipType;
using Hardware::Dace::FapId;

namespace {

constexpr double goal = 15;

SwitchDescription switchOf( ChipType chipType, U32 major, U16 cores, int faps, bool journalled ) {
   SwitchDescription description;
   for ( int fap = 0; fap < faps; ++fap ) {
      description.faps.push_back(
         { .fapId = FapId( static_cast< U16 >( fap ) ), .cores = cores, .revision = { major, chipType, 7 } } );
   }
   description.journalled = journalled ? SwitchDescription::Journalled::kept : SwitchDescription::Journalled::none;
   return description;
}

void initChips( SimulatedSwitch & sw ) {
   auto const sal = DaceSal::switchControlSalFactory( static_cast< DaceSal::SchanDriver * >( &sw.driver() ), nullptr );
   for ( auto const & [fapId, fapStatus] : sw.cellStatus()->fapStatus() ) {
      L3Sm::initChip( fapStatus, sal );
   }
}

// One transfer of words between a copy of an entry and a buffer.
struct Transfer {
   FapId fapId;
   DaceSal::SchanAddress at;
   U32 copy;
   U32 bytes;
   bool isRead;
};

// Every transfer of the initialisation, as the journal tells it: a write to all copies is one for each.
std::vector< Transfer > transfersOf( ChipType chipType, U32 major, U16 cores, int faps ) {
   std::vector< Transfer > transfers;
   SimulatedSwitch sw( switchOf( chipType, major, cores, faps, true ) );
   initChips( sw );
   for ( auto const & row : sw.journal().operations() ) {
      if ( row.kind == Simulator::Row::Kind::control ) {
         continue;
      }
      auto const & table = *Catalogue::table( row.table );
      auto const & layout = *Catalogue::layout( table, static_cast< U8 >( chipType ), row.variant );
      bool const toAll = row.scope == Simulator::Row::Scope::all;
      U32 const first = row.scope == Simulator::Row::Scope::core ? static_cast< U32 >( row.core ) : 0;
      for ( U32 copy = first; copy < ( toAll ? layout.instanceCount : first + 1 ); ++copy ) {
         transfers.push_back( { FapId( row.fap ),
                                addressOf( layout, static_cast< U32 >( row.array ), row.entry.value_or( 0 ) ),
                                copy,
                                static_cast< U32 >( row.words.size() * sizeof( U32 ) ),
                                row.kind == Simulator::Row::Kind::read } );
      }
   }
   return transfers;
}

// The same transfers with nothing around them.
class PlainCopies {
 public:
   PlainCopies( SimulatedSwitch & sw, std::vector< Transfer > const & transfers ) {
      for ( auto const & transfer : transfers ) {
         auto const entry = sw.chip( transfer.fapId ).entry( transfer.at );
         // The benchmark stands in for the chip that owns the words.
         copies_.push_back(
            { const_cast< U32 * >( entry.words( transfer.copy ).data() ), transfer.bytes, transfer.isRead } ); // NOLINT
      }
   }
   void run() {
      for ( auto const & copy : copies_ ) {
         if ( copy.isRead ) {
            std::memcpy( buffer_.data(), copy.words, copy.bytes );
         } else {
            std::memcpy( copy.words, buffer_.data(), copy.bytes );
         }
         benchmark::ClobberMemory();
      }
   }

 private:
   struct Copy {
      U32 * words;
      U32 bytes;
      bool isRead;
   };
   std::vector< Copy > copies_;
   std::array< U32, 32 > buffer_{};
};

// Nanoseconds of this thread's own time: others use the machine too.
double threadTime() {
   timespec now{};
   clock_gettime( CLOCK_THREAD_CPUTIME_ID, &now );
   return 1e9 * static_cast< double >( now.tv_sec ) + static_cast< double >( now.tv_nsec );
}

// The fastest of several rounds.
template< class What >
double nanoseconds( What what, int rounds ) {
   double best = 1e18;
   for ( int round = 0; round < rounds; ++round ) {
      double const start = threadTime();
      what();
      best = std::min( best, threadTime() - start );
   }
   return best;
}

void chipInit( benchmark::State & state, ChipType chipType, U32 major, U16 cores, int faps ) {
   auto const transfers = transfersOf( chipType, major, cores, faps );
   SimulatedSwitch sw( switchOf( chipType, major, cores, faps, false ) );
   PlainCopies copies( sw, transfers );
   int const rounds = faps == 1 ? 2000 : 60;
   for ( auto _ : state ) {
      double const program = nanoseconds( [&] { initChips( sw ); }, rounds );
      double const plain = nanoseconds( [&] { copies.run(); }, rounds );
      auto const operations = static_cast< double >( transfers.size() );
      state.counters["operations"] = operations;
      state.counters["us_per_FAP"] = program / 1000 / faps;
      state.counters["operations_per_s"] = operations / program * 1e9;
      state.counters["copies_per_s"] = operations / plain * 1e9;
      state.counters["ratio"] = program / plain;
      state.counters["goal"] = goal;
      if ( program / plain > goal ) {
         state.SkipWithError( "goal missed" );
      }
   }
}

} // namespace

BENCHMARK_CAPTURE( chipInit, BCM88690_B0_1_FAP, ChipType::BCM88690_B0, 5, 2, 1 )->Iterations( 1 );
BENCHMARK_CAPTURE( chipInit, BCM88690_B0_64_FAPs, ChipType::BCM88690_B0, 5, 2, 64 )->Iterations( 1 );
BENCHMARK_CAPTURE( chipInit, BCM88859_A2_1_FAP, ChipType::BCM88859_A2, 9, 1, 1 )->Iterations( 1 );
BENCHMARK_CAPTURE( chipInit, BCM88859_A2_64_FAPs, ChipType::BCM88859_A2, 9, 1, 64 )->Iterations( 1 );
