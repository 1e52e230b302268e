// What it costs to know what the chips are expected to hold, and to compare them with it.
#include "Ratio.h"

#include "generated/DaceFapNiPluginL3UnicastMetaInfo.h"
#include "simulator/Audit.h"
#include "simulator/BootImage.h"
#include "simulator/Journal.h"
#include "simulator/TableMap.h"

#include <benchmark/benchmark.h>

namespace {

using namespace Simulator;

constexpr auto kind = Hardware::ChipType::BCM88690_B0;
constexpr ChipId fap{ 0 };

struct Chips {
   ChipDriver chips;
   ChipDriver expected;
   ShadowDriver shadow{ expected, chips, {}, {} };
   Journal journal{ { .cause = [] { return std::string( "change" ); } } };

   Chips() {
      for ( auto * const each : { &chips, &expected } ) {
         boot( each->chipIs( fap, "BCM88690_B0", addressMap( kind ) ), kind );
      }
   }
};

Chips & made() {
   static Chips all;
   return all;
}

// As a running agent does it: by an accessor, with a journal that hears of it.
void writeAll( DaceSal::SchanDriver & driver, std::size_t times ) {
   Journal & journal = made().journal;
   DaceSal::schanDriverIs( &driver );
   journal.listens();
   for ( std::size_t time = 0; time < times; ++time ) {
      journal.eventBegins( 1, {} );
      for ( int entry = 0; entry < 32; ++entry ) {
         Hardware::EnablersVectors::WithStorage vectors( kind );
         vectors.doReadAny( fap, 0, entry );
         vectors.routingEnableVectorIs( static_cast< U32 >( time ) & 7 );
         vectors.doWriteAll( fap, 0, entry );
      }
      journal.eventEnds();
   }
   journal.hearsNoMore();
   DaceSal::schanDriverIs( nullptr );
}

[[maybe_unused]] Chips const & before = made(); // before anybody looks at the clock
Bench::Ratio const writing{ "read, change and write with the expected image beside the chip",
                            { "with", []( std::size_t times ) { writeAll( made().shadow, times ); } },
                            { "without", []( std::size_t times ) { writeAll( made().chips, times ); } },
                            1.3 };

// All copies of all entries that hold a value.
void auditOfAChip( benchmark::State & state ) {
   Audit audit( made().chips, made().shadow );
   std::size_t mismatches = 0;
   for ( auto _ : state ) {
      audit.finish( [&]( Mismatch const & ) { ++mismatches; } );
   }
   if ( mismatches > 0 ) {
      state.SkipWithError( "the chip is another than its image" );
   }
}

} // namespace

BENCHMARK( auditOfAChip )->Unit( benchmark::kMillisecond );
