// Which functions of the plug-in an attribute of the state reaches: those that run when it changes, and those that look
// at it when the plug-in starts.
//
//    for ( Hearer const & hearer : hearersOf( "evpn/status", "evpnDciEnabled" ) ) { ... }
//
// It is known from runs that change each attribute by itself, in several states of a switch: KnownHearers.cpp, which a
// test compares and ./dev golden writes anew.
#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace Inspection {

struct Hearer {
   std::string_view path; // as StatePath has it
   std::string_view attribute;
   std::string_view function;
   bool atChange; // it runs, or a gate stops it, when the attribute changes
   bool atStart;  // what it writes at the start depends on the attribute

   friend auto operator<=>( Hearer const &, Hearer const & ) = default;
};

// By path, attribute and function.
std::span< Hearer const > knownHearers();
std::vector< Hearer > hearersOf( std::string_view path, std::string_view attribute );

} // namespace Inspection
