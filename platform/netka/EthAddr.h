// Ethernet addresses.
//
// Threading: plain data.
#pragma once

#include "rex/Value.h"

#include <array>
#include <compare>
#include <ostream>

namespace Netka {

class EthAddr {
 public:
   EthAddr() = default;
   explicit EthAddr( std::array< U8, 6 > const & bytes ) : bytes_( bytes ) {}
   // From "02:00:00:00:00:01". Throws Rex::ValueError if the text is none.
   explicit EthAddr( std::string const & text );

   std::array< U8, 6 > const & bytes() const { return bytes_; }
   bool isZero() const { return *this == EthAddr(); }
   std::string stringValue() const;
   friend auto operator<=>( EthAddr const &, EthAddr const & ) = default;
   friend std::ostream & operator<<( std::ostream & out, EthAddr const & addr ) { return out << addr.stringValue(); }

 private:
   std::array< U8, 6 > bytes_{}; // in the order of transmission
};

} // namespace Netka

template<>
struct Rex::Codec< Netka::EthAddr > {
   static ValueType type() {
      return { .kind = ValueType::Kind::text, .name = "MAC address", .pattern = "[0-9a-fA-F]{2}(:[0-9a-fA-F]{2}){5}" };
   }
   static Value toValue( Netka::EthAddr const & addr ) { return addr.stringValue(); }
   static Netka::EthAddr fromValue( Value const & value );
};
