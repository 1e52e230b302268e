// L3Sm: the central state machine of the plug-in, and the home of the static programming that runs once for each chip.
//
// Two paths reach the chips:
//    - initChip: the chip-init list, run by the platform's chip-init callback, with no L3Sm object involved;
//    - an L3Sm object: once both interface directories exist it builds its children, runs the second programming list,
//      and from then on follows its inputs.
// Both lists stand in L3SmProgramming.cpp. A subject of the programming has a file of its own, named at its functions.
//
// Life: built (an interface directory is missing) -> initialized -> destroyed. There is no way back.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "Child.h"
#include "GueNexthopGroupSm.h"
#include "L3IntfSm.h"
#include "L3SmArguments.h"
#include "MplsParserSm.h"
#include "VtiStatusDirSm.h"
#include "VxlanQosSm.h"
#include "VxlanSplitHorizonSm.h"
#include "corvo/Watched.h"
#include "rex/HashMap2018.h"

namespace DaceFapNi {

class L3Sm : public Corvo::Node {
 public:
   using FapStatusPtr = Corvo::Ptr< Hardware::Dace::Cell::FapStatus const >;
   using SwitchControlSalPtr = Corvo::Ptr< DaceSal::SwitchControlSal >;

   // Subscribes to the inputs, and runs handleInitialized.
   explicit L3Sm( L3SmArguments const & arguments );
   ~L3Sm() override;
   // Makes an L3Sm and activates it.
   static Corvo::Ptr< L3Sm > L3SmIs( L3SmArguments const & arguments );

   // Idempotent. Subscribes to or unsubscribes from every input, and passes the value to every child and reactor.
   void hasNotificationActiveIs( bool active );
   // Idempotent. Passes the value to the nested reactors; children carry their own flags.
   virtual void rexDoZombieReactors( bool zombie );

   // May run many times, acts once: when both interface directories exist.
   void handleInitialized();
   void handleAllEthPhyIntfDir() { handleInitialized(); }
   bool initialized() const { return initialized_; }

   // The chip-init list, for one FAP, in its order.
   static void initChip( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal );

   // Static programming, once for each chip. Each subject has its own file.

   // L3SmRouting.cpp: which forwarding domains route, and for which kinds of traffic
   static void initEnablersVectors( FapStatusPtr const & fapStatus );
   static void initVsiProfileTable( FapStatusPtr const & fapStatus );
   static void initSviLearning( FapStatusPtr const & fapStatus );
   static void initIppbFlpbResContextEnablersReg( FapStatusPtr const & fapStatus );
   void initUnknownDaProfileTable();

   // L3SmInLifProfiles.cpp: RPF mode and context selection by in-LIF profile
   static void clearInLifProfileCsMapMsb( FapStatusPtr const & fapStatus );
   static void clearInLifProfileCsMapLsb( FapStatusPtr const & fapStatus );
   static void initInLifProfileTable( FapStatusPtr const & fapStatus );
   static void initIppcInLifProfileCsMapping( FapStatusPtr const & fapStatus );
   static void setupVplsVlanAwareCsProfile( FapStatusPtr const & fapStatus );
   static void setupAegisSetSecondaryVrfCsProfile( FapStatusPtr const & fapStatus );
   static void setupVxlanUdpEspCsProfile( FapStatusPtr const & fapStatus );

   // L3SmLifOrientation.cpp: orientation and same-interface filter by LIF profile
   static void initInlifOrientationMapTable( FapStatusPtr const & fapStatus );
   static void initOutlifOrientationMap( FapStatusPtr const & fapStatus );

   // L3SmKaps.cpp: VRF fallback, KAPS defaults and strengths
   static void initVrfFallbackMapping( FapStatusPtr const & fapStatus );
   static void initKapsInterfaceDefault( FapStatusPtr const & fapStatus );
   static void initKapsStrengthMapping( FapStatusPtr const & fapStatus );
   static void verifyKapsStrengthMapping( FapStatusPtr const & fapStatus );

   // L3SmIpTraps.cpp: strengths of the header-check traps, and three trap registers
   static void initIpTraps( FapStatusPtr const & fapStatus );
   static void initIpTrapsFwd( FapStatusPtr const & fapStatus );
   static void initIpTrapsVtt( FapStatusPtr const & fapStatus );
   static void initSplitHorizonTrapParamCfgReg( FapStatusPtr const & fapStatus );
   static void initIppbProgTrapCfgReg( FapStatusPtr const & fapStatus );
   static void initIppdFerTrapCfgReg( FapStatusPtr const & fapStatus );

