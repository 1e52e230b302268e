#include "ChipView.h"

#include <gtest/gtest.h>

using namespace Test;

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

} // namespace
