// Routing enablers: which forwarding domains (VSIs) route, and for which kinds of traffic.
//
// VsiProfileEnablers turns a VSI profile into a routing profile, four profiles to an entry; EnablersVectors turns a
// routing profile into the vector of what it routes. An array index stands for the same place in the pipeline in both.
#include "L3Sm.h"
#include "Programming.h"
#include "SharedFunctions.h"
#include "Toggles.h"
#include "constants/WellKnown.h"

namespace DaceFapNi {

namespace {

using enum DacePPExport::ctx_fwd1;
using Hardware::Dace::Jericho2LifProfiles;

// ---- routing profile to vector

constexpr U64 bit( unsigned number ) {
   return U64{ 1 } << number;
}

// Bits 0, 2 and 4 of the profile stand at bits 4, 6 and 8; bit 1 stands at bit 5 and once more at bit 7, the place that
// bit 3 would have: profiles 8 to 15 repeat 0 to 7.
constexpr U64 baseVector( unsigned profile ) {
   return ( ( ( profile & ~8u ) | ( profile & 2u ) << 2 ) << 4 ) | bit( 2 );
}

constexpr int srv6Profile = 21;
constexpr int tunnelProfile = 22;
constexpr int unroutedProfile = 8;

// The vector of a profile at a place of the pipeline. `array` counts through both variants, `element` within one.
U64 routingVector( unsigned variant, int array, int element, int profile ) {
   U64 const base = baseVector( static_cast< unsigned >( profile ) );
   if ( variant == 1 && element == 0 && profile == 0 ) {
      return base | bit( 3 );
   }
   if ( variant == 1 && element == 0 && profile == srv6Profile ) {
      return toggleJ2SRv6Enabled() ? base | bit( 42 ) : base;
   }
   if ( variant == 0 && element == 1 && profile == tunnelProfile ) {
      return bit( 60 ); // nothing else, not even the base
   }
   if ( variant == 0 && element == 1 && profile == 0 ) {
      return base | bit( 60 );
   }
   if ( ( array == 2 || array == 3 ) && profile == unroutedProfile ) {
      return 0;
   }
   return base;
}

// ---- VSI profile to routing profile

// Where a VSI profile stands in VsiProfileEnablers.
constexpr int entryOf( unsigned vsiProfile ) {
   return static_cast< int >( vsiProfile >> 2 );
}
constexpr U32 slotOf( unsigned vsiProfile ) {
   return vsiProfile & 3;
}
constexpr unsigned slots = 4;

// The profiles that are written as a whole: the low 32 and those from 896 on. What lies between keeps the chip's value.
constexpr int lowEntriesEnd = entryOf( 32 );
constexpr int highEntriesBegin = entryOf( 896 );

// Gives every VSI profile of the entries the routing profile of its number, modulo 32 and without bit 3, everywhere.
void writeVsiProfiles( Fap const & fap,
                       int firstEntry,
                       int endEntry,
                       std::source_location origin = std::source_location::current() ) {
   for ( int entry = firstEntry; entry < endEntry; ++entry ) {
      auto enablers = accessor< Hardware::VsiProfileEnablers >( fap );
      for ( unsigned slot = 0; slot < slots; ++slot ) {
         enablers.routingProfileIs( slot,
                                    static_cast< U8 >( ( slots * static_cast< unsigned >( entry ) + slot ) & 23 ) );
      }
      for ( auto const variant : variantsOf< Hardware::VsiProfileEnablers >( fap ) ) {
         enablers.variantIs( static_cast< U8 >( variant ) );
         for ( int const array : arraysOf( enablers ) ) {
            writeAll( enablers, fap, { .array = array, .entry = entry }, origin );
         }
      }
   }
}

// Changes the routing profile of one VSI profile at one place; its neighbours in the entry survive.
void routingProfileIs( Fap const & fap,
                       U8 variant,
                       int array,
                       unsigned vsiProfile,
                       U8 routingProfile,
                       std::source_location origin = std::source_location::current() ) {
   modify< Hardware::VsiProfileEnablers >(
      fap,
      { .variant = variant, .array = array, .entry = entryOf( vsiProfile ) },
      [&]( auto & enablers ) { enablers.routingProfileIs( slotOf( vsiProfile ), routingProfile ); },
      origin );
}

// In this order. Their routing profile is the one whose vector is 0 in arrays 2 and 3.
constexpr Jericho2LifProfiles unroutedVsiProfiles[] = {
   Jericho2LifProfiles::profile8,
   Jericho2LifProfiles::profile9,
   Jericho2LifProfiles::profile17,
   Jericho2LifProfiles::profile18,
};

// Overrides in variant 1, in this order.
constexpr struct {
   int array;
   unsigned vsiProfile;
   U8 routingProfile;
} vsiProfileOverrides[] = {
   // clang-format off
   { 3, 68, 0 },
   { 3, 64, 0 },
   { 3, 65, 0 },
   { 3, 66, 0 },
   { 4, 16, 5 },
   // clang-format on
};

// ---- context-selection nibbles of a VSI profile

// Eight nibbles, by which the context of a packet may check its source: bit 2 of the entry lets the odd ones check
// IPv4, bit 3 lets the upper four check IPv6.
U32 fwdDomainCsProfiles( Hardware::ChipType chipType, unsigned entry ) {
   U32 nibbles = 0;
   for ( unsigned i = 0; i < 8; ++i ) {
      U8 image[4] = {};
      Hardware::VeloroL2FodoProfile nibble( chipType, image, sizeof image, false, 0 );
      nibble.v4RpfIs( static_cast< U8 >( entry >> 2 & 1 & i ) );
      nibble.v6RpfIs( static_cast< U8 >( i >> 2 & ( entry >> 3 & 1 ) ) );
      nibbles |= U32{ image[0] } << 4 * i;
   }
   return nibbles;
}

} // namespace

void L3Sm::initEnablersVectors( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );
   auto vectors = accessor< Hardware::EnablersVectors >( fap );
   for ( int const profile : entriesOf( vectors ) ) {
      for ( auto const variant : variantsOf< Hardware::EnablersVectors >( fap ) ) {
         vectors.variantIs( static_cast< U8 >( variant ) );
         int const firstArray = *arraysOf( vectors ).begin();
         for ( int const array : arraysOf( vectors ) ) {
            vectors.routingEnableVectorIs( routingVector( variant, array, array - firstArray, profile ) );
            writeAll( vectors, fap, { .array = array, .entry = profile } );
         }
      }
   }
}

