#include "ChipView.h"
#include "DaceL3Unicast/DaceFapNiPlugin/MplsParserSm.h"
#include "assert/Assert.h"

#include <gtest/gtest.h>

using namespace Test;

namespace {

constexpr char const * config = "routing/mpls/config";
constexpr char const * capability = "routing/hardware/mpls/capability";

Object settings( int s0, int s1, int s2, int s3 ) {
   return { { "parserSetting0", s0 }, { "parserSetting1", s1 }, { "parserSetting2", s2 }, { "parserSetting3", s3 } };
}
Object defaults( int d0, int d1, int d2, int d3 ) {
   return { { "parserDefault0", d0 }, { "parserDefault1", d1 }, { "parserDefault2", d2 }, { "parserDefault3", d3 } };
}

// The controls of the parser, among all that an event made.
std::vector< std::string > controls( TestSwitch const & sw, FapId fap = {} ) {
   std::vector< std::string > found;
   for ( auto const & text : sw.operations( "", fap ) ) {
      if ( text.starts_with( "control 69 " ) || text.starts_with( "control 7" ) ) {
         found.push_back( text );
      }
   }
   return found;
}
std::vector< std::string > controlsOf( int s0, int s1, int s2, int s3 ) {
   return { "control 70 = " + std::to_string( s0 ),
            "control 71 = " + std::to_string( s1 ),
            "control 69 = " + std::to_string( s2 ),
            "control 72 = " + std::to_string( s3 ),
            "control 73 = " + std::to_string( s3 ) };
}

TEST( MplsParser, startsWithTheDefaultsOnEveryFap ) {
   TestSwitch sw( { ChipType::BCM88690_B0, ChipType::BCM88480_A0 } );
   sw.start();
   EXPECT_EQ( controls( sw ), controlsOf( 4, 3, 2, 1 ) );
   EXPECT_EQ( controls( sw, FapId( 1 ) ), controlsOf( 4, 3, 2, 1 ) );
}

TEST( MplsParser, aConfiguredSettingOverridesItsDefaultUntilTheConfigurationGoes ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.start();
   sw.setAttributes( config, settings( 11, 12, 255, 14 ) );
   EXPECT_TRUE( sw.rows().empty() ); // a setting alone is not in force
   sw.set( config, "parserSettingsConfigured", true );
   EXPECT_EQ( sw.operations(), controlsOf( 11, 12, 2, 14 ) );
   EXPECT_EQ( sw.rows()[0].cause, "routing/mpls/config parserSettingsConfigured" );
   EXPECT_EQ( sw.rows()[0].function, "MplsParserCfgSm::handleParserConfig" );
   sw.set( config, "parserSetting2", 13 );
   EXPECT_TRUE( sw.rows().empty() );
   sw.set( config, "parserSettingsConfigured", false );
   EXPECT_EQ( sw.operations(), controlsOf( 4, 3, 2, 1 ) );
   sw.set( config, "parserSettingsConfigured", true );
   EXPECT_EQ( sw.operations(), controlsOf( 11, 12, 13, 14 ) );
}

TEST( MplsParser, withAllSettingsGivenTheDefaultsAreNotConsulted ) {
   TestSwitch sw( { ChipType::BCM88690_B0 } );
   sw.setAttributes( capability, defaults( 255, 255, 255, 255 ) );
   sw.setAttributes( config, settings( 0, 1, 2, 254 ) );
   sw.set( config, "parserSettingsConfigured", true );
   sw.start();
   EXPECT_EQ( controls( sw ), controlsOf( 0, 1, 2, 254 ) );
}

// The machine by itself, on the chips of a switch that no plug-in programs.
struct Machine {
   TestSwitch sw;
   Corvo::Ptr< Mpls::Config > config = Corvo::makePtr< Mpls::Config >();
   Corvo::Ptr< Mpls::Hardware::Capability > capability = Corvo::makePtr< Mpls::Hardware::Capability >();

