#include "rex/Notifiee.h"

namespace Rex {

NotifieeConst::~NotifieeConst() = default;

void NotifieeConst::lastUserGone() const {
   onZeroReferences();
   delete this;
}

void NotifieeConst::onAttribute( AttributeId, void const * ) {}

void NotifieeConst::rexDoZombieReactors( bool zombie ) {
   markAndSweepFlagSet( zombie );
}

void NotifieeConst::isRegisteredNotifieeIs( bool registered ) {
   nodeFlagSet( Corvo::NodeFlag::registered, registered );
   subscribeIfDue();
}

void NotifieeConst::hasNotificationActiveIs( bool active ) {
   if ( hasNotificationActive() != active ) {
      nodeFlagSet( Corvo::NodeFlag::notificationsActive, active );
      subscribeIfDue();
   }
}

void NotifieeConst::notifierEntityIs( Corvo::Ptr< Entity const > const & notifier ) {
   if ( notifier_ != notifier ) {
      if ( !slot_.isEmpty() ) {
         notifier_->publisher()->subscriberDel( slot_ );
      }
      auto const old = std::exchange( notifier_, notifier ); // released when all is done: it may take anything along
      subscribeIfDue();
   }
}

void NotifieeConst::subscribeIfDue() {
   bool const due = notifier_ && isRegistered() && hasNotificationActive();
   if ( due && slot_.isEmpty() ) {
      slot_.dispatchIs( dispatch, this );
      notifier_->publisher()->subscriberAdd( slot_, false );
   } else if ( !due && !slot_.isEmpty() ) {
      notifier_->publisher()->subscriberDel( slot_ );
   }
}

void NotifieeConst::dispatch(
   Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const * key, void const * ) {
   Corvo::Ptr< NotifieeConst > const self = slot->owner< NotifieeConst >();
   self->onAttribute( attribute, key );
}

} // namespace Rex
