// L3SmMounter: the single owner of all state of the plug-in. It requests the mounts, registers the chip-init callback,
// and builds the state machines when the mounts have arrived.
//
// Stages: see agent/Mounter.h, which drives them. Teardown runs from the merge machines over L3Sm to the runnability
// machine; RemFfcModifierSm is released after them, first of the attributes.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "Child.h"
#include "L3Sm.h"
#include "RemFfcModifierSm.h"
#include "agent/MergeMachines.h"
#include "agent/Mounter.h"

namespace DaceFapNi {

class L3SmMounter : public MounterBase {
   REX_ENTITY( L3SmMounter, MounterBase );

 public:
   L3SmMounter();
   ~L3SmMounter() override;

   void createPluginStatePhase2() override;
   void startPluginRunnabilitySm() override;
   void doMounts() override;
   void doMountsComplete( Stordb::MountStatus status,
                          Corvo::Ptr< Stordb::EntityManager > const & entityManager ) override;

   // The attributes' numbers, in declaration order. A change of one is announced under its number.
   enum class Attribute : short {
      agentGlobalState = 0x201,
      bridgingConfig,
      hwCapabilities,
      episLocalDir,
      mplsRoutingInfo,
      mplsConfig,
      vtiStatusDir,
      vxlanEcnConfig,
      routingHwConfig,
      sliceSmState,
      evpnStatus,
      daceLagStatus,
      routerMacHwCapability,
      udpDestPortConfigLocal,
      udpDestPortConfig,
      nexthopGroupConfigInput,
      nexthopGroupCliDynamicUdpDestPortMergeSm,
      dgConfig,
      dgConfigMergeSm,
      prefixLensInExactMatchMergerSmV4,
      l3Sm,
      pluginRunnabilitySm,
      remFfcModifierSm,
   };

   using NexthopGroupMergeSm = NexthopGroup::NexthopGroupCliDynamicConfigUdpDestPortMergeSm;
   using PrefixLensMergerSm = Routing::Hardware::PrefixLensInExactMatchMergerSm;
   using UdpDestPortConfig = L3::Tunnel::UdpDestinationPortConfig;

// A plain attribute: getter, setter (a store, announced if it changes anything) and the pointer. All of them are held
// by one line each, and all lines stand in the order of the attributes: they are released from the last to the first.
#define L3SM_MOUNTER_ATTRIBUTE( Type, attribute )                                                                      \
 public:                                                                                                               \
   Corvo::Ptr< Type > const & attribute() const {                                                                      \
      return attribute##_;                                                                                             \
   }                                                                                                                   \
   void attribute##Is( Corvo::Ptr< Type > const & value ) {                                                            \
      assign( attribute##_, value, static_cast< short >( Attribute::attribute ) );                                     \
   }                                                                                                                   \
                                                                                                                       \
 private:                                                                                                              \
   Corvo::Ptr< Type > attribute##_

   L3SM_MOUNTER_ATTRIBUTE( AgentGlobalState const, agentGlobalState );
   L3SM_MOUNTER_ATTRIBUTE( Bridging::Config const, bridgingConfig );
   L3SM_MOUNTER_ATTRIBUTE( Bridging::HwCapabilities const, hwCapabilities );
   L3SM_MOUNTER_ATTRIBUTE( Interface::EthPhyIntfStatusLocalDir, episLocalDir );
   L3SM_MOUNTER_ATTRIBUTE( Mpls::RoutingInfo const, mplsRoutingInfo );
   L3SM_MOUNTER_ATTRIBUTE( Mpls::Config const, mplsConfig );
   L3SM_MOUNTER_ATTRIBUTE( Vxlan::VtiStatusDir, vtiStatusDir );
   L3SM_MOUNTER_ATTRIBUTE( Vxlan::EcnConfig const, vxlanEcnConfig );
   L3SM_MOUNTER_ATTRIBUTE( Routing::Hardware::Config const, routingHwConfig );
   L3SM_MOUNTER_ATTRIBUTE( SliceSmStateInfo const, sliceSmState );
   L3SM_MOUNTER_ATTRIBUTE( Evpn::EvpnStatus const, evpnStatus );
   L3SM_MOUNTER_ATTRIBUTE( Hardware::DaceLag::Status const, daceLagStatus );
   L3SM_MOUNTER_ATTRIBUTE( RouterMac::HwCapability const, routerMacHwCapability );

   // State that this mounter makes: kept if it is there already (under this name).
 public:
   Corvo::Ptr< UdpDestPortConfig > const & udpDestPortConfigLocal() const {
      return udpDestPortConfigLocal_;
   }
   Corvo::Ptr< UdpDestPortConfig > const & udpDestPortConfigLocalIs( Corvo::String const & name );
   Corvo::Ptr< UdpDestPortConfig > udpDestPortConfigLocalDel();

 private:
   Corvo::Ptr< UdpDestPortConfig > udpDestPortConfigLocal_;

   L3SM_MOUNTER_ATTRIBUTE( UdpDestPortConfig const, udpDestPortConfig );
   L3SM_MOUNTER_ATTRIBUTE( Rex::Dir const, nexthopGroupConfigInput );

