#include "FapGate.h"

#include "Toggles.h"
#include "assert/Assert.h"
#include "rex/Gate.h"

namespace DaceFapNi {

namespace {

// The last chip type of each FAP type, in ascending order.
constexpr struct {
   U8 lastChipType;
   U8 fapType;
} fapTypeRows[] = {
   // clang-format off
   {  0, 0 },
   {  3, 1 },
   {  8, 2 },
   { 16, 3 },
   { 25, 4 },
   // clang-format on
};

} // namespace

Hardware::Dace::FapType chipTypeToFapType( Hardware::ChipType chipType ) {
   for ( auto const & row : fapTypeRows ) {
      if ( static_cast< U8 >( chipType ) <= row.lastChipType ) {
         return Hardware::Dace::FapType{ row.fapType };
      }
   }
   Rex::SassertHelper( "false" ) << "Unhandled chipType " << chipType;
   __builtin_unreachable();
}

bool isServed( Hardware::Dace::FapType fapType, std::optional< U16 > fap, std::source_location origin ) {
   if ( !Rex::gate( fapType != fapType4, "FAP type 4 is not served", fap, origin ) ) {
      return false;
   }
   return Rex::gate( !( fapType == fapType3 && toggleArmOrderedSwTableEnabled() && toggleJ2DaceL3NiEnabled() ),
                     "FAP type 3 is not served while the toggles ArmOrderedSwTable and J2DaceL3Ni are on",
                     fap,
                     origin );
}

} // namespace DaceFapNi
