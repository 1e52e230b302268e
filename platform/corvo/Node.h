// Nodes: what is reference-counted and takes part in notification.
//
//    Corvo::Ptr< L3Sm > sm = Corvo::makePtr< L3Sm >( ... );   // one user
//    sm->hasNotificationActiveIs( true );
//    sm = nullptr;                                             // last user gone: deleted
//
// A node is made by makePtr and starts with its creator as its one user, so that it may hand out references to itself
// while it is being constructed, and while it is being destroyed: such references don't outlive the destructor, which
// ends the process otherwise (assertion text "users_ == 1").
//
// It carries flags beside its use count: notifications active; zombie (it is being torn down, its handlers stay
// silent); write-protected (mounted for reading); registered (see rex/Notifiee.h).
//
// Threading: use counts are plain increments unless ThreadControl says that more threads are present, when they become
// atomic. Everything else belongs to the agent's scheduler thread.
#pragma once

#include "corvo/Types.h"

#include <atomic>

namespace Corvo {

class NodeType;
class Publisher;

// Says whether more than one thread of the process uses nodes. Set it before the second thread starts.
class ThreadControl {
 public:
   static bool threaded() { return threaded_; }
   static void threadedIs( bool threaded ) { threaded_ = threaded; }

 private:
   static bool threaded_;
};

enum class NodeFlag : U8 { notificationsActive = 1, zombie = 2, writeProtected = 4, registered = 8 };

class Node {
 public:
   Node( Node const & ) = delete;
   Node & operator=( Node const & ) = delete;
   virtual ~Node();

   // Called when the last user is gone. Deletes the node; a node that lives elsewhere overrides it.
   virtual void lastUserGone() const;
   // Where changes of this node's attributes are announced, or null for a node without attributes.
   virtual Publisher * publisher() const;
   // The node's type; an entity's says more (Rex::TypeData).
   virtual NodeType const & typeData() const;

   void userAdd() const { count( users_, 1 ); }
   void userDel() const {
      if ( count( users_, -1U ) == 0 ) {
         count( users_, 1 ); // its own user while it goes: references come and go without destroying it again
         lastUserGone();
      }
   }
   U32 useCount() const { return users_; }

   bool hasNotificationActive() const { return flag( NodeFlag::notificationsActive ); }
   bool isZombie() const { return flag( NodeFlag::zombie ); }
   bool isWriteProtected() const { return flag( NodeFlag::writeProtected ); }
   bool isRegistered() const { return flag( NodeFlag::registered ); }
   void nodeFlagSet( NodeFlag which, bool on );
   void markAndSweepFlagSet( bool zombie ) { nodeFlagSet( NodeFlag::zombie, zombie ); }

   // The number of nodes alive in the process: what a test looks at when it says that nothing was left behind.
   static U32 liveCount() { return live_; }

 protected:
   Node() { count( live_, 1 ); }

 private:
   bool flag( NodeFlag which ) const { return ( flags_ & static_cast< U8 >( which ) ) != 0; }
   static U32 count( U32 & counter, U32 step ) {
      if ( ThreadControl::threaded() ) [[unlikely]] {
         return std::atomic_ref< U32 >( counter ).fetch_add( step, std::memory_order_acq_rel ) + step;
      }
      return counter += step;
   }

   mutable U32 users_ = 1;
   U8 flags_ = 0;
   static U32 live_;
};

} // namespace Corvo
