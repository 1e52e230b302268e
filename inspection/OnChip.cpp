#include "inspection/OnChip.h"

namespace Inspection {

namespace {

using Hardware::ChipType;

U16 coresOf( ChipType chipType ) {
   return Simulator::FapDescription{ .revision = { 0, chipType, 0 } }.coreCount();
}

} // namespace

Scenario onChip( Scenario const & scenario, ChipType chipType ) {
   Scenario other = scenario;
   bool const hasTwo = chipType == ChipType::BCM88850_A0 || chipType == ChipType::BCM88859_A2;
   for ( auto & fap : other.description.faps ) {
      auto const & revision = fap.revision;
      bool const saysTwo = revision.fapRevMajor() == 8 || revision.fapRevMajor() == 9;
      if ( fap.cores ) {
         bool const hasAll = *fap.cores >= coresOf( revision.chipType() );
         fap.cores = hasAll ? coresOf( chipType ) : std::min( *fap.cores, coresOf( chipType ) );
      }
      U32 const major = saysTwo == hasTwo ? revision.fapRevMajor() : hasTwo ? 8 : 5;
      fap.revision = Hardware::Dace::FapRevision( major, chipType, revision.sdkVersion() );
   }
   return other;
}

} // namespace Inspection
