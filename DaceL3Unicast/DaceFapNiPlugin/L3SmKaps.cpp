// VRF fallback, and what KAPS (the longest-prefix lookup) gives when it has nothing better: its default interface and
// the strengths of its results.
#include "L3Sm.h"
#include "SharedFunctions.h"
#include "constants/WellKnown.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {

using enum Hardware::Dace::Jericho2LifProfiles;
using Hardware::Dace::Jericho2LifProfiles;

Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };

// ---- VRF fallback

// The in-LIF profiles that fall back, and what they have in each group of array elements of the context-selection
// register. The values go where the clear at the start of the list left 0.
struct VrfFallbackRow {
   Jericho2LifProfiles inLifProfile;
   U8 csOfVariant0; // array element 2
   U8 csOfVariant1; // every array element
};
constexpr VrfFallbackRow vrfFallback[] = {
   // clang-format off
   { profile8,  1, 4 },
   { profile17, 2, 4 },
   { profile18, 2, 2 },
   // clang-format on
};

constexpr int fallbackArrayOfVariant0 = 2;

// ---- KAPS strengths

constexpr int strengthEntries = 256;
constexpr U8 unmappedStrength = 5; // of every array element but 1

constexpr int mappedArray = 1;
constexpr int exceptionalEntry = 32; // its second field is 0

} // namespace

void L3Sm::initVrfFallbackMapping( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );
   auto const mark = [&]( U8 variant, int array, Jericho2LifProfiles inLifProfile, U8 csValue ) {
      trace( 8,
             "L3Sm::",
             "initVrfFallbackMapping",
             " ",
             fapStatus->fapName(),
             " inLifprofile: ",
             static_cast< U8 >( inLifProfile ),
             " tableVariant: ",
             variant,
             " arrayIndex: ",
             array,
             " CS profile value: ",
             csValue );
      doWriteVttCsInLifProfLsb( fap.chipType, fap.id, static_cast< U32 >( inLifProfile ), variant, array, csValue );
   };

   for ( auto const & row : vrfFallback ) {
      mark( 0, fallbackArrayOfVariant0, row.inLifProfile, row.csOfVariant0 );
   }
   auto const variant1 = accessor< Hardware::InLifProfileCsFlagsLsb >( fap, 1 );
   for ( auto const & row : vrfFallback ) {
      for ( int const array : csArrays( variant1, 1 ) ) {
         mark( 1, array, row.inLifProfile, row.csOfVariant1 );
      }
   }
}

void L3Sm::initKapsInterfaceDefault( FapStatusPtr const & fapStatus ) {
   write< Hardware::EnableKapsInterfaceDefault >(
      Fap( fapStatus ), {}, []( auto & reg ) { reg.enableKapsInterfaceDefaultIs( 15 ); } );
}

std::map< std::pair< int, int >, U32 > rangeToDefault0StrengthMapping() {
   return {
      // clang-format off
      { {   0, 152 }, 1 },
      { { 153, 160 }, 3 },
      { { 161, 255 }, 3 },
      // clang-format on
   };
}

void L3Sm::initKapsStrengthMapping( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );
   auto kapsStrengthMapping = accessor< Hardware::FlpKapsStrengthMapping >( fap );
   auto const writeEvery = [&]( int array ) {
      for ( int const entry : entriesOf( kapsStrengthMapping ) ) {
         writeAll( kapsStrengthMapping, fap, { .array = array, .entry = entry } );
      }
   };

   kapsStrengthMapping.strengthDefault0Is( unmappedStrength );
   for ( int const array : arraysOf( kapsStrengthMapping ) | std::views::drop( mappedArray + 1 ) ) {
      writeEvery( array );
   }
   kapsStrengthMapping.strengthDefault0Is( unmappedStrength );
   kapsStrengthMapping.strengthDefault1Is( 0 );
   writeEvery( 0 );

   Rex::sassert( kapsStrengthMapping.entries() == strengthEntries, "kapsStrengthMapping.entries() == 256" );
   for ( auto const & [range, strength] : rangeToDefault0StrengthMapping() ) {
      kapsStrengthMapping.strengthDefault0Is( static_cast< U8 >( strength ) );
      kapsStrengthMapping.strengthDefault1Is( static_cast< U8 >( strength ) );
      for ( int entry = range.first; entry <= range.second; ++entry ) {
         Place const place{ .array = mappedArray, .entry = entry };
         if ( entry == exceptionalEntry ) {
            kapsStrengthMapping.strengthDefault1Is( 0 );
            writeAll( kapsStrengthMapping, fap, place );
            kapsStrengthMapping.strengthDefault1Is( 1 ); // that of the range
         } else {
            writeAll( kapsStrengthMapping, fap, place );
         }
      }
   }
}

void L3Sm::verifyKapsStrengthMapping( FapStatusPtr const & fapStatus ) {
   U32 const chipType = static_cast< U32 >( fapStatus->revision().chipType() );
   int const arrays = static_cast< int >( Hardware::FlpKapsStrengthMapping::arrayElements( chipType, 0 ) );
   int const last = static_cast< int >( Hardware::FlpKapsStrengthMapping::entries( chipType, 0 ) ) - 1;

   for ( int array = mappedArray + 1; array < arrays; ++array ) {
      verifyKapsStrengthMappingEntry( fapStatus, array, unmappedStrength, 0, 0, last );
   }
   verifyKapsStrengthMappingEntry( fapStatus, 0, unmappedStrength, 0, 0, last );
   for ( auto const & [range, strength] : rangeToDefault0StrengthMapping() ) {
      trace( 0,
             "L3Sm::",
             "verifyKapsStrengthMapping",
             " expStrengthDefault0 ",
             strength,
             " range.first ",
             range.first,
             " range.second ",
             range.second );
      verifyKapsStrengthMappingEntry( fapStatus, mappedArray, strength, strength, range.first, range.second );
   }
}

void verifyKapsStrengthMappingEntry( FapStatusPtr const & fapStatus,
                                     int arrayIndex,
                                     U32 expectedStrengthDefault0,
                                     U32 expectedStrengthDefault1,
                                     int firstEntry,
                                     int lastEntry,
                                     std::source_location origin ) {
   Fap const fap( fapStatus );
   auto kapsStrengthMapping = accessor< Hardware::FlpKapsStrengthMapping >( fap );
   for ( int entry = firstEntry; entry < lastEntry; ++entry ) {
      // The value read is streamed as it is, a character.
      auto const fail = [&]( char const * text, U32 expected, U8 read ) {
         Rex::SassertHelper( text ) << "verifyKapsStrengthMappingEntry"
                                    << " arrayIndex " << arrayIndex << " entry " << entry << " expValue " << expected
                                    << " readValue " << read;
      };
      readAny( kapsStrengthMapping, fap, { .array = arrayIndex, .entry = entry }, origin );
      U8 const strength0 = kapsStrengthMapping.strengthDefault0();
      U8 const strength1 = kapsStrengthMapping.strengthDefault1();
      if ( strength0 != expectedStrengthDefault0 ) {
         fail(
            "kapsStrengthMapping.strengthDefault0() == expectedStrengthDefault0", expectedStrengthDefault0, strength0 );
      }
      if ( arrayIndex == mappedArray && entry == exceptionalEntry ) {
         if ( strength1 != 0 ) {
            fail( "kapsStrengthMapping.strengthDefault1() == 0", 0, strength1 );
         }
      } else if ( strength1 != expectedStrengthDefault1 ) {
         fail(
            "kapsStrengthMapping.strengthDefault1() == expectedStrengthDefault1", expectedStrengthDefault1, strength1 );
      }
   }
}

} // namespace DaceFapNi
