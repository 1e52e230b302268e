#include "ChipView.h"

#include <gtest/gtest.h>
#include <set>

using namespace Test;

namespace {

constexpr char const * evpn = "evpn/status";
constexpr char const * vxlan = "interface/status/eth/vxlan";

constexpr int vxlanProfiles[] = { 72, 73, 74, 75, 76, 77, 78, 79, 64, 68, 69, 70 };
constexpr int fixedProfiles[] = { 29, 35, 33 };
constexpr int decapProfiles[] = { 68, 66, 64, 65 };

std::string csProfile( int profile ) {
   return "csProfile" + std::to_string( profile );
}
U64 flags( TestSwitch const & sw, int profile, U32 element = 0, FapId fap = {} ) {
   return sw.field( { "InLifProfileCsFlagsLsb", 1, element }, csProfile( profile ).c_str(), fap );
}
void flagsAre( TestSwitch & sw, int profile, U64 value, U32 element = 0 ) {
   sw.fieldIs( { "InLifProfileCsFlagsLsb", 1, element }, csProfile( profile ).c_str(), value );
}
void allFlagsAre( TestSwitch & sw, U64 value, U32 element = 0 ) {
   for ( int profile = 0; profile < 128; ++profile ) {
      flagsAre( sw, profile, value, element );
   }
}

TEST( Evpn, vxlanIsAFlagOfTwelveProfilesAndThreeOthersAreFixed ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   for ( bool const enabled : { true, false } ) {
      for ( U64 const present : { 0x0, 0xf, 0xa, 0x5 } ) {
         allFlagsAre( sw, present );
         sw.set( evpn, "vxlanEnabled", !enabled );
         allFlagsAre( sw, present );
         sw.set( evpn, "vxlanEnabled", enabled );
         for ( int profile = 0; profile < 128; ++profile ) {
            U64 expected = present;
            if ( std::ranges::count( vxlanProfiles, profile ) ) {
               expected = ( present & 0xe ) | enabled;
            } else if ( std::ranges::count( fixedProfiles, profile ) ) {
               expected = ( present & 0x8 ) | 0x3;
            }
            EXPECT_EQ( flags( sw, profile ), expected ) << profile << " " << present;
         }
      }
   }
}

TEST( Evpn, decapRouteAllIsAFlagOfFourProfiles ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   for ( bool const all : { true, false } ) {
      for ( U64 const present : { 0x0, 0xf, 0xa, 0x5 } ) {
         sw.set( vxlan, "decapRouteAll", !all );
         allFlagsAre( sw, present );
         sw.set( vxlan, "decapRouteAll", all );
         for ( int profile = 0; profile < 128; ++profile ) {
            bool const isDecap = std::ranges::count( decapProfiles, profile ) > 0;
            EXPECT_EQ( flags( sw, profile ), isDecap ? ( present & 0xd ) | U64{ all } << 1 : present ) << profile;
         }
      }
   }
}

TEST( Evpn, theFlagsHaveTwoElementsOnTheLargeChips ) {
   for ( ChipType const chip : { ChipType::BCM88850_A0, ChipType::BCM88859_A2 } ) {
      TestSwitch sw( { chip } );
      sw.start();
      sw.set( evpn, "vxlanEnabled", true );
      sw.set( vxlan, "decapRouteAll", true );
      for ( U32 const event : { 1, 2 } ) {
         std::set< int > elements;
         for ( auto const & row : sw.rows( event ) ) {
            EXPECT_EQ( row.table, "InLifProfileCsFlagsLsb" );
            EXPECT_EQ( row.variant, 1 );
            elements.insert( row.array );
         }
         EXPECT_EQ( elements, ( std::set{ 3, 4 } ) );
      }
      for ( U32 const element : { 3, 4 } ) {
         EXPECT_EQ( flags( sw, 72, element ) & 1, 1u );
         EXPECT_EQ( flags( sw, 66, element ) & 2, 2u );
      }
      // One element is finished before the next begins.
      auto const rows = sw.rows( 1 );
      EXPECT_TRUE( std::ranges::is_sorted( rows, {}, &Simulator::Row::array ) );
   }
}

TEST( Evpn, theFlagsHaveOneElementOnTheOthers ) {
   for ( ChipType const chip :
         { ChipType::BCM88690_B0, ChipType::BCM88800_A0, ChipType::BCM88480_A0, ChipType::BCM88480_B0 } ) {
      TestSwitch sw( { chip } );
      sw.start();
      sw.set( evpn, "vxlanEnabled", true );
      auto const all = sw.operations();
      // Fifteen profiles, each a read, a change and a write of the whole register.
      ASSERT_EQ( all.size(), 30u );
      for ( std::size_t at = 0; at < all.size(); at += 2 ) {
         EXPECT_EQ( all[at], "read InLifProfileCsFlagsLsb 1/0/-" );
         EXPECT_EQ( all[at + 1], "write InLifProfileCsFlagsLsb 1/0/-" );
      }
   }
}

// Which profile a write changed, by the nibbles that became different.
std::vector< int > changedProfiles( TestSwitch const & sw, U32 event ) {
   std::vector< int > profiles;
   std::vector< U32 > before;
   for ( auto const & row : sw.rows( event ) ) {
      std::vector< U32 > const words( row.words.begin(), row.words.end() );
      if ( row.kind == Simulator::Row::Kind::read ) {
         before = words;
         continue;
      }
      for ( int profile = 0; profile < 128; ++profile ) {
         if ( ( before[static_cast< std::size_t >( profile / 8 )] ^
                words[static_cast< std::size_t >( profile / 8 )] ) >>
                 4 * ( profile % 8 ) &
              0xf ) {
            profiles.push_back( profile );
         }
      }
   }
   return profiles;
}

TEST( Evpn, theProfilesAreChangedOneByOneInTheirOrder ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   allFlagsAre( sw, 0 );
   sw.set( evpn, "vxlanEnabled", true );
   EXPECT_EQ( changedProfiles( sw, 1 ), ( std::vector{ 72, 73, 74, 75, 76, 77, 78, 79, 64, 68, 69, 70, 29, 35, 33 } ) );
   sw.set( vxlan, "decapRouteAll", true );
   EXPECT_EQ( changedProfiles( sw, 2 ), ( std::vector{ 68, 66, 64, 65 } ) );
}

TEST( Evpn, mplsDecidesNothing ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   sw.set( evpn, "mplsEnabled", true );
   EXPECT_TRUE( sw.rows().empty() );
}

void expectOrientation( TestSwitch const & sw, U32 profile, U64 orientation, FapId fap = {} ) {
   EXPECT_EQ( sw.field( { "ErppInlifOrientationMap", 0, 0, profile }, "inlifOrientation", fap ), orientation );
   EXPECT_EQ( sw.field( { "EtppInlifOrientationMap", 0, 0, profile }, "inlifOrientationMapping", fap ), orientation );
}

TEST( Evpn, aDciGatewayTurnsItsProfilesAround ) {
   TestSwitch sw( { ChipType::BCM88690_B0, ChipType::BCM88480_A0 } );
   for ( U32 profile = 0; profile < 128; ++profile ) {
      sw.fieldIs( { "ErppInlifOrientationMap", 0, 0, profile }, "inlifOrientation", 3 );
      sw.fieldIs( { "EtppInlifOrientationMap", 0, 0, profile }, "inlifOrientationMapping", 3 );
      sw.fieldIs( { "ErppInlifOrientationMap", 0, 0, profile }, "inlifSameIfFilter", profile % 2 );
   }
   sw.start();
   for ( bool const isGateway : { false, true, false } ) {
      if ( isGateway || sw.event() ) {
         sw.set( evpn, "evpnDciEnabled", isGateway );
      }
      for ( FapId const fap : { FapId( 0 ), FapId( 1 ) } ) {
         for ( U32 profile = 72; profile <= 79; ++profile ) {
            expectOrientation( sw, profile, isGateway ? 4 : 6, fap );
         }
         expectOrientation( sw, 31, isGateway ? 7 : 1, fap );
      }
      for ( U32 const profile : { 30, 32, 71, 80 } ) {
         expectOrientation( sw, profile, 3 );
      }
      for ( U32 profile = 0; profile < 128; ++profile ) {
         EXPECT_EQ( sw.field( { "ErppInlifOrientationMap", 0, 0, profile }, "inlifSameIfFilter" ), profile % 2 );
      }
   }
}

TEST( Evpn, bothMapsAreReadBeforeEitherIsWrittenAndTheGatewayComesLast ) {
   TestSwitch sw( { ChipType::BCM88690_B0, ChipType::BCM88800_A0 } );
   sw.start();
   sw.set( evpn, "evpnDciEnabled", true );
   std::vector< std::string > texts;
   for ( auto const & row : sw.rows() ) {
      if ( row.function == "L3Sm::handleEvpnDciGateway" ) {
         texts.push_back( std::to_string( row.fap ) + " " + TestSwitch::text( row ) );
      }
   }
   std::vector< std::string > expected;
   auto const profile = [&]( char const * fap, int number ) {
      std::string const at = "/0/" + std::to_string( number );
      expected.push_back( std::string( fap ) + " read ErppInlifOrientationMap 0" + at );
      expected.push_back( std::string( fap ) + " read EtppInlifOrientationMap 0" + at );
      expected.push_back( std::string( fap ) + " write ErppInlifOrientationMap 0" + at );
      expected.push_back( std::string( fap ) + " write EtppInlifOrientationMap 0" + at );
   };
   for ( char const * fap : { "0", "1" } ) {
      for ( int number = 72; number <= 79; ++number ) {
         profile( fap, number );
      }
   }
   profile( "0", 31 );
   profile( "1", 31 );
   EXPECT_EQ( texts, expected );
}

TEST( Evpn, changesBeforeInitializationAreTracedAndAppliedLater ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.set( "shared/phySmStateData", "allEthPhyIntfConfigDir", nullptr );
   sw.start();
   {
      Traced const traced( "DaceFapNiL3Sm", 8 );
      sw.set( evpn, "vxlanEnabled", true );
      sw.set( evpn, "evpnDciEnabled", true );
      sw.set( vxlan, "decapRouteAll", true );
      EXPECT_EQ(
         traced.texts,
         ( std::vector< std::string >{ "8 L3Sm::handleEvpnDciGateway initialized: false evpnDciEnabled: true",
                                       "8 L3Sm::handleDecapRouteAll initialized: false decapRouteAll: true" } ) );
      EXPECT_EQ( sw.operations( "", {}, 1 ).size() + sw.operations( "", {}, 2 ).size() +
                    sw.operations( "", {}, 3 ).size(),
                 0u );
   }
   Traced const traced( "DaceFapNiL3Sm", 8 );
   sw.set( "shared/phySmStateData", "allEthPhyIntfConfigDir", Object{} );
   EXPECT_EQ( flags( sw, 72 ) & 1, 1u );
   EXPECT_EQ( flags( sw, 66 ) & 2, 2u );
   expectOrientation( sw, 72, 4 );
   EXPECT_EQ( traced.with( "L3Sm::handleE" ),
              ( std::vector< std::string >{ "8 L3Sm::handleEvpnEncapType vxlanEnabled true mplsEnabled false",
                                            "8 L3Sm::handleEvpnDciGateway initialized: true evpnDciEnabled: true" } ) );
   EXPECT_EQ( traced.with( "L3Sm::handleD" ),
              ( std::vector< std::string >{ "8 L3Sm::handleDecapRouteAll initialized: true decapRouteAll: true" } ) );
}

} // namespace
