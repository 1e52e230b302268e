// L3IntfSm: decides which Ethernet interfaces this agent serves.
//
//    auto const sm = L3IntfSm::L3IntfSmIs( { bridgingConfig, ..., subIntfStatusLocalDir } );   // 14 inputs
//    sm->rexIpIntfConfigFilter( intfId );      // the worker of a served interface, null for others
//
// It follows the ports of the slice. An active port whose interface has a configuration brings the interface into
// service: a RexIpIntfConfigFilter, which works for it, and its entries in the two managed directories. A port that
// merely stops being active changes nothing; one that is removed takes its interface out of service.
//
//    unserved   no entry in ethConfig: no filter, no managed entry
//    served     an entry in ethConfig: a filter; managed entries, if there is an EthIntfVrfSmHelper
//
// Failing: a null argument to a collection's setter throws the null-argument exception. With an EthIntfVrfSmHelper, an
// interface that comes into service must have a configuration and a local status; else the process ends by assertion.
//
// Threading: the agent's scheduler thread. Handlers may change the collections that are being walked.
#pragma once

#include "agent/SharedObjects.h"
#include "corvo/Watched.h"
#include "interface/EthIntfVrfSmHelper.h"
#include "interface/ManagedIntfStatusDir.h"
#include "rex/HashMap2018.h"
#include "rex/Notifiee.h"
#include "state/Interfaces.h"
#include "state/Routing.h"

namespace DaceFapNi {

// What an L3IntfSm is built from, in the order of its attributes. Two with equal arguments are the same.
struct L3IntfSmArguments {
   Corvo::Ptr< Bridging::Config const > bridgingConfig;
   Corvo::Ptr< Bridging::HwCapabilities const > bridgingHwCapabilities;
   Corvo::Ptr< Interface::AllEthPhyIntfConfigDir const > ethConfigDir;
   Corvo::Ptr< Interface::AllEthPhyIntfStatusDir > ethStatusDir;
   Corvo::Ptr< Interface::EthPhyIntfStatusLocalDir > ethPhyIntfStatusLocalDir;
   Corvo::Ptr< Orb::TaskScheduler > scheduler;
   Corvo::Ptr< Interface::GlobalIntfConfig const > globalIntfConfig;
   Corvo::Ptr< EthIntf::EthIntfVrfSmHelper > ethIntfVrfSmHelper; // null: the managed directories stay empty
   Corvo::Ptr< SliceSmStateInfo const > sliceSmState;
   Corvo::Ptr< PortStateInfo const > portStateInfo;
   Corvo::Ptr< RouterMac::HwCapability const > routerMacHwCapability;
   Corvo::Ptr< Interface::Hardware::Capability const > intfHwCapability;
   Corvo::Ptr< Interface::SubIntfStatusDir const > subIntfStatusDir;
   Corvo::Ptr< Interface::SubIntfStatusLocalDir const > subIntfStatusLocalDir;

   friend bool operator==( L3IntfSmArguments const &, L3IntfSmArguments const & ) = default;
};

class L3IntfSm : public Corvo::Node {
 public:
   class NestedSm_PortState;
   class RexIpIntfConfigFilter;

   using PortStatePtr = Corvo::Ptr< PortState const >;
   using EthConfigPtr = Corvo::Ptr< Interface::EthPhyIntfConfig const >;

   // Subscribes to the inputs, and serves the interfaces of the ports that are there.
   explicit L3IntfSm( L3IntfSmArguments const & arguments );
   ~L3IntfSm() override;
   // Makes an L3IntfSm and activates it.
   static Corvo::Ptr< L3IntfSm > L3IntfSmIs( L3IntfSmArguments const & arguments );

   Corvo::NodeType const & typeData() const override;
   // Idempotent. Passes the value to the ports' reactors and to the filters.
   virtual void rexDoZombieReactors( bool zombie );
   // Idempotent. Subscribes to or unsubscribes from the inputs, and passes the value to every reactor and filter.
   void hasNotificationActiveIs( bool active );

   L3IntfSmArguments const & arguments() const { return in_; }
   bool initialized() const { return initialized_; }

   // Makes the managed directories, serves the interfaces of the active ports, and starts the helper on the result.
   void handleInitialized();
   // The slice's mode has changed: every filter runs again. Filters may come and go meanwhile.
   void handleSmMode();
   void handlePortState( PortStatePtr const & portState );
   void handlePortStateDelete( PortStatePtr const & portState );

