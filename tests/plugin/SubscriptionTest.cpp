// Every state machine hears its inputs from its construction on, before it is activated; and goes in order: its
// notifications first, then as a zombie what is still subscribed.
#include "ObservedL3Sm.h"
#include "OverlayTest.h"
#include "RemFfcModifierSm.h"

using namespace DaceFapNi;
using ::Test::Watchful;

namespace {

class SubscriptionTest : public OverlayTest {
 public:
   void SetUp() override { oneFapOfEachKind(); }
   // Whether the change set a machine to work on the chips.
   template< class Change >
   bool works( Change change ) {
      auto const before = sw().journal().operationCount();
      change();
      return sw().journal().operationCount() > before;
   }

   template< class T >
   Corvo::Ptr< Watchful< T > > input( std::string const & name ) {
      auto const made = Corvo::makePtr< Watchful< T > >();
      made->looked = [this, name] {
         if ( going_ ) {
            seen_.push_back( name + ( going_->hasNotificationActive() ? " active" : "" ) +
                             ( going_->isZombie() ? " zombie" : "" ) );
         }
      };
      return made;
   }
   // What the inputs saw while the machine went.
   template< class Sm >
   Strings end( Corvo::Ptr< Sm > sm ) {
      seen_.clear();
      going_ = sm.get();
      sm = nullptr;
      going_ = nullptr;
      return seen_;
   }

