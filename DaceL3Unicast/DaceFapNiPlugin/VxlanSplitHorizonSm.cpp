#include "VxlanSplitHorizonSm.h"

#include "Toggles.h"
#include "rex/Gate.h"
#include "rex/Trace.h"

#include <initializer_list>
#include <span>

namespace DaceFapNi {

namespace {

Rex::TraceFacility const trace{ "DaceFapNiL3Vxlan" };
Rex::DualTrace const dualTrace{ trace };

constexpr short vtiStatusDirVtiStatus = 0x182;
constexpr short evpnStatusEvpnDciEnabled = 0x106;
constexpr short vtiStatusVtepToVtepBridging = 0x232;

// What decides on the pairs.
struct Inputs {
   bool vxlanConfigured;
   bool dciConfigured;
   bool keepBridged; // traffic from one VTEP may go on to another
   bool pfd;
};

// An orientation of the in-LIF and one of the out-LIF.
struct Pair {
   unsigned first;
   unsigned second;
};

consteval U64 matrix( std::initializer_list< Pair > pairs ) {
   U64 bits = 0;
   for ( auto const & pair : pairs ) {
      bits |= U64{ 1 } << ( pair.second + 8 * pair.first );
   }
   return bits;
}

struct PairRow {
   bool ( *holds )( Inputs const & in );
   U64 pairs;
};

constexpr PairRow erppRows[] = {
   // clang-format off
   { []( auto & )    { return true; },                                       matrix( { { 0, 3 }, { 1, 3 }, { 1, 2 }, { 2, 2 } } ) },
   { []( auto & in ) { return in.vxlanConfigured; },                         matrix( { { 6, 6 }, { 6, 1 }, { 7, 6 } } ) },
   { []( auto & in ) { return in.keepBridged; },                             matrix( { { 7, 5 } } ) },
   { []( auto & in ) { return in.dciConfigured; },                           matrix( { { 5, 7 }, { 5, 1 }, { 7, 7 }, { 4, 6 }, { 4, 1 },
                                                                                       { 4, 7 }, { 4, 2 }, { 7, 3 }, { 7, 2 } } ) },
   { []( auto & in ) { return in.dciConfigured && in.pfd; },                 matrix( { { 1, 1 } } ) },
   { []( auto & in ) { return !in.dciConfigured; },                          matrix( { { 4, 4 } } ) },
   { []( auto & in ) { return !in.keepBridged; },                            matrix( { { 5, 5 } } ) },
   { []( auto & in ) { return !in.vxlanConfigured && !in.dciConfigured; },   matrix( { { 6, 6 }, { 7, 7 } } ) },
   // clang-format on
};

// What ETPP filters beyond all that ERPP does.
constexpr PairRow etppRows[] = {
   // clang-format off
   { []( auto & )    { return true; },                                       matrix( { { 3, 0 }, { 3, 3 } } ) },
   { []( auto & in ) { return !in.dciConfigured; },                          matrix( { { 3, 4 } } ) },
   { []( auto & in ) { return !in.keepBridged; },                            matrix( { { 3, 5 } } ) },
   { []( auto & in ) { return !in.vxlanConfigured; },                        matrix( { { 3, 6 }, { 3, 7 } } ) },
   // clang-format on
};

U64 pairsThatHold( std::span< PairRow const > rows, Inputs const & in ) {
   U64 bits = 0;
   for ( auto const & row : rows ) {
      if ( row.holds( in ) ) {
         bits |= row.pairs;
      }
   }
   return bits;
}

bool anyVtiBridges( Vxlan::VtiStatusDir const & vtiStatusDir ) {
   for ( auto const & [intfId, vti] : vtiStatusDir.vtiStatus() ) {
      if ( vti->vtepToVtepBridging() ) {
         return true;
      }
   }
   return false;
}

} // namespace

VxlanSplitHorizonCfgSm::VtiStatusSm::VtiStatusSm( Corvo::Ptr< Vxlan::VtiStatus const > const & vtiStatus,
                                                  VxlanSplitHorizonCfgSm * parent )
   : parent_( parent ) {
   reload();
   bind( vtiStatus );
}

void VxlanSplitHorizonCfgSm::VtiStatusSm::notifierIs( Corvo::Ptr< Vxlan::VtiStatus const > const & vtiStatus ) {
   bool const differs = notifierEntity() != vtiStatus;
   bind( vtiStatus );
   if ( vtiStatus && differs && !isZombie() ) {
      reload();
   }
}

void VxlanSplitHorizonCfgSm::VtiStatusSm::onAttribute( Rex::AttributeId attribute, void const * ) {
   if ( attribute == vtiStatusVtepToVtepBridging && !isZombie() ) {
      reload();
   }
}

void VxlanSplitHorizonCfgSm::VtiStatusSm::rexDoZombieReactors( bool zombie ) {
   if ( isZombie() == zombie ) {
      return;
   }
   NotifieeConst::rexDoZombieReactors( zombie );
   reload();
}

void VxlanSplitHorizonCfgSm::VtiStatusSm::bind( Corvo::Ptr< Vxlan::VtiStatus const > const & vtiStatus ) {
   notifierEntityIs( vtiStatus );
   isRegisteredNotifieeIs( true );
}

void VxlanSplitHorizonCfgSm::VtiStatusSm::reload() {
   if ( parent_ ) {
      parent_->reloadSplitHorizonCfg();
   }
}

VxlanSplitHorizonCfgSm::VxlanSplitHorizonCfgSm( Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir,
                                                Corvo::Ptr< Evpn::EvpnStatus const > const & evpnStatus,
                                                CellStatusPtr const & cellStatus )
   : vtiStatusDir_( vtiStatusDir ), evpnStatus_( evpnStatus ), cellStatus_( cellStatus ) {
   vtiStatusDir_.subscribe( vtiStatusDirDispatch, this );
   evpnStatus_.subscribe( evpnStatusDispatch, this );
   reloadSplitHorizonCfg();
   followDirectory();
}

VxlanSplitHorizonCfgSm::~VxlanSplitHorizonCfgSm() {
   hasNotificationActiveIs( false );
   // First, as a reactor that becomes a zombie would program the registers once more.
   for ( auto const & [intfId, vti] : vtiStatus_ ) {
      vti->parentDel();
   }
   rexDoZombieReactors( true );
   vtiStatusDir_.unsubscribe();
   evpnStatus_.unsubscribe();
}

Corvo::Ptr< VxlanSplitHorizonCfgSm >
VxlanSplitHorizonCfgSm::VxlanSplitHorizonCfgSmIs( Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir,
                                                  Corvo::Ptr< Evpn::EvpnStatus const > const & evpnStatus,
                                                  CellStatusPtr const & cellStatus ) {
   auto const sm = Corvo::makePtr< VxlanSplitHorizonCfgSm >( vtiStatusDir, evpnStatus, cellStatus );
   sm->hasNotificationActiveIs( true );
   return sm;
}

Corvo::Ptr< VxlanSplitHorizonCfgSm >
vxlanSplitHorizonCfgSmFactory( Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir,
                               Corvo::Ptr< Evpn::EvpnStatus const > const & evpnStatus,
                               CellStatusPtr const & cellStatus ) {
   return VxlanSplitHorizonCfgSm::VxlanSplitHorizonCfgSmIs( vtiStatusDir, evpnStatus, cellStatus );
}

void VxlanSplitHorizonCfgSm::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() == active ) {
      return;
   }
   nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
   vtiStatusDir_.activeIs( active, vtiStatusDirDispatch, this );
   evpnStatus_.activeIs( active, evpnStatusDispatch, this );
   for ( auto const & [intfId, vti] : vtiStatus_ ) {
      vti->hasNotificationActiveIs( active );
   }
   if ( active ) {
      followDirectory();
   }
}