   // L3SmEgressLimits.cpp: the recycle path of MTU failures, and the limits of the egress
   static void disableIngressTermination( FapStatusPtr const & fapStatus );
   static void initIppeRecycFwdProfileMappingReg( FapStatusPtr const & fapStatus );
   static void initMtuRecycleLog( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal );
   static void initEtppCfgFwdDoNotTtlDecrement( FapStatusPtr const & fapStatus );
   static void initFlpRpfFormatConfig( FapStatusPtr const & fapStatus );
   static void initLifMcBridgeFallbackAllowReg( FapStatusPtr const & fapStatus );
   static void doCopyFwdDomainConfigToLifStatsForEtpsArpAc( FapStatusPtr const & fapStatus,
                                                            SwitchControlSalPtr const & sal );
   static void doSetupVxlanMcastEtppDoubleOutLifSwap( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal );
   void initEgressOutrifMaxValueReg();

   // L3SmWellKnownLifs.cpp: well-known LIFs and destinations, set through numbered controls
   static void initMplsDefaultFwdResult( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal );
   static void initSaProcedureFwd2RoutingCtxs( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal );
   static void doSetupVtt5DefaultLif( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal );
   static void doSetupVxlanDefaultVsi( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal );
   static void doSetupVxlanVtt5DefaultLif( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal );
   static void doSetupVtt5VniToVrfDummyLif( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal );
   static void doSetupVxlanMcastSgiProgram( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal );
   static void doSetupVxlanSipMissLif( FapStatusPtr const & fapStatus, SwitchControlSalPtr const & sal );

   // Handlers: programming that follows the inputs. Each recomputes everything and writes every FAP.

   // L3SmUrpf.cpp: what happens to packets whose source check fails
   void handleUrpfFailFwdConfig( U32 trapIndex, bool enable );
   void handleLooseUrpfFailFwdConfig();
   void handleStrictUrpfFailFwdConfig();

   // L3SmExactMatch.cpp: lookup strengths that follow the prefix lengths in the exact-match engine
   void handlePrefixLensInExactMatch();

   // L3SmMpls.cpp: MPLS forwarding contexts
   void setupMplsFwdContext();
   void setupMplsLookupFbIpFwdContext();
   static void setupMplsPopFheiFormat( FapStatusPtr const & fapStatus );

   // L3SmEvpn.cpp: EVPN encapsulation, DCI gateway, decapsulation of all routes
   void handleEvpnEncapType();
   void handleEvpnDciGateway();
   void handleDecapRouteAll();

   // L3SmSlotLoadBalance.cpp: GUE termination by the load-balance configuration of the own slot
   class NestedSm_SlotLoadBalance;
   Corvo::Ptr< NestedSm_SlotLoadBalance >
   slotLoadBalanceIs( Corvo::Ptr< Hardware::Dace::LoadBalanceHwConfig const > const & config );
   Corvo::Ptr< NestedSm_SlotLoadBalance > slotLoadBalanceDel( Fru::SlotId slot );
   void slotLoadBalanceDelAll();
   void doSetupSlotGueLoadBalance() const;

   L3SmArguments const & arguments() const { return in_; }

   // The child state machines, null until they are built; Child.h tells what setters and removers do, the child's
   // constructor what its arguments are.
   Corvo::Ptr< EthIntf::EthIntfVrfSmHelper > const & ethIntfVrfSmHelper() const { return ethIntfVrfSmHelper_.get(); }
   Corvo::Ptr< L3IntfSm > const & l3IntfSm() const { return l3IntfSm_.get(); }
   Corvo::Ptr< DaceL3UnicastVtiStatusDirSm > const & vtiStatusDirSm() const { return vtiStatusDirSm_.get(); }
   Corvo::Ptr< VxlanSplitHorizonCfgSm > const & vxlanSplitHorizonCfgSm() const { return vxlanSplitHorizonCfgSm_.get(); }
   Corvo::Ptr< VxlanQosSm > const & vxlanQosSm() const { return vxlanQosSm_.get(); }
   Corvo::Ptr< MplsParserCfgSm > const & mplsParserCfgSm() const { return mplsParserCfgSm_.get(); }
   Corvo::Ptr< GueNexthopGroupSm > const & nexthopGroupSm() const { return nexthopGroupSm_.get(); }
   auto ethIntfVrfSmHelperIs( Corvo::Ptr< Stordb::EntityManager > const & entityManager ) {
      return ethIntfVrfSmHelper_.is( EthIntf::ethIntfVrfSmHelperFactory, entityManager );
   }
   auto l3IntfSmIs( L3IntfSmArguments const & arguments ) { return l3IntfSm_.is( l3IntfSmFactory, arguments ); }
   auto vtiStatusDirSmIs( auto const &... args ) {
      return vtiStatusDirSm_.is( daceL3UnicastVtiStatusDirSmFactory, args... );
   }
   auto vxlanSplitHorizonCfgSmIs( auto const &... args ) {
      return vxlanSplitHorizonCfgSm_.is( vxlanSplitHorizonCfgSmFactory, args... );
   }
   auto vxlanQosSmIs( auto const &... args ) { return vxlanQosSm_.is( vxlanQosSmFactory, args... ); }
   auto mplsParserCfgSmIs( auto const &... args ) { return mplsParserCfgSm_.is( mplsParserCfgSmFactory, args... ); }
   auto nexthopGroupSmIs( auto const &... args ) { return nexthopGroupSm_.is( gueNexthopGroupSmFactory, args... ); }
   auto ethIntfVrfSmHelperDel() { return ethIntfVrfSmHelper_.del(); }
   auto l3IntfSmDel() { return l3IntfSm_.del(); }
   auto vtiStatusDirSmDel() { return vtiStatusDirSm_.del(); }
   auto vxlanSplitHorizonCfgSmDel() { return vxlanSplitHorizonCfgSm_.del(); }
   auto vxlanQosSmDel() { return vxlanQosSm_.del(); }
   auto mplsParserCfgSmDel() { return mplsParserCfgSm_.del(); }
   auto nexthopGroupSmDel() { return nexthopGroupSm_.del(); }