   explicit Machine( std::vector< ChipType > const & chips = { ChipType::BCM88690_B0, ChipType::BCM88690_B0 } )
      : sw( chips ) {}
   Corvo::Ptr< DaceFapNi::MplsParserCfgSm > build() const {
      return DaceFapNi::mplsParserCfgSmFactory(
         config, capability, DaceSal::switchControlSalFactory( DaceSal::schanDriver(), nullptr ), sw.cellStatus() );
   }
};

TEST( MplsParser, configuredWithNeitherSettingNorDefaultFailsBeforeAnyWrite ) {
   for ( int const missing : { 0, 1, 2, 3 } ) {
      Machine machine;
      machine.capability->attributesIs(
         defaults( missing == 0 ? 255 : 4, missing == 1 ? 255 : 3, missing == 2 ? 255 : 2, missing == 3 ? 255 : 1 ) );
      machine.config->parserSettingsConfiguredIs( true );
      EXPECT_THROW( machine.build(), Rex::BadOptionalAccess );
      EXPECT_EQ( machine.sw.journal().operationCount(), 0u ) << missing;
      // Nothing was left behind.
      EXPECT_FALSE( machine.config->publisher()->hasSubscribers() );
   }
}

TEST( MplsParser, withoutTheLastDefaultFailsBeforeAnyWriteEvenWithoutAFap ) {
   for ( auto const & chips : { std::vector< ChipType >{ ChipType::BCM88690_B0 }, std::vector< ChipType >{} } ) {
      Machine machine( chips );
      machine.capability->parserDefault3Is( 255 );
      EXPECT_THROW( machine.build(), Rex::BadOptionalAccess );
      EXPECT_EQ( machine.sw.journal().operationCount(), 0u );
   }
}

TEST( MplsParser, withoutAnEarlierDefaultStopsWhereItIsUsed ) {
   struct {
      Object defaults;
      std::vector< std::string > written;
   } const rows[] = {
      { defaults( 255, 3, 2, 1 ), {} },
      { defaults( 4, 255, 2, 1 ), { "control 70 = 4" } },
      { defaults( 4, 3, 255, 1 ), { "control 70 = 4", "control 71 = 3" } },
   };
   for ( auto const & row : rows ) {
      Machine machine;
      machine.capability->attributesIs( row.defaults );
      EXPECT_THROW( machine.build(), Rex::BadOptionalAccess );
      EXPECT_EQ( machine.sw.operations( "", FapId( 0 ) ), row.written );
      EXPECT_TRUE( machine.sw.operations( "", FapId( 1 ) ).empty() );
   }
}

TEST( MplsParser, withoutAFapAnEarlierDefaultIsNotMissed ) {
   Machine machine( std::vector< ChipType >{} );
   machine.capability->attributesIs( defaults( 255, 255, 255, 1 ) );
   auto const sm = machine.build();
   EXPECT_TRUE( sm );
   EXPECT_EQ( machine.sw.journal().operationCount(), 0u );
}

TEST( MplsParser, hearsTheConfigurationWhileItsNotificationsAreOn ) {
   Machine machine( { ChipType::BCM88690_B0 } );
   auto const sm = machine.build();
   EXPECT_EQ( machine.sw.journal().operationCount(), 5u );
   sm->hasNotificationActiveIs( false );
   machine.config->parserSettingsConfiguredIs( true );
   EXPECT_EQ( machine.sw.journal().operationCount(), 5u );
   sm->hasNotificationActiveIs( true );
   EXPECT_EQ( machine.sw.journal().operationCount(), 5u );
   machine.config->parserSettingsConfiguredIs( false );
   EXPECT_EQ( machine.sw.journal().operationCount(), 10u );
   sm->markAndSweepFlagSet( true );
   machine.config->parserSettingsConfiguredIs( true );
   EXPECT_EQ( machine.sw.journal().operationCount(), 10u );
}

TEST( MplsParser, tellsEachRun ) {
   Machine machine( { ChipType::BCM88690_B0 } );
   Traced const traced( "DaceFapNiMplsParser", 9 );
   auto const sm = machine.build();
   EXPECT_EQ( traced.texts, std::vector< std::string >{ "0 DaceL3UnicastMplsParserCfgSm::handleParserConfig" } );
}

} // namespace
