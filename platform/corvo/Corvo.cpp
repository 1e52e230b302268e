#include "assert/Assert.h"
#include "corvo/NodeType.h"
#include "corvo/Ptr.h"
#include "corvo/Publisher.h"

namespace Corvo {

bool ThreadControl::threaded_ = false;
U32 Node::live_ = 0;

Node::~Node() {
   Rex::sassert( users_ == 1, "users_ == 1" ); // or somebody is left with a reference to nothing
   count( live_, -1U );
}

void Node::lastUserGone() const {
   delete this;
}

Publisher * Node::publisher() const {
   return nullptr;
}

NodeType const & Node::typeData() const {
   static NodeType const type{ "Corvo::Node" };
   return type;
}

void Node::nodeFlagSet( NodeFlag which, bool on ) {
   auto const bit = static_cast< U8 >( which );
   flags_ = static_cast< U8 >( on ? flags_ | bit : flags_ & ~bit );
}

void Impl::nullPtrDereferenced( char const * type ) {
   constexpr std::string_view with = "T = ";
   std::string name = type;
   if ( auto const at = name.find( with ); at != std::string::npos ) {
      name = name.substr( at + with.size(), name.rfind( ']' ) - at - with.size() );
   }
   name = name.substr( 0, name.find( ';' ) );
   Rex::assertionFailed( "ptr != nullptr", std::source_location::current(), "no " + name );
}

Subscriber::~Subscriber() {
   if ( publisher_ ) {
      publisher_->subscriberDel( *this );
   }
}

Notification * Publisher::top_ = nullptr;

namespace {

Notification const noAnnouncement{ nullptr, 0, nullptr, nullptr };
Notification const * foreignWriteDuring = &noAnnouncement; // the innermost announcement when a foreign write began

} // namespace

bool Publisher::foreignWrite() {
   return top_ == foreignWriteDuring;
}

Publisher::ForeignWrite::ForeignWrite() : before_( std::exchange( foreignWriteDuring, top_ ) ) {}

Publisher::ForeignWrite::~ForeignWrite() {
   foreignWriteDuring = before_;
}

void Publisher::Cursor::subscriberGone( Subscriber const & subscriber ) {
   if ( next == &subscriber ) {
      next = last == &subscriber ? nullptr : subscriber.next_;
   } else if ( last == &subscriber ) {
      last = subscriber.previous_; // not before `next`, or `next` is null
   }
}

Publisher::~Publisher() {
   for ( auto * cursor = Cursor::innermost(); cursor; cursor = cursor->outerCursor() ) {
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
   subscriber.previous_ = last_;
   subscriber.next_ = nullptr;
   ( last_ ? last_->next_ : first_ ) = &subscriber;
   last_ = &subscriber;
   if ( replay ) {
      // The slot stays next for as long as it is subscribed.
      Cursor cursor{ { this, 0, nullptr, top_ }, &subscriber, &subscriber };
      Announcement const announcement( cursor );
      for ( short const attribute : node_->typeData().attributeIds() ) {
         cursor.attribute = attribute;
         subscriber.dispatch_( this, &subscriber, attribute, nullptr, nullptr );
         if ( !cursor.next ) {
            return;
         }
      }
   }
}

void Publisher::subscriberDel( Subscriber & subscriber ) {
   if ( subscriber.publisher_ != this ) {
      return;
   }
   for ( auto * cursor = Cursor::innermost(); cursor; cursor = cursor->outerCursor() ) {
      cursor->subscriberGone( subscriber );
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

void Publisher::announceToMany( short attribute, void const * key, void const * value ) {
   Cursor cursor{ { this, attribute, key, top_ }, first_, last_ };
   Announcement const announcement( cursor );
   while ( Subscriber * const subscriber = cursor.next ) {
      cursor.next = subscriber == cursor.last ? nullptr : subscriber->next_;
      subscriber->dispatch_( this, subscriber, attribute, key, value );
   }
}

} // namespace Corvo
