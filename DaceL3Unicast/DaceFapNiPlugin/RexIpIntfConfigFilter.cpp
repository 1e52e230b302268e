#include "RexIpIntfConfigFilter.h"

#include "rex/Gate.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {

Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };

using Interface::SyncMtuResult;

// Why a handler leaves an interface alone.
constexpr auto standby = "the slice is not the active one";
constexpr auto noStatus = "the interface has no status";

// Attributes that are followed.
constexpr Rex::AttributeId intfConfigEnabled = 0x10f;
constexpr Rex::AttributeId intfConfigAddr = 0x182;
constexpr Rex::AttributeId intfStatusForwardingModel = 0x106;
constexpr Rex::AttributeId intfStatusBurnedInAddr = 0x108;
constexpr Rex::AttributeId effectiveL3MtuMtu = 0x82;
constexpr Rex::AttributeId walkSyncMtuResult = 0x18c;

template< class Reactor >
bool follows( Corvo::Ptr< Reactor > const & reactor ) {
   return reactor && reactor->notifier();
}

} // namespace

using Filter = L3IntfSm::RexIpIntfConfigFilter;

Filter::RexIpIntfConfigFilter( EthConfigPtr const & config, L3IntfSm * parent ) : parent_( parent ) {
   notifierIs( config );
   isRegisteredNotifieeIs( true );
   handleInitialized();
}

Filter::~RexIpIntfConfigFilter() {
   hasNotificationActiveIs( false );
   rexDoZombieReactors( true );
   auto const orphan = []( auto const & reactor ) {
      if ( reactor ) {
         reactor->parentIs( nullptr );
      }
   };
   orphan( intfConfig_ );
   orphan( intfStatus_ );
   orphan( effectiveL3Mtu_ );
   orphan( syncMtuSubIntfSm_ );
   if ( l3MtuSm_ ) {
      l3MtuSm_->hasNotificationActiveIs( false );
   }
}

L3IntfSm::EthConfigPtr Filter::notifier() const {
   return static_cast< Interface::EthPhyIntfConfig const * >( notifierEntity().get() );
}

void Filter::notifierIs( Corvo::Ptr< Rex::Entity const > const & node ) {
   notifierEntityIs( Corvo::ptrCast< Interface::EthPhyIntfConfig const >( node ) );
}

L3IntfSmArguments const & Filter::in() const {
   Rex::sassert( parent_ != nullptr, "l3IntfSm" );
   return parent_->arguments();
}

Hardware::Dace::SmMode Filter::smMode() const {
   auto const & sliceSmState = in().sliceSmState;
   return sliceSmState ? sliceSmState->smMode() : Hardware::Dace::smModeNull();
}

void Filter::resetWalk() {
   syncMtuSubIntfSm_->notifier()->reset();
}

void Filter::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() == active ) {
      return;
   }
   NotifieeConst::hasNotificationActiveIs( active );
   auto const pass = [=]( auto const & to ) {
      if ( to ) {
         to->hasNotificationActiveIs( active );
      }
   };
   pass( intfConfig_ );
   pass( intfStatus_ );
   pass( effectiveL3Mtu_ );
   pass( l3MtuSm_ );
   pass( syncMtuSubIntfSm_ );
}

void Filter::rexDoZombieReactors( bool zombie ) {
   if ( isZombie() == zombie ) {
      return;
   }
   if ( notifier() ) {
      hasNotificationActiveIs( !zombie );
   }
   if ( parent_ ) {
      parent_->ethConfigDel( intfId() );
   }
   auto const pass = [=]( auto const & to ) {
      if ( to ) {
         to->rexDoZombieReactors( zombie );
      }
   };
   pass( intfConfig_ );
   pass( intfStatus_ );
   pass( effectiveL3Mtu_ );
   pass( syncMtuSubIntfSm_ );
   markAndSweepFlagSet( zombie );
}

