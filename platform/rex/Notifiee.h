// NotifieeConst: a reactor on one entity, its notifier.
//
//    class NestedSm_PortState : public Rex::NotifieeConst {
//       void notifierIs( Corvo::Ptr< PortState const > const & portState );   // casts, sets, runs a handler
//       void onAttribute( Rex::AttributeId attribute, void const * key ) override;
//    };
//
// It hears its notifier while it is registered, its notifications are active, and it has one. While onAttribute runs,
// the reactor is kept alive: its handlers may drop every other reference to it.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "rex/Entity.h"

namespace Rex {

using AttributeId = short;

class NotifieeConst : public Corvo::Node {
 public:
   ~NotifieeConst() override;
   void lastUserGone() const override;
   virtual void isRegisteredNotifieeIs( bool registered );
   // Called when the last user is gone, before the reactor is deleted.
   virtual void onZeroReferences() const {}
   // `key` names the entry of a keyed attribute, and is null for single ones.
   virtual void onAttribute( AttributeId attribute, void const * key );
   // Idempotent. The base only marks.
   virtual void rexDoZombieReactors( bool zombie );

   // Idempotent.
   void hasNotificationActiveIs( bool active );
   Corvo::Ptr< Entity const > const & notifierEntity() const { return notifier_; }

 protected:
   NotifieeConst() = default;
   // Follows another notifier, or none. Runs no handler.
   void notifierEntityIs( Corvo::Ptr< Entity const > const & notifier );

 private:
   static void dispatch( Corvo::Publisher *, Corvo::Subscriber *, short, void const *, void const * );
   void subscribeIfDue();

   Corvo::Ptr< Entity const > notifier_; // declared before the slot: the slot leaves first
   Corvo::Subscriber slot_;
};

} // namespace Rex
