#include "L3IntfSm.h"

#include "RexIpIntfConfigFilter.h"
#include "corvo/NodeType.h"
#include "rex/Trace.h"

namespace DaceFapNi {

namespace {

Rex::TraceFacility const trace{ "DaceFapNiL3Sm" };

// Attributes that are followed.
constexpr short sliceSmStateSmMode = 0x109;
constexpr short portStateInfoPortState = 0x102;
constexpr short portStatePortGenId = 0x8f;

[[noreturn]] void throwNullArgument( char const * attribute ) {
   Rex::throwMutatorArgNullPointerException( "DaceFapNi::L3IntfSm", attribute );
}

} // namespace

L3IntfSm::L3IntfSm( L3IntfSmArguments const & arguments )
   : in_( arguments ), sliceSmState_( in_.sliceSmState ), portStateInfo_( in_.portStateInfo ) {
   sliceSmState_.subscribe( sliceSmStateDispatch, this );
   portStateInfo_.subscribe( portStateInfoDispatch, this );
   if ( portStateInfo_ ) {
      auto const ports = portStateInfo_->portState().size();
      portState_.reserve( ports );
      ethConfig_.reserve( ports );
      rexIpIntfConfigFilter_.reserve( ports );
   }
   handleInitialized();
   if ( portStateInfo_ ) {
      for ( auto const [port, entry] : portStateInfo_->portState() ) {
         portStateIs( entry );
      }
   }
}

L3IntfSm::~L3IntfSm() {
   hasNotificationActiveIs( false );
   rexDoZombieReactors( true );
   sliceSmState_.unsubscribe();
   portStateInfo_.unsubscribe();
   for ( auto const [port, reactor] : portState_ ) {
      reactor->parentIs( nullptr );
   }
   for ( auto const [intfId, filter] : rexIpIntfConfigFilter_ ) {
      filter->parentIs( nullptr );
   }
   managedIntfStatusDir_ = nullptr;
   managedIntfStatusLocalDir_ = nullptr;
   rexIpIntfConfigFilter_.clear();
   ethConfig_.clear();
   portState_.clear();
}

Corvo::Ptr< L3IntfSm > L3IntfSm::L3IntfSmIs( L3IntfSmArguments const & arguments ) {
   auto const sm = Corvo::makePtr< L3IntfSm >( arguments );
   sm->hasNotificationActiveIs( true );
   return sm;
}

Corvo::Ptr< L3IntfSm > l3IntfSmFactory( L3IntfSmArguments const & arguments ) {
   return L3IntfSm::L3IntfSmIs( arguments );
}

Corvo::NodeType const & L3IntfSm::typeData() const {
   static Corvo::NodeType const type{ "DaceFapNi::L3IntfSm" };
   return type;
}

void L3IntfSm::rexDoZombieReactors( bool zombie ) {
   if ( isZombie() == zombie ) {
      return;
   }
   for ( auto const [port, reactor] : portState_ ) {
      reactor->rexDoZombieReactors( zombie );
   }
   for ( auto const [intfId, filter] : rexIpIntfConfigFilter_ ) {
      filter->rexDoZombieReactors( zombie );
   }
   markAndSweepFlagSet( zombie );
}

void L3IntfSm::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() == active ) {
      return;
   }
   nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
   sliceSmState_.activeIs( active, sliceSmStateDispatch, this );
   portStateInfo_.activeIs( active, portStateInfoDispatch, this );
   for ( auto const [port, reactor] : portState_ ) {
      reactor->hasNotificationActiveIs( active );
   }
   for ( auto const [intfId, filter] : rexIpIntfConfigFilter_ ) {
      filter->hasNotificationActiveIs( active );
   }
}

