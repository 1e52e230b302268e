// Publishers and subscribers: how a change of an attribute reaches those who follow it.
//
//    class Follower : public Corvo::Node {
//       Corvo::Subscriber slot_;
//       static void statusDispatch( Corvo::Publisher *, Corvo::Subscriber * slot, short attribute, void const * key,
//                                   void const * value );
//    };
//    slot_.dispatchIs( statusDispatch, this );
//    status->publisher()->subscriberAdd( slot_, false );
//
// Subscribers hear a change in the order in which they subscribed. A callback may do anything: remove itself or
// others, add others (they hear the next change), destroy the publisher, publish again.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Node.h"

namespace Corvo {

class Publisher;

// One slot of a follower. It is empty while unsubscribed and holds the dispatch function while subscribed.
// Destroying it unsubscribes it.
class Subscriber {
 public:
   // `key` names the entry of a keyed attribute and points to a value of the key's type; it is null for single
   // attributes. `value` points to the new value, an entity where that is what the attribute holds; it is null where
   // there is none. Both are valid until the dispatch function returns.
   using Dispatch = void ( * )( Publisher *, Subscriber *, short attribute, void const * key, void const * value );

   Subscriber() = default;
   Subscriber( Subscriber const & ) = delete;
   Subscriber & operator=( Subscriber const & ) = delete;
   ~Subscriber();

   // Fills the slot. The owner is handed back by owner().
   void dispatchIs( Dispatch dispatch, void * owner ) {
      dispatch_ = dispatch;
      owner_ = owner;
   }
   bool isEmpty() const { return publisher_ == nullptr; }

   template< class Owner >
   Owner * owner() const {
      return static_cast< Owner * >( owner_ );
   }

 private:
   friend class Publisher;
   Publisher * publisher_ = nullptr;
   Subscriber * next_ = nullptr;
   Subscriber * previous_ = nullptr;
   Dispatch dispatch_ = nullptr;
   void * owner_ = nullptr;
};

// A change that is being announced. The innermost one is what a driver operation is the consequence of.
struct Notification {
   Publisher const * publisher; // null once it has been destroyed by a callback
   short attribute;
   void const * key;
   Notification * outer; // the announcement during which this one began, or null
};

class Publisher {
 public:
   explicit Publisher( Node const & node ) : node_( &node ) {}
   Publisher( Publisher const & ) = delete;
   Publisher & operator=( Publisher const & ) = delete;
   ~Publisher();

   // The node whose changes are announced here.
   Node const & node() const { return *node_; }

   // Appends a filled slot. A slot that is subscribed already, here or elsewhere: assertion text "isEmpty".
   // With `replay` its dispatch function is called once for each attribute of the node's type, with a null key, until
   // it unsubscribes or the publisher goes.
   void subscriberAdd( Subscriber & subscriber, bool replay );
   // Takes a slot out and empties it; nothing happens if it is not subscribed here.
   void subscriberDel( Subscriber & subscriber );
   bool hasSubscribers() const { return first_ != nullptr; }

   void publish( short attribute, void const * key = nullptr, void const * value = nullptr ) {
      if ( first_ != last_ ) {
         announceToMany( attribute, key, value );
      } else if ( Subscriber * const only = first_ ) { // the most frequent case: no walk
         Cursor cursor{ { this, attribute, key, top_ }, nullptr, nullptr };
         Announcement const announcement( cursor );
         only->dispatch_( this, only, attribute, key, value );
      }
   }

   // The innermost announcement under way, or null.
   static Notification const * current() { return top_; }

   // True while the database carries out another agent's write, and false again in what that write sets off here:
   // only such a write may change a write-protected node.
   static bool foreignWrite();
   class ForeignWrite {
    public:
      ForeignWrite();
      ForeignWrite( ForeignWrite const & ) = delete;
      ForeignWrite & operator=( ForeignWrite const & ) = delete;
      ~ForeignWrite();

    private:
      Notification const * before_;
   };

 private:
   // One announcement on the stack. Cursors of all publishers form one chain, innermost first; it is a few deep at
   // most, so whoever takes a subscriber out can afford to look at all of them.
   struct Cursor : Notification {
      Subscriber * next; // null once nobody is left to hear it
      Subscriber * last; // who subscribes from here on hears the next change

      void subscriberGone( Subscriber const & subscriber );
      static Cursor * innermost() { return static_cast< Cursor * >( top_ ); }
      Cursor * outerCursor() const { return static_cast< Cursor * >( outer ); }
   };

   // Makes a cursor the innermost one. The one before is kept here, out of the callbacks' reach and so in a register:
   // read back from the cursor, it would make one announcement wait for the memory of the one before.
   class Announcement {
    public:
      explicit Announcement( Cursor & cursor ) : outer_( top_ ) { top_ = &cursor; }
      Announcement( Announcement const & ) = delete;
      Announcement & operator=( Announcement const & ) = delete;
      ~Announcement() { top_ = outer_; }

    private:
      Notification * const outer_;
   };

   void announceToMany( short attribute, void const * key, void const * value );
   void unlink( Subscriber & subscriber );

   Node const * node_;
   Subscriber * first_ = nullptr;
   Subscriber * last_ = nullptr;
   static Notification * top_; // the innermost announcement
};

} // namespace Corvo