void VxlanSplitHorizonCfgSm::rexDoZombieReactors( bool zombie ) {
   if ( isZombie() == zombie ) {
      return;
   }
   for ( auto const & [intfId, vti] : vtiStatus_ ) {
      vti->rexDoZombieReactors( zombie );
   }
   markAndSweepFlagSet( zombie );
}

void VxlanSplitHorizonCfgSm::followDirectory() {
   for ( auto const & [intfId, vti] : vtiStatus_ ) {
      if ( !vtiStatusDir_->vtiStatusHas( intfId ) ) {
         vtiStatusDel( intfId );
      }
   }
   for ( auto const & [intfId, vtiStatus] : vtiStatusDir_->vtiStatus() ) {
      vtiStatusIs( vtiStatus );
   }
}

// A keyed collection: its reactors are kept in step whatever the machine's state.
void VxlanSplitHorizonCfgSm::vtiStatusDirDispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const * key, void const * ) {
   auto * const self = slot->owner< VxlanSplitHorizonCfgSm >();
   if ( attribute != vtiStatusDirVtiStatus ) {
      return;
   }
   auto const intfId = *static_cast< Netka::IntfId const * >( key );
   if ( auto const vtiStatus = self->vtiStatusDir_->vtiStatus( intfId ) ) {
      self->vtiStatusIs( vtiStatus );
   } else {
      self->vtiStatusDel( intfId );
   }
}

