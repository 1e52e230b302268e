// Gates: the conditions at which a function of a plug-in ends early, told to whoever asks later why nothing happened.
//
//    if ( !Rex::gate( toggleJ2SRv6Enabled(), "the toggle J2SRv6 is off" ) ) {
//       return;
//    }
//    if ( !Rex::gate( ctx_fwd1_exists( fap.chipType, ctx ), "the chip lacks the context", fap.id.value() ) ) {
//       continue;
//    }
//
// The reason reads as the answer to "why not?". A gate changes nothing: it hands its condition back, and a closed one
// is told to the listener of the process. One that is open costs the test that would stand there anyway.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "corvo/Types.h"

#include <optional>
#include <source_location>
#include <string_view>

namespace Rex {

struct ClosedGate {
   std::string_view reason;
   std::optional< U16 > fap; // where the condition is one of a FAP
   std::source_location origin;
};

// Hears of every gate that was found closed. The texts are valid during the call only.
class GateListener {
 public:
   virtual ~GateListener() = default;
   virtual void gateClosed( ClosedGate const & gate ) = 0;
};

// The listener of the process, or null.
GateListener * gateListener();
void gateListenerIs( GateListener * listener );

// Returns `open`.
inline bool gate( bool open,
                  std::string_view reason,
                  std::optional< U16 > fap = std::nullopt,
                  std::source_location origin = std::source_location::current() ) {
   if ( !open ) [[unlikely]] {
      if ( GateListener * const listener = gateListener() ) {
         listener->gateClosed( { reason, fap, origin } );
      }
   }
   return open;
}

} // namespace Rex
