// Interface ids: 64-bit numbers that stand for names.
//
// The reference platform numbers names in the order in which it meets them; 0 is the empty name.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "rex/Value.h"

#include <compare>
#include <functional>
#include <ostream>

namespace Netka {

class IntfId {
 public:
   IntfId() = default;
   explicit IntfId( std::string const & name );
   U64 value() const { return id_; }
   // The name, as in "Ethernet1".
   std::string const & stringValue() const;
   friend auto operator<=>( IntfId, IntfId ) = default;
   friend std::ostream & operator<<( std::ostream & out, IntfId id ) { return out << id.stringValue(); }

 private:
   U64 id_ = 0;
};

struct UdpPort {
   U16 value = 0;
   friend auto operator<=>( UdpPort, UdpPort ) = default;
   friend std::ostream & operator<<( std::ostream & out, UdpPort port ) { return out << port.value; }
};

} // namespace Netka

template<>
struct std::hash< Netka::IntfId > {
   std::size_t operator()( Netka::IntfId id ) const noexcept { return std::hash< U64 >{}( id.value() ); }
};

template<>
struct Rex::Codec< Netka::IntfId > {
   static ValueType type() { return { .kind = ValueType::Kind::text, .name = "interface" }; }
   static Value toValue( Netka::IntfId id ) { return id.stringValue(); }
   static Netka::IntfId fromValue( Value const & value ) {
      return Netka::IntfId( Codec< std::string >::fromValue( value ) );
   }
   static std::string toKey( Netka::IntfId id ) { return id.stringValue(); }
   static Netka::IntfId fromKey( std::string const & key ) { return Netka::IntfId( key ); }
};
