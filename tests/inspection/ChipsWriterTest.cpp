// What is written of a switch's chips is what contents are written as, whether the chip before was like it or not.
#include "inspection/files/ChipsWriter.h"

#include "inspection/files/ChipsFile.h"
#include "simulator/TableMap.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace Inspection;
using Hardware::ChipType;

namespace {

Simulator::SwitchDescription twoOfEachKind() {
   Simulator::SwitchDescription description;
   for ( U16 fap = 0; fap < 4; ++fap ) {
      auto const chipType = fap % 2 == 0 ? ChipType::BCM88690_B0 : ChipType::BCM88850_A0;
      description.faps.push_back( { .fapId = Hardware::Dace::FapId( fap ), .revision = { 5, chipType, 7 } } );
   }
   return description;
}

DaceSal::SchanAddress trapOf( ChipType chipType, U32 array, U32 copy = 0 ) {
   auto const & table = *Catalogue::table( "IppdFerTrapCfg" );
   return Simulator::addressOf( *Catalogue::layout( table, static_cast< U8 >( chipType ), 0 ), array, 0, copy );
}

std::pair< std::string, std::string > bothTexts( Simulator::SimulatedSwitch const & sw ) {
   std::ostringstream expected;
   std::ostringstream actual;
   writeChips( expected, chipsOf( sw ) );
   writeChipsOf( sw, actual );
   return { expected.str(), actual.str() };
}

TEST( ChipsWriter, WritesWhatTheChipsHold ) {
   Simulator::SimulatedSwitch const sw( twoOfEachKind() );
   auto const [expected, actual] = bothTexts( sw );
   EXPECT_GT( expected.size(), 100'000u );
   EXPECT_TRUE( expected == actual );
}

TEST( ChipsWriter, TellsWhereAChipDiffersFromTheOneBeforeOfItsKind ) {
   Simulator::SimulatedSwitch sw( twoOfEachKind() );
   std::vector< U32 > const words{ 0x5a5 };
   sw.chip( Hardware::Dace::FapId( 2 ) ).fill( trapOf( ChipType::BCM88690_B0, 3 ), words );
   sw.chip( Hardware::Dace::FapId( 3 ) ).write( trapOf( ChipType::BCM88850_A0, 5, 1 ), words ); // one of two copies
   sw.chip( Hardware::Dace::FapId( 3 ) ).controlIs( 64, 7 );
   auto const [expected, actual] = bothTexts( sw );
   EXPECT_NE( expected.find( "instances" ), std::string::npos );
   EXPECT_TRUE( expected == actual );
}

} // namespace