   // State machines: kept if they were built from these arguments, otherwise built anew, announced, and activated.
 public:
   Corvo::Ptr< NexthopGroupMergeSm > const & nexthopGroupCliDynamicUdpDestPortMergeSm() const {
      return nexthopGroupCliDynamicUdpDestPortMergeSm_.get();
   }
   Corvo::Ptr< NexthopGroupMergeSm >
   nexthopGroupCliDynamicUdpDestPortMergeSmIs( Corvo::Ptr< UdpDestPortConfig > const & output,
                                               Corvo::Ptr< UdpDestPortConfig const > const & config,
                                               Corvo::Ptr< Rex::Dir const > const & inputs,
                                               Oxa::SmControl const & control );
   Corvo::Ptr< NexthopGroupMergeSm > nexthopGroupCliDynamicUdpDestPortMergeSmDel();

 private:
   Child< NexthopGroupMergeSm,
          Corvo::Ptr< UdpDestPortConfig >,
          Corvo::Ptr< UdpDestPortConfig const >,
          Corvo::Ptr< Rex::Dir const >,
          Oxa::SmControl >
      nexthopGroupCliDynamicUdpDestPortMergeSm_;

 public:
   Corvo::Ptr< Tunnel::Decap::Config > const & dgConfig() const {
      return dgConfig_;
   }
   Corvo::Ptr< Tunnel::Decap::Config > const & dgConfigIs();
   Corvo::Ptr< Tunnel::Decap::Config > dgConfigDel();

 private:
   Corvo::Ptr< Tunnel::Decap::Config > dgConfig_;

 public:
   Corvo::Ptr< Tunnel::Decap::DecapGroupConfigMergeSm > const & dgConfigMergeSm() const {
      return dgConfigMergeSm_.get();
   }
   Corvo::Ptr< Tunnel::Decap::DecapGroupConfigMergeSm >
   dgConfigMergeSmIs( Corvo::Ptr< Tunnel::Decap::Config > const & output,
                      Corvo::Ptr< Tunnel::Decap::ConfigInput const > const & cli,
                      Corvo::Ptr< Rex::Dir const > const & dynamic,
                      Corvo::Ptr< Stordb::EntityManager > const & entityManager );
   Corvo::Ptr< Tunnel::Decap::DecapGroupConfigMergeSm > dgConfigMergeSmDel();

 private:
   Child< Tunnel::Decap::DecapGroupConfigMergeSm,
          Corvo::Ptr< Tunnel::Decap::Config >,
          Corvo::Ptr< Tunnel::Decap::ConfigInput const >,
          Corvo::Ptr< Rex::Dir const >,
          Corvo::Ptr< Stordb::EntityManager > >
      dgConfigMergeSm_;

 public:
   Corvo::Ptr< PrefixLensMergerSm > const & prefixLensInExactMatchMergerSmV4() const {
      return prefixLensInExactMatchMergerSmV4_.get();
   }
   Corvo::Ptr< PrefixLensMergerSm >
   prefixLensInExactMatchMergerSmV4Is( Corvo::Ptr< Routing::Hardware::RouteStatusGen const > const & routeStatus,
                                       Corvo::Ptr< Routing::Hardware::PrefixLensInExactMatch > const & output,
                                       Oxa::SmControl const & control );
   Corvo::Ptr< PrefixLensMergerSm > prefixLensInExactMatchMergerSmV4Del();

 private:
   Child< PrefixLensMergerSm,
          Corvo::Ptr< Routing::Hardware::RouteStatusGen const >,
          Corvo::Ptr< Routing::Hardware::PrefixLensInExactMatch >,
          Oxa::SmControl >
      prefixLensInExactMatchMergerSmV4_;

 public:
   Corvo::Ptr< L3Sm > const & l3Sm() const {
      return l3Sm_.get();
   }
   Corvo::Ptr< L3Sm > l3SmIs( L3SmArguments const & arguments );
   Corvo::Ptr< L3Sm > l3SmDel();

 private:
   Child< L3Sm, L3SmArguments > l3Sm_;

 public:
   Corvo::Ptr< MounterRunnabilitySm > const & pluginRunnabilitySm() const {
      return pluginRunnabilitySm_.get();
   }
   Corvo::Ptr< MounterRunnabilitySm > pluginRunnabilitySmIs( Corvo::Ptr< SliceSmStateInfo const > const & sliceSmState,
                                                             MounterBase * mounter );
   Corvo::Ptr< MounterRunnabilitySm > pluginRunnabilitySmDel();

 private:
   Child< MounterRunnabilitySm, Corvo::Ptr< SliceSmStateInfo const >, MounterBase * > pluginRunnabilitySm_;

   // Has no remover: it is released with the attributes, after L3Sm is gone.
   L3SM_MOUNTER_ATTRIBUTE( RemFfcModifierSm const, remFfcModifierSm );

#undef L3SM_MOUNTER_ATTRIBUTE

   void announce( Attribute attribute ) {
      publisher()->publish( static_cast< short >( attribute ) );
   }
   // A child's setter and remover, with the announcement.
   auto childIs( Attribute attribute, auto & child, auto build, auto const &... args ) {
      return child.is(
         build, [=, this] { announce( attribute ); }, args... );
   }
   auto childDel( Attribute attribute, auto & child ) {
      auto const old = child.take();
      if ( old ) {
         announce( attribute );
      }
      return old;
   }
};

} // namespace DaceFapNi
