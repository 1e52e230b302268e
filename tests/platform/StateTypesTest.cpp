// Every declared type: what it has, and that its value form takes it there and back.
#include "agent/SharedObjects.h"
#include "rex/Dir.h"
#include "state/Routing.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using Rex::Attribute;
using Rex::Entity;
using Rex::TypeData;
using Rex::Value;

template< class T >
Corvo::Ptr< Entity > make() {
   if constexpr ( requires { typename T::RexKey; } ) {
      return Corvo::makePtr< T >( typename T::RexKey{} );
   } else {
      return Corvo::makePtr< T >();
   }
}

// An entity of every type that is declared and can be made from outside.
std::vector< Corvo::Ptr< Entity > > everyType() {
   std::vector< Corvo::Ptr< Entity > > all;
   auto const add = [&]< class... T >() { ( all.push_back( make< T >() ), ... ); };
   add.template operator()< Hardware::Dace::Cell::FapStatus,
                            Hardware::Dace::Cell::CellStatus,
                            Interface::IntfConfig,
                            Interface::EthPhyIntfConfig,
                            Interface::AllEthPhyIntfConfigDir,
                            Interface::IntfStatus,
                            Interface::EthIntfStatus,
                            Interface::EthPhyIntfStatus,
                            Interface::AllEthPhyIntfStatusDir,
                            Interface::IntfStatusLocal,
                            Interface::EthIntfStatusLocal,
                            Interface::EthPhyIntfStatusLocal,
                            Interface::EthPhyIntfStatusLocalDir,
                            Interface::SubIntfStatus,
                            Interface::SubIntfStatusDir,
                            Interface::SubIntfStatusLocal,
                            Interface::SubIntfStatusLocalDir,
                            Interface::GlobalIntfConfig,
                            Interface::EffectiveL3Mtu,
                            Interface::Hardware::Capability,
                            Bridging::Config,
                            Bridging::HwCapabilities,
                            RouterMac::HwCapability,
                            Routing::Hardware::Config,
                            Routing::Hardware::RouteStatusGen,
                            Routing::Hardware::RouteStatus,
                            Routing::Hardware::PrefixLensInExactMatch,
                            Mpls::RoutingInfo,
                            Mpls::Config,
                            Mpls::Hardware::Capability,
                            Vxlan::VtiStatus,
                            Vxlan::VtiStatusDir,
                            Vxlan::EcnConfig,
                            Evpn::EvpnStatus,
                            L3::Tunnel::UdpDestinationPortConfig,
                            Tunnel::Decap::DecapGroup,
                            Tunnel::Decap::ConfigInput,
                            Tunnel::Decap::Config,
                            Hardware::Dace::LoadBalanceHwConfig,
                            Hardware::DaceLag::Status,
                            DaceFapNi::AgentGlobalState,
                            DaceFapNi::SliceSmStateInfo,
                            DaceFapNi::PhySmStateInfo,
                            DaceFapNi::PhySmStateSharedStatus,
                            DaceFapNi::DriverSetupSmStateInfo,
                            DaceFapNi::PortState,
                            DaceFapNi::PortStateInfo,
                            DaceFapNi::ChipInitConfig,
                            DaceFapNi::ChipInitConfigDir >();
   return all;
}

// Another value of the same kind as `value`; a name or address where a text has such a form.
Value otherThan( Value const & value ) {
   if ( auto const * boolean = value.boolean() ) {
      return !*boolean;
   }
   if ( auto const * integer = value.integer() ) {
      return *integer == 77 ? 78 : 77;
   }
   if ( auto const * text = value.text() ) {
      return text->size() == 17 ? "02:1c:73:00:00:99" : *text + "x";
   }
   return Value::Object{ { "chipType", "BCM88480_B0" }, { "major", 9 }, { "sdkVersion", 3 } };
}