   // One reactor for each port, by its id.
   void portStateIs( PortStatePtr const & portState );
   Corvo::Ptr< NestedSm_PortState > portStateDel( Hardware::Dace::SystemPhyPortId port );
   void portStateDelAll();
   Corvo::Ptr< NestedSm_PortState > portState( Hardware::Dace::SystemPhyPortId port ) const;
   bool portStateHas( Hardware::Dace::SystemPhyPortId port ) const { return portState_.has( port ); }

   // The configurations of the interfaces that are served. Entering one brings its filter with it.
   void ethConfigIs( EthConfigPtr const & config );
   EthConfigPtr ethConfigDel( Netka::IntfId intfId );
   void ethConfigDelAll();
   EthConfigPtr ethConfig( Netka::IntfId intfId ) const;

   // One filter for each served interface.
   void ipIntfConfigFilterIs( EthConfigPtr const & config );
   Corvo::Ptr< RexIpIntfConfigFilter > ipIntfConfigFilterDel( Netka::IntfId intfId );
   void ipIntfConfigFilterDelAll();
   // What the filter of an interface follows; null without a filter.
   EthConfigPtr ipIntfConfigFilter( Netka::IntfId intfId ) const;
   Corvo::Ptr< RexIpIntfConfigFilter > rexIpIntfConfigFilter( Netka::IntfId intfId ) const;
   bool rexIpIntfConfigFilterHas( Netka::IntfId intfId ) const { return rexIpIntfConfigFilter_.has( intfId ); }

   // A directory of another name replaces the one that is there.
   Corvo::Ptr< Interface::ManagedIntfStatusDir > managedIntfStatusDirIs( Corvo::String const & name );
   Corvo::Ptr< Interface::ManagedIntfStatusDir > managedIntfStatusDirDel();
   Corvo::Ptr< Interface::ManagedIntfStatusDir > const & managedIntfStatusDir() const { return managedIntfStatusDir_; }
   Corvo::Ptr< Interface::ManagedIntfStatusLocalDir > managedIntfStatusLocalDirIs( Corvo::String const & name );
   Corvo::Ptr< Interface::ManagedIntfStatusLocalDir > managedIntfStatusLocalDirDel();
   Corvo::Ptr< Interface::ManagedIntfStatusLocalDir > const & managedIntfStatusLocalDir() const {
      return managedIntfStatusLocalDir_;
   }
   void doUpdateManagedIntfStatusDirs( Netka::IntfId intfId, bool addOrUpdate );

 private:
   bool isListed( PortState const & portState ) const;
   static void sliceSmStateDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );
   static void portStateInfoDispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );

   L3IntfSmArguments const in_;
   Corvo::WatchedIn< SliceSmStateInfo const > sliceSmState_;
   Corvo::WatchedIn< PortStateInfo const > portStateInfo_;
   Rex::HashMap2018< Hardware::Dace::SystemPhyPortId, Corvo::Ptr< NestedSm_PortState > > portState_;
   Rex::HashMap2018< Netka::IntfId, EthConfigPtr > ethConfig_;
   Rex::HashMap2018< Netka::IntfId, Corvo::Ptr< RexIpIntfConfigFilter > > rexIpIntfConfigFilter_; // keys of ethConfig
   Corvo::Ptr< Interface::ManagedIntfStatusDir > managedIntfStatusDir_;
   Corvo::Ptr< Interface::ManagedIntfStatusLocalDir > managedIntfStatusLocalDir_;
   bool initialized_ = false;
};

// Makes an L3IntfSm and activates it.
Corvo::Ptr< L3IntfSm > l3IntfSmFactory( L3IntfSmArguments const & arguments );

// The reactor on one port. It tells the state machine when the port has changed, and when it is gone.
class L3IntfSm::NestedSm_PortState : public Rex::NotifieeConst {
 public:
   NestedSm_PortState( PortStatePtr const & portState, L3IntfSm * parent );
   ~NestedSm_PortState() override;

   PortStatePtr notifier() const;
   // Follows another port, and handles it as changed.
   void notifierIs( Corvo::Ptr< Rex::Entity const > const & node );
   void onAttribute( Rex::AttributeId attribute, void const * key ) override;
   // Idempotent. Either way the port's interface goes out of service.
   void rexDoZombieReactors( bool zombie ) override;
   // Null: the state machine is going, and is not called back.
   void parentIs( L3IntfSm * parent ) { parent_ = parent; }
   L3IntfSm * parent() const { return parent_; }

 private:
   void rex_handlePortState_portGenId();

   L3IntfSm * parent_;
};

} // namespace DaceFapNi
