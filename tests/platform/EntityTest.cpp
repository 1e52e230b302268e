#include "platform/Listener.h"
#include "state/CellStatus.h"
#include "state/Interfaces.h"
#include "state/Overlays.h"
#include "state/Routing.h"

#include <gtest/gtest.h>

namespace {

TEST( Entity, SettingAnAttributeAnnouncesItOnce ) {
   auto const status = Corvo::makePtr< Evpn::EvpnStatus >();
   Listener listener( *status );
   status->evpnDciEnabledIs( true );
   status->evpnDciEnabledIs( true );
   EXPECT_TRUE( status->evpnDciEnabled() );
   EXPECT_EQ( listener.heard, Heard{ "evpnDciEnabled" } );
}

TEST( Entity, AttributesAreKnownByNameAndNumberInDeclarationOrder ) {
   auto const & type = Evpn::EvpnStatus::rexType();
   EXPECT_EQ( type.name(), "Evpn::EvpnStatus" );
   ASSERT_EQ( type.attributes().size(), 3U );
   EXPECT_STREQ( type.attributes()[0]->name, "vxlanEnabled" );
   EXPECT_EQ( type.attribute( "evpnDciEnabled" )->id, 0x106 );
   EXPECT_STREQ( type.attribute( short{ 0x103 } )->name, "mplsEnabled" );
   EXPECT_EQ( type.attribute( "nothing" ), nullptr );
}

TEST( Entity, AttributesOfTheBaseComeFirst ) {
   auto const attributes = Interface::EthPhyIntfConfig::rexType().attributes();
   ASSERT_EQ( attributes.size(), 3U );
   EXPECT_STREQ( attributes[0]->name, "enabled" );
   EXPECT_STREQ( attributes[2]->name, "addr" );
}

TEST( Entity, AttributesTellWhatTheyTake ) {
   using Kind = Rex::ValueType::Kind;
   auto const & vti = Vxlan::VtiStatus::rexType();
   EXPECT_EQ( vti.attribute( "udpPort" )->valueType()->kind, Kind::number );
   EXPECT_EQ( vti.attribute( "udpPort" )->valueType()->highest, 65535U );
   EXPECT_EQ( vti.attribute( "remoteVxlanDomain" )->valueType()->kind, Kind::boolean );
   EXPECT_FALSE( vti.attribute( "udpPort" )->keyType() );

   auto const * const vtis = Vxlan::VtiStatusDir::rexType().attribute( "vtiStatus" );
   EXPECT_FALSE( vtis->valueType() );
   EXPECT_STREQ( vtis->keyType()->name, "interface" );
   auto const * const ports = L3::Tunnel::UdpDestinationPortConfig::rexType().attribute( "udpDestPort" );
   EXPECT_EQ( ports->keyType()->highest, 255U );
   EXPECT_EQ( ports->valueType()->highest, 65535U );

   auto const revision = *Hardware::Dace::Cell::FapStatus::rexType().attribute( "revision" )->valueType();
   ASSERT_EQ( revision.members.size(), 3U );
   EXPECT_EQ( revision.members[0].type.choices.size(), Hardware::allChipTypes.size() );
}

TEST( Entity, TypesMakeAnEntityWithEveryAttributeAtItsDefault ) {
   auto const config = Interface::EthPhyIntfConfig::rexType().fresh();
   ASSERT_TRUE( config );
   EXPECT_EQ( config->value(), Corvo::makePtr< Interface::EthPhyIntfConfig >( Netka::IntfId() )->value() );
   EXPECT_EQ( config->value().object()->at( "enabled" ), Rex::Value( true ) );
   EXPECT_FALSE( Rex::Entity::rexType().fresh() );
}

TEST( Entity, CollectionAnnouncesTheKeyOfWhatComesAndGoes ) {
   auto const dir = Corvo::makePtr< Vxlan::VtiStatusDir >();
   Listener listener( *dir );
   auto const vti = Corvo::makePtr< Vxlan::VtiStatus >( Netka::IntfId( "Vxlan1" ) );
   dir->vtiStatusIs( vti );
   EXPECT_EQ( vti->parent(), dir.get() );
   EXPECT_EQ( dir->vtiStatus( Netka::IntfId( "Vxlan1" ) ), vti );
   EXPECT_EQ( dir->vtiStatusDel( Netka::IntfId( "Vxlan1" ) ), vti );
   EXPECT_EQ( vti->parent(), nullptr );
   EXPECT_EQ( listener.heard, ( Heard{ "vtiStatus Vxlan1", "vtiStatus Vxlan1" } ) );
}

TEST( Entity, ValueRoundTrip ) {
   auto const from = Corvo::makePtr< Interface::AllEthPhyIntfConfigDir >();
   Rex::Value const value = Rex::Value::Object{
      { "intfConfig",
        Rex::Value::Object{
           { "Ethernet1",
             Rex::Value::Object{ { "addr", "02:00:00:00:00:01" }, { "enabled", false }, { "mtu", 9000 } } } } } };
   from->attributesIs( value );
   auto const config = from->intfConfig( Netka::IntfId( "Ethernet1" ) );
   ASSERT_TRUE( config );
   EXPECT_EQ( config->mtu(), 9000U );
   EXPECT_FALSE( config->enabled() );
   EXPECT_EQ( from->value(), value );
}

TEST( Entity, WhatIsWrongIsToldTogetherWithItsPlaces ) {
   auto const dir = Corvo::makePtr< Interface::AllEthPhyIntfConfigDir >();
   Rex::Value const value = Rex::Value::Object{
      { "intfConfig",
        Rex::Value::Object{ { "Ethernet1", Rex::Value::Object{ { "enabld", true }, { "mtu", "big" }, { "speed", 1 } } },
                            { "Ethernet2", true } } },
      { "more", 1 } };
   try {
      dir->attributesIs( value );
      FAIL();
   } catch ( Rex::ValueError const & error ) {
      std::string all;
      for ( auto const & fault : error.faults() ) {
         all += fault.place + ( fault.isKey ? " (the key): " : ": " ) + fault.text + "\n";
      }
      std::string const has = "t has enabled, mtu, addr\n";
      EXPECT_EQ(
         all,
         "/intfConfig/Ethernet1/enabld (the key): Interface::EthPhyIntfConfig has no attribute \"enabld\"; did "
         "you mean \"enabled\"? I" +
            has +
            "/intfConfig/Ethernet1/mtu: expected a number from 0 to 4294967295, got \"big\"\n"
            "/intfConfig/Ethernet1/speed (the key): Interface::EthPhyIntfConfig has no attribute \"speed\"; i" +
            has +
            "/intfConfig/Ethernet2: expected an object, got true\n"
            "/more (the key): Interface::AllEthPhyIntfConfigDir has no attribute \"more\"; it has intfConfig\n" );
      EXPECT_STREQ( error.what(), error.faults().front().text.c_str() );
   }
   EXPECT_TRUE( dir->intfConfig().empty() );
}

TEST( Entity, NullEntityThrowsTheNullArgumentException ) {
   auto const dir = Corvo::makePtr< Vxlan::VtiStatusDir >();
   EXPECT_THROW( dir->vtiStatusIs( nullptr ), Rex::MutatorArgNullPointerException );
}

TEST( EntityDeath, WriteProtectedEntityRefusesOurOwnWritesOnly ) {
   auto const status = Corvo::makePtr< Evpn::EvpnStatus >();
   status->writeProtectedIs( true );
   EXPECT_DEATH( status->vxlanEnabledIs( true ), "Evpn::EvpnStatus  is mounted for reading" );
   Corvo::Publisher::ForeignWrite const foreign;
   status->vxlanEnabledIs( true );
   EXPECT_TRUE( status->vxlanEnabled() );
}

} // namespace