void L3Sm::initVsiProfileTable( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );

   int const entries = static_cast< int >( accessor< Hardware::VsiProfileEnablers >( fap ).entries() );
   writeVsiProfiles( fap, highEntriesBegin, entries );
   writeVsiProfiles( fap, 0, lowEntriesEnd );
   for ( auto const profile : unroutedVsiProfiles ) {
      routingProfileIs( fap, 0, 2, static_cast< unsigned >( profile ), unroutedProfile );
      routingProfileIs( fap, 1, 3, static_cast< unsigned >( profile ), unroutedProfile );
   }
   for ( auto const & row : vsiProfileOverrides ) {
      routingProfileIs( fap, 1, row.array, row.vsiProfile, row.routingProfile );
   }

   // Variant 0 of the flags stays as the chip has it.
   auto flags = accessor< Hardware::VsiProfileFlags >( fap, 1 );
   for ( auto const variant : variantsOf< Hardware::VsiProfileFlags >( fap ) | std::views::drop( 1 ) ) {
      flags.variantIs( static_cast< U8 >( variant ) );
      for ( int const entry : entriesOf( flags ) ) {
         flags.fwdDomainCsProfileVecIs( fwdDomainCsProfiles( fap.chipType, static_cast< unsigned >( entry ) ) );
         for ( int const array : arraysOf( flags ) ) {
            writeAll( flags, fap, { .array = array, .entry = entry } );
         }
      }
   }
}

void L3Sm::initSviLearning( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );
   constexpr U32 sdkWithoutIpv6Learning = 6;

   std::vector< DacePPExport::ctx_fwd1 > contexts{
      ipv4Unicast, ipv4UnicastSvi, ipv4UnicastUrpfLoose, ipv4UrpfLooseSvi, ipv4UnicastUrpfStrict, ipv4UrpfStrictSvi };
   if ( fapStatus->revision().sdkVersion() != sdkWithoutIpv6Learning ) {
      contexts.push_back( ipv6Unicast );
      contexts.push_back( ipv6UnicastSvi );
   }
   setLearningForUrpfOrFlpa( contexts, fap.chipType, fap.id, true, false );
}

// Programmable trap 2 stays active in every other context.
void L3Sm::initIppbFlpbResContextEnablersReg( FapStatusPtr const & fapStatus ) {
   Fap const fap( fapStatus );
   U32 const fwdContext = ctx_fwd2_value( fap.chipType, DacePPExport::ctx_fwd2::bridgedTunnel );
   modify< Hardware::IppbFlpbResContextEnablers >(
      fap, { .entry = static_cast< int >( fwdContext ) }, []( auto & enablers ) { enablers.progTrap2EnableIs( 0 ); } );
}

// Writes no table itself: it has the flood destination of unknown traffic written, with or without VTIs.
void L3Sm::initUnknownDaProfileTable() {
   vtiStatusDirSm()->doSetupRemoteVxlanDomain( Netka::IntfId( "" ), false );
}

} // namespace DaceFapNi
