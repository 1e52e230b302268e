// Ptr: the only ownership there is. Each Ptr is one user of its node.
//
// Dereferencing a null Ptr ends the process through the assertion helper (text "ptr != nullptr", then a line with the
// type that it should have pointed at), in every build: a missing object that the code relies on is a clear end, never
// undefined behaviour.
#pragma once

#include "corvo/Node.h"

#include <compare>
#include <cstddef>
#include <functional>
#include <type_traits>
#include <utility>

namespace Corvo {

namespace Impl {
// `type`: the compiler's text of a function that names it; see typeText.
[[noreturn]] void nullPtrDereferenced( char const * type );

// A text that the name of the type stands in; of incomplete types, too.
template< class T >
constexpr char const * typeText() {
   return __PRETTY_FUNCTION__; // "... [with T = Evpn::EvpnStatus]"
}
} // namespace Impl

template< class T >
class Ptr {
 public:
   using Element = T;

   Ptr() = default;
   Ptr( std::nullptr_t ) {}                     // NOLINT(google-explicit-constructor)
   Ptr( T * node ) : node_( node ) { adopt(); } // NOLINT(google-explicit-constructor)
   Ptr( Ptr const & other ) : node_( other.node_ ) { adopt(); }
   Ptr( Ptr && other ) noexcept : node_( std::exchange( other.node_, nullptr ) ) {}
   template< class U >
   requires( std::is_convertible_v< U *, T * > && !std::is_same_v< U, T > ) Ptr( Ptr< U > const & other )
      : node_( other.get() ) { // NOLINT(google-explicit-constructor)
      adopt();
   }
   ~Ptr() { release(); }

   // Takes over the creator's use of a node that was just made; see makePtr.
   static Ptr adopted( T * node ) {
      Ptr ptr;
      ptr.node_ = node;
      return ptr;
   }

   Ptr & operator=( Ptr other ) noexcept {
      std::swap( node_, other.node_ );
      return *this;
   }

   T * get() const { return node_; }
   T * operator->() const { return checked(); }
   T & operator*() const { return *checked(); }
   explicit operator bool() const { return node_ != nullptr; }

   template< class U >
   friend bool operator==( Ptr const & left, Ptr< U > const & right ) {
      return left.get() == right.get();
   }
   friend bool operator==( Ptr const & left, std::nullptr_t ) { return left.node_ == nullptr; }

 private:
   void adopt() {
      if ( node_ ) {
         node_->userAdd();
      }
   }
   void release() {
      if ( node_ ) {
         node_->userDel();
      }
   }
   T * checked() const {
      if ( !node_ ) [[unlikely]] {
         Impl::nullPtrDereferenced( Impl::typeText< T >() );
      }
      return node_;
   }

   T * node_ = nullptr;
};

// Makes a node. The one way to make one that is to be shared.
template< class T, class... Args >
Ptr< T > makePtr( Args &&... args ) {
   return Ptr< T >::adopted( new T( std::forward< Args >( args )... ) );
}

// The node as a T, or null if it is none.
template< class T, class U >
Ptr< T > ptrCast( Ptr< U > const & node ) {
   return Ptr< T >( dynamic_cast< T * >( node.get() ) );
}

} // namespace Corvo
