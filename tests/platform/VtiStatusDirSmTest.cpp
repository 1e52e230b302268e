#include "agent/VtiStatusDirSm.h"

#include "rex/Trace.h"

#include <gtest/gtest.h>

using Ale::VXLAN::VtiStatusDirSm;
using Netka::IntfId;

namespace {

using Strings = std::vector< std::string >;

// Writes down what it is asked to set up, and may do something of its own meanwhile.
class Recorder : public VtiStatusDirSm {
 public:
   using VtiStatusDirSm::VtiStatusDirSm;
   Strings log;
   std::function< void( std::string const & ) > meanwhile;

   void doSetupVxlanDestUdpPort( IntfId intfId, Netka::UdpPort port ) override {
      record( intfId, "port " + std::to_string( port.value ) );
   }
   void doSetupVxlanDestSecUdpPort( IntfId intfId, Netka::UdpPort port ) override {
      record( intfId, "security port " + std::to_string( port.value ) );
   }
   void doSetupVtepToVtepBridging( IntfId intfId, bool on ) override {
      record( intfId, on ? "bridging" : "no bridging" );
   }
   void doSetupRemoteVxlanDomain( IntfId intfId, bool on ) override { record( intfId, on ? "remote" : "no remote" ); }
   void doCleanup( IntfId intfId ) override { record( intfId, "cleanup" ); }

   Strings take() { return std::exchange( log, {} ); }

 private:
   void record( IntfId intfId, std::string const & what ) {
      log.push_back( intfId.stringValue() + " " + what );
      if ( meanwhile ) {
         auto const act = std::exchange( meanwhile, nullptr );
         act( log.back() );
      }
   }
};

Corvo::Ptr< Vxlan::VtiStatus > vti( std::string const & name, U16 port = 0 ) {
   auto const made = Corvo::makePtr< Vxlan::VtiStatus >( IntfId( name ) );
   made->udpPortIs( port );
   return made;
}

struct Vtis {
   Corvo::Ptr< Vxlan::VtiStatusDir > dir = Corvo::makePtr< Vxlan::VtiStatusDir >();
   Corvo::Ptr< Recorder > sm =
      Corvo::makePtr< Recorder >( "vtiStatusDirSm", dir, Corvo::makePtr< Bridging::HwCapabilities >() );