// The walk comes first: every handler may have to reset it.
void Filter::handleInitialized() {
   Netka::IntfId const id = intfId();
   auto const & inputs = in();
   trace( 5, "handleInitialized", " handle: ", id );
   syncMtuSubIntfSmIs( Interface::syncMtuSubIntfWalkSmFactory(
      inputs.scheduler, id, inputs.subIntfStatusDir, inputs.subIntfStatusLocalDir ) );
   intfConfigIs( inputs.ethConfigDir->intfConfig( id ) );
   intfStatusIs( inputs.ethStatusDir->intfStatus( id ) );
   intfStatusLocal_ = inputs.ethPhyIntfStatusLocalDir->intfStatusLocal( id );
   Netka::EthAddr const bridgeMacAddr = inputs.bridgingConfig->bridgeMacAddr();
   if ( smMode() == Hardware::Dace::smModeActive() ) {
      intfStatus_->notifier()->routedAddrIs( bridgeMacAddr );
   }
   effectiveL3MtuIs( Corvo::makePtr< Interface::EffectiveL3Mtu >() );
   l3MtuSmIs( intfConfig_ ? intfConfig_->notifier() : nullptr,
              inputs.globalIntfConfig,
              effectiveL3Mtu_->notifier(),
              inputs.intfHwCapability );
   trace( 5, " Intf: ", id, " l3MtuSm created." );
   U32 const maxFrameSize = inputs.bridgingHwCapabilities->maxFrameSizeWithoutL2Encapsulation();
   if ( smMode() == Hardware::Dace::smModeActive() ) {
      intfStatus_->notifier()->maxMtuIs( maxFrameSize );
   }
   handleMtuOrForwardingModel();
   handleAddr();
}

bool Filter::handleAddr() {
   Rex::sassert( follows( intfConfig_ ), "intfConfig()" );
   Netka::EthAddr const configured = intfConfig_->notifier()->addr();
   trace( 8, "IpIntfConfigFilter::", "handleAddr", " ", intfId(), " addr ", configured );
   if ( !Rex::gate( smMode() == Hardware::Dace::smModeActive(), standby ) ) {
      trace( 0, "handleAddr early return for standby. smMode: ", smMode() );
      return true;
   }
   if ( !Rex::gate( follows( intfStatus_ ), noStatus ) ) {
      trace( 9, "interface status not available" );
      resetWalk();
      return false;
   }
   auto const status = intfStatus_->notifier();
   auto const routed = configured.isZero() ? in().bridgingConfig->bridgeMacAddr() : configured;
   status->addrIs( configured.isZero() ? status->burnedInAddr() : configured );
   status->routedAddrIs( routed );
   return true;
}

// Each test hides the later ones; what fails one abandons the walk.
void Filter::handleMtuOrForwardingModel() {
   if ( !Rex::gate( smMode() == Hardware::Dace::smModeActive(), standby ) ) {
      trace( 0, "handleMtuOrForwardingModel early return for standby. smMode: ", smMode() );
      return resetWalk();
   }
   Rex::sassert( follows( intfConfig_ ), "intfConfig()" );
   trace( 8, "IpIntfConfigFilter::", "handleMtuOrForwardingModel", " ", intfId() );
   if ( !Rex::gate( follows( intfStatus_ ), noStatus ) ) {
      trace( 9, "interface status not available" );
      return resetWalk();
   }
   if ( !Rex::gate( intfConfig_->notifier()->enabled(), "the interface is not enabled" ) ) {
      trace( 9, "interface is not enabled" );
      return resetWalk();
   }
   if ( !Rex::gate( follows( effectiveL3Mtu_ ), "the interface has no MTU yet" ) ) {
      trace( 9, "effectiveL3Mtu still not avaliable" );
      return resetWalk();
   }
   handleAddr();
   Corvo::String const & intfName = intfId().stringValue();
   auto const walk = syncMtuSubIntfSm_->notifier();
   if ( walk->syncMtuResult() == SyncMtuResult::synced ) {
      walk->reset();
      trace( 8, intfName, " MTU synced." );
      return;
   }
   walk->syncMtu( Interface::syncMtuDataFactory(
      intfStatus_->notifier(), intfStatusLocal_, effectiveL3Mtu_->notifier()->mtu(), true, true, -1 ) );
   if ( walk->syncMtuResult() != SyncMtuResult::synced ) {
      trace( 8, intfName, " syncMtu status ", walk->syncMtuResult(), ", waiting completion." );
   }
}

