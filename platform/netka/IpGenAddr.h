// IP addresses of either family. The reference platform passes them on and prints them; it computes nothing with them.
#pragma once

#include <compare>
#include <ostream>
#include <string>

namespace Netka {

struct IpGenAddr {
   std::string text; // as in "192.0.2.1" and "2001:db8::1"; empty: none
   friend auto operator<=>( IpGenAddr const &, IpGenAddr const & ) = default;
   friend std::ostream & operator<<( std::ostream & out, IpGenAddr const & addr ) { return out << addr.text; }
};

} // namespace Netka