 private:
   Corvo::Node const * going_ = nullptr;
   Strings seen_;
};

Corvo::Ptr< Tunnel::Decap::DecapGroup > mplsGroup( U16 port ) {
   auto group = Corvo::makePtr< Tunnel::Decap::DecapGroup >( port );
   group->payloadTypeIs( 1 );
   return group;
}

TEST_F( SubscriptionTest, gueNexthopGroups ) {
   auto const groups = input< Tunnel::Decap::Config >( "groups" );
   auto const ports = input< L3::Tunnel::UdpDestinationPortConfig >( "ports" );
   auto const build = [&] { return Corvo::makePtr< GueNexthopGroupSm >( sw().cellStatus(), groups, ports, sal() ); };
   auto sm = build();
   EXPECT_TRUE( works( [&] { ports->udpDestPortIs( { 3 }, 6081 ); } ) );
   EXPECT_TRUE( works( [&] { groups->decapGroupIs( mplsGroup( 6635 ) ); } ) );
   EXPECT_EQ( end( std::move( sm ) ), ( Strings{ "groups zombie", "ports zombie" } ) );
   sm = GueNexthopGroupSm::GueNexthopGroupSmIs( sw().cellStatus(), groups, ports, sal() );
   EXPECT_TRUE( sm->hasNotificationActive() );
   EXPECT_EQ( end( std::move( sm ) ), ( Strings{ "groups", "ports" } ) );
}

TEST_F( SubscriptionTest, vxlanQos ) {
   auto const config = input< Vxlan::EcnConfig >( "config" );
   auto sm = Corvo::makePtr< VxlanQosSm >( config, sw().cellStatus() );
   EXPECT_TRUE( works( [&] { config->dscpEcnRewriteBridgedIs( true ); } ) );
   EXPECT_EQ( end( std::move( sm ) ), Strings{ "config zombie" } );
   sm = VxlanQosSm::VxlanQosSmIs( config, sw().cellStatus() );
   EXPECT_TRUE( sm->hasNotificationActive() );
   EXPECT_EQ( end( std::move( sm ) ), Strings{ "config" } );
}

TEST_F( SubscriptionTest, vxlanSplitHorizon ) {
   auto const dir = input< Vxlan::VtiStatusDir >( "dir" );
   auto const evpn = input< Evpn::EvpnStatus >( "evpn" );
   auto sm = Corvo::makePtr< VxlanSplitHorizonCfgSm >( dir, evpn, sw().cellStatus() );
   EXPECT_TRUE( works( [&] { evpn->evpnDciEnabledIs( true ); } ) );
   EXPECT_TRUE( works( [&] { dir->vtiStatusIs( Corvo::makePtr< Vxlan::VtiStatus >( Netka::IntfId( "Vxlan1" ) ) ); } ) );
   EXPECT_EQ( end( std::move( sm ) ), ( Strings{ "dir zombie", "evpn zombie" } ) );
   sm = VxlanSplitHorizonCfgSm::VxlanSplitHorizonCfgSmIs( dir, evpn, sw().cellStatus() );
   EXPECT_TRUE( sm->hasNotificationActive() );
   EXPECT_EQ( end( std::move( sm ) ), ( Strings{ "dir", "evpn" } ) );
}

TEST_F( SubscriptionTest, vtiStatusDirectory ) {
   auto const dir = input< Vxlan::VtiStatusDir >( "dir" );
   auto const capabilities = Corvo::makePtr< Bridging::HwCapabilities >();
   auto sm = Corvo::makePtr< DaceL3UnicastVtiStatusDirSm >( "vtis", dir, capabilities, sw().cellStatus(), sal() );
   sm->initializedIs( true );
   EXPECT_TRUE( works( [&] { dir->vtiStatusIs( Corvo::makePtr< Vxlan::VtiStatus >( Netka::IntfId( "Vxlan1" ) ) ); } ) );
   EXPECT_EQ( end( std::move( sm ) ), Strings{ "dir zombie" } );
   sm =
      DaceL3UnicastVtiStatusDirSm::DaceL3UnicastVtiStatusDirSmIs( "vtis", dir, capabilities, sw().cellStatus(), sal() );
   EXPECT_TRUE( sm->hasNotificationActive() );
   EXPECT_EQ( end( std::move( sm ) ), Strings{ "dir" } );
}

TEST_F( SubscriptionTest, mplsParser ) {
   auto const config = input< Mpls::Config >( "config" );
   auto const capability = Corvo::makePtr< Mpls::Hardware::Capability >();
   for ( auto const set : { &Mpls::Hardware::Capability::parserDefault0Is,
                            &Mpls::Hardware::Capability::parserDefault1Is,
                            &Mpls::Hardware::Capability::parserDefault2Is,
                            &Mpls::Hardware::Capability::parserDefault3Is } ) {
      ( capability.get()->*set )( 1 );
   }
   auto sm = Corvo::makePtr< MplsParserCfgSm >( config, capability, sal(), sw().cellStatus() );
   EXPECT_TRUE( works( [&] { config->parserSettingsConfiguredIs( true ); } ) );
   EXPECT_EQ( end( std::move( sm ) ), Strings{ "config zombie" } );
   sm = MplsParserCfgSm::MplsParserCfgSmIs( config, capability, sal(), sw().cellStatus() );
   EXPECT_TRUE( sm->hasNotificationActive() );
   EXPECT_EQ( end( std::move( sm ) ), Strings{ "config" } );
}

TEST_F( SubscriptionTest, ffcModifier ) {
   auto const lengths = input< Routing::Hardware::PrefixLensInExactMatch >( "lengths" );
   auto sm = Corvo::makePtr< RemFfcModifierSm >( sw().cellStatus(), lengths );
   EXPECT_TRUE( works( [&] { lengths->prefixLenIs( 1, 24 ); } ) );
   EXPECT_EQ( end( std::move( sm ) ), Strings{ "lengths zombie" } );
   sm = RemFfcModifierSm::RemFfcModifierSmIs( sw().cellStatus(), lengths );
   EXPECT_TRUE( sm->hasNotificationActive() );
   EXPECT_EQ( end( std::move( sm ) ), Strings{ "lengths" } );
   EXPECT_TRUE( remFfcModifierSmFactory( sw().cellStatus(), lengths )->hasNotificationActive() );
}

// What a machine's name and its tear-down plumbing say.
TEST_F( SubscriptionTest, aZombieMarksItselfOnceAndWakes ) {
   auto const capability = Corvo::makePtr< Mpls::Hardware::Capability >();
   for ( auto const set : { &Mpls::Hardware::Capability::parserDefault0Is,
                            &Mpls::Hardware::Capability::parserDefault1Is,
                            &Mpls::Hardware::Capability::parserDefault2Is,
                            &Mpls::Hardware::Capability::parserDefault3Is } ) {
      ( capability.get()->*set )( 1 );
   }
   auto const config = Corvo::makePtr< Mpls::Config >();
   auto const parser = mplsParserCfgSmFactory( config, capability, sal(), sw().cellStatus() );
   parser->rexDoZombieReactors( true );
   EXPECT_TRUE( parser->isZombie() );
   EXPECT_FALSE( works( [&] { config->parserSettingsConfiguredIs( true ); } ) );
   parser->rexDoZombieReactors( false );
   EXPECT_TRUE( works( [&] { config->parserSettingsConfiguredIs( false ); } ) );

   auto const lengths = Corvo::makePtr< Routing::Hardware::PrefixLensInExactMatch >();
   auto const modifier = remFfcModifierSmFactory( sw().cellStatus(), lengths );
   modifier->rexDoZombieReactors( true );
   EXPECT_FALSE( works( [&] { lengths->prefixLenIs( 1, 24 ); } ) );
   modifier->rexDoZombieReactors( false );
   EXPECT_TRUE( works( [&] { lengths->prefixLenIs( 1, 21 ); } ) );
}

TEST_F( SubscriptionTest, theVtiDirectorysMachineReleasesItsChipsAsAZombie ) {
   auto const dir = Corvo::makePtr< Vxlan::VtiStatusDir >();
   auto const cell = Corvo::makePtr< Hardware::Dace::Cell::CellStatus >();
   auto const handle = sal();
   auto const sm =
      daceL3UnicastVtiStatusDirSmFactory( "vtis", dir, Corvo::makePtr< Bridging::HwCapabilities >(), cell, handle );
   EXPECT_EQ( sm->typeData().name(), "DaceFapNi::DaceL3UnicastVtiStatusDirSm" );
   EXPECT_EQ( cell->useCount(), 2u );
   EXPECT_EQ( handle->useCount(), 2u );
   sm->rexDoZombieReactors( false );
   EXPECT_EQ( cell->useCount(), 2u );
   EXPECT_EQ( handle->useCount(), 2u );
   sm->rexDoZombieReactors( true );
   EXPECT_TRUE( sm->isZombie() );
   EXPECT_EQ( cell->useCount(), 1u );
   EXPECT_EQ( handle->useCount(), 1u );
   dir->vtiStatusIs( Corvo::makePtr< Vxlan::VtiStatus >( Netka::IntfId( "Vxlan1" ) ) );
   EXPECT_TRUE( rows().empty() );
}

} // namespace
