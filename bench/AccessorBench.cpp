// What the generated accessors cost against shift and mask by hand: constants, no checks, the same buffers.
//
// Each side works on 64 independent objects in turn, and is asked afterwards whether it did the work. The program is
// built twice: over the plug-in's library, whose boundary the accesses cross, and with the accessors linked in.
#include "Ratio.h"

#include "generated/DaceFapNiPluginL3UnicastMetaInfo.h"

#include "simulator/ChipDriver.h"
#include "simulator/TableMap.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <new>

namespace {

using Hardware::ChipType;

constexpr std::size_t objectCount = 64;

U32 word( U8 const * at ) {
   return Detail::loadWord( at );
}

void wordIs( U8 * at, U32 value ) {
   Detail::storeWord( at, value );
}

// 64 accessors over buffers side by side.
template< class Accessor, std::size_t bytes >
class Objects {
 public:
   explicit Objects( ChipType chip, U8 variant = 0 ) {
      for ( std::size_t i = 0; i < objectCount; ++i ) {
         pointers_[i] = buffers_[i].data();
         new ( &raw_[i] ) Accessor( chip, buffer( i ), bytes, false, variant );
      }
   }
   Accessor & operator[]( std::size_t i ) { return *std::launder( reinterpret_cast< Accessor * >( &raw_[i] ) ); }
   // Through a pointer, as the accessor has one: the objects are independent, and no loop over them is one vector.
   U8 * buffer( std::size_t i ) { return pointers_[i]; }

