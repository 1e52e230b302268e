#include "agent/VtiStatusDirSm.h"

#include "rex/Notifiee.h"
#include "rex/Trace.h"

namespace Ale::VXLAN {

namespace {

Rex::TraceFacility const trace{ "AleVxlanVtiStatusDirSm" };

constexpr short vtiStatusAttribute = 0x182;

// What stays with the base.
template< class... Values >
void wouldDo( char const * operation, Netka::IntfId intfId, Values const &... values ) {
   trace( 8, "VtiStatusDirSm::", operation, " would be done for ", intfId, values... );
}

} // namespace

// The attributes of a VTI that ask for something, in the order in which a new VTI's are set up.
struct VtiStatusDirSm::SetupRow {
   short attribute;
   void ( *setup )( VtiStatusDirSm & sm, Vxlan::VtiStatus const & vti );
};

VtiStatusDirSm::SetupRow const VtiStatusDirSm::setupRows[] = {
   { 0x202, []( auto & sm, auto const & vti ) { sm.doSetupVxlanDestUdpPort( vti.intfId(), { vti.udpPort() } ); } },
   { 0x203,
     []( auto & sm, auto const & vti ) { sm.doSetupVxlanDestSecUdpPort( vti.intfId(), { vti.secUdpPort() } ); } },
   { 0x232,
     []( auto & sm, auto const & vti ) { sm.doSetupVtepToVtepBridging( vti.intfId(), vti.vtepToVtepBridging() ); } },
   { 0x231,
     []( auto & sm, auto const & vti ) { sm.doSetupRemoteVxlanDomain( vti.intfId(), vti.remoteVxlanDomain() ); } },
};

// The reactor of one VTI.
class VtiStatusDirSm::VtiStatusSm : public Rex::NotifieeConst {
 public:
   explicit VtiStatusSm( VtiStatusDirSm * parent ) : parent_( parent ) {}
   void parentDel() { parent_ = nullptr; }
   Corvo::Ptr< Vxlan::VtiStatus const > const & notifier() const { return vtiStatus_; }

   // Follows the object from now on. Runs no set-up.
   void notifierIs( Corvo::Ptr< Vxlan::VtiStatus const > const & vtiStatus ) {
      vtiStatus_ = vtiStatus;
      notifierEntityIs( vtiStatus );
      isRegisteredNotifieeIs( true );
   }

   void onAttribute( Rex::AttributeId attribute, void const * ) override {
      Corvo::Ptr< VtiStatusDirSm > const sm = parent_; // a set-up may drop the last other reference
      if ( !sm || isZombie() ) {
         return;
      }
      for ( auto const & row : setupRows ) {
         if ( row.attribute == attribute ) {
            auto const vti = vtiStatus_;
            row.setup( *sm, *vti );
         }
      }
   }

 private:
   VtiStatusDirSm * parent_;
   Corvo::Ptr< Vxlan::VtiStatus const > vtiStatus_;
};

VtiStatusDirSm::VtiStatusDirSm( Corvo::String const & name,
                                Corvo::Ptr< Vxlan::VtiStatusDir const > const & vtiStatusDir,
                                Corvo::Ptr< Bridging::HwCapabilities const > const & hwCapabilities )
   : name_( name ), vtiStatusDir_( vtiStatusDir ), hwCapabilities_( hwCapabilities ) {
   vtiStatusDir_.subscribe( vtiStatusDirDispatch, this );
}

VtiStatusDirSm::~VtiStatusDirSm() {
   hasNotificationActiveIs( false );
   VtiStatusDirSm::rexDoZombieReactors( true );
   vtiStatusDir_.unsubscribe();
   for ( auto const & [intfId, vti] : vtiStatus_ ) {
      vti->parentDel();
   }
}

void VtiStatusDirSm::initializedIs( bool initialized ) {
   if ( initialized_ == initialized ) {
      return;
   }
   initialized_ = initialized;
   if ( initialized ) {
      handleInitialized();
   }
}

void VtiStatusDirSm::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() == active ) {
      return;
   }
   nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
   vtiStatusDir_.activeIs( active, vtiStatusDirDispatch, this );
   for ( auto const & [intfId, vti] : vtiStatus_ ) {
      vti->hasNotificationActiveIs( active );
   }
   if ( active && initialized_ ) {
      handleInitialized();
   }
}

void VtiStatusDirSm::rexDoZombieReactors( bool zombie ) {
   if ( isZombie() == zombie ) {
      return;
   }
   for ( auto const & [intfId, vti] : vtiStatus_ ) {
      vti->rexDoZombieReactors( zombie );
   }
   markAndSweepFlagSet( zombie );
}

void VtiStatusDirSm::handleInitialized() {
   trace( 5, "VtiStatusDirSm::", "handleInitialized", " ", name_ );
   if ( !vtiStatusDir_ ) {
      return;
   }
   Corvo::Ptr< VtiStatusDirSm > const self = this;
   for ( auto const & [intfId, vti] : vtiStatus_ ) {
      if ( !vtiStatusDir_->vtiStatusHas( intfId ) ) {
         vtiStatusDel( intfId );
      }
   }
   for ( auto const & [intfId, vtiStatus] : vtiStatusDir_->vtiStatus() ) {
      vtiStatusIs( vtiStatus );
   }
}