// The helper starts last: it finds every active configured port in the directories.
void L3IntfSm::handleInitialized() {
   trace( 8, "L3IntfSm::", "handleInitialized", " adding ports to collection" );
   initialized_ = true;
   managedIntfStatusDirIs( "Managed Intfs" );
   managedIntfStatusLocalDirIs( "Managed ISLs" );
   if ( portStateInfo_ ) {
      for ( auto const [port, entry] : portStateInfo_->portState() ) {
         trace( 9, "L3Sm:", "handleInitialized", " handling port ", entry->intfId() );
         handlePortState( entry );
      }
   }
   if ( in_.ethIntfVrfSmHelper ) {
      in_.ethIntfVrfSmHelper->doStartSm( managedIntfStatusDir_, managedIntfStatusLocalDir_ );
   }
}

// Both handlers test the mode themselves: this is how an interface that was left alone in standby gets its status.
void L3IntfSm::handleSmMode() {
   for ( auto const [intfId, filter] : rexIpIntfConfigFilter_ ) {
      filter->handleMtuOrForwardingModel();
      filter->handleAddr();
   }
}

// A port that isn't active, or has no configuration, undoes nothing: its interface stays as it is.
void L3IntfSm::handlePortState( PortStatePtr const & portState ) {
   if ( !initialized_ ) {
      return;
   }
   Netka::IntfId const intfId = portState->intfId();
   auto const * const config = in_.ethConfigDir->intfConfig().find( intfId );
   if ( !config || !portState->active() ) {
      return;
   }
   trace( 5, "handlePortState", " ", intfId, " active ", portState->active() );
   ethConfigIs( EthConfigPtr( *config ) ); // a copy: what serving announces may change the directory
   if ( in_.ethIntfVrfSmHelper && ethConfig_.has( intfId ) ) { // not where its filter's first writes took it out again
      doUpdateManagedIntfStatusDirs( intfId, true );
   }
}

void L3IntfSm::handlePortStateDelete( PortStatePtr const & portState ) {
   if ( !initialized_ ) {
      return;
   }
   Netka::IntfId const intfId = portState->intfId();
   trace( 5, "handlePortStateDelete", " ", intfId );
   ethConfigDel( intfId );
   if ( in_.ethIntfVrfSmHelper ) {
      doUpdateManagedIntfStatusDirs( intfId, false );
   }
}

void L3IntfSm::doUpdateManagedIntfStatusDirs( Netka::IntfId intfId, bool addOrUpdate ) {
   if ( !in_.ethIntfVrfSmHelper ) {
      return;
   }
   trace( 5, "doUpdateManagedIntfStatusDirs", " ", intfId, " addOrUpdate ", addOrUpdate );
   if ( !addOrUpdate ) {
      managedIntfStatusDir_->intfStatusDel( intfId );
      managedIntfStatusLocalDir_->intfStatusLocalDel( intfId );
      return;
   }
   if ( !in_.ethConfigDir->intfConfigHas( intfId ) ) {
      Rex::SassertHelper( "ethConfigDir()->intfConfigHas( intfId )" ) << "No intfConfig for " << intfId;
   }
   managedIntfStatusDir_->intfStatusIs( in_.ethStatusDir->intfStatus( intfId ) ); // null: the directory decides
   auto const episl = in_.ethPhyIntfStatusLocalDir->intfStatusLocal( intfId );
   if ( !episl ) {
      Rex::SassertHelper( "episl" ) << "No intfStatusLocal for " << intfId;
   }
   managedIntfStatusLocalDir_->intfStatusLocalIs( episl );
}

void L3IntfSm::portStateIs( PortStatePtr const & portState ) {
   if ( !portState ) {
      throwNullArgument( "portState" );
   }
   auto const port = portState->systemPhyPortId();
   auto reactor = portState_.get( port );
   if ( !reactor ) {
      bool const wasListed = isListed( *portState );
      reactor = Corvo::makePtr< NestedSm_PortState >( portState, this );
      reactor->hasNotificationActiveIs( true );
      if ( portState_.has( port ) ) { // what serving the port set off has brought another reactor for it
         reactor->parentIs( nullptr );
      } else if ( !wasListed || isListed( *portState ) ) {
         portState_.set( port, reactor );
      }
      if ( portState_.get( port ) != reactor ) { // or has taken the port away
         reactor->rexDoZombieReactors( true );
         return;
      }
   } else if ( reactor->notifier() != portState ) {
      reactor->notifierIs( portState );
   }
   reactor->rexDoZombieReactors( isZombie() );
}

