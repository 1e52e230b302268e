// The frame in which a plug-in's mounter runs: context, stages, and the machine that waits for the slice.
//
// Stages, driven by the base class:
//    1. init( context )              the plug-in has made its mounter
//    2. createPluginStatePhase1()    the platform's own preparation
//    3. createPluginStatePhase2()    the plug-in registers its part of chip initialisation
//    4. startPluginRunnabilitySm()   the plug-in says in which slice states it may run
//    5. doMounts()                   when the slice reaches such a state; once
//    6. doMountsComplete()           when the mount group reports back
//
// Threading: the agent's scheduler thread.
#pragma once

#include "agent/SharedObjects.h"
#include "corvo/Watched.h"
#include "plugin/Loader.h"
#include "stordb/Stordb.h"

namespace Agent::MounterPlugin {

// The objects that the plug-ins of one agent share, by key.
class LocalSharedState : public Corvo::Node {
 public:
   using ReadOnlyDb = Rex::HashMap2018< Corvo::String, Corvo::Ptr< Rex::Entity const > >;
   using WriteAllowedDb = Rex::HashMap2018< Corvo::String, Corvo::Ptr< Rex::Entity > >;

   ReadOnlyDb const & readOnlyDb() const { return readOnly_; }
   ReadOnlyDb & readOnlyDb() { return readOnly_; }
   WriteAllowedDb const & writeAllowedDb() const { return writeAllowed_; }
   WriteAllowedDb & writeAllowedDb() { return writeAllowed_; }

   // The object under `key` as a T; null if it is missing or of another type.
   template< class T >
   Corvo::Ptr< T const > readOnly( Corvo::String const & key ) const {
      return Corvo::ptrCast< T const >( readOnly_.get( key ) );
   }
   template< class T >
   Corvo::Ptr< T > writeAllowed( Corvo::String const & key ) const {
      return Corvo::ptrCast< T >( writeAllowed_.get( key ) );
   }

 private:
   ReadOnlyDb readOnly_;
   WriteAllowedDb writeAllowed_;
};

// What a mounter is given.
class MounterContext : public Corvo::Node {
 public:
   MounterContext( Corvo::Ptr< Stordb::EntityManager > entityManager, Corvo::Ptr< LocalSharedState > localSharedState )
      : entityManager_( std::move( entityManager ) ), localSharedState_( std::move( localSharedState ) ) {}
   Corvo::Ptr< Stordb::EntityManager > const & entityManager() const { return entityManager_; }
   Corvo::Ptr< LocalSharedState > const & localSharedState() const { return localSharedState_; }

 private:
   Corvo::Ptr< Stordb::EntityManager > entityManager_;
   Corvo::Ptr< LocalSharedState > localSharedState_;
};

// The base of a plug-in object.
template< class Context >
class PluginBase {
 public:
   // Calls init of the plug-in object that it points at.
   class PluginBaseInitCaller : public ::Plugin::PluginInitCaller< Context > {
    public:
      explicit PluginBaseInitCaller( PluginBase * plugin ) : plugin_( plugin ) {}
      void operator()( Context * context ) override { plugin_->init( context ); }
      void release() override { plugin_->release(); }

    private:
      PluginBase * plugin_;
   };

   virtual ~PluginBase() = default;
   virtual void init( Context * context ) = 0;
   // Drops what init made: the agent goes down while the library stays loaded.
   virtual void release() {}
};

class MounterBase : public Stordb::Mounter {
 public:
   // Takes the context and runs the stages 2 to 4.
   void init( Corvo::Ptr< MounterContext > const & context );

   Corvo::Ptr< Stordb::EntityManager > const & entityManager() const { return context_->entityManager(); }
   Corvo::Ptr< LocalSharedState > const & localSharedState() const { return context_->localSharedState(); }

   virtual void createPluginStatePhase1() {}
   virtual void createPluginStatePhase2() = 0;
   virtual void startPluginRunnabilitySm() = 0;
   virtual void doMounts() = 0;

   // Stage 5: called when the slice has reached a runnable state. The second and later calls do nothing.
   void handleRunnable();

 private:
   Corvo::Ptr< MounterContext > context_;
   bool mountsDone_ = false;
};

} // namespace Agent::MounterPlugin

namespace DaceFapNi {

class MounterBase : public Agent::MounterPlugin::MounterBase {
   REX_ENTITY( MounterBase, Agent::MounterPlugin::MounterBase );

 public:
   explicit MounterBase( Corvo::String const & mounterName ) : name_( mounterName ) {}
   ~MounterBase() override;
   Corvo::String name() const override { return name_; }

   virtual void doInitialMounts( Corvo::Ptr< Stordb::MountGroup > const & ) {}
   virtual void doCleanup( Corvo::Ptr< Stordb::EntityManager > const &, Corvo::String const & ) {}

 private:
   Corvo::String const name_;
};

class MounterRunnabilitySmBase : public Corvo::Node {
 public:
   // Adds a slice state in which the plug-in may run.
   void runnableStatesIs( SliceState state );
   // In the order in which they were added.
   std::vector< SliceState > const & runnableStates() const { return runnableStates_; }

 protected:
   virtual void handleSliceState() = 0;
   bool isRunnable( SliceState state ) const;

 private:
   std::vector< SliceState > runnableStates_;
};

// Follows the slice and tells the mounter when it may mount. The mounter owns it and outlives it.
class MounterRunnabilitySm : public MounterRunnabilitySmBase {
 public:
   MounterRunnabilitySm( Corvo::Ptr< SliceSmStateInfo const > const & sliceSmState, DaceFapNi::MounterBase * mounter );
   ~MounterRunnabilitySm() override;
   static Corvo::Ptr< MounterRunnabilitySm >
   MounterRunnabilitySmIs( Corvo::Ptr< SliceSmStateInfo const > const & sliceSmState,
                           DaceFapNi::MounterBase * mounter );

   Corvo::Ptr< SliceSmStateInfo const > const & sliceSmState() const { return sliceSmState_.ptr(); }
   DaceFapNi::MounterBase * mounter() const { return mounter_; }
   // Idempotent.
   void hasNotificationActiveIs( bool active );

 private:
   void handleSliceState() override;
   static void
   sliceSmStateDispatch( Corvo::Publisher *, Corvo::Subscriber *, short attribute, void const *, void const * );

   Corvo::Watched< SliceSmStateInfo const > sliceSmState_;
   DaceFapNi::MounterBase * mounter_;
};

// The loader of the forwarding agent's mounter plug-ins.
::Plugin::Loader< Agent::MounterPlugin::MounterContext > & defaultPluginLoader();

} // namespace DaceFapNi