// Values that are all different from those of a fresh entity; what it holds below has entries.
Value::Object changedValueOf( Entity & entity ) {
   Value::Object changed;
   for ( auto const * attribute : entity.typeData().attributes() ) {
      switch ( attribute->kind ) {
      case Attribute::Kind::scalar:
         changed[attribute->name] = otherThan( attribute->value( entity ) );
         break;
      case Attribute::Kind::map:
         // What a map holds is a number, or a name; its keys are numbers, or names.
         try {
            attribute->entryIs( entity, "5", 3 );
         } catch ( Rex::ValueError const & ) {
            attribute->entryIs( entity, "5", "three" );
         }
         changed[attribute->name] = attribute->value( entity );
         break;
      case Attribute::Kind::collection:
         attribute->entryIs( entity, "5", Value::Object{} );
         changed[attribute->name] = Value::Object{ { "5", changedValueOf( *attribute->child( entity, "5" ) ) } };
         break;
      case Attribute::Kind::entity:
         attribute->valueIs( entity, Value::Object{} );
         changed[attribute->name] = changedValueOf( *attribute->child( entity, "" ) );
         break;
      }
   }
   return changed;
}

TEST( StateTypes, EveryValueGoesThereAndBack ) {
   for ( auto const & entity : everyType() ) {
      SCOPED_TRACE( entity->typeData().name() );
      ASSERT_FALSE( entity->typeData().attributes().empty() );
      Value const changed = changedValueOf( *entity );
      entity->attributesIs( changed );
      EXPECT_TRUE( entity->value() == changed ) << Rex::toText( entity->value() ) << "\n" << Rex::toText( changed );
   }
}

TEST( StateTypes, EverySettingAnnouncesItsAttributeOnceAndItsRepetitionNothing ) {
   for ( auto const & entity : everyType() ) {
      for ( auto const * attribute : entity->typeData().attributes() ) {
         if ( attribute->kind != Attribute::Kind::scalar ) {
            continue;
         }
         SCOPED_TRACE( entity->typeData().name() + " " + attribute->name );
         struct Heard {
            Corvo::Subscriber slot;
            std::vector< short > ids;
         } heard;
         heard.slot.dispatchIs(
            []( Corvo::Publisher *, Corvo::Subscriber * slot, short id, void const *, void const * value ) {
               EXPECT_NE( value, nullptr );
               slot->owner< Heard >()->ids.push_back( id );
            },
            &heard );
         entity->publisher()->subscriberAdd( heard.slot, false );
         Value const other = otherThan( attribute->value( *entity ) );
         attribute->valueIs( *entity, other );
         attribute->valueIs( *entity, other );
         EXPECT_EQ( heard.ids, std::vector< short >{ attribute->id } );
      }
   }
}

TEST( StateTypes, NamesAndNumbersAreUniqueWithinAType ) {
   std::set< std::string > types;
   for ( auto const & entity : everyType() ) {
      auto const & type = entity->typeData();
      SCOPED_TRACE( type.name() );
      EXPECT_TRUE( types.insert( type.name() ).second );
      std::set< short > ids;
      std::set< std::string > names;
      for ( auto const * attribute : type.attributes() ) {
         EXPECT_TRUE( ids.insert( attribute->id ).second ) << attribute->name;
         EXPECT_TRUE( names.insert( attribute->name ).second ) << attribute->name;
         EXPECT_EQ( type.attribute( attribute->id ), attribute );
         EXPECT_EQ( type.attribute( std::string_view( attribute->name ) ), attribute );
      }
   }
}

TEST( StateTypes, WrongValuesAreRefusedAndNothingChanges ) {
   for ( auto const & entity : everyType() ) {
      for ( auto const * attribute : entity->typeData().attributes() ) {
         SCOPED_TRACE( entity->typeData().name() + " " + attribute->name );
         Value const before = entity->value();
         EXPECT_THROW( attribute->valueIs( *entity, Value::List{} ), Rex::ValueError );
         EXPECT_TRUE( entity->value() == before );
      }
   }
}

TEST( StateTypes, NumbersAreHeldToTheirWidth ) {
   auto const vti = Corvo::makePtr< Vxlan::VtiStatus >( Netka::IntfId( "Vxlan1" ) );
   vti->attributesIs( Value::Object{ { "udpPort", 65535 } } );
   EXPECT_EQ( vti->udpPort(), 65535 );
   for ( Value const & wrong : { Value( 65536 ), Value( -1 ), Value( "1" ), Value( true ), Value() } ) {
      EXPECT_THROW( vti->attributesIs( Value::Object{ { "udpPort", wrong } } ), Rex::ValueError );
   }
   EXPECT_EQ( vti->udpPort(), 65535 );
}

