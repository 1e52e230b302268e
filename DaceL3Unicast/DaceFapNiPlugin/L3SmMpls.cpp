// MPLS: the header format of popped labels.
#include "L3Sm.h"
#include "Programming.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {

Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };

} // namespace

// A popped label gets an FHEI instead of an EEI.
void L3Sm::setupMplsPopFheiFormat( FapStatusPtr const & fapStatus ) {
   constexpr Place pop{ .entry = 8 };
   trace( 8, "L3Sm::", "setupMplsPopFheiFormat", " ", fapStatus->fapName() );
   write< Hardware::IppdPphAttributesByEei >( Fap( fapStatus ), pop, [&]( auto & attributes ) {
      attributes.fheiTypeIs( 1 );
      attributes.fheiSizeIs( 1 );
      attributes.createFheiInsteadOfEeiIs( 1 );
      trace( 8, "L3Sm::", "setupMplsPopFheiFormat", " arrayIdx ", pop.array, ", entryIdx ", pop.entry );
   } );
}

} // namespace DaceFapNi
