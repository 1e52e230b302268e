// What an event of a run changed, taken apart from how a journal has it.
//
//    EventInput const input = EventInput::of( what );      // {"set": {"path": "evpn/status", "attribute": ..., ...}}
//    input.text();                                         // "evpn/status evpnDciEnabled = true"
#pragma once

#include "rex/Value.h"

#include <optional>
#include <string>
#include <vector>

namespace Inspection {

struct EventInput {
   enum class Kind : U8 { start, set, remove, fault, other };

   Kind kind = Kind::other;
   std::string path = {};
   std::string attribute = {}; // empty: the entity at the path is removed
   std::optional< std::string > key = {};
   Rex::Value value = {}; // of a fault, and of Kind::other, the whole

   static EventInput of( Rex::Value const & what );
   // The changes that an event consists of: those of a transaction, or the one.
   static std::vector< EventInput > allOf( Rex::Value const & what );
   // As rows that it causes name it: "evpn/status evpnDciEnabled".
   std::string cause() const;
   std::string text() const;
};

} // namespace Inspection