bool L3IntfSm::isListed( PortState const & portState ) const {
   return portStateInfo_ && portStateInfo_->portState( portState.systemPhyPortId() ).get() == &portState;
}

Corvo::Ptr< L3IntfSm::NestedSm_PortState > L3IntfSm::portStateDel( Hardware::Dace::SystemPhyPortId port ) {
   auto reactor = portState_.del( port );
   if ( reactor ) {
      reactor->rexDoZombieReactors( true );
      reactor->hasNotificationActiveIs( false );
   }
   return reactor;
}

void L3IntfSm::portStateDelAll() {
   for ( auto const [port, reactor] : portState_ ) {
      portStateDel( port );
   }
}

Corvo::Ptr< L3IntfSm::NestedSm_PortState > L3IntfSm::portState( Hardware::Dace::SystemPhyPortId port ) const {
   return portState_.get( port );
}

void L3IntfSm::ethConfigIs( EthConfigPtr const & config ) {
   if ( !config ) {
      throwNullArgument( "ethConfig" );
   }
   auto const * const served = ethConfig_.find( config->intfId() );
   if ( !served || *served != config ) {
      ethConfig_.set( config->intfId(), config );
   }
   ipIntfConfigFilterIs( config );
}

L3IntfSm::EthConfigPtr L3IntfSm::ethConfigDel( Netka::IntfId intfId ) {
   auto config = ethConfig_.del( intfId );
   if ( config ) {
      ipIntfConfigFilterDel( intfId );
   }
   return config;
}

void L3IntfSm::ethConfigDelAll() {
   for ( auto const [intfId, config] : ethConfig_ ) {
      ethConfigDel( intfId );
   }
}

L3IntfSm::EthConfigPtr L3IntfSm::ethConfig( Netka::IntfId intfId ) const {
   return ethConfig_.get( intfId );
}

void L3IntfSm::ipIntfConfigFilterIs( EthConfigPtr const & config ) {
   if ( !config ) {
      throwNullArgument( "ipIntfConfigFilter" );
   }
   Netka::IntfId const intfId = config->intfId();
   auto filter = rexIpIntfConfigFilter_.get( intfId );
   if ( !filter ) {
      bool const wasServed = ethConfig_.has( intfId );
      filter = Corvo::makePtr< RexIpIntfConfigFilter >( config, this );
      filter->hasNotificationActiveIs( true );
      // Whoever heard of its first writes may have taken the interface out of service, and into it again.
      if ( rexIpIntfConfigFilter_.has( intfId ) || ( wasServed && !ethConfig_.has( intfId ) ) ) {
         filter->parentIs( nullptr ); // it goes here, and must not take the other one out of service
         return;
      }
      rexIpIntfConfigFilter_.set( intfId, filter );
   } else if ( filter->notifier() != config ) {
      filter->notifierIs( config );
   }
   filter->rexDoZombieReactors( isZombie() );
}

Corvo::Ptr< L3IntfSm::RexIpIntfConfigFilter > L3IntfSm::ipIntfConfigFilterDel( Netka::IntfId intfId ) {
   auto filter = rexIpIntfConfigFilter_.del( intfId );
   if ( filter ) {
      filter->rexDoZombieReactors( true );
      filter->hasNotificationActiveIs( false );
   }
   return filter;
}

void L3IntfSm::ipIntfConfigFilterDelAll() {
   for ( auto const [intfId, filter] : rexIpIntfConfigFilter_ ) {
      ipIntfConfigFilterDel( intfId );
   }
}

L3IntfSm::EthConfigPtr L3IntfSm::ipIntfConfigFilter( Netka::IntfId intfId ) const {
   auto const filter = rexIpIntfConfigFilter_.get( intfId );
   return filter ? filter->notifier() : nullptr;
}

Corvo::Ptr< L3IntfSm::RexIpIntfConfigFilter > L3IntfSm::rexIpIntfConfigFilter( Netka::IntfId intfId ) const {
   return rexIpIntfConfigFilter_.get( intfId );
}

