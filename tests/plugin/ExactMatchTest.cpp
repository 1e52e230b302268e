#include "ChipView.h"
#include "state/Routing.h"

#include <gtest/gtest.h>

using namespace Test;

namespace {

constexpr char const * routeStatus = "routing/hardware/route/status";

void lengthsAre( TestSwitch & sw, std::vector< int > const & lengths ) {
   sw.change( [&] {
      auto const status = sw.entity< Routing::Hardware::RouteStatus >( routeStatus );
      auto const present = status->prefixLensInExactMatch();
      for ( auto const & [key, length] : present ) {
         status->prefixLensInExactMatchDel( key );
      }
      for ( std::size_t key = 0; key < lengths.size(); ++key ) {
         status->prefixLensInExactMatchIs( static_cast< U8 >( key ), static_cast< U8 >( lengths[key] ) );
      }
   } );
}

U64 strength( TestSwitch const & sw, char const * table, U32 context, unsigned lookup, FapId fap = {} ) {
   return sw.field( { table, 0, 0, context }, "constStrengthVec", fap ) >> 4 * lookup & 0xf;
}

void expectLearning( TestSwitch const & sw, U32 context, bool learns, FapId fap = {} ) {
   EXPECT_EQ( sw.field( { "FlpaInitContextEnablers", 0, 0, context }, "contextLearnAllowedEnable", fap ), learns );
   EXPECT_EQ( sw.field( { "FlpaInitContextEnablers", 0, 0, context }, "learningFixedKeyEnable", fap ), learns );
   EXPECT_EQ( sw.field( { "FlpaResContextEnablers", 0, 0, context }, "learnInfoResolutionEnable", fap ), learns );
}

// What the chip holds for a set of lengths.
struct SetRow {
   std::vector< int > lengths;
   U64 pd1; // strength of the LEM for uRPF
   U64 pd0; // strength of the LEM for routing
   U64 pd2; // strength of the reduced key
   bool urpfLearns;
   bool unicastLearns;
};
SetRow const setRows[] = {
   { {}, 0, 0, 5, true, true },
   { { 32 }, 0, 0, 5, true, true },
   { { 21 }, 0, 0, 3, true, true },
   { { 24 }, 7, 0, 5, false, true },
   { { 21, 24 }, 7, 0, 3, false, true },
   { { 21, 32 }, 0, 5, 3, true, false },
   { { 32, 24 }, 7, 5, 5, false, false },
   { { 32, 24, 21 }, 7, 5, 3, false, false },
   { { 16, 22, 0, 255 }, 0, 0, 5, true, true },
};

void expectRow(
   TestSwitch const & sw, SetRow const & row, FapId fap, U32 loose, U32 strict, U32 unicast, U32 unified ) {
   for ( U32 const context : { loose, strict } ) {
      EXPECT_EQ( strength( sw, "IppbFlpLePd1", context, 11, fap ), row.pd1 );
      expectLearning( sw, context, row.urpfLearns, fap );
   }
   EXPECT_EQ( strength( sw, "IppbFlpLePd0", unicast, 11, fap ), row.pd0 );
   expectLearning( sw, unicast, row.unicastLearns, fap );
   EXPECT_EQ( sw.field( { "FlpaResContextEnablers", 0, 0, unicast }, "fwdUpdateEnable", fap ), !row.unicastLearns );
   EXPECT_EQ( strength( sw, "IppbFlpLePd2", unified, 6, fap ), row.pd2 );
}

TEST( ExactMatch, strengthsAndLearningFollowTheLengthsOnChipsOfTwoKinds ) {
   TestSwitch sw( { ChipType::BCM88690_B0, ChipType::BCM88850_A0 } );
   sw.start();
   for ( auto const & row : setRows ) {
      SCOPED_TRACE( testing::PrintToString( row.lengths ) );
      lengthsAre( sw, row.lengths );
      expectRow( sw, row, FapId( 0 ), 12, 16, 45, 10 );
      expectRow( sw, row, FapId( 1 ), 43, 1, 26, 49 );
   }
   lengthsAre( sw, {} );
   expectRow( sw, setRows[0], FapId( 0 ), 12, 16, 45, 10 );
}

TEST( ExactMatch, aLengthThatIsThereAtStartIsProgrammed ) {
   TestSwitch sw( { ChipType::BCM88480_B0 } );
   lengthsAre( sw, { 21, 32 } );
   sw.start();
   expectRow( sw, setRows[5], FapId( 0 ), 3, 54, 42, 51 );
}

TEST( ExactMatch, changesOneStrengthOfSixteen ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   for ( char const * table : { "IppbFlpLePd0", "IppbFlpLePd1", "IppbFlpLePd2" } ) {
      for ( U32 entry : { 45u, 12u, 10u } ) {
         sw.fieldIs( { table, 0, 0, entry }, "constStrengthVec", 0x123416789abcdef0 );
      }
   }
   lengthsAre( sw, { 32, 24, 21 } );
   EXPECT_EQ( sw.field( { "IppbFlpLePd0", 0, 0, 45 }, "constStrengthVec" ), 0x123456789abcdef0u );
   EXPECT_EQ( sw.field( { "IppbFlpLePd1", 0, 0, 12 }, "constStrengthVec" ), 0x123476789abcdef0u );
   EXPECT_EQ( sw.field( { "IppbFlpLePd2", 0, 0, 10 }, "constStrengthVec" ), 0x1234167893bcdef0u );
   EXPECT_EQ( sw.field( { "IppbFlpLePd0", 0, 0, 12 }, "constStrengthVec" ), 0x123416789abcdef0u );
}

TEST( ExactMatch, leavesTheForwardingUpdateOfTheUrpfContexts ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   for ( U64 const present : { 0, 1 } ) {
      sw.fieldIs( { "FlpaResContextEnablers", 0, 0, 12 }, "fwdUpdateEnable", present );
      sw.fieldIs( { "FlpaResContextEnablers", 0, 0, 16 }, "fwdUpdateEnable", present );
      lengthsAre( sw, { 24 } );
      lengthsAre( sw, {} );
      EXPECT_EQ( sw.field( { "FlpaResContextEnablers", 0, 0, 12 }, "fwdUpdateEnable" ), present );
      EXPECT_EQ( sw.field( { "FlpaResContextEnablers", 0, 0, 16 }, "fwdUpdateEnable" ), present );
   }
}

TEST( ExactMatch, goesFromLearningToStrengthContextByContext ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   sw.setEntry( routeStatus, "prefixLensInExactMatch", "0", 24 );
   std::vector< std::string > const expected{
      "read FlpaInitContextEnablers 0/0/12",
      "write FlpaInitContextEnablers 0/0/12",
      "read FlpaResContextEnablers 0/0/12",
      "write FlpaResContextEnablers 0/0/12",
      "read FlpaInitContextEnablers 0/0/16",
      "write FlpaInitContextEnablers 0/0/16",
      "read FlpaResContextEnablers 0/0/16",
      "write FlpaResContextEnablers 0/0/16",
      "read IppbFlpLePd1 0/0/12",
      "write IppbFlpLePd1 0/0/12",
      "read IppbFlpLePd1 0/0/16",
      "write IppbFlpLePd1 0/0/16",
      "read FlpaInitContextEnablers 0/0/45",
      "write FlpaInitContextEnablers 0/0/45",
      "read FlpaResContextEnablers 0/0/45",
      "write FlpaResContextEnablers 0/0/45",
      "read IppbFlpLePd0 0/0/45",
      "write IppbFlpLePd0 0/0/45",
      "read IppbFlpLePd2 0/0/10",
      "write IppbFlpLePd2 0/0/10",
   };
   EXPECT_EQ( sw.operations(), expected );
   for ( auto const & row : sw.rows() ) {
      EXPECT_EQ( row.cause, "routing/hardware/route/status prefixLensInExactMatch" );
      EXPECT_EQ( row.function, "L3Sm::handlePrefixLensInExactMatch" );
   }
}

TEST( ExactMatch, aContextThatTheChipLacksDoesNotLearnAndHasItsStrengthAtEntryZero ) {
   TestSwitch sw( { ChipType::BCM88480_A0 } ); // without ctx_fwd1 39
   sw.start();
   Rex::RingTrace::clear();
   lengthsAre( sw, { 24 } );
   EXPECT_EQ( sw.operations( "Pd1" ),
              ( std::vector< std::string >{ "read IppbFlpLePd1 0/0/4",
                                            "write IppbFlpLePd1 0/0/4",
                                            "read IppbFlpLePd1 0/0/0",
                                            "write IppbFlpLePd1 0/0/0" } ) );
   EXPECT_EQ( strength( sw, "IppbFlpLePd1", 0, 11 ), 7u );
   EXPECT_EQ( sw.operations( "FlpaInit" ),
              ( std::vector< std::string >{ "read FlpaInitContextEnablers 0/0/4",
                                            "write FlpaInitContextEnablers 0/0/4",
                                            "read FlpaInitContextEnablers 0/0/3",
                                            "write FlpaInitContextEnablers 0/0/3" } ) );
   auto const ring = Rex::RingTrace::records();
   EXPECT_EQ( std::ranges::count_if( ring,
                                     []( auto const & record ) {
                                        return record.level == 4 &&
                                               record.text == "setLearningForUrpfOrFlpa fwd1Context does not exist, "
                                                              "try changing the name: 0";
                                     } ),
              1 );
}

TEST( ExactMatch, withoutTheUnifiedContextThePortsChooseTheReducedKey ) {
   auto description =
      switchOf( { ChipType::BCM88690_B0 }, { { "DaceL3Unicast.json", { { "UnifiedIPv4Fwd2Ctx", false } } } } );
   description.faps[0].ports = { { 300, 7 }, { 2, 11 } };
   TestSwitch sw( std::move( description ) );
   for ( U32 const port : { 7, 11, 12 } ) {
      sw.fieldIs( { "IppbFlpPortProfileMap", 0, 0, port }, "portProfile", 1 );
   }
   sw.start();
   EXPECT_EQ( sw.field( { "IppbFlpPortProfileMap", 0, 0, 7 }, "portProfile" ), 0u );
   EXPECT_EQ( sw.field( { "IppbFlpPortProfileMap", 0, 0, 11 }, "portProfile" ), 0u );

   Traced const traced( "DaceFapNiL3Sm", 5 );
   lengthsAre( sw, { 21 } );
   EXPECT_EQ( sw.field( { "IppbFlpPortProfileMap", 0, 0, 7 }, "portProfile" ), 1u );
   EXPECT_EQ( sw.field( { "IppbFlpPortProfileMap", 0, 0, 11 }, "portProfile" ), 1u );
   EXPECT_EQ( sw.operations( "PortProfile" ),
              ( std::vector< std::string >{ "read IppbFlpPortProfileMap 0/0/11",
                                            "write IppbFlpPortProfileMap 0/0/11",
                                            "read IppbFlpPortProfileMap 0/0/7",
                                            "write IppbFlpPortProfileMap 0/0/7" } ) );
   EXPECT_EQ( traced.with( "fapPortId" ),
              ( std::vector< std::string >{ "5 handlePrefixLensInExactMatch:  fapId 0 fapPortId 11",
                                            "5 handlePrefixLensInExactMatch:  fapId 0 fapPortId 7" } ) );
   EXPECT_TRUE( sw.operations( "Pd2" ).empty() );

   lengthsAre( sw, { 24 } );
   EXPECT_EQ( sw.field( { "IppbFlpPortProfileMap", 0, 0, 11 }, "portProfile" ), 0u );
   EXPECT_EQ( sw.field( { "IppbFlpPortProfileMap", 0, 0, 12 }, "portProfile" ), 1u );
}

TEST( ExactMatch, waitsForInitialization ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.set( "shared/phySmStateData", "allEthPhyIntfConfigDir", nullptr );
   sw.start();
   lengthsAre( sw, { 24, 32 } );
   EXPECT_TRUE( sw.rows().empty() );
   sw.set( "shared/phySmStateData", "allEthPhyIntfConfigDir", Object{} );
   expectRow( sw, setRows[6], FapId( 0 ), 12, 16, 45, 10 );
}

TEST( ExactMatch, tellsItsBooleansAndStrengths ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   sw.fieldIs( { "IppbFlpLePd0", 0, 0, 45 }, "constStrengthVec", 0 );
   Traced const traced( "DaceFapNiL3Sm", 8 );
   lengthsAre( sw, { 32 } );
   EXPECT_EQ( traced.with( "flpaLookup" ),
              ( std::vector< std::string >{
                 "4 L3Sm::handlePrefixLensInExactMatch flpaLookupUsedForRouting false slash32RemEnabled true "
                 "pcremEnabled false urpfInternetProfileEnabled false" } ) );
   EXPECT_EQ( traced.with( "updateLemStrength" ).size(), 2u + 4 + 2 + 2 + 2 + 2 );
   auto const second = traced.with( "updateLemStrength" );
   EXPECT_EQ( ( std::vector( second.begin() + 6, second.begin() + 10 ) ),
              ( std::vector< std::string >{ "8 updateLemStrength chipType BCM88690_B0 fapId 0 lemStrength 0",
                                            "8 updateLemStrength LEM strength index 11",
                                            "8 updateLemStrength context 45",
                                            "8 updateLemStrength constStrengthVec 0" } ) );
   EXPECT_EQ(
      traced.with( "Setting the learning" ),
      ( std::vector< std::string >{ "4 setLearningForUrpfOrFlpa Setting the learning for fwdContext: 12 as: true",
                                    "4 setLearningForUrpfOrFlpa Setting the learning for fwdContext: 16 as: true",
                                    "4 setLearningForUrpfOrFlpa Setting the learning for fwdContext: 45 as: true" } ) );
}

} // namespace
