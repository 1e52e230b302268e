// What an agent finds on its chips, when it finds it, and what it does then.
#include "agent/audit/Auditor.h"
#include "inspection/files/Json.h"

#include <gmock/gmock.h>

namespace {

using namespace Live;
using Hardware::ChipType;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Rex::Seconds period = 10;

class AuditorTest : public testing::Test {
 protected:
   Simulator::SimulatedSwitch sw{
      { .faps = { { .fapId = Hardware::Dace::FapId( 0 ), .revision = { 5, ChipType::BCM88690_B0, 7 } } },
        .journalled = Simulator::SwitchDescription::Journalled::none } };
   Simulator::SupervisedChips & chips = sw.supervise();
   Metrics metrics;
   std::vector< std::string > told;
   Auditor auditor{ sw, metrics, { .period = period, .log = [this]( std::string const & line ) {
                                     told.push_back( line.substr( line.find( ';' ) + 2 ) );
                                  } } };

   AuditorTest() { Rex::nowIs( 100'000 ); }

   U32 arm( std::string const & kind, std::string const & place = "IppdFerTrapCfg[3]" ) {
      Simulator::Fault fault;
      fault.kindIs( kind );
      placeIs( fault, place );
      fault.copy = 1;
      return chips.arm( fault );
   }
   void worksFor( Rex::Seconds seconds ) {
      for ( Rex::Seconds done = 0; done < seconds; ++done ) {
         for ( bool isMore = auditor.works( 1 ); isMore; isMore = auditor.works( 0 ) ) {
         }
      }
   }
};

TEST_F( AuditorTest, looksAtAllWithinThePeriodAndAtAPartInAPartOfIt ) {
   arm( "flip:3", "EnablersVectors[0].7" );
   arm( "flip:3", "IppdFerTrapCfg[3]" );
   worksFor( 1 );
   auto const early = told.size();
   worksFor( period );
   EXPECT_LT( early, 2u );
   EXPECT_EQ( told.size(), 2u );
   EXPECT_GE( auditor.walks(), 1u );
}

TEST_F( AuditorTest, repairsAPlaceOnceAndGivesItUpWithinTheHour ) {
   arm( "flip:3" );
   EXPECT_EQ( auditor.runs().repaired, 1u );
   EXPECT_EQ( auditor.runs().mismatches, 0u );
   Rex::nowIs( Rex::now() + 3599 );
   arm( "flip:4" );
   EXPECT_EQ( auditor.runs().hard, 1u );
   EXPECT_EQ( auditor.runs().hard, 1u ); // as before, and told no more
   EXPECT_THAT( told, ElementsAre( "repaired", "wrong again, and left: l3sm ctl repair" ) );
   EXPECT_EQ( auditor.triesAgain().repaired, 1u );
   EXPECT_EQ( auditor.runs().mismatches, 0u );
}

TEST_F( AuditorTest, repairsAPlaceAgainAfterAnHour ) {
   arm( "flip:3" );
   EXPECT_EQ( auditor.runs().repaired, 1u );
   Rex::nowIs( Rex::now() + 3600 );
   arm( "flip:3" );
   EXPECT_EQ( auditor.runs().repaired, 1u );
   EXPECT_THAT( told, ElementsAre( "repaired", "repaired" ) );
}

TEST_F( AuditorTest, tellsWhereAndSinceWhen ) {
   sw.start();
   auditor.runs();
   sw.change( [] {} );
   sw.change( [] {} );
   arm( "flip:7" );
   auditor.runs();
   auto const text = Inspection::toJson( auditor.status(), 0 );
   EXPECT_THAT( text, testing::HasSubstr( R"("bits": [7], "event": 2, "fap": 0, "fields": {"cpuSnoopCodeN": )" ) );
   EXPECT_THAT( text,
                testing::HasSubstr( R"("place": "IppdFerTrapCfg[3] copy 1", "result": "repaired", "rightAt": 0)" ) );
   sw.change( [] {} );
   arm( "flip:8" );
   auditor.runs();
   EXPECT_THAT( Inspection::toJson( auditor.status(), 0 ), testing::HasSubstr( R"("result": "left", "rightAt": 2)" ) );
}

TEST_F( AuditorTest, leavesWhatItFindsWhereNothingMayBeWritten ) {
   bool mayWrite = false;
   Auditor watching( sw, metrics, { .period = 0, .mayRepair = [&] { return mayWrite; } } );
   arm( "flip:3" );
   EXPECT_EQ( watching.runs().repaired, 0u );
   EXPECT_EQ( watching.runs().mismatches, 1u );
   mayWrite = true;
   EXPECT_EQ( watching.runs().repaired, 1u );
   EXPECT_EQ( watching.runs().mismatches, 0u );
}

TEST_F( AuditorTest, neverWorksByItselfWithoutAPeriod ) {
   Auditor quiet( sw, metrics, { .period = 0 } );
   arm( "flip:3" );
   EXPECT_FALSE( quiet.works( 1000 ) );
   EXPECT_EQ( quiet.walks(), 0u );
   EXPECT_EQ( quiet.runs().repaired, 1u );
}

} // namespace
