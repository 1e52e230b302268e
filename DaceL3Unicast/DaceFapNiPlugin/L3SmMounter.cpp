#include "L3SmMounter.h"
#include "rex/EntityAttributes.h"

#include "FapGate.h"
#include "MountPlan.h"
#include "rex/Trace.h"

#include <cstdlib>

REX_DEFINE( DaceFapNi::L3SmMounter, "DaceFapNi::L3SmMounter" );

namespace DaceFapNi {

namespace {

Rex::TraceFacility const trace{ "L3SmMounterDaceFapNi" };

constexpr SliceState runnableSliceStates[] = { SliceState{ 31 }, SliceState{ 19 } };

} // namespace

L3SmMounter::L3SmMounter() : MounterBase( "l3SmMounter" ) {}

L3SmMounter::~L3SmMounter() {
   nodeFlagSet( Corvo::NodeFlag::notificationsActive, false ); // nothing dispatches here from now on
   udpDestPortConfigLocalDel();
   nexthopGroupCliDynamicUdpDestPortMergeSmDel();
   dgConfigDel();
   dgConfigMergeSmDel();
   prefixLensInExactMatchMergerSmV4Del();
   l3SmDel();
   pluginRunnabilitySmDel();
}

void L3SmMounter::createPluginStatePhase2() {
   trace( 8, "L3SmMounter::", "createPluginStatePhase2" );
   auto const shared = localSharedState();
   auto const chipInitCfgDir = shared->writeAllowed< ChipInitConfigDir >( "chipInitConfigDir" );
   Rex::sassert( chipInitCfgDir != nullptr, "chipInitCfgDir" );
   auto const chipInitCfg = chipInitCfgDir->addChipInitConfig( "L3Sm" );
   Rex::sassert( chipInitCfg != nullptr, "chipInitCfg" );
   chipInitCfg->callbackIs( [shared]( L3Sm::FapStatusPtr const & fapStatus, auto const &, auto const & ) {
      if ( !isServed( chipTypeToFapType( fapStatus->revision().chipType() ), fapStatus->fapId().value() ) ) {
         return;
      }
      auto const sdk = shared->readOnly< AgentSdkState >( "agentSdkState" );
      L3Sm::initChip( fapStatus, DaceSal::switchControlSalFactory( sdk->sdkHandle(), sdk->salGlobalConfig() ) );
   } );
   chipInitCfg->readyIs( true );
}

void L3SmMounter::startPluginRunnabilitySm() {
   trace( 8, "L3SmMounter::", "startPluginRunnabilitySm" );
   auto const shared = localSharedState()->readOnly< SliceSmStateInfo >( "sliceSmStateData" );
   Rex::sassert( shared != nullptr, "sliceSmState" );
   sliceSmStateIs( shared );
   auto const runnability = pluginRunnabilitySmIs( sliceSmState_, this );
   for ( auto const state : runnableSliceStates ) {
      runnability->runnableStatesIs( state );
   }
}

void L3SmMounter::doMounts() {
   trace( 0, "L3SmMounter::", "doMounts" );
   if ( std::getenv( "DACEFAPNI_SKIP_EXTERNAL_MOUNTER_PLUGINS" ) ) {
      return;
   }
   auto const agentState = localSharedState()->readOnly< AgentGlobalState >( "agentGlobalState" );
   Rex::sassert( agentState != nullptr, "agentState" );
   agentGlobalStateIs( agentState );

   auto const group = entityManager()->getMountGroup( this );
   for ( auto const & row : mountPlan ) {
      auto const path = pathOf( row );
      trace( 8, "Mounting ", path );
      Stordb::Mount mount( path, row.type );
      mount.flags().valIs( 0 );
      mount.handleFlags( row.mode );
      group->doMount( mount );
   }
   group->doClose( false, "", 0 );
   trace( 0, "L3SmMounter::", "doMounts", " done" );
}

// The order of the steps is the order in which their failures show.
void L3SmMounter::doMountsComplete( Stordb::MountStatus mountStatus,
                                    Corvo::Ptr< Stordb::EntityManager > const & entityManager ) {
   trace( 0, "L3SmMounter::", "doMountsComplete" );
   Rex::sassert( mountStatus == Stordb::mountSuccess(), "mountStatus == Stordb::mountSuccess()" );

   auto const shared = localSharedState();
   auto const fetch = [&]< class T >( Mounted mounted, Corvo::Ptr< T > & into ) {
      into = Corvo::ptrCast< T >( entityManager->getEntity( pathOf( mountPlan[static_cast< unsigned >( mounted )] ) ) );
   };
   // Fetched straight into an attribute, by its setter.
   auto const fetchAttribute = [&]< class T >( Mounted mounted,
                                               void ( L3SmMounter::*setter )( Corvo::Ptr< T > const & ) ) {
      Corvo::Ptr< T > fetched;
      fetch( mounted, fetched );
      ( this->*setter )( fetched );
   };

   L3SmArguments sm;
   sm.sliceName = agentGlobalState_ ? agentGlobalState_->sliceName() : Corvo::String();
   Corvo::Ptr< Rex::Dir const > fapStatusDir;
   fetch( Mounted::fapStatusDir, fapStatusDir );
   auto const cellStatus = Corvo::ptrCast< Hardware::Dace::Cell::CellStatus const >(
      fapStatusDir ? fapStatusDir->entityPtr( sm.sliceName ) : nullptr );
   Rex::sassert( cellStatus != nullptr, "cellStatus" );
   sm.cellStatus = cellStatus;

   fetchAttribute( Mounted::bridgingConfig, &L3SmMounter::bridgingConfigIs );
   fetchAttribute( Mounted::hwCapabilities, &L3SmMounter::hwCapabilitiesIs );
   fetchAttribute( Mounted::routerMacHwCapability, &L3SmMounter::routerMacHwCapabilityIs );

   sm.phySmStateSharedStatus = shared->writeAllowed< PhySmStateSharedStatus >( "phySmStateSharedStatus" );
   Rex::sassert( sm.phySmStateSharedStatus != nullptr, "phySmStateSharedStatus" );
   sm.phySmState = shared->readOnly< PhySmStateInfo >( "phySmStateData" );
   Rex::sassert( sm.phySmState != nullptr, "phySmState" );

   fetch( Mounted::episLocalDir, sm.ethPhyIntfStatusLocalDir );
   episLocalDirIs( sm.ethPhyIntfStatusLocalDir );
   fetch( Mounted::subIntfStatusDir, sm.subIntfStatusDir );
   fetch( Mounted::subIntfStatusLocalDir, sm.subIntfStatusLocalDir );
   sm.driverSetupSmStateInfo = shared->readOnly< DriverSetupSmStateInfo >( "driverSetupSmStateInfo" );

   fetchAttribute( Mounted::mplsRoutingInfo, &L3SmMounter::mplsRoutingInfoIs );
   fetchAttribute( Mounted::mplsConfig, &L3SmMounter::mplsConfigIs );
   fetchAttribute( Mounted::vtiStatusDir, &L3SmMounter::vtiStatusDirIs );
   fetchAttribute( Mounted::vxlanEcnConfig, &L3SmMounter::vxlanEcnConfigIs );
   fetchAttribute( Mounted::evpnStatus, &L3SmMounter::evpnStatusIs );
   fetchAttribute( Mounted::routingHwConfig, &L3SmMounter::routingHwConfigIs );

   fetch( Mounted::globalIntfConfig, sm.globalIntfConfig );
   fetch( Mounted::intfHwCapability, sm.intfHwCapability );
   fetch( Mounted::mplsHwCapability, sm.mplsHwCapability );
   sm.portStateInfo = shared->readOnly< PortStateInfo >( "portStateInfo" );
   Rex::sassert( sm.portStateInfo != nullptr, "portStateInfo" );
   fetchAttribute( Mounted::daceLagStatus, &L3SmMounter::daceLagStatusIs );

   udpDestPortConfigLocalIs( "udpDestPort" );
   fetchAttribute( Mounted::udpDestPortConfig, &L3SmMounter::udpDestPortConfigIs );
   fetchAttribute( Mounted::nexthopGroupConfigInput, &L3SmMounter::nexthopGroupConfigInputIs );
   nexthopGroupCliDynamicUdpDestPortMergeSmIs(
      udpDestPortConfigLocal_, udpDestPortConfig_, nexthopGroupConfigInput_, Oxa::SmControl{} );

   dgConfigIs();
   Corvo::Ptr< Rex::Dir const > decapDynamic;
   fetch( Mounted::decapInputDynamic, decapDynamic );
   Corvo::Ptr< Tunnel::Decap::ConfigInput const > decapCli;
   fetch( Mounted::decapInputCli, decapCli );
   dgConfigMergeSmIs( dgConfig_, decapCli, decapDynamic, entityManager );

   auto const sdk = shared->readOnly< AgentSdkState >( "agentSdkState" );
   sm.switchControlSal = DaceSal::switchControlSalFactory( sdk->sdkHandle(), sdk->salGlobalConfig() );
   Rex::sassert( sliceSmState_->smMode() != Hardware::Dace::smModeNull(),
                 "sliceSmState()->smMode() != Hardware::Dace::smModeNull()" );

   auto const mergedPrefixLens = Routing::Hardware::prefixLensInExactMatchFactory( "" );
   Corvo::Ptr< Routing::Hardware::RouteStatus const > routeStatus;
   fetch( Mounted::routeStatus, routeStatus );
   prefixLensInExactMatchMergerSmV4Is( routeStatus, mergedPrefixLens, Oxa::SmControl{} );

   sm.scheduler = shared->writeAllowed< TaskScheduler >( "agentScheduler" )->taskScheduler();
   sm.bridgingConfig = bridgingConfig_;
   sm.hwCapabilities = hwCapabilities_;
   sm.entityManager = entityManager;
   sm.mplsRoutingInfo = mplsRoutingInfo_;
   sm.mplsConfig = mplsConfig_;
   sm.vtiStatusDir = vtiStatusDir_;
   sm.sliceSmState = sliceSmState_;
   sm.dgConfig = dgConfig_;
   sm.udpDestPortConfig = udpDestPortConfig_;
   sm.evpnStatus = evpnStatus_;
   sm.daceLagStatus = daceLagStatus_;
   sm.routerMacHwCapability = routerMacHwCapability_;
   sm.mergedPrefixLensInExactMatchV4 = mergedPrefixLens;
   sm.vxlanEcnConfig = vxlanEcnConfig_;
   sm.routingHwConfig = routingHwConfig_;
   l3SmIs( sm );
   // Behind L3Sm, with which it shares the merged prefix lengths.
   if ( isServed( chipTypeToFapType( sliceSmState_->revision().chipType() ) ) ) {
      remFfcModifierSmIs( RemFfcModifierSm::RemFfcModifierSmIs( cellStatus, mergedPrefixLens ) );
   }

   trace( 0, "L3SmMounter::", "doMountsComplete", " done" );
}

Corvo::Ptr< L3SmMounter::NexthopGroupMergeSm >
L3SmMounter::nexthopGroupCliDynamicUdpDestPortMergeSmIs( Corvo::Ptr< UdpDestPortConfig > const & output,
                                                         Corvo::Ptr< UdpDestPortConfig const > const & config,
                                                         Corvo::Ptr< Rex::Dir const > const & inputs,
                                                         Oxa::SmControl const & control ) {
   return childIs( Attribute::nexthopGroupCliDynamicUdpDestPortMergeSm,
                   nexthopGroupCliDynamicUdpDestPortMergeSm_,
                   NexthopGroupMergeSm::NexthopGroupCliDynamicConfigUdpDestPortMergeSmIs,
                   output,
                   config,
                   inputs,
                   control );
}

Corvo::Ptr< L3SmMounter::NexthopGroupMergeSm > L3SmMounter::nexthopGroupCliDynamicUdpDestPortMergeSmDel() {
   return childDel( Attribute::nexthopGroupCliDynamicUdpDestPortMergeSm, nexthopGroupCliDynamicUdpDestPortMergeSm_ );
}

Corvo::Ptr< Tunnel::Decap::DecapGroupConfigMergeSm >
L3SmMounter::dgConfigMergeSmIs( Corvo::Ptr< Tunnel::Decap::Config > const & output,
                                Corvo::Ptr< Tunnel::Decap::ConfigInput const > const & cli,
                                Corvo::Ptr< Rex::Dir const > const & dynamic,
                                Corvo::Ptr< Stordb::EntityManager > const & entityManager ) {
   return childIs( Attribute::dgConfigMergeSm,
                   dgConfigMergeSm_,
                   Tunnel::Decap::DecapGroupConfigMergeSm::DecapGroupConfigMergeSmIs,
                   output,
                   cli,
                   dynamic,
                   entityManager );
}

Corvo::Ptr< Tunnel::Decap::DecapGroupConfigMergeSm > L3SmMounter::dgConfigMergeSmDel() {
   return childDel( Attribute::dgConfigMergeSm, dgConfigMergeSm_ );
}

Corvo::Ptr< L3SmMounter::PrefixLensMergerSm > L3SmMounter::prefixLensInExactMatchMergerSmV4Is(
   Corvo::Ptr< Routing::Hardware::RouteStatusGen const > const & routeStatus,
   Corvo::Ptr< Routing::Hardware::PrefixLensInExactMatch > const & output,
   Oxa::SmControl const & control ) {
   return childIs( Attribute::prefixLensInExactMatchMergerSmV4,
                   prefixLensInExactMatchMergerSmV4_,
                   PrefixLensMergerSm::PrefixLensInExactMatchMergerSmIs,
                   routeStatus,
                   output,
                   control );
}

Corvo::Ptr< L3SmMounter::PrefixLensMergerSm > L3SmMounter::prefixLensInExactMatchMergerSmV4Del() {
   return childDel( Attribute::prefixLensInExactMatchMergerSmV4, prefixLensInExactMatchMergerSmV4_ );
}

Corvo::Ptr< L3Sm > L3SmMounter::l3SmIs( L3SmArguments const & arguments ) {
   return childIs( Attribute::l3Sm, l3Sm_, l3SmFactory, arguments );
}

Corvo::Ptr< L3Sm > L3SmMounter::l3SmDel() {
   return childDel( Attribute::l3Sm, l3Sm_ );
}

Corvo::Ptr< MounterRunnabilitySm >
L3SmMounter::pluginRunnabilitySmIs( Corvo::Ptr< SliceSmStateInfo const > const & sliceSm, MounterBase * mounter ) {
   return childIs( Attribute::pluginRunnabilitySm,
                   pluginRunnabilitySm_,
                   MounterRunnabilitySm::MounterRunnabilitySmIs,
                   sliceSm,
                   mounter );
}

Corvo::Ptr< MounterRunnabilitySm > L3SmMounter::pluginRunnabilitySmDel() {
   return childDel( Attribute::pluginRunnabilitySm, pluginRunnabilitySm_ );
}

Corvo::Ptr< L3SmMounter::UdpDestPortConfig > const &
L3SmMounter::udpDestPortConfigLocalIs( Corvo::String const & name ) {
   if ( !udpDestPortConfigLocal_ || udpDestPortConfigLocal_->name() != name ) {
      if ( udpDestPortConfigLocal_ ) {
         udpDestPortConfigLocal_->parentIs( nullptr );
      }
      udpDestPortConfigLocal_ = Corvo::makePtr< UdpDestPortConfig >( name );
      udpDestPortConfigLocal_->parentIs( this );
      announce( Attribute::udpDestPortConfigLocal );
   }
   return udpDestPortConfigLocal_;
}

Corvo::Ptr< L3SmMounter::UdpDestPortConfig > L3SmMounter::udpDestPortConfigLocalDel() {
   auto const old = std::exchange( udpDestPortConfigLocal_, nullptr );
   if ( old ) {
      old->parentIs( nullptr );
      announce( Attribute::udpDestPortConfigLocal );
   }
   return old;
}

Corvo::Ptr< Tunnel::Decap::Config > const & L3SmMounter::dgConfigIs() {
   if ( !dgConfig_ ) {
      dgConfig_ = Corvo::makePtr< Tunnel::Decap::Config >();
      announce( Attribute::dgConfig );
   }
   return dgConfig_;
}

Corvo::Ptr< Tunnel::Decap::Config > L3SmMounter::dgConfigDel() {
   auto const old = std::exchange( dgConfig_, nullptr );
   if ( old ) {
      announce( Attribute::dgConfig );
   }
   return old;
}

} // namespace DaceFapNi