TEST( StateTypes, KeysAreHeldToTheirForm ) {
   auto const config = Corvo::makePtr< L3::Tunnel::UdpDestinationPortConfig >();
   for ( auto const * wrong : { "256", "-1", "01", "one", "", "1 " } ) {
      EXPECT_THROW( config->attributesIs( Value::Object{ { "udpDestPort", Value::Object{ { wrong, 6635 } } } } ),
                    Rex::ValueError )
         << wrong;
   }
   EXPECT_TRUE( config->udpDestPort().empty() );
}

TEST( EthAddr, IsReadAndWrittenInOneForm ) {
   EXPECT_EQ( Netka::EthAddr( "02:1C:73:00:00:aB" ).stringValue(), "02:1c:73:00:00:ab" );
   for ( auto const * wrong : { "",
                                "02:1c:73:00:00",
                                "02:1c:73:00:00:0",
                                "02:1c:73:00:00:001",
                                " 2:1c:73:00:00:01",
                                "+2:1c:73:00:00:01",
                                "0x:1c:73:00:00:01",
                                "02-1c-73-00-00-01",
                                "02:1c:73:00:00:0g" } ) {
      EXPECT_THROW( Netka::EthAddr{ std::string( wrong ) }, Rex::ValueError ) << wrong;
   }
}

// Where an entity hangs.

TEST( Parent, AnEntityHangsBelowTheFirstThatTakesItIn ) {
   auto const first = Corvo::makePtr< Vxlan::VtiStatusDir >();
   auto const second = Corvo::makePtr< Vxlan::VtiStatusDir >();
   auto const vti = Corvo::makePtr< Vxlan::VtiStatus >( Netka::IntfId( "Vxlan1" ) );
   first->vtiStatusIs( vti );
   second->vtiStatusIs( vti );
   EXPECT_EQ( vti->parent(), first.get() );
   second->vtiStatusDel( vti->intfId() );
   EXPECT_EQ( vti->parent(), first.get() );
   first->vtiStatusDel( vti->intfId() );
   EXPECT_EQ( vti->parent(), nullptr );
}

TEST( Parent, ThatGoesLeavesNoDanglingReference ) {
   auto const vti = Corvo::makePtr< Vxlan::VtiStatus >( Netka::IntfId( "Vxlan1" ) );
   auto const configDir = Corvo::makePtr< Interface::AllEthPhyIntfConfigDir >();
   {
      auto const vtis = Corvo::makePtr< Vxlan::VtiStatusDir >();
      auto const phy = Corvo::makePtr< DaceFapNi::PhySmStateInfo >();
      auto const dir = Corvo::makePtr< Rex::Dir >();
      vtis->vtiStatusIs( vti );
      phy->allEthPhyIntfConfigDirIs( configDir );
      dir->entityIs( "vtis", vtis );
      EXPECT_EQ( vti->parent(), vtis.get() );
      EXPECT_EQ( configDir->parent(), phy.get() );
      EXPECT_EQ( vtis->parent(), dir.get() );
   }
   EXPECT_EQ( vti->parent(), nullptr );
   EXPECT_EQ( configDir->parent(), nullptr );
}

TEST( Parent, KnowsTheStepToItsChild ) {
   auto const vtis = Corvo::makePtr< Vxlan::VtiStatusDir >();
   auto const vti = Corvo::makePtr< Vxlan::VtiStatus >( Netka::IntfId( "Vxlan1" ) );
   auto const phy = Corvo::makePtr< DaceFapNi::PhySmStateInfo >();
   auto const configDir = Corvo::makePtr< Interface::AllEthPhyIntfConfigDir >();
   auto const dir = Corvo::makePtr< Rex::Dir >();
   vtis->vtiStatusIs( vti );
   phy->allEthPhyIntfConfigDirIs( configDir );
   dir->entityIs( "vtis", vtis );
   EXPECT_EQ( vtis->stepTo( *vti ), "vtiStatus/Vxlan1" );
   EXPECT_EQ( phy->stepTo( *configDir ), "allEthPhyIntfConfigDir" );
   EXPECT_EQ( dir->stepTo( *vtis ), "vtis" );
   EXPECT_EQ( dir->stepTo( *vti ), "" );
}