 private:
   struct DispatchRow {
      short attribute;
      void ( L3Sm::*handler )();
   };
   // The dispatch function of an input: runs the handlers that its rows name, unless the machine is a zombie.
   template< auto const & rows >
   static void dispatch( Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const *, void const * );

   static DispatchRow const phySmStateSharedStatusRows[1];
   static DispatchRow const phySmStateRows[1];
   static DispatchRow const mplsRoutingInfoRows[2];
   static DispatchRow const vtiStatusDirRows[1];
   static DispatchRow const evpnStatusRows[2];
   static DispatchRow const mergedPrefixLensInExactMatchV4Rows[1];
   static DispatchRow const routingHwConfigRows[2];
   static DispatchRow const driverSetupSmStateInfoRows[1];
   // Follows the slots' load-balance configurations as they come and go, also while the machine is a zombie.
   static void daceLagStatusDispatch(
      Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const * key, void const * );

   void buildInterfaceMachine();
   void buildChildren();
   void programInitialState();
   // Passes the value to the children but the VRF helper, in the order of their attributes.
   void childrenActiveIs( bool active );
   // The slot that this agent runs on; 0 where the slice has none.
   Fru::SlotId mySlotId() const;

   L3SmArguments const in_;
   // The subscribed inputs, in the order of their attributes.
   Corvo::WatchedIn< PhySmStateSharedStatus > phySmStateSharedStatus_;
   Corvo::WatchedIn< PhySmStateInfo const > phySmState_;
   Corvo::WatchedIn< Mpls::RoutingInfo const > mplsRoutingInfo_;
   Corvo::WatchedIn< Vxlan::VtiStatusDir > vtiStatusDir_;
   Corvo::WatchedIn< Evpn::EvpnStatus const > evpnStatus_;
   Corvo::WatchedIn< Hardware::DaceLag::Status const > daceLagStatus_;
   Corvo::WatchedIn< Routing::Hardware::PrefixLensInExactMatch const > mergedPrefixLensInExactMatchV4_;
   Corvo::WatchedIn< Routing::Hardware::Config const > routingHwConfig_;
   Corvo::WatchedIn< DriverSetupSmStateInfo const > driverSetupSmStateInfo_;
   // The children, in the order of their attributes.
   // clang-format off
   Child< EthIntf::EthIntfVrfSmHelper, Corvo::Ptr< Stordb::EntityManager > > ethIntfVrfSmHelper_;
   Child< DaceL3UnicastVtiStatusDirSm, Corvo::String, Corvo::Ptr< Vxlan::VtiStatusDir const >,
          Corvo::Ptr< Bridging::HwCapabilities const >, CellStatusPtr, SwitchControlSalPtr > vtiStatusDirSm_;
   Child< VxlanSplitHorizonCfgSm, Corvo::Ptr< Vxlan::VtiStatusDir const >, Corvo::Ptr< Evpn::EvpnStatus const >,
          CellStatusPtr > vxlanSplitHorizonCfgSm_;
   Child< VxlanQosSm, Corvo::Ptr< Vxlan::EcnConfig const >, CellStatusPtr > vxlanQosSm_;
   Child< L3IntfSm, L3IntfSmArguments > l3IntfSm_;
   Child< MplsParserCfgSm, Corvo::Ptr< Mpls::Config const >, Corvo::Ptr< Mpls::Hardware::Capability const >,
          SwitchControlSalPtr, CellStatusPtr > mplsParserCfgSm_;
   Child< GueNexthopGroupSm, CellStatusPtr, Corvo::Ptr< Tunnel::Decap::Config const >,
          Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig const >, SwitchControlSalPtr > nexthopGroupSm_;
   // clang-format on
   Rex::HashMap2018< Fru::SlotId, Corvo::Ptr< NestedSm_SlotLoadBalance > > slotLoadBalance_;
   // Why a handler does nothing before it is.
   static constexpr char const * notInitialized = "the interface directories are not there yet";
   bool initialized_ = false;
};

// Makes an L3Sm and activates it.
Corvo::Ptr< L3Sm > l3SmFactory( L3SmArguments const & arguments );

} // namespace DaceFapNi