void VtiStatusDirSm::vtiStatusDirDispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const * key, void const * ) {
   Corvo::Ptr< VtiStatusDirSm > const self = slot->owner< VtiStatusDirSm >();
   if ( attribute != vtiStatusAttribute || !key || !self->initialized_ ) {
      return;
   }
   auto const intfId = *static_cast< Netka::IntfId const * >( key );
   if ( auto const vtiStatus = self->vtiStatusDir_->vtiStatus( intfId ) ) {
      self->vtiStatusIs( vtiStatus );
   } else {
      self->vtiStatusDel( intfId );
   }
}

void VtiStatusDirSm::vtiStatusIs( Corvo::Ptr< Vxlan::VtiStatus const > const & vtiStatus ) {
   Netka::IntfId const intfId = vtiStatus->intfId();
   auto vti = vtiStatus_.get( intfId );
   if ( vti && vti->notifier() == vtiStatus ) {
      return;
   }
   if ( !vti ) {
      vti = Corvo::makePtr< VtiStatusSm >( this );
      vti->rexDoZombieReactors( isZombie() );
      vtiStatus_.set( intfId, vti );
   }
   vti->notifierIs( vtiStatus );
   vti->hasNotificationActiveIs( hasNotificationActive() );
   if ( !isZombie() ) {
      doInitialize( intfId );
   }
}

void VtiStatusDirSm::vtiStatusDel( Netka::IntfId intfId ) {
   auto const vti = vtiStatus_.del( intfId );
   if ( !vti ) {
      return;
   }
   vti->hasNotificationActiveIs( false );
   vti->rexDoZombieReactors( true );
   vti->parentDel();
   if ( !isZombie() ) {
      doCleanup( intfId );
   }
}

void VtiStatusDirSm::doInitialize( Netka::IntfId intfId ) {
   trace( 5, "VtiStatusDirSm::", "doInitialize", " ", intfId );
   auto const vti = vtiStatus_.get( intfId );
   if ( !vti ) {
      return;
   }
   for ( auto const & row : setupRows ) {
      if ( vtiStatus_.get( intfId ) != vti ) {
         return; // a set-up removed it
      }
      auto const vtiStatus = vti->notifier();
      row.setup( *this, *vtiStatus );
   }
}

#define STAYS_WITH_THE_BASE( operation, Type )                                                                         \
   void VtiStatusDirSm::operation( Netka::IntfId intfId, Type value ) {                                                \
      wouldDo( #operation, intfId, " ", value );                                                                       \
   }
STAYS_WITH_THE_BASE( doSetupVxlanDestUdpPort, Netka::UdpPort )
STAYS_WITH_THE_BASE( doSetupVxlanDestSecUdpPort, Netka::UdpPort )
STAYS_WITH_THE_BASE( doHandleVxlanVtepToSecProfile, Netka::IpGenAddr const & )
STAYS_WITH_THE_BASE( doHandleVxlanVrfToSbdVlan, L3::VrfName ) // NOLINT(performance-unnecessary-value-param)
STAYS_WITH_THE_BASE( doSetupVtepToVtepBridging, bool )
STAYS_WITH_THE_BASE( doSetupRemoteVxlanDomain, bool )
STAYS_WITH_THE_BASE( doSetupVxlanSrcAddr, Netka::IpGenAddr const & )
STAYS_WITH_THE_BASE( doSetupVxlanSrcAddrV6, Netka::IpGenAddr const & )
STAYS_WITH_THE_BASE( doSetupMlagVtepAddr, Netka::IpGenAddr const & )
STAYS_WITH_THE_BASE( doSetupMlagVtepAddr6, Netka::IpGenAddr const & )
STAYS_WITH_THE_BASE( doSetupMcastGrpDecap, Netka::IpGenAddr const & )
STAYS_WITH_THE_BASE( doSetupMcastGrpDecap6, Netka::IpGenAddr const & )
STAYS_WITH_THE_BASE( doSetupVxlanVarpVtepAddr, Netka::IpGenAddr const & )
STAYS_WITH_THE_BASE( doSetupVxlanVarpVtepAddr6, Netka::IpGenAddr const & )
STAYS_WITH_THE_BASE( doSetupVxlanVtepAddrMask, Netka::IpGenAddr const & )
STAYS_WITH_THE_BASE( doSetupVxlanSharedRouterMac, Netka::EthAddr const & )
STAYS_WITH_THE_BASE( doSetupVxlanNdMcastSnooping, bool )
STAYS_WITH_THE_BASE( doSetupVtepForSourcePruning, Netka::IpGenAddr const & )
STAYS_WITH_THE_BASE( doSetupVtepSourcePruningAll, bool )
STAYS_WITH_THE_BASE( doSetupDecapFilterNonDefaultVrf, bool )
#undef STAYS_WITH_THE_BASE

void VtiStatusDirSm::doSetupVxlanSrcUdpPortRange( Netka::IntfId intfId, Netka::UdpPort first, U16 count ) {
   wouldDo( "doSetupVxlanSrcUdpPortRange", intfId, " ", first, " ", count );
}

void VtiStatusDirSm::doSetupVxlanSecSrcPortRange( Netka::IntfId intfId, Netka::UdpPort first, U16 count ) {
   wouldDo( "doSetupVxlanSecSrcPortRange", intfId, " ", first, " ", count );
}

void VtiStatusDirSm::doUpdateOperStatus( Netka::IntfId intfId ) {
   wouldDo( "doUpdateOperStatus", intfId );
}

void VtiStatusDirSm::doSetupVxlanFloodTraffic( Netka::IntfId intfId ) {
   wouldDo( "doSetupVxlanFloodTraffic", intfId );
}

void VtiStatusDirSm::doCleanup( Netka::IntfId intfId ) {
   wouldDo( "doCleanup", intfId );
}

} // namespace Ale::VXLAN