void VxlanSplitHorizonCfgSm::evpnStatusDispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const *, void const * ) {
   auto * const self = slot->owner< VxlanSplitHorizonCfgSm >();
   if ( attribute == evpnStatusEvpnDciEnabled && !self->isZombie() ) {
      self->reloadSplitHorizonCfg();
   }
}

Corvo::Ptr< VxlanSplitHorizonCfgSm::VtiStatusSm >
VxlanSplitHorizonCfgSm::vtiStatusIs( Corvo::Ptr< Vxlan::VtiStatus const > const & vtiStatus ) {
   if ( !vtiStatus ) {
      Rex::throwMutatorArgNullPointerException( "DaceFapNi::VxlanSplitHorizonCfgSm", "vtiStatus" );
   }
   auto vti = vtiStatus_.get( vtiStatus->intfId() );
   if ( vti ) {
      vti->notifierIs( vtiStatus );
   } else {
      vti = Corvo::makePtr< VtiStatusSm >( vtiStatus, this );
      vti->hasNotificationActiveIs( hasNotificationActive() );
      vtiStatus_.set( vtiStatus->intfId(), vti );
   }
   return vti;
}

Corvo::Ptr< VxlanSplitHorizonCfgSm::VtiStatusSm > VxlanSplitHorizonCfgSm::vtiStatusDel( Netka::IntfId intfId ) {
   auto const vti = vtiStatus_.del( intfId );
   if ( vti ) {
      vti->hasNotificationActiveIs( false );
      vti->rexDoZombieReactors( true );
      vti->parentDel();
   }
   return vti;
}

void VxlanSplitHorizonCfgSm::vtiStatusDelAll() {
   for ( auto const & [intfId, vti] : vtiStatus_ ) {
      vtiStatusDel( intfId );
   }
}

void VxlanSplitHorizonCfgSm::reloadSplitHorizonCfg() {
   bool const vxlanConfigured = !vtiStatusDir_->vtiStatus().empty();
   bool const vtepToVtepBridging = anyVtiBridges( *vtiStatusDir_.ptr() );
   bool const dciConfigured = evpnStatus_->evpnDciEnabled();
   constexpr auto className = "VxlanSplitHorizonCfgSm::";
   constexpr auto name = "reloadSplitHorizonCfg";
   dualTrace( 9, className, name, " VXLAN configured: ", vxlanConfigured, " DCI configured: ", dciConfigured );
   bool const gen4 = toggleCampusVtepToVtepBridgingGen4Enabled();
   bool const pfd = toggleDaceVxlanMplsDciMhDchVxlanPfdEnabled();
   bool const keepBridged =
      vxlanConfigured && vtepToVtepBridging && Rex::gate( gen4, "the toggle CampusVtepToVtepBridgingGen4 is off" );
   if ( dciConfigured ) {
      Rex::gate( pfd, "the toggle DaceVxlanMplsDciMhDchVxlanPfd is off" );
   }
   Inputs const in{
      .vxlanConfigured = vxlanConfigured, .dciConfigured = dciConfigured, .keepBridged = keepBridged, .pfd = pfd };
   U64 const erppValue = pairsThatHold( erppRows, in );
   U64 const etppValue = erppValue | pairsThatHold( etppRows, in );
   trace( 9, className, name, " new ERPP register value: ", erppValue );
   trace( 9, className, name, " new ETPP register value: ", etppValue );

   forEachFap( cellStatus_, [&]( Fap const & fap, auto const & fapStatus ) {
      trace( 9, className, name, " program split horizon registers on fap ", fapStatus.fapName() );
      write< Hardware::EtppCfgSplitHorizonFilter >(
         fap, {}, [&]( auto & etpp ) { etpp.cfgSplitHorizonFilterIs( etppValue ); } );
      write< Hardware::ErppCfgSplitHorizonFilter >(
         fap, {}, [&]( auto & erpp ) { erpp.cfgSplitHorizonFilterIs( erppValue ); } );
   } );
}

} // namespace DaceFapNi