   Vtis & running() {
      sm->hasNotificationActiveIs( true );
      sm->initializedIs( true );
      sm->take();
      return *this;
   }
};

TEST( VtiStatusDirSm, looksAtNothingBeforeItIsInitialized ) {
   Vtis vtis;
   vtis.sm->hasNotificationActiveIs( true );
   vtis.dir->vtiStatusIs( vti( "Vxlan1" ) );
   EXPECT_EQ( vtis.sm->take(), Strings{} );
   EXPECT_FALSE( vtis.sm->initialized() );
   vtis.sm->initializedIs( true );
   EXPECT_EQ( vtis.sm->take(),
              ( Strings{ "Vxlan1 port 0", "Vxlan1 security port 0", "Vxlan1 no bridging", "Vxlan1 no remote" } ) );
   vtis.sm->initializedIs( true );
   EXPECT_EQ( vtis.sm->take(), Strings{} );
}

TEST( VtiStatusDirSm, setsUpEachAttributeOfANewVti ) {
   Vtis vtis;
   vtis.running();
   auto const vxlan1 = vti( "Vxlan1", 4789 );
   vxlan1->secUdpPortIs( 4790 );
   vxlan1->vtepToVtepBridgingIs( true );
   vxlan1->remoteVxlanDomainIs( true );
   vtis.dir->vtiStatusIs( vxlan1 );
   EXPECT_EQ( vtis.sm->take(),
              ( Strings{ "Vxlan1 port 4789", "Vxlan1 security port 4790", "Vxlan1 bridging", "Vxlan1 remote" } ) );
}

TEST( VtiStatusDirSm, setsUpTheAttributeThatChanged ) {
   Vtis vtis;
   vtis.running();
   auto const vxlan1 = vti( "Vxlan1" );
   vtis.dir->vtiStatusIs( vxlan1 );
   vtis.sm->take();
   vxlan1->udpPortIs( 4789 );
   EXPECT_EQ( vtis.sm->take(), Strings{ "Vxlan1 port 4789" } );
   vxlan1->secUdpPortIs( 4790 );
   EXPECT_EQ( vtis.sm->take(), Strings{ "Vxlan1 security port 4790" } );
   vxlan1->remoteVxlanDomainIs( true );
   EXPECT_EQ( vtis.sm->take(), Strings{ "Vxlan1 remote" } );
   vxlan1->vtepToVtepBridgingIs( true );
   EXPECT_EQ( vtis.sm->take(), Strings{ "Vxlan1 bridging" } );
   vxlan1->udpPortIs( 4789 );
   EXPECT_EQ( vtis.sm->take(), Strings{} );
}

TEST( VtiStatusDirSm, setsUpAnObjectThatTakesAnothersPlace ) {
   Vtis vtis;
   vtis.running();
   auto const old = vti( "Vxlan1", 4789 );
   vtis.dir->vtiStatusIs( old );
   vtis.sm->take();
   auto const other = vti( "Vxlan1", 4800 );
   vtis.dir->vtiStatusIs( other );
   EXPECT_EQ( vtis.sm->take(),
              ( Strings{ "Vxlan1 port 4800", "Vxlan1 security port 0", "Vxlan1 no bridging", "Vxlan1 no remote" } ) );
   old->udpPortIs( 1 );
   EXPECT_EQ( vtis.sm->take(), Strings{} );
   other->udpPortIs( 2 );
   EXPECT_EQ( vtis.sm->take(), Strings{ "Vxlan1 port 2" } );
}

TEST( VtiStatusDirSm, cleansUpAfterAVtiThatGoes ) {
   Vtis vtis;
   vtis.running();
   auto const vxlan1 = vti( "Vxlan1", 4789 );
   vtis.dir->vtiStatusIs( vxlan1 );
   vtis.sm->take();
   vtis.dir->vtiStatusDel( IntfId( "Vxlan1" ) );
   EXPECT_EQ( vtis.sm->take(), Strings{ "Vxlan1 cleanup" } );
   vxlan1->udpPortIs( 1 );
   EXPECT_EQ( vtis.sm->take(), Strings{} );
}

TEST( VtiStatusDirSm, catchesUpWhenItsNotificationsAreTurnedOn ) {
   Vtis vtis;
   vtis.running();
   vtis.dir->vtiStatusIs( vti( "Vxlan1" ) );
   vtis.dir->vtiStatusIs( vti( "Vxlan2" ) );
   vtis.sm->take();
   vtis.sm->hasNotificationActiveIs( false );
   vtis.dir->vtiStatusDel( IntfId( "Vxlan1" ) );
   vtis.dir->vtiStatusIs( vti( "Vxlan3", 7 ) );
   vtis.dir->vtiStatus( IntfId( "Vxlan2" ) )->udpPortIs( 9 );
   EXPECT_EQ( vtis.sm->take(), Strings{} );
   vtis.sm->hasNotificationActiveIs( true );
   EXPECT_EQ(
      vtis.sm->take(),
      ( Strings{
         "Vxlan1 cleanup", "Vxlan3 port 7", "Vxlan3 security port 0", "Vxlan3 no bridging", "Vxlan3 no remote" } ) );
   vtis.sm->hasNotificationActiveIs( true );
   EXPECT_EQ( vtis.sm->take(), Strings{} );
}

TEST( VtiStatusDirSm, aZombieSetsUpNothing ) {
   Vtis vtis;
   vtis.running();
   vtis.dir->vtiStatusIs( vti( "Vxlan1" ) );
   vtis.sm->take();
   vtis.sm->rexDoZombieReactors( true );
   vtis.dir->vtiStatus( IntfId( "Vxlan1" ) )->udpPortIs( 9 );
   vtis.dir->vtiStatusIs( vti( "Vxlan2" ) );
   vtis.dir->vtiStatusDel( IntfId( "Vxlan1" ) );
   EXPECT_EQ( vtis.sm->take(), Strings{} );
   vtis.sm->rexDoZombieReactors( false );
   vtis.dir->vtiStatus( IntfId( "Vxlan2" ) )->udpPortIs( 9 );
   EXPECT_EQ( vtis.sm->take(), Strings{ "Vxlan2 port 9" } );
}

TEST( VtiStatusDirSm, aSetUpMayRemoveItsVti ) {
   Vtis vtis;
   vtis.running();
   vtis.sm->meanwhile = [&]( auto const & ) { vtis.dir->vtiStatusDel( IntfId( "Vxlan1" ) ); };
   vtis.dir->vtiStatusIs( vti( "Vxlan1" ) );
   EXPECT_EQ( vtis.sm->take(), ( Strings{ "Vxlan1 port 0", "Vxlan1 cleanup" } ) );

   vtis.dir->vtiStatusIs( vti( "Vxlan1" ) );
   vtis.sm->take();
   vtis.sm->meanwhile = [&]( auto const & ) { vtis.dir->vtiStatusDel( IntfId( "Vxlan1" ) ); };
   vtis.dir->vtiStatus( IntfId( "Vxlan1" ) )->remoteVxlanDomainIs( true );
   EXPECT_EQ( vtis.sm->take(), ( Strings{ "Vxlan1 remote", "Vxlan1 cleanup" } ) );
}

TEST( VtiStatusDirSm, aSetUpDuringTheWalkMayRemoveAndAddOthers ) {
   Vtis vtis;
   vtis.dir->vtiStatusIs( vti( "Vxlan1" ) );
   vtis.dir->vtiStatusIs( vti( "Vxlan2" ) );
   vtis.sm->hasNotificationActiveIs( true );
   vtis.sm->meanwhile = [&]( auto const & ) {
      vtis.dir->vtiStatusDel( IntfId( "Vxlan2" ) );
      vtis.dir->vtiStatusIs( vti( "Vxlan3" ) );
   };
   vtis.sm->initializedIs( true );
   EXPECT_EQ( vtis.sm->take(),
              ( Strings{ "Vxlan1 port 0",
                         "Vxlan3 port 0",
                         "Vxlan3 security port 0",
                         "Vxlan3 no bridging",
                         "Vxlan3 no remote",
                         "Vxlan1 security port 0",
                         "Vxlan1 no bridging",
                         "Vxlan1 no remote" } ) );
}

TEST( VtiStatusDirSm, aSetUpMayDropTheMachine ) {
   auto const before = Corvo::Node::liveCount();
   {
      Vtis vtis;
      vtis.running();
      vtis.dir->vtiStatusIs( vti( "Vxlan1" ) );
      vtis.sm->meanwhile = [&]( auto const & ) { vtis.sm = nullptr; };
      vtis.dir->vtiStatus( IntfId( "Vxlan1" ) )->udpPortIs( 9 );
      EXPECT_FALSE( vtis.sm );
      vtis.dir->vtiStatusDel( IntfId( "Vxlan1" ) );
   }
   {
      Vtis vtis;
      vtis.dir->vtiStatusIs( vti( "Vxlan1" ) );
      vtis.dir->vtiStatusIs( vti( "Vxlan2" ) );
      vtis.sm->hasNotificationActiveIs( true );
      vtis.sm->meanwhile = [&]( auto const & ) { vtis.sm = nullptr; };
      vtis.sm->initializedIs( true );
      EXPECT_FALSE( vtis.sm );
   }
   EXPECT_EQ( Corvo::Node::liveCount(), before );
}

TEST( VtiStatusDirSm, withoutADirectoryThereIsNothingToDo ) {
   auto const sm = Corvo::makePtr< Recorder >( "vtiStatusDirSm", nullptr, nullptr );
   sm->hasNotificationActiveIs( true );
   sm->initializedIs( true );
   EXPECT_EQ( sm->take(), Strings{} );
}

TEST( VtiStatusDirSm, tracesWhatNobodyOverrides ) {
   Strings records;
   Rex::traceSinkIs( [&]( auto const & record ) { records.push_back( record.text ); } );
   Rex::traceLevelIs( "AleVxlanVtiStatusDirSm", 9 );
   auto const made = Corvo::makePtr< VtiStatusDirSm >( "vtiStatusDirSm", nullptr, nullptr );
   VtiStatusDirSm & sm = *made;
   IntfId const vxlan1( "Vxlan1" );
   sm.doSetupVxlanSrcAddr( vxlan1, { "192.0.2.1" } );
   sm.doSetupVxlanSrcUdpPortRange( vxlan1, { 5000 }, 16 );
   sm.doHandleVxlanVrfToSbdVlan( vxlan1, { "red" } );
   sm.doSetupVxlanSharedRouterMac( vxlan1, Netka::EthAddr( "02:00:00:00:00:01" ) );
   sm.doUpdateOperStatus( vxlan1 );
   Rex::traceLevelIs( "AleVxlanVtiStatusDirSm", -1 );
   Rex::traceSinkIs( {} );
   EXPECT_EQ( records,
              ( Strings{ "VtiStatusDirSm::doSetupVxlanSrcAddr would be done for Vxlan1 192.0.2.1",
                         "VtiStatusDirSm::doSetupVxlanSrcUdpPortRange would be done for Vxlan1 5000 16",
                         "VtiStatusDirSm::doHandleVxlanVrfToSbdVlan would be done for Vxlan1 red",
                         "VtiStatusDirSm::doSetupVxlanSharedRouterMac would be done for Vxlan1 02:00:00:00:00:01",
                         "VtiStatusDirSm::doUpdateOperStatus would be done for Vxlan1" } ) );
}

} // namespace