TEST( Announcement, ItsValueOutlivesACallbackThatTakesTheEntryAway ) {
   auto const status = Corvo::makePtr< Routing::Hardware::RouteStatus >();
   auto const vtis = Corvo::makePtr< Vxlan::VtiStatusDir >();
   struct Heard {
      Corvo::Subscriber slot;
      std::function< void( void const * value ) > run;
      explicit Heard( Entity const & entity, std::function< void( void const * ) > run_ ) : run( std::move( run_ ) ) {
         slot.dispatchIs(
            []( Corvo::Publisher *, Corvo::Subscriber * self, short, void const *, void const * value ) {
               self->owner< Heard >()->run( value );
            },
            this );
         entity.publisher()->subscriberAdd( slot, false );
      }
   };
   std::vector< int > lens;
   Heard const taker( *status, [&]( void const * value ) {
      if ( value ) {
         status->prefixLensInExactMatchDel( 1 );
      }
   } );
   Heard const reader(
      *status, [&]( void const * value ) { lens.push_back( value ? *static_cast< U8 const * >( value ) : -1 ); } );
   status->prefixLensInExactMatchIs( 1, 24 );
   EXPECT_EQ( lens, ( std::vector< int >{ -1, 24 } ) );

   Netka::IntfId const id( "Vxlan1" );
   std::vector< int > ports;
   Heard const vtiTaker( *vtis, [&]( void const * value ) {
      if ( value ) {
         vtis->vtiStatusDel( id );
      }
   } );
   Heard const vtiReader( *vtis, [&]( void const * value ) {
      ports.push_back( value ? static_cast< Vxlan::VtiStatus const * >( value )->udpPort() : -1 );
   } );
   auto vti = Corvo::makePtr< Vxlan::VtiStatus >( id );
   vti->udpPortIs( 4789 );
   vtis->vtiStatusIs( std::exchange( vti, nullptr ) );
   EXPECT_EQ( ports, ( std::vector< int >{ -1, 4789 } ) );
}

TEST( WriteProtection, ReachesWhatHangsBelowNowAndLater ) {
   auto const vtis = Corvo::makePtr< Vxlan::VtiStatusDir >();
   auto const now = Corvo::makePtr< Vxlan::VtiStatus >( Netka::IntfId( "Vxlan1" ) );
   auto const later = Corvo::makePtr< Vxlan::VtiStatus >( Netka::IntfId( "Vxlan2" ) );
   vtis->vtiStatusIs( now );
   vtis->writeProtectedIs( true );
   {
      Corvo::Publisher::ForeignWrite const foreign;
      vtis->vtiStatusIs( later );
   }
   EXPECT_TRUE( now->isWriteProtected() );
   EXPECT_TRUE( later->isWriteProtected() );
   now->udpPortIs( 0 ); // changes nothing
   EXPECT_EQ( vtis->vtiStatusDel( Netka::IntfId( "Vxlan3" ) ), nullptr );
}

TEST( WriteProtectionDeath, HoldsForEveryKindOfAttribute ) {
   auto const status = Corvo::makePtr< Routing::Hardware::RouteStatus >();
   status->prefixLensInExactMatchIs( 1, 24 );
   status->writeProtectedIs( true );
   status->prefixLensInExactMatchIs( 1, 24 );
   EXPECT_DEATH( status->prefixLensInExactMatchIs( 1, 25 ), "mounted for reading" );
   EXPECT_DEATH( status->prefixLensInExactMatchDel( 1 ), "mounted for reading" );

   auto const phy = Corvo::makePtr< DaceFapNi::PhySmStateInfo >();
   phy->writeProtectedIs( true );
   EXPECT_DEATH( phy->allEthPhyIntfConfigDirIs( Corvo::makePtr< Interface::AllEthPhyIntfConfigDir >() ),
                 "mounted for reading" );

   auto const dir = Corvo::makePtr< Rex::Dir >();
   auto const child = Corvo::makePtr< Vxlan::VtiStatusDir >();
   dir->entityIs( "child", child );
   dir->writeProtectedIs( true );
   EXPECT_DEATH( dir->entityDel( "child" ), "mounted for reading" );
   EXPECT_DEATH( child->decapRouteAllIs( true ), "Vxlan::VtiStatusDir" );
   EXPECT_DEATH( child->vtiStatusIs( Corvo::makePtr< Vxlan::VtiStatus >( Netka::IntfId( "Vxlan1" ) ) ),
                 "mounted for reading" );
}

} // namespace
