// Prefix lengths in exact match: lookup strengths and learning of the forwarding contexts follow the IPv4 prefix
// lengths that the exact-match engine (LEM) holds. Every run writes every place in both senses; nothing is remembered.
#include "L3Sm.h"
#include "Programming.h"
#include "SharedFunctions.h"
#include "Toggles.h"
#include "rex/Gate.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {

using DacePPExport::ctx_fwd1;
using DacePPExport::ctx_fwd2;

Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };
Rex::DualTrace const dualTrace{ trace };

constexpr U8 hostPrefixLen = 32;
constexpr U8 urpfInternetPrefixLen = 24;
constexpr U8 pcremPrefixLen = 21;

// Lookups whose constant strength this file decides, by their number in a context's vector of strengths.
constexpr unsigned lemLookup = 11;  // in the first stage
constexpr unsigned pcremLookup = 6; // in the second

// A lookup that wins in its context, and one that is out of the race.
constexpr U8 internetProfileStrength = 7;
constexpr U8 routingStrength = 5;
constexpr U8 pcremStrength = 3;   // the reduced key finds the routes
constexpr U8 noPcremStrength = 5; // whole hosts alone
constexpr U8 noStrength = 0;

// The vector of constant strengths holds 16 of them, 4 bits each.
constexpr U64 withStrength( U64 vector, unsigned lookup, U8 strength ) {
   unsigned const shift = 4 * lookup;
   return ( vector & ~( U64{ 0xf } << shift ) ) | U64{ strength } << shift;
}

// A context that the chip lacks is not left out here: its number is 0.
template< class Table, class Context >
void updateLemStrength( std::vector< Context > const & contexts,
                        U32 ( *value )( Hardware::ChipType, Context ),
                        Fap const & fap,
                        U8 strength,
                        unsigned lookup,
                        std::source_location origin = std::source_location::current() ) {
   trace( 8, "updateLemStrength", " chipType ", fap.chipType, " fapId ", fap.id, " lemStrength ", strength );
   trace( 8, "updateLemStrength", " LEM strength index ", lookup );
   for ( auto const context : contexts ) {
      U32 const number = value( fap.chipType, context );
      trace( 8, "updateLemStrength", " context ", number );
      modify< Table >(
         fap,
         { .entry = static_cast< int >( number ) },
         [&]( auto & lookups ) {
            U64 const vector = withStrength( lookups.constStrengthVec(), lookup, strength );
            trace( 8, "updateLemStrength", " constStrengthVec ", vector );
            lookups.constStrengthVecIs( vector );
         },
         origin );
   }
}

// Without a context of its own, the reduced key is chosen by the port that a packet came in on.
void setPortProfiles( Fap const & fap,
                      Hardware::Dace::Cell::FapStatus const & status,
                      bool pcremEnabled,
                      std::source_location origin = std::source_location::current() ) {
   for ( auto const & [key, port] : status.ports() ) {
      trace( 5, "handlePrefixLensInExactMatch", ": ", " fapId ", fap.id, " fapPortId ", port );
      modify< Hardware::IppbFlpPortProfileMap >(
         fap, { .entry = port.value }, [&]( auto & map ) { map.portProfileIs( pcremEnabled ); }, origin );
   }
}

} // namespace

void L3Sm::handlePrefixLensInExactMatch() {
   if ( !Rex::gate( initialized_, notInitialized ) ) {
      return;
   }
   bool slash32RemEnabled = false;
   bool pcremEnabled = false;
   bool urpfInternetProfileEnabled = false;
   for ( auto const & [key, prefixLen] : in_.mergedPrefixLensInExactMatchV4->prefixLen() ) {
      pcremEnabled |= prefixLen == pcremPrefixLen;
      urpfInternetProfileEnabled |= prefixLen == urpfInternetPrefixLen;
      slash32RemEnabled |= prefixLen == hostPrefixLen;
   }
   bool const flpaLookupUsedForRouting = slash32RemEnabled && ( pcremEnabled || urpfInternetProfileEnabled );
   dualTrace( 4,
              "L3Sm::",
              "handlePrefixLensInExactMatch",
              " flpaLookupUsedForRouting ",
              flpaLookupUsedForRouting,
              " slash32RemEnabled ",
              slash32RemEnabled,
              " pcremEnabled ",
              pcremEnabled,
              " urpfInternetProfileEnabled ",
              urpfInternetProfileEnabled );

   std::vector const urpf{ ctx_fwd1::ipv4UnicastUrpfLoose, ctx_fwd1::ipv4UnicastUrpfStrict };
   std::vector const unicast{ ctx_fwd1::ipv4Unicast };
   std::vector const unified{ ctx_fwd2::ipv4Unified };

   forEachFap( in_.cellStatus, [&]( Fap const & fap, auto const & status ) {
      setLearningForUrpfOrFlpa( urpf, fap.chipType, fap.id, !urpfInternetProfileEnabled, false );
      updateLemStrength< Hardware::IppbFlpLePd1 >( urpf,
                                                   DacePPExport::ctx_fwd1_value,
                                                   fap,
                                                   urpfInternetProfileEnabled ? internetProfileStrength : noStrength,
                                                   lemLookup );
      setLearningForUrpfOrFlpa( unicast, fap.chipType, fap.id, !flpaLookupUsedForRouting, true );
      updateLemStrength< Hardware::IppbFlpLePd0 >( unicast,
                                                   DacePPExport::ctx_fwd1_value,
                                                   fap,
                                                   flpaLookupUsedForRouting ? routingStrength : noStrength,
                                                   lemLookup );
      if ( toggleUnifiedIPv4Fwd2CtxEnabled() ) {
         updateLemStrength< Hardware::IppbFlpLePd2 >(
            unified, DacePPExport::ctx_fwd2_value, fap, pcremEnabled ? pcremStrength : noPcremStrength, pcremLookup );
      } else {
         setPortProfiles( fap, status, pcremEnabled );
      }
   } );
}

} // namespace DaceFapNi
