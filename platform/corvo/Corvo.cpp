#include "corvo/Ptr.h"
#include "corvo/Publisher.h"
#include "rex/Assert.h"
#include "rex/Type.h"

namespace Corvo {

bool ThreadControl::threaded_ = false;
U32 Node::live_ = 0;

Node::~Node() {
   count( live_, -1U );
}

void Node::lastUserGone() const {
   destroy();
}

void Node::destroy() const {
   users_ = 1;
   delete this;
}

Publisher * Node::publisher() const {
   return nullptr;
}

Rex::TypeData const & Node::typeData() const {
   static Rex::TypeData const type{ "Corvo::Node", nullptr };
   return type;
}

void Node::nodeFlagSet( NodeFlag which, bool on ) {
   auto const bit = static_cast< U8 >( which );
   flags_ = static_cast< U8 >( on ? flags_ | bit : flags_ & ~bit );
}

void Impl::nullPtrDereferenced() {
   Rex::assertionFailed( "ptr != nullptr", std::source_location::current() );
}

Subscriber::~Subscriber() {
   if ( publisher_ ) {
      publisher_->subscriberDel( *this );
   }
}

// One announcement on the stack. Cursors of all publishers form one chain, innermost first; it is a few deep at most,
// so whoever takes a subscriber out can afford to look at all of them.
struct Publisher::Cursor : Notification {
   Subscriber * next;
   bool const foreignWrite = std::exchange( foreignWrite_, false );

   Cursor( Publisher const * publisher_, short attribute_, void const * key_, Subscriber * first )
      : Notification{ publisher_, attribute_, key_, top_ }, next( first ) {
      top_ = this;
   }
   Cursor( Cursor const & ) = delete;
   Cursor & operator=( Cursor const & ) = delete;
   ~Cursor() {
      top_ = outerCursor();
      foreignWrite_ = foreignWrite;
   }
   Cursor * outerCursor() const { return static_cast< Cursor * >( const_cast< Notification * >( outer ) ); }
};

Publisher::Cursor * Publisher::top_ = nullptr;
bool Publisher::foreignWrite_ = false;

Notification const * Publisher::current() {
   return top_;
}

Publisher::~Publisher() {
   for ( auto * cursor = top_; cursor; cursor = cursor->outerCursor() ) {
      if ( cursor->publisher == this ) {
         cursor->publisher = nullptr;
         cursor->next = nullptr;
      }
   }
   while ( first_ ) {
      unlink( *first_ );
   }
}

void Publisher::subscriberAdd( Subscriber & subscriber, bool replay ) {
   Rex::sassert( subscriber.isEmpty(), "isEmpty" );
   subscriber.publisher_ = this;
   subscriber.serial_ = ++serial_;
   subscriber.previous_ = last_;
   subscriber.next_ = nullptr;
   ( last_ ? last_->next_ : first_ ) = &subscriber;
   last_ = &subscriber;
   if ( replay ) {
      for ( auto const * attribute : node_->typeData().attributes() ) {
         if ( subscriber.publisher_ != this ) {
            return; // its dispatch has unsubscribed it
         }
         subscriber.dispatch_( this, &subscriber, attribute->id, nullptr, nullptr );
      }
   }
}

void Publisher::subscriberDel( Subscriber & subscriber ) {
   if ( subscriber.publisher_ != this ) {
      return;
   }
   for ( auto * cursor = top_; cursor; cursor = cursor->outerCursor() ) {
      if ( cursor->next == &subscriber ) {
         cursor->next = subscriber.next_;
      }
   }
   unlink( subscriber );
}

void Publisher::unlink( Subscriber & subscriber ) {
   ( subscriber.previous_ ? subscriber.previous_->next_ : first_ ) = subscriber.next_;
   ( subscriber.next_ ? subscriber.next_->previous_ : last_ ) = subscriber.previous_;
   subscriber.publisher_ = nullptr;
   subscriber.next_ = nullptr;
   subscriber.previous_ = nullptr;
}

void Publisher::announce( short attribute, void const * key, void const * value ) {
   U64 const newest = serial_; // who subscribes from here on hears the next change
   Cursor cursor( this, attribute, key, first_ );
   while ( cursor.next && cursor.next->serial_ <= newest ) {
      Subscriber * const subscriber = cursor.next;
      cursor.next = subscriber->next_;
      subscriber->dispatch_( this, subscriber, attribute, key, value );
   }
}

} // namespace Corvo
