#include "agent/MergeMachines.h"
#include "platform/Listener.h"

#include <gtest/gtest.h>

namespace {

using L3::Tunnel::PayloadType;
using L3::Tunnel::UdpDestinationPortConfig;
using Tunnel::Decap::ConfigInput;
using Tunnel::Decap::DecapGroup;
using Tunnel::Decap::DecapGroupConfigMergeSm;

Corvo::Ptr< DecapGroup > group( U16 udpPort, U8 payloadType ) {
   auto const made = Corvo::makePtr< DecapGroup >( udpPort );
   made->payloadTypeIs( payloadType );
   return made;
}

// A static input, a directory of inputs, and the machine that merges them.
struct DecapGroups : testing::Test {
   Corvo::Ptr< Tunnel::Decap::Config > output = Corvo::makePtr< Tunnel::Decap::Config >();
   Corvo::Ptr< ConfigInput > cli = Corvo::makePtr< ConfigInput >();
   Corvo::Ptr< Rex::Dir > dynamic = Corvo::makePtr< Rex::Dir >();
   Corvo::Ptr< DecapGroupConfigMergeSm > sm =
      DecapGroupConfigMergeSm::DecapGroupConfigMergeSmIs( output, cli, dynamic, nullptr );

   Corvo::Ptr< ConfigInput > inputIs( std::string const & name ) {
      auto const input = Corvo::makePtr< ConfigInput >();
      dynamic->entityIs( name, input );
      return input;
   }
   std::map< U16, int > groups() const {
      std::map< U16, int > all;
      for ( auto const & [udpPort, each] : output->decapGroup() ) {
         all[udpPort] = each->payloadType();
      }
      return all;
   }
};
using Groups = std::map< U16, int >;

TEST( SmControl, SaysNothingByDefault ) {
   Oxa::SmControl const control;
   EXPECT_EQ( control.control, nullptr );
   EXPECT_EQ( control.word, 0U );
   EXPECT_EQ( control.name, "" );
   EXPECT_EQ( control.mode, 3U );
}

TEST_F( DecapGroups, NothingIsMergedBeforeNotificationsAreActive ) {
   cli->decapGroupIs( group( 6635, 1 ) );
   EXPECT_EQ( groups(), Groups{} );
   sm->hasNotificationActiveIs( true );
   EXPECT_EQ( groups(), ( Groups{ { 6635, 1 } } ) );
}

TEST_F( DecapGroups, TheStaticInputCountsBeforeTheDirectoryAndItsNamesInOrder ) {
   inputIs( "b" )->decapGroupIs( group( 100, 4 ) );
   inputIs( "a" )->decapGroupIs( group( 100, 3 ) );
   Corvo::ptrCast< ConfigInput >( dynamic->entityPtr( "a" ) )->decapGroupIs( group( 200, 3 ) );
   cli->decapGroupIs( group( 200, 1 ) );
   sm->hasNotificationActiveIs( true );
   EXPECT_EQ( groups(), ( Groups{ { 100, 3 }, { 200, 1 } } ) );

   cli->decapGroupDel( 200 );
   EXPECT_EQ( groups(), ( Groups{ { 100, 3 }, { 200, 3 } } ) );
   dynamic->entityDel( "a" );
   EXPECT_EQ( groups(), ( Groups{ { 100, 4 } } ) );
}

TEST_F( DecapGroups, OnlyWhatChangesIsAnnounced ) {
   cli->decapGroupIs( group( 1, 1 ) );
   cli->decapGroupIs( group( 2, 1 ) );
   sm->hasNotificationActiveIs( true );
   Listener const listener( *output );
   auto const input = inputIs( "bgp" );
   EXPECT_EQ( listener.heard, Heard{} ); // an input without groups
   input->decapGroupIs( group( 2, 3 ) );
   EXPECT_EQ( listener.heard, Heard{} ); // shadowed
   input->decapGroupIs( group( 3, 3 ) );
   EXPECT_EQ( listener.heard, Heard{ "decapGroup 3" } );
   input->decapGroup( 3 )->payloadTypeIs( 4 ); // two levels below the directory
   EXPECT_EQ( listener.heard, ( Heard{ "decapGroup 3", "decapGroup 3" } ) );
   EXPECT_EQ( groups(), ( Groups{ { 1, 1 }, { 2, 1 }, { 3, 4 } } ) );
}

TEST_F( DecapGroups, TheOutputHoldsCopies ) {
   auto const mine = group( 1, 1 );
   cli->decapGroupIs( mine );
   sm->hasNotificationActiveIs( true );
   EXPECT_NE( output->decapGroup( 1 ), mine );
   EXPECT_EQ( mine->parent(), cli.get() );
   EXPECT_EQ( output->decapGroup( 1 )->parent(), output.get() );
}

TEST_F( DecapGroups, WhatIsRemovedOrTurnedOffIsFollowedNoMore ) {
   auto const input = inputIs( "bgp" );
   sm->hasNotificationActiveIs( true );
   dynamic->entityDel( "bgp" );
   input->decapGroupIs( group( 1, 1 ) );
   EXPECT_EQ( groups(), Groups{} );
   EXPECT_FALSE( input->publisher()->hasSubscribers() );

   sm->hasNotificationActiveIs( false );
   cli->decapGroupIs( group( 2, 1 ) );
   EXPECT_EQ( groups(), Groups{} );
   EXPECT_FALSE( cli->publisher()->hasSubscribers() );
   EXPECT_FALSE( dynamic->publisher()->hasSubscribers() );
   sm->hasNotificationActiveIs( true );
   EXPECT_EQ( groups(), ( Groups{ { 2, 1 } } ) );
}

TEST_F( DecapGroups, ADirectoryMayHoldWhatIsNoInput ) {
   dynamic->entityIs( "other", Corvo::makePtr< Evpn::EvpnStatus >() );
   sm->hasNotificationActiveIs( true );
   inputIs( "bgp" )->decapGroupIs( group( 1, 1 ) );
   EXPECT_EQ( groups(), ( Groups{ { 1, 1 } } ) );
}

TEST_F( DecapGroups, InputsMayVanishWhileTheOutputIsWritten ) {
   sm->hasNotificationActiveIs( true );
   // Whoever hears of the first of three groups takes the input away.
   auto input = inputIs( "bgp" );
   input->decapGroupIs( group( 7, 1 ) );
   auto const wide = Corvo::makePtr< ConfigInput >();
   for ( U16 const udpPort : { 1, 2, 3 } ) {
      wide->decapGroupIs( group( udpPort, 1 ) );
   }
   Listener const listener( *output, [&] {
      input = nullptr;
      dynamic->entityDel( "bgp" );
      dynamic->entityDel( "wide" );
   } );
   dynamic->entityIs( "wide", wide );
   EXPECT_EQ( groups(), Groups{} );
   EXPECT_EQ( listener.heard, ( Heard{ "decapGroup 1", "decapGroup 7", "decapGroup 1" } ) );
}

TEST_F( DecapGroups, TheMachineMayBeDroppedWhileTheOutputIsWritten ) {
   cli->decapGroupIs( group( 1, 1 ) );
   cli->decapGroupIs( group( 2, 1 ) );
   Listener const listener( *output, [&] { sm = nullptr; } );
   sm->hasNotificationActiveIs( true );
   EXPECT_FALSE( sm );
   EXPECT_FALSE( cli->publisher()->hasSubscribers() );
}

TEST_F( DecapGroups, TurnedOffWhileTheOutputIsWrittenItStops ) {
   cli->decapGroupIs( group( 1, 1 ) );
   cli->decapGroupIs( group( 2, 1 ) );
   Listener const listener( *output, [&] { sm->hasNotificationActiveIs( false ); } );
   sm->hasNotificationActiveIs( true );
   EXPECT_EQ( groups(), ( Groups{ { 1, 1 } } ) );
}

TEST( UdpDestPorts, AreTheUnionOfTheStaticConfigurationAndTheDirectory ) {
   using Sm = NexthopGroup::NexthopGroupCliDynamicConfigUdpDestPortMergeSm;
   auto const output = Corvo::makePtr< UdpDestinationPortConfig >( "udpDestPort" );
   auto const cli = Corvo::makePtr< UdpDestinationPortConfig >();
   auto const bgp = Corvo::makePtr< UdpDestinationPortConfig >();
   auto const dynamic = Corvo::makePtr< Rex::Dir >();
   dynamic->entityIs( "bgp", bgp );
   cli->udpDestPortIs( PayloadType{ 1 }, 6635 );
   bgp->udpDestPortIs( PayloadType{ 1 }, 7000 );
   bgp->udpDestPortIs( PayloadType{ 3 }, 6636 );
   auto const sm = Sm::NexthopGroupCliDynamicConfigUdpDestPortMergeSmIs( output, cli, dynamic, Oxa::SmControl{} );
   sm->hasNotificationActiveIs( true );
   EXPECT_EQ( output->udpDestPort(),
              ( std::map< PayloadType, U16 >{ { PayloadType{ 1 }, 6635 }, { PayloadType{ 3 }, 6636 } } ) );

   Listener const listener( *output );
   cli->udpDestPortDel( PayloadType{ 1 } );
   EXPECT_EQ( output->udpDestPort( PayloadType{ 1 } ), 7000 );
   EXPECT_EQ( listener.heard, Heard{ "udpDestPort 1" } );
}

TEST( PrefixLens, FollowTheRouteStatus ) {
   using Sm = Routing::Hardware::PrefixLensInExactMatchMergerSm;
   auto const output = Routing::Hardware::prefixLensInExactMatchFactory( "" );
   auto const status = Corvo::makePtr< Routing::Hardware::RouteStatus >();
   status->prefixLensInExactMatchIs( 1, 24 );
   auto const sm = Sm::PrefixLensInExactMatchMergerSmIs( status, output, Oxa::SmControl{} );
   sm->hasNotificationActiveIs( true );
   status->prefixLensInExactMatchIs( 1, 32 );
   status->prefixLensInExactMatchIs( 2, 21 );
   EXPECT_EQ( output->prefixLen(), ( std::map< U8, U8 >{ { 1, 32 }, { 2, 21 } } ) );
   status->prefixLensInExactMatchDel( 1 );
   EXPECT_EQ( output->prefixLen(), ( std::map< U8, U8 >{ { 2, 21 } } ) );
}

TEST( MergeMachines, NullInputsContributeNothing ) {
   auto const ports = Corvo::makePtr< UdpDestinationPortConfig >( "udpDestPort" );
   auto const groups = Corvo::makePtr< Tunnel::Decap::Config >();
   auto const lens = Routing::Hardware::prefixLensInExactMatchFactory( "" );
   NexthopGroup::NexthopGroupCliDynamicConfigUdpDestPortMergeSm portsSm( ports, nullptr, nullptr, Oxa::SmControl{} );
   DecapGroupConfigMergeSm groupsSm( groups, nullptr, nullptr, nullptr );
   Routing::Hardware::PrefixLensInExactMatchMergerSm lensSm( nullptr, lens, Oxa::SmControl{} );
   portsSm.hasNotificationActiveIs( true );
   groupsSm.hasNotificationActiveIs( true );
   lensSm.hasNotificationActiveIs( true );
   EXPECT_TRUE( ports->udpDestPort().empty() );
   EXPECT_TRUE( groups->decapGroup().empty() );
   EXPECT_TRUE( lens->prefixLen().empty() );
}

TEST( MergeMachines, TeardownLeavesNoNodeBehind ) {
   U32 const before = Corvo::Node::liveCount();
   {
      auto const output = Corvo::makePtr< Tunnel::Decap::Config >();
      auto const cli = Corvo::makePtr< ConfigInput >();
      auto const dynamic = Corvo::makePtr< Rex::Dir >();
      auto const bgp = Corvo::makePtr< ConfigInput >();
      bgp->decapGroupIs( group( 1, 1 ) );
      dynamic->entityIs( "bgp", bgp );
      auto const sm = DecapGroupConfigMergeSm::DecapGroupConfigMergeSmIs( output, cli, dynamic, nullptr );
      sm->hasNotificationActiveIs( true );
      EXPECT_GT( Corvo::Node::liveCount(), before + 5 );
   }
   EXPECT_EQ( Corvo::Node::liveCount(), before );
}

} // namespace
