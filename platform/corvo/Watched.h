// Watched: an input of a state machine, the pointer with its subscriber slot next to it.
//
//    Corvo::Watched< Evpn::EvpnStatus const > evpnStatus_;
//    evpnStatus_.subscribe( evpnStatusDispatch, this );
//
// A null input stays silent: subscribing to it does nothing.
#pragma once

#include "corvo/Ptr.h"
#include "corvo/Publisher.h"

namespace Corvo {

template< class T >
class Watched {
 public:
   explicit Watched( Ptr< T > node ) : node_( std::move( node ) ) {}

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
   Ptr< T > node_; // declared before the slot: the slot leaves first
   Subscriber slot_;
};

} // namespace Corvo
