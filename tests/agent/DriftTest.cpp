// What a start would change on chips that an agent had before, as the log tells it.
#include "agent/audit/Drift.h"

#include "simulator/TableMap.h"

#include <gtest/gtest.h>

namespace {

using namespace Live;
using Hardware::ChipType;

struct DriftTest : testing::Test {
   Simulator::SimulatedSwitch sw{
      { .faps = { { .fapId = Hardware::Dace::FapId( 0 ), .revision = { 5, ChipType::BCM88690_B0, 7 } } },
        .journalled = Simulator::SwitchDescription::Journalled::none } };
   Simulator::StagedDriver staged{ sw.driver() };
   DaceSal::ChipId const fap{ 0 };

   static DaceSal::SchanAddress trapCfg( U32 copy ) {
      return Simulator::addressOf(
         *Catalogue::layout( *Catalogue::table( "IppdFerTrapCfg" ), static_cast< U8 >( ChipType::BCM88690_B0 ), 0 ),
         3,
         0,
         copy );
   }
   std::vector< std::string > told() const {
      std::vector< std::string > all;
      for ( Drift const & drift : driftOf( sw.description(), staged ) ) {
         all.push_back( drift.text() );
      }
      return all;
   }
};

TEST_F( DriftTest, isToldCopyByCopyAndFieldByField ) {
   U32 const before = 0x0a15; // strength 5, code 21
   U32 const after = 0x0a16;
   sw.driver().write( fap, trapCfg( 0 ), { &before, 1 } );
   sw.driver().write( fap, trapCfg( 1 ), { &after, 1 } );
   staged.write( fap, trapCfg( 0 ), { &after, 1 } );
   staged.write( fap, trapCfg( 1 ), { &after, 1 } ); // as it is
   EXPECT_EQ( told(), std::vector< std::string >{ "FAP 0 IppdFerTrapCfg[3] copy 0: cpuSnoopCodeN 0x15 → 0x16" } );
}

TEST_F( DriftTest, hasTheReasonWhereOneIsKnown ) {
   staged.control( fap, 97, 7 );
   staged.control( fap, 64, 7 );
   EXPECT_EQ( told(),
              ( std::vector< std::string >{
                 "FAP 0 control 97: value none → 7; known: a VTI's UDP port is cleared when it goes; before the first "
                 "one the control has no value",
                 "FAP 0 control 64: value none → 7" } ) );
}

TEST_F( DriftTest, isNoneWhereEverythingEndsAsItStood ) {
   staged.control( fap, 64, 7 );
   sw.driver().control( fap, 64, 7 );
   staged.drop();
   staged.control( fap, 64, 7 );
   EXPECT_TRUE( told().empty() );
}

} // namespace
