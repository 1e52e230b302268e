// RexIpIntfConfigFilter: works for one served interface.
//
// While the slice's mode is active it publishes the interface's MAC address and routed MAC address, and keeps the MTU
// of the interface and its subinterfaces in step with the effective L3 MTU. In any other mode it writes nothing.
//
//    intfConfig          enabled, addr      --> handleMtuOrForwardingModel, handleAddr
//    intfStatus          forwardingModel,
//                        burnedInAddr       --> handleMtuOrForwardingModel
//    effectiveL3Mtu      mtu                --> handleMtuOrForwardingModel
//    syncMtuSubIntfSm    syncMtuResult      --> handleSyncMtuResult
//
// The MTU walk, as the filter sees it:
//
//    idle      --> walking   a run of handleMtuOrForwardingModel that passes all tests
//    walking   --> synced    the walk reports 3
//    synced    --> idle      the next run of handleMtuOrForwardingModel resets the walk
//    any       --> idle      a test fails: the walk is abandoned
//
// Threading: the agent's scheduler thread. Whoever hears of what a handler writes may take the interface out of
// service; the caller of a handler keeps the filter alive.
#pragma once

#include "L3IntfSm.h"
#include "interface/L3MtuSm.h"
#include "interface/SyncMtuSubIntfWalkSm.h"

namespace DaceFapNi {

class L3IntfSm::RexIpIntfConfigFilter : public Rex::NotifieeConst {
   template< class Derived, class Notifier >
   class Nested;

 public:
   class RexIntfConfig;
   class RexIntfStatus;
   class RexEffectiveL3Mtu;
   class RexSyncMtuSubIntfSm;

   // Builds everything and runs handleInitialized.
   RexIpIntfConfigFilter( EthConfigPtr const & config, L3IntfSm * parent );
   ~RexIpIntfConfigFilter() override;

   EthConfigPtr notifier() const;
   // Follows another configuration of the interface. Runs no handler.
   void notifierIs( Corvo::Ptr< Rex::Entity const > const & node );
   Netka::IntfId intfId() const { return notifier()->intfId(); }
   // Null: the state machine is going, and is not called back.
   void parentIs( L3IntfSm * parent ) { parent_ = parent; }
   L3IntfSm * parent() const { return parent_; }
   bool initialized() const { return initialized_; }

   // Idempotent. Passes the value to everything nested.
   void hasNotificationActiveIs( bool active );
   // Idempotent. Either way it takes the interface out of service.
   void rexDoZombieReactors( bool zombie ) override;

   void handleInitialized();
   // Publishes the addresses. False only where the interface has no status. No configuration: assertion "intfConfig()".
   bool handleAddr();
   // Publishes the addresses and walks on with the MTU. No configuration, in active mode: assertion "intfConfig()".
   void handleMtuOrForwardingModel();
   void handleSyncMtuResult();

   // What is followed; null takes it away, and keeps what is there if it is the same. The removers return the reactor,
   // or null.
   void intfConfigIs( EthConfigPtr const & intfConfig );
   Corvo::Ptr< RexIntfConfig > intfConfigDel();
   Corvo::Ptr< RexIntfConfig > const & intfConfig() const { return intfConfig_; }
   void intfStatusIs( Corvo::Ptr< Interface::EthPhyIntfStatus > const & intfStatus );
   Corvo::Ptr< RexIntfStatus > intfStatusDel();
   Corvo::Ptr< RexIntfStatus > const & intfStatus() const { return intfStatus_; }
   void effectiveL3MtuIs( Corvo::Ptr< Interface::EffectiveL3Mtu > const & effectiveL3Mtu );
   Corvo::Ptr< RexEffectiveL3Mtu > effectiveL3MtuDel();
   Corvo::Ptr< RexEffectiveL3Mtu > const & effectiveL3Mtu() const { return effectiveL3Mtu_; }
   void syncMtuSubIntfSmIs( Corvo::Ptr< Interface::SyncMtuSubIntfWalkSm > const & syncMtuSubIntfSm );
   Corvo::Ptr< RexSyncMtuSubIntfSm > syncMtuSubIntfSmDel();
   Corvo::Ptr< RexSyncMtuSubIntfSm > const & syncMtuSubIntfSm() const { return syncMtuSubIntfSm_; }

   Corvo::Ptr< Interface::EthPhyIntfStatusLocal > const & intfStatusLocal() const { return intfStatusLocal_; }

