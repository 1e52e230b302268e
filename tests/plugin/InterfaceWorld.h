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

   InterfaceWorld();
   ~InterfaceWorld();

   L3IntfSmArguments arguments() const;
   void start();
   void modeIs( U8 mode ) { slice->smModeIs( Hardware::Dace::SmMode{ mode } ); }

   // An interface with configuration, status and local status.
   Netka::IntfId intf( std::string const & name );
   void statusIs( Netka::IntfId id );
   Corvo::Ptr< PortState > port( U16 number, Netka::IntfId id, bool active = true );
   void portDel( U16 number ) { ports->portStateDel( Hardware::Dace::SystemPhyPortId{ number } ); }
   Corvo::Ptr< Interface::SubIntfStatus > subIntf( std::string const & name, Netka::IntfId parent );

   bool serves( Netka::IntfId id ) const { return sm->rexIpIntfConfigFilterHas( id ); }
   bool manages( Netka::IntfId id ) const;
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
   explicit Traces( int highest = 9 );
   Traces( Traces const & ) = delete;
   Traces & operator=( Traces const & ) = delete;
   ~Traces();
   // What was recorded since the last call.
   std::vector< std::string > take() { return std::exchange( seen_, {} ); }

 private:
   std::vector< std::string > seen_;
};

// Hears the changes of entities, as "<entity's name> <attribute>[ <key>]", and may act on one.
class Ear {
 public:
   explicit Ear( std::vector< Corvo::Ptr< Rex::Entity > > const & entities );
   ~Ear();
   std::vector< std::string > take() { return std::exchange( heard_, {} ); }
   // Runs once, when `text` is heard.
   void when( std::string const & text, std::function< void() > act ) {
      text_ = text;
      act_ = std::move( act );
   }

 private:
   static void
   dispatch( Corvo::Publisher * publisher, Corvo::Subscriber * slot, short id, void const * key, void const * );
   std::vector< Corvo::Ptr< Rex::Entity > > entities_; // outlive the slots
   std::vector< Corvo::Subscriber > slots_;
   std::vector< std::string > heard_;
   std::string text_;
   std::function< void() > act_;
};

using Texts = std::vector< std::string >;

} // namespace DaceFapNi