void Filter::handleSyncMtuResult() {
   if ( follows( syncMtuSubIntfSm_ ) && syncMtuSubIntfSm_->notifier()->syncMtuResult() > SyncMtuResult::walking ) {
      handleMtuOrForwardingModel();
   }
}

// Makes the reactor of an attribute follow `notifier`. A new reactor is bound before it is stored and gets its parent
// with the store, so that its first binding runs no handler of the filter.
template< Filter::MtuRun mtuRun, class Reactor, class Notifier >
void Filter::followerIs( Corvo::Ptr< Reactor > & attribute, Corvo::Ptr< Notifier > const & notifier ) {
   if ( attribute ? attribute->notifier() == notifier : !notifier ) {
      return;
   }
   Corvo::Ptr< Reactor > dropped;
   if ( !notifier ) {
      dropped = std::exchange( attribute, nullptr );
   } else if ( auto const present = attribute ) {
      present->notifierIs( notifier );
   } else {
      auto const reactor = Corvo::makePtr< Reactor >();
      reactor->notifierIs( notifier );
      reactor->isRegisteredNotifieeIs( true );
      reactor->hasNotificationActiveIs( true );
      attribute = reactor;
      reactor->parentIs( this );
   }
   if ( auto const present = attribute ) {
      present->rexDoZombieReactors( isZombie() );
   }
   if ( dropped ) {
      dropped->rexDoZombieReactors( true );
   }
   if ( mtuRun == MtuRun::due ) {
      handleMtuOrForwardingModel();
   }
   if ( dropped ) {
      dropped->parentIs( nullptr );
   }
}

// With a run due between the two steps, the walk is reset at once.
template< Filter::MtuRun mtuRun, class Reactor >
Corvo::Ptr< Reactor > Filter::followerDel( Corvo::Ptr< Reactor > & attribute ) {
   auto const reactor = std::exchange( attribute, nullptr );
   if ( reactor ) {
      reactor->rexDoZombieReactors( true );
      if ( mtuRun == MtuRun::due ) {
         handleMtuOrForwardingModel();
      }
      reactor->hasNotificationActiveIs( false );
   }
   return reactor;
}

void Filter::intfConfigIs( EthConfigPtr const & intfConfig ) {
   followerIs< MtuRun::notDue >( intfConfig_, intfConfig );
}

Corvo::Ptr< Filter::RexIntfConfig > Filter::intfConfigDel() {
   return followerDel< MtuRun::notDue >( intfConfig_ );
}

void Filter::intfStatusIs( Corvo::Ptr< Interface::EthPhyIntfStatus > const & intfStatus ) {
   followerIs< MtuRun::due >( intfStatus_, intfStatus );
}

Corvo::Ptr< Filter::RexIntfStatus > Filter::intfStatusDel() {
   return followerDel< MtuRun::due >( intfStatus_ );
}

void Filter::effectiveL3MtuIs( Corvo::Ptr< Interface::EffectiveL3Mtu > const & effectiveL3Mtu ) {
   followerIs< MtuRun::due >( effectiveL3Mtu_, effectiveL3Mtu );
}

Corvo::Ptr< Filter::RexEffectiveL3Mtu > Filter::effectiveL3MtuDel() {
   return followerDel< MtuRun::due >( effectiveL3Mtu_ );
}

