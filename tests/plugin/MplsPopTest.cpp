#include "ChipFixture.h"

using namespace DaceFapNi;

namespace {

class MplsPopTest : public EveryChip {};

TEST_P( MplsPopTest, givesPoppedLabelsTheirHeaderFormat ) {
   switchIs( { .faps = { { .fapId = FapId( 0 ), .name = "Fap3/0", .revision = revisionOf( GetParam() ) } } } );
   char const table[] = "IppdPphAttributesByEei";
   TraceListener const traces( "DaceFapNiL3Sm", 8 );
   L3Sm::setupMplsPopFheiFormat( fap() );

   // The entry is written as a whole: what it held before is gone.
   Words expected( words( table, { .entry = 8 } ).size() );
   for ( char const * const name : { "fheiType", "fheiSize", "createFheiInsteadOfEei" } ) {
      Simulator::fieldBitsIs( expected, *layout( table, {} ).field( name ), 1 );
   }
   EXPECT_EQ( words( table, { .entry = 8 } ), expected );
   EXPECT_EQ( operations(), std::vector< std::string >{ "write IppdPphAttributesByEei 0/0/8" } );
   EXPECT_EQ( traces.records(),
              ( std::vector< std::string >{ "DaceFapNiL3Sm/8 L3Sm::setupMplsPopFheiFormat Fap3/0",
                                            "DaceFapNiL3Sm/8 L3Sm::setupMplsPopFheiFormat arrayIdx 0, entryIdx 8" } ) );
}

INSTANTIATE_TEST_SUITE_P( Chips, MplsPopTest, everyChip, chipNameOf );

} // namespace