Corvo::Ptr< Interface::ManagedIntfStatusDir > L3IntfSm::managedIntfStatusDirIs( Corvo::String const & name ) {
   if ( !managedIntfStatusDir_ || managedIntfStatusDir_->name() != name ) {
      managedIntfStatusDir_ = Corvo::makePtr< Interface::ManagedIntfStatusDir >( name );
   }
   return managedIntfStatusDir_;
}

Corvo::Ptr< Interface::ManagedIntfStatusDir > L3IntfSm::managedIntfStatusDirDel() {
   return std::exchange( managedIntfStatusDir_, nullptr );
}

Corvo::Ptr< Interface::ManagedIntfStatusLocalDir > L3IntfSm::managedIntfStatusLocalDirIs( Corvo::String const & name ) {
   if ( !managedIntfStatusLocalDir_ || managedIntfStatusLocalDir_->name() != name ) {
      managedIntfStatusLocalDir_ = Corvo::makePtr< Interface::ManagedIntfStatusLocalDir >( name );
   }
   return managedIntfStatusLocalDir_;
}

Corvo::Ptr< Interface::ManagedIntfStatusLocalDir > L3IntfSm::managedIntfStatusLocalDirDel() {
   return std::exchange( managedIntfStatusLocalDir_, nullptr );
}

void L3IntfSm::sliceSmStateDispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const *, void const * ) {
   Corvo::Ptr< L3IntfSm > const self = slot->owner< L3IntfSm >();
   if ( attribute == sliceSmStateSmMode && !self->isZombie() ) {
      self->handleSmMode();
   }
}

// No test of the zombie flag: a keyed collection keeps its reactors in step whatever the state.
void L3IntfSm::portStateInfoDispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const * key, void const * ) {
   Corvo::Ptr< L3IntfSm > const self = slot->owner< L3IntfSm >();
   if ( attribute != portStateInfoPortState ) {
      return;
   }
   auto const port = *static_cast< Hardware::Dace::SystemPhyPortId const * >( key );
   if ( auto const entry = self->portStateInfo_->portState( port ) ) {
      self->portStateIs( entry );
   } else {
      self->portStateDel( port );
   }
}

L3IntfSm::NestedSm_PortState::NestedSm_PortState( PortStatePtr const & portState, L3IntfSm * parent )
   : parent_( parent ) {
   notifierEntityIs( portState );
   isRegisteredNotifieeIs( true );
   rex_handlePortState_portGenId();
}

L3IntfSm::NestedSm_PortState::~NestedSm_PortState() = default;

L3IntfSm::PortStatePtr L3IntfSm::NestedSm_PortState::notifier() const {
   return static_cast< PortState const * >( notifierEntity().get() );
}

void L3IntfSm::NestedSm_PortState::notifierIs( Corvo::Ptr< Rex::Entity const > const & node ) {
   auto const portState = Corvo::ptrCast< PortState const >( node );
   if ( notifier() == portState ) {
      return;
   }
   notifierEntityIs( portState );
   if ( portState && !isZombie() ) {
      rex_handlePortState_portGenId();
   }
   isRegisteredNotifieeIs( true );
}

void L3IntfSm::NestedSm_PortState::onAttribute( Rex::AttributeId attribute, void const * ) {
   if ( attribute == portStatePortGenId && !isZombie() ) {
      rex_handlePortState_portGenId();
   }
}

void L3IntfSm::NestedSm_PortState::rexDoZombieReactors( bool zombie ) {
   if ( isZombie() == zombie ) {
      return;
   }
   if ( notifier() ) {
      hasNotificationActiveIs( !zombie );
   }
   if ( parent_ ) {
      parent_->handlePortStateDelete( notifier() );
   }
   markAndSweepFlagSet( zombie );
}

void L3IntfSm::NestedSm_PortState::rex_handlePortState_portGenId() {
   if ( Corvo::Ptr< L3IntfSm > const parent = parent_ ) { // kept alive: whoever hears of what follows may drop it
      parent->handlePortState( notifier() );
   }
}

} // namespace DaceFapNi