   // Keeps an instance that was built from these arguments.
   Corvo::Ptr< Interface::L3MtuSm > l3MtuSmIs( Corvo::Ptr< Interface::IntfConfig const > const & intfConfig,
                                               Corvo::Ptr< Interface::GlobalIntfConfig const > const & globalIntfConfig,
                                               Corvo::Ptr< Interface::EffectiveL3Mtu > const & effectiveL3Mtu,
                                               Corvo::Ptr< Interface::Hardware::Capability const > const & capability );
   Corvo::Ptr< Interface::L3MtuSm > l3MtuSmDel();
   Corvo::Ptr< Interface::L3MtuSm > const & l3MtuSm() const { return l3MtuSm_; }

 private:
   // The inputs of the state machine that serves the interface.
   L3IntfSmArguments const & in() const;
   // The mode of the slice; null, which is standby, where no slice tells it.
   Hardware::Dace::SmMode smMode() const;
   void resetWalk();

   // Whether a change of what an attribute follows makes a run of handleMtuOrForwardingModel due.
   enum class MtuRun : bool { notDue, due };
   template< MtuRun mtuRun, class Reactor, class Notifier >
   void followerIs( Corvo::Ptr< Reactor > & attribute, Corvo::Ptr< Notifier > const & notifier );
   template< MtuRun mtuRun, class Reactor >
   Corvo::Ptr< Reactor > followerDel( Corvo::Ptr< Reactor > & attribute );

   L3IntfSm * parent_;
   Corvo::Ptr< RexIntfConfig > intfConfig_;
   Corvo::Ptr< RexIntfStatus > intfStatus_;
   Corvo::Ptr< Interface::EthPhyIntfStatusLocal > intfStatusLocal_;
   Corvo::Ptr< RexEffectiveL3Mtu > effectiveL3Mtu_;
   Corvo::Ptr< Interface::L3MtuSm > l3MtuSm_;
   Corvo::Ptr< RexSyncMtuSubIntfSm > syncMtuSubIntfSm_;
   bool initialized_ = false;
};

// What the filter's reactors have in common: a typed notifier, a parent, and silence where either is gone or the
// reactor is a zombie.
template< class Derived, class Notifier >
class L3IntfSm::RexIpIntfConfigFilter::Nested : public Rex::NotifieeConst {
 public:
   // The cast gives back what notifierIs was given.
   Corvo::Ptr< Notifier > notifier() const {
      return const_cast< Notifier * >( static_cast< Notifier const * >( notifierEntity().get() ) );
   }
   // Follows another notifier, or none, and handles it as changed.
   template< class Node >
   void notifierIs( Corvo::Ptr< Node > const & node ) {
      auto const cast = Corvo::ptrCast< Notifier >( node );
      if ( notifier() == cast ) {
         return;
      }
      notifierEntityIs( cast );
      if ( cast && !isZombie() ) {
         static_cast< Derived * >( this )->handleNotifier();
      }
      isRegisteredNotifieeIs( true );
   }
   void rexDoZombieReactors( bool zombie ) override;
   void parentIs( RexIpIntfConfigFilter * parent ) { parent_ = parent; }
   RexIpIntfConfigFilter * parent() const { return parent_; }

 protected:
   // Runs a handler of the filter, which is kept alive meanwhile.
   template< class Handler >
   void run( Handler handler ) {
      if ( !isZombie() && parent_ ) {
         Corvo::Ptr< RexIpIntfConfigFilter > const filter = parent_;
         ( filter.get()->*handler )();
      }
   }

 private:
   RexIpIntfConfigFilter * parent_ = nullptr;
};

class L3IntfSm::RexIpIntfConfigFilter::RexIntfConfig
   : public Nested< RexIntfConfig, Interface::EthPhyIntfConfig const > {
 public:
   void onAttribute( Rex::AttributeId attribute, void const * key ) override;
   void handleNotifier();
};

class L3IntfSm::RexIpIntfConfigFilter::RexIntfStatus : public Nested< RexIntfStatus, Interface::EthPhyIntfStatus > {
 public:
   void onAttribute( Rex::AttributeId attribute, void const * key ) override;
   void handleNotifier();
};

class L3IntfSm::RexIpIntfConfigFilter::RexEffectiveL3Mtu
   : public Nested< RexEffectiveL3Mtu, Interface::EffectiveL3Mtu > {
 public:
   void onAttribute( Rex::AttributeId attribute, void const * key ) override;
   void handleNotifier();
};

class L3IntfSm::RexIpIntfConfigFilter::RexSyncMtuSubIntfSm
   : public Nested< RexSyncMtuSubIntfSm, Interface::SyncMtuSubIntfWalkSm > {
 public:
   void onAttribute( Rex::AttributeId attribute, void const * key ) override;
   void handleNotifier();
};

} // namespace DaceFapNi
