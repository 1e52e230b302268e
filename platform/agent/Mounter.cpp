#include "agent/Mounter.h"
#include "rex/EntityAttributes.h"

#include <algorithm>

REX_DEFINE( DaceFapNi::MounterBase, "DaceFapNi::MounterBase" );

namespace Agent::MounterPlugin {

void MounterBase::init( Corvo::Ptr< MounterContext > const & context ) {
   context_ = context;
   createPluginStatePhase1();
   createPluginStatePhase2();
   startPluginRunnabilitySm();
}

void MounterBase::handleRunnable() {
   if ( !mountsDone_ ) {
      mountsDone_ = true;
      doMounts();
   }
}

} // namespace Agent::MounterPlugin

namespace DaceFapNi {

MounterBase::~MounterBase() = default;

void MounterRunnabilitySmBase::runnableStatesIs( SliceState state ) {
   runnableStates_.push_back( state );
   handleSliceState();
}

bool MounterRunnabilitySmBase::isRunnable( SliceState state ) const {
   return std::find( runnableStates_.begin(), runnableStates_.end(), state ) != runnableStates_.end();
}

MounterRunnabilitySm::MounterRunnabilitySm( Corvo::Ptr< SliceSmStateInfo const > const & sliceSmState,
                                            DaceFapNi::MounterBase * mounter )
   : sliceSmState_( sliceSmState ), mounter_( mounter ) {}

MounterRunnabilitySm::~MounterRunnabilitySm() {
   hasNotificationActiveIs( false );
}

Corvo::Ptr< MounterRunnabilitySm >
MounterRunnabilitySm::MounterRunnabilitySmIs( Corvo::Ptr< SliceSmStateInfo const > const & sliceSmState,
                                              DaceFapNi::MounterBase * mounter ) {
   return Corvo::makePtr< MounterRunnabilitySm >( sliceSmState, mounter );
}

void MounterRunnabilitySm::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() != active ) {
      nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
      sliceSmState_.activeIs( active, sliceSmStateDispatch, this );
      handleSliceState();
   }
}

void MounterRunnabilitySm::handleSliceState() {
   if ( hasNotificationActive() && isRunnable( sliceSmState_->sliceState() ) ) {
      mounter_->handleRunnable();
   }
}

void MounterRunnabilitySm::sliceSmStateDispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const *, void const * ) {
   if ( attribute == 0x108 ) {
      slot->owner< MounterRunnabilitySm >()->handleSliceState();
   }
}

::Plugin::Loader< Agent::MounterPlugin::MounterContext > & defaultPluginLoader() {
   // Lives for the life of the process: libraries keep registering while static objects come and go.
   static auto * loader =
      new ::Plugin::Loader< Agent::MounterPlugin::MounterContext >( "DaceFapNi", "Agent::MounterPlugin" );
   return *loader;
}

} // namespace DaceFapNi