 private:
   struct alignas( Accessor ) Raw {
      std::byte bytes_[sizeof( Accessor )];
   };
   std::array< Raw, objectCount > raw_;
   std::array< U8 *, objectCount > pointers_;
   alignas( 64 ) std::array< std::array< U8, bytes >, objectCount > buffers_{};
};

// Runs `work( object number, round )` `times` times, and then `check`, which says whether the work was done.
template< class Work, class Check >
Bench::Side side( char const * name, Work work, Check check ) {
   return { name, [=]( std::size_t times ) {
              std::size_t const rounds = times / objectCount + 1;
              for ( std::size_t round = 1; round <= rounds; ++round ) {
                 for ( std::size_t i = 0; i < objectCount; ++i ) {
                    work( i, static_cast< U32 >( round ) );
                 }
                 benchmark::ClobberMemory();
              }
              Rex::sassert( check( static_cast< U32 >( rounds ) ), "the side did its work" );
           } };
}

// ---- setters

// IppdFerTrapCfg::cpuStrengthN, 4 bits from bit 9, on every chip.
Objects< Hardware::IppdFerTrapCfg, 4 > trapCfg( ChipType::BCM88690_B0 );
bool trapCfgHolds( U32 round ) {
   return ( word( trapCfg.buffer( 63 ) ) >> 9 & 15 ) == ( round & 15 );
}
Bench::Ratio const narrowSet{
   "set a narrow field at one place",
   side(
      "accessor", []( std::size_t i, U32 round ) { trapCfg[i].cpuStrengthNIs( round & 15 ); }, trapCfgHolds ),
   side(
      "by hand",
      []( std::size_t i, U32 round ) {
         U8 * at = trapCfg.buffer( i );
         wordIs( at, ( word( at ) & ~( 15u << 9 ) ) | ( round & 15 ) << 9 );
      },
      trapCfgHolds ),
   2.0 };

// IppbFlpLePd0::constStrengthVec, 64 bits from bit 32.
Objects< Hardware::IppbFlpLePd0, 32 > program( ChipType::BCM88690_B0 );
bool programHolds( U32 round ) {
   return word( program.buffer( 63 ) + 4 ) == round && word( program.buffer( 63 ) + 8 ) == ~round;
}
Bench::Ratio const longSet{
   "set a field of 64 bits at one place",
   side(
      "accessor",
      []( std::size_t i, U32 round ) { program[i].constStrengthVecIs( round | U64{ ~round } << 32 ); },
      programHolds ),
   side(
      "by hand",
      []( std::size_t i, U32 round ) {
         wordIs( program.buffer( i ) + 4, round );
         wordIs( program.buffer( i ) + 8, ~round );
      },
      programHolds ),
   1.6 };

// Ipv4PcremFwdDestPcrem::vrf: 5 bits from bit 30 on this chip, across two words; 4 bits on others.
Objects< Hardware::Ipv4PcremFwdDestPcrem, 40 > host( ChipType::BCM88850_A0 );
bool hostHolds( U32 round ) {
   U8 const * at = host.buffer( 63 );
   return ( word( at ) >> 30 | ( word( at + 4 ) & 7 ) << 2 ) == ( round & 31 );
}
Bench::Ratio const varyingSet{
   "set a narrow field whose place varies, across words",
   side(
      "accessor", []( std::size_t i, U32 round ) { host[i].vrfIs( round & 31 ); }, hostHolds ),
   side(
      "by hand",
      []( std::size_t i, U32 round ) {
         U8 * at = host.buffer( i );
         wordIs( at, ( word( at ) & ~( 3u << 30 ) ) | round << 30 );
         wordIs( at + 4, ( word( at + 4 ) & ~7u ) | ( round >> 2 & 7 ) );
      },
      hostHolds ),
   3.0 };

// Ipv4PcremFwdDestPcrem::wayIndex: 4 bits from bit 266 on this chip, from bit 265 on others.
bool wayHolds( U32 round ) {
   return ( word( host.buffer( 63 ) + 32 ) >> 10 & 15 ) == ( round & 15 );
}
Bench::Ratio const varyingSetWithin{
   "set a narrow field whose place varies, within a word",
   side(
      "accessor", []( std::size_t i, U32 round ) { host[i].wayIndexIs( round & 15 ); }, wayHolds ),
   side(
      "by hand",
      []( std::size_t i, U32 round ) {
         U8 * at = host.buffer( i ) + 32;
         wordIs( at, ( word( at ) & ~( 15u << 10 ) ) | ( round & 15 ) << 10 );
      },
      wayHolds ),
   3.5 };

// EtppCfgFwdDoNotTtlDecrement: one field of 512 bits.
Objects< Hardware::EtppCfgFwdDoNotTtlDecrement, 64 > profiles( ChipType::BCM88690_B0 );
Raw512 wideValue;
bool profilesHold( U32 round ) {
   return word( profiles.buffer( 63 ) + 20 ) == round;
}
Bench::Ratio const wideSet{ "set a field of 512 bits",
                            side(
                               "accessor",
                               []( std::size_t i, U32 round ) {
                                  wideValue.word[5] = round;
                                  profiles[i].cfgFwdEgressDoNotTtlDecrementIs( wideValue );
                               },
                               profilesHold ),
                            side(
                               "by hand",
                               []( std::size_t i, U32 round ) {
                                  wideValue.word[5] = round;
                                  std::memcpy( profiles.buffer( i ), wideValue.word.data(), sizeof wideValue );
                               },
                               profilesHold ),
                            1.5 };

// ---- getters

// Each side adds up what it reads; the sums of both must agree with what the buffers hold.
template< class Work >
Bench::Side sumOf( char const * name, Work work ) {
   return { name, [=]( std::size_t times ) {
              U64 total = 0;
              std::size_t const rounds = times / objectCount + 1;
              for ( std::size_t round = 0; round < rounds; ++round ) {
                 for ( std::size_t i = 0; i < objectCount; ++i ) {
                    total += work( i );
                 }
                 benchmark::ClobberMemory();
              }
              U64 once = 0;
              for ( std::size_t i = 0; i < objectCount; ++i ) {
                 once += work( i );
              }
              Rex::sassert( once != 0 && total == once * rounds, "the side did its work" );
           } };
}

Bench::Ratio const narrowGet{
   "get a narrow field at one place",
   sumOf( "accessor", []( std::size_t i ) -> U64 { return trapCfg[i].cpuStrengthN() + 1u; } ),
   sumOf( "by hand", []( std::size_t i ) -> U64 { return ( word( trapCfg.buffer( i ) ) >> 9 & 15 ) + 1; } ),
   2.0 };

Bench::Ratio const varyingGet{
   "get a narrow field whose place varies",
   sumOf( "accessor", []( std::size_t i ) -> U64 { return host[i].wayIndex() + 1u; } ),
   sumOf( "by hand", []( std::size_t i ) -> U64 { return ( word( host.buffer( i ) + 32 ) >> 10 & 15 ) + 1; } ),
   3.5 };

Bench::Ratio const wideGet{ "get a field of 512 bits",
                            sumOf( "accessor",
                                   []( std::size_t i ) -> U64 {
                                      Raw512 value = profiles[i].cfgFwdEgressDoNotTtlDecrement();
                                      benchmark::DoNotOptimize( &value );
                                      benchmark::ClobberMemory();
                                      return value.word[0] + 1u;
                                   } ),
                            sumOf( "by hand",
                                   []( std::size_t i ) -> U64 {
                                      Raw512 value;
                                      std::memcpy( value.word.data(), profiles.buffer( i ), sizeof value );
                                      benchmark::DoNotOptimize( &value );
                                      benchmark::ClobberMemory();
                                      return value.word[0] + 1u;
                                   } ),
                            1.5 };

// ---- a whole operation: construct, read, three sets, write to both copies

// A simulated chip: both sides go through the same driver, which neither can see into.
Simulator::ChipDriver driver;

struct Install {
   Install() {
      driver.chipIs( DaceSal::ChipId{ 0 }, "BCM88690_B0", Simulator::addressMap( ChipType::BCM88690_B0 ) );
      DaceSal::schanDriverIs( &driver );
   }
} const install;

template< class Work >
Bench::Side operation( char const * name, Work work ) {
   return { name, [=]( std::size_t times ) {
              for ( std::size_t i = 0; i < times; ++i ) {
                 work( static_cast< U32 >( i ) );
                 benchmark::ClobberMemory();
              }
              // What the last turn wrote is in the second copy.
              U32 const last = static_cast< U32 >( times - 1 );
              U32 word = 0;
              driver.read( DaceSal::ChipId{ 0 }, { 0x1f7 + ( last & 7 ), 28, 9 }, { &word, 1 } );
              Rex::sassert( word == ( ( last & 0x1ff ) | ( last & 15 ) << 9 | ( last & 7 ) << 13 ),
                            "the side did its work" );
           } };
}

Bench::Ratio const whole{ "construct, read, set three fields, write to two copies",
                          operation( "accessor",
                                     []( U32 i ) {
                                        DaceSal::ChipId const chip{ 0 };
                                        int const index = static_cast< int >( i & 7 );
                                        Hardware::IppdFerTrapCfg::WithStorage cfg( ChipType::BCM88690_B0 );
                                        cfg.doReadAny( chip, index );
                                        cfg.cpuSnoopCodeNIs( i & 0x1ff );
                                        cfg.cpuStrengthNIs( i & 15 );
                                        cfg.snoopStrengthNIs( i & 7 );
                                        cfg.doWriteAll( chip, index );
                                     } ),
                          operation( "by hand",
                                     []( U32 i ) {
                                        DaceSal::ChipId const chip{ 0 };
                                        alignas( 8 ) U8 buf[4] = {};
                                        U32 words[1];
                                        DaceSal::SchanDriver & to = *DaceSal::schanDriver();
                                        to.read( chip, { 0x1f7 + ( i & 7 ), 14, 2 }, words );
                                        wordIs( buf, words[0] );
                                        wordIs( buf, ( word( buf ) & ~0x1ffu ) | ( i & 0x1ff ) );
                                        wordIs( buf, ( word( buf ) & ~( 15u << 9 ) ) | ( i & 15 ) << 9 );
                                        wordIs( buf, ( word( buf ) & ~( 7u << 13 ) ) | ( i & 7 ) << 13 );
                                        words[0] = word( buf );
                                        to.write( chip, { 0x1f7 + ( i & 7 ), 14, 2 }, words );
                                        to.write( chip, { 0x1f7 + ( i & 7 ), 28, 9 }, words );
                                     } ),
                          1.25 };

} // namespace
