// The entities around an L3IntfSm, as an agent would hold them, and ways to hear what it does.
#pragma once

#include "L3IntfSm.h"
#include "RexIpIntfConfigFilter.h"
#include "rex/Trace.h"

#include <string>
#include <vector>

namespace DaceFapNi {

inline Netka::EthAddr const bridgeMac( "02:00:00:00:00:ff" );
inline Netka::EthAddr const burnedIn( "02:00:00:00:01:01" );
inline Netka::EthAddr const configured( "02:00:00:00:02:02" );
inline Netka::EthAddr const none;

struct InterfaceWorld {
   using Filter = L3IntfSm::RexIpIntfConfigFilter;

   Corvo::Ptr< Bridging::Config > bridging = Corvo::makePtr< Bridging::Config >();
   Corvo::Ptr< Bridging::HwCapabilities > bridgingHw = Corvo::makePtr< Bridging::HwCapabilities >();
   Corvo::Ptr< Interface::AllEthPhyIntfConfigDir > configDir = Corvo::makePtr< Interface::AllEthPhyIntfConfigDir >();
   Corvo::Ptr< Interface::AllEthPhyIntfStatusDir > statusDir = Corvo::makePtr< Interface::AllEthPhyIntfStatusDir >();
   Corvo::Ptr< Interface::EthPhyIntfStatusLocalDir > localDir = Corvo::makePtr< Interface::EthPhyIntfStatusLocalDir >();
   Corvo::Ptr< Orb::TaskScheduler > scheduler = Corvo::makePtr< Orb::TaskScheduler >();
   Corvo::Ptr< Interface::GlobalIntfConfig > globalConfig = Corvo::makePtr< Interface::GlobalIntfConfig >();
   Corvo::Ptr< EthIntf::EthIntfVrfSmHelper > helper = EthIntf::ethIntfVrfSmHelperFactory( nullptr );
   Corvo::Ptr< SliceSmStateInfo > slice = Corvo::makePtr< SliceSmStateInfo >();
   Corvo::Ptr< PortStateInfo > ports = Corvo::makePtr< PortStateInfo >();
   Corvo::Ptr< RouterMac::HwCapability > routerMac = Corvo::makePtr< RouterMac::HwCapability >();
   Corvo::Ptr< Interface::Hardware::Capability > capability = Corvo::makePtr< Interface::Hardware::Capability >();
   Corvo::Ptr< Interface::SubIntfStatusDir > subIntfs = Corvo::makePtr< Interface::SubIntfStatusDir >();
   Corvo::Ptr< Interface::SubIntfStatusLocalDir > subIntfLocals = Corvo::makePtr< Interface::SubIntfStatusLocalDir >();
   Corvo::Ptr< L3IntfSm > sm;

   InterfaceWorld() { bridging->bridgeMacAddrIs( bridgeMac ); }

