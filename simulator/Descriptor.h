// An open file, or a socket, closed with it.
//
// Threading: none.
#pragma once

#include <unistd.h>
#include <utility>

namespace Simulator {

class Descriptor {
 public:
   explicit Descriptor( int number = -1 ) : number_( number ) {}
   ~Descriptor() {
      if ( number_ >= 0 ) {
         ::close( number_ );
      }
   }
   Descriptor( Descriptor && other ) noexcept : number_( std::exchange( other.number_, -1 ) ) {}
   Descriptor & operator=( Descriptor && other ) noexcept {
      std::swap( number_, other.number_ );
      return *this;
   }
   explicit operator bool() const { return number_ >= 0; }
   int number() const { return number_; }

 private:
   int number_;
};

} // namespace Simulator
