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
   childDel( nexthopGroupCliDynamicUdpDestPortMergeSm, nexthopGroupCliDynamicUdpDestPortMergeSm_ );
   dgConfigDel();
   childDel( dgConfigMergeSm, dgConfigMergeSm_ );
   childDel( prefixLensInExactMatchMergerSmV4, prefixLensInExactMatchMergerSmV4_ );
   childDel( l3Sm, l3Sm_ );
   childDel( pluginRunnabilitySm, pluginRunnabilitySm_ );
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
   attributeIs( sliceSmState, sliceSmState_, shared );
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
   attributeIs( agentGlobalState, agentGlobalState_, agentState );

   auto const group = entityManager()->getMountGroup( this );
   for ( auto const & row : mountPlan ) {
      auto const path = row.isCell ? Cell::path( row.path, 0 ) : Corvo::String( row.path );
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
   auto const fetch = [&]< class T >( char const * path, Corvo::Ptr< T > & into ) {
      into = Corvo::ptrCast< T >( entityManager->getEntity( path ) );
   };
   auto const fetchCell = [&]< class T >( char const * path, Corvo::Ptr< T > & into ) {
      into = Corvo::ptrCast< T >( entityManager->getEntity( Cell::path( path, 0 ) ) );
   };
   auto const fetchAttribute = [&]< class T >( Attribute id, Corvo::Ptr< T > & attribute, char const * path ) {
      attributeIs( id, attribute, Corvo::ptrCast< T >( entityManager->getEntity( path ) ) );
   };

   L3SmArguments sm;
   sm.sliceName = agentGlobalState_ ? agentGlobalState_->sliceName() : Corvo::String();
   Corvo::Ptr< Rex::Dir const > fapStatusDir;
   fetch( "hardware/dace/fap/status", fapStatusDir );
   auto const cellStatus = Corvo::ptrCast< Hardware::Dace::Cell::CellStatus const >(
      fapStatusDir ? fapStatusDir->entityPtr( sm.sliceName ) : nullptr );
   Rex::sassert( cellStatus != nullptr, "cellStatus" );
   sm.cellStatus = cellStatus;

   fetchAttribute( bridgingConfig, bridgingConfig_, "bridging/config" );
   fetchAttribute( hwCapabilities, hwCapabilities_, "bridging/hwcapabilities" );
   fetchAttribute( routerMacHwCapability, routerMacHwCapability_, "routerMac/hwCapability" );

   sm.phySmStateSharedStatus = shared->writeAllowed< PhySmStateSharedStatus >( "phySmStateSharedStatus" );
   Rex::sassert( sm.phySmStateSharedStatus != nullptr, "phySmStateSharedStatus" );
   sm.phySmState = shared->readOnly< PhySmStateInfo >( "phySmStateData" );
   Rex::sassert( sm.phySmState != nullptr, "phySmState" );

   fetchCell( "interface/status/eth/phy/local", sm.ethPhyIntfStatusLocalDir );
   attributeIs( episLocalDir, episLocalDir_, sm.ethPhyIntfStatusLocalDir );
   fetch( "interface/status/subintf", sm.subIntfStatusDir );
   fetchCell( "interface/status/subintf/local", sm.subIntfStatusLocalDir );
   sm.driverSetupSmStateInfo = shared->readOnly< DriverSetupSmStateInfo >( "driverSetupSmStateInfo" );

   fetchAttribute( mplsRoutingInfo, mplsRoutingInfo_, "routing/mpls/routingInfo/status" );
   fetchAttribute( mplsConfig, mplsConfig_, "routing/mpls/config" );
   fetchAttribute( vtiStatusDir, vtiStatusDir_, "interface/status/eth/vxlan" );
   fetchAttribute( vxlanEcnConfig, vxlanEcnConfig_, "vxlan/ecnConfig" );
   fetchAttribute( evpnStatus, evpnStatus_, "evpn/status" );
   fetchAttribute( routingHwConfig, routingHwConfig_, "routing/hardware/config" );

   fetch( "interface/config/global", sm.globalIntfConfig );
   fetch( "interface/hardware/capability", sm.intfHwCapability );
   fetch( "routing/hardware/mpls/capability", sm.mplsHwCapability );
   sm.portStateInfo = shared->readOnly< PortStateInfo >( "portStateInfo" );
   Rex::sassert( sm.portStateInfo != nullptr, "portStateInfo" );
   fetchAttribute( daceLagStatus, daceLagStatus_, "hardware/dace/lag/daceLagStatus" );

   udpDestPortConfigLocalIs( "udpDestPort" );
   fetchAttribute( udpDestPortConfig, udpDestPortConfig_, "l3/tunnel/udpDestinationPortConfig" );
   fetchAttribute( nexthopGroupConfigInput, nexthopGroupConfigInput_, "routing/nexthopgroup/input/config" );
   nexthopGroupCliDynamicUdpDestPortMergeSm_.is(
      NexthopGroupMergeSm::NexthopGroupCliDynamicConfigUdpDestPortMergeSmIs,
      [this] { publisher()->publish( nexthopGroupCliDynamicUdpDestPortMergeSm ); },
      udpDestPortConfigLocal_,
      udpDestPortConfig_,
      nexthopGroupConfigInput_,
      Oxa::SmControl{} );

   dgConfigIs();
   Corvo::Ptr< Rex::Dir const > decapDynamic;
   fetch( "routing/tunneldecap/input/dynamic", decapDynamic );
   Corvo::Ptr< Tunnel::Decap::ConfigInput const > decapCli;
   fetch( "routing/tunneldecap/input/cli", decapCli );
   dgConfigMergeSm_.is(
      Tunnel::Decap::DecapGroupConfigMergeSm::DecapGroupConfigMergeSmIs,
      [this] { publisher()->publish( dgConfigMergeSm ); },
      dgConfig_,
      decapCli,
      decapDynamic,
      entityManager );

   auto const sdk = shared->readOnly< AgentSdkState >( "agentSdkState" );
   sm.switchControlSal = DaceSal::switchControlSalFactory( sdk->sdkHandle(), sdk->salGlobalConfig() );
   Rex::sassert( sliceSmState_->smMode() != Hardware::Dace::smModeNull(),
                 "sliceSmState()->smMode() != Hardware::Dace::smModeNull()" );

   auto const mergedPrefixLens = Routing::Hardware::prefixLensInExactMatchFactory( "" );
   Corvo::Ptr< Routing::Hardware::RouteStatus const > routeStatus;
   fetch( "routing/hardware/route/status", routeStatus );
   prefixLensInExactMatchMergerSmV4_.is(
      Routing::Hardware::PrefixLensInExactMatchMergerSm::PrefixLensInExactMatchMergerSmIs,
      [this] { publisher()->publish( prefixLensInExactMatchMergerSmV4 ); },
      routeStatus,
      mergedPrefixLens,
      Oxa::SmControl{} );

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

Corvo::Ptr< MounterRunnabilitySm >
L3SmMounter::pluginRunnabilitySmIs( Corvo::Ptr< SliceSmStateInfo const > const & sliceSm, MounterBase * mounter ) {
   return pluginRunnabilitySm_.is(
      MounterRunnabilitySm::MounterRunnabilitySmIs,
      [this] { publisher()->publish( pluginRunnabilitySm ); },
      sliceSm,
      mounter );
}

Corvo::Ptr< L3Sm > L3SmMounter::l3SmIs( L3SmArguments const & arguments ) {
   return l3Sm_.is(
      L3Sm::L3SmIs, [this] { publisher()->publish( l3Sm ); }, arguments );
}

void L3SmMounter::remFfcModifierSmIs( Corvo::Ptr< RemFfcModifierSm const > const & sm ) {
   attributeIs( remFfcModifierSm, remFfcModifierSm_, sm );
}

Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig > const &
L3SmMounter::udpDestPortConfigLocalIs( Corvo::String const & name ) {
   if ( !udpDestPortConfigLocal_ || udpDestPortConfigLocal_->name() != name ) {
      if ( udpDestPortConfigLocal_ ) {
         udpDestPortConfigLocal_->parentIs( nullptr );
      }
      auto const made = Corvo::makePtr< UdpDestPortConfig >( name );
      made->parentIs( this );
      attributeIs( udpDestPortConfigLocal, udpDestPortConfigLocal_, made );
   }
   return udpDestPortConfigLocal_;
}

Corvo::Ptr< L3::Tunnel::UdpDestinationPortConfig > L3SmMounter::udpDestPortConfigLocalDel() {
   auto const old = udpDestPortConfigLocal_;
   if ( old ) {
      old->parentIs( nullptr );
      attributeIs( udpDestPortConfigLocal, udpDestPortConfigLocal_, {} );
   }
   return old;
}

Corvo::Ptr< Tunnel::Decap::Config > const & L3SmMounter::dgConfigIs() {
   if ( !dgConfig_ ) {
      attributeIs( dgConfig, dgConfig_, Corvo::makePtr< Tunnel::Decap::Config >() );
   }
   return dgConfig_;
}

Corvo::Ptr< Tunnel::Decap::Config > L3SmMounter::dgConfigDel() {
   auto const old = dgConfig_;
   attributeIs( dgConfig, dgConfig_, {} );
   return old;
}

} // namespace DaceFapNi
