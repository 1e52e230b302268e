// What the addresses of all databases have in common, as people write them.
//
//    HostPort const at = HostPort::of( "[::1]:7", 2379 );
//    at.host;              // "::1"
//    at.port;              // 7
//    at.text();            // "[::1]:7"
//
// Threading: plain data.
#pragma once

#include "corvo/Types.h"

#include <string>
#include <string_view>

namespace Live {

// Throws Inspection::InputError. What may hold a password is not repeated.
[[noreturn]] void refuseAddress( std::string const & what );

// `what` is expected there: "the number of a database".
U32 numberInAddress( std::string_view text, std::string const & what, U32 largest = ~U32( 0 ) );

struct HostPort {
   std::string host; // an address of IPv6 without its brackets
   U16 port;

   // What is no host, or the port 0, is for who asks to refuse.
   static HostPort of( std::string_view text, U16 usualPort );
   std::string text() const;
};

} // namespace Live
