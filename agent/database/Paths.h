// The state as databases hold it: a path for each entity, members of collections included, and at each path its
// attributes as JSON texts.
//
//    Paths paths = flattened( scenario.state );
//    paths["evpn/status"]["vxlanEnabled"];                                        // "true"
//    paths["interface/status/eth/vxlan/vtiStatus/Vxlan1"]["udpPort"];             // "4789"
//
//    for ( PathChange const & change : pathChangesOf( event, paths ) ) {          // what an event does to them
//       apply( change, paths );
//    }
//    eventsBetween( held, wanted, wrong );                                        // events that lead to another state
//
// A path may stand there without attributes: an entity whose attributes are all at their defaults. An attribute that
// holds an entity stands at its owner's path only where it holds none: as `null`.
//
// Where a path leads is told by the declarations of the entities alone; nothing here needs a switch.
//
// Threading: plain data.
#pragma once

#include "inspection/files/Scenario.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Live {

using Attributes = std::map< std::string, std::string >; // name to JSON text
using Paths = std::map< std::string, Attributes >;

// Where a path leads.
struct PathPlace {
   Rex::TypeData const * type = nullptr;    // of the entity that stands there
   Rex::TypeData const * entries = nullptr; // of what it holds by name, where it is a directory
   std::string owner = {};     // the path of the entity that holds it; empty at a root, which is always there
   std::string attribute = {}; // of the owner; empty for an entry of a directory
   std::string key = {};       // of a member of a collection, or the name in a directory

   bool isRoot() const { return owner.empty(); }
   bool isMember() const { return !attribute.empty() && !key.empty(); }
};

// Throws Rex::ValueError, its place "/path", for a path at which nothing can stand, or that others can't set.
PathPlace placeOf( std::string const & path );
// Throws Rex::ValueError for a name that the type doesn't have, or that others can't set.
Rex::Attribute const & settableAttribute( Rex::TypeData const & type, std::string const & name );
// How what is set in a member of a collection makes a member that isn't there.
Inspection::Event makingItsMember( Inspection::Event const & event, PathPlace const & place );

// What is done to one path.
struct PathChange {
   // stands: the path is there from now on, with whatever it has; set, clear: one attribute; remove: the path goes.
   enum class Kind : U8 { stands, set, clear, remove };

   Kind kind;
   std::string path;
   std::string attribute = {}; // set, clear
   std::string text = {};      // set: its value as JSON
   bool operator==( PathChange const & ) const = default;
};

// How to look things up in the paths that an event changes.
struct PathLookup {
   std::function< std::optional< std::string >( std::string const & path, std::string const & attribute ) > text;
   std::function< std::vector< std::string >( std::string const & path ) > below; // itself and everything below it
   explicit PathLookup( Paths const & paths );
   PathLookup() = default;
};

// What an event does to the paths, in their order. Throws Rex::ValueError, its place seen from {"path", "attribute",
// "key", "value"}, where the path, the attribute or the shape of the value is wrong.
std::vector< PathChange > pathChangesOf( Inspection::Event const & event, PathLookup const & lookup );
void apply( PathChange const & change, Paths & paths );

// The paths of a state as scenarios have it. Throws Rex::ValueError, its place seen from `state`.
Paths flattened( Rex::Value::Object const & state );
// `over`, and what `under` has beside it.
Paths overlaid( Paths const & under, Paths over );

// The events that lead from one state to the other. What `to` doesn't name is as the declarations have it. A text that
// isn't JSON, or a path that leads nowhere, is told in `wrong`, as "path attribute: what", and left out.
std::vector< Inspection::Event >
eventsBetween( Paths const & from, Paths const & to, std::map< std::string, std::string > & wrong );

// JSON text, and back. valueOf throws Rex::ValueError.
Rex::Value valueOfText( std::string const & text );

} // namespace Live
