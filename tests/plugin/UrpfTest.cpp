#include "ChipView.h"
#include "DaceL3Unicast/DaceFapNiPlugin/Learning.h"

#include <gtest/gtest.h>

using namespace Test;
using DacePPExport::ctx_fwd1;

namespace {

constexpr char const * routing = "routing/hardware/config";

U64 snoop( TestSwitch const & sw, U32 trap, FapId fap = {} ) {
   return sw.field( { "IppdFerTrapCfg", 0, trap }, "snoopStrengthN", fap );
}
U64 cpu( TestSwitch const & sw, U32 trap, FapId fap = {} ) {
   return sw.field( { "IppdFerTrapCfg", 0, trap }, "cpuStrengthN", fap );
}

TEST( Urpf, eachModeHasItsTrapOnEveryFap ) {
   TestSwitch sw( { ChipType::BCM88690_B0, ChipType::BCM88859_A2 } );
   sw.set( routing, "urpfLooseFailForward", true );
   sw.start();
   for ( FapId const fap : { FapId( 0 ), FapId( 1 ) } ) {
      EXPECT_EQ( snoop( sw, 3, fap ), 5u );
      EXPECT_EQ( cpu( sw, 3, fap ), 0u );
      EXPECT_EQ( snoop( sw, 4, fap ), 0u );
      EXPECT_EQ( cpu( sw, 4, fap ), 5u );
   }
   sw.set( routing, "urpfStrictFailForward", true );
   sw.set( routing, "urpfLooseFailForward", false );
   for ( FapId const fap : { FapId( 0 ), FapId( 1 ) } ) {
      EXPECT_EQ( snoop( sw, 3, fap ), 0u );
      EXPECT_EQ( cpu( sw, 3, fap ), 5u );
      EXPECT_EQ( snoop( sw, 4, fap ), 5u );
      EXPECT_EQ( cpu( sw, 4, fap ), 0u );
   }
}

TEST( Urpf, aChangeRewritesTheOneRegisterAndKeepsItsCode ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   for ( U32 const trap : { 3, 4 } ) {
      sw.fieldIs( { "IppdFerTrapCfg", 0, trap }, "cpuSnoopCodeN", 0x1a5 );
   }
   sw.set( routing, "urpfStrictFailForward", true );
   EXPECT_EQ( sw.operations(),
              ( std::vector< std::string >{ "read IppdFerTrapCfg 0/4/-", "write IppdFerTrapCfg 0/4/-" } ) );
   EXPECT_EQ( sw.rows()[1].cause, "routing/hardware/config urpfStrictFailForward" );
   EXPECT_EQ( sw.field( { "IppdFerTrapCfg", 0, 4 }, "cpuSnoopCodeN" ), 0x1a5u );
   sw.set( routing, "urpfLooseFailForward", true );
   EXPECT_EQ( sw.operations(),
              ( std::vector< std::string >{ "read IppdFerTrapCfg 0/3/-", "write IppdFerTrapCfg 0/3/-" } ) );
   EXPECT_EQ( sw.field( { "IppdFerTrapCfg", 0, 3 }, "cpuSnoopCodeN" ), 0x1a5u );
}

TEST( Urpf, ofTwoChangesBeforeInitializationTheLastReachesTheChip ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.set( "shared/phySmStateSharedStatus", "allEthPhyIntfStatusDir", nullptr );
   sw.start();
   sw.set( routing, "urpfLooseFailForward", true );
   sw.set( routing, "urpfStrictFailForward", true );
   sw.set( routing, "urpfLooseFailForward", false );
   EXPECT_TRUE( sw.operations( "", {}, 1 ).empty() );
   EXPECT_TRUE( sw.operations( "", {}, 2 ).empty() );
   EXPECT_TRUE( sw.operations( "", {}, 3 ).empty() );
   sw.set( "shared/phySmStateSharedStatus", "allEthPhyIntfStatusDir", Object{} );
   EXPECT_EQ( snoop( sw, 3 ), 0u );
   EXPECT_EQ( snoop( sw, 4 ), 5u );
   // The last two steps of the initialization.
   auto const all = sw.operations();
   ASSERT_GE( all.size(), 4u );
   EXPECT_EQ( ( std::vector( all.end() - 4, all.end() ) ),
              ( std::vector< std::string >{ "read IppdFerTrapCfg 0/3/-",
                                            "write IppdFerTrapCfg 0/3/-",
                                            "read IppdFerTrapCfg 0/4/-",
                                            "write IppdFerTrapCfg 0/4/-" } ) );
}

TEST( Urpf, tellsTheModeAndTheTrap ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   Traced const traced( "DaceFapNiL3Sm", 5 );
   sw.set( routing, "urpfLooseFailForward", true );
   sw.set( routing, "urpfStrictFailForward", true );
   sw.set( routing, "urpfStrictFailForward", false );
   EXPECT_EQ( traced.texts,
              ( std::vector< std::string >{
                 "5 handleLooseUrpfFailFwdConfig:  Setting Loose mode uRPF fail fwd : true",
                 "5 handleUrpfFailFwdConfig:  Enabling uRPF fail fwd for fap 0 chipType BCM88690_B0 trapIndex 3",
                 "5 handleStrictUrpfFailFwdConfig:  Setting Strict mode uRPF fail fwd : true",
                 "5 handleUrpfFailFwdConfig:  Enabling uRPF fail fwd for fap 0 chipType BCM88690_B0 trapIndex 4",
                 "5 handleStrictUrpfFailFwdConfig:  Setting Strict mode uRPF fail fwd : false",
                 "5 handleUrpfFailFwdConfig:  Disabling uRPF fail fwd for fap 0 chipType BCM88690_B0 trapIndex 4" } ) );
}

// Learning, on a switch that nothing else programs.

TEST( Learning, switchesThreeEnablersOfAContext ) {
   TestSwitch sw( { ChipType::BCM88800_A0 } );
   for ( bool const enable : { true, false } ) {
      DaceFapNi::setLearningForUrpfOrFlpa( { ctx_fwd1{ 38 } }, ChipType::BCM88800_A0, FapId( 0 ), enable, false );
      EXPECT_EQ( sw.field( { "FlpaInitContextEnablers", 0, 0, 51 }, "contextLearnAllowedEnable" ), enable );
      EXPECT_EQ( sw.field( { "FlpaInitContextEnablers", 0, 0, 51 }, "learningFixedKeyEnable" ), enable );
      EXPECT_EQ( sw.field( { "FlpaResContextEnablers", 0, 0, 51 }, "learnInfoResolutionEnable" ), enable );
   }
}

TEST( Learning, theForwardingUpdateGoesTheOppositeWayOnlyForFlpa ) {
   TestSwitch sw( { ChipType::BCM88800_A0 } );
   At const res{ "FlpaResContextEnablers", 0, 0, 44 };
   for ( bool const enable : { true, false } ) {
      DaceFapNi::setLearningForUrpfOrFlpa( { ctx_fwd1{ 36 } }, ChipType::BCM88800_A0, FapId( 0 ), enable, true );
      EXPECT_EQ( sw.field( res, "fwdUpdateEnable" ), !enable );
   }
   for ( U64 const present : { 0, 1 } ) {
      sw.fieldIs( res, "fwdUpdateEnable", present );
      DaceFapNi::setLearningForUrpfOrFlpa( { ctx_fwd1{ 36 } }, ChipType::BCM88800_A0, FapId( 0 ), true, false );
      EXPECT_EQ( sw.field( res, "fwdUpdateEnable" ), present );
   }
}

TEST( Learning, writesNothingWhereNoContextExists ) {
   TestSwitch sw( { ChipType::BCM88480_A0 } );
   Traced const traced( "DaceFapNiL3Sm", 4 );
   DaceFapNi::setLearningForUrpfOrFlpa(
      { ctx_fwd1{ 37 }, ctx_fwd1{ 51 }, ctx_fwd1{ 39 } }, ChipType::BCM88480_A0, FapId( 0 ), true, true );
   EXPECT_EQ( sw.journal().size(), 0u );
   EXPECT_EQ( traced.with( "4 setLearningForUrpfOrFlpa fwd1Context does not exist, try changing the name: 0" ).size(),
              3u );
}

TEST( Learning, resolvesEveryContextBeforeItWritesTheFirst ) {
   TestSwitch sw( { ChipType::BCM88480_A0 } );
   Traced const traced( "DaceFapNiL3Sm", 4 );
   DaceFapNi::setLearningForUrpfOrFlpa(
      { ctx_fwd1{ 36 }, ctx_fwd1{ 39 } }, ChipType::BCM88480_A0, FapId( 0 ), false, false );
   EXPECT_EQ(
      traced.texts,
      ( std::vector< std::string >{ "4 setLearningForUrpfOrFlpa fwd1Context does not exist, try changing the name: 0",
                                    "4 setLearningForUrpfOrFlpa Setting the learning for fwdContext: 3 as: false" } ) );
   EXPECT_EQ( sw.operations(),
              ( std::vector< std::string >{ "read FlpaInitContextEnablers 0/0/3",
                                            "write FlpaInitContextEnablers 0/0/3",
                                            "read FlpaResContextEnablers 0/0/3",
                                            "write FlpaResContextEnablers 0/0/3" } ) );
}

} // namespace
