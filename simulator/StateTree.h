// The state that an agent lives on, by path: what it mounts from the state database, and what it shares with its
// plug-ins.
//
//    StateTree tree;                                            // every path, each attribute at its default
//    tree.attributeIs( "evpn/status", "evpnDciEnabled", true );
//    tree.entryIs( "interface/status/eth/vxlan", "vtiStatus", "Vxlan1", Rex::Value::Object{} );
//    tree.pathOf( *entity );                                    // "interface/status/eth/vxlan/vtiStatus/Vxlan1"
//
// Paths are written as people write them: without the prefix of the cell, shared objects as `shared/<key>`. Below the
// path of an entity stand the entities that it holds: `<path>/<collection>/<key>`, `<path>/<attribute>`, and
// `<path>/<name>` in a directory.
//
// What doesn't fit throws Rex::ValueError, whose place is the JSON pointer into {"path", "attribute", "key", "value"}.
// Nothing has changed then.
//
// Threading: the agent's scheduler thread.
#pragma once

#include "agent/Mounter.h"

#include <span>
#include <unordered_map>

namespace Simulator {

// A path that is there from the start.
struct StateRoot {
   // database: a path of the state database; cell: likewise, in the local cell. readOnly, writeAllowed: a shared
   // object, in the one or the other map.
   enum class Home : U8 { database, cell, readOnly, writeAllowed };
   // state: attributes that other agents set; given: told by the description of the switch; machinery: nothing to see.
   enum class Kind : U8 { state, given, machinery };

   Home home;
   char const * name; // the path in the database, or the key of the shared object
   Corvo::Ptr< Rex::Entity > ( *make )();
   Kind kind = Kind::state;

   bool isShared() const { return home == Home::readOnly || home == Home::writeAllowed; }
   // As people write it.
   std::string path() const { return isShared() ? std::string( "shared/" ) + name : name; }
};

// Every path, in the order of the mounts and then of the shared objects.
std::span< StateRoot const > stateRoots();

class StateTree {
 public:
   StateTree();
   ~StateTree();
   StateTree( StateTree const & ) = delete;
   StateTree & operator=( StateTree const & ) = delete;

   Corvo::Ptr< Stordb::Database > const & database() const { return database_; }
   Corvo::Ptr< Agent::MounterPlugin::LocalSharedState > const & shared() const { return shared_; }

   // What stands at a path; null if nothing does. Throws for a path that can't be.
   Corvo::Ptr< Rex::Entity > entity( std::string const & path ) const;
   // Puts an entity at one of the paths that are there from the start.
   void rootIs( std::string const & path, Corvo::Ptr< Rex::Entity > const & entity );

   // Sets one attribute. A directory's entry that doesn't exist is made.
   void attributeIs( std::string const & path, std::string const & attribute, Rex::Value const & value );
   // Sets all the attributes that `value`, an object, names.
   void attributesIs( std::string const & path, Rex::Value const & value );
   // Sets one entry of a map or collection.
   void entryIs( std::string const & path,
                 std::string const & attribute,
                 std::string const & key,
                 Rex::Value const & value );
   // Removes one entry. One that isn't there is an error.
   void entryDel( std::string const & path, std::string const & attribute, std::string const & key );
   // Removes the entity at a path: the path is left out.
   void entityDel( std::string const & path );

   // The path of an entity; empty if it isn't in the tree.
   std::string pathOf( Rex::Entity const & entity ) const;
   // The root that the entity is, or that it hangs below; null if there is none.
   StateRoot const * rootAbove( Rex::Entity const & entity ) const;

   // Path to attributes, null for a path that was left out; and the managed interface directories that a plug-in
   // publishes, below "managed/".
   Rex::Value value() const;

 private:
   // Where a path leads: the entity, and what holds it.
   struct Place {
      StateRoot const * root;
      Corvo::Ptr< Rex::Entity > entity; // null if nothing stands there
      Corvo::Ptr< Rex::Entity > owner;  // null at a root
      std::string step;                 // what leads from the owner to the entity: attribute, or a directory's name
      std::string key;                  // of an entry of a collection
   };

   static StateRoot const & rootOf( std::string const & path );
   static bool descend( Place & place, std::string const & rest );
   static bool enter( Place & place, Place const & next, std::string const & rest );
   Place find( std::string const & path ) const;
   Corvo::Ptr< Rex::Entity > rootEntity( StateRoot const & root ) const;
   void rootEntityIs( StateRoot const & root, Corvo::Ptr< Rex::Entity > const & entity );
   // Runs `change` on the entity at the path, which is made and entered first where it is missing and can be made.
   template< class Change >
   void changeAt( std::string const & path, Change const & change );

   Corvo::Ptr< Stordb::Database > database_;
   Corvo::Ptr< Agent::MounterPlugin::LocalSharedState > shared_;
   std::unordered_map< Rex::Entity const *, StateRoot const * > rootOfEntity_;
};

} // namespace Simulator