   L3IntfSmArguments arguments() const {
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
   void start() { sm = L3IntfSm::L3IntfSmIs( arguments() ); }
   void modeIs( U8 mode ) { slice->smModeIs( Hardware::Dace::SmMode{ mode } ); }

   // An interface with configuration, status and local status.
   Netka::IntfId intf( std::string const & name ) {
      Netka::IntfId const id( name );
      configDir->intfConfigIs( Corvo::makePtr< Interface::EthPhyIntfConfig >( id ) );
      statusIs( id );
      localDir->intfStatusLocalIs( Corvo::makePtr< Interface::EthPhyIntfStatusLocal >( id ) );
      return id;
   }
   void statusIs( Netka::IntfId id ) {
      auto const status = Corvo::makePtr< Interface::EthPhyIntfStatus >( id );
      status->burnedInAddrIs( burnedIn );
      statusDir->intfStatusIs( status );
   }
   Corvo::Ptr< PortState > port( U16 number, Netka::IntfId id, bool active = true ) {
      auto const state = Corvo::makePtr< PortState >( Hardware::Dace::SystemPhyPortId{ number } );
      state->intfIdIs( id );
      state->activeIs( active );
      ports->portStateIs( state );
      return state;
   }
   void portDel( U16 number ) { ports->portStateDel( Hardware::Dace::SystemPhyPortId{ number } ); }
   Corvo::Ptr< Interface::SubIntfStatus > subIntf( std::string const & name, Netka::IntfId parent ) {
      Netka::IntfId const id( name );
      auto const status = Corvo::makePtr< Interface::SubIntfStatus >( id );
      status->parentIntfIdIs( parent );
      subIntfs->intfStatusIs( status );
      subIntfLocals->intfStatusLocalIs( Corvo::makePtr< Interface::SubIntfStatusLocal >( id ) );
      return status;
   }

   bool serves( Netka::IntfId id ) const { return sm->rexIpIntfConfigFilterHas( id ); }
   bool manages( Netka::IntfId id ) const {
      return sm->managedIntfStatusDir()->intfStatusHas( id ) &&
             sm->managedIntfStatusLocalDir()->intfStatusLocalHas( id );
   }
   Corvo::Ptr< Filter > filter( Netka::IntfId id ) const { return sm->rexIpIntfConfigFilter( id ); }
   Corvo::Ptr< Interface::EthPhyIntfConfig > config( Netka::IntfId id ) const { return configDir->intfConfig( id ); }
   Corvo::Ptr< Interface::EthPhyIntfStatus > status( Netka::IntfId id ) const { return statusDir->intfStatus( id ); }
   Corvo::Ptr< Interface::EthPhyIntfStatusLocal > local( Netka::IntfId id ) const {
      return localDir->intfStatusLocal( id );
   }
   Corvo::Ptr< Interface::SyncMtuSubIntfWalkSm > walk( Netka::IntfId id ) const {
      return filter( id )->syncMtuSubIntfSm()->notifier();
   }
   unsigned walkResult( Netka::IntfId id ) const { return walk( id )->syncMtuResult(); }
};

// Records the traces of the interface machinery, as "<level> <text>".
class Traces {
 public:
   explicit Traces( int highest = 9 ) {
      Rex::traceLevelIs( "DaceFapNiL3Sm", highest );
      Rex::traceSinkIs( [this]( Rex::TraceRecord const & record ) {
         seen_.push_back( std::to_string( record.level ) + " " + record.text );
      } );
   }
   Traces( Traces const & ) = delete;
   Traces & operator=( Traces const & ) = delete;
   ~Traces() {
      Rex::traceLevelIs( "DaceFapNiL3Sm", -1 );
      Rex::traceSinkIs( {} );
   }
   // What was recorded since the last call.
   std::vector< std::string > take() { return std::exchange( seen_, {} ); }

 private:
   std::vector< std::string > seen_;
};

// Hears the changes of entities, as "<entity's name> <attribute>[ <key>]", and may act on one.
class Ear {
 public:
   explicit Ear( std::vector< Corvo::Ptr< Rex::Entity > > const & entities ) : slots_( entities.size() ) {
      for ( std::size_t i = 0; i < entities.size(); ++i ) {
         entities_.push_back( entities[i] );
         slots_[i].dispatchIs( dispatch, this );
         entities[i]->publisher()->subscriberAdd( slots_[i], false );
      }
   }
   std::vector< std::string > take() { return std::exchange( heard_, {} ); }
   // Runs once, when `text` is heard.
   void when( std::string const & text, std::function< void() > act ) {
      text_ = text;
      act_ = std::move( act );
   }

 private:
   static void
   dispatch( Corvo::Publisher * publisher, Corvo::Subscriber * slot, short id, void const * key, void const * ) {
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
   std::vector< Corvo::Ptr< Rex::Entity > > entities_; // outlive the slots
   std::vector< Corvo::Subscriber > slots_;
   std::vector< std::string > heard_;
   std::string text_;
   std::function< void() > act_;
};

using Texts = std::vector< std::string >;

} // namespace DaceFapNi