void Filter::syncMtuSubIntfSmIs( Corvo::Ptr< Interface::SyncMtuSubIntfWalkSm > const & syncMtuSubIntfSm ) {
   followerIs< MtuRun::notDue >( syncMtuSubIntfSm_, syncMtuSubIntfSm );
}

Corvo::Ptr< Filter::RexSyncMtuSubIntfSm > Filter::syncMtuSubIntfSmDel() {
   return followerDel< MtuRun::notDue >( syncMtuSubIntfSm_ );
}

Corvo::Ptr< Interface::L3MtuSm >
Filter::l3MtuSmIs( Corvo::Ptr< Interface::IntfConfig const > const & intfConfig,
                   Corvo::Ptr< Interface::GlobalIntfConfig const > const & globalIntfConfig,
                   Corvo::Ptr< Interface::EffectiveL3Mtu > const & effectiveL3Mtu,
                   Corvo::Ptr< Interface::Hardware::Capability const > const & capability ) {
   if ( !l3MtuSm_ || !l3MtuSm_->builtFrom( intfConfig, globalIntfConfig, effectiveL3Mtu, capability ) ) {
      l3MtuSm_ = nullptr;
      l3MtuSm_ = Interface::L3MtuSm::L3MtuSmIs( intfConfig, globalIntfConfig, effectiveL3Mtu, capability );
      l3MtuSm_->hasNotificationActiveIs( true );
   }
   return l3MtuSm_;
}

Corvo::Ptr< Interface::L3MtuSm > Filter::l3MtuSmDel() {
   auto sm = std::exchange( l3MtuSm_, nullptr );
   if ( sm ) {
      sm->hasNotificationActiveIs( false );
   }
   return sm;
}

template< class Derived, class Notifier >
void Filter::Nested< Derived, Notifier >::rexDoZombieReactors( bool zombie ) {
   if ( isZombie() == zombie ) {
      return;
   }
   if ( notifier() ) {
      hasNotificationActiveIs( !zombie );
   }
   markAndSweepFlagSet( zombie );
}

void Filter::RexIntfConfig::onAttribute( Rex::AttributeId attribute, void const * ) {
   if ( attribute == intfConfigEnabled ) {
      run( &RexIpIntfConfigFilter::handleMtuOrForwardingModel );
   } else if ( attribute == intfConfigAddr ) {
      run( &RexIpIntfConfigFilter::handleAddr );
   }
}

void Filter::RexIntfConfig::handleNotifier() {
   Corvo::Ptr< RexIntfConfig > const self = this; // the first handler may drop it
   run( &RexIpIntfConfigFilter::handleMtuOrForwardingModel );
   run( &RexIpIntfConfigFilter::handleAddr );
}

void Filter::RexIntfStatus::onAttribute( Rex::AttributeId attribute, void const * ) {
   if ( attribute == intfStatusForwardingModel || attribute == intfStatusBurnedInAddr ) {
      run( &RexIpIntfConfigFilter::handleMtuOrForwardingModel );
   }
}

void Filter::RexIntfStatus::handleNotifier() {
   run( &RexIpIntfConfigFilter::handleMtuOrForwardingModel );
}

void Filter::RexEffectiveL3Mtu::onAttribute( Rex::AttributeId attribute, void const * ) {
   if ( attribute == effectiveL3MtuMtu ) {
      run( &RexIpIntfConfigFilter::handleMtuOrForwardingModel );
   }
}

void Filter::RexEffectiveL3Mtu::handleNotifier() {
   run( &RexIpIntfConfigFilter::handleMtuOrForwardingModel );
}

void Filter::RexSyncMtuSubIntfSm::onAttribute( Rex::AttributeId attribute, void const * ) {
   if ( attribute == walkSyncMtuResult ) {
      run( &RexIpIntfConfigFilter::handleSyncMtuResult );
   }
}

void Filter::RexSyncMtuSubIntfSm::handleNotifier() {
   run( &RexIpIntfConfigFilter::handleSyncMtuResult );
}

} // namespace DaceFapNi
