// What the ring buffer tells without any level being switched on: the last steps before a failure.
#include "ChipView.h"
#include "DaceL3Unicast/DaceFapNiPlugin/RemFfcModifierSm.h"

#include <gtest/gtest.h>

using namespace Test;

namespace {

constexpr char const * lag = "hardware/dace/lag/daceLagStatus";

// The records that contain `part`, as "<facility>/<level> <text>".
std::vector< std::string > ring( std::string const & part ) {
   std::vector< std::string > all;
   for ( auto const & record : Rex::RingTrace::records() ) {
      if ( record.text.find( part ) != std::string::npos ) {
         all.push_back( std::string( record.facility ) + "/" + std::to_string( record.level ) + " " + record.text );
      }
   }
   return all;
}

TEST( RingTrace, holdsWhetherTheOwnSlotWasReadyAtTheStart ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.setEntry( "shared/sliceSmStateData", "slotIds", "Linecard1", 3 );
   Rex::RingTrace::clear();
   sw.start();
   EXPECT_EQ(
      ring( "handleInitialized" ),
      ( std::vector< std::string >{ "DaceFapNiL3Sm/8 handleInitialized: slot:3 Load Balance Config not ready" } ) );
   sw.stop();
}

TEST( RingTrace, holdsThatTheOwnSlotWasInitialized ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.setEntry( lag, "slotLoadBalance", "0", Object{ { "guePktTypeHashMode", 2 } } );
   Rex::RingTrace::clear();
   sw.start();
   EXPECT_EQ( ring( "handleInitialized" ),
              ( std::vector< std::string >{ "DaceFapNiL3Sm/8 handleInitialized: Initializing for slot:0" } ) );
}

TEST( RingTrace, holdsWhatTheExactMatchStrengthsFollowFrom ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   Rex::RingTrace::clear();
   sw.setEntry( "routing/hardware/route/status", "prefixLensInExactMatch", "1", 21 );
   EXPECT_EQ( ring( "handlePrefixLensInExactMatch" ),
              ( std::vector< std::string >{
                 "DaceFapNiL3Sm/4 L3Sm::handlePrefixLensInExactMatch flpaLookupUsedForRouting false slash32RemEnabled "
                 "false pcremEnabled true urpfInternetProfileEnabled false" } ) );
}

TEST( RingTrace, holdsBothFormsOfASlotThatWasPassedOver ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   Rex::RingTrace::clear();
   sw.setEntry( lag, "slotLoadBalance", "7", Object{ { "guePktTypeHashMode", 2 } } );
   EXPECT_EQ( ring( "handleGuePktTypeHashModeConfig" ),
              ( std::vector< std::string >{ "DaceFapNiL3Sm/8 handleGuePktTypeHashModeConfig: Skipping notification",
                                            "/8 handleGuePktTypeHashModeConfig: Skiping notification for slot:7" } ) );
}

TEST( RingTrace, holdsTheDatabasesThatTheFfcModifierLookedAt ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   Rex::RingTrace::clear();
   auto const sm =
      DaceFapNi::remFfcModifierSmFactory( sw.cellStatus(), Routing::Hardware::prefixLensInExactMatchFactory( "" ) );
   auto const records = ring( "isAppDbIdInteresting" );
   ASSERT_EQ( records.size(), 18u );
   EXPECT_EQ( records[6],
              "DaceFapNiRemFfcModifierSm/9 RemFfcModifierSm::isAppDbIdInteresting fapId 0 chipType BCM88690_B0 context "
              "10 ISEM appDb 23, Expected ISEM appDb 23" );
}

} // namespace
