// The state that a scenario sets and a plug-in follows, as data: every path, its attributes, what they take, their
// defaults, and whom they reach. Made from the declarations of the entities.
//
//    for ( StatePath const & path : statePaths() ) {
//       for ( StateAttribute const & attribute : path.attributes ) { ... }
//    }
//    statePathOf( "interface/status/eth/vxlan/vtiStatus/Vxlan1" );
//    statePathsNamed( "interface" );                                // all below it; InputError where there is none
//
// A key of a collection or directory stands in a path as a word in capitals: `vtiStatus/INTERFACE`.
#pragma once

#include "inspection/Hearers.h"
#include "simulator/StateTree.h"

namespace Inspection {

struct StateAttribute {
   Rex::Attribute const * attribute;
   Rex::Value defaultValue;
   // The default is what the description of the switch says; `defaultValue` is that of some switch.
   bool isOfSwitch;
   std::vector< Hearer > hearers;
};

struct StatePath {
   // state: a scenario sets it; given: the description of the switch tells it; published: the plug-in sets it.
   enum class Kind : U8 { state, given, published };

   std::string path;
   Kind kind;
   Rex::TypeData const * type;
   // A directory, which holds entities of this type by name; null for everything else.
   Rex::TypeData const * entries = nullptr;
   std::vector< StateAttribute > attributes;

   // Whether a path as a scenario writes it leads here: its keys in place of the words in capitals.
   bool isOf( std::string_view written ) const;
   bool hasKey() const;
   // Whether a step of a listed path stands for a key.
   static bool isKeyWord( std::string_view step );
};

// In the order of the mounts and then of the shared objects, what is below a path right after it.
std::vector< StatePath > const & statePaths();

// The path that is listed for one that is written, with a key in it or with the word that stands for one; of two, the
// one that goes further down. Null if there is none.
StatePath const * statePathOf( std::string_view written );

// Those that a person means: the path and all below it; the path whose attribute is named at its end; or all that begin
// so. InputError where there is none.
std::vector< StatePath const * > statePathsNamed( std::string const & text );

} // namespace Inspection
