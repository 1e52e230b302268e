#include "DaceL3Unicast/DaceFapNiPlugin/FapGate.h"
#include "DaceL3Unicast/DaceFapNiPlugin/L3SmSlotLoadBalance.h"
#include "MountedSwitch.h"
#include "rex/Trace.h"

#include <gtest/gtest.h>

namespace {

using namespace Test;
using DaceFapNi::chipTypeToFapType;
using DaceFapNi::L3Sm;
using Hardware::ChipType;

// An L3Sm of the test's own, on the state of a switch whose mounter is not started.
struct OwnL3Sm : MountedSwitch {
   Corvo::Ptr< L3Sm > sm;

   explicit OwnL3Sm( Simulator::SwitchDescription const & description = oneFap() ) : MountedSwitch( description ) {}
   Corvo::Ptr< DaceFapNi::PhySmStateInfo > phy() { return shared< DaceFapNi::PhySmStateInfo >( "phySmStateData" ); }
   Corvo::Ptr< DaceFapNi::PhySmStateSharedStatus > phyStatus() {
      return shared< DaceFapNi::PhySmStateSharedStatus >( "phySmStateSharedStatus" );
   }
   Corvo::Ptr< Routing::Hardware::Config > config() {
      return sw.entity< Routing::Hardware::Config >( "routing/hardware/config" );
   }
   std::size_t operations() { return sw.journal().operations().size(); }
};

TEST( FapType, ByChipType ) {
   U8 const fapTypes[] = { 0, 1, 1, 1, 2, 2, 2, 2, 2, 3, 3, 3, 3, 3, 3, 3, 3, 4, 4, 4, 4, 4, 4, 4, 4, 4 };
   static_assert( std::size( fapTypes ) == 26 );
   for ( U8 chipType = 0; chipType <= 25; ++chipType ) {
      EXPECT_EQ( chipTypeToFapType( static_cast< ChipType >( chipType ) ).value(), fapTypes[chipType] )
         << unsigned{ chipType };
   }
}

TEST( FapTypeDeath, ChipTypeOutsideTheTable ) {
   EXPECT_DEATH( chipTypeToFapType( static_cast< ChipType >( 26 ) ),
                 "Unhandled chipType 26[^A]*Assertion `\"false\" == nullptr' failed" );
}

// Only type 3 depends on toggles; what a chip of another family would be is served.
TEST( FapType, whichAreServed ) {
   MountedSwitch const toggled( oneFap() );
   EXPECT_FALSE( DaceFapNi::isServed( Hardware::Dace::FapType{ 3 } ) );
   EXPECT_FALSE( DaceFapNi::isServed( Hardware::Dace::FapType{ 4 } ) );
   for ( U8 const type : { 0, 1, 2 } ) {
      EXPECT_TRUE( DaceFapNi::isServed( Hardware::Dace::FapType{ type } ) ) << unsigned{ type };
   }
}

TEST( L3Sm, WaitsForBothInterfaceDirectories ) {
   OwnL3Sm agent;
   auto const configDir = agent.phy()->allEthPhyIntfConfigDir();
   auto const statusDir = agent.phyStatus()->allEthPhyIntfStatusDir();
   agent.phy()->allEthPhyIntfConfigDirIs( nullptr );
   agent.phyStatus()->allEthPhyIntfStatusDirIs( nullptr );
   agent.start();
   auto const sm = agent.mounter->l3Sm();
   EXPECT_FALSE( sm->initialized() );
   EXPECT_EQ( agent.operations(), 0U );

   agent.phy()->allEthPhyIntfConfigDirIs( configDir );
   EXPECT_FALSE( sm->initialized() );
   EXPECT_EQ( agent.operations(), 0U );

   agent.phyStatus()->allEthPhyIntfStatusDirIs( statusDir );
   EXPECT_TRUE( sm->initialized() );
   EXPECT_GT( agent.operations(), 0U );
}

TEST( L3Sm, SecondRunOfHandleInitializedDoesNothing ) {
   OwnL3Sm agent;
   agent.start();
   auto const sm = agent.mounter->l3Sm();
   auto const operations = agent.operations();
   sm->handleInitialized();
   sm->handleAllEthPhyIntfDir();
   EXPECT_EQ( agent.operations(), operations );
}

TEST( L3Sm, HandlersAreSilentBeforeItIsInitialized ) {
   OwnL3Sm agent;
   agent.phy()->allEthPhyIntfConfigDirIs( nullptr );
   agent.start();
   agent.sw.set( "routing/hardware/config", "urpfLooseFailForward", true );
   agent.sw.set( "evpn/status", "vxlanEnabled", true );
   agent.sw.set( "routing/mpls/routingInfo/status", "mplsLookupLabelCount", 2 );
   EXPECT_EQ( agent.operations(), 0U );
}

TEST( L3Sm, ZombieIsSilentAndAwakeAgainHears ) {
   OwnL3Sm agent;
   agent.start();
   auto const sm = agent.mounter->l3Sm();
   auto const operations = agent.operations();
   sm->rexDoZombieReactors( true );
   agent.sw.set( "routing/hardware/config", "urpfLooseFailForward", true );
   EXPECT_EQ( agent.operations(), operations );
   sm->rexDoZombieReactors( false );
   agent.sw.set( "routing/hardware/config", "urpfLooseFailForward", false );
   EXPECT_GT( agent.operations(), operations );
}

TEST( L3Sm, NotificationsOffUnsubscribeEveryInput ) {
   OwnL3Sm agent;
   agent.start();
   auto const sm = agent.mounter->l3Sm();
   sm->hasNotificationActiveIs( false );
   EXPECT_FALSE( agent.config()->publisher()->hasSubscribers() );
   EXPECT_FALSE(
      agent.sw.entity< Mpls::RoutingInfo >( "routing/mpls/routingInfo/status" )->publisher()->hasSubscribers() );
   sm->hasNotificationActiveIs( true );
   EXPECT_TRUE( agent.config()->publisher()->hasSubscribers() );
}

TEST( L3Sm, ChipsOfType4KeepOnlyTheInterfaceMachineYetUrpfStillFollows ) {
   OwnL3Sm agent;
   agent.shared< DaceFapNi::SliceSmStateInfo >( "sliceSmStateData" )
      ->revisionIs( { 10, static_cast< ChipType >( 20 ), 7 } );
   agent.start();
   auto const sm = agent.mounter->l3Sm();
   EXPECT_TRUE( sm->initialized() );
   EXPECT_EQ( agent.operations(), 0U );
   agent.sw.set( "routing/hardware/config", "urpfLooseFailForward", true );
   EXPECT_GT( agent.operations(), 0U );
}

TEST( L3Sm, NullConfigurationOfASlotThrowsTheNullArgumentException ) {
   OwnL3Sm agent;
   agent.start();
   EXPECT_THROW( agent.mounter->l3Sm()->slotLoadBalanceIs( nullptr ), Rex::MutatorArgNullPointerException );
}

TEST( L3Sm, TracesItsInitialisation ) {
   std::vector< std::string > texts;
   Rex::traceLevelIs( "DaceFapNiL3Sm", 5 );
   Rex::traceSinkIs( [&]( Rex::TraceRecord const & record ) {
      if ( record.level == 5 && record.text.starts_with( "L3Sm::handleInitialized" ) ) {
         texts.push_back( record.text );
      }
   } );
   OwnL3Sm agent;
   agent.start();
   agent.mounter->l3Sm()->handleInitialized();
   Rex::traceSinkIs( {} );
   EXPECT_EQ( texts,
              ( std::vector< std::string >{ "L3Sm::handleInitialized initialized: false",
                                            "L3Sm::handleInitialized initialized: true" } ) );
}

TEST( L3Sm, MayBeDroppedByWhatItSetsOff ) {
   OwnL3Sm agent;
   agent.start();
   // Whoever hears the same change after it drops the mounter and all that it owns.
   struct Dropper {
      Corvo::Subscriber slot;
      OwnL3Sm & agent;
      static void dispatch( Corvo::Publisher *, Corvo::Subscriber * slot, short, void const *, void const * ) {
         slot->owner< Dropper >()->agent.mounter = nullptr;
      }
   } dropper{ {}, agent };
   dropper.slot.dispatchIs( Dropper::dispatch, &dropper );
   agent.config()->publisher()->subscriberAdd( dropper.slot, false );
   agent.sw.set( "routing/hardware/config", "urpfLooseFailForward", true );
   EXPECT_FALSE( agent.mounter );
   agent.sw.set( "routing/hardware/config", "urpfLooseFailForward", false );
}

} // namespace
