// Watched: an input of a state machine, the pointer with its subscriber slot next to it.
//
//    Corvo::Watched< Evpn::EvpnStatus const > evpnStatus_;
//    evpnStatus_.subscribe( evpnStatusDispatch, this );
//
// WatchedIn is the same on a pointer that the machine holds already, among its arguments: an input has one owner there.
//
//    L3SmArguments const in_;
//    Corvo::WatchedIn< Evpn::EvpnStatus const > evpnStatus_{ in_.evpnStatus };
//
// A null input stays silent: subscribing to it does nothing.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Ptr.h"
#include "corvo/Publisher.h"

namespace Corvo {

namespace Impl {

template< class T, class Pointer >
class Watched {
 public:
   explicit Watched( Ptr< T > const & node ) : node_( node ) {}

   Ptr< T > const & ptr() const { return node_; }
   T * operator->() const { return node_.operator->(); }
   explicit operator bool() const { return static_cast< bool >( node_ ); }

   // Fills the slot and subscribes, without a replay, if there is an input and the slot is empty.
   void subscribe( Subscriber::Dispatch dispatch, void * owner ) {
      if ( node_ && slot_.isEmpty() ) {
         slot_.dispatchIs( dispatch, owner );
         node_->publisher()->subscriberAdd( slot_, false );
      }
   }
   // Unsubscribes and empties the slot, if it is filled.
   void unsubscribe() {
      if ( !slot_.isEmpty() ) {
         node_->publisher()->subscriberDel( slot_ );
      }
   }
   void activeIs( bool active, Subscriber::Dispatch dispatch, void * owner ) {
      if ( active ) {
         subscribe( dispatch, owner );
      } else {
         unsubscribe();
      }
   }

 private:
   Pointer node_; // declared before the slot: the slot leaves first
   Subscriber slot_;
};

} // namespace Impl

template< class T >
using Watched = Impl::Watched< T, Ptr< T > >;
template< class T >
using WatchedIn = Impl::Watched< T, Ptr< T > const & >;

} // namespace Corvo
