#include "InterfaceWorld.h"

namespace DaceFapNi {

InterfaceWorld::InterfaceWorld() {
   bridging->bridgeMacAddrIs( bridgeMac );
}
InterfaceWorld::~InterfaceWorld() = default;

L3IntfSmArguments InterfaceWorld::arguments() const {
   return { bridging,
            bridgingHw,
            configDir,
            statusDir,
            localDir,
            scheduler,
            globalConfig,
            helper,
            slice,
            ports,
            routerMac,
            capability,
            subIntfs,
            subIntfLocals };
}

Netka::IntfId InterfaceWorld::intf( std::string const & name ) {
   Netka::IntfId const id( name );
   configDir->intfConfigIs( Corvo::makePtr< Interface::EthPhyIntfConfig >( id ) );
   statusIs( id );
   localDir->intfStatusLocalIs( Corvo::makePtr< Interface::EthPhyIntfStatusLocal >( id ) );
   return id;
}

void InterfaceWorld::statusIs( Netka::IntfId id ) {
   auto const status = Corvo::makePtr< Interface::EthPhyIntfStatus >( id );
   status->burnedInAddrIs( burnedIn );
   statusDir->intfStatusIs( status );
}

Corvo::Ptr< PortState > InterfaceWorld::port( U16 number, Netka::IntfId id, bool active ) {
   auto const state = Corvo::makePtr< PortState >( Hardware::Dace::SystemPhyPortId{ number } );
   state->intfIdIs( id );
   state->activeIs( active );
   ports->portStateIs( state );
   return state;
}

Corvo::Ptr< Interface::SubIntfStatus > InterfaceWorld::subIntf( std::string const & name, Netka::IntfId parent ) {
   Netka::IntfId const id( name );
   auto const status = Corvo::makePtr< Interface::SubIntfStatus >( id );
   status->parentIntfIdIs( parent );
   subIntfs->intfStatusIs( status );
   subIntfLocals->intfStatusLocalIs( Corvo::makePtr< Interface::SubIntfStatusLocal >( id ) );
   return status;
}

void InterfaceWorld::start() {
   sm = L3IntfSm::L3IntfSmIs( arguments() );
}

bool InterfaceWorld::manages( Netka::IntfId id ) const {
   return sm->managedIntfStatusDir()->intfStatusHas( id ) && sm->managedIntfStatusLocalDir()->intfStatusLocalHas( id );
}

Traces::Traces( int highest ) {
   Rex::traceLevelIs( "DaceFapNiL3Sm", highest );
   Rex::traceSinkIs( [this]( Rex::TraceRecord const & record ) {
      seen_.push_back( std::to_string( record.level ) + " " + record.text );
   } );
}

Traces::~Traces() {
   Rex::traceLevelIs( "DaceFapNiL3Sm", -1 );
   Rex::traceSinkIs( {} );
}

Ear::Ear( std::vector< Corvo::Ptr< Rex::Entity > > const & entities ) : slots_( entities.size() ) {
   for ( std::size_t i = 0; i < entities.size(); ++i ) {
      entities_.push_back( entities[i] );
      slots_[i].dispatchIs( dispatch, this );
      entities[i]->publisher()->subscriberAdd( slots_[i], false );
   }
}

Ear::~Ear() = default;

void Ear::dispatch( Corvo::Publisher * publisher, Corvo::Subscriber * slot, short id, void const * key, void const * ) {
   auto & self = *slot->owner< Ear >();
   auto const & entity = static_cast< Rex::Entity const & >( publisher->node() );
   auto const * attribute = entity.typeData().attribute( id );
   std::string text = entity.name().empty() ? std::string() : entity.name() + " ";
   text += attribute->name;
   if ( key ) {
      text += " " + attribute->keyText( key );
   }
   self.heard_.push_back( text );
   if ( self.act_ && text == self.text_ ) {
      std::exchange( self.act_, nullptr )();
   }
}

} // namespace DaceFapNi
