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
   enum Attribute : short {
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

   // State that this mounter makes: kept if it is there already (under this name).
   Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig > const & udpDestPortConfigLocalIs( Corvo::String const & name );
   Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig > udpDestPortConfigLocalDel();
   Corvo::Ptr< Tunnel::Decap::Config > const & dgConfigIs();
   Corvo::Ptr< Tunnel::Decap::Config > dgConfigDel();

   // State machines: kept if they were built from these arguments, otherwise built anew and activated.
   Corvo::Ptr< MounterRunnabilitySm > pluginRunnabilitySmIs( Corvo::Ptr< SliceSmStateInfo const > const & sliceSmState,
                                                             MounterBase * mounter );
   Corvo::Ptr< L3Sm > l3SmIs( L3SmArguments const & arguments );
   // A plain store: it has no remover, and is released with the attributes, after L3Sm is gone.
   void remFfcModifierSmIs( Corvo::Ptr< RemFfcModifierSm const > const & remFfcModifierSm );
   Corvo::Ptr< RemFfcModifierSm const > const & remFfcModifierSmPtr() const { return remFfcModifierSm_; }
   Corvo::Ptr< L3Sm > const & l3SmPtr() const { return l3Sm_.get(); }

   Corvo::Ptr< Tunnel::Decap::Config > const & dgConfigPtr() const { return dgConfig_; }
   Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig > const & udpDestPortConfigLocalPtr() const {
      return udpDestPortConfigLocal_;
   }

 private:
   template< class T >
   void attributeIs( Attribute id, Corvo::Ptr< T > & attribute, Corvo::Ptr< T > const & value ) {
      assign( attribute, value, id );
   }
   // Runs a child's remover, which announces the change.
   template< class C >
   auto childDel( Attribute id, C & child ) {
      auto const old = child.take();
      if ( old ) {
         publisher()->publish( id );
      }
      return old;
   }

   using NexthopGroupMergeSm = NexthopGroup::NexthopGroupCliDynamicConfigUdpDestPortMergeSm;
   using UdpDestPortConfig = L3::Tunnel::UdpDestinationPortConfig;

   Corvo::Ptr< AgentGlobalState const > agentGlobalState_;
   Corvo::Ptr< Bridging::Config const > bridgingConfig_;
   Corvo::Ptr< Bridging::HwCapabilities const > hwCapabilities_;
   Corvo::Ptr< Interface::EthPhyIntfStatusLocalDir > episLocalDir_;
   Corvo::Ptr< Mpls::RoutingInfo const > mplsRoutingInfo_;
   Corvo::Ptr< Mpls::Config const > mplsConfig_;
   Corvo::Ptr< Vxlan::VtiStatusDir > vtiStatusDir_;
   Corvo::Ptr< Vxlan::EcnConfig const > vxlanEcnConfig_;
   Corvo::Ptr< Routing::Hardware::Config const > routingHwConfig_;
   Corvo::Ptr< SliceSmStateInfo const > sliceSmState_;
   Corvo::Ptr< Evpn::EvpnStatus const > evpnStatus_;
   Corvo::Ptr< Hardware::DaceLag::Status const > daceLagStatus_;
   Corvo::Ptr< RouterMac::HwCapability const > routerMacHwCapability_;
   Corvo::Ptr< UdpDestPortConfig > udpDestPortConfigLocal_;
   Corvo::Ptr< UdpDestPortConfig const > udpDestPortConfig_;
   Corvo::Ptr< Rex::Dir const > nexthopGroupConfigInput_;
   Child< NexthopGroupMergeSm,
          Corvo::Ptr< UdpDestPortConfig >,
          Corvo::Ptr< UdpDestPortConfig const >,
          Corvo::Ptr< Rex::Dir const >,
          Oxa::SmControl >
      nexthopGroupCliDynamicUdpDestPortMergeSm_;
   Corvo::Ptr< Tunnel::Decap::Config > dgConfig_;
   Child< Tunnel::Decap::DecapGroupConfigMergeSm,
          Corvo::Ptr< Tunnel::Decap::Config >,
          Corvo::Ptr< Tunnel::Decap::ConfigInput const >,
          Corvo::Ptr< Rex::Dir const >,
          Corvo::Ptr< Stordb::EntityManager > >
      dgConfigMergeSm_;
   Child< Routing::Hardware::PrefixLensInExactMatchMergerSm,
          Corvo::Ptr< Routing::Hardware::RouteStatusGen const >,
          Corvo::Ptr< Routing::Hardware::PrefixLensInExactMatch >,
          Oxa::SmControl >
      prefixLensInExactMatchMergerSmV4_;
   Child< L3Sm, L3SmArguments > l3Sm_;
   Child< MounterRunnabilitySm, Corvo::Ptr< SliceSmStateInfo const >, MounterBase * > pluginRunnabilitySm_;
   Corvo::Ptr< RemFfcModifierSm const > remFfcModifierSm_;
};

} // namespace DaceFapNi
